// The other keys of a time edit, its focus, and hosts that change what is edited.
#include "tests/support/time_editor.h"

namespace vorn::timeedit {
namespace {

constexpr Time kTea = {16, 5, 30};

TEST(TimeKeys, RefusedByTheHostBeepAndDoNothing) {
    TimeEditor editor(kTea, TwelveHours());
    for (const std::uint32_t code : {std::uint32_t{'1'}, kUp, kDelete, kBack, kLeft, kHome}) {
        EXPECT_EQ(editor.Run({code}, false), (List{{Beep}})) << code;
    }
    EXPECT_EQ(editor.Shown(), "<|04>:05:30 PM");
    EXPECT_EQ(editor.entry.modified, 0);
}

TEST(TimeKeys, WithAltDoNothing) {
    TimeEditor editor(kTea, TwelveHours());
    EXPECT_EQ(editor.Run({kUp, false, true}), List{});
    EXPECT_EQ(editor.Value(), kTea);
}

TEST(TimeKeys, InsertIsTheSystems) {
    TimeEditor editor(kTea, TwelveHours());
    EXPECT_EQ(editor.Press(kInsert), (List{{PassOn}, {PostChanged}}));
}

TEST(TimeKeys, WalkThroughTheFields) {
    TimeEditor editor(kTea, TwelveHours());
    EXPECT_EQ(editor.Press(kHome), kMovedAndRepainted);
    std::string fields;
    for (int index = 0; index < 11; ++index) {
        fields += std::to_string(editor.Field());
        EXPECT_EQ(editor.Press(index % 2 == 0 ? kRight : kSpace), kMoved);
    }
    fields += std::to_string(editor.Field());
    EXPECT_EQ(fields, "000111222333") << "a separator is the field's in front of it";
    EXPECT_EQ(editor.Press(kRight), kBeeped);
    for (int index = 0; index < 11; ++index) {
        EXPECT_EQ(editor.Press(kLeft), kMoved);
    }
    EXPECT_EQ(editor.Field(), 0);
    EXPECT_EQ(editor.Press(kLeft), kBeeped);
    EXPECT_EQ(editor.Press(kEnd), kMoved);
    EXPECT_EQ(editor.Shown(), "04:05:30 PM|");
    EXPECT_EQ(editor.Field(), 3);
    EXPECT_EQ(editor.Value(), kTea);
}

TEST(TimeKeys, PassASeparator) {
    for (const std::uint32_t code : {66u, 110u, 186u, 190u, 0u, 112u}) {
        TimeEditor editor(kTea, TwelveHours());
        EXPECT_EQ(editor.Press(code), kBeeped) << "inside a field";
        for (const std::int32_t separator : {2, 5, 8}) {
            editor.PutCaretAt(separator);
            EXPECT_EQ(editor.Press(code), kMoved);
            editor.PutCaretAt(separator);
            EXPECT_EQ(editor.PressShift(code), kMoved) << "a colon may need Shift";
            EXPECT_EQ(editor.entry.caret.index, separator + 1);
        }
        EXPECT_EQ(editor.Value(), kTea);
    }
}

TEST(TimeKeys, ExtendTheSelection) {
    TimeEditor editor(kTea, TwelveHours());
    editor.PutCaretAt(3);
    EXPECT_EQ(editor.PressShift(kRight), kMovedAndRepainted);
    EXPECT_EQ(editor.Shown(), "04:<0|>5:30 PM");
    editor.PressShift(kEnd);
    EXPECT_EQ(editor.Shown(), "04:<05:30 PM|>");
    editor.PressShift(kHome);
    EXPECT_EQ(editor.Shown(), "<|04:>05:30 PM");
}

TEST(TimeFocus, WritesTwoDigitsAndSelectsTheHour) {
    Format format = TwelveHours();
    format.leadingZero = 0;
    TimeEditor editor(kTea, format);
    EXPECT_EQ(editor.Shown(), "<|04>:05:30 PM");
    editor.Press(kEnd);
    LeaveFocus(editor.entry);
    EXPECT_EQ(editor.Shown(), "4:05:30 PM|");
    EnterFocus(editor.entry);
    EXPECT_EQ(editor.Shown(), "<|04>:05:30 PM");
    EXPECT_EQ(editor.Field(), 0);
    editor.MakeNull();
    EnterFocus(editor.entry);
    EXPECT_EQ(editor.Shown(), "|");
    EXPECT_EQ(editor.Field(), 0);
}

// Everything may have changed between two keys.
TEST(TimeKeys, BringTheCaretIntoTheText) {
    TimeEditor editor(kTea, TwelveHours(true, "12345678", "12345678"));
    editor.Press(kEnd);
    editor.entry.time.format = TwentyFourHours(false);
    EXPECT_EQ(editor.Press(kUp), kStepped);
    EXPECT_EQ(editor.Shown(), "16:<|06>");
    editor.SelectText(0, 5);
    editor.entry.time.null = 1;
    EXPECT_EQ(editor.Press(kDelete), kBeeped);
    EXPECT_EQ(editor.Shown(), "|");
}

} // namespace
} // namespace vorn::timeedit
