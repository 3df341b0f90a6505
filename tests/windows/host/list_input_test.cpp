// The outline list as a user and a host meet it: the devices themselves, dialogs, and what an
// owner-drawing parent sees selected.
#include "tests/windows/support/abuse.h"
#include "tests/windows/support/dialog.h"
#include "tests/windows/support/host_window.h"
#include "tests/windows/support/input.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vorn32.h>

namespace {

using vorn::test::HostWindow;
using vorn::test::Message;
using vorn::test::MoveMouse;
using vorn::test::PressMouse;
using vorn::test::PumpFor;
using vorn::test::PumpMessages;
using vorn::test::ReleaseMouse;
using vorn::test::ScriptedDialog;

using Codes = std::vector<int>;

// A list whose rows, 20 pixels high, the parent draws: it sees which are selected and which one has
// the caret.
class ListInput : public testing::Test {
protected:
    ListInput() {
        host.answer = [this](const Message& message) -> std::optional<LRESULT> {
            if (message.message == WM_MEASUREITEM) {
                reinterpret_cast<MEASUREITEMSTRUCT*>(message.lParam)->itemHeight = 20;
                return TRUE;
            }
            if (message.message == WM_DRAWITEM) {
                const auto* draw = reinterpret_cast<const DRAWITEMSTRUCT*>(message.lParam);
                drawn[reinterpret_cast<const char*>(draw->itemData)] = draw->itemState;
                return TRUE;
            }
            return std::nullopt;
        };
    }

    void CreateList(DWORD style, const std::string& texts) {
        list = host.Create(VORN_HIERLIST_CLASS,
                           LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | WS_TABSTOP | style,
                           20, 20, 200, 100);
        for (const char text : texts) {
            olbAddString(list, std::string(1, text).c_str());
        }
        PumpMessages();
        host.TakeNotifications();
    }

    // The selected rows in view as the parent draws them, then the one with the caret: "b d|d".
    std::string Shown() {
        drawn.clear();
        InvalidateRect(list, nullptr, FALSE);
        UpdateWindow(list);
        std::string selected;
        std::string caret;
        for (const auto& [text, state] : drawn) {
            if ((state & ODS_SELECTED) != 0) {
                selected += (selected.empty() ? "" : " ") + text;
            }
            caret += (state & ODS_FOCUS) != 0 ? text : "";
        }
        return selected + "|" + caret;
    }

    static void PressKey(WORD key) {
        vorn::test::StrikeKey(key);
        PumpMessages();
    }
    void ClickAt(int row) {
        MoveMouse(list, 100, row * 20 + 10);
        PressMouse();
        ReleaseMouse();
    }
    bool Becomes(const std::string& shown) {
        return PumpFor(3000, [&] { return Shown() == shown; });
    }

    HostWindow host;
    HWND list = nullptr;
    std::map<std::string, UINT> drawn;
};

// ---- The devices ----

TEST_F(ListInput, MouseSelectsAndTakesTheFocus) {
    CreateList(0, "abcdefgh");
    ClickAt(2);
    EXPECT_TRUE(Becomes("c|c")) << Shown();
    EXPECT_EQ(GetFocus(), list);
    EXPECT_EQ(host.TakeNotifications(), (Codes{LBN_SETFOCUS, LBN_SELCHANGE}));
}

TEST_F(ListInput, MouseHeldDrags) {
    CreateList(LBS_EXTENDEDSEL, "abcdefgh");
    MoveMouse(list, 100, 30);
    PressMouse();
    MoveMouse(list, 100, 70);
    EXPECT_TRUE(Becomes("b c d|d")) << Shown();
    ReleaseMouse();
    MoveMouse(list, 100, 10);
    EXPECT_EQ(Shown(), "b c d|d");
}

TEST_F(ListInput, MouseHeldOutsideScrolls) {
    CreateList(0, "abcdefgh");
    MoveMouse(list, 100, 30);
    PressMouse();
    MoveMouse(list, 100, 300);
    EXPECT_TRUE(Becomes("h|h")) << Shown();
    MoveMouse(list, 100, -15);
    EXPECT_TRUE(Becomes("a|a")) << Shown();
    ReleaseMouse();
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(ListInput, DoubleClickOpensAndTells) {
    CreateList(0, "ab");
    olbAddChildString(list, 0, "x");
    ClickAt(0);
    MoveMouse(list, 100, 10);
    for (int click = 0; click < 2; ++click) {
        PressMouse();
        ReleaseMouse();
    }
    EXPECT_TRUE(PumpFor(3000, [&] {
        Shown();
        return drawn.count("x") == 1;
    }));
    const Codes codes = host.TakeNotifications();
    EXPECT_EQ(std::count(codes.begin(), codes.end(), LBN_DBLCLK), 1);
}

TEST_F(ListInput, KeyboardSelectsAndSearches) {
    CreateList(LBS_EXTENDEDSEL, "abcdefgh");
    SetFocus(list);
    PressKey(VK_HOME);
    vorn::test::PushKey(VK_SHIFT);
    PressKey(VK_DOWN);
    PressKey(VK_DOWN);
    vorn::test::ReleaseKey(VK_SHIFT);
    PumpMessages();
    EXPECT_TRUE(Becomes("a b c|c")) << Shown();
    SendMessageA(list, WM_CHAR, 'd', 0);
    EXPECT_EQ(Shown(), "d|d");
}

// ---- Focus ----

TEST_F(ListInput, CaretIsShownWithTheFocusAlone) {
    CreateList(LBS_MULTIPLESEL, "abcd");
    EXPECT_EQ(Shown(), "|");
    SetFocus(list);
    EXPECT_EQ(Shown(), "|a") << "the top row";
    SendMessageA(list, WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(Shown(), "|b");
    SetFocus(host.window());
    EXPECT_EQ(Shown(), "|");
    EXPECT_EQ(host.TakeNotifications(), (Codes{LBN_SETFOCUS, LBN_KILLFOCUS}));
}

TEST_F(ListInput, OnlyRowsThatChangeAreDrawnAnew) {
    CreateList(0, "abcde");
    SetFocus(list);
    SendMessageA(list, WM_KEYDOWN, VK_HOME, 0);
    drawn.clear();
    SendMessageA(list, WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(drawn.size(), 2u) << "the row that was selected and the one that is";
    EXPECT_EQ(drawn.count("a") + drawn.count("b"), 2u);
}

TEST_F(ListInput, NothingIsDrawnUnderNoRedrawOrWithDrawingOff) {
    CreateList(LBS_NOREDRAW, "abcde");
    SendMessageA(list, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(100, 30));
    SendMessageA(list, WM_LBUTTONUP, 0, 0);
    drawn.clear();
    SendMessageA(list, WM_KEYDOWN, VK_DOWN, 0);
    EXPECT_EQ(drawn.size(), 0u);
    EXPECT_EQ(Shown(), "c|c");
    DestroyWindow(list);
    CreateList(0, "abcde");
    SetFocus(list);
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    drawn.clear();
    SendMessageA(list, WM_KEYDOWN, VK_DOWN, 0);
    PumpMessages();
    EXPECT_EQ(drawn.size(), 0u);
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
    EXPECT_EQ(Shown(), "b|b");
}

// ---- In a dialog ----

enum Id { kBefore = 10, kList = 20, kAfter = 30 };

TEST(ListDialog, TabPassesThroughAndArrowsStay) {
    HostWindow host;
    ScriptedDialog dialog({{kBefore, "BUTTON", WS_TABSTOP},
                           {kList, VORN_HIERLIST_CLASS, WS_TABSTOP | LBS_NOTIFY},
                           {kAfter, "BUTTON", WS_TABSTOP}});
    dialog.Do([&](HWND window) {
        for (const char* text : {"a", "b", "c"}) {
            olbAddString(dialog.Item(window, kList), text);
        }
        SetFocus(dialog.Item(window, kBefore));
    });
    dialog.ExpectFocus(kBefore);
    dialog.PressKey(VK_TAB);
    dialog.ExpectFocus(kList);
    dialog.ExpectCommands({kList, LBN_SETFOCUS});
    dialog.PressKey(VK_DOWN);
    dialog.PressKey(VK_DOWN);
    dialog.PressKey(VK_DOWN);
    dialog.ExpectCommands({kList, LBN_SELCHANGE, kList, LBN_SELCHANGE});
    dialog.ExpectFocus(kList);
    dialog.PressKey(VK_TAB);
    dialog.ExpectFocus(kAfter);
    dialog.PressShifted(VK_TAB);
    dialog.ExpectFocus(kList);
    dialog.PressShifted(VK_TAB);
    dialog.ExpectFocus(kBefore);
    dialog.Run(host.window());
}

// ---- Hosts of another kind ----

TEST_F(ListInput, TimerProcedureBearsAnyWindow) {
    for (HWND window : {static_cast<HWND>(nullptr), vorn::test::CreateForeignWindow(),
                        vorn::test::DestroyedWindow()}) {
        lbTimerProc(window, WM_TIMER, 101, 0);
        lbTimerProc(window, WM_TIMER, 100, 0);
    }
    CreateList(0, "ab");
    lbTimerProc(list, WM_TIMER, 101, 0);
    EXPECT_EQ(Shown(), "|");
}

} // namespace
