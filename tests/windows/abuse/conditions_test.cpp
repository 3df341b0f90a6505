// What can happen to any window at any time happens to every class, whatever it is busy with.
#include "tests/windows/abuse/imports.h"
#include "tests/windows/abuse/subject_operations.h"
#include "tests/windows/abuse/subjects.h"
#include "tests/windows/support/crash.h"
#include "tests/windows/support/input.h"
#include "tests/windows/support/objects.h"

#include <gtest/gtest.h>
#include <set>
#include <utility>
#include <vorn32.h>

namespace vorn::test {
namespace {

using Work = std::function<void()>;

// Does the work while the control is in a state; false when its class is never in it.
using State = bool (*)(const Subject& subject, HWND control, const Work& work);

bool IsClass(const Subject& subject, const char* className) {
    return subject.className == std::string(className);
}

bool Idle(const Subject&, HWND, const Work& work) {
    work();
    return true;
}

bool Focused(const Subject&, HWND control, const Work& work) {
    SetFocus(control);
    work();
    return true;
}

bool Pressed(const Subject& subject, HWND control, const Work& work) {
    SendMouse(control, WM_LBUTTONDOWN, static_cast<int>(subject.press.x),
              static_cast<int>(subject.press.y));
    work();
    return true;
}

bool WithATimer(const Subject& subject, HWND control, const Work& work) {
    if (!subject.startTimer) {
        return false;
    }
    subject.startTimer(control);
    work();
    return true;
}

// What edits have in common.
bool IsEdit(const Subject& subject) {
    return IsClass(subject, VORN_NUMEDIT_CLASS) || IsClass(subject, VORN_DATEEDIT_CLASS) ||
           IsClass(subject, VORN_TIMEEDIT_CLASS);
}

bool IsNull(const Subject& subject, HWND edit) {
    if (IsClass(subject, VORN_NUMEDIT_CLASS)) {
        return nmIsNull(edit) != FALSE;
    }
    return (IsClass(subject, VORN_DATEEDIT_CLASS) ? dtIsNull(edit) : tmIsNull(edit)) != FALSE;
}

bool Null(const Subject& subject, HWND control, const Work& work) {
    if (!IsEdit(subject)) {
        return false;
    }
    for (const auto setNull : {nmSetNull, dtSetNull, tmSetNull}) {
        setNull(control);
    }
    work();
    return true;
}

bool ReadOnly(const Subject& subject, HWND control, const Work& work) {
    if (!IsEdit(subject)) {
        return false;
    }
    SendMessageA(control, EM_SETREADONLY, TRUE, 0);
    SetFocus(control);
    work();
    return true;
}

// The lists that drop down from a control.
std::vector<HWND> DropDownsOf(const Subject& subject, HWND control) {
    if (IsClass(subject, VORN_COMBOBOX_CLASS)) {
        return {control};
    }
    if (IsClass(subject, VORN_FONTSELECT_CLASS)) {
        return {ListIn(control, 0), ListIn(control, 1)};
    }
    return {};
}

bool WithListsOpen(const Subject& subject, HWND control, const Work& work) {
    const std::vector<HWND> dropDowns = DropDownsOf(subject, control);
    for (HWND dropDown : dropDowns) {
        SetFocus(dropDown);
        SendMessageA(dropDown, CB_SHOWDROPDOWN, TRUE, 0);
    }
    if (!dropDowns.empty()) {
        work();
    }
    return !dropDowns.empty();
}

// A date edit's dialog is modal: the work is done in a timer of its message loop.
const Work* workInDialog = nullptr;

void CALLBACK DoWorkInDialog(HWND, UINT, UINT_PTR timer, DWORD) {
    if (FindDateDialog() == nullptr) {
        return;
    }
    KillTimer(nullptr, timer);
    (*std::exchange(workInDialog, nullptr))();
    EndDateDialogs(IDCANCEL);
}

bool WithDialogOpen(const Subject& subject, HWND control, const Work& work) {
    if (!IsClass(subject, VORN_DATEEDIT_CLASS) ||
        (GetWindowLongA(control, GWL_STYLE) & VDTS_CALENDAR) == 0) {
        return false;
    }
    workInDialog = &work;
    const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, DoWorkInDialog);
    PressCalendarButton(control);
    KillTimer(nullptr, timer);
    EXPECT_EQ(workInDialog, nullptr) << "no dialog was opened";
    return true;
}

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

    static void RunAll(const Subject& subject, State state) {
        for (const DWORD style : subject.styles) {
            for (const Condition& condition : kConditions) {
                SCOPED_TRACE(condition.name + std::string(", style ") + std::to_string(style));
                Stage stage(subject); // what happens may outlast the control
                HWND control = stage.Create(style);
                NoteDeed(std::string(condition.name) + " of a " + subject.className);
                const auto work = [&] {
                    condition.happen(control);
                    GoOn(subject, control);
                };
                if (!state(subject, control, work)) {
                    return;
                }
                stage.Clear();
                ASSERT_EQ(WatchedImports::Left(), "");
            }
        }
    }

    static void RunIn(State state) {
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

// Whether what should be so is so while a new control is in the state; what should be so elsewhere
// is not asked.
void ExpectIn(State state, const Subject& subject, const std::function<bool(HWND)>& isSo) {
    Stage stage(subject);
    HWND control = stage.Create(subject.styles[0]);
    bool was = false;
    const bool isEntered = state(subject, control, [&] { was = isSo(control); });
    EXPECT_EQ(was, isEntered);
    stage.Clear();
}

// Calendars, percent bars and font selectors do not capture the mouse.
TEST_F(Conditions, FindControlsInTheStatesThatTheyAreFor) {
    const std::set<std::string> neverCapture = {VORN_CALENDAR_CLASS, VORN_PERCENTBAR_CLASS,
                                                VORN_FONTSELECT_CLASS};
    ForEachSubject([&](const Subject& subject) {
        ExpectIn(Pressed, subject, [&](HWND control) {
            return (GetCapture() == control) == (neverCapture.count(subject.className) == 0);
        });
        ExpectIn(WithATimer, subject, HasTimer);
        ExpectIn(Focused, subject, [&](HWND control) {
            return GetFocus() == control || IsChild(control, GetFocus()) ||
                   IsClass(subject, VORN_PERCENTBAR_CLASS);
        });
        ExpectIn(Null, subject, [&](HWND control) { return IsNull(subject, control); });
        ExpectIn(ReadOnly, subject, [](HWND control) {
            return (GetWindowLongA(control, GWL_STYLE) & VDTS_READONLY) != 0;
        });
        ExpectIn(WithListsOpen, subject, [&](HWND control) {
            return SendMessageA(DropDownsOf(subject, control).back(), CB_GETDROPPEDSTATE, 0, 0) !=
                   0;
        });
        ExpectIn(WithDialogOpen, subject, [](HWND) { return FindDateDialog() != nullptr; });
    });
}

TEST_F(Conditions, OfIdleControls) {
    RunIn(Idle);
}

TEST_F(Conditions, OfFocusedControls) {
    RunIn(Focused);
}

TEST_F(Conditions, OfPressedControls) {
    RunIn(Pressed);
}

TEST_F(Conditions, OfControlsWithATimer) {
    RunIn(WithATimer);
}

TEST_F(Conditions, OfNullEdits) {
    RunIn(Null);
}

TEST_F(Conditions, OfReadOnlyEdits) {
    RunIn(ReadOnly);
}

TEST_F(Conditions, OfControlsWithTheirListsOpen) {
    RunIn(WithListsOpen);
}

TEST_F(Conditions, OfDateEditsWithTheirDialogOpen) {
    RunIn(WithDialogOpen);
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
