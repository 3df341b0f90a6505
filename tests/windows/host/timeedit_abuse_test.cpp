// Time edits whose host does its worst: destroys them in whatever they ask and tell, changes them
// in there, sends them anything.
#include "tests/windows/support/abuse.h"
#include "tests/windows/support/input.h"
#include "tests/windows/support/spy.h"
#include "tests/windows/support/time_host.h"

#include <functional>

namespace {

using vorn::test::Events;
using vorn::test::Message;
using vorn::test::PumpMessages;
using vorn::test::SendMouse;

class TimeEditAbuse : public vorn::test::TimeEditTest {
protected:
    struct Story {
        const char* name;
        std::function<void(HWND edit)> run;
    };

    // What a host does and what a user does, with a focused edit.
    static std::vector<Story> Stories() {
        const auto key = [](WPARAM code) {
            return [code](HWND edit) {
                SendMessageA(edit, WM_KEYDOWN, code, 1);
                PumpMessages();
            };
        };
        return {
            {"digit", key('7')},
            {"step", key(VK_UP)},
            {"delete", key(VK_DELETE)},
            {"move", key(VK_RIGHT)},
            {"end", key(VK_END)},
            {"set time",
             [](HWND edit) {
                 const TmTime time = {1, 2, 3};
                 tmSetTime(edit, &time);
             }},
            {"set null", [](HWND edit) { tmSetNull(edit); }},
            {"set text", [](HWND edit) { tmSetTimeString(edit, "1:02:03 AM"); }},
            {"window text", [](HWND edit) { SetWindowTextA(edit, "1:02:03 AM"); }},
            {"params",
             [](HWND edit) {
                 TmEditParams params{};
                 tmGetEditParams(edit, &params);
                 params.keepFormat = 0;
                 tmSetEditParams(edit, &params);
                 PumpMessages();
             }},
            {"record",
             [](HWND edit) {
                 const LONG record[9] = {1, 2, 3};
                 SendMessageA(edit, VTMM_SETBROKENDOWN, 0, reinterpret_cast<LPARAM>(record));
             }},
            {"tick", [](HWND edit) { SendMessageA(edit, WM_TIMER, 567, 0); }},
            {"replace",
             [](HWND edit) {
                 SendMessageA(edit, EM_REPLACESEL, 0, reinterpret_cast<LPARAM>("3:04 PM"));
             }},
            {"clear", [](HWND edit) { SendMessageA(edit, WM_CLEAR, 0, 0); }},
            {"cut", [](HWND edit) { SendMessageA(edit, WM_CUT, 0, 0); }},
            {"paste", [](HWND edit) { SendMessageA(edit, WM_PASTE, 0, 0); }},
            {"focus", [](HWND edit) { SetFocus(GetParent(edit)); }},
            {"press",
             [](HWND edit) {
                 SetFocus(GetParent(edit));
                 SendMouse(edit, WM_LBUTTONDOWN, 30, 10);
             }},
        };
    }

    // A narrow one, so that it scrolls too, with a time on the clipboard.
    HWND CreateNarrow() {
        HWND edit = CreateEdit(VORN_TIMEEDIT_CLASS, VTMS_SECONDS, 50, 24);
        Set(edit, 22, 44, 55);
        SetFocus(edit);
        SendMessageA(edit, EM_SETSEL, 0, -1);
        SendMessageA(edit, WM_COPY, 0, 0);
        SendMessageA(edit, EM_SETSEL, 0, 2);
        PumpMessages();
        TakeEvents();
        return edit;
    }
};

// In every story, in each of the things that are heard in it.
TEST_F(TimeEditAbuse, BearsDestructionInWhateverItAsksAndTells) {
    std::size_t destructions = 0;
    for (const Story& story : Stories()) {
        HWND whole = CreateNarrow();
        story.run(whole);
        const std::size_t length = TakeEvents().size();
        EXPECT_GT(length, 0u) << story.name;
        DestroyWindow(whole);
        for (std::size_t moment = 0; moment < length; ++moment) {
            HWND edit = CreateNarrow();
            std::size_t heard = 0;
            onEvent = [&](HWND, const std::string&) {
                if (heard++ == moment) {
                    DestroyWindow(edit);
                }
            };
            story.run(edit);
            onEvent = nullptr;
            EXPECT_FALSE(IsWindow(edit)) << story.name << " at " << moment;
            EXPECT_EQ(GetCapture(), nullptr);
            destructions += 1;
            PumpMessages();
        }
    }
    EXPECT_GE(destructions, 40u);
}

TEST_F(TimeEditAbuse, BearsDestructionInItsOwnPaint) {
    for (const Story& story : Stories()) {
        HWND edit = CreateNarrow();
        vorn::test::Spy spy(edit);
        spy.before = [&](const Message& message) {
            if (message.message == WM_PAINT) {
                DestroyWindow(edit);
            }
        };
        story.run(edit);
        if (IsWindow(edit)) { // one that repaints nothing, or not at once
            DestroyWindow(edit);
        }
        PumpMessages();
    }
}

// Every function again inside of what is heard.
TEST_F(TimeEditAbuse, BearsChangesInWhateverItAsksAndTells) {
    for (const Story& story : Stories()) {
        HWND edit = CreateNarrow();
        int depth = 0;
        onEvent = [&, which = edit](HWND, const std::string&) {
            if (depth > 0 || !IsWindow(which)) {
                return;
            }
            ++depth;
            for (const Story& inner : Stories()) {
                inner.run(which);
            }
            tmSetDisplayStyle(which, VTMD_DIGITS);
            tmSetDisplayStyle(which, VTMD_TEXT);
            SendMessageA(which, EM_SETSEL, 0, 50);
            --depth;
        };
        story.run(edit);
        onEvent = nullptr;
        EXPECT_TRUE(IsWindow(edit)) << story.name;
        char text[64];
        EXPECT_EQ(tmGetTimeString(edit, text), text);
        SendMessageA(edit, WM_LBUTTONUP, 0, 0);
        DestroyWindow(edit);
        PumpMessages();
    }
}

// A host that answers "ask" for a control that is gone by then.
TEST_F(TimeEditAbuse, ADestroyingAnswerIsARefusal) {
    HWND edit = CreateAt(1, 2, 3);
    onEvent = [](HWND which, const std::string& what) {
        if (what == "ask") {
            DestroyWindow(which);
        }
    };
    const TmTime time = {1, 2, 3};
    EXPECT_EQ(tmSetTime(edit, &time), 0);
    EXPECT_FALSE(IsWindow(edit));
}

TEST_F(TimeEditAbuse, ASecondCreationMessageChangesNothing) {
    HWND edit = CreateAt(1, 2, 3);
    CREATESTRUCTA create{};
    create.lpszName = "";
    EXPECT_EQ(SendMessageA(edit, WM_NCCREATE, 0, reinterpret_cast<LPARAM>(&create)), 0);
    EXPECT_EQ(TimeOf(edit), (TmTime{1, 2, 3}));
}

TEST_F(TimeEditAbuse, WorksInAClassOfTheHostsOwn) {
    WNDCLASSA ours{};
    GetClassInfoA(nullptr, VORN_TIMEEDIT_CLASS, &ours);
    ours.lpszClassName = "HostsOwnTime";
    ours.hInstance = GetModuleHandleA(nullptr);
    ours.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
    ASSERT_NE(RegisterClassA(&ours), 0);
    HWND edit = CreateEdit("HostsOwnTime", VTMS_SECONDS, 200, 24);
    Set(edit, 1, 2, 3);
    SetFocus(edit);
    PressKey(VK_UP);
    EXPECT_EQ(TextOf(edit), "02:02:03 AM");
    DestroyWindow(edit);
    EXPECT_TRUE(UnregisterClassA("HostsOwnTime", GetModuleHandleA(nullptr)));
}

// Messages to a window whose record is gone already, as a subclassing host may send them.
TEST_F(TimeEditAbuse, BearsMessagesAfterItsRecord) {
    HWND edit = host.Create(VORN_TIMEEDIT_CLASS, VTMS_SECONDS, 10, 10, 200, 24);
    SetFocus(edit);
    SendMessageA(edit, WM_NCDESTROY, 0, 0);
    for (UINT message = 1150; message < 1200; ++message) {
        SendMessageA(edit, message, 0, 0);
    }
    const std::vector<UINT> messages = {
        WM_KEYDOWN, WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_LBUTTONUP, WM_MOUSEMOVE,
        WM_TIMER,   WM_SETFOCUS,    WM_KILLFOCUS,     WM_ENABLE,    WM_SIZE,
        WM_PAINT,   WM_SETFONT,     WM_CUT,           WM_COPY,      WM_PASTE,
        WM_CLEAR,   EM_SETSEL,      EM_GETMODIFY,     3328,         3329,
        3333};
    for (const UINT message : messages) {
        SendMessageA(edit, message, 567, 0);
    }
    EXPECT_EQ(tmIsNull(edit), 1);
    DestroyWindow(edit);
}

TEST_F(TimeEditAbuse, BearsRandomMessages) {
    // Those that have pointers.
    const std::vector<UINT> leftOut = {
        1159,       1160,      1161,       1167,       1177,          1178,           WM_GETTEXT,
        WM_SETTEXT, EM_GETSEL, EM_GETRECT, EM_GETLINE, EM_REPLACESEL, WM_WININICHANGE};
    vorn::test::SendRandomMessages(
        [&] {
            HWND edit = host.Create(VORN_TIMEEDIT_CLASS, VTMS_SECONDS, 10, 10, 100, 24);
            SetFocus(edit);
            return edit;
        },
        20240813, 20000, leftOut);
}

} // namespace
