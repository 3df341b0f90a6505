// Caret, selection and fields of an edit, away from any date.
#include "core/edit/field_caret.h"

#include <gtest/gtest.h>
#include <ostream>
#include <vector>

namespace vorn::edit {

inline void PrintTo(const Action& action, std::ostream* out) {
    *out << "{kind " << static_cast<int>(action.kind) << ", " << action.code << "}";
}

namespace {

using enum ActionKind;
using List = std::vector<Action>;

// "ab:cd:ef xy": four fields, as a time of twelve hours has.
constexpr FieldMap kMap = {4, {0, 3, 6, 9}, 1, 11};

FieldCaret At(std::int32_t index) {
    FieldCaret caret;
    PutCaret(caret, kMap, index);
    return caret;
}

List Move(FieldCaret& caret, CaretMove move, bool extend = false) {
    Actions actions;
    MoveCaret(actions, caret, kMap, move, extend);
    return {actions.begin(), actions.end()};
}

// {start, end, caret}
std::vector<int> Places(const TextCaret& caret) {
    return {caret.selectionStart, caret.selectionEnd, caret.index};
}

TEST(TextCaret, SelectsInEitherOrderWithinTheText) {
    TextCaret caret;
    Select(caret, 5, 2, 2, 8);
    EXPECT_EQ(Places(caret), (std::vector{2, 5, 2}));
    Select(caret, -3, 99, 1000, 8);
    EXPECT_EQ(Places(caret), (std::vector{0, 8, 8}));
    Select(caret, 1, 5, -1, -4);
    EXPECT_EQ(Places(caret), (std::vector{0, 0, 0}));
    Select(caret, 70000, 70001, 70002, 80000);
    EXPECT_EQ(Places(caret), (std::vector{65535, 65535, 65535})) << "the longest text there is";
}

TEST(TextCaret, ExtendsFromWhereTheSelectionStarted) {
    TextCaret caret;
    Select(caret, 4, 4, 4, 9);
    ExtendTo(caret, 6, 9);
    EXPECT_EQ(Places(caret), (std::vector{4, 6, 6}));
    ExtendTo(caret, 3, 9);
    EXPECT_EQ(Places(caret), (std::vector{3, 4, 3})) << "over its start";
    ExtendTo(caret, 4, 9);
    EXPECT_FALSE(HasSelection(caret));
    Select(caret, 2, 5, 2, 9);
    ExtendTo(caret, 9, 9);
    EXPECT_EQ(Places(caret), (std::vector{5, 9, 9})) << "the caret was at its start";
    Select(caret, 2, 5, 7, 9);
    ExtendTo(caret, 8, 9);
    EXPECT_EQ(Places(caret), (std::vector{7, 8, 8})) << "the caret was outside";
}

TEST(TextCaret, SelectsWhatAMessageAsks) {
    const struct {
        std::uint32_t start, end;
        int selectionStart, selectionEnd, index;
    } cases[] = {
        {2, 4, 2, 4, 4},          {4, 2, 2, 4, 2},          {3, 3, 3, 3, 3},
        {0, 0xFFFFFFFF, 0, 6, 6}, {2, 0xFFFF, 2, 6, 6},     {0x10002, 0x10004, 6, 6, 6},
        {0xFFFFFFFE, 1, 1, 6, 1}, {7, 9, 6, 6, 6},          {0x80000000, 0x7FFFFFFF, 6, 6, 6},
        {0xFFFFFFFF, 0, 5, 5, 5}, {0xFFFFFFFF, 3, 5, 5, 5},
    };
    for (const auto& [start, end, selectionStart, selectionEnd, index] : cases) {
        TextCaret caret = {1, 5, 5, 0};
        SelectAsAsked(caret, start, end, 6);
        EXPECT_EQ(caret.selectionStart, selectionStart) << start << " " << end;
        EXPECT_EQ(caret.selectionEnd, selectionEnd) << start << " " << end;
        EXPECT_EQ(caret.index, index) << start << " " << end;
    }
    TextCaret caret;
    SelectAsAsked(caret, 3, 9, 0);
    EXPECT_EQ(caret.selectionEnd, 0) << "nothing to select";
}

TEST(TextCaret, StaysInATextThatBecameShorter) {
    TextCaret caret;
    Select(caret, 3, 9, 9, 10);
    caret.firstVisible = 8;
    KeepInText(caret, 5);
    EXPECT_EQ(Places(caret), (std::vector{3, 5, 5}));
    EXPECT_EQ(caret.firstVisible, 5);
}

TEST(FieldMap, TellsFieldsAndSeparators) {
    const int fields[] = {0, 0, 0, 1, 1, 1, 2, 2, 2, 3, 3, 3};
    for (int index = 0; index <= 11; ++index) {
        EXPECT_EQ(FieldAt(kMap, index), fields[index]) << index;
        const int before = index == 2 ? 0 : index == 5 ? 1 : index == 8 ? 2 : -1;
        EXPECT_EQ(FieldBeforeSeparator(kMap, index), before) << index;
    }
    EXPECT_EQ(FieldEnd(kMap, 0), 2);
    EXPECT_EQ(FieldEnd(kMap, 2), 8);
    EXPECT_EQ(FieldEnd(kMap, 3), 11);
}

TEST(FieldMap, WithoutSeparatorsHasFieldsSideBySide) {
    constexpr FieldMap map = {3, {0, 2, 4}, 0, 6};
    EXPECT_EQ(FieldEnd(map, 0), 2);
    for (int index = 0; index <= 6; ++index) {
        EXPECT_EQ(FieldBeforeSeparator(map, index), kNoField);
    }
}

TEST(FieldMap, OfAnEmptyTextHasNoSeparator) {
    constexpr FieldMap map = {3, {0, 1, 2}, 1, 0};
    EXPECT_EQ(FieldBeforeSeparator(map, 0), kNoField);
}

TEST(FieldMap, MayHaveAFieldWithoutRoom) {
    constexpr FieldMap map = {3, {0, 8, 8}, 1, 10};
    EXPECT_EQ(FieldEnd(map, 1), 8);
    EXPECT_EQ(FieldBeforeSeparator(map, 7), 1);
    EXPECT_EQ(FieldAt(map, 7), 0);
    EXPECT_EQ(FieldAt(map, 8), 2);
    FieldCaret caret;
    PutCaret(caret, map, 7);
    Actions actions;
    MoveCaret(actions, caret, map, CaretMove::Right);
    EXPECT_EQ(caret.field, 2) << "passed";
    MoveCaret(actions, caret, map, CaretMove::Left);
    EXPECT_EQ(caret.field, 0);
}

TEST(FieldCaret, SelectsAField) {
    FieldCaret caret;
    SelectField(caret, kMap, 1);
    EXPECT_EQ(Places(caret), (std::vector{3, 5, 3}));
    EXPECT_EQ(caret.field, 1);
    SelectField(caret, kMap, 3);
    EXPECT_EQ(Places(caret), (std::vector{9, 11, 9}));
    EXPECT_EQ(caret.field, 3);
}

TEST(FieldCaret, WalksThroughTheFields) {
    const int fieldsAt[] = {0, 0, 0, 1, 1, 1, 2, 2, 2, 3, 3, 3};
    FieldCaret caret = At(0);
    for (int index = 1; index <= 11; ++index) {
        EXPECT_EQ(Move(caret, CaretMove::Right), List{{PlaceCaret}});
        EXPECT_EQ(Places(caret), (std::vector{index, index, index}));
        EXPECT_EQ(caret.field, fieldsAt[index]) << index;
    }
    EXPECT_EQ(Move(caret, CaretMove::Right), List{{Beep}});
    EXPECT_EQ(caret.index, 11);
    for (int index = 10; index >= 0; --index) {
        EXPECT_EQ(Move(caret, CaretMove::Left), List{{PlaceCaret}});
        EXPECT_EQ(caret.index, index);
        EXPECT_EQ(caret.field, fieldsAt[index]) << index;
    }
    EXPECT_EQ(Move(caret, CaretMove::Left), List{{Beep}});
    EXPECT_EQ(caret.index, 0);
}

TEST(FieldCaret, DropsTheSelectionWithARepaint) {
    for (const CaretMove move :
         {CaretMove::Left, CaretMove::Right, CaretMove::Home, CaretMove::End}) {
        FieldCaret caret = At(4);
        Select(caret, 3, 5, 4, kMap.length);
        EXPECT_EQ(Move(caret, move), (List{{Repaint}, {PlaceCaret}}));
        EXPECT_FALSE(HasSelection(caret));
    }
}

TEST(FieldCaret, BeyondTheEndsLeavesTheSelection) {
    FieldCaret caret;
    SelectField(caret, kMap, 0);
    EXPECT_EQ(Move(caret, CaretMove::Left), List{{Beep}});
    EXPECT_EQ(Places(caret), (std::vector{0, 2, 0}));
    Select(caret, 9, 11, 11, kMap.length);
    EXPECT_EQ(Move(caret, CaretMove::Right), List{{Beep}});
    EXPECT_EQ(Places(caret), (std::vector{9, 11, 11}));
}

TEST(FieldCaret, HomeIsTheFirstVisibleCharacter) {
    FieldCaret caret = At(10);
    caret.firstVisible = 4;
    EXPECT_EQ(Move(caret, CaretMove::Home), List{{PlaceCaret}});
    EXPECT_EQ(caret.index, 4);
    EXPECT_EQ(caret.field, 0) << "though it is out of view";
    EXPECT_EQ(caret.firstVisible, 4);
    EXPECT_EQ(Move(caret, CaretMove::End), List{{PlaceCaret}});
    EXPECT_EQ(caret.index, 11);
    EXPECT_EQ(caret.field, 3);
}

TEST(FieldCaret, ScrollsLeftInAFormOfItsOwn) {
    FieldCaret caret = At(4);
    caret.firstVisible = 4;
    EXPECT_EQ(Move(caret, CaretMove::Left), (List{{NotifyLeftScroll}, {Repaint}, {PlaceCaret}}));
    EXPECT_EQ(caret.firstVisible, 3);
    EXPECT_EQ(Move(caret, CaretMove::Left, true),
              (List{{NotifyLeftScroll}, {Repaint}, {PlaceCaret}}));
    EXPECT_EQ(caret.firstVisible, 2);
}

// A caret left of what is visible is possible when a host selects.
TEST(FieldCaret, ScrollsAfterAMoveToTheRightInTheUsualForm) {
    FieldCaret caret = At(1);
    caret.firstVisible = 6;
    EXPECT_EQ(Move(caret, CaretMove::Right), (List{{Notify, 0x601}, {Repaint}, {PlaceCaret}}));
    EXPECT_EQ(caret.firstVisible, 2);
    EXPECT_EQ(Move(caret, CaretMove::Right), List{{PlaceCaret}}) << "in view now";
}

TEST(FieldCaret, ExtendsOverSeparatorsAndFields) {
    FieldCaret caret = At(4);
    EXPECT_EQ(Move(caret, CaretMove::Right, true), (List{{Repaint}, {PlaceCaret}}));
    Move(caret, CaretMove::Right, true);
    EXPECT_EQ(Places(caret), (std::vector{4, 6, 6}));
    EXPECT_EQ(caret.field, 2);
    Move(caret, CaretMove::Home, true);
    EXPECT_EQ(Places(caret), (std::vector{0, 4, 0}));
    EXPECT_EQ(caret.field, 0);
    EXPECT_EQ(Move(caret, CaretMove::Left, true), List{{Beep}});
    EXPECT_EQ(Places(caret), (std::vector{0, 4, 0}));
    Move(caret, CaretMove::End, true);
    EXPECT_EQ(Places(caret), (std::vector{4, 11, 11}));
    EXPECT_EQ(caret.field, 3);
    EXPECT_EQ(Move(caret, CaretMove::Right, true), List{{Beep}});
}

TEST(FieldCaret, ExtendingToNothingRepaintsWhatWasSelected) {
    FieldCaret caret = At(4);
    Move(caret, CaretMove::Right, true);
    EXPECT_EQ(Move(caret, CaretMove::Left, true), (List{{Repaint}, {PlaceCaret}}));
    EXPECT_FALSE(HasSelection(caret));
    EXPECT_EQ(Move(caret, CaretMove::End), List{{PlaceCaret}});
    EXPECT_EQ(Move(caret, CaretMove::End, true), List{{PlaceCaret}}) << "already there";
}

} // namespace
} // namespace vorn::edit
