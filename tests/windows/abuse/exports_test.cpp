// Every export on every kind of window that it was not made for, and on its own.
#include "tests/windows/abuse/creation.h"
#include "tests/windows/abuse/exports.h"
#include "tests/windows/abuse/imports.h"
#include "tests/windows/abuse/subjects.h"
#include "tests/windows/support/abuse.h"
#include "tests/windows/support/crash.h"

#include <gtest/gtest.h>
#include <set>

namespace vorn::test {
namespace {

constexpr int kRounds = 12; // calls of a function, each with other arguments; the first with nulls
constexpr int kRoundsOnOwn = 40;

// The library's longest result is a path; nothing is written beyond it.
constexpr std::size_t kLongestResult = 260;

// The answers that differ from those of their kind.
struct Answer {
    const char* name;
    LONG_PTR value;
};

LONG_PTR HeightOfTenPoints() {
    HDC screen = GetDC(nullptr);
    const int height = -MulDiv(10, GetDeviceCaps(screen, LOGPIXELSY), 72);
    ReleaseDC(nullptr, screen);
    return height;
}

const std::vector<Answer>& SpecialAnswers() {
    static const std::vector<Answer> answers = {{"nmIsNull", 1},
                                                {"nmOkToChange", 1},
                                                {"tmIsNull", 1},
                                                {"tmOkToChange", 1},
                                                {"dtIsNull", 1},
                                                {"dtOkToChange", 1},
                                                {"dtGetMonth", -1},
                                                {"dtGetDay", -1},
                                                {"dtGetYear", -1},
                                                {"dtGetDate", -1},
                                                {"dtEnableErase", 0},
                                                {"dtGetMinHeight", 24},
                                                {"dtGetMinWidth", 80},
                                                {"fsGetFontPointSize", 10},
                                                {"fsGetFontSize", HeightOfTenPoints()},
                                                {"olbPaintBitmap", -1}};
    return answers;
}

// What has nothing to do with the window: the library's version, captions of the process, items,
// and functions that answer their argument.
const std::set<std::string> kAnswersAnything = {
    "GetLongVersion",   "GetVORNVersion",      "dtSetButtonText", "dtGetDateString",
    "olbHandleToIndex", "olbGetChildHandleEx", "olbGetFullPath",  "olbGetFullPathEx",
    "EnumFamCallBack",  "nmGetFloat"};

// Numbers that are 0, and results that say that there is none: so many bytes at most.
const std::set<std::string> kWritesWithoutControl = {"nmGetFloat",      "nmGetDouble",
                                                     "nmGetLongDouble", "fsGetFontFamily",
                                                     "olbGetFullPath",  "olbGetFullPathEx"};

bool StartsWith(const std::string& text, const std::string& start) {
    return text.compare(0, start.size(), start) == 0;
}

bool BelongsTo(const Export& function, const Subject& subject) {
    const std::string prefix = subject.prefix;
    return !prefix.empty() &&
           (StartsWith(function.name, prefix) || StartsWith(function.name, "Get" + prefix) ||
            StartsWith(function.name, "Set" + prefix));
}

// Items are handed to the list that they are of.
bool IsList(const Subject& subject) {
    return subject.className == std::string(VORN_HIERLIST_CLASS);
}

LONG_PTR ExpectedWithoutControl(const Export& function) {
    for (const Answer& answer : SpecialAnswers()) {
        if (function.name == answer.name) {
            return answer.value;
        }
    }
    const bool minusOne = StartsWith(function.name, "olb") &&
                          (function.kind == ResultKind::Long || function.kind == ResultKind::Item);
    return minusOne ? -1 : 0;
}

class EveryExport : public testing::Test {
protected:
    EveryExport() : listStage(SubjectOf(VORN_HIERLIST_CLASS)) {
        list = listStage.Create(WS_VSCROLL);
        context = CreateCompatibleDC(nullptr);
    }
    ~EveryExport() override { DeleteDC(context); }

    Arguments ArgumentsFor(HWND window, const std::string& name, int round) const {
        Arguments arguments(static_cast<std::uint32_t>(round * 7919 + 1));
        arguments.window = window;
        arguments.list = list;
        arguments.context = context;
        arguments.nullPointers = round == 0;
        arguments.sparing = name == "olbDirEx";
        return arguments;
    }

    // The window is none of the class that the function is for.
    void CallWithoutControl(const Export& function, HWND window) const {
        for (int round = 0; round < kRounds; ++round) {
            Arguments arguments = ArgumentsFor(window, function.name, round);
            NoteDeed(function.name + " without a control, round " + std::to_string(round));
            const LONG_PTR answer = function.call(arguments);
            if (kAnswersAnything.count(function.name) == 0) {
                EXPECT_EQ(answer, ExpectedWithoutControl(function)) << function.name;
            }
            const bool writes = kWritesWithoutControl.count(function.name) != 0;
            EXPECT_FALSE(arguments.Written(writes ? sizeof(double) : 0)) << function.name;
        }
    }

    void CallOnControl(const Export& function, HWND window, int rounds) {
        for (int round = 0; round < rounds && IsWindow(window); ++round) {
            Arguments arguments = ArgumentsFor(window, function.name, round);
            arguments.list = control != nullptr ? control : list;
            NoteDeed(function.name + " on a control, round " + std::to_string(round));
            function.call(arguments);
            EXPECT_FALSE(arguments.Written(kLongestResult)) << function.name;
        }
    }

    // Every function on a window that is none of ours.
    void CallAllWithoutControl(HWND window) const {
        for (const Export& function : Exports()) {
            if (function.call) {
                CallWithoutControl(function, window);
            }
        }
    }

    WatchedImports watched;
    Stage listStage;
    HWND list = nullptr;
    HWND control = nullptr; // an outline list that gets its own items
    HDC context = nullptr;
};

TEST_F(EveryExport, IsInTheTable) {
    std::size_t procedures = 0;
    for (const Export& function : Exports()) {
        EXPECT_NE(GetProcAddress(GetModuleHandleA("VORN32.dll"), function.name.c_str()), nullptr)
            << function.name;
        procedures += function.call ? 0 : 1;
    }
    EXPECT_EQ(procedures, Subjects().size() + 2) << "one a class, and those of two dialogs";
    EXPECT_GT(Exports().size(), 200u);
}

TEST_F(EveryExport, AnswersForWindowsThatAreNone) {
    HWND foreign = CreateForeignWindow();
    const auto handles = {HWND{nullptr},
                          foreign,
                          DestroyedWindow(),
                          listStage.neighbour(),
                          reinterpret_cast<HWND>(LONG_PTR{-1}),
                          GetDesktopWindow()};
    for (HWND window : handles) {
        SCOPED_TRACE(reinterpret_cast<LONG_PTR>(window));
        CallAllWithoutControl(window);
    }
    EXPECT_EQ(GetWindowLongA(foreign, 0), 0x5A5A5A5A);
    DestroyWindow(foreign);
}

TEST_F(EveryExport, AnswersForControlsOfOtherClasses) {
    ForEachSubject([this](const Subject& subject) {
        Stage stage(subject);
        HWND window = stage.Create(subject.styles[0]);
        for (const Export& function : Exports()) {
            if (function.call && !BelongsTo(function, subject) &&
                !(subject.prefix == std::string("fs") && function.name == "EnumFamCallBack")) {
                CallWithoutControl(function, window);
            }
        }
        EXPECT_TRUE(IsWindow(window));
    });
}

TEST_F(EveryExport, AnswersForControlsThatAreGone) {
    ForEachSubject([this](const Subject& subject) {
        Stage stage(subject);
        HWND window = stage.Create(subject.styles[0]);
        DestroyWindow(window);
        CallAllWithoutControl(window);
    });
}

// With edges and random numbers, and from time to time a new one.
TEST_F(EveryExport, BearsAnyArgumentsOnAControlOfItsOwn) {
    ForEachSubject([this](const Subject& subject) {
        for (const DWORD style : subject.styles) {
            Stage stage(subject);
            for (const Export& function : Exports()) {
                if (!function.call || !BelongsTo(function, subject)) {
                    continue;
                }
                WatchedImports::Forget();
                HWND window = stage.Create(style);
                control = IsList(subject) ? window : nullptr;
                SetFocus(window);
                CallOnControl(function, window, kRoundsOnOwn);
                UpdateWindow(window);
                EXPECT_TRUE(IsWindow(window)) << function.name;
                stage.Clear();
                EXPECT_EQ(WatchedImports::Left(), "") << function.name;
            }
            control = nullptr;
        }
    });
}

TEST_F(EveryExport, AnswersForControlsThatAreHalfCreated) {
    ForEachSubject([this](const Subject& subject) {
        Stage stage(subject);
        stage.host();
        int met = 0;
        {
            CreationWatch watch(subject.className);
            watch.at = [&](HWND window, CreationStage creationStage) {
                ++met;
                control = IsList(subject) ? window : nullptr;
                const bool isNone = creationStage == CreationStage::Bare ||
                                    creationStage == CreationStage::BeforeNcCreate;
                for (const Export& function : Exports()) {
                    if (!function.call) {
                        continue;
                    }
                    if (isNone ||
                        (!BelongsTo(function, subject) && function.name != "EnumFamCallBack")) {
                        CallWithoutControl(function, window);
                    } else {
                        CallOnControl(function, window, kRounds);
                    }
                }
                return false;
            };
            EXPECT_NE(stage.CreateEmpty(subject.styles[0]), nullptr);
        }
        control = nullptr;
        EXPECT_GE(met, 4) << "the system's combo box may be met in a later message";
    });
}

TEST_F(EveryExport, AnswersForControlsWhoseCreationWasRefused) {
    ForEachSubject([this](const Subject& subject) {
        for (const CreationStage refused : kCreationStages) {
            Stage stage(subject);
            stage.host();
            WatchedImports::Forget();
            HWND window = nullptr;
            {
                CreationWatch watch(subject.className);
                watch.at = [&](HWND met, CreationStage creationStage) {
                    window = met;
                    return creationStage == refused;
                };
                EXPECT_EQ(stage.CreateEmpty(subject.styles[0]), nullptr);
            }
            ASSERT_NE(window, nullptr);
            CallAllWithoutControl(window);
            EXPECT_EQ(WatchedImports::Left(), "") << static_cast<int>(refused);
        }
    });
}

} // namespace
} // namespace vorn::test
