// Hosts that destroy a window inside a call of theirs: each call in turn, until an operation makes
// no more.
#include "tests/windows/abuse/creation.h"
#include "tests/windows/abuse/imports.h"
#include "tests/windows/abuse/subjects.h"
#include "tests/windows/support/crash.h"
#include "tests/windows/support/spy.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <vorn32.h>

namespace vorn::test {
namespace {

constexpr int kMostCalls = 3000;

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

constexpr Target kTargets[] = {
    {"the control", TheControl},
    {"its parent", [](HWND control, HWND) { return GetParent(control); }},
    {"the focus", [](HWND, HWND) { return GetFocus(); }},
    {"the control, answering 1", TheControl, 1},
    {"the control, answering -1", TheControl, -1},
    {"the control, after an answer to a key", TheControl, 0, Calls::WithKeys},
    {"the control, in calls of its parts", TheControl, 0, Calls::OfParts},
    {"the part that is called", [](HWND, HWND called) { return called; }, 0, Calls::OfParts},
};

constexpr LRESULT kRowForKeys = 2;

// All in the first style, which tells the most, and in the others the control itself.
bool Concerns(const Target& target, const Subject& subject, DWORD style) {
    const std::string name = subject.className;
    if (style != subject.styles[0]) {
        return &target == &kTargets[0];
    }
    return target.calls == Calls::Usual ||
           name == (target.calls == Calls::OfParts ? VORN_FONTSELECT_CLASS : VORN_HIERLIST_CLASS);
}

// An end that has begun is not begun anew.
bool IsCall(UINT message, const Target& target) {
    return message != WM_DESTROY && message != WM_NCDESTROY &&
           (target.answer == 0 || IsControls(message) || IsAsked(message));
}

// The system's own list does not bear to end while it asks about its items.
bool IsListsQuestion(UINT message) {
    return message == WM_DELETEITEM || message == WM_MEASUREITEM || message == WM_DRAWITEM ||
           message == WM_COMPAREITEM;
}

class Destroying : public testing::Test {
protected:
    WatchedImports watched;

    // Destroys the target in the call of a number.
    class Trap {
    public:
        Trap(const Target& target, int number) : target_(target), number_(number) {}

        // What the call is answered, if this is the one.
        std::optional<LRESULT> Meet(HWND control, HWND called, UINT message) {
            if (!armed || !IsCall(message, target_) || calls_++ != number_) {
                return std::nullopt;
            }
            armed = false;
            reached = true;
            DestroyWindow(target_.find(control, called));
            return target_.answer == 0 ? std::nullopt : std::optional<LRESULT>(target_.answer);
        }

        bool armed = true;
        bool reached = false;

    private:
        const Target& target_;
        int number_;
        int calls_ = 0;
    };

    // Runs an operation and destroys a window inside the call of this number. Whether it came so
    // far.
    static bool RunTo(Stage& stage, const Subject& subject, DWORD style, const Operation& operation,
                      const Target& target, int number) {
        HWND control = stage.Create(style);
        EXPECT_NE(control, nullptr);
        Trap trap(target, number);
        const std::vector<HWND> watchedParts =
            target.calls == Calls::OfParts ? PartsOf(subject, control) : std::vector<HWND>{control};
        std::vector<std::unique_ptr<Spy>> spies;
        for (HWND part : watchedParts) {
            spies.push_back(std::make_unique<Spy>(part));
            spies.back()->answer = [&trap, part,
                                    control](const Message& message) -> std::optional<LRESULT> {
                return part == control || !IsListsQuestion(message.message)
                           ? trap.Meet(control, part, message.message)
                           : std::nullopt;
            };
        }
        stage.host().answer = [&](const Message& message) {
            const std::optional<LRESULT> met =
                trap.Meet(control, GetParent(control), message.message);
            const bool isKey = message.message == WM_VKEYTOITEM || message.message == WM_CHARTOITEM;
            return isKey && !met && target.calls == Calls::WithKeys
                       ? std::optional<LRESULT>(kRowForKeys)
                       : met;
        };
        operation.run(control);
        trap.armed = false;
        spies.clear();
        stage.Clear();
        return trap.reached;
    }

    // The same in the calls of a creation.
    static bool CreateTo(Stage& stage, const char* className, DWORD style, const Target& target,
                         int number) {
        stage.Clear();
        stage.host();
        Trap trap(target, number);
        CreationWatch watch(className);
        const auto meet = [&](const Message& message) {
            return trap.Meet(watch.window(), watch.window(), message.message);
        };
        watch.before = meet;
        stage.host().answer = meet;
        stage.CreateHere(style);
        trap.armed = false;
        stage.Clear();
        return trap.reached;
    }

    // The number of calls until there are no more.
    template <class Run>
    static int RunThrough(Run run) {
        int number = 0;
        while (number < kMostCalls && run(number)) {
            ++number;
            if (WatchedImports::Left() != "") {
                ADD_FAILURE() << "in call " << number - 1 << " left\n" << WatchedImports::Left();
                WatchedImports::Forget();
            }
        }
        EXPECT_LT(number, kMostCalls) << "does not come to an end";
        return number;
    }

    static void RunAll(const char* className) {
        const Subject& subject = SubjectOf(className);
        Stage stage(subject);
        int all = 0;
        for (const DWORD style : subject.styles) {
            for (const Target& target : kTargets) {
                if (!Concerns(target, subject, style)) {
                    continue;
                }
                const std::string deed = std::string("style ") + std::to_string(style) + " of a " +
                                         className + ", destroying " + target.name;
                SCOPED_TRACE(deed);
                NoteDeed("creation, " + deed);
                all += RunThrough(
                    [&](int number) { return CreateTo(stage, className, style, target, number); });
                for (const Operation& operation : OperationsOf(subject)) {
                    SCOPED_TRACE(operation.name);
                    NoteDeed(operation.name + ", " + deed);
                    all += RunThrough([&](int number) {
                        return RunTo(stage, subject, style, operation, target, number);
                    });
                }
            }
        }
        std::printf("%d calls\n", all);
    }
};

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
