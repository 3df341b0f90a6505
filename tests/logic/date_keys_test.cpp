// The keys of the date edit from end to end.
#include "tests/support/date_editor.h"

namespace vorn::date {
namespace {

constexpr Date kChristmas = {12, 25, 1998};

TEST(DateKeys, AreRefusedWhenTheHostSaysNo) {
    for (std::uint32_t code = 0; code < 256; ++code) {
        Editor editor(kChristmas, "M/d/yy");
        EXPECT_EQ(editor.Run({code}, false), List{{Beep}});
        EXPECT_EQ(editor.Shown(), "<|12>/25/98");
        EXPECT_EQ(editor.entry.modified, 0);
    }
}

TEST(DateKeys, AreIgnoredWithAlt) {
    for (const std::uint32_t code : {kBack, kUp, kDelete, kLeft, 49u, 65u}) {
        Editor editor(kChristmas, "M/d/yy");
        EXPECT_EQ(editor.Run({code, false, true}), List{});
        EXPECT_EQ(editor.Run({code, true, true}), List{});
        EXPECT_EQ(editor.Shown(), "<|12>/25/98");
    }
}

TEST(DateKeys, InsertGoesToTheSystem) {
    Editor editor(kChristmas, "M/d/yy");
    EXPECT_EQ(editor.Press(kInsert), (List{{PassOn}, {PostChanged}}));
}

TEST(DateKeys, MoveTheCaret) {
    Editor editor(kChristmas, "M/d/yy");
    EXPECT_EQ(editor.Press(kRight), kMovedAndRepainted);
    EXPECT_EQ(editor.Shown(), "1|2/25/98");
    EXPECT_EQ(editor.Press(kSpace), kMoved);
    EXPECT_EQ(editor.Field(), 0);
    EXPECT_EQ(editor.Press(kSpace), kMoved);
    EXPECT_EQ(editor.Shown(), "12/|25/98");
    EXPECT_EQ(editor.Field(), 1);
    EXPECT_EQ(editor.Press(kLeft), kMoved);
    EXPECT_EQ(editor.Shown(), "12|/25/98");
    EXPECT_EQ(editor.Field(), 0);
    EXPECT_EQ(editor.Press(kEnd), kMoved);
    EXPECT_EQ(editor.Shown(), "12/25/98|");
    EXPECT_EQ(editor.Field(), 2);
    EXPECT_EQ(editor.Press(kRight), kBeeped);
    EXPECT_EQ(editor.Press(kHome), kMoved);
    EXPECT_EQ(editor.Shown(), "|12/25/98");
    EXPECT_EQ(editor.Press(kLeft), kBeeped);
    EXPECT_EQ(editor.entry.modified, 0);
    EXPECT_EQ(editor.Value(), kChristmas);
}

TEST(DateKeys, LeftScrollsInItsOwnForm) {
    Editor editor(kChristmas, "M/d/yy");
    editor.PutCaretAt(4);
    editor.entry.caret.firstVisible = 4;
    EXPECT_EQ(editor.Press(kLeft),
              (List{{NotifyLeftScroll}, {Repaint}, {PlaceCaret}, {PostChanged}}));
    editor.entry.caret.firstVisible = 7;
    EXPECT_EQ(editor.Press(kRight),
              (List{{Notify, 0x601}, {Repaint}, {PlaceCaret}, {PostChanged}}));
}

TEST(DateKeys, ExtendTheSelection) {
    Editor editor(kChristmas, "M/d/yy");
    editor.PutCaretAt(3);
    EXPECT_EQ(editor.PressShift(kRight), kMovedAndRepainted);
    EXPECT_EQ(editor.PressShift(kRight), kMovedAndRepainted);
    EXPECT_EQ(editor.Shown(), "12/<25|>/98");
    editor.PressShift(kEnd);
    EXPECT_EQ(editor.Shown(), "12/<25/98|>");
    EXPECT_EQ(editor.Field(), 2);
    EXPECT_EQ(editor.PressShift(kRight), kBeeped);
    editor.PressShift(kHome);
    EXPECT_EQ(editor.Shown(), "<|12/>25/98");
    EXPECT_EQ(editor.PressShift(kLeft), kBeeped);
    EXPECT_EQ(editor.Shown(), "<|12/>25/98");
}

// A key without a use, such as the separator's own, whatever its code.
TEST(DateKeys, PassASeparator) {
    for (const std::uint32_t code : {65u, 110u, 111u, 191u, 0u, 112u}) {
        Editor editor(kChristmas, "M/d/yy");
        EXPECT_EQ(editor.Press(code), kBeeped) << "inside a field";
        EXPECT_EQ(editor.Shown(), "<|12>/25/98");
        for (const std::int32_t separator : {2, 5}) {
            editor.PutCaretAt(separator);
            EXPECT_EQ(editor.Press(code), kMoved);
            EXPECT_EQ(editor.entry.caret.index, separator + 1);
            editor.PutCaretAt(separator);
            EXPECT_EQ(editor.PressShift(code), kMoved) << "some need Shift";
            EXPECT_EQ(editor.PressControl(code), kBeeped);
        }
        editor.Press(kEnd);
        EXPECT_EQ(editor.Press(code), kBeeped);
        EXPECT_EQ(editor.Value(), kChristmas);
    }
}

TEST(DateKeys, BeepInANullDate) {
    Editor editor(kChristmas, "M/d/yy");
    editor.MakeNull();
    for (const std::uint32_t code : {kLeft, kRight, kSpace, kBack, kDelete, 65u}) {
        EXPECT_EQ(editor.Press(code), kBeeped) << code;
    }
    EXPECT_EQ(editor.Press(kHome), kMoved);
    EXPECT_EQ(editor.Press(kEnd), kMoved);
    EXPECT_EQ(editor.Shown(), "|");
    EXPECT_EQ(editor.entry.date.null, 1);
}

TEST(DateKeys, DigitsOfBothPadsAreTheSame) {
    for (std::uint32_t digit = 0; digit <= 9; ++digit) {
        Editor main(kChristmas, "d/M/yy");
        Editor numeric(kChristmas, "d/M/yy");
        EXPECT_EQ(main.Press(48 + digit), kChanged);
        EXPECT_EQ(numeric.Press(96 + digit), kChanged);
        EXPECT_EQ(main.Shown(), numeric.Shown());
        EXPECT_EQ(main.Value().day, digit == 0 ? 1 : digit);
        EXPECT_EQ(main.PressShift(48 + digit), kBeeped) << "another character";
        EXPECT_EQ(main.PressControl(48 + digit), kBeeped);
    }
}

// Every index of every layout: the separators are where the text has them, and the walk visits the
// fields in order.
TEST(DateKeys, WalkThroughEveryLayout) {
    for (const Layout& layout : AllLayouts()) {
        Editor editor({3, 5, 2007}, "");
        editor.entry.date.layout = layout;
        EnterFocus(editor.entry);
        editor.Press(kHome);
        const std::string text = editor.Text();
        std::int32_t field = 0;
        for (std::size_t index = 0; index < text.size(); ++index) {
            const bool separator = text[index] == '/';
            const bool known = layout.kinds[1] != kYear || index > 2;
            EXPECT_EQ(editor.Press('A'), separator && known ? kMoved : kBeeped) << text << index;
            if (!separator || !known) {
                editor.Press(kRight);
            } else {
                field = layout.kinds[1] == kYear ? 2 : field + 1;
            }
            EXPECT_EQ(editor.entry.caret.index, index + 1);
            EXPECT_EQ(editor.Field(), field) << text << index;
        }
        EXPECT_EQ(editor.Field(), 2);
        EXPECT_EQ(editor.Press(kRight), kBeeped);
        for (std::size_t index = text.size(); index > 0; --index) {
            EXPECT_EQ(editor.Press(kLeft), kMoved);
        }
        EXPECT_EQ(editor.Field(), 0);
        EXPECT_EQ(editor.Press(kLeft), kBeeped);
        EXPECT_EQ(editor.Value(), (Date{3, 5, 2007}));
    }
}

TEST(DateFocus, SelectsTheFirstField) {
    Editor editor(kChristmas, "M/d/yy");
    editor.Press(kEnd);
    editor.entry.date.typedZero[1] = 1;
    LeaveFocus(editor.entry);
    EnterFocus(editor.entry);
    EXPECT_EQ(editor.Shown(), "<|12>/25/98");
    EXPECT_EQ(editor.Field(), 0);
    EXPECT_EQ(editor.entry.date.focused, 1);
    EXPECT_EQ(editor.entry.date.typedZero[1], 0);
    editor.MakeNull();
    EnterFocus(editor.entry);
    EXPECT_EQ(editor.Shown(), "|");
}

TEST(DateFocus, LeavingKeepsTheCaretInTheText) {
    Editor editor({3, 5, 2007}, "M/d/yy");
    editor.SelectText(3, 7);
    LeaveFocus(editor.entry);
    EXPECT_EQ(editor.Shown(), "3/5</7|>");
    EXPECT_EQ(editor.entry.date.focused, 0);
}

// Separators that read as something else: nothing is promised but to stay in the text.
TEST(DateKeys, StandAnySeparator) {
    for (const char separator : {'\0', ' ', '5', '-', '+'}) {
        Editor editor(kChristmas, "", separator);
        editor.entry.date.layout.kinds[0] = kDay;
        editor.entry.date.layout.kinds[1] = kMonth;
        editor.entry.date.layout.kinds[2] = kYear;
        EnterFocus(editor.entry);
        for (const char* digit : {"1", "2", "0", "9", "3", "1", "9", "9", "8"}) {
            editor.Type(digit);
            EXPECT_TRUE(IsValidDate(editor.Value()));
            EXPECT_LE(editor.entry.caret.index, editor.Text().size());
        }
        EXPECT_EQ(editor.Press(kEnd), kMoved);
        EXPECT_EQ(editor.Press(kRight), kBeeped);
    }
}

} // namespace
} // namespace vorn::date
