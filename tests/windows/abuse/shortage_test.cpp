// The system gives nothing: the first, the second, ... request of an operation fails, alone or with
// all after it, until the operation makes no more.
#include "tests/windows/abuse/imports.h"
#include "tests/windows/abuse/subjects.h"
#include "tests/windows/abuse/trap.h"
#include "tests/windows/support/crash.h"

#include <gtest/gtest.h>
#include <limits>
#include <set>
#include <vorn32.h>

namespace vorn::test {
namespace {

class Shortage : public testing::Test {
protected:
    WatchedImports watched;

    // Runs the operation with the request of this number failing. Whether there was one.
    static bool RunShort(Stage& stage, DWORD style, const Operation& operation, Supply supply,
                         int number, int failures) {
        HWND control = stage.Create(style);
        EXPECT_NE(control, nullptr);
        WatchedImports::FailAfter(supply, number, failures);
        operation.run(control);
        const bool wasShort = WatchedImports::StopFailing() != 0;
        // What it kept must do.
        RedrawWindow(control, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW);
        stage.Clear();
        return wasShort;
    }

    // The same with the control's creation, which may be refused then.
    static bool CreateShort(Stage& stage, const Subject& subject, DWORD style, Supply supply,
                            int number, int failures) {
        stage.Clear();
        stage.host();
        WatchedImports::FailAfter(supply, number, failures);
        HWND control = stage.CreateEmpty(style);
        const bool wasShort = WatchedImports::StopFailing() != 0;
        if (control != nullptr) {
            subject.fill(control);
            for (const Operation& operation : OperationsOf(subject)) {
                operation.run(control);
            }
        }
        stage.Clear();
        return wasShort;
    }

    static void RunAll(const char* className) {
        const Subject& subject = SubjectOf(className);
        Stage stage(subject);
        int all = 0;
        for (const Supply supply : kSupplies) {
            for (const int failures : {1, std::numeric_limits<int>::max()}) {
                const std::string what = std::string(className) + " short of " + NameOf(supply) +
                                         (failures == 1 ? " once" : "");
                for (const DWORD style : subject.styles) {
                    SCOPED_TRACE("creation of a " + what + ", style " + std::to_string(style));
                    NoteDeed("creation of a " + what);
                    all += RunThrough([&](int number) {
                        return CreateShort(stage, subject, style, supply, number, failures);
                    });
                }
                for (const Operation& operation : OperationsOf(subject)) {
                    SCOPED_TRACE(operation.name + " of a " + what);
                    NoteDeed(operation.name + " of a " + what);
                    all += RunThrough([&](int number) {
                        return RunShort(stage, subject.styles[0], operation, supply, number,
                                        failures);
                    });
                }
            }
        }
        std::printf("%d requests failed\n", all);
    }
};

// What sounds as if it gave something, and looks up a colour or what lives as long as its module.
const std::set<std::string> kLookUps = {"LoadLibraryA", "LoadCursorA", "LoadStringA",
                                        "GetDCBrushColor"};

// What the checked build asks for besides: for the C++ runtime and for guarded blocks.
#ifdef VORN_CHECKED
const std::set<std::string> kOfTheBuild = {"CreateEventA", "CreateSemaphoreA", "TlsAlloc",
                                           "VirtualAlloc"};
#else
const std::set<std::string> kOfTheBuild;
#endif

TEST_F(Shortage, ReachesAllThatTheLibraryAsksFor) {
    EXPECT_EQ(WatchedImports::Unused(), std::vector<std::string>{});
    for (const std::string& name : watched.unwatched()) {
        EXPECT_EQ(kLookUps.count(name) + kOfTheBuild.count(name), 1u) << name;
    }
}

TEST_F(Shortage, OfAButton) {
    RunAll(VORN_BUTTON_CLASS);
}

TEST_F(Shortage, OfANumericEdit) {
    RunAll(VORN_NUMEDIT_CLASS);
}

TEST_F(Shortage, OfADateEdit) {
    RunAll(VORN_DATEEDIT_CLASS);
}

TEST_F(Shortage, OfATimeEdit) {
    RunAll(VORN_TIMEEDIT_CLASS);
}

TEST_F(Shortage, OfAFontSelector) {
    RunAll(VORN_FONTSELECT_CLASS);
}

TEST_F(Shortage, OfACalendar) {
    RunAll(VORN_CALENDAR_CLASS);
}

TEST_F(Shortage, OfADial) {
    RunAll(VORN_DIAL_CLASS);
}

TEST_F(Shortage, OfASpinPad) {
    RunAll(VORN_UDLR_CLASS);
}

TEST_F(Shortage, OfAPercentBar) {
    RunAll(VORN_PERCENTBAR_CLASS);
}

TEST_F(Shortage, OfAnOutlineList) {
    RunAll(VORN_HIERLIST_CLASS);
}

TEST_F(Shortage, OfAComboBox) {
    RunAll(VORN_COMBOBOX_CLASS);
}

} // namespace
} // namespace vorn::test
