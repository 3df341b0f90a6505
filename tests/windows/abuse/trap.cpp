#include "tests/windows/abuse/trap.h"

#include "tests/windows/abuse/creation.h"
#include "tests/windows/abuse/imports.h"
#include "tests/windows/support/spy.h"

#include <gtest/gtest.h>

namespace vorn::test {
namespace {

constexpr int kMostRuns = 5000;

// The system's own list does not bear to be troubled while it asks about its items.
bool IsListsQuestion(UINT message) {
    return message == WM_DELETEITEM || message == WM_MEASUREITEM || message == WM_DRAWITEM ||
           message == WM_COMPAREITEM;
}

// A trap that is set for one call.
class SetTrap {
public:
    SetTrap(const Trap& trap, int number) : trap_(trap), left_(number) {}

    // What the call is answered, if this is the one and its answer is given.
    std::optional<LRESULT> Meet(HWND control, HWND called, UINT message) {
        if (!armed_ || !trap_.isCall(control, message) || left_-- > 0) {
            return std::nullopt;
        }
        armed_ = false;
        reached_ = true;
        trap_.act(control, called);
        return trap_.answer == 0 ? std::nullopt : std::optional<LRESULT>(trap_.answer);
    }

    std::optional<LRESULT> MeetInParent(HWND control, UINT message) {
        const std::optional<LRESULT> met = Meet(control, GetParent(control), message);
        const bool isKey = message == WM_VKEYTOITEM || message == WM_CHARTOITEM;
        return isKey && !met ? trap_.answerToKeys : met;
    }

    void Disarm() { armed_ = false; }
    bool reached() const { return reached_; }

private:
    const Trap& trap_;
    int left_;
    bool armed_ = true;
    bool reached_ = false;
};

} // namespace

bool RunTrapped(Stage& stage, const Subject& subject, DWORD style, const Operation& operation,
                const Trap& trap, int number) {
    HWND control = stage.Create(style);
    EXPECT_NE(control, nullptr);
    SetTrap set(trap, number);
    const std::vector<HWND> parts =
        trap.inParts ? PartsOf(subject, control) : std::vector<HWND>{control};
    std::vector<std::unique_ptr<Spy>> spies;
    for (HWND part : parts) {
        spies.push_back(std::make_unique<Spy>(part));
        spies.back()->answer = [&set, part,
                                control](const Message& message) -> std::optional<LRESULT> {
            return part == control || !IsListsQuestion(message.message)
                       ? set.Meet(control, part, message.message)
                       : std::nullopt;
        };
    }
    stage.host().answer = [&](const Message& message) {
        return set.MeetInParent(control, message.message);
    };
    operation.run(control);
    set.Disarm();
    spies.clear();
    stage.Clear();
    return set.reached();
}

bool CreateTrapped(Stage& stage, const Subject& subject, DWORD style, const Trap& trap,
                   int number) {
    stage.Clear();
    stage.host();
    SetTrap set(trap, number);
    CreationWatch watch(subject.className);
    const auto meet = [&](const Message& message) {
        return set.Meet(watch.window(), watch.window(), message.message);
    };
    watch.before = meet;
    stage.host().answer = meet;
    stage.CreateHere(style);
    set.Disarm();
    stage.Clear();
    return set.reached();
}

int RunThrough(const std::function<bool(int number)>& run) {
    int number = 0;
    while (number < kMostRuns && run(number)) {
        const std::string left = WatchedImports::Left();
        if (!left.empty()) {
            ADD_FAILURE() << "number " << number << " left\n" << left;
            WatchedImports::Forget();
        }
        ++number;
    }
    EXPECT_LT(number, kMostRuns) << "does not come to an end";
    return number;
}

} // namespace vorn::test
