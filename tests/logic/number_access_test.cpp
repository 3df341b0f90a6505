// What hosts read and write of a number.
#include "numeric/number_access.h"
#include "tests/support/number_editor.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <limits>
#include <string>

namespace vorn::numeric {
namespace {

constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

const List kWritten = {{Repaint}, {SendChanged}, {PlaceCaret}};

std::string LastGood(const NumberEntry& entry) {
    char text[kNumberTextSize];
    EXPECT_EQ(ReadLastGoodNumber(entry, text), 1);
    return text;
}

std::string AfterWriting(std::uint32_t kind, std::uint16_t digits, double value, Written as,
                         std::uint16_t displayStyle = 0) {
    Editor editor("1", kind, digits);
    editor.Settings().displayStyle = displayStyle;
    EXPECT_EQ(AsList(Write(editor.entry, value, as)), kWritten);
    return editor.Text();
}

TEST(NumberRead, TruncatesTowardZero) {
    const struct {
        const char* text;
        std::int32_t integer;
    } cases[] = {{"2.9", 2},
                 {"-2.9", -2},
                 {"0", 0},
                 {"-0.5", 0},
                 {"1e3", 1000},
                 {"12abc", 12},
                 {"abc", 0},
                 {"-", 0},
                 {"2147483647", 2147483647},
                 {"2147483648", 2147483647},
                 {"-2147483648", -2147483647 - 1},
                 {"-1e300", -2147483647 - 1}};
    for (const auto& [text, integer] : cases) {
        EXPECT_EQ(ReadInteger(Editor(text).entry), integer) << text;
    }
}

TEST(NumberRead, UnsignedGoesOnToTheEndOf32Bits) {
    const struct {
        const char* text;
        std::uint32_t number;
    } cases[] = {{"2.9", 2},
                 {"2147483648", 2147483648},
                 {"3000000000.7", 3000000000},
                 {"4294967295", 4294967295},
                 {"4294967296", 4294967295},
                 {"1e300", 4294967295},
                 {"-1", 4294967295},
                 {"-1e300", 2147483648}};
    for (const auto& [text, number] : cases) {
        EXPECT_EQ(ReadUnsigned(Editor(text).entry), number) << text;
    }
}

TEST(NumberRead, ClampsAndLeavesTheText) {
    Editor editor("250");
    editor.SetRange(0, 100);
    EXPECT_EQ(ReadInteger(editor.entry), 100);
    EXPECT_EQ(ReadUnsigned(editor.entry), 100U);
    EXPECT_EQ(ValueOf(editor.entry), 100);
    EXPECT_EQ(LastGood(editor.entry), "100");
    EXPECT_EQ(editor.Shown(), "250|");
    editor.SetRange(10, 5);
    EXPECT_EQ(ReadInteger(editor.entry), 10) << "the minimum wins";
}

TEST(NumberRead, NullIsZeroWhateverTheRange) {
    Editor editor("");
    editor.SetRange(5, 10);
    EXPECT_EQ(ReadInteger(editor.entry), 0);
    EXPECT_EQ(ReadUnsigned(editor.entry), 0U);
    EXPECT_EQ(ValueOf(editor.entry), 0);
    EXPECT_EQ(LastGood(editor.entry), " ");
}

TEST(NumberRead, TheLastGoodNumberIsInEditForm) {
    const struct {
        std::uint32_t kind;
        std::uint16_t digits;
        const char* text;
        const char* lastGood;
    } cases[] = {
        {kGeneral, 2, "1234.567", "1234,57"},
        {kIntegerGroupedParentheses, 0, "-1234.9", "-1234"},
        {kFloatingGroupedParentheses, 2, "-1234.567", "-1234,57"},
        {kFloatingUnpadded, 2, "7", "7,00"},
        {kFloating, 1, "12x", "12,0"},
    };
    for (const auto& [kind, digits, text, lastGood] : cases) {
        Editor editor(text, kind, digits);
        editor.Settings().decimalChar = ',';
        editor.Settings().thousandChar = '.';
        EXPECT_EQ(LastGood(editor.entry), lastGood) << kind;
    }
}

// 99.99999999999 has fourteen digits: written with twelve it would be read as 100.
TEST(NumberRead, TheLastGoodNumberIsOfTheClampedValueItself) {
    Editor editor("200", kInteger);
    editor.SetRange(0, 99.99999999999999);
    EXPECT_EQ(LastGood(editor.entry), "99");
}

TEST(NumberWrite, IntegersAreStoredAsTheKindSays) {
    for (const Written as : {Written::Integer, Written::UnsignedInteger}) {
        for (std::uint32_t kind = 0; kind <= 9; ++kind) {
            const bool padded = kind == 0 || (kind >= 5 && kind <= 8);
            EXPECT_EQ(AfterWriting(kind, 2, 7, as), padded ? "7.00" : "7") << kind;
            EXPECT_EQ(AfterWriting(kind, 0, 7, as), "7") << kind;
            EXPECT_EQ(AfterWriting(kind, 2, 7, as, kDigitDisplay), "7") << kind;
            EXPECT_EQ(AfterWriting(kind, 2, 7, as, 3), padded ? "7.00" : "7") << kind;
        }
    }
    EXPECT_EQ(AfterWriting(kGeneral, 0, -2147483648.0, Written::Integer), "-2147483648");
    EXPECT_EQ(AfterWriting(kInteger, 0, -12, Written::Integer), "-12");
}

TEST(NumberWrite, UnsignedNumbersStayUnsigned) {
    for (const Written as : {Written::UnsignedInteger, Written::UnsignedLong}) {
        for (const std::uint32_t kind : {kGeneral, kInteger, kFloatingUnpadded}) {
            EXPECT_EQ(AfterWriting(kind, 0, 3000000000.0, as), "3000000000") << kind;
            EXPECT_EQ(AfterWriting(kind, 0, 4294967295.0, as), "4294967295") << kind;
        }
        EXPECT_EQ(AfterWriting(kFloating, 2, 3000000000.0, as), "3000000000.00");
        EXPECT_EQ(AfterWriting(kFloating, 2, 7, as, kDigitDisplay), "7");
    }
}

TEST(NumberWrite, FloatingNumbersAreStoredAsTheKindSays) {
    const struct {
        std::uint32_t kind;
        std::uint16_t digits;
        double value;
        const char* text;
    } cases[] = {
        {kGeneral, 0, 2.75, "2"},
        {kGeneral, 1, 2.75, "2.8"},
        {kGeneral, 3, 2.75, "2.750"},
        {kGeneral, 2, 1.5e20, "1.5e+020"},
        {kGeneral, 2, 7, "7.00"},
        {kInteger, 2, 2.75, "2"},
        {kIntegerGrouped, 2, -2.75, "-2"},
        {kIntegerParentheses, 2, 3e9, "3000000000"},
        {kIntegerGroupedParentheses, 2, -3000000000.75, "-3000000000"},
        {kFloating, 2, 1.005, "1.01"},
        {kFloating, 2, 1.5e20, "1.50e+020"},
        {kFloatingGrouped, 2, -1234567.891, "-1234567.89"},
        {kFloatingParentheses, 2, -0.25, "-0.25"},
        {kFloatingGroupedParentheses, 0, 0.5, "0"},
        {kFloatingUnpadded, 2, 2.75, "2.75"},
        {kFloatingUnpadded, 1, 2.75, "2.75"},
        {kFloatingUnpadded, 2, 7, "7"},
        {kGeneral, 2, 0, "0.00"},
    };
    for (const auto& [kind, digits, value, text] : cases) {
        EXPECT_EQ(AfterWriting(kind, digits, value, Written::Floating), text) << kind;
    }
    EXPECT_EQ(AfterWriting(kFloating, 2, 2.75, Written::Floating, kDigitDisplay), "2.75");
}

TEST(NumberWrite, WhatIsNoNumberIsStoredAsSuch) {
    EXPECT_EQ(AfterWriting(kFloating, 2, kInfinite, Written::Floating), "1.#INF");
    EXPECT_EQ(AfterWriting(kFloating, 2, -kInfinite, Written::Floating), "-1.#INF");
}

TEST(NumberWrite, WhatIsNoNumberIsAnEndOf32BitsInAnIntegerKind) {
    EXPECT_EQ(AfterWriting(kInteger, 2, kInfinite, Written::Floating), "2147483647");
    EXPECT_EQ(AfterWriting(kInteger, 2, -kInfinite, Written::Floating), "-2147483648");
    EXPECT_EQ(AfterWriting(kInteger, 2, kNoNumber, Written::Floating), "-2147483648");
}

TEST(NumberWrite, ClampsToTheRange) {
    const struct {
        double value;
        Written as;
        const char* text;
    } cases[] = {
        {250, Written::Integer, "99"},          {-1, Written::Integer, "10"},
        {50, Written::Integer, "50"},           {250, Written::UnsignedInteger, "99"},
        {250, Written::Floating, "99.5"},       {250, Written::UnsignedLong, "99.5"},
        {3, Written::UnsignedLong, "10.25"},    {3, Written::UnsignedInteger, "10"},
        {kInfinite, Written::Floating, "99.5"},
    };
    for (const auto& [value, as, text] : cases) {
        Editor editor("1", kFloatingUnpadded);
        editor.SetRange(10.25, 99.5);
        Write(editor.entry, value, as);
        EXPECT_EQ(editor.Text(), text) << value;
    }
}

// A range of negative numbers alone.
TEST(NumberWrite, AnUnsignedNumberMayBeClampedBelowZero) {
    Editor editor("1", kInteger);
    editor.SetRange(-20, -10);
    Write(editor.entry, 7, Written::UnsignedInteger);
    EXPECT_EQ(editor.Text(), "-10");
}

TEST(NumberWrite, ATextThatReachesTheLimitIsCut) {
    Editor editor("1");
    SetTextLimit(editor.entry, 4);
    EXPECT_FALSE(IsCutWritten(editor.entry, 999, Written::Integer));
    EXPECT_EQ(AsList(Write(editor.entry, 999, Written::Integer)), kWritten);
    EXPECT_EQ(editor.Text(), "999");
    EXPECT_TRUE(IsCutWritten(editor.entry, 1234, Written::Integer));
    EXPECT_EQ(editor.Text(), "999") << "asked only";
    EXPECT_EQ(AsList(Write(editor.entry, 1234, Written::Integer)), kWritten);
    EXPECT_EQ(editor.Text(), "123");
    EXPECT_TRUE(IsCutWritten(editor.entry, 12345.5, Written::Floating));
    Write(editor.entry, 12345.5, Written::Floating);
    EXPECT_EQ(editor.Text(), "123");
    Editor decimals("1", kFloating, 65535);
    EXPECT_TRUE(IsCutWritten(decimals.entry, 7, Written::Integer));
    Write(decimals.entry, 7, Written::Integer);
    EXPECT_EQ(decimals.Text(), "7." + std::string(60, '0'));
    SetTextLimit(editor.entry, 1);
    EXPECT_TRUE(IsCutWritten(editor.entry, 7, Written::Integer));
    Write(editor.entry, 7, Written::Integer);
    EXPECT_EQ(editor.Text(), "") << "there is room for nothing";
    EXPECT_EQ(editor.entry.settings.isNull, 0) << "and yet it is a number";
}

TEST(NumberWrite, StartsAfreshAndUnmodified) {
    Editor editor("12345");
    editor.entry.modified = 1;
    editor.SelectText(1, 4);
    editor.entry.caret.firstVisible = 2;
    Write(editor.entry, 678, Written::Integer);
    EXPECT_EQ(editor.Shown(), "|678");
    EXPECT_EQ(editor.entry.caret.firstVisible, 0);
    EXPECT_EQ(editor.entry.modified, 0);
}

TEST(NumberWrite, EndsNull) {
    Editor editor("");
    ASSERT_TRUE(editor.IsNull());
    Write(editor.entry, 7, Written::Integer);
    EXPECT_FALSE(editor.IsNull());
    EXPECT_EQ(ReadInteger(editor.entry), 7);
}

TEST(NumberText, FromOutsideIsTakenAsItIs) {
    Editor editor("12");
    editor.entry.modified = 1;
    EXPECT_EQ(AsList(SetText(editor.entry, "abc")), kChanged);
    EXPECT_EQ(editor.Shown(), "|abc");
    EXPECT_EQ(editor.entry.modified, 0);
    EXPECT_FALSE(editor.IsNull());
    SetText(editor.entry, std::string(64, '1').c_str());
    EXPECT_EQ(editor.Text(), std::string(63, '1'));
    SetTextLimit(editor.entry, 3);
    SetText(editor.entry, "12345");
    EXPECT_EQ(editor.Text(), "12345") << "the limit is for typing";
}

TEST(NumberText, IsNullExactlyWhenEmpty) {
    for (const char* text : {"", static_cast<const char*>(nullptr)}) {
        Editor editor("12");
        SetText(editor.entry, text);
        EXPECT_TRUE(editor.IsNull());
        EXPECT_EQ(editor.Text(), "");
        SetText(editor.entry, " ");
        EXPECT_FALSE(editor.IsNull());
    }
}

TEST(NumberText, KeepsPointsForDecimalCharacters) {
    Editor editor("12");
    editor.Settings().decimalChar = ',';
    SetText(editor.entry, "1,5");
    EXPECT_EQ(editor.Text(), "1.5");
    editor.Settings().decimalChar = 0;
    SetText(editor.entry, "1,5");
    EXPECT_EQ(editor.Text(), "1,5");
}

TEST(NumberText, OfANewControl) {
    NumberEntry entry;
    StoreCreationText(entry, nullptr);
    EXPECT_STREQ(entry.text, "0");
    EXPECT_EQ(entry.textLimit, 63);
    EXPECT_EQ(entry.modified, 0);
    EXPECT_EQ(entry.caret.index, 0);
    EXPECT_EQ(entry.settings.isNull, 0);
}

TEST(NumberNull, TakesTextAndSelectionAway) {
    Editor editor("123");
    editor.SelectText(1, 3);
    editor.entry.caret.firstVisible = 1;
    SetNull(editor.entry);
    EXPECT_TRUE(editor.IsNull());
    EXPECT_EQ(editor.Shown(), "|");
    EXPECT_EQ(editor.entry.caret.firstVisible, 0);
    EXPECT_EQ(ReadInteger(editor.entry), 0);
}

TEST(NumberTextLimit, IsWithinTheBuffer) {
    NumberEntry entry;
    const struct {
        std::uint32_t asked;
        std::uint16_t limit;
    } cases[] = {{1, 1}, {10, 10}, {63, 63}, {64, 63}, {0, 63}, {0xFFFFFFFF, 63}};
    for (const auto& [asked, limit] : cases) {
        SetTextLimit(entry, asked);
        EXPECT_EQ(entry.textLimit, limit) << asked;
    }
}

} // namespace
} // namespace vorn::numeric
