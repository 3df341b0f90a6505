// Hosts that give senseless answers: to what a control asks itself or its parts, in a procedure
// before its own, and to what it asks its parent.
#include "tests/windows/abuse/imports.h"
#include "tests/windows/abuse/subjects.h"
#include "tests/windows/support/crash.h"
#include "tests/windows/support/spy.h"

#include <gtest/gtest.h>
#include <vorn32.h>

namespace vorn::test {
namespace {

LRESULT AnswerAsParent(const Message& message, LRESULT answer) {
    if (message.message == WM_MEASUREITEM) {
        auto* question = reinterpret_cast<MEASUREITEMSTRUCT*>(message.lParam);
        question->itemHeight = static_cast<UINT>(answer);
        question->itemWidth = static_cast<UINT>(answer);
    }
    return answer;
}

class SenselessAnswers : public testing::Test {
protected:
    WatchedImports watched;

    // Runs each operation on a control while the procedures before its own answer this.
    static void RunAnswering(const Subject& subject, DWORD style, LRESULT answer) {
        Stage stage(subject);
        for (const Operation& operation : OperationsOf(subject)) {
            SCOPED_TRACE(operation.name);
            NoteDeed(operation.name + " of a " + subject.className);
            HWND control = stage.Create(style);
            std::vector<std::unique_ptr<Spy>> spies;
            for (HWND part : PartsOf(subject, control)) {
                spies.push_back(std::make_unique<Spy>(part));
                spies.back()->answer = [=](const Message& message) {
                    return IsControls(message.message) ? std::optional<LRESULT>(answer)
                                                       : std::nullopt;
                };
            }
            operation.run(control);
            spies.clear();
            stage.Clear();
            ASSERT_EQ(WatchedImports::Left(), "");
        }
    }

    // The same with what the parent answers.
    static void RunInParent(const Subject& subject, DWORD style, LRESULT answer) {
        Stage stage(subject);
        stage.host();
        for (const Operation& operation : OperationsOf(subject)) {
            SCOPED_TRACE(operation.name);
            NoteDeed(operation.name + " of a " + subject.className);
            stage.Clear();
            stage.host().answer = [=](const Message& message) {
                return IsAsked(message.message)
                           ? std::optional<LRESULT>(AnswerAsParent(message, answer))
                           : std::nullopt;
            };
            HWND control = stage.CreateHere(style);
            if (control != nullptr) {
                subject.fill(control);
                operation.run(control);
            }
            stage.Clear();
            ASSERT_EQ(WatchedImports::Left(), "");
        }
    }
};

TEST_F(SenselessAnswers, ToWhatAControlAsksItself) {
    ForEachSubject([](const Subject& subject) {
        for (const DWORD style : subject.styles) {
            for (const LRESULT answer : {0, 1, -1}) {
                SCOPED_TRACE(answer);
                RunAnswering(subject, style, answer);
            }
        }
    });
}

TEST_F(SenselessAnswers, ToWhatAControlAsksItsParent) {
    ForEachSubject([](const Subject& subject) {
        for (const DWORD style : subject.styles) {
            for (const LRESULT answer : {0, 1, -1, 2, 99, 0x7FFFFFFF, -2147483647 - 1}) {
                SCOPED_TRACE(answer);
                RunInParent(subject, style, answer);
            }
        }
    });
}

} // namespace
} // namespace vorn::test
