// Hosts that do something else with a control inside a question or a notification of its own: each
// in turn, until an operation makes no more.
#include "tests/windows/abuse/imports.h"
#include "tests/windows/abuse/subjects.h"
#include "tests/windows/abuse/trap.h"
#include "tests/windows/support/crash.h"
#include "tests/windows/support/input.h"

#include <gtest/gtest.h>
#include <vorn32.h>

namespace vorn::test {
namespace {

struct Deed {
    const char* name;
    void (*act)(HWND control, HWND called);
};

// Whichever of these the control is, it has nothing more in it afterwards.
void Empty(HWND control, HWND) {
    olbResetContent(control);
    nmSetNull(control);
    dtSetNull(control);
    tmSetNull(control);
    SendMessageA(control, CB_RESETCONTENT, 0, 0);
    SetWindowTextA(control, "");
}

void ChangeLooks(HWND control, HWND) {
    olbChangeStyle(control, LBS_MULTIPLESEL);
    olbSetOwnerDraw(control, 0);
    olbSetCompatibilityMode(control, FALSE);
    for (const auto set : {nmSetDisplayStyle, dtSetDisplayStyle}) {
        set(control, 2);
    }
    tmSetDisplayStyle(control, 2);
    btnSetStyle(control, VBTS_TOGGLE, TRUE);
    pbSetBorderStyle(control, 1);
    SetDialRange(control, 5, 5, TRUE);
    SendMessageA(control, WM_SETFONT, 0, TRUE);
}

void UseAgain(HWND control, HWND) {
    SendMouse(control, WM_LBUTTONDOWN, 50, 9);
    SendMessageA(control, WM_KEYDOWN, VK_END, 1);
    SendMessageA(control, WM_CHAR, '1', 1);
    SendMouse(control, WM_LBUTTONDBLCLK, 3, 3);
    SendMessageA(control, WM_TIMER, 1, 0);
    SendMouse(control, WM_LBUTTONUP, 50, 9);
    RedrawWindow(control, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW);
}

constexpr Deed kDeeds[] = {
    {"emptying it", Empty},
    {"changing its looks", ChangeLooks},
    {"using it", UseAgain},
    {"making it small",
     [](HWND control, HWND) {
         SetWindowPos(control, nullptr, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOZORDER);
         UpdateWindow(control);
     }},
    {"disabling it", [](HWND control, HWND) { EnableWindow(control, FALSE); }},
    {"taking the focus and the mouse away",
     [](HWND control, HWND) {
         SetFocus(GetFocus() == control ? GetParent(control) : control);
         SetCapture(GetParent(control));
         PumpMessages();
     }},
    {"moving it to another parent",
     [](HWND control, HWND) {
         SetParent(control, GetDesktopWindow());
         UpdateWindow(control);
     }},
};

class Meddling : public testing::Test {
protected:
    WatchedImports watched;

    static void RunAll(const char* className) {
        const Subject& subject = SubjectOf(className);
        Stage stage(subject);
        int calls = 0;
        for (const Deed& deed : kDeeds) {
            SCOPED_TRACE(deed.name);
            Trap trap;
            trap.act = deed.act;
            trap.isCall = [](HWND, UINT message) {
                return IsControls(message) || IsAsked(message);
            };
            for (const Operation& operation : OperationsOf(subject)) {
                SCOPED_TRACE(operation.name);
                NoteDeed(deed.name + std::string(" in ") + operation.name + " of a " + className);
                calls += RunThrough([&](int number) {
                    return RunTrapped(stage, subject, subject.styles[0], operation, trap, number);
                });
            }
        }
        std::printf("%d calls\n", calls);
    }
};

TEST_F(Meddling, InCallsOfAButton) {
    RunAll(VORN_BUTTON_CLASS);
}

TEST_F(Meddling, InCallsOfANumericEdit) {
    RunAll(VORN_NUMEDIT_CLASS);
}

TEST_F(Meddling, InCallsOfADateEdit) {
    RunAll(VORN_DATEEDIT_CLASS);
}

TEST_F(Meddling, InCallsOfATimeEdit) {
    RunAll(VORN_TIMEEDIT_CLASS);
}

TEST_F(Meddling, InCallsOfAFontSelector) {
    RunAll(VORN_FONTSELECT_CLASS);
}

TEST_F(Meddling, InCallsOfACalendar) {
    RunAll(VORN_CALENDAR_CLASS);
}

TEST_F(Meddling, InCallsOfADial) {
    RunAll(VORN_DIAL_CLASS);
}

TEST_F(Meddling, InCallsOfASpinPad) {
    RunAll(VORN_UDLR_CLASS);
}

TEST_F(Meddling, InCallsOfAPercentBar) {
    RunAll(VORN_PERCENTBAR_CLASS);
}

TEST_F(Meddling, InCallsOfAnOutlineList) {
    RunAll(VORN_HIERLIST_CLASS);
}

TEST_F(Meddling, InCallsOfAComboBox) {
    RunAll(VORN_COMBOBOX_CLASS);
}

} // namespace
} // namespace vorn::test
