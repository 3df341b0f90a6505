// Deleting from a time, and the clipboard.
#include "tests/support/time_editor.h"
#include "timeedit/time_clipboard.h"

namespace vorn::timeedit {
namespace {

TEST(TimeDelete, MakesZeros) {
    TimeEditor editor({12, 34, 56}, TwentyFourHours());
    editor.PutCaretAt(0);
    EXPECT_EQ(editor.Press(kDelete), kChanged);
    EXPECT_EQ(editor.Shown(), "|02:34:56");
    editor.PutCaretAt(4);
    editor.Press(kDelete);
    EXPECT_EQ(editor.Shown(), "02:3|0:56");
    EXPECT_EQ(editor.Value(), (Time{2, 30, 56}));
}

TEST(TimeDelete, StepsOverSeparatorsAndSuffix) {
    TimeEditor editor({12, 34, 56}, TwelveHours());
    for (const std::int32_t index : {2, 5, 8, 9, 10}) {
        editor.PutCaretAt(index);
        EXPECT_EQ(editor.Press(kDelete), kMoved) << index;
        EXPECT_EQ(editor.entry.caret.index, index + 1);
    }
    EXPECT_EQ(editor.Press(kDelete), kBeeped) << "at the end";
    EXPECT_EQ(editor.entry.modified, 0);
}

TEST(TimeDelete, BackspaceGoesThroughTheText) {
    TimeEditor editor({22, 34, 56}, TwelveHours());
    editor.Press(kEnd);
    for (const char* shown : {"10:34:56 P|M", "10:34:56 |PM", "10:34:56| PM"}) {
        EXPECT_EQ(editor.Press(kBack), kMoved);
        EXPECT_EQ(editor.Shown(), shown);
    }
    const List changed = {{PlaceCaret},    {SendChanged}, {Notify, 0x400}, {Repaint},
                          {Notify, 0x300}, {PlaceCaret},  {PostChanged}};
    EXPECT_EQ(editor.Press(kBack), changed);
    EXPECT_EQ(editor.Shown(), "10:34:5|0 PM");
    EXPECT_EQ(editor.Press(kBack), changed);
    EXPECT_EQ(editor.Shown(), "10:34:|00 PM");
    EXPECT_EQ(editor.Press(kBack), kMoved) << "the separator stays";
    EXPECT_EQ(editor.Shown(), "10:34|:00 PM");
    editor.Press(kHome);
    EXPECT_EQ(editor.Press(kBack), kBeeped);
}

TEST(TimeDelete, LeavesThe12HourFormItsLowestHour) {
    TimeEditor editor({12, 34, 56}, TwelveHours());
    editor.PutCaretAt(2);
    editor.Press(kBack);
    EXPECT_EQ(editor.Shown(), "1|0:34:56 PM");
    editor.Press(kBack);
    EXPECT_EQ(editor.Shown(), "|01:34:56 PM");
    EXPECT_EQ(editor.Value(), (Time{13, 34, 56}));
}

TEST(TimeDelete, OfASelection) {
    for (const std::uint32_t key : {kDelete, kBack}) {
        TimeEditor editor({12, 34, 56}, TwentyFourHours());
        editor.SelectText(1, 4);
        EXPECT_EQ(editor.Press(key), kChanged);
        EXPECT_EQ(editor.Shown(), "1|0:04:56");
        editor.SelectText(2, 3);
        EXPECT_EQ(editor.Press(key), kChanged);
        EXPECT_EQ(editor.Shown(), "10|:04:56") << "a separator stays";
    }
}

TEST(TimeDelete, OfTheSuffixIsTheMorning) {
    TimeEditor editor({22, 34, 56}, TwelveHours());
    editor.SelectText(9, 10);
    EXPECT_EQ(editor.Press(kDelete), kChanged);
    EXPECT_EQ(editor.Shown(), "10:34:56 |PM") << "not all of it";
    editor.SelectText(9, 11);
    EXPECT_EQ(editor.Press(kDelete), kChanged);
    EXPECT_EQ(editor.Shown(), "10:34:56 |AM");
    EXPECT_EQ(editor.Value(), (Time{10, 34, 56}));
    EXPECT_EQ(editor.entry.time.am, 1);
    TimeEditor odd({40, 34, 56}, TwelveHours());
    odd.SelectText(7, 11);
    odd.Press(kDelete);
    EXPECT_EQ(odd.Shown(), "12:34:5|0 AM") << "the 40 became 12, the hours' last";
}

TEST(TimeDelete, OfAllIsNull) {
    TimeEditor editor({22, 34, 56}, TwelveHours());
    editor.SelectText(0, 11);
    EXPECT_EQ(editor.Press(kDelete), kChanged);
    EXPECT_EQ(editor.Shown(), "|");
    EXPECT_EQ(editor.entry.time.null, 1);
    EXPECT_EQ(editor.Value(), (Time{22, 34, 56})) << "to step from";
    EXPECT_EQ(editor.Press(kDelete), kBeeped);
    EXPECT_EQ(editor.Press(kBack), kBeeped);
}

TEST(TimeClear, NeedsASelectionInTheText) {
    TimeEditor editor({22, 34, 56}, TwentyFourHours());
    editor.PutCaretAt(3);
    edit::Actions actions;
    ClearSelection(actions, editor.entry);
    EXPECT_EQ(actions.count, 0u);
    editor.entry.caret.selectionStart = 20; // from a text that was longer
    editor.entry.caret.selectionEnd = 40;
    ClearSelection(actions, editor.entry);
    EXPECT_EQ(actions.count, 0u);
    EXPECT_EQ(editor.Value(), (Time{22, 34, 56}));
}

TEST(TimeCopy, IsTheSelection) {
    TimeEditor editor({22, 34, 56}, TwelveHours());
    editor.SelectText(3, 11);
    char text[kValueTextSize];
    edit::CopySelected(text, editor.entry.time.valueText, editor.entry.caret);
    EXPECT_STREQ(text, "34:56 PM");
    editor.MakeNull();
    EXPECT_EQ(editor.PressControl('C'), (List{{PostChanged}})) << "nothing to copy";
    editor = TimeEditor({22, 34, 56}, TwelveHours());
    EXPECT_EQ(editor.PressControl('C'), (List{{Copy}, {PostChanged}}));
    EXPECT_EQ(editor.PressControl(kInsert), (List{{Copy}, {PostChanged}}));
    EXPECT_EQ(editor.PressControl('X'), (List{{Cut}, {PostChanged}}));
    EXPECT_EQ(editor.PressShift(kDelete), (List{{Cut}, {PostChanged}}));
    EXPECT_EQ(editor.PressControl('V'), (List{{Paste}, {PostChanged}}));
    EXPECT_EQ(editor.PressShift(kInsert), (List{{Paste}, {PostChanged}}));
}

constexpr Time kRefused = {1, 2, 3};

Time Pasted(const char* text, const Format& format) {
    TimeEditor editor(kRefused, format);
    edit::Actions actions;
    PasteText(actions, editor.entry, text);
    const List heard = {actions.begin(), actions.end()};
    if (editor.Value() == kRefused) {
        EXPECT_EQ(heard, (List{{Beep}})) << text;
        EXPECT_EQ(editor.entry.modified, 0);
    } else {
        List changed = kChanged;
        changed.pop_back();
        EXPECT_EQ(heard, changed) << text;
        EXPECT_EQ(editor.entry.caret.index, editor.Text().size());
        EXPECT_EQ(editor.entry.modified, 1);
    }
    return editor.Value();
}

TEST(TimePaste, TakesTimesInEitherForm) {
    for (const Format& format : {TwelveHours(), TwelveHours(false)}) {
        EXPECT_EQ(Pasted("2:05:09 PM", format), (Time{14, 5, 9}));
        EXPECT_EQ(Pasted("02:05pm", format), (Time{14, 5, 0}));
        EXPECT_EQ(Pasted(" 12 : 05 : 09 AM ", format), (Time{0, 5, 9}));
        EXPECT_EQ(Pasted("12:05 PM", format), (Time{12, 5, 0}));
        EXPECT_EQ(Pasted("14:05:09", format), (Time{14, 5, 9})) << "no suffix: 24 hours";
        EXPECT_EQ(Pasted("0:00", format), (Time{0, 0, 0}));
        EXPECT_EQ(Pasted("23:59:59", format), (Time{23, 59, 59}));
    }
}

TEST(TimePaste, RefusesEverythingElse) {
    for (const char* text : {"",       " ",        "7",        "7:",      ":7",
                             "7:8:",   "7:8:9:",   "24:00",    "7:60",    "7:08:60",
                             "007:08", "7:008",    "7.08",     "-7:08",   "7:08x",
                             "7:08 P", "7:08 AMs", "13:08 PM", "0:08 AM", "7:08:09 AM PM",
                             "AM",     "7 AM"}) {
        EXPECT_EQ(Pasted(text, TwelveHours()), kRefused) << text;
    }
    EXPECT_EQ(Pasted("7:08 PM", TwentyFourHours()), kRefused) << "no texts there";
}

TEST(TimePaste, EndsANullTime) {
    TimeEditor editor(kRefused, TwentyFourHours());
    editor.MakeNull();
    edit::Actions actions;
    PasteText(actions, editor.entry, "7:08");
    EXPECT_EQ(editor.Shown(), "07:08:00|");
    EXPECT_EQ(editor.entry.time.null, 0);
}

// What is copied can be pasted.
TEST(TimePaste, TakesEveryValueText) {
    Format points = TwelveHours(true, "a. m.", "p. m.");
    points.separator = '.';
    for (const Format& format : {TwelveHours(), TwentyFourHours(), points}) {
        for (unsigned seconds = 0; seconds < 86400; seconds += 61) {
            const Time time = {static_cast<std::uint16_t>(seconds / 3600),
                               static_cast<std::uint16_t>(seconds / 60 % 60),
                               static_cast<std::uint16_t>(seconds % 60)};
            Time read;
            ASSERT_TRUE(ReadWholeTime(read, Held(time, format).valueText, format));
            ASSERT_EQ(read, time);
        }
    }
}

} // namespace
} // namespace vorn::timeedit
