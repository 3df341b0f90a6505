// The font selector as a window: dialog, layout, font, painting, notifications, clicks.
#include "tests/windows/support/font_select.h"
#include "tests/windows/support/pixels.h"
#include "tests/windows/support/spy.h"

#include <cstring>
#include <tuple>

namespace {

using vorn::test::FontSelectTest;
using vorn::test::kFontSelectId;
using vorn::test::Message;
using vorn::test::PixelsOf;
using vorn::test::PumpMessages;
using vorn::test::Spy;

class FontSelectWindow : public FontSelectTest {
protected:
    // The commands that the parent is given from now on.
    void RecordCommands() {
        host.answer = [this](const Message& message) -> std::optional<LRESULT> {
            if (message.message == WM_COMMAND) {
                commands.push_back(message);
            }
            return std::nullopt;
        };
    }

    std::vector<Message> commands;
};

// The dialog's template, as the DLL has it: a header of 18 bytes, menu, class and title of two
// bytes each, the font, and then two items of fixed shape.
TEST_F(FontSelectWindow, HasTheDialogResource) {
    HMODULE module = GetModuleHandleA("VORN32.dll");
    HRSRC found = FindResourceA(module, MAKEINTRESOURCEA(224), reinterpret_cast<LPCSTR>(RT_DIALOG));
    ASSERT_NE(found, nullptr);
    const auto* words = static_cast<const WORD*>(LockResource(LoadResource(module, found)));
    DLGTEMPLATE header{};
    std::memcpy(&header, words, sizeof header);
    EXPECT_EQ(header.style, DWORD{WS_CHILD | DS_SETFONT});
    EXPECT_EQ(header.cdit, 2);
    EXPECT_EQ(header.cx, 186);
    EXPECT_EQ(header.cy, 21);
    EXPECT_EQ(words[9], 0) << "no menu";
    EXPECT_EQ(words[10], 0) << "the usual class";
    EXPECT_EQ(words[11], 0) << "no caption";
    EXPECT_EQ(words[12], 8) << "points";
    EXPECT_STREQ(reinterpret_cast<const wchar_t*>(words + 13), L"MS Sans Serif");

    const short places[2][4] = {{5, 5, 135, 108}, {145, 5, 35, 96}};
    std::size_t at = 13 + sizeof "MS Sans Serif";
    for (WORD item = 0; item < 2; ++item) {
        at += at % 2; // items begin at double words
        DLGITEMTEMPLATE list{};
        std::memcpy(&list, words + at, sizeof list);
        EXPECT_EQ(list.style, DWORD{WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP |
                                    CBS_DROPDOWNLIST | CBS_SORT});
        EXPECT_EQ(list.id, 228 + item);
        EXPECT_EQ(list.x, places[item][0]);
        EXPECT_EQ(list.y, places[item][1]);
        EXPECT_EQ(list.cx, places[item][2]);
        EXPECT_EQ(list.cy, places[item][3]);
        EXPECT_EQ(words[at + 9], 0xFFFF);
        EXPECT_EQ(words[at + 10], 0x0085) << "COMBOBOX";
        at += 9 + 2 + 1 + 1; // item, class, no text, no data
    }
}

TEST_F(FontSelectWindow, HasOneVisibleDialogWithTwoLists) {
    HWND control = Create();
    HWND dialog = DialogOf(control);
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(GetWindow(dialog, GW_HWNDNEXT), nullptr) << "its only child";
    EXPECT_EQ(GetClassLongA(dialog, GCW_ATOM), 0x8002u) << "a dialog";
    EXPECT_TRUE(IsWindowVisible(dialog));
    for (HWND list : {Families(control), Sizes(control)}) {
        char name[20] = "";
        GetClassNameA(list, name, sizeof name);
        EXPECT_EQ(lstrcmpiA(name, "COMBOBOX"), 0);
        EXPECT_TRUE(IsWindowVisible(list));
    }
}

TEST_F(FontSelectWindow, HasNoBorder) {
    HWND control = Create(WS_BORDER, 120, 40);
    EXPECT_EQ(GetWindowLongA(control, GWL_STYLE) & WS_BORDER, 0);
    RECT client{};
    GetClientRect(control, &client);
    EXPECT_EQ(client.right, 120);
    EXPECT_EQ(client.bottom, 40);
}

TEST_F(FontSelectWindow, LeavesTheFocusWhereItIs) {
    HWND button = host.Create("BUTTON", 0, 0, 100, 50, 20);
    SetFocus(button);
    Create();
    PumpMessages();
    EXPECT_EQ(GetFocus(), button);
}

TEST_F(FontSelectWindow, PassesTheFocusOnToItsFamilies) {
    HWND control = Create();
    SetFocus(control);
    EXPECT_EQ(GetFocus(), Families(control));
}

TEST_F(FontSelectWindow, DisablesItsListsWithItself) {
    HWND control = Create();
    EnableWindow(control, FALSE);
    EXPECT_FALSE(IsWindowEnabled(Families(control)));
    EXPECT_FALSE(IsWindowEnabled(Sizes(control)));
    EnableWindow(control, TRUE);
    EXPECT_TRUE(IsWindowEnabled(Families(control)));
    EXPECT_TRUE(IsWindowEnabled(Sizes(control)));
}

TEST_F(FontSelectWindow, MayBeMadeDisabled) {
    HWND control = Create(WS_DISABLED);
    EXPECT_FALSE(IsWindowEnabled(Families(control)));
    EXPECT_FALSE(IsWindowEnabled(Sizes(control)));
}

struct Metrics {
    int height;
    int internalLeading;
    int averageCharWidth;
};

Metrics MetricsOf(HGDIOBJ font) {
    HDC context = GetDC(nullptr);
    HGDIOBJ previous = SelectObject(context, font);
    TEXTMETRICA metrics{};
    GetTextMetricsA(context, &metrics);
    SelectObject(context, previous);
    ReleaseDC(nullptr, context);
    return {static_cast<int>(metrics.tmHeight), static_cast<int>(metrics.tmInternalLeading),
            static_cast<int>(metrics.tmAveCharWidth)};
}

// Where a list is put first; it makes its closed height of it then.
class PlaceSpy {
public:
    explicit PlaceSpy(HWND window) : spy_(window) {
        spy_.before = [this](const Message& message) {
            if (message.message == WM_WINDOWPOSCHANGING && place.bottom == 0) {
                const auto& wanted = *reinterpret_cast<const WINDOWPOS*>(message.lParam);
                place = {wanted.x, wanted.y, wanted.cx, wanted.cy};
            }
            closedBefore = closedBefore || (message.message == CB_SHOWDROPDOWN &&
                                            message.wParam == FALSE && place.bottom == 0);
        };
    }

    RECT place{};              // left, top, width, height
    bool closedBefore = false; // the drop-down was closed before the list was moved

private:
    Spy spy_;
};

void ExpectPlace(const PlaceSpy& spy, int left, int width, int height, int control) {
    EXPECT_EQ(spy.place.left, left) << control;
    EXPECT_EQ(spy.place.top, 2) << control;
    EXPECT_EQ(spy.place.right, width) << control;
    EXPECT_EQ(spy.place.bottom, height) << control;
    EXPECT_TRUE(spy.closedBefore) << control;
}

void ExpectLayout(HWND control, HWND dialog, const Metrics& font, int width, int familyWidth) {
    PlaceSpy families(GetDlgItem(dialog, 228));
    PlaceSpy sizes(GetDlgItem(dialog, 229));
    SendMessageA(control, WM_SIZE, 0, MAKELPARAM(width, 33));
    const int dropped = (font.height + font.internalLeading) * 10;
    ExpectPlace(families, 2, familyWidth, dropped, width);
    ExpectPlace(sizes, familyWidth + 8, font.averageCharWidth * 4 + 24, dropped, width);
    RECT place{};
    GetWindowRect(dialog, &place);
    MapWindowPoints(nullptr, control, reinterpret_cast<POINT*>(&place), 2);
    EXPECT_EQ(place.left, 0);
    EXPECT_EQ(place.top, 0);
    EXPECT_EQ(place.right, width);
    EXPECT_EQ(place.bottom, 33);
}

TEST_F(FontSelectWindow, LaysItsListsOutByItsFont) {
    HWND control = Create();
    HFONT large = CreateFontA(40, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    for (HGDIOBJ font : {GetStockObject(SYSTEM_FONT), static_cast<HGDIOBJ>(large)}) {
        if (font == large) {
            SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
        }
        const Metrics metrics = MetricsOf(font);
        const int sizes = metrics.averageCharWidth * 4 + 24;
        const int both = sizes + 8; // the widest control that shows no two lists
        HWND dialog = DialogOf(control);
        ExpectLayout(control, dialog, metrics, 300, 300 - sizes - 10);
        ExpectLayout(control, dialog, metrics, both + 3, 1);
        ExpectLayout(control, dialog, metrics, both + 2, 0);
        ExpectLayout(control, dialog, metrics, both + 1, 0);
        ExpectLayout(control, dialog, metrics, both, both);
        ExpectLayout(control, dialog, metrics, 41, 41);
        ExpectLayout(control, dialog, metrics, 40, 60);
        ExpectLayout(control, dialog, metrics, 0, 60);
    }
    DestroyWindow(control);
    EXPECT_EQ(GetObjectType(large), DWORD{OBJ_FONT}) << "the host's font stays the host's";
    DeleteObject(large);
}

TEST_F(FontSelectWindow, LaysOutWhenItIsMadeAndSized) {
    const Metrics metrics = MetricsOf(GetStockObject(SYSTEM_FONT));
    const int sizes = metrics.averageCharWidth * 4 + 24;
    HWND control = Create(0, 300, 40);
    RECT list{};
    GetClientRect(Families(control), &list);
    EXPECT_EQ(list.right, 300 - sizes - 10);
    SetWindowPos(control, nullptr, 0, 0, 200, 50, SWP_NOMOVE | SWP_NOZORDER);
    GetClientRect(Families(control), &list);
    EXPECT_EQ(list.right, 200 - sizes - 10);
    RECT dialog{};
    GetClientRect(DialogOf(control), &dialog);
    EXPECT_EQ(dialog.right, 200);
    EXPECT_EQ(dialog.bottom, 50);
}

TEST_F(FontSelectWindow, ClosesOpenListsWhenItIsSized) {
    HWND control = Create();
    for (HWND list : {Families(control), Sizes(control)}) {
        SendMessageA(list, CB_SHOWDROPDOWN, TRUE, 0);
        ASSERT_TRUE(SendMessageA(list, CB_GETDROPPEDSTATE, 0, 0));
        SetWindowPos(control, nullptr, 0, 0, list == Sizes(control) ? 250 : 260, 40,
                     SWP_NOMOVE | SWP_NOZORDER);
        EXPECT_FALSE(SendMessageA(list, CB_GETDROPPEDSTATE, 0, 0));
    }
}

using Sent = std::tuple<UINT, WPARAM, LPARAM>;

std::vector<Sent> FontAndHeights(const Spy& spy) {
    std::vector<Sent> sent;
    for (const Message& message : spy.messages) {
        if (message.message == WM_SETFONT || message.message == CB_SETITEMHEIGHT) {
            sent.emplace_back(message.message, message.wParam, message.lParam);
        }
    }
    return sent;
}

TEST_F(FontSelectWindow, HandsItsFontAndHeightsToBothLists) {
    HWND control = Create();
    EXPECT_EQ(SendMessageA(control, WM_GETFONT, 0, 0), 0) << "the stock font";
    HFONT font = CreateFontA(30, 0, 0, 0, 400, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    const Metrics metrics = MetricsOf(font);
    ASSERT_GT(metrics.internalLeading, 0);
    const int item = metrics.height + metrics.internalLeading;
    RECT before{};
    GetWindowRect(Sizes(control), &before);
    // The lists make their own heights of the font, and may refuse ours.
    const std::vector<Sent> expected = {
        {WM_SETFONT, reinterpret_cast<WPARAM>(font), 0},
        {CB_SETITEMHEIGHT, 0, item},
        {CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), item + 4},
    };
    {
        Spy families(Families(control));
        Spy sizes(Sizes(control));
        SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
        EXPECT_EQ(FontAndHeights(families), expected);
        EXPECT_EQ(FontAndHeights(sizes), expected);
    }
    EXPECT_EQ(SendMessageA(control, WM_GETFONT, 0, 0), reinterpret_cast<LRESULT>(font));
    for (HWND list : {Families(control), Sizes(control)}) {
        EXPECT_EQ(SendMessageA(list, WM_GETFONT, 0, 0), reinterpret_cast<LRESULT>(font));
    }
    RECT after{};
    GetWindowRect(Sizes(control), &after);
    EXPECT_EQ(after.left, before.left) << "not laid out anew";
    EXPECT_EQ(after.right, before.right);

    SendMessageA(control, WM_SETFONT, 0, FALSE);
    EXPECT_EQ(SendMessageA(control, WM_GETFONT, 0, 0), 0);
    EXPECT_EQ(SendMessageA(Sizes(control), WM_GETFONT, 0, 0),
              reinterpret_cast<LRESULT>(GetStockObject(SYSTEM_FONT)));
    DestroyWindow(control);
    DeleteObject(font);
}

TEST_F(FontSelectWindow, PaintsAtOnceAfterANewFontWhenAsked) {
    HWND control = Create();
    PumpMessages();
    SendMessageA(control, WM_SETFONT, 0, FALSE);
    EXPECT_TRUE(GetUpdateRect(control, nullptr, FALSE)) << "only invalid";
    SendMessageA(control, WM_SETFONT, 0, TRUE);
    EXPECT_FALSE(GetUpdateRect(control, nullptr, FALSE)) << "painted";
}

TEST_F(FontSelectWindow, SendsItemHeightsToBothListsSizesFirst) {
    HWND control = Create();
    std::vector<std::string> order;
    Spy families(Families(control));
    Spy sizes(Sizes(control));
    const auto record = [&order](const char* name) {
        return [&order, name](const Message& message) {
            if (message.message == CB_SETITEMHEIGHT) {
                order.push_back(name + std::to_string(message.wParam) + ":" +
                                std::to_string(message.lParam));
            }
        };
    };
    families.before = record("family ");
    sizes.before = record("size ");
    const LRESULT expected = SendMessageA(Families(control), CB_SETITEMHEIGHT, 0, 25);
    order.clear();
    EXPECT_EQ(fsSetItemHeight(control, 25), expected);
    EXPECT_EQ(order, (std::vector<std::string>{"size 0:25", "family 0:25"}));
    order.clear();
    EXPECT_EQ(SendMessageA(control, VFSM_SETITEMHEIGHT, 0x1001E, 0), expected);
    EXPECT_EQ(order, (std::vector<std::string>{"size 0:30", "family 0:30"})) << "16 bits count";
}

TEST_F(FontSelectWindow, FillsTheDialogWithItsBackgroundColor) {
    HWND control = Create(0, 300, 60);
    PumpMessages();
    const RECT below = {0, 50, 300, 60}; // below the lists
    EXPECT_EQ(PixelsOf(control).Count(below, GetSysColor(COLOR_BTNFACE)), 3000);
    fsSetColor(control, VORN_COLOR_BACKGROUND, RGB(200, 30, 40));
    EXPECT_EQ(PixelsOf(control).Count(below, RGB(200, 30, 40)), 3000) << "at once";
    EXPECT_EQ(PixelsOf(control).At(0, 0), RGB(200, 30, 40));
    fsSetColor(control, VORN_COLOR_BACKGROUND, VORN_SYSCOLOR(COLOR_HIGHLIGHT));
    EXPECT_EQ(PixelsOf(control).Count(below, GetSysColor(COLOR_HIGHLIGHT)), 3000);
}

TEST_F(FontSelectWindow, TheDialogErasesItself) {
    HWND control = Create();
    fsSetColor(control, VORN_COLOR_BACKGROUND, RGB(9, 99, 199));
    RECT client{};
    GetClientRect(DialogOf(control), &client);
    const auto drawing = vorn::test::Drawing(310, 50, RGB(1, 1, 1), [&](HDC context) {
        EXPECT_EQ(
            SendMessageA(DialogOf(control), WM_ERASEBKGND, reinterpret_cast<WPARAM>(context), 0),
            1);
        EXPECT_EQ(
            fnFontSelProc(DialogOf(control), WM_ERASEBKGND, reinterpret_cast<WPARAM>(context), 0),
            1);
    });
    EXPECT_EQ(drawing.Count(client, RGB(9, 99, 199)), 300 * 40) << "the dialog's client area";
    EXPECT_EQ(drawing.At(300, 0), RGB(1, 1, 1));
    EXPECT_EQ(drawing.At(0, 40), RGB(1, 1, 1));
}

TEST_F(FontSelectWindow, ItsPaintRedrawsTheDialogAtOnce) {
    HWND control = Create();
    PumpMessages();
    const auto before = PixelsOf(control);
    Spy dialog(DialogOf(control));
    Spy families(Families(control));
    ValidateRect(DialogOf(control), nullptr);
    SendMessageA(control, WM_PAINT, 0, 0);
    EXPECT_EQ(dialog.Received(WM_PAINT).size(), 1u);
    EXPECT_FALSE(GetUpdateRect(control, nullptr, FALSE));
    PumpMessages();
    EXPECT_EQ(families.Received(WM_PAINT).size(), 1u) << "the lists follow as windows do";
    EXPECT_EQ(vorn::test::Difference(before, PixelsOf(control)), "");
}

TEST_F(FontSelectWindow, PostsAChangedFamily) {
    HWND control = Create();
    RecordCommands();
    SetFocus(Families(control));
    SendMessageA(Families(control), WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_EQ(Selected(Families(control)), 1);
    EXPECT_TRUE(commands.empty()) << "posted, not sent";
    PumpMessages();
    ASSERT_EQ(commands.size(), 1u);
    EXPECT_EQ(LOWORD(commands[0].wParam), kFontSelectId);
    EXPECT_EQ(HIWORD(commands[0].wParam), VFSN_FONTCHANGE);
    EXPECT_EQ(reinterpret_cast<HWND>(commands[0].lParam), control);
    EXPECT_EQ(VFSN_FONTCHANGE, 1);
}

TEST_F(FontSelectWindow, PostsAChangedSize) {
    HWND control = Create();
    RecordCommands();
    SetFocus(Sizes(control));
    SendMessageA(Sizes(control), WM_KEYDOWN, VK_DOWN, 1);
    EXPECT_TRUE(commands.empty());
    PumpMessages();
    ASSERT_EQ(commands.size(), 1u);
    EXPECT_EQ(commands[0].wParam, WPARAM{MAKEWPARAM(kFontSelectId, 2)});
    EXPECT_EQ(reinterpret_cast<HWND>(commands[0].lParam), control);
    EXPECT_EQ(fsGetFontPointSize(control), 11);
    EXPECT_EQ(VFSN_SIZECHANGE, 2);
}

TEST_F(FontSelectWindow, ReportsUnderItsCommandCodes) {
    HWND control = Create();
    RecordCommands();
    const auto changeBoth = [&] {
        commands.clear();
        SendMessageA(Families(control), WM_KEYDOWN, VK_DOWN, 1);
        SendMessageA(Sizes(control), WM_KEYDOWN, VK_DOWN, 1);
        PumpMessages();
        std::vector<WPARAM> parameters;
        for (const Message& command : commands) {
            parameters.push_back(command.wParam);
        }
        return parameters;
    };
    fsSetFontCommandCode(control, 555);
    EXPECT_EQ(changeBoth(),
              (std::vector<WPARAM>{MAKEWPARAM(555, 1), MAKEWPARAM(kFontSelectId, 2)}));
    fsSetSizeCommandCode(control, 0xFFFF);
    EXPECT_EQ(changeBoth(), (std::vector<WPARAM>{MAKEWPARAM(555, 1), MAKEWPARAM(0xFFFF, 2)}));
    SendMessageA(control, VFSM_SETFONTCOMMANDCODE, 0, 0);
    SendMessageA(control, VFSM_SETSIZECOMMANDCODE, 0x50007, 0);
    EXPECT_EQ(changeBoth(), (std::vector<WPARAM>{MAKEWPARAM(kFontSelectId, 1), MAKEWPARAM(7, 2)}));
}

TEST_F(FontSelectWindow, SettingAValueNotifiesNothing) {
    HWND control = Create();
    RecordCommands();
    fsSetFontFamily(control, "Arial");
    fsSetFontPointSize(control, 20);
    fsSetFontSize(control, -30);
    SendMessageA(control, WM_FONTCHANGE, 0, 0);
    PumpMessages();
    EXPECT_TRUE(commands.empty());
}

TEST_F(FontSelectWindow, SelectsAgainWhenAListCloses) {
    HWND control = Create();
    RecordCommands();
    for (HWND list : {Families(control), Sizes(control)}) {
        SendMessageA(list, CB_SETCURSEL, 1, 0);
        Spy spy(list);
        SendMessageA(list, CB_SHOWDROPDOWN, TRUE, 0);
        EXPECT_TRUE(spy.Received(CB_SETCURSEL).empty());
        SendMessageA(list, CB_SHOWDROPDOWN, FALSE, 0);
        const std::vector<Message> selections = spy.Received(CB_SETCURSEL);
        ASSERT_EQ(selections.size(), 1u);
        EXPECT_EQ(selections[0].wParam, 1u);
        EXPECT_EQ(Selected(list), 1);
    }
    PumpMessages();
    EXPECT_TRUE(commands.empty());
}

TEST_F(FontSelectWindow, IgnoresOtherNotifications) {
    HWND control = Create();
    RecordCommands();
    Spy families(Families(control));
    for (int code = -2; code <= 20; ++code) {
        if (code != CBN_SELCHANGE && code != CBN_CLOSEUP) {
            SendMessageA(DialogOf(control), WM_COMMAND, MAKEWPARAM(228, code),
                         reinterpret_cast<LPARAM>(Families(control)));
        }
    }
    SendMessageA(control, WM_COMMAND, MAKEWPARAM(230, CBN_SELCHANGE), 0);
    SendMessageA(control, WM_COMMAND, MAKEWPARAM(227, CBN_SELCHANGE), 0);
    PumpMessages();
    EXPECT_TRUE(commands.empty());
    EXPECT_TRUE(families.Received(CB_SETCURSEL).empty());
}

class FontSelectClick : public FontSelectTest {
protected:
    void Answer(LRESULT answer) {
        host.answer = [this, answer](const Message& message) -> std::optional<LRESULT> {
            if (message.message == VORN_WM_IS_HOST_APP) {
                ++asked;
                return answer;
            }
            if (message.message == WM_LBUTTONDOWN) {
                clicks.push_back(message);
            }
            return std::nullopt;
        };
    }

    int asked = 0;
    std::vector<Message> clicks;
};

TEST_F(FontSelectClick, GoesToAParentThatAnswers99) {
    HWND control = Create();
    Answer(99);
    SendMessageA(control, WM_LBUTTONDOWN, MK_LBUTTON | MK_SHIFT, MAKELPARAM(11, 22));
    EXPECT_EQ(asked, 1);
    ASSERT_EQ(clicks.size(), 1u);
    EXPECT_EQ(clicks[0].wParam, WPARAM{MK_LBUTTON | MK_SHIFT});
    EXPECT_EQ(clicks[0].lParam, LPARAM{MAKELPARAM(11, 22)});
}

TEST_F(FontSelectClick, GoesFromTheDialogThroughTheControl) {
    HWND control = Create();
    Answer(99);
    Spy spy(control);
    SendMessageA(DialogOf(control), WM_LBUTTONDOWN, MK_CONTROL, MAKELPARAM(3, 4));
    ASSERT_EQ(spy.Received(WM_LBUTTONDOWN).size(), 1u);
    EXPECT_EQ(spy.Received(WM_LBUTTONDOWN)[0].wParam, WPARAM{MK_CONTROL});
    ASSERT_EQ(clicks.size(), 1u);
    EXPECT_EQ(clicks[0].lParam, LPARAM{MAKELPARAM(3, 4)});
}

TEST_F(FontSelectClick, StaysWithAnyOtherAnswer) {
    HWND control = Create();
    for (const LRESULT answer : {0, 1, 98, 100, -1}) {
        Answer(answer);
        Spy spy(control);
        SendMessageA(DialogOf(control), WM_LBUTTONDOWN, 0, 0);
        EXPECT_TRUE(spy.Received(WM_LBUTTONDOWN).empty()) << answer;
        SendMessageA(control, WM_LBUTTONDOWN, 0, 0);
    }
    EXPECT_TRUE(clicks.empty());
    EXPECT_EQ(asked, 10);
}

TEST_F(FontSelectClick, OnlyTheParentsAnswerCounts) {
    WNDCLASSA known{};
    known.lpfnWndProc = DefWindowProcA;
    known.hInstance = GetModuleHandleA(nullptr);
    known.lpszClassName = "rwswnd";
    RegisterClassA(&known);
    HWND parent = host.Create("rwswnd", 0, 0, 0, 300, 100);
    HWND control = CreateWindowExA(0, VORN_FONTSELECT_CLASS, "", WS_CHILD | WS_VISIBLE, 0, 0, 200,
                                   40, parent, nullptr, known.hInstance, nullptr);
    Spy spy(parent);
    SendMessageA(control, WM_LBUTTONDOWN, 0, 0);
    EXPECT_EQ(spy.Received(1444).size(), 1u);
    EXPECT_TRUE(spy.Received(WM_LBUTTONDOWN).empty()) << "the class of the parent says nothing";
    DestroyWindow(parent);
    UnregisterClassA("rwswnd", known.hInstance);
}

} // namespace
