// What can happen to any window at any time happens to every class, whatever it is busy with.
#include "tests/windows/abuse/imports.h"
#include "tests/windows/abuse/subjects.h"
#include "tests/windows/support/crash.h"
#include "tests/windows/support/input.h"
#include "tests/windows/support/objects.h"

#include <gtest/gtest.h>
#include <set>
#include <vorn32.h>

namespace vorn::test {
namespace {

// What the control is doing; null where its class cannot.
struct State {
    const char* name;
    bool (*enter)(const Subject& subject, HWND control);
};

bool Press(const Subject& subject, HWND control) {
    SendMouse(control, WM_LBUTTONDOWN, static_cast<int>(subject.press.x),
              static_cast<int>(subject.press.y));
    return true;
}

constexpr State kStates[] = {
    {"idle", [](const Subject&, HWND) { return true; }},
    {"focused",
     [](const Subject&, HWND control) {
         SetFocus(control);
         return true;
     }},
    {"pressed", Press},
    {"with a timer",
     [](const Subject& subject, HWND control) {
         if (subject.startTimer) {
             subject.startTimer(control);
         }
         return static_cast<bool>(subject.startTimer);
     }},
};

struct Condition {
    const char* name;
    void (*happen)(HWND control);
};

void Resize(HWND control, int size) {
    SetWindowPos(control, nullptr, 0, 0, size, size, SWP_NOMOVE | SWP_NOZORDER);
    UpdateWindow(control);
}

void ChangeSetting(HWND control, UINT message, const char* section) {
    SendMessageA(control, message, 0, reinterpret_cast<LPARAM>(section));
    SendMessageA(control, message, SPI_SETNONCLIENTMETRICS, reinterpret_cast<LPARAM>(section));
}

void Reparent(HWND control, HWND parent) {
    HWND before = GetParent(control);
    SetParent(control, parent);
    UpdateWindow(control);
    SendMouse(control, WM_MOUSEMOVE, 3, 3);
    SetParent(control, before);
    UpdateWindow(control);
}

// Does the same once more while the other parent is its parent, which goes then.
void LoseParent(HWND control) {
    HWND other = CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 50, 50, 200, 200, nullptr,
                                 nullptr, nullptr, nullptr);
    SetParent(control, other);
    UpdateWindow(control);
    DestroyWindow(other);
}

void UseDeletedFont(HWND control) {
    HFONT font = CreateFontA(-20, 0, 0, 0, FW_BOLD, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, 0, "Arial");
    SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    DeleteObject(font);
    SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    UpdateWindow(control);
}

constexpr char kLongSection[] = "a section whose name is longer than any that the system has, "
                                "and longer than what is usually copied of one";

constexpr Condition kConditions[] = {
    {"0 by 0", [](HWND control) { Resize(control, 0); }},
    {"1 by 1", [](HWND control) { Resize(control, 1); }},
    {"32000 by 32000", [](HWND control) { Resize(control, 32000); }},
    {"another parent", [](HWND control) { Reparent(control, GetDesktopWindow()); }},
    {"its neighbour as parent",
     [](HWND control) { Reparent(control, GetWindow(control, GW_HWNDNEXT)); }},
    {"the parent of messages", [](HWND control) { Reparent(control, HWND_MESSAGE); }},
    {"a parent that goes", LoseParent},
    {"disabled", [](HWND control) { EnableWindow(control, FALSE); }},
    {"a disabled parent", [](HWND control) { EnableWindow(GetParent(control), FALSE); }},
    {"hidden", [](HWND control) { ShowWindow(control, SW_HIDE); }},
    {"a hidden parent", [](HWND control) { ShowWindow(GetParent(control), SW_HIDE); }},
    {"system colours", [](HWND control) { SendMessageA(control, WM_SYSCOLORCHANGE, 0, 0); }},
    {"fonts", [](HWND control) { SendMessageA(control, WM_FONTCHANGE, 0, 0); }},
    {"a deleted font", UseDeletedFont},
    {"a font that is none",
     [](HWND control) { SendMessageA(control, WM_SETFONT, 0x12345678, TRUE); }},
    {"settings of nothing",
     [](HWND control) { ChangeSetting(control, WM_SETTINGCHANGE, nullptr); }},
    {"settings of an empty section",
     [](HWND control) { ChangeSetting(control, WM_SETTINGCHANGE, ""); }},
    {"settings of a country",
     [](HWND control) { ChangeSetting(control, WM_WININICHANGE, "intl"); }},
    {"settings of an odd section",
     [](HWND control) { ChangeSetting(control, WM_WININICHANGE, kLongSection); }},
    {"no redrawing", [](HWND control) { SendMessageA(control, WM_SETREDRAW, FALSE, 0); }},
    {"a capture elsewhere", [](HWND control) { SetCapture(GetParent(control)); }},
    {"the mode cancelled", [](HWND control) { SendMessageA(control, WM_CANCELMODE, 0, 0); }},
    {"another style",
     [](HWND control) { SetWindowLongA(control, GWL_STYLE, WS_CHILD | WS_VISIBLE | 0xFFFF); }},
};

// What a control is sent while it is busy.
void GoOn(const Subject& subject, HWND control) {
    for (const UINT_PTR timer : {1, 2, 100, 101, 567}) {
        SendMessageA(control, WM_TIMER, timer, 0);
    }
    SendMouse(control, WM_MOUSEMOVE, 1, 1);
    SendMouse(control, WM_LBUTTONUP, 1, 1);
    RedrawWindow(control, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW);
    PumpMessages();
    for (const Operation& operation : OperationsOf(subject)) {
        NoteDeed(operation.name + " of a " + subject.className);
        operation.run(control);
    }
}

class Conditions : public testing::Test {
protected:
    WatchedImports watched;

    static void RunAll(const Subject& subject, const State& state) {
        for (const DWORD style : subject.styles) {
            for (const Condition& condition : kConditions) {
                SCOPED_TRACE(condition.name + std::string(", style ") + std::to_string(style));
                Stage stage(subject); // what happens may outlast the control
                HWND control = stage.Create(style);
                if (!state.enter(subject, control)) {
                    return;
                }
                NoteDeed(std::string(condition.name) + " of a " + subject.className);
                condition.happen(control);
                GoOn(subject, control);
                stage.Clear();
                ASSERT_EQ(WatchedImports::Left(), "");
            }
        }
    }

    static void RunIn(const State& state) {
        ForEachSubject([&](const Subject& subject) { RunAll(subject, state); });
    }
};

bool HasTimer(HWND control) {
    bool found = false;
    for (const UINT_PTR timer : {1, 2, 101, 567}) {
        found = TakeTimer(control, timer) || found;
    }
    return found;
}

// Calendars, percent bars and font selectors do not capture the mouse.
TEST_F(Conditions, FindControlsInTheStatesThatTheyAreFor) {
    const std::set<std::string> neverCapture = {VORN_CALENDAR_CLASS, VORN_PERCENTBAR_CLASS,
                                                VORN_FONTSELECT_CLASS};
    ForEachSubject([&](const Subject& subject) {
        Stage stage(subject);
        kStates[2].enter(subject, stage.Create(subject.styles[0]));
        EXPECT_EQ(GetCapture() == stage.control(), neverCapture.count(subject.className) == 0);
        const bool hasTimer = kStates[3].enter(subject, stage.Create(subject.styles[0]));
        EXPECT_EQ(HasTimer(stage.control()), hasTimer);
        const bool takesFocus = subject.className != std::string(VORN_PERCENTBAR_CLASS);
        kStates[1].enter(subject, stage.Create(subject.styles[0]));
        EXPECT_TRUE(GetFocus() == stage.control() || IsChild(stage.control(), GetFocus()) ||
                    !takesFocus);
    });
}

TEST_F(Conditions, OfIdleControls) {
    RunIn(kStates[0]);
}

TEST_F(Conditions, OfFocusedControls) {
    RunIn(kStates[1]);
}

TEST_F(Conditions, OfPressedControls) {
    RunIn(kStates[2]);
}

TEST_F(Conditions, OfControlsWithATimer) {
    RunIn(kStates[3]);
}

// By the system's own count, or the places in its tables.
TEST(Operations, LeaveNoObjectsBehind) {
    ForEachSubject([](const Subject& subject) {
        Stage stage(subject);
        const auto cycle = [&] {
            HWND control = stage.Create(subject.styles[0]);
            for (const Operation& operation : OperationsOf(subject)) {
                operation.run(control);
            }
            stage.Clear();
        };
        EXPECT_EQ(ObjectsLeftBy(cycle, 60), "");
    });
}

} // namespace
} // namespace vorn::test
