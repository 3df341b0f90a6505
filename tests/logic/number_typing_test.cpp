// Characters typed into a number.
#include "tests/support/number_editor.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <string>

namespace vorn::numeric {
namespace {

constexpr std::uint32_t kPadDecimal = 110;

TEST(NumberTyping, RoutesByCharacterAndKeysHeld) {
    using edit::KeyRoute;
    const struct {
        edit::Key character;
        KeyRoute route;
        KeyRoute readOnlyRoute;
    } cases[] = {
        {{9}, KeyRoute::FocusNext, KeyRoute::FocusNext},
        {{9, false, false, true}, KeyRoute::FocusPrevious, KeyRoute::FocusPrevious},
        {{9, true}, KeyRoute::Ask, KeyRoute::Refuse},
        {{9, false, true}, KeyRoute::PassOn, KeyRoute::Refuse},
        {{16}, KeyRoute::PassOn, KeyRoute::PassOn},
        {{17}, KeyRoute::PassOn, KeyRoute::PassOn},
        {{18}, KeyRoute::PassOn, KeyRoute::PassOn},
        {{20}, KeyRoute::PassOn, KeyRoute::PassOn},
        {{27}, KeyRoute::PassOn, KeyRoute::PassOn},
        {{19}, KeyRoute::Ask, KeyRoute::Refuse},
        {{'7'}, KeyRoute::Ask, KeyRoute::Refuse},
        {{'7', true}, KeyRoute::Ask, KeyRoute::Refuse},
        {{'7', false, true}, KeyRoute::PassOn, KeyRoute::Refuse},
        {{'7', false, false, true}, KeyRoute::Ask, KeyRoute::Refuse},
    };
    for (const auto& [character, route, readOnlyRoute] : cases) {
        EXPECT_EQ(RouteCharacter(character, false), route) << character.code;
        EXPECT_EQ(RouteCharacter(character, true), readOnlyRoute) << character.code;
    }
}

TEST(NumberTyping, IsRefusedWithoutLeave) {
    Editor editor("12");
    EXPECT_EQ(editor.Type('3', false), kBeeped);
    EXPECT_EQ(editor.Shown(), "12|");
    EXPECT_EQ(editor.entry.modified, 0);
}

TEST(NumberTyping, DigitsAreInserted) {
    Editor editor("12");
    editor.PutCaretAt(1);
    EXPECT_EQ(editor.Type('3'), kChanged);
    EXPECT_EQ(editor.Shown(), "13|2");
    EXPECT_EQ(editor.entry.modified, 1);
    EXPECT_FALSE(editor.IsNull());
}

TEST(NumberTyping, EveryDigitIsOne) {
    Editor editor("");
    editor.TypeAll("1234567890");
    EXPECT_EQ(editor.Shown(), "1234567890|");
}

TEST(NumberTyping, DigitsOverwrite) {
    Editor editor("12");
    editor.overwrite = true;
    editor.PutCaretAt(0);
    editor.TypeAll("34");
    EXPECT_EQ(editor.Shown(), "34|");
    editor.TypeAll("5");
    EXPECT_EQ(editor.Shown(), "345|") << "there is nothing to overwrite at the end";
}

TEST(NumberTyping, TheFirstDigitEndsNull) {
    Editor editor("");
    ASSERT_TRUE(editor.IsNull());
    EXPECT_EQ(editor.Type('7'), kChanged);
    EXPECT_FALSE(editor.IsNull());
    EXPECT_EQ(editor.Shown(), "7|");
}

TEST(NumberTyping, TheSelectionIsReplaced) {
    for (const bool overwrite : {false, true}) {
        Editor editor("12345");
        editor.overwrite = overwrite;
        editor.SelectText(1, 3);
        EXPECT_EQ(editor.Type('9'), kChanged);
        EXPECT_EQ(editor.Shown(), "19|45") << overwrite;
        editor.SelectText(0, 4);
        editor.TypeAll("8");
        EXPECT_EQ(editor.Shown(), "8|");
    }
}

TEST(NumberTyping, NoDigitGoesInFrontOfASign) {
    Editor editor("-5");
    editor.PutCaretAt(0);
    EXPECT_EQ(editor.Type('1'), kBeeped);
    EXPECT_EQ(editor.Shown(), "|-5");
    editor.overwrite = true;
    EXPECT_EQ(editor.Type('1'), kChanged);
    EXPECT_EQ(editor.Shown(), "1|5");
}

// Taking "12" out of "12-5", which a host stored, would leave a sign behind the digit.
TEST(NumberTyping, NoDigitGoesInFrontOfASignForASelectionEither) {
    for (const bool overwrite : {false, true}) {
        Editor editor("12-5");
        editor.overwrite = overwrite;
        editor.SelectText(0, 2);
        EXPECT_EQ(editor.Type('1'), kBeeped);
        EXPECT_EQ(editor.Shown(), "<12|>-5");
    }
}

TEST(NumberTyping, WhatDoesNotConvertIsRefused) {
    Editor editor("abc");
    EXPECT_EQ(editor.Type('1'), kBeeped);
    EXPECT_EQ(editor.Shown(), "abc|");
    EXPECT_EQ(editor.entry.modified, 0);
}

// The largest double is about 1.8e308.
TEST(NumberTyping, OverflowIsRefused) {
    Editor editor("1e30");
    EXPECT_EQ(editor.Type('9'), kBeeped);
    EXPECT_EQ(editor.Shown(), "1e30|");
    EXPECT_EQ(editor.Type('8'), kChanged);
    EXPECT_EQ(editor.Shown(), "1.e+3|08");
}

// 12 significant digits; the general kind leaves an exponent as it is, the others round before it.
TEST(NumberTyping, TheTextIsMadeAnew) {
    const struct {
        std::uint32_t kind;
        std::uint16_t digits;
        const char* before;
        char digit;
        const char* shown;
    } cases[] = {
        {kGeneral, 0, "", '7', "7|"},
        {kGeneral, 0, "12.", '5', "12|"},
        {kGeneral, 2, "", '7', "7|.00"},
        {kGeneral, 2, "1.23", '9', "1.24|"},
        {kGeneral, 2, "1.23", '4', "1.23|"},
        {kGeneral, 0, "0", '5', "5|"},
        {kGeneral, 0, "00", '5', "5|"},
        {kGeneral, 2, "0.0", '5', "5.e-|002"},
        {kFloating, 2, "0.0", '5', "5.00|e-002"},
        {kFloating, 2, "9.99", '6', "1..00|"},
        {kFloating, 2, "1e", '5', "100|000.00"},
        {kFloating, 1, "1e1", '2', "1.0e|+012"},
        {kFloating, 0, "-", '0', "-0|"},
        {kFloatingGrouped, 2, "123", '4', "1234|.00"},
        {kFloatingParentheses, 2, "-123", '4', "-1234|.00"},
        {kFloatingGroupedParentheses, 2, "-123", '4', "-1234|.00"},
        {kFloatingUnpadded, 2, "1", '2', "12|.00"},
        {kInteger, 2, "1", '2', "12|"},
        {kIntegerGrouped, 2, "123", '4', "1234|"},
        {kIntegerParentheses, 2, "-1", '2', "-12|"},
        {kIntegerGroupedParentheses, 2, "-123", '4', "-1234|"},
        {kInteger, 2, "1.", '9', "1|"},
        {kInteger, 0, "1e", '3', "100|0"},
        {kInteger, 0, "1e1", '2', "1|"},
        {kInteger, 0, "123456789012", '3', "1|"},
        {kGeneral, 0, "123456789012", '3', "1.23456789012|e+012"},
    };
    for (const auto& [kind, digits, before, digit, shown] : cases) {
        Editor editor(before, kind, digits);
        EXPECT_EQ(editor.Type(digit), kChanged);
        EXPECT_EQ(editor.Shown(), shown) << kind << ": " << before << digit;
    }
}

TEST(NumberTyping, DigitDisplayKeepsIntegers) {
    Editor editor("1.", kFloating, 2);
    editor.Settings().displayStyle = kDigitDisplay;
    EXPECT_EQ(editor.Type('9'), kChanged);
    EXPECT_EQ(editor.Shown(), "1|");
    EXPECT_EQ(editor.Type('.'), kBeeped);
}

TEST(NumberTyping, ACaretBehindTheTextShowsItFromItsStart) {
    Editor editor("00");
    editor.entry.caret.firstVisible = 1;
    editor.TypeAll("5");
    EXPECT_EQ(editor.Shown(), "5|");
    EXPECT_EQ(editor.entry.caret.firstVisible, 0);
    Editor inside("1234567");
    inside.entry.caret.firstVisible = 2;
    inside.TypeAll("8");
    EXPECT_EQ(inside.entry.caret.firstVisible, 2) << "scrolled as it was";
}

TEST(NumberTyping, OutOfRangeBecomesTheNearerLimit) {
    const List beepAndChange = kBeeped + kChanged;
    Editor editor("10");
    editor.SetRange(-20, 100);
    EXPECT_EQ(editor.Type('1'), beepAndChange) << "101";
    EXPECT_EQ(editor.Shown(), "100|");
    editor.SelectText(0, 3);
    editor.TypeAll("-2");
    EXPECT_EQ(editor.Type('1'), beepAndChange) << "-21";
    EXPECT_EQ(editor.Shown(), "-20|");
    Editor low("");
    low.SetRange(10, 100);
    EXPECT_EQ(low.Type('5'), beepAndChange);
    EXPECT_EQ(low.Shown(), "1|0");
    low.Settings().rangeCheck = 0;
    low.TypeAll("999");
    EXPECT_EQ(low.Shown(), "1999|0");
}

TEST(NumberTyping, TheLimitItselfIsInRange) {
    Editor editor("10");
    editor.SetRange(0, 100);
    EXPECT_EQ(editor.Type('0'), kChanged);
    EXPECT_EQ(editor.Shown(), "100|");
}

// The maximum is tested first.
TEST(NumberTyping, AMinimumAboveTheMaximumWins) {
    Editor editor("");
    editor.SetRange(10, 5);
    EXPECT_EQ(editor.Type('7'), kBeeped + kChanged);
    EXPECT_EQ(editor.Shown(), "1|0");
}

TEST(NumberTyping, TheTextLimitIsKept) {
    Editor editor("123");
    SetTextLimit(editor.entry, 4);
    editor.TypeAll("4");
    EXPECT_EQ(editor.Type('5'), kBeeped);
    EXPECT_EQ(editor.Shown(), "1234|");
    Editor padded("1", kFloating, 2);
    SetTextLimit(padded.entry, 4);
    EXPECT_EQ(padded.Type('2'), kBeeped) << "12.00 has five characters";
    EXPECT_EQ(padded.Shown(), "1|");
    Editor marks("12");
    SetTextLimit(marks.entry, 2);
    EXPECT_EQ(marks.Type('e'), kBeeped);
    EXPECT_EQ(marks.Type('.'), kBeeped);
    marks.PutCaretAt(0);
    EXPECT_EQ(marks.Type('-'), kBeeped);
    EXPECT_EQ(marks.Shown(), "|12");
}

// 59 digits, of which 12 count: 9e58 and the point, with 61 more decimals than there is room for.
TEST(NumberTyping, NeverOutgrowsTheBuffer) {
    Editor editor(std::string(63, '1').c_str());
    EXPECT_EQ(LengthOf(editor.entry), 63);
    EXPECT_EQ(editor.Type('1'), kBeeped);
    editor.overwrite = true;
    editor.PutCaretAt(0);
    EXPECT_EQ(editor.Type('2'), kChanged);
    EXPECT_EQ(editor.Text(), "2.11111111111e+062");
    Editor decimals("", kFloating, 65535);
    decimals.TypeAll("7");
    EXPECT_EQ(decimals.Text(), "7." + std::string(61, '0'));
}

TEST(NumberTyping, ASignGoesInFront) {
    Editor editor("5");
    editor.PutCaretAt(0);
    const edit::Actions actions = TypeCharacter(editor.entry, '-', false, true);
    EXPECT_EQ(AsList(actions), kChanged + kAfter) << "1424 comes twice";
    EXPECT_EQ(editor.Shown(), "-|5");
    EXPECT_EQ(editor.entry.modified, 1);
}

TEST(NumberTyping, ASignBeginsANumber) {
    Editor editor("");
    editor.TypeAll("-");
    EXPECT_EQ(editor.Shown(), "-|");
    EXPECT_FALSE(editor.IsNull());
    EXPECT_EQ(ValueOf(editor.entry), 0);
    editor.TypeAll("5");
    EXPECT_EQ(editor.Shown(), "-5|");
    editor.SelectText(0, 2);
    editor.TypeAll("-");
    EXPECT_EQ(editor.Shown(), "-|");
}

TEST(NumberTyping, ASignElsewhereIsRefused) {
    Editor editor("12");
    EXPECT_EQ(editor.Type('-'), kBeeped);
    editor.PutCaretAt(1);
    EXPECT_EQ(editor.Type('-'), kBeeped);
    Editor negative("-5");
    EXPECT_EQ(negative.Type('-'), kBeeped);
    negative.PutCaretAt(0);
    EXPECT_EQ(negative.Type('-'), kBeeped) << "there is one";
    EXPECT_EQ(negative.Shown(), "|-5");
    negative.overwrite = true;
    EXPECT_EQ(negative.Type('-'), kChanged);
    EXPECT_EQ(negative.Shown(), "-|5");
}

TEST(NumberTyping, ASignIsNotRoundedAway) {
    Editor editor("0.5", kFloating, 2);
    editor.PutCaretAt(0);
    editor.TypeAll("-");
    EXPECT_EQ(editor.Shown(), "-|0.5");
}

TEST(NumberTyping, AnExponentHasASignOfItsOwn) {
    for (const char sign : {'-', '+'}) {
        Editor editor("1");
        editor.TypeAll("e");
        EXPECT_EQ(editor.Type(sign), kChanged);
        EXPECT_EQ(editor.Shown(), std::string("1e") + sign + "|");
        EXPECT_EQ(editor.Type(sign), kBeeped);
    }
    Editor digits("12e5");
    digits.PutCaretAt(3);
    digits.TypeAll("-");
    EXPECT_EQ(digits.Shown(), "12e-|5");
}

TEST(NumberTyping, APlusElsewhereIsRefused) {
    Editor editor("12");
    for (const int index : {0, 1, 2}) {
        editor.PutCaretAt(index);
        EXPECT_EQ(editor.Type('+'), kBeeped) << index;
    }
    Editor null("");
    EXPECT_EQ(null.Type('+'), kBeeped);
    EXPECT_TRUE(null.IsNull());
}

TEST(NumberTyping, ThereIsOneExponentAndNotInFront) {
    for (const char letter : {'e', 'E'}) {
        Editor editor("12");
        editor.PutCaretAt(0);
        EXPECT_EQ(editor.Type(letter), kBeeped);
        editor.PutCaretAt(2);
        EXPECT_EQ(editor.Type(letter), kChanged);
        EXPECT_EQ(editor.Shown(), "12e|") << "stored as e";
        EXPECT_EQ(editor.Type(letter), kBeeped);
        editor.TypeAll("3");
        EXPECT_EQ(editor.Shown(), "1200|0");
    }
    Editor null("");
    EXPECT_EQ(null.Type('e'), kBeeped);
}

TEST(NumberTyping, AnExponentInTheMiddleMakesOneOfTheRest) {
    Editor editor("12");
    editor.PutCaretAt(1);
    editor.TypeAll("e");
    EXPECT_EQ(editor.Shown(), "1e|2");
    Editor decimals("1.5");
    decimals.PutCaretAt(1);
    EXPECT_EQ(decimals.Type('e'), kBeeped) << "no exponent has decimals";
    Editor sign("-");
    EXPECT_EQ(sign.Type('e'), kBeeped) << "no digit typed behind it would make a number";
}

TEST(NumberTyping, TheDecimalCharacterIsAcceptedOnce) {
    Editor editor("12", kFloating, 2);
    editor.TypeAll(".");
    EXPECT_EQ(editor.Shown(), "12.|");
    editor.TypeAll("5");
    EXPECT_EQ(editor.Shown(), "12.5|0");
    EXPECT_EQ(editor.Type('.'), kBeeped);
    editor.PutCaretAt(0);
    EXPECT_EQ(editor.Type('.'), kBeeped);
    editor.SelectText(1, 3);
    EXPECT_EQ(editor.Type('.'), kChanged) << "the one that is replaced does not count";
    EXPECT_EQ(editor.Shown(), "1.|50");
}

TEST(NumberTyping, TheDecimalCharacterStepsOverItself) {
    Editor editor("", kFloating, 2);
    editor.TypeAll("1");
    ASSERT_EQ(editor.Shown(), "1|.00");
    EXPECT_EQ(editor.Type('.'), (List{{PlaceCaret}}));
    EXPECT_EQ(editor.Shown(), "1.|00");
    editor.TypeAll("5");
    EXPECT_EQ(editor.Shown(), "1.5|0");
    editor.SelectText(0, 1);
    EXPECT_EQ(editor.Type('.'), kBeeped) << "a selection is not stepped out of";
}

TEST(NumberTyping, TheDecimalCharacterOfEachKind) {
    for (std::uint32_t kind = 0; kind <= 9; ++kind) {
        Editor editor("1", kind, 2);
        EXPECT_EQ(editor.Type('.'), kind >= 1 && kind <= 4 ? kBeeped : kChanged) << kind;
    }
    Editor exponent("1e2");
    EXPECT_EQ(exponent.Type('.'), kBeeped);
    exponent.PutCaretAt(1);
    exponent.TypeAll(".");
    EXPECT_EQ(exponent.Shown(), "1.|e2");
    Editor null("");
    null.TypeAll(".");
    EXPECT_EQ(null.Shown(), ".|");
    Editor sign("-5");
    sign.PutCaretAt(0);
    EXPECT_EQ(sign.Type('.'), kBeeped);
}

TEST(NumberTyping, TheDecimalCharacterIsTheSettings) {
    Editor editor("12", kFloating, 1);
    editor.Settings().decimalChar = ',';
    editor.Settings().thousandChar = '.';
    EXPECT_EQ(editor.Type('.'), kBeeped);
    editor.TypeAll(",5");
    EXPECT_EQ(editor.Shown(), "12.5|") << "kept with a point";
}

TEST(NumberTyping, TheNumericPadHasAPoint) {
    Editor editor("12", kFloating, 1);
    editor.Settings().decimalChar = ',';
    EXPECT_EQ(editor.Press(kPadDecimal), (List{{PassOn}}));
    editor.TypeAll(".");
    EXPECT_EQ(editor.Shown(), "12.|");
    Editor later("12", kFloating, 1);
    later.Settings().decimalChar = ',';
    later.Press(kPadDecimal);
    later.Press('3');
    later.TypeAll("3");
    EXPECT_EQ(later.Type('.'), kBeeped) << "another key came between";
}

TEST(NumberTyping, OtherCharactersAreRefused) {
    for (const char character : {' ', ',', '+', 'x', '(', ')', '/', ':', '\xE9', '\xFF'}) {
        Editor editor("1234");
        EXPECT_EQ(editor.Type(character), kBeeped) << character;
        EXPECT_EQ(editor.Shown(), "1234|");
    }
}

// Backspace, Enter and Ctrl with a letter type one; their keys came before.
TEST(NumberTyping, ControlCharactersDoNothing) {
    for (const char character : {'\b', '\t', '\r', '\n', '\x03', '\x7F'}) {
        Editor editor("1234");
        EXPECT_EQ(editor.Type(character), kNothing) << static_cast<int>(character);
        EXPECT_EQ(editor.Shown(), "1234|");
    }
}

TEST(NumberTyping, ACaretBeyondTheTextIsBroughtIntoIt) {
    Editor editor("12");
    editor.entry.caret = {40, 50, 50, 50};
    editor.TypeAll("3");
    EXPECT_EQ(editor.Shown(), "123|");
    EXPECT_EQ(editor.entry.caret.firstVisible, 2);
}

} // namespace
} // namespace vorn::numeric
