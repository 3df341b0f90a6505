// Hosts that destroy a window inside a call of theirs: each call in turn, until an operation makes
// no more.
#include "tests/windows/abuse/imports.h"
#include "tests/windows/abuse/subjects.h"
#include "tests/windows/abuse/trap.h"
#include "tests/windows/support/crash.h"
#include "tests/windows/support/spy.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <vorn32.h>

namespace vorn::test {
namespace {

// What is different about the calls of a target.
enum class Calls {
    Usual,
    OfParts,  // those that the parts get, which the control is made of, are calls too
    WithKeys, // the parent answers keys and characters with a row
};

// What is destroyed, and in which calls.
struct Target {
    const char* name;
    HWND (*find)(HWND control, HWND called);
    LRESULT answer = 0; // the call's; those that have another one are questions only
    Calls calls = Calls::Usual;
};

HWND TheControl(HWND control, HWND) {
    return control;
}

HWND ItsParent(HWND control, HWND) {
    return GetParent(control);
}

// The control and its parent have their own turns, whatever has the focus then.
HWND AnotherFocus(HWND control, HWND) {
    HWND focus = GetFocus();
    return focus == control || focus == GetParent(control) ? nullptr : focus;
}

constexpr Target kTargets[] = {
    {"the control", TheControl},
    {"its parent", ItsParent},
    {"the focus", AnotherFocus},
    {"the control, answering 1", TheControl, 1},
    {"the control, answering -1", TheControl, -1},
    {"the control, after an answer to a key", TheControl, 0, Calls::WithKeys},
    {"the control, in calls of its parts", TheControl, 0, Calls::OfParts},
    {"the part that is called", [](HWND, HWND called) { return called; }, 0, Calls::OfParts},
};

constexpr LRESULT kRowForKeys = 2;

// Nothing but the destruction is unusual.
bool IsPlain(const Target& target) {
    return target.answer == 0 && target.calls == Calls::Usual;
}

// In the first style, which tells the most, other answers and other calls besides.
bool Concerns(const Target& target, const Subject& subject, DWORD style) {
    const std::string name = subject.className;
    if (style != subject.styles[0]) {
        return IsPlain(target);
    }
    return target.calls == Calls::Usual ||
           name == (target.calls == Calls::OfParts ? VORN_FONTSELECT_CLASS : VORN_HIERLIST_CLASS);
}

// The others have no windows beside their own that take the focus.
bool IsReached(const Target& target, const Subject& subject) {
    const std::string name = subject.className;
    return target.find != AnotherFocus || name == VORN_DATEEDIT_CLASS ||
           name == VORN_FONTSELECT_CLASS || name == VORN_COMBOBOX_CLASS;
}

// An end that has begun is not begun anew.
bool IsCall(HWND control, UINT message, const Target& target) {
    return message != WM_DESTROY && message != WM_NCDESTROY &&
           (target.answer == 0 || IsControls(message) || IsAsked(message)) &&
           (target.find != AnotherFocus || AnotherFocus(control, nullptr) != nullptr);
}

Trap TrapFor(const Target& target) {
    Trap trap;
    trap.act = [&target](HWND control, HWND called) {
        DestroyWindow(target.find(control, called));
    };
    trap.isCall = [&target](HWND control, UINT message) {
        return IsCall(control, message, target);
    };
    trap.answer = target.answer;
    trap.inParts = target.calls == Calls::OfParts;
    if (target.calls == Calls::WithKeys) {
        trap.answerToKeys = kRowForKeys;
    }
    return trap;
}

class Destroying : public testing::Test {
protected:
    WatchedImports watched;

    static int RunFor(Stage& stage, const Subject& subject, DWORD style, const Target& target) {
        const std::string deed = std::string("style ") + std::to_string(style) + " of a " +
                                 subject.className + ", destroying " + target.name;
        SCOPED_TRACE(deed);
        NoteDeed("creation, " + deed);
        const Trap trap = TrapFor(target);
        int calls = RunThrough(
            [&](int number) { return CreateTrapped(stage, subject, style, trap, number); });
        for (const Operation& operation : OperationsOf(subject)) {
            SCOPED_TRACE(operation.name);
            NoteDeed(operation.name + ", " + deed);
            calls += RunThrough([&](int number) {
                return RunTrapped(stage, subject, style, operation, trap, number);
            });
        }
        return calls;
    }

    static void RunAll(const char* className) {
        const Subject& subject = SubjectOf(className);
        Stage stage(subject);
        int calls = 0;
        for (const DWORD style : subject.styles) {
            for (const Target& target : kTargets) {
                if (Concerns(target, subject, style)) {
                    const int made = RunFor(stage, subject, style, target);
                    EXPECT_TRUE(made > 0 || style != subject.styles[0] ||
                                !IsReached(target, subject))
                        << target.name;
                    calls += made;
                }
            }
        }
        std::printf("%d calls\n", calls);
    }
};

// Runs the operation on a list that gets no more memory after this many requests; the host destroys
// the target when it is told so. Whether memory was short.
bool RunShortOfMemory(Stage& stage, DWORD style, const Operation& operation, const Target& target,
                      int requests, int& told) {
    HWND control = stage.Create(style);
    stage.host().answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_COMMAND &&
            HIWORD(message.wParam) == static_cast<WORD>(LBN_ERRSPACE)) {
            ++told;
            DestroyWindow(target.find(control, GetParent(control)));
        }
        return std::nullopt;
    };
    WatchedImports::FailAfter(Supply::Memory, requests, std::numeric_limits<int>::max());
    operation.run(control);
    const bool wasShort = WatchedImports::StopFailing() != 0;
    stage.Clear();
    return wasShort;
}

// What a class tells its parent or itself while the operations run.
std::vector<Message> ToldBy(const Subject& subject) {
    std::vector<Message> told;
    Stage stage(subject);
    for (const Operation& operation : OperationsOf(subject)) {
        HWND control = stage.Create(subject.styles[0]);
        Spy spy(control);
        stage.host().answer = [&](const Message& message) -> std::optional<LRESULT> {
            told.push_back(message);
            return std::nullopt;
        };
        operation.run(control);
        stage.Clear();
        told.insert(told.end(), spy.messages.begin(), spy.messages.end());
    }
    return told;
}

TEST_F(Destroying, ComesToAllThatAClassTells) {
    ForEachSubject([](const Subject& subject) {
        const std::vector<Message> told = ToldBy(subject);
        for (const Told& expected : subject.tells) {
            const auto isIt = [&](const Message& message) {
                return message.message == expected.message &&
                       (expected.code < 0 || HIWORD(message.wParam) == expected.code);
            };
            EXPECT_TRUE(std::any_of(told.begin(), told.end(), isIt))
                << expected.message << " with " << expected.code;
        }
    });
}

TEST_F(Destroying, WhenAListTellsThatMemoryRanOut) {
    const Subject& subject = SubjectOf(VORN_HIERLIST_CLASS);
    Stage stage(subject);
    for (const Target& target : kTargets) {
        if (!IsPlain(target)) {
            continue;
        }
        for (const DWORD style : subject.styles) {
            SCOPED_TRACE(std::string(target.name) + ", style " + std::to_string(style));
            int told = 0;
            for (const Operation& operation : subject.operations) {
                NoteDeed(operation.name + " without memory, destroying " + target.name);
                RunThrough([&](int requests) {
                    return RunShortOfMemory(stage, style, operation, target, requests, told);
                });
            }
            EXPECT_GT(told, 0);
        }
    }
}

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
