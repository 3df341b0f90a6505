// Random messages to every class: to living controls, in the middle of their creation, to windows
// that are none, and to what is left of a control that was destroyed.
#include "tests/windows/abuse/creation.h"
#include "tests/windows/abuse/imports.h"
#include "tests/windows/abuse/subject_operations.h"
#include "tests/windows/abuse/subjects.h"
#include "tests/windows/support/abuse.h"
#include "tests/windows/support/crash.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <vorn32.h>

namespace vorn::test {
namespace {

constexpr int kMessages = 200000; // a class
constexpr int kMessagesToOne = 400;
constexpr int kMessagesToHalves = 2000;
constexpr std::uint32_t kSeed = 20261122;

// A number that the environment gives, for longer runs and other ones.
std::uint32_t FromEnvironment(const char* name, std::uint32_t usual) {
    const char* text = std::getenv(name);
    return text != nullptr ? static_cast<std::uint32_t>(std::strtoul(text, nullptr, 10)) : usual;
}

std::uint32_t Seed() {
    return FromEnvironment("VORN_ABUSE_SEED", kSeed);
}

// A press on a date edit's button opens a dialog, which is given up soon.
void CALLBACK CloseDialog(HWND, UINT, UINT_PTR, DWORD) {
    EndDateDialogs(IDCANCEL);
}

// The system's combo box, which ours is, takes whatever it finds in a window for its record.
bool KnowsOthersWindows(const Subject& subject) {
    return subject.className != std::string(VORN_COMBOBOX_CLASS);
}

// The calendar's date is in words of the window, whichever window that is: hosts may read them.
bool LeavesOthersWindows(const Subject& subject) {
    return KnowsOthersWindows(subject) && subject.className != std::string(VORN_CALENDAR_CLASS);
}

class RandomMessages : public testing::Test {
protected:
    RandomMessages() : timer_(SetTimer(nullptr, 0, USER_TIMER_MINIMUM, CloseDialog)) {}
    ~RandomMessages() override { KillTimer(nullptr, timer_); }

    // A window that was disabled, hidden or at its end does little, so a new one comes often.
    static void SendTo(const char* className) {
        const Subject& subject = SubjectOf(className);
        const auto count =
            static_cast<int>(FromEnvironment("VORN_ABUSE_MESSAGES", std::uint32_t{kMessages}));
        std::vector<UINT> withoutEnds = subject.addresses;
        withoutEnds.insert(withoutEnds.end(), {WM_DESTROY, WM_NCDESTROY});
        std::printf("random messages with seed %u\n", Seed());
        NoteDeed("random messages to " + std::string(className));
        SendInRounds(subject, count, withoutEnds, Seed());
        SendInRounds(subject, count / 20, subject.addresses, Seed() + 1);
        EXPECT_EQ(WatchedImports::Left(), "");
    }

    static void SendInRounds(const Subject& subject, int count, const std::vector<UINT>& leftOut,
                             std::uint32_t seed) {
        Stage stage(subject);
        int left = 0;
        std::size_t rounds = 0;
        const auto send = [&](UINT message, WPARAM wParam, LPARAM lParam) {
            if (left-- <= 0 || !IsWindow(stage.control())) {
                left = kMessagesToOne;
                stage.Create(subject.styles[rounds++ % subject.styles.size()]);
                SetFocus(rounds % 2 == 0 ? stage.control() : stage.neighbour());
            }
            SendMessageA(stage.control(), message, wParam, lParam);
        };
        ChooseRandomMessages(send, seed, count, leftOut);
    }

    WatchedImports watched;

private:
    UINT_PTR timer_;
};

TEST_F(RandomMessages, ToButtons) {
    SendTo(VORN_BUTTON_CLASS);
}

TEST_F(RandomMessages, ToNumericEdits) {
    SendTo(VORN_NUMEDIT_CLASS);
}

TEST_F(RandomMessages, ToDateEdits) {
    SendTo(VORN_DATEEDIT_CLASS);
}

TEST_F(RandomMessages, ToTimeEdits) {
    SendTo(VORN_TIMEEDIT_CLASS);
}

TEST_F(RandomMessages, ToFontSelectors) {
    SendTo(VORN_FONTSELECT_CLASS);
}

TEST_F(RandomMessages, ToCalendars) {
    SendTo(VORN_CALENDAR_CLASS);
}

TEST_F(RandomMessages, ToDials) {
    SendTo(VORN_DIAL_CLASS);
}

TEST_F(RandomMessages, ToSpinPads) {
    SendTo(VORN_UDLR_CLASS);
}

TEST_F(RandomMessages, ToPercentBars) {
    SendTo(VORN_PERCENTBAR_CLASS);
}

TEST_F(RandomMessages, ToOutlineLists) {
    SendTo(VORN_HIERLIST_CLASS);
}

TEST_F(RandomMessages, ToComboBoxes) {
    SendTo(VORN_COMBOBOX_CLASS);
}

TEST_F(RandomMessages, ToControlsThatAreHalfCreated) {
    ForEachSubject([](const Subject& subject) {
        for (const CreationStage creationStage : kCreationStages) {
            Stage stage(subject);
            stage.host();
            WatchedImports::Forget();
            {
                CreationWatch watch(subject.className);
                bool sent = false; // some of the messages are those that create
                watch.at = [&](HWND window, CreationStage met) {
                    if (met == creationStage && !sent) {
                        sent = true;
                        NoteDeed("messages to a half " + std::string(subject.className));
                        SendRandomMessagesTo(window, Seed(), kMessagesToHalves, subject.addresses);
                    }
                    return false;
                };
                stage.CreateEmpty(subject.styles[0]);
                EXPECT_NE(watch.window(), nullptr);
            }
            stage.Clear();
            EXPECT_EQ(WatchedImports::Left(), "") << static_cast<int>(creationStage);
        }
    });
}

TEST_F(RandomMessages, ToControlsThatAreGone) {
    ForEachSubject([](const Subject& subject) {
        Stage stage(subject);
        HWND window = stage.Create(subject.styles[0]);
        DestroyWindow(window);
        SendRandomMessagesTo(window, Seed(), kMessagesToHalves, subject.addresses);
        EXPECT_FALSE(IsWindow(window));
    });
}

// The procedures are exported, so a host can call one with any window.
TEST_F(RandomMessages, ToProceduresWithWindowsThatAreNone) {
    ForEachSubject([](const Subject& subject) {
        Stage stage(subject);
        HWND gone = stage.Create(subject.styles[0]);
        DestroyWindow(gone);
        HWND foreign = CreateForeignWindow();
        for (HWND window : {HWND{nullptr}, gone, foreign}) {
            if (window == foreign && !KnowsOthersWindows(subject)) {
                continue;
            }
            NoteDeed("the procedure of " + std::string(subject.className));
            const auto send = [&](UINT message, WPARAM wParam, LPARAM lParam) {
                CallWindowProcA(subject.procedure, window, message, wParam, lParam);
            };
            ChooseRandomMessages(send, Seed(), kMessagesToHalves, subject.addresses);
        }
        DestroyWindow(foreign);
    });
}

// And with the control of another class.
TEST_F(RandomMessages, ToProceduresWithOthersControls) {
    ForEachSubject([](const Subject& subject) {
        for (const Subject& other : Subjects()) {
            if (&other == &subject || !LeavesOthersWindows(subject)) {
                continue;
            }
            Stage stage(other);
            HWND window = nullptr;
            NoteDeed("the procedure of " + std::string(subject.className) + " with " +
                     other.className);
            const auto send = [&](UINT message, WPARAM wParam, LPARAM lParam) {
                if (!IsWindow(window)) {
                    window = stage.Create(other.styles[0]);
                }
                CallWindowProcA(subject.procedure, window, message, wParam, lParam);
            };
            ChooseRandomMessages(send, Seed(), 500, subject.addresses);
        }
    });
}

TEST_F(RandomMessages, ToDialogProceduresWithWindowsThatAreNone) {
    for (const Subject& subject : Subjects()) {
        Stage stage(subject);
        HWND control = stage.Create(subject.styles[0]);
        HWND foreign = CreateForeignWindow();
        for (HWND window : {HWND{nullptr}, DestroyedWindow(), foreign, control}) {
            NoteDeed("the dialogs' procedures with " + std::string(subject.className));
            const auto send = [window](UINT message, WPARAM wParam, LPARAM lParam) {
                CalendarProc(window, message, wParam, lParam);
                fnFontSelProc(window, message, wParam, lParam);
            };
            ChooseRandomMessages(send, Seed(), kMessagesToHalves, {});
        }
        EXPECT_TRUE(IsWindow(control));
        DestroyWindow(foreign);
    }
}

// What carries addresses carries none. A drive of the list's is not asked for all its folders, and
// the combo box is the system's own.
TEST_F(RandomMessages, WithoutTheirAddresses) {
    ForEachSubject([](const Subject& subject) {
        std::vector<UINT> messages = subject.addresses;
        messages.insert(messages.end(), {WM_SETTEXT, WM_GETTEXT, WM_WININICHANGE});
        for (const DWORD style : subject.styles) {
            Stage stage(subject);
            HWND window = stage.Create(style);
            for (const UINT message : messages) {
                if (message == OLBM_DIREX || !KnowsOthersWindows(subject)) {
                    continue;
                }
                const bool carriesTwo = message == EM_GETSEL;
                for (const WPARAM wParam : {0u, 1u, 100u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
                    NoteDeed(std::to_string(message) + " to a " + subject.className);
                    SendMessageA(window, message, carriesTwo ? 0 : wParam, 0);
                }
            }
            EXPECT_TRUE(IsWindow(window));
            stage.Clear();
            EXPECT_EQ(WatchedImports::Left(), "");
        }
    });
}

} // namespace
} // namespace vorn::test
