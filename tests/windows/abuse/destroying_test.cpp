// Hosts that destroy a window inside a call of theirs: each call in turn, until an operation makes
// no more.
#include "tests/windows/abuse/imports.h"
#include "tests/windows/abuse/subjects.h"
#include "tests/windows/support/spy.h"

#include <gtest/gtest.h>
#include <vorn32.h>

namespace vorn::test {
namespace {

constexpr int kMostCalls = 3000;

// What is destroyed.
struct Target {
    const char* name;
    HWND (*find)(HWND control);
};

constexpr Target kTargets[] = {
    {"the control", [](HWND control) { return control; }},
    {"its parent", [](HWND control) { return GetParent(control); }},
    {"the focus", [](HWND) { return GetFocus(); }},
};

// An end that has begun is not begun anew.
bool IsCall(UINT message) {
    return message != WM_DESTROY && message != WM_NCDESTROY;
}

class Destroying : public testing::Test {
protected:
    WatchedImports watched;

    // Runs an operation and destroys a window inside the call of this number. Whether it came so
    // far.
    static bool RunTo(Stage& stage, DWORD style, const Operation& operation, const Target& target,
                      int number) {
        HWND control = stage.Create(style);
        EXPECT_NE(control, nullptr);
        int calls = 0;
        bool armed = true;
        const auto count = [&](const Message& message) {
            if (armed && IsCall(message.message) && calls++ == number) {
                armed = false;
                DestroyWindow(target.find(control));
            }
        };
        Spy spy(control);
        spy.before = count;
        stage.host().answer = [&](const Message& message) -> std::optional<LRESULT> {
            count(message);
            return std::nullopt;
        };
        operation.run(control);
        const bool reached = !armed;
        armed = false;
        stage.Clear();
        return reached;
    }

    static void RunAll(const char* className) {
        const Subject& subject = SubjectOf(className);
        Stage stage(subject);
        int all = 0;
        for (const Operation& operation : OperationsOf(subject)) {
            for (const Target& target : kTargets) {
                SCOPED_TRACE(operation.name + ", destroying " + target.name);
                int number = 0;
                while (number < kMostCalls &&
                       RunTo(stage, subject.styles[0], operation, target, number)) {
                    ++number;
                    ASSERT_EQ(WatchedImports::Left(), "") << "in call " << number;
                }
                ASSERT_LT(number, kMostCalls) << "does not come to an end";
                all += number;
            }
        }
        std::printf("%d calls\n", all);
    }
};

TEST_F(Destroying, InCallsOfAButton) {
    RunAll(VORN_BUTTON_CLASS);
}

TEST_F(Destroying, InCallsOfANumericEdit) {
    RunAll(VORN_NUMEDIT_CLASS);
}

TEST_F(Destroying, InCallsOfADateEdit) {
    RunAll(VORN_DATEEDIT_CLASS);
}

TEST_F(Destroying, InCallsOfATimeEdit) {
    RunAll(VORN_TIMEEDIT_CLASS);
}

TEST_F(Destroying, InCallsOfAFontSelector) {
    RunAll(VORN_FONTSELECT_CLASS);
}

TEST_F(Destroying, InCallsOfACalendar) {
    RunAll(VORN_CALENDAR_CLASS);
}

TEST_F(Destroying, InCallsOfADial) {
    RunAll(VORN_DIAL_CLASS);
}

TEST_F(Destroying, InCallsOfASpinPad) {
    RunAll(VORN_UDLR_CLASS);
}

TEST_F(Destroying, InCallsOfAPercentBar) {
    RunAll(VORN_PERCENTBAR_CLASS);
}

TEST_F(Destroying, InCallsOfAnOutlineList) {
    RunAll(VORN_HIERLIST_CLASS);
}

TEST_F(Destroying, InCallsOfAComboBox) {
    RunAll(VORN_COMBOBOX_CLASS);
}

} // namespace
} // namespace vorn::test
