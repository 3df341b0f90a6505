// Which key is for what, in an edit of fields.
#include "core/edit/field_keys.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>

namespace vorn::edit {
namespace {

constexpr Key Shift(std::uint32_t code) {
    return {code, false, false, true};
}
constexpr Key Control(std::uint32_t code) {
    return {code, true, false, false};
}
constexpr Key Alt(std::uint32_t code) {
    return {code, false, true, false};
}

TEST(FieldKeys, TabMovesTheFocusUnlessCtrlOrAltIsHeld) {
    for (const bool readOnly : {false, true}) {
        EXPECT_EQ(RouteKey({9}, readOnly), KeyRoute::FocusNext);
        EXPECT_EQ(RouteKey(Shift(9), readOnly), KeyRoute::FocusPrevious);
        EXPECT_EQ(RouteKey(Control(9), readOnly), KeyRoute::PassOn);
        EXPECT_EQ(RouteKey(Alt(9), readOnly), KeyRoute::PassOn);
        EXPECT_EQ(RouteKey({9, true, false, true}, readOnly), KeyRoute::PassOn);
    }
}

TEST(FieldKeys, EveryOtherKeyAsksOrIsRefused) {
    const std::uint32_t passedOn[] = {16, 17, 18, 20, 27, 44, 144};
    for (std::uint32_t code = 0; code < 256; ++code) {
        if (code == 9) {
            continue;
        }
        const bool passes = std::count(std::begin(passedOn), std::end(passedOn), code) != 0;
        for (const Key& key : {Key{code}, Shift(code), Control(code), Alt(code)}) {
            EXPECT_EQ(RouteKey(key, false), passes ? KeyRoute::PassOn : KeyRoute::Ask) << code;
            EXPECT_EQ(RouteKey(key, true), passes ? KeyRoute::PassOn : KeyRoute::Refuse) << code;
        }
    }
}

KeyCommand PlainCommandOf(std::uint32_t code) {
    switch (code) {
    case 8:
        return KeyCommand::Back;
    case 32:
    case 39:
        return KeyCommand::Right;
    case 35:
        return KeyCommand::End;
    case 36:
        return KeyCommand::Home;
    case 37:
        return KeyCommand::Left;
    case 38:
        return KeyCommand::StepUp;
    case 40:
        return KeyCommand::StepDown;
    case 45:
        return KeyCommand::PassOn;
    case 46:
        return KeyCommand::Delete;
    default:
        break;
    }
    const bool digit = (code >= 48 && code <= 57) || (code >= 96 && code <= 105);
    return digit ? KeyCommand::Digit : KeyCommand::StepOver;
}

KeyCommand ShiftCommandOf(std::uint32_t code) {
    switch (code) {
    case 35:
        return KeyCommand::ExtendEnd;
    case 36:
        return KeyCommand::ExtendHome;
    case 37:
        return KeyCommand::ExtendLeft;
    case 39:
        return KeyCommand::ExtendRight;
    case 45:
        return KeyCommand::Paste;
    case 46:
        return KeyCommand::Cut;
    default:
        return KeyCommand::StepOver;
    }
}

KeyCommand ControlCommandOf(std::uint32_t code) {
    switch (code) {
    case 45:
    case 'C':
        return KeyCommand::Copy;
    case 'V':
        return KeyCommand::Paste;
    case 'X':
        return KeyCommand::Cut;
    default:
        return KeyCommand::Refuse;
    }
}

TEST(FieldKeys, HaveTheirCommands) {
    for (std::uint32_t code = 0; code < 256; ++code) {
        EXPECT_EQ(CommandOf({code}), PlainCommandOf(code)) << code;
        EXPECT_EQ(CommandOf(Shift(code)), ShiftCommandOf(code)) << code;
        EXPECT_EQ(CommandOf(Control(code)), ControlCommandOf(code)) << code;
        EXPECT_EQ(CommandOf({code, true, false, true}), ControlCommandOf(code)) << code;
        EXPECT_EQ(CommandOf(Alt(code)), KeyCommand::None) << code;
        EXPECT_EQ(CommandOf({code, true, true, true}), KeyCommand::None) << code;
    }
}

TEST(FieldKeys, DigitsComeFromBothPads) {
    EXPECT_EQ(DigitOf(48), '0');
    EXPECT_EQ(DigitOf(57), '9');
    EXPECT_EQ(DigitOf(96), '0');
    EXPECT_EQ(DigitOf(101), '5');
    EXPECT_EQ(DigitOf(105), '9');
    for (const std::uint32_t code : {0u, 47u, 58u, 95u, 106u, 4294967295u}) {
        EXPECT_EQ(DigitOf(code), '\0') << code;
    }
}

// "ab:cd"
constexpr FieldMap kMap = {2, {0, 3}, 1, 5};

TEST(FieldKeys, AKeyWithoutAUseStepsOverASeparatorOnly) {
    FieldCaret caret;
    PutCaret(caret, kMap, 2);
    Actions actions;
    RunCommonCommand(actions, caret, kMap, KeyCommand::StepOver);
    ASSERT_EQ(actions.count, 1u);
    EXPECT_EQ(actions.items[0], Action{ActionKind::PlaceCaret});
    EXPECT_EQ(caret.index, 3);
    EXPECT_EQ(caret.field, 1);
    RunCommonCommand(actions, caret, kMap, KeyCommand::StepOver);
    ASSERT_EQ(actions.count, 2u);
    EXPECT_EQ(actions.items[1], Action{ActionKind::Beep});
    EXPECT_EQ(caret.index, 3);
}

TEST(FieldKeys, AnEditsOwnCommandsDoNothingInCommon) {
    FieldCaret caret;
    Actions actions;
    for (const KeyCommand command : {KeyCommand::None, KeyCommand::StepUp, KeyCommand::StepDown,
                                     KeyCommand::Back, KeyCommand::Delete, KeyCommand::Digit}) {
        RunCommonCommand(actions, caret, kMap, command);
    }
    EXPECT_EQ(actions.count, 0u);
}

} // namespace
} // namespace vorn::edit
