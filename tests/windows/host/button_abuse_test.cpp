// Picture buttons whose host does its worst: destroys them in their notifications, takes their
// capture, moves their focus, answers their paint.
#include "tests/windows/support/button_host.h"

#include <array>
#include <functional>
#include <string>

namespace {

using vorn::test::Codes;
using vorn::test::Message;
using vorn::test::PumpFor;
using vorn::test::PumpMessages;
using vorn::test::SendMouse;
using vorn::test::TakeTimer;

class ButtonAbuse : public vorn::test::ButtonTest {
protected:
    void DestroyOn(int code) {
        host.answer = [code](const Message& message) -> std::optional<LRESULT> {
            if (message.message == WM_COMMAND && HIWORD(message.wParam) == code) {
                DestroyWindow(reinterpret_cast<HWND>(message.lParam));
            }
            return std::nullopt;
        };
    }

    // Runs the rest of a story in which the host destroys the button at this notification.
    void ExpectDestroyed(const char* story, int code, HWND button,
                         const std::function<void()>& rest) {
        DestroyOn(code);
        rest();
        EXPECT_FALSE(IsWindow(button)) << story << ", code " << code;
        host.answer = nullptr;
    }
};

constexpr DWORD kAll = VBTS_NOTIFY | VBTS_PICTURE;

TEST_F(ButtonAbuse, BearsDestructionInTheNotificationsOfThePress) {
    for (const int code : {VBTN_SETFOCUS, VBTN_DOWN}) {
        HWND button = Create(kAll | VBTS_AUTOREPEAT);
        ExpectDestroyed("press", code, button, [&] { SendMouse(button, WM_LBUTTONDOWN, 5, 5); });
    }
    for (const DWORD kind : {VBTS_AUTOREPEAT, VBTS_TOGGLE}) {
        for (const int code : {VBTN_DOWN, VBTN_CLICKED}) {
            HWND button = CreateFocused(kAll | kind);
            ExpectDestroyed("press", code, button,
                            [&] { SendMouse(button, WM_LBUTTONDOWN, 5, 5); });
        }
    }
    HWND button = CreateFocused(kAll | VBTS_TOGGLE);
    btnSetState(button, TRUE);
    ExpectDestroyed("second press", VBTN_UP, button,
                    [&] { SendMouse(button, WM_LBUTTONDOWN, 5, 5); });
    EXPECT_EQ(GetCapture(), nullptr);
}

TEST_F(ButtonAbuse, BearsDestructionInTheNotificationsOfMoveAndRelease) {
    for (const int code : {VBTN_UP, VBTN_CLICKED}) {
        HWND button = CreateFocused(kAll);
        Press(button);
        ExpectDestroyed("release", code, button, [&] { SendMouse(button, WM_LBUTTONUP, 5, 5); });
    }
    for (const int code : {VBTN_UP, VBTN_DOWN}) {
        HWND button = CreateFocused(kAll);
        Press(button);
        ExpectDestroyed("move", code, button, [&] {
            SendMouse(button, WM_MOUSEMOVE, -5, 5);
            SendMouse(button, WM_MOUSEMOVE, 5, 5);
        });
    }
}

TEST_F(ButtonAbuse, BearsDestructionInTheNotificationsOfKeys) {
    for (const DWORD kind : {DWORD{0}, DWORD{VBTS_AUTOREPEAT}, DWORD{VBTS_TOGGLE}}) {
        for (const int code : {VBTN_DOWN, VBTN_CLICKED}) {
            HWND button = CreateFocused(kAll | kind);
            ExpectDestroyed("keys", code, button, [&] {
                SendMessageA(button, WM_KEYDOWN, VK_SPACE, 0);
                SendMessageA(button, WM_KEYUP, VK_SPACE, 0);
            });
        }
    }
    HWND button = CreateFocused(kAll);
    KeyDown(button, VK_RETURN);
    ExpectDestroyed("key up", VBTN_UP, button,
                    [&] { SendMessageA(button, WM_KEYUP, VK_RETURN, 0); });
}

TEST_F(ButtonAbuse, BearsDestructionInTheNotificationsOfTimers) {
    HWND button = CreateFocused(kAll | VBTS_AUTOREPEAT);
    Press(button);
    Tick(button, 1);
    ExpectDestroyed("timer", VBTN_CLICKED, button, [&] { SendMessageA(button, WM_TIMER, 2, 0); });

    button = CreateFocused(kAll | VBTS_AUTOREPEAT);
    Press(button);
    ExpectDestroyed("the clock", VBTN_CLICKED, button,
                    [&] { PumpFor(3000, [&] { return !IsWindow(button); }); });
}

TEST_F(ButtonAbuse, BearsDestructionInTheNotificationsOfFocusStateAndEnabling) {
    HWND button = Create(kAll);
    ExpectDestroyed("focus", VBTN_SETFOCUS, button, [&] { SetFocus(button); });

    for (const int code : {VBTN_UP, VBTN_KILLFOCUS}) {
        button = CreateFocused(kAll);
        KeyDown(button, VK_SPACE);
        ExpectDestroyed("focus lost", code, button, [&] { SetFocus(host.window()); });
    }

    button = Create(kAll);
    ExpectDestroyed("state", VBTN_DOWN, button, [&] { btnSetState(button, TRUE); });
    button = Create(kAll);
    ExpectDestroyed("disabling", VBTN_DISABLED, button, [&] { EnableWindow(button, FALSE); });

    button = CreateFocused(kAll);
    Press(button);
    ExpectDestroyed("capture", VBTN_UP, button, [&] { SetCapture(host.window()); });
    ReleaseCapture();
}

// A subclass that records or spoils one message.
WNDPROC originalProcedure = nullptr;
UINT destroyIn = 0;
std::vector<std::array<LPARAM, 2>> styles; // bits and redraw flag of each BM_SETSTYLE

LRESULT CALLBACK Spoil(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == BM_SETSTYLE) {
        styles.push_back({static_cast<LPARAM>(wParam), lParam});
    }
    if (message == destroyIn) {
        DestroyWindow(window);
        return 0;
    }
    return CallWindowProcA(originalProcedure, window, message, wParam, lParam);
}

void Subclass(HWND window, UINT message = 0) {
    destroyIn = message;
    styles.clear();
    originalProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Spoil)));
}

TEST_F(ButtonAbuse, BearsASubclassThatDestroysIt) {
    for (const UINT message : {UINT{WM_NCPAINT}, UINT{WM_ERASEBKGND}, UINT{WM_STYLECHANGING},
                               UINT{WM_STYLECHANGED}, UINT{BM_SETSTYLE}, UINT{WM_SETFOCUS}}) {
        HWND button = Create(kAll);
        PumpMessages();
        Subclass(button, message);
        SendMouse(button, WM_LBUTTONDOWN, 5, 5);
        if (IsWindow(button)) {
            RedrawWindow(button, nullptr, nullptr,
                         RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
        }
        EXPECT_FALSE(IsWindow(button)) << message;
    }
}

// Destroys another window when it is asked for its dialog code.
HWND victim = nullptr;

LRESULT CALLBACK DestroyVictimWhenAsked(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_GETDLGCODE && IsWindow(victim)) {
        DestroyWindow(victim);
    }
    return CallWindowProcA(originalProcedure, window, message, wParam, lParam);
}

// The button asks its neighbours whether they are buttons.
TEST_F(ButtonAbuse, BearsANeighbourThatDestroysItWhenAsked) {
    HWND edit = host.Create("EDIT", WS_TABSTOP, 0, 100, 50, 20);
    originalProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(edit, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(DestroyVictimWhenAsked)));
    SetFocus(edit);
    victim = Create(kAll | WS_TABSTOP);
    SetFocus(victim);
    EXPECT_FALSE(IsWindow(victim)) << "as the one that lost the focus";

    victim = nullptr;
    HWND button = CreateFocused(kAll | WS_TABSTOP);
    victim = button;
    SetFocus(edit);
    EXPECT_FALSE(IsWindow(button)) << "as the one that gains it";
    victim = nullptr;
}

TEST_F(ButtonAbuse, TakesTheLookFromAButtonOnly) {
    HWND system = host.Create("BUTTON", BS_DEFPUSHBUTTON, 0, 100, 50, 20);
    HWND edit = host.Create("EDIT", 0, 0, 150, 50, 20);
    HWND button = Create(VBTS_NOTIFY);
    SetFocus(system);
    Subclass(system);
    SetFocus(button);
    ASSERT_EQ(styles.size(), 1u);
    EXPECT_EQ(styles[0], (std::array<LPARAM, 2>{0, TRUE}));

    SetFocus(edit);
    Subclass(edit);
    SetFocus(button);
    EXPECT_TRUE(styles.empty()) << "an edit has no look to give up";
}

TEST_F(ButtonAbuse, GivesItselfTheLookByMessage) {
    HWND button = Create(VBTS_NOTIFY);
    Subclass(button);
    SetFocus(button);
    ASSERT_EQ(styles.size(), 1u);
    EXPECT_EQ(styles[0], (std::array<LPARAM, 2>{1, TRUE}));
    styles.clear();
    SetFocus(host.window());
    EXPECT_TRUE(styles.empty()) << "no tab stop before it: the look stays";
    EXPECT_EQ(StyleBits(button), DWORD{VBTS_NOTIFY | VBTS_DEFAULT});
}

TEST_F(ButtonAbuse, HandsTheLookOverByMessages) {
    HWND edit = host.Create("EDIT", WS_TABSTOP, 0, 100, 50, 20);
    HWND heir = host.Create("BUTTON", WS_TABSTOP, 0, 150, 50, 20);
    HWND button = CreateFocused(VBTS_NOTIFY | WS_TABSTOP);
    SetStyleBits(button, VBTS_NOTIFY | VBTS_DEFAULT);
    Subclass(button);
    SetFocus(edit);
    ASSERT_EQ(styles.size(), 1u);
    EXPECT_EQ(styles[0], (std::array<LPARAM, 2>{0, FALSE}));
    EXPECT_EQ(StyleBits(button), DWORD{VBTS_NOTIFY});
    EXPECT_EQ(SendMessageA(heir, WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON, DLGC_DEFPUSHBUTTON);
}

TEST_F(ButtonAbuse, ComesUpWhenItLosesTheFocus) {
    HWND button = CreateFocused(VBTS_NOTIFY);
    KeyDown(button, VK_SPACE);
    EXPECT_EQ(Told([&] { SetFocus(host.window()); }), (Codes{VBTN_UP, VBTN_KILLFOCUS}));
    EXPECT_EQ(btnGetState(button), 0u);

    HWND toggle = CreateFocused(VBTS_NOTIFY | VBTS_TOGGLE);
    KeyDown(toggle, VK_SPACE);
    EXPECT_EQ(Told([&] { SetFocus(host.window()); }), Codes{VBTN_KILLFOCUS});
    EXPECT_EQ(btnGetState(toggle), 4u) << "a toggle button stays down";
}

TEST_F(ButtonAbuse, EndsItsPressWithoutAClickWhenTheCaptureIsTaken) {
    HWND button = CreateFocused(VBTS_NOTIFY | VBTS_AUTOREPEAT);
    for (const bool byAnother : {true, false}) {
        for (const bool repeating : {false, true}) {
            Press(button);
            if (repeating) {
                Tick(button, 1);
            }
            EXPECT_EQ(Told([&] {
                          if (byAnother) {
                              SetCapture(host.window());
                          } else {
                              SendMessageA(button, WM_CANCELMODE, 0, 0);
                          }
                      }),
                      Codes{VBTN_UP});
            EXPECT_FALSE(TakeTimer(button, 1));
            EXPECT_FALSE(TakeTimer(button, 2));
            EXPECT_EQ(GetCapture(), byAnother ? host.window() : nullptr);
            EXPECT_EQ(Release(button), Codes{}) << "the late release";
            EXPECT_EQ(Move(button, 5), Codes{});
            EXPECT_EQ(btnGetState(button), 8u);
            ReleaseCapture();
        }
    }
}

TEST_F(ButtonAbuse, AToggleButtonWithoutItsCaptureStaysDownAndStopsClicking) {
    HWND button = CreateFocused(VBTS_NOTIFY | VBTS_TOGGLE | VBTS_AUTOREPEAT);
    Press(button);
    EXPECT_EQ(Told([&] { SetCapture(host.window()); }), Codes{});
    EXPECT_EQ(btnGetState(button), 12u);
    EXPECT_FALSE(TakeTimer(button, 1));
    EXPECT_EQ(Move(button, -5), Codes{});
    ReleaseCapture();
}

// Closes the message box that the host shows.
void CALLBACK AnswerMessageBox(HWND, UINT, UINT_PTR timer, DWORD) {
    HWND box = FindWindowA("#32770", "box of the host");
    if (box != nullptr) {
        KillTimer(nullptr, timer);
        PostMessageA(box, WM_COMMAND, IDOK, 0);
    }
}

TEST_F(ButtonAbuse, BearsAMessageBoxInTheClick) {
    HWND button = CreateFocused(VBTS_NOTIFY | VBTS_AUTOREPEAT);
    int boxes = 0;
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_COMMAND && HIWORD(message.wParam) == VBTN_CLICKED) {
            ++boxes;
            SetTimer(nullptr, 0, 20, AnswerMessageBox);
            MessageBoxA(host.window(), "text", "box of the host", MB_OK);
        }
        return std::nullopt;
    };
    SendMouse(button, WM_LBUTTONDOWN, 5, 5);
    EXPECT_EQ(boxes, 1);
    EXPECT_FALSE(TakeTimer(button, 1)) << "the press ended with the capture";
    EXPECT_FALSE(TakeTimer(button, 2));
    EXPECT_EQ(btnGetState(button) & VBTST_DOWN, 0u);
    EXPECT_FALSE(PumpFor(200, [&] { return boxes > 1; }));
    EXPECT_NE(GetCapture(), button);
}

// A host that changes the style in the notification does not change what the press is.
TEST_F(ButtonAbuse, APressIsWhatItWasAtItsStart) {
    HWND button = CreateFocused(VBTS_NOTIFY | VBTS_AUTOREPEAT);
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_COMMAND && HIWORD(message.wParam) == VBTN_DOWN) {
            SetStyleBits(button, VBTS_NOTIFY);
        }
        return std::nullopt;
    };
    EXPECT_EQ(Press(button), (Codes{VBTN_DOWN, VBTN_CLICKED}));
    EXPECT_TRUE(TakeTimer(button, 1));
    Release(button);
}

TEST_F(ButtonAbuse, BearsAParentThatDestroysItWhilePainting) {
    for (int round = 0; round < 20; ++round) {
        HWND button = nullptr;
        host.answer = [&](const Message& message) -> std::optional<LRESULT> {
            if (message.message == VORN_WM_IS_HOST_APP && button != nullptr) {
                DestroyWindow(button);
            }
            return std::nullopt;
        };
        HWND created = Create(VBTS_PICTURE);
        button = created;
        btnSetPicture(created, 3);
        EXPECT_FALSE(IsWindow(created));
    }
}

TEST_F(ButtonAbuse, BearsAParentThatRepaintsItWhilePainting) {
    HWND button = Create(VBTS_PICTURE);
    PumpMessages();
    int asked = 0;
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message == VORN_WM_IS_HOST_APP && ++asked <= 3) {
            btnSetPicture(button, 2);
        }
        return std::nullopt;
    };
    btnSetPicture(button, 1);
    EXPECT_EQ(asked, 1) << "the repaint within a repaint waits";
    PumpMessages();
    EXPECT_EQ(asked, 4) << "three more, each asked for by the one before";
}

TEST_F(ButtonAbuse, WorksWithoutAParent) {
    HWND button = CreateWindowExA(0, VORN_BUTTON_CLASS, "alone", WS_POPUP | WS_VISIBLE | kAll, 0, 0,
                                  80, 30, nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
    ASSERT_NE(button, nullptr);
    SetFocus(button);
    Press(button);
    EXPECT_EQ(btnGetState(button), 12u);
    Release(button);
    KeyDown(button, VK_TAB);
    EXPECT_EQ(GetFocus(), button) << "there is no other tab item";
    SetFocus(host.window());
    EXPECT_EQ(btnGetState(button), 0u);
    DestroyWindow(button);
}

// The host's focus handlers fight for the focus; the press goes on where the button is.
TEST_F(ButtonAbuse, BearsAHostThatMovesTheFocusInItsNotification) {
    HWND button = Create(VBTS_NOTIFY);
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_COMMAND && HIWORD(message.wParam) == VBTN_SETFOCUS) {
            SetFocus(host.window());
        }
        return std::nullopt;
    };
    EXPECT_EQ(Press(button), (Codes{VBTN_SETFOCUS, VBTN_KILLFOCUS, VBTN_DOWN}));
    EXPECT_EQ(Release(button), (Codes{VBTN_UP, VBTN_CLICKED}));
    EXPECT_EQ(btnGetState(button), 0u);
}

TEST_F(ButtonAbuse, LeavesAHostsOwnClassOfItsNameAlone) {
    WNDCLASSA theirs{};
    theirs.lpfnWndProc = DefWindowProcA;
    theirs.cbWndExtra = 48;
    theirs.hInstance = GetModuleHandleA(nullptr);
    theirs.lpszClassName = VORN_BUTTON_CLASS;
    ASSERT_NE(RegisterClassA(&theirs), 0);
    HWND window = Create();
    for (int offset = 0; offset < 48; offset += 4) {
        SetWindowLongA(window, offset, 0x5A5A5A5A);
    }
    btnSetState(window, TRUE);
    EXPECT_EQ(btnGetState(window), 0u);
    EXPECT_EQ(btnSetPicture(window, 1), 0);
    EXPECT_EQ(btnGetBitmap(window), nullptr);
    EXPECT_EQ(StyleBits(window), 0u);
    DestroyWindow(window);
    EXPECT_TRUE(UnregisterClassA(VORN_BUTTON_CLASS, GetModuleHandleA(nullptr)));
}

} // namespace
