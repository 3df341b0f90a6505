// The dial under the keyboard: its keys with their codes, tabbing, and the real focus.
#include "tests/windows/host/dial_host.h"

namespace {

using vorn::test::DialHost;
using vorn::test::PumpMessages;
using vorn::test::Scroll;

using Scrolls = std::vector<Scroll>;

class DialKeyboard : public DialHost {
protected:
    static void Key(HWND dial, WPARAM key) { SendMessageA(dial, WM_KEYDOWN, key, 1); }
    static void Type(HWND dial, char character) {
        SendMessageA(dial, WM_CHAR, static_cast<WPARAM>(character), 1);
    }
};

TEST_F(DialKeyboard, KeysSendTheirCodesWhenThereIsRoom) {
    const struct {
        WPARAM key;
        int code;
        bool towardsMaximum;
    } keys[] = {{VK_PRIOR, SB_PAGEUP, true},   {VK_NEXT, SB_PAGEDOWN, false},
                {VK_END, SB_TOP, true},        {VK_HOME, SB_BOTTOM, false},
                {VK_LEFT, SB_LINEDOWN, false}, {VK_DOWN, SB_LINEDOWN, false},
                {VK_UP, SB_LINEUP, true},      {VK_RIGHT, SB_LINEUP, true}};
    for (const LONG direction : {1, 0}) {
        HWND dial = Create();
        SetDialDirection(dial, direction);
        for (const auto& [key, code, towardsMaximum] : keys) {
            SetDialPos(dial, 40, FALSE);
            Key(dial, key);
            EXPECT_EQ(TakeScrolls(), (Scrolls{{code, 40}})) << key;
            SetDialPos(dial, 100, FALSE);
            Key(dial, key);
            EXPECT_EQ(TakeScrolls(), towardsMaximum ? Scrolls{} : (Scrolls{{code, 100}})) << key;
            SetDialPos(dial, 0, FALSE);
            Key(dial, key);
            EXPECT_EQ(TakeScrolls(), towardsMaximum ? (Scrolls{{code, 0}}) : Scrolls{}) << key;
        }
        EXPECT_EQ(GetDialPos(dial), 0) << "no key moves it";
        DestroyWindow(dial);
    }
}

TEST_F(DialKeyboard, SignsStepTheirWay) {
    HWND dial = CreateAt(40);
    Type(dial, '+');
    Type(dial, '-');
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_LINEDOWN, 40}, {SB_LINEUP, 40}}));
    SetDialPos(dial, 100, FALSE);
    Type(dial, '+');
    EXPECT_EQ(TakeScrolls(), Scrolls{});
    SetDialPos(dial, 0, FALSE);
    Type(dial, '-');
    EXPECT_EQ(TakeScrolls(), Scrolls{});
    Type(dial, '=');
    Type(dial, '5');
    Key(dial, 'A');
    EXPECT_EQ(TakeScrolls(), Scrolls{});
}

TEST_F(DialKeyboard, KeysComeThroughTheMessageLoop) {
    HWND dial = CreateAt(40);
    SetFocus(dial);
    PostMessageA(GetFocus(), WM_KEYDOWN, VK_PRIOR, 1);
    PostMessageA(GetFocus(), WM_KEYDOWN, VK_ADD, 0x004E0001);
    PumpMessages();
    EXPECT_EQ(TakeScrolls(), (Scrolls{{SB_PAGEUP, 40}, {SB_LINEDOWN, 40}}));
}

// ---- Tab ----

// Holds keys down for GetKeyState.
class HeldKeys {
public:
    explicit HeldKeys(std::initializer_list<int> keys) {
        GetKeyboardState(old_);
        BYTE held[256];
        GetKeyboardState(held);
        for (const int key : keys) {
            held[key] = 0x80;
        }
        SetKeyboardState(held);
    }
    ~HeldKeys() { SetKeyboardState(old_); }
    HeldKeys(const HeldKeys&) = delete;
    HeldKeys& operator=(const HeldKeys&) = delete;

private:
    BYTE old_[256];
};

class DialTab : public DialKeyboard {
protected:
    HWND before = host.Create("EDIT", WS_TABSTOP, 200, 10, 50, 20);
    HWND skippedBefore = host.Create("EDIT", 0, 200, 40, 50, 20);
    HWND dial = CreateAt(40, WS_TABSTOP);
    HWND skippedAfter = host.Create("EDIT", WS_TABSTOP | WS_DISABLED, 200, 70, 50, 20);
    HWND after = host.Create("EDIT", WS_TABSTOP, 200, 100, 50, 20);

    // Where the focus is after a Tab with these keys held.
    HWND FocusAfterTab(std::initializer_list<int> keys) {
        SetFocus(dial);
        EXPECT_EQ(GetFocus(), dial);
        const HeldKeys held(keys);
        Key(dial, VK_TAB);
        return GetFocus();
    }
};

TEST_F(DialTab, MovesTheFocusToTheNextTabItem) {
    EXPECT_EQ(FocusAfterTab({}), after);
}

TEST_F(DialTab, MovesTheFocusBackWithShift) {
    EXPECT_EQ(FocusAfterTab({VK_SHIFT}), before);
}

TEST_F(DialTab, StaysWithCtrlOrAlt) {
    EXPECT_EQ(FocusAfterTab({VK_CONTROL}), dial);
    EXPECT_EQ(FocusAfterTab({VK_MENU}), dial);
    EXPECT_EQ(FocusAfterTab({VK_SHIFT, VK_CONTROL}), dial);
    EXPECT_EQ(FocusAfterTab({VK_SHIFT, VK_MENU}), dial);
    EXPECT_EQ(TakeScrolls(), Scrolls{});
}

TEST_F(DialTab, ArrowsReachTheDialInADialog) {
    SetFocus(dial);
    for (const WPARAM key : {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN}) {
        MSG message{};
        message.hwnd = dial;
        message.message = WM_KEYDOWN;
        message.wParam = key;
        message.lParam = 1;
        EXPECT_TRUE(IsDialogMessageA(host.window(), &message));
        EXPECT_EQ(TakeScrolls().size(), 1u) << key;
        EXPECT_EQ(GetFocus(), dial);
    }
    MSG tab{};
    tab.hwnd = dial;
    tab.message = WM_KEYDOWN;
    tab.wParam = VK_TAB;
    EXPECT_TRUE(IsDialogMessageA(host.window(), &tab));
    EXPECT_EQ(GetFocus(), after) << "the dialog's own Tab";
}

TEST_F(DialTab, WithoutAnotherItemStays) {
    for (HWND other : {before, after, skippedBefore, skippedAfter}) {
        DestroyWindow(other);
    }
    EXPECT_EQ(FocusAfterTab({}), dial);
    EXPECT_EQ(FocusAfterTab({VK_SHIFT}), dial);
}

} // namespace
