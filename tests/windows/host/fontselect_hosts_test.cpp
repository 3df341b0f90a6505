// The font selector in hosts: the Tab key, classes of their own, and those that do their worst.
#include "tests/windows/support/abuse.h"
#include "tests/windows/support/font_select.h"
#include "tests/windows/support/objects.h"
#include "tests/windows/support/spy.h"

#include <functional>
#include <memory>

namespace {

using vorn::test::FontSelectTest;
using vorn::test::Message;
using vorn::test::PumpMessages;
using vorn::test::Spy;

constexpr int kBefore = 1;
constexpr int kSelector = 2;
constexpr int kAfter = 3;

INT_PTR CALLBACK AcceptDefaults(HWND, UINT message, WPARAM, LPARAM) {
    return message == WM_INITDIALOG;
}

// A dialog with a button, a font selector and another button.
class FontSelectTab : public FontSelectTest {
protected:
    void Open(DWORD selectorStyle) {
        struct {
            DLGTEMPLATE header;
            WORD noMenuNoClassNoTitle[3];
        } dialogTemplate = {{WS_POPUP | WS_VISIBLE, 0, 0, 0, 0, 250, 60}, {}};
        dialog = CreateDialogIndirectParamA(GetModuleHandleA(nullptr), &dialogTemplate.header,
                                            host.window(), AcceptDefaults, 0);
        ASSERT_NE(dialog, nullptr);
        Add("BUTTON", WS_TABSTOP, 0, kBefore);
        Add(VORN_FONTSELECT_CLASS, selectorStyle, 60, kSelector);
        Add("BUTTON", WS_TABSTOP, 270, kAfter);
        PumpMessages();
        SetFocus(GetDlgItem(dialog, kBefore));
    }

    void TearDown() override { DestroyWindow(dialog); }

    // Presses Tab in the dialog's own way; where that leads.
    int Tab(bool shift = false) {
        BYTE keys[256] = {};
        keys[VK_SHIFT] = shift ? 0x80 : 0;
        SetKeyboardState(keys);
        MSG message = {GetFocus(), WM_KEYDOWN, VK_TAB, 1, 0, {}};
        EXPECT_TRUE(IsDialogMessageA(dialog, &message));
        keys[VK_SHIFT] = 0;
        SetKeyboardState(keys);
        return GetDlgCtrlID(GetFocus());
    }

    HWND dialog = nullptr;

private:
    void Add(const char* className, DWORD style, int x, int id) {
        CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE | style, x, 5,
                        id == kSelector ? 200 : 50, 30, dialog,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                        GetModuleHandleA(nullptr), nullptr);
    }
};

TEST_F(FontSelectTab, GoesThroughTheInnerLists) {
    for (const DWORD style : {DWORD{0}, DWORD{WS_TABSTOP}}) {
        Open(style);
        EXPECT_EQ(Tab(), 228) << style;
        EXPECT_EQ(Tab(), 229) << style;
        EXPECT_EQ(Tab(), kAfter) << style;
        EXPECT_EQ(Tab(), kBefore) << style;
        EXPECT_EQ(Tab(true), kAfter) << style;
        EXPECT_EQ(Tab(true), 229) << style;
        EXPECT_EQ(Tab(true), 228) << style;
        EXPECT_EQ(Tab(true), kBefore) << style;
        DestroyWindow(dialog);
    }
}

TEST_F(FontSelectTab, PassesByADisabledOne) {
    Open(0);
    EnableWindow(GetDlgItem(dialog, kSelector), FALSE);
    EXPECT_EQ(Tab(), kAfter);
    EXPECT_EQ(Tab(true), kBefore);
}

TEST_F(FontSelectTab, ChoosesByKeyOnTheWay) {
    Open(0);
    HWND control = GetDlgItem(dialog, kSelector);
    Tab();
    Tab();
    MSG message = {GetFocus(), WM_KEYDOWN, VK_DOWN, 1, 0, {}};
    EXPECT_TRUE(IsDialogMessageA(dialog, &message));
    EXPECT_EQ(fsGetFontPointSize(control), 11);
    EXPECT_EQ(GetFocus(), Sizes(control));
}

class FontSelectHost : public FontSelectTest {
protected:
    // What each function answers without lists, the control being there all the same.
    static void ExpectNoLists(HWND control) {
        EXPECT_EQ(FamilyOf(control), " ");
        EXPECT_EQ(fsSetFontFamily(control, "Arial"), -1);
        EXPECT_EQ(fsGetFontPointSize(control), 10);
        EXPECT_EQ(fsSetFontPointSize(control, 12), -1);
        EXPECT_EQ(fsSetFontSize(control, 12), -1);
        EXPECT_EQ(fsGetFontSize(control), -13);
        EXPECT_EQ(fsSetItemHeight(control, 12), -1);
        EXPECT_TRUE(fsSetColor(control, VORN_COLOR_BACKGROUND, RGB(1, 2, 3)));
        EXPECT_EQ(SendMessageA(control, VFSM_GETBACKGROUNDCOLOR, 0, 0), LRESULT{RGB(1, 2, 3)});
        SendMessageA(control, WM_SIZE, 0, MAKELPARAM(100, 20));
        SendMessageA(control, WM_SETFONT, 0, TRUE);
        SendMessageA(control, WM_FONTCHANGE, 0, 0);
        SendMessageA(control, WM_COMMAND, MAKEWPARAM(229, CBN_CLOSEUP), 0);
        PumpMessages();
        EXPECT_FALSE(GetUpdateRect(control, nullptr, FALSE));
    }
};

TEST_F(FontSelectHost, MayDestroyTheDialog) {
    HWND control = Create();
    DestroyWindow(DialogOf(control));
    ExpectNoLists(control);
    EXPECT_TRUE(DestroyWindow(control));
}

TEST_F(FontSelectHost, MayDestroyAList) {
    HWND control = Create();
    DestroyWindow(Families(control));
    EXPECT_EQ(FamilyOf(control), " ");
    EXPECT_EQ(fsSetFontPointSize(control, 12), 4);
    EXPECT_EQ(fsGetFontPointSize(control), 12);
    SendMessageA(control, WM_FONTCHANGE, 0, 0);
    SendMessageA(control, WM_SIZE, 0, MAKELPARAM(100, 20));
    DestroyWindow(Sizes(control));
    EXPECT_EQ(fsGetFontPointSize(control), 10);
    EXPECT_TRUE(DestroyWindow(control));
}

TEST_F(FontSelectHost, MayChangeTheListsItems) {
    HWND control = Create();
    SendMessageA(Families(control), CB_SETITEMDATA, 0, 1000000);
    EXPECT_EQ(FamilyOf(control), " ") << "no family has this number";
    SendMessageA(Families(control), CB_SETITEMDATA, 0, -1);
    EXPECT_EQ(FamilyOf(control), " ");
    SendMessageA(Sizes(control), CB_SETITEMDATA, 2, 2147483647);
    EXPECT_EQ(fsGetFontPointSize(control), 2147483647);
    EXPECT_EQ(fsGetFontSize(control), -2147483647 - 1) << "the nearest 32-bit value";
    SendMessageA(Sizes(control), CB_RESETCONTENT, 0, 0);
    EXPECT_EQ(fsSetFontPointSize(control, 12), -1);
    SendMessageA(Families(control), CB_RESETCONTENT, 0, 0);
    EXPECT_EQ(FamilyOf(control), " ");
    EXPECT_EQ(fsSetFontFamily(control, "Arial"), -1);
}

TEST_F(FontSelectHost, MayAddFamiliesOfItsOwn) {
    HWND control = Create();
    LOGFONTA font{};
    TEXTMETRICA metrics{};
    const LRESULT count = SendMessageA(Families(control), CB_GETCOUNT, 0, 0);
    for (int i = 0; i < 3000; ++i) {
        wsprintfA(font.lfFaceName, "Zz family %04d", i);
        EXPECT_EQ(EnumFamCallBack(&font, &metrics, 0, reinterpret_cast<LPARAM>(control)), 1);
    }
    EXPECT_EQ(SendMessageA(Families(control), CB_GETCOUNT, 0, 0), count + 3000);
    EXPECT_GE(fsSetFontFamily(control, "zz family 2999"), 0);
    EXPECT_EQ(FamilyOf(control), "Zz family 2999");
    EXPECT_GE(fsSetFontFamily(control, "Zz family 1234"), 0);
    EXPECT_EQ(FamilyOf(control), "Zz family 1234");
}

TEST_F(FontSelectHost, MayCallTheCallbacksWithAnything) {
    HWND control = Create();
    const LRESULT count = SendMessageA(Families(control), CB_GETCOUNT, 0, 0);
    LOGFONTA font{};
    TEXTMETRICA metrics{};
    EXPECT_EQ(EnumFamCallBack(nullptr, &metrics, 0, reinterpret_cast<LPARAM>(control)), 1);
    EXPECT_EQ(EnumFamCallBack(&font, nullptr, 0, reinterpret_cast<LPARAM>(control)), 1);
    EXPECT_EQ(SendMessageA(Families(control), CB_GETCOUNT, 0, 0), count);
    HWND foreign = vorn::test::CreateForeignWindow();
    const LONG first = GetWindowLongA(foreign, 0);
    for (HWND window : {static_cast<HWND>(nullptr), vorn::test::DestroyedWindow(), foreign}) {
        EXPECT_EQ(EnumFamCallBack(&font, &metrics, 0, reinterpret_cast<LPARAM>(window)), 1);
        for (const UINT message : {WM_INITDIALOG, WM_LBUTTONUP, WM_CLOSE, WM_CTLCOLORLISTBOX}) {
            EXPECT_EQ(fnFontSelProc(window, message, 0, 0), 0) << "everything else is left";
        }
        EXPECT_EQ(fnFontSelProc(window, WM_LBUTTONDOWN, 0, 0), 0);
        EXPECT_EQ(fnFontSelProc(window, WM_ERASEBKGND, 0, 0), 1);
        fnFontSelProc(window, WM_COMMAND, 0, 0);
    }
    EXPECT_EQ(GetWindowLongA(foreign, 0), first) << "only dialogs have a result";
    DestroyWindow(foreign);
}

TEST_F(FontSelectHost, MayBuildAClassOfItsOwn) {
    WNDCLASSA ours{};
    GetClassInfoA(nullptr, VORN_FONTSELECT_CLASS, &ours);
    EXPECT_EQ(ours.hbrBackground, GetStockObject(LTGRAY_BRUSH));
    ours.lpszClassName = "HostsOwnSelector";
    ours.hInstance = GetModuleHandleA(nullptr);
    ours.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
    ASSERT_NE(RegisterClassA(&ours), 0);
    HWND control = host.Create("HostsOwnSelector", 0, 0, 0, 200, 30);
    ASSERT_NE(control, nullptr);
    EXPECT_EQ(fsSetFontPointSize(control, 36), 13);
    EXPECT_EQ(fsGetFontPointSize(control), 36);
    EXPECT_GE(fsSetFontFamily(control, "Arial"), 0);
    EXPECT_EQ(FamilyOf(control), "Arial");
    DestroyWindow(control);
    EXPECT_TRUE(UnregisterClassA("HostsOwnSelector", GetModuleHandleA(nullptr)));
}

TEST_F(FontSelectHost, ASecondCreationMessageChangesNothing) {
    HWND control = Create();
    fsSetFontPointSize(control, 20);
    CREATESTRUCTA create{};
    create.lpszName = "";
    EXPECT_EQ(SendMessageA(control, WM_NCCREATE, 0, reinterpret_cast<LPARAM>(&create)), 0);
    EXPECT_EQ(fsGetFontPointSize(control), 20);
    EXPECT_EQ(GetWindow(DialogOf(control), GW_HWNDNEXT), nullptr) << "still one dialog";
}

TEST_F(FontSelectHost, MayHaveNoParentToTell) {
    HWND control = CreateWindowExA(0, VORN_FONTSELECT_CLASS, "", WS_POPUP, 0, 0, 200, 30, nullptr,
                                   nullptr, GetModuleHandleA(nullptr), nullptr);
    ASSERT_NE(control, nullptr);
    PumpMessages();
    SendMessageA(Sizes(control), WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(fsGetFontPointSize(control), 11);
    MSG message;
    EXPECT_FALSE(PeekMessageA(&message, nullptr, WM_COMMAND, WM_COMMAND, PM_REMOVE))
        << "not even to the thread";
    SendMessageA(control, WM_LBUTTONDOWN, 0, 0);
    EXPECT_TRUE(DestroyWindow(control));
}

// Things a host does to a control, each of which makes the control send messages to its lists.
struct Deed {
    const char* name;
    std::function<void(HWND control, HWND list)> act;
};

const Deed kDeeds[] = {
    {"size", [](HWND control, HWND) { SendMessageA(control, WM_SIZE, 0, MAKELPARAM(90, 20)); }},
    {"font", [](HWND control, HWND) { SendMessageA(control, WM_SETFONT, 0, TRUE); }},
    {"font change", [](HWND control, HWND) { SendMessageA(control, WM_FONTCHANGE, 0, 0); }},
    {"color", [](HWND control, HWND) { fsSetColor(control, 8, RGB(1, 2, 3)); }},
    {"item height", [](HWND control, HWND) { fsSetItemHeight(control, 20); }},
    {"set family", [](HWND control, HWND) { fsSetFontFamily(control, "Arial"); }},
    {"get family",
     [](HWND control, HWND) {
         char name[40];
         fsGetFontFamily(control, name, sizeof name);
     }},
    {"set points", [](HWND control, HWND) { fsSetFontPointSize(control, 20); }},
    {"get points", [](HWND control, HWND) { fsGetFontPointSize(control); }},
    {"set size", [](HWND control, HWND) { fsSetFontSize(control, 20); }},
    {"get size", [](HWND control, HWND) { fsGetFontSize(control); }},
    {"key", [](HWND, HWND list) { SendMessageA(list, WM_KEYDOWN, VK_DOWN, 1); }},
    {"close", [](HWND control,
                 HWND) { SendMessageA(control, WM_COMMAND, MAKEWPARAM(229, CBN_CLOSEUP), 0); }},
    {"destroy", [](HWND control, HWND) { DestroyWindow(control); }},
};

// Destroys the control at the message of this number that one of its inner windows gets during
// the deed; answers whether there was such a message.
bool DestroyAt(HWND control, const std::vector<HWND>& inner, const Deed& deed, int number) {
    std::vector<std::unique_ptr<Spy>> spies;
    int left = number;
    for (HWND window : inner) {
        spies.push_back(std::make_unique<Spy>(window));
        spies.back()->before = [&left, control](const Message& message) {
            // The system's own list does not bear its end while it tells of deleted items.
            if (message.message != WM_DELETEITEM && left-- == 0) {
                DestroyWindow(control);
            }
        };
    }
    deed.act(control, inner[2]);
    for (const auto& spy : spies) {
        spy->before = nullptr;
    }
    return left < 0;
}

TEST_F(FontSelectHost, MayDestroyTheControlAtAnyMessage) {
    constexpr int kMost = 25; // the rest are more families
    for (const Deed& deed : kDeeds) {
        int number = 0;
        bool reached = true;
        while (reached && number < kMost) {
            HWND control = Create();
            const std::vector<HWND> inner = {DialogOf(control), Families(control), Sizes(control)};
            reached = DestroyAt(control, inner, deed, number);
            EXPECT_FALSE(reached && IsWindow(control)) << deed.name << " " << number;
            if (IsWindow(control)) {
                DestroyWindow(control);
            }
            EXPECT_EQ(fsGetFontPointSize(control), 10);
            ++number;
        }
        EXPECT_GT(number, 1) << deed.name << " sent nothing";
    }
}

TEST_F(FontSelectHost, MayDestroyTheControlWhenAskedForItsKind) {
    for (const bool throughDialog : {false, true}) {
        HWND control = Create();
        host.answer = [&](const Message& message) -> std::optional<LRESULT> {
            if (message.message == VORN_WM_IS_HOST_APP) {
                DestroyWindow(control);
                return VORN_HOST_APP_YES;
            }
            return std::nullopt;
        };
        SendMessageA(throughDialog ? DialogOf(control) : control, WM_LBUTTONDOWN, 0, 0);
        EXPECT_FALSE(IsWindow(control));
        host.answer = nullptr;
    }
}

TEST_F(FontSelectHost, MayDestroyTheControlWhenTold) {
    HWND control = Create();
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_COMMAND) {
            DestroyWindow(control);
        }
        return std::nullopt;
    };
    SendMessageA(Families(control), WM_KEYDOWN, VK_DOWN, 1);
    SendMessageA(Sizes(control), WM_KEYDOWN, VK_DOWN, 1);
    PumpMessages();
    EXPECT_FALSE(IsWindow(control));
}

TEST_F(FontSelectHost, LeavesNoObjectsBehind) {
    HFONT font = CreateFontA(20, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    EXPECT_EQ(vorn::test::ObjectsLeftBy(
                  [&] {
                      HWND control = Create();
                      SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
                      fsSetFontSize(control, 20);
                      DestroyWindow(control);
                  },
                  250),
              "");
    DeleteObject(font);
}

TEST_F(FontSelectHost, MaySendRandomMessages) {
    vorn::test::SendRandomMessages([&] { return Create(WS_TABSTOP); }, 20240903, 20000,
                                   {VFSM_SETFONTFAMILY, VFSM_GETFONTFAMILY});
}

} // namespace
