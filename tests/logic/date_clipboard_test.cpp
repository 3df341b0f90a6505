// Deleting from a date, and taking text to and from the clipboard.
#include "date/date_clipboard.h"
#include "tests/support/date_editor.h"

#include <algorithm>
#include <string>

namespace vorn::date {
namespace {

constexpr Date kChristmas = {12, 25, 1998};

Editor At(Date value, const char* picture, std::int32_t caret) {
    Editor editor(value, picture);
    editor.PutCaretAt(caret);
    return editor;
}

std::string Deleted(Date value, const char* picture, std::int32_t caret) {
    Editor editor = At(value, picture, caret);
    EXPECT_EQ(editor.Press(kDelete), kChanged);
    EXPECT_EQ(editor.entry.modified, 1);
    return editor.Shown();
}

TEST(DateDelete, RemovesTheDigitAtTheCaret) {
    EXPECT_EQ(Deleted(kChristmas, "M/d/yy", 0), "|2 /25/98");
    EXPECT_EQ(Deleted(kChristmas, "M/d/yy", 1), "1| /25/98");
    EXPECT_EQ(Deleted(kChristmas, "M/d/yy", 3), "12/|5 /98");
    EXPECT_EQ(Deleted(kChristmas, "M/d/yyyy", 7), "12/25/1|98");
    EXPECT_EQ(Deleted(kChristmas, "yyyy/M/d", 3), "199|/12/25");
}

TEST(DateDelete, LeavesTheLowestNumberOfAnEmptyField) {
    EXPECT_EQ(Deleted({3, 5, 2007}, "M/d/yy", 0), "|1 /5 /7");
    EXPECT_EQ(Deleted({3, 5, 2007}, "M/d/yy", 3), "3 /|1 /7");
    EXPECT_EQ(Deleted({3, 5, 2007}, "M/d/yy", 6), "3 /5 /|0");
    EXPECT_EQ(Deleted({3, 5, 2000}, "yyyy/M/d", 0), "|0/3 /5 ");
}

TEST(DateDelete, OfABlankLeavesTheNumber) {
    EXPECT_EQ(Deleted({3, 5, 2007}, "M/d/yy", 1), "3| /5 /7");
}

TEST(DateDelete, ForgetsTypedZeros) {
    Editor editor = At({3, 5, 2007}, "M/d/yy", 3);
    editor.Type("0");
    ASSERT_EQ(editor.Shown(), "3 /0|1/7");
    editor.Press(kLeft);
    editor.Press(kDelete);
    EXPECT_EQ(editor.Shown(), "3 /|1 /7");
}

TEST(DateDelete, StepsOverSeparators) {
    Editor editor = At(kChristmas, "M/d/yy", 2);
    EXPECT_EQ(editor.Press(kDelete), kMoved);
    EXPECT_EQ(editor.Shown(), "12/|25/98");
    EXPECT_EQ(editor.Field(), 1);
    EXPECT_EQ(editor.entry.modified, 0);
    Editor middle = At({12, 25, 1998}, "d/yy/M", 2);
    EXPECT_EQ(middle.Press(kDelete), kMoved) << "one that the caret knows nothing of";
    EXPECT_EQ(middle.Shown(), "25/|98/12");
}

TEST(DateDelete, AtTheEndBeeps) {
    Editor editor = At(kChristmas, "M/d/yy", 8);
    EXPECT_EQ(editor.Press(kDelete), kBeeped);
    editor.MakeNull();
    EXPECT_EQ(editor.Press(kDelete), kBeeped);
    EXPECT_EQ(editor.entry.date.null, 1);
    EXPECT_EQ(editor.entry.modified, 0);
}

TEST(DateBackspace, MovesAndDeletes) {
    Editor editor = At(kChristmas, "M/d/yy", 5);
    List expected = {{PlaceCaret}};
    expected.insert(expected.end(), kChanged.begin(), kChanged.end());
    EXPECT_EQ(editor.Press(kBack), expected);
    EXPECT_EQ(editor.Shown(), "12/2| /98");
    EXPECT_EQ(editor.Press(kBack), expected);
    EXPECT_EQ(editor.Shown(), "12/|1 /98") << "a day of no digits";
}

TEST(DateBackspace, PassesSeparators) {
    Editor editor = At(kChristmas, "M/d/yy", 3);
    EXPECT_EQ(editor.Press(kBack), kMoved);
    EXPECT_EQ(editor.Shown(), "12|/25/98");
    EXPECT_EQ(editor.Field(), 0);
    EXPECT_EQ(editor.entry.modified, 0);
    editor.Press(kBack);
    EXPECT_EQ(editor.Shown(), "1| /25/98");
}

TEST(DateBackspace, AtTheStartBeeps) {
    Editor editor = At(kChristmas, "M/d/yy", 0);
    EXPECT_EQ(editor.Press(kBack), kBeeped);
    EXPECT_EQ(editor.Shown(), "|12/25/98");
}

TEST(DateBackspace, MayScrollFirst) {
    Editor editor = At(kChristmas, "M/d/yy", 5);
    editor.entry.caret.firstVisible = 5;
    EXPECT_EQ(editor.Press(kBack), (List{{NotifyLeftScroll},
                                         {Repaint},
                                         {PlaceCaret},
                                         {SendChanged},
                                         {Notify, 0x400},
                                         {Repaint},
                                         {Notify, 0x300},
                                         {PlaceCaret},
                                         {PostChanged}}));
}

std::string Cleared(Date value, const char* picture, std::int32_t start, std::int32_t end) {
    std::string shown;
    for (const std::uint32_t key : {kDelete, kBack}) {
        Editor editor(value, picture);
        editor.SelectText(start, end);
        EXPECT_EQ(editor.Press(key), kChanged);
        EXPECT_TRUE(shown.empty() || shown == editor.Shown()) << "both keys do the same";
        shown = editor.Shown();
    }
    return shown;
}

TEST(DateClear, RemovesTheSelectedDigitsOfAField) {
    EXPECT_EQ(Cleared(kChristmas, "M/d/yy", 3, 5), "12/|1 /98");
    EXPECT_EQ(Cleared(kChristmas, "M/d/yy", 4, 5), "12/2| /98");
    EXPECT_EQ(Cleared(kChristmas, "M/d/yyyy", 7, 9), "12/25/1|8");
    EXPECT_EQ(Cleared(kChristmas, "M/d/yyyy", 6, 10), "12/25/|0");
    EXPECT_EQ(Cleared(kChristmas, "yyyy/M/d", 0, 4), "|0/12/25");
}

TEST(DateClear, KeepsSelectedSeparators) {
    EXPECT_EQ(Cleared(kChristmas, "M/d/yy", 1, 4), "1| /5 /98");
    EXPECT_EQ(Cleared(kChristmas, "M/d/yy", 2, 3), "12|/25/98");
    EXPECT_EQ(Cleared(kChristmas, "M/d/yy", 0, 7), "|1 /1 /8");
    EXPECT_EQ(Cleared(kChristmas, "d/yy/M", 1, 8), "2| /0/1 ");
}

TEST(DateClear, OfTheWholeTextMakesTheDateNull) {
    Editor editor(kChristmas, "M/d/yy");
    editor.SelectText(0, 8);
    editor.entry.caret.firstVisible = 3;
    EXPECT_EQ(editor.Press(kDelete), kChanged);
    EXPECT_EQ(editor.entry.date.null, 1);
    EXPECT_EQ(editor.Shown(), "|");
    EXPECT_EQ(editor.ValueText(), "");
    EXPECT_EQ(editor.Field(), 0);
    EXPECT_EQ(editor.entry.caret.firstVisible, 0);
    EXPECT_EQ(editor.entry.modified, 1);
    EXPECT_EQ(editor.Value(), kChristmas) << "kept for a step";
}

TEST(DateClear, ForgetsTypedZeros) {
    Editor editor(kChristmas, "M/d/yy");
    editor.Type("0");
    ASSERT_EQ(editor.Shown(), "0|1/25/98") << "the 0 of \"0/25/98\"";
    editor.SelectText(0, 8);
    editor.Press(kDelete);
    editor.entry.date.null = 0; // by the host
    EXPECT_EQ(editor.Text(), "1 /25/98");
}

TEST(DateClear, KeepsTheVisibleTextInTheText) {
    Editor editor(kChristmas, "M/d/yyyy");
    editor.SelectText(6, 10);
    editor.entry.caret.firstVisible = 9;
    editor.Press(kDelete);
    EXPECT_EQ(editor.Shown(), "12/25/|0");
    EXPECT_EQ(editor.entry.caret.firstVisible, 7);
}

TEST(DateClear, TakesACaretThatAHostLeftBehind) {
    Editor editor(kChristmas, "M/d/yyyy");
    editor.SelectText(0, 10);
    editor.entry.date.value.year = 7; // the text is shorter now, and all of it is selected
    edit::Actions actions;
    ClearSelection(actions, editor.entry);
    EXPECT_EQ(editor.entry.date.null, 1);
}

TEST(DateClear, WithoutASelectionDoesNothing) {
    Editor editor = At(kChristmas, "M/d/yy", 4);
    edit::Actions actions;
    ClearSelection(actions, editor.entry);
    EXPECT_EQ(actions.count, 0u);
    EXPECT_EQ(editor.Shown(), "12/2|5/98");
    EXPECT_EQ(editor.entry.modified, 0);
}

TEST(DateClipboard, KeysAskForTheClipboard) {
    Editor editor(kChristmas, "M/d/yy");
    EXPECT_EQ(editor.PressControl('C'), (List{{Copy}, {PostChanged}}));
    EXPECT_EQ(editor.PressControl(kInsert), (List{{Copy}, {PostChanged}}));
    EXPECT_EQ(editor.PressControl('X'), (List{{Cut}, {PostChanged}}));
    EXPECT_EQ(editor.PressShift(kDelete), (List{{Cut}, {PostChanged}}));
    EXPECT_EQ(editor.PressControl('V'), (List{{Paste}, {PostChanged}}));
    EXPECT_EQ(editor.PressShift(kInsert), (List{{Paste}, {PostChanged}}));
    EXPECT_EQ(editor.Shown(), "<|12>/25/98") << "the clipboard comes first";
    editor.PutCaretAt(0);
    EXPECT_EQ(editor.PressControl('C'), List{{PostChanged}}) << "nothing to copy";
    EXPECT_EQ(editor.PressShift(kDelete), List{{PostChanged}});
}

std::string Copied(const Editor& editor, std::size_t size) {
    std::vector<char> buffer(size, 'x');
    edit::CopySelected(buffer, editor.Text().c_str(), editor.entry.caret);
    return buffer.data();
}

TEST(DateClipboard, CopiesTheSelectionAsShown) {
    Editor editor({3, 5, 2007}, "M/d/yyyy");
    EXPECT_EQ(Copied(editor, 32), "3 ");
    editor.SelectText(0, 10);
    EXPECT_EQ(Copied(editor, 32), "3 /5 /2007");
    EXPECT_EQ(Copied(editor, 11), "3 /5 /2007");
    EXPECT_EQ(Copied(editor, 5), "3 /5");
    EXPECT_EQ(Copied(editor, 1), "");
    editor.SelectText(4, 8);
    EXPECT_EQ(Copied(editor, 32), " /20");
    editor.PutCaretAt(4);
    EXPECT_EQ(Copied(editor, 32), "");
    editor.SelectText(0, 10);
    editor.entry.date.null = 1;
    EXPECT_EQ(Copied(editor, 32), "");
}

// A text as a date of this layout, all zeros when it is none.
Date Whole(const char* text, const char* picture, char separator = '/', Date held = kChristmas) {
    const Editor editor(held, picture, separator);
    Date read{};
    const bool taken = ReadWholeDate(read, text, editor.entry.date, kToday);
    EXPECT_EQ(taken, read != Date{}) << text;
    return read;
}

TEST(DateWhole, ReadsTheLayoutsNumbers) {
    EXPECT_EQ(Whole("3/5/2007", "M/d/yyyy"), (Date{3, 5, 2007}));
    EXPECT_EQ(Whole("03/05/2007", "M/d/yyyy"), (Date{3, 5, 2007}));
    EXPECT_EQ(Whole("05.03.2007", "dd.MM.yyyy", '.'), (Date{3, 5, 2007}));
    EXPECT_EQ(Whole("2007-3-05", "yyyy-MM-dd", '-'), (Date{3, 5, 2007}));
    EXPECT_EQ(Whole("5/2007/3", "d/yyyy/M"), (Date{3, 5, 2007}));
    EXPECT_EQ(Whole("3/5/7", "M/d/yyyy"), (Date{3, 5, 7}));
    EXPECT_EQ(Whole("3/5/0000", "M/d/yyyy"), (Date{3, 5, 0}));
}

TEST(DateWhole, AllowsBlanksAroundNumbers) {
    EXPECT_EQ(Whole("  3/5/2007   ", "M/d/yyyy"), (Date{3, 5, 2007}));
    EXPECT_EQ(Whole("3 /5 /2007", "M/d/yyyy"), (Date{3, 5, 2007})) << "as the edit shows it";
    EXPECT_EQ(Whole("3/ 5/ 2007", "M/d/yyyy"), (Date{3, 5, 2007}));
    EXPECT_EQ(Whole("1 2/5/2007", "M/d/yyyy"), Date{});
    EXPECT_EQ(Whole("3/5/2007\t", "M/d/yyyy"), Date{});
}

TEST(DateWhole, RefusesEverythingElse) {
    for (const char* text : {"",
                             " ",
                             "3",
                             "3/5",
                             "3/5/",
                             "/5/2007",
                             "3//2007",
                             "3/5/2007/",
                             "3/5/2007x",
                             "x3/5/2007",
                             "3-5-2007",
                             "3.5.2007",
                             "3/5/20075",
                             "003/5/2007",
                             "3/005/2007",
                             "3/5/-7",
                             "+3/5/2007",
                             "March 5",
                             "3/5/2007 12:00",
                             "3 5 2007",
                             "352007"}) {
        EXPECT_EQ(Whole(text, "M/d/yyyy"), Date{}) << text;
    }
}

TEST(DateWhole, RefusesDaysThatDoNotExist) {
    EXPECT_EQ(Whole("2/31/1995", "M/d/yyyy"), Date{});
    EXPECT_EQ(Whole("2/29/2001", "M/d/yyyy"), Date{});
    EXPECT_EQ(Whole("2/29/2000", "M/d/yyyy"), (Date{2, 29, 2000}));
    EXPECT_EQ(Whole("13/1/1995", "M/d/yyyy"), Date{});
    EXPECT_EQ(Whole("0/1/1995", "M/d/yyyy"), Date{});
    EXPECT_EQ(Whole("1/0/1995", "M/d/yyyy"), Date{});
    EXPECT_EQ(Whole("9/5/1752", "M/d/yyyy"), Date{});
    EXPECT_EQ(Whole("9/14/1752", "M/d/yyyy"), (Date{9, 14, 1752}));
}

TEST(DateWhole, ReadsNumbersWithoutASeparator) {
    Editor editor(kChristmas, "M/d/yyyy");
    editor.entry.date.layout.separator = '\0';
    Date read{};
    EXPECT_TRUE(ReadWholeDate(read, "03052007", editor.entry.date, kToday));
    EXPECT_EQ(read, (Date{3, 5, 2007}));
    EXPECT_FALSE(ReadWholeDate(read, "03/05/2007", editor.entry.date, kToday));
}

TEST(DateWhole, KeepsTheCenturyOfShortYears) {
    EXPECT_EQ(Whole("3/5/07", "M/d/yy"), (Date{3, 5, 1907}));
    EXPECT_EQ(Whole("3/5/7", "M/d/yy", '/', {1, 1, 2031}), (Date{3, 5, 2007}));
    EXPECT_EQ(Whole("3/5/2007", "M/d/yy"), Date{}) << "years have two digits";
    EXPECT_EQ(Whole("2/29/00", "M/d/yy", '/', {1, 1, 2031}), (Date{2, 29, 2000}));
    EXPECT_EQ(Whole("2/29/00", "M/d/yy"), Date{}) << "1900";
    EXPECT_EQ(Whole("3/5/07", "M/d/yy", '/', {1, 1, 65535}), Date{}) << "beyond all years";
    Editor editor({0, 0, 0}, "M/d/yy");
    editor.MakeNull();
    Date read{};
    EXPECT_TRUE(ReadWholeDate(read, "3/5/07", editor.entry.date, kToday));
    EXPECT_EQ(read, (Date{3, 5, 2007})) << "today's";
}

TEST(DateWhole, LeavesFieldsThatTheLayoutLacks) {
    Editor editor(kChristmas, "M/");
    Date read{};
    EXPECT_TRUE(ReadWholeDate(read, "3//", editor.entry.date, kToday));
    EXPECT_EQ(read, (Date{3, 25, 1998}));
    EXPECT_FALSE(ReadWholeDate(read, "3/5/", editor.entry.date, kToday));
    EXPECT_FALSE(ReadWholeDate(read, "3", editor.entry.date, kToday));
}

TEST(DateWhole, ReadsBackWhatEveryLayoutWrites) {
    for (const Layout& layout : AllLayouts()) {
        for (const std::int32_t focused : {0, 1}) {
            Editor editor({3, 5, 1907}, "");
            editor.entry.date.layout = layout;
            editor.entry.date.focused = focused;
            FormatValueText(editor.entry.date);
            const std::string texts[] = {editor.Text(), editor.ValueText()};
            for (const std::string& text : texts) {
                Date read{};
                HeldDate held = editor.entry.date;
                held.value = {12, 25, 1998};
                EXPECT_TRUE(ReadWholeDate(read, text.c_str(), held, kToday)) << text;
                EXPECT_EQ(read, (Date{3, 5, 1907})) << text;
            }
        }
    }
}

List Paste(Editor& editor, const char* text) {
    edit::Actions actions;
    PasteText(actions, editor.entry, text, kToday);
    return {actions.begin(), actions.end()};
}

TEST(DatePaste, TakesADate) {
    Editor editor(kChristmas, "M/d/yyyy");
    editor.entry.date.typedZero[0] = 1;
    EXPECT_EQ(Paste(editor, " 3/5/2007"), (List{{SendChanged},
                                                {Notify, 0x400},
                                                {edit::ActionKind::Repaint},
                                                {Notify, 0x300},
                                                {PlaceCaret}}));
    EXPECT_EQ(editor.Shown(), "3 /5 /2007|");
    EXPECT_EQ(editor.Field(), 2);
    EXPECT_EQ(editor.ValueText(), "3/5/2007");
    EXPECT_EQ(editor.entry.modified, 1);
    editor.MakeNull();
    Paste(editor, "3/6/2007");
    EXPECT_EQ(editor.Shown(), "3 /6 /2007|");
}

TEST(DatePaste, RefusesOtherText) {
    Editor editor(kChristmas, "M/d/yyyy");
    for (const char* text : {"", "5", "2/30/2007", "hello"}) {
        EXPECT_EQ(Paste(editor, text), List{{Beep}});
        EXPECT_EQ(editor.Shown(), "<|12>/25/1998");
        EXPECT_EQ(editor.entry.modified, 0);
    }
    editor.MakeNull();
    EXPECT_EQ(Paste(editor, "5"), List{{Beep}});
    EXPECT_EQ(editor.entry.date.null, 1);
}

} // namespace
} // namespace vorn::date
