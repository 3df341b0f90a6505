// Number to text: rounding, grouping, leading zeros and the ten format kinds.
#include "numeric/number_format.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <span>
#include <string>
#include <vector>

namespace vorn::numeric {
namespace {

// A buffer from the heap, so that the sanitizer sees any byte beyond it.
std::vector<char> BufferOf(const std::string& text, std::size_t size = kNumberTextSize) {
    std::vector<char> buffer(size, 'x');
    std::copy_n(text.c_str(), std::min(text.size() + 1, size), buffer.begin());
    return buffer;
}

std::string Rounded(const std::string& text, std::uint16_t digits, char decimalChar = '.',
                    std::uint32_t kind = kFloating) {
    std::vector<char> buffer = BufferOf(text);
    EXPECT_EQ(RoundDigits(buffer, digits, decimalChar, kind), 1);
    return buffer.data();
}

std::string Grouped(const std::string& text, char thousandChar = ',', char decimalChar = '.') {
    NumberSettings settings;
    settings.thousandChar = static_cast<unsigned char>(thousandChar);
    settings.decimalChar = static_cast<unsigned char>(decimalChar);
    std::vector<char> buffer = BufferOf(text);
    EXPECT_EQ(GroupThousands(buffer, settings), 1);
    return buffer.data();
}

std::string Stripped(const std::string& text, std::int32_t leadingZero, char decimalChar = '.') {
    std::vector<char> buffer = BufferOf(text);
    EXPECT_EQ(StripLeadingZero(buffer, leadingZero, decimalChar), 1);
    return buffer.data();
}

std::string Formatted(const NumberSettings& settings, const std::string& text,
                      std::int32_t editForm = 0) {
    std::vector<char> buffer = BufferOf("", kNumberTextSize);
    std::vector<char> source(text.c_str(), text.c_str() + text.size() + 1);
    EXPECT_EQ(FormatNumber(settings, source.data(), editForm,
                           std::span<char, kNumberTextSize>(buffer.data(), kNumberTextSize)),
              1);
    return buffer.data();
}

NumberSettings Kind(std::uint32_t kind, std::uint16_t digits = 0) {
    NumberSettings settings;
    settings.formatKind = kind;
    settings.decimalDigits = digits;
    return settings;
}

TEST(RoundDigits, AppendsWhatIsMissing) {
    EXPECT_EQ(Rounded("3.", 2), "3.00");
    EXPECT_EQ(Rounded("3", 2), "3.00");
    EXPECT_EQ(Rounded("3.1", 3), "3.100");
    EXPECT_EQ(Rounded("-3.", 1), "-3.0");
    EXPECT_EQ(Rounded("", 2), ".00");
    EXPECT_EQ(Rounded("3,5", 2, ','), "3,50");
    EXPECT_EQ(Rounded("3.5", 2, ','), "3.5,00") << "the point is not the decimal character";
}

TEST(RoundDigits, CutsWithoutDigits) {
    EXPECT_EQ(Rounded("2.7", 0), "2");
    EXPECT_EQ(Rounded("2.7", 0, '.', kGeneral), "2");
    EXPECT_EQ(Rounded("-2.999", 0), "-2");
    EXPECT_EQ(Rounded("3.", 0), "3");
    EXPECT_EQ(Rounded("3", 0), "3");
    EXPECT_EQ(Rounded("-0.", 0), "-0");
    EXPECT_EQ(Rounded(".5", 0), "");
}

TEST(RoundDigits, TheFirstDroppedDigitDecides) {
    EXPECT_EQ(Rounded("1.004", 2), "1.00");
    EXPECT_EQ(Rounded("1.0049999", 2), "1.00");
    EXPECT_EQ(Rounded("1.005", 2), "1.01");
    EXPECT_EQ(Rounded("-1.005", 2), "-1.01");
    EXPECT_EQ(Rounded("0.25", 1), "0.3");
    EXPECT_EQ(Rounded("0.24", 1), "0.2");
    EXPECT_EQ(Rounded("1.23", 2), "1.23");
    EXPECT_EQ(Rounded("1.2345", 3), "1.235");
}

TEST(RoundDigits, CarriesToTheLeft) {
    EXPECT_EQ(Rounded("1.995", 2), "2.00");
    EXPECT_EQ(Rounded("1.095", 2), "1.10");
    EXPECT_EQ(Rounded("19.96", 1), "20.0");
    EXPECT_EQ(Rounded("899.99", 1), "900.0");
    EXPECT_EQ(Rounded("0.999", 2), "1.00");
    EXPECT_EQ(Rounded("19,96", 1, ','), "20,0");
}

// The second character is there twice when a carry runs past the first.
TEST(RoundDigits, DoublesTheCharacterThatACarryPushes) {
    EXPECT_EQ(Rounded("9.996", 2), "1..00");
    EXPECT_EQ(Rounded("-9.996", 2), "-1..00");
    EXPECT_EQ(Rounded("+9.996", 2), "1..00");
    EXPECT_EQ(Rounded("9,96", 1, ','), "1,,0");
    EXPECT_EQ(Rounded("99.996", 2), "100.00");
    EXPECT_EQ(Rounded("999.95", 1), "1000.0");
    EXPECT_EQ(Rounded("9.996e+020", 2), "1..00e+020");
    EXPECT_EQ(Rounded("99.99999", 4), "100.0000");
}

TEST(RoundDigits, KeepsAndDropsSigns) {
    EXPECT_EQ(Rounded("+3.5", 1), "3.5");
    EXPECT_EQ(Rounded("-3.55", 1), "-3.6");
    EXPECT_EQ(Rounded("-", 1), "-.0");
    EXPECT_EQ(Rounded("+", 0), "");
}

TEST(RoundDigits, PutsTheExponentBack) {
    EXPECT_EQ(Rounded("1.5e+020", 2), "1.50e+020");
    EXPECT_EQ(Rounded("1.5e+020", 0), "1e+020");
    EXPECT_EQ(Rounded("-1.e-007", 1), "-1.0e-007");
    EXPECT_EQ(Rounded("1.2345e-005", 2), "1.23e-005");
    EXPECT_EQ(Rounded("1.2355e-005", 3), "1.236e-005");
    EXPECT_EQ(Rounded("5e3", 2), "5.00e3");
    EXPECT_EQ(Rounded("1.5e+020", 2, '.', kFloatingUnpadded), "1.50e+020");
}

TEST(RoundDigits, LeavesAnExponentOfTheGeneralKindAlone) {
    EXPECT_EQ(Rounded("1.5e+020", 4, '.', kGeneral), "1.5e+020");
    EXPECT_EQ(Rounded("+1.e-007", 0, '.', kGeneral), "+1.e-007");
    EXPECT_EQ(Rounded("1.5e+020", 4, '.', 10), "1.5e+020") << "an unknown kind is the general one";
    EXPECT_EQ(Rounded("1.5", 4, '.', kGeneral), "1.5000");
}

TEST(RoundDigits, TakesALastDecimalCharacterAway) {
    EXPECT_EQ(Rounded("3.e", 0, '.', kFloating), "3e");
    EXPECT_EQ(Rounded("3e.", 0, '.', kFloating), "3e");
    EXPECT_EQ(Rounded("12..34", 1), "12.") << "one of the two that are kept";
}

// Characters that are no digits neither round nor take a carry.
TEST(RoundDigits, PassesOverWhatIsNoDigit) {
    EXPECT_EQ(Rounded("1.2x", 1), "1.2");
    EXPECT_EQ(Rounded("1 9.96", 1), "2 0.0");
    EXPECT_EQ(Rounded("1.#INF", 2), "1.#I");
}

// "1." and 61 zeros; one place less for a sign, and as many as it takes for an exponent.
TEST(RoundDigits, CutsDecimalsAt63Characters) {
    EXPECT_EQ(Rounded("1.", 61), "1." + std::string(61, '0'));
    for (const int digits : {62, 63, 64, 1000, 32767, 32768, 65535}) {
        const auto count = static_cast<std::uint16_t>(digits);
        EXPECT_EQ(Rounded("1.", count), "1." + std::string(61, '0')) << digits;
        EXPECT_EQ(Rounded("-1.", count), "-1." + std::string(60, '0')) << digits;
        EXPECT_EQ(Rounded("1.5e+020", count), "1.5" + std::string(55, '0') + "e+020") << digits;
        EXPECT_EQ(Rounded("-1.5e+020", count), "-1.5" + std::string(54, '0') + "e+020") << digits;
    }
    EXPECT_EQ(Rounded(std::string(63, '7'), 2), std::string(63, '7'));
    EXPECT_EQ(Rounded(std::string(62, '7'), 2), std::string(62, '7')) << "no character to end on";
}

TEST(RoundDigits, CarriesInAFullText) {
    const std::string nines(60, '9');
    EXPECT_EQ(Rounded(nines + ".96", 1), "1" + std::string(60, '0') + ".0");
    EXPECT_EQ(Rounded("-" + std::string(59, '9') + ".96", 1), "-1" + std::string(59, '0') + ".0");
    EXPECT_EQ(Rounded("9." + std::string(61, '9'), 60), "1.." + std::string(60, '0'));
}

TEST(RoundDigits, StaysInASmallBuffer) {
    for (std::size_t size = 0; size <= 12; ++size) {
        std::vector<char> buffer = BufferOf("-9.96e+020", size);
        RoundDigits(buffer, 9, '.', kFloating);
        EXPECT_TRUE(size == 0 || std::count(buffer.begin(), buffer.end(), '\0') > 0);
    }
}

TEST(RoundDigits, WithoutADecimalCharacterLeavesTheNumber) {
    EXPECT_EQ(Rounded("-3.96", 1, '\0'), "-3.96");
    EXPECT_EQ(Rounded("3", 4, '\0'), "3");
}

TEST(GroupThousands, GroupsByThree) {
    EXPECT_EQ(Grouped(""), "");
    EXPECT_EQ(Grouped("1"), "1");
    EXPECT_EQ(Grouped("123"), "123");
    EXPECT_EQ(Grouped("1234"), "1,234");
    EXPECT_EQ(Grouped("123456"), "123,456");
    EXPECT_EQ(Grouped("1234567"), "1,234,567");
    EXPECT_EQ(Grouped("2147483647"), "2,147,483,647");
    EXPECT_EQ(Grouped("123.4567"), "123.4567");
    EXPECT_EQ(Grouped("1234.5678"), "1,234.5678");
    EXPECT_EQ(Grouped(".1234"), ".1234");
}

TEST(GroupThousands, KeepsAMinusAndDropsAPlus) {
    EXPECT_EQ(Grouped("-123"), "-123");
    EXPECT_EQ(Grouped("-1234"), "-1,234");
    EXPECT_EQ(Grouped("-123456.5"), "-123,456.5");
    EXPECT_EQ(Grouped("+1234"), "1,234");
}

TEST(GroupThousands, UsesTheUsersCharacters) {
    EXPECT_EQ(Grouped("1234567,89", '.', ','), "1.234.567,89");
    EXPECT_EQ(Grouped("1234567.89", '\xA0'), "1\xA0"
                                             "234\xA0"
                                             "567.89");
    EXPECT_EQ(Grouped("1234567", '.', '.'), "1.234.567");
    EXPECT_EQ(Grouped("1234567", '\0'), "1234567");
    EXPECT_EQ(Grouped("1234567.5", ',', '\0'), "123,456,7.5") << "all of it is one number";
}

TEST(GroupThousands, CutsAt63Characters) {
    // 48 digits in 16 groups take 63 characters; 63 digits start the same way.
    std::string groups = "777";
    for (int group = 1; group < 16; ++group) {
        groups += ",777";
    }
    ASSERT_EQ(groups.size(), 63U);
    EXPECT_EQ(Grouped(std::string(48, '7')), groups);
    EXPECT_EQ(Grouped(std::string(63, '7')), groups);
    EXPECT_EQ(Grouped("1234." + std::string(58, '7')), "1,234." + std::string(57, '7'));
    EXPECT_EQ(Grouped("-1234." + std::string(57, '7')), "-1,234." + std::string(56, '7'));
}

TEST(StripLeadingZero, TakesOneZeroAway) {
    EXPECT_EQ(Stripped("0.50", 0), ".50");
    EXPECT_EQ(Stripped("-0.5", 0), "-.5");
    EXPECT_EQ(Stripped("(0.5)", 0), "(.5)");
    EXPECT_EQ(Stripped("0,5", 0, ','), ",5");
    EXPECT_EQ(Stripped("0.", 0), ".");
}

TEST(StripLeadingZero, LeavesOtherTexts) {
    for (const char* text : {"", "0", "-0", "(0)", "00.5", "10.5", ".5", "-", "0,5", "+0.5", "1"}) {
        EXPECT_EQ(Stripped(text, 0), text);
    }
    EXPECT_EQ(Stripped("0", 0, '\0'), "0");
    for (const std::int32_t leadingZero : {1, 2, -1}) {
        EXPECT_EQ(Stripped("0.50", leadingZero), "0.50");
        EXPECT_EQ(Stripped("-0.5", leadingZero), "-0.5");
    }
}

TEST(FormatNumber, WritesEveryKind) {
    const struct {
        const char* text;
        std::uint16_t digits;
        const char* displayed[10];
        const char* edited[10];
    } cases[] = {
        {"-1234567.891",
         2,
         {"-1234567.89", "-1234567", "-1,234,567", "(1234567)", "(1,234,567)", "-1234567.89",
          "-1,234,567.89", "(1234567.89)", "(1,234,567.89)", "-1234567.89"},
         {"-1234567.89", "-1234567", "-1234567", "-1234567", "-1234567", "-1234567.89",
          "-1234567.89", "-1234567.89", "-1234567.89", "-1234567.89"}},
        {"1234.5",
         0,
         {"1234", "1234", "1,234", "1234", "1,234", "1234", "1,234", "1234", "1,234", "1234"},
         {"1234", "1234", "1234", "1234", "1234", "1234", "1234", "1234", "1234", "1234"}},
        {"1234.5",
         3,
         {"1234.500", "1234", "1,234", "1234", "1,234", "1234.500", "1,234.500", "1234.500",
          "1,234.500", "1234.500"},
         {"1234.500", "1234", "1234", "1234", "1234", "1234.500", "1234.500", "1234.500",
          "1234.500", "1234.500"}},
        {"-1.55e20",
         1,
         {"-1.55e+020", "-2147483648", "-2,147,483,648", "(2147483648)", "(2,147,483,648)",
          "-1.6e+020", "-1.6e+020", "(1.6e+020)", "(1.6e+020)", "-1.6e+020"},
         {"-1.55e+020", "-2147483648", "-2147483648", "-2147483648", "-2147483648", "-1.6e+020",
          "-1.6e+020", "-1.6e+020", "-1.6e+020", "-1.6e+020"}},
        {"0.05",
         2,
         {"5.e-002", "0", "0", "0", "0", "5.00e-002", "5.00e-002", "5.00e-002", "5.00e-002",
          "5.00e-002"},
         {"5.e-002", "0", "0", "0", "0", "5.00e-002", "5.00e-002", "5.00e-002", "5.00e-002",
          "5.00e-002"}},
        {"-0.5",
         1,
         {"-0.5", "0", "0", "0", "0", "-0.5", "-0.5", "(0.5)", "(0.5)", "-0.5"},
         {"-0.5", "0", "0", "0", "0", "-0.5", "-0.5", "-0.5", "-0.5", "-0.5"}}};
    for (const auto& [text, digits, displayed, edited] : cases) {
        for (std::uint32_t kind = 0; kind < 10; ++kind) {
            EXPECT_EQ(Formatted(Kind(kind, digits), text), displayed[kind]) << text << ' ' << kind;
            EXPECT_EQ(Formatted(Kind(kind, digits), text, 1), edited[kind]) << text << ' ' << kind;
            EXPECT_EQ(Formatted(Kind(kind, digits), text, -1), edited[kind]) << text << ' ' << kind;
        }
    }
}

TEST(FormatNumber, AnUnknownKindIsTheGeneralOne) {
    for (const std::uint32_t kind : {10U, 255U, 0xFFFFFFFFU}) {
        EXPECT_EQ(Formatted(Kind(kind, 1), "-1234.56"), "-1234.6");
        EXPECT_EQ(Formatted(Kind(kind, 1), "1.5e20"), "1.5e+020");
    }
}

TEST(FormatNumber, RoundsByTheTextsDigits) {
    EXPECT_EQ(Formatted(Kind(kGeneral), "2.7"), "2");
    EXPECT_EQ(Formatted(Kind(kFloating, 2), "1.005"), "1.01");
    EXPECT_EQ(Formatted(Kind(kFloating, 2), "1.004"), "1.00");
    EXPECT_EQ(Formatted(Kind(kFloating, 2), "3"), "3.00");
    EXPECT_EQ(Formatted(Kind(kFloating, 2), "9.996"), "1..00");
    EXPECT_EQ(Formatted(Kind(kFloating, 2), "99.996"), "100.00");
    EXPECT_EQ(Formatted(Kind(kFloatingUnpadded, 2), "7"), "7.00");
}

TEST(FormatNumber, KindsAndExponents) {
    EXPECT_EQ(Formatted(Kind(kGeneral, 3), "1.5e20"), "1.5e+020");
    EXPECT_EQ(Formatted(Kind(kFloatingUnpadded, 3), "1.5e20"), "1.500e+020");
    EXPECT_EQ(Formatted(Kind(kFloating), "1.5e20"), "1e+020");
    // Without decimals nothing tells the exponent from the digits that are grouped.
    EXPECT_EQ(Formatted(Kind(kFloatingGrouped), "1.5e20"), "1e+,020");
}

TEST(FormatNumber, LeadingZero) {
    NumberSettings settings = Kind(kFloating, 1);
    settings.leadingZero = 0;
    EXPECT_EQ(Formatted(settings, "0.25"), ".3");
    EXPECT_EQ(Formatted(settings, "-0.25"), "-.3");
    EXPECT_EQ(Formatted(settings, "-0.25", 1), "-.3");
    EXPECT_EQ(Formatted(settings, "0"), ".0");
    for (const std::uint32_t kind : {kGeneral, kFloatingGrouped, kFloatingUnpadded}) {
        settings.formatKind = kind;
        EXPECT_EQ(Formatted(settings, "-0.25"), "-.3") << kind;
    }
    for (const std::uint32_t kind : {kFloatingParentheses, kFloatingGroupedParentheses}) {
        settings.formatKind = kind;
        EXPECT_EQ(Formatted(settings, "-0.25"), "(.3)") << kind;
        EXPECT_EQ(Formatted(settings, "-0.25", 1), "-.3") << kind;
    }
    for (std::uint32_t kind = kInteger; kind <= kIntegerGroupedParentheses; ++kind) {
        settings.formatKind = kind;
        EXPECT_EQ(Formatted(settings, "0.25"), "0") << kind;
    }
    settings.formatKind = kGeneral;
    settings.decimalDigits = 0;
    EXPECT_EQ(Formatted(settings, "0.25"), "0") << "no decimal character, nothing to strip";
}

TEST(FormatNumber, RegionalCharacters) {
    NumberSettings settings = Kind(kFloatingGroupedParentheses, 2);
    settings.thousandChar = '.';
    settings.decimalChar = ',';
    EXPECT_EQ(Formatted(settings, "-1234567,891"), "(1.234.567,89)");
    settings.formatKind = kFloating;
    EXPECT_EQ(Formatted(settings, "9,996"), "1,,00");
    settings.formatKind = kGeneral;
    EXPECT_EQ(Formatted(settings, "5e-2"), "5,e-002");
    settings.thousandChar = 0xA0;
    settings.formatKind = kIntegerGrouped;
    EXPECT_EQ(Formatted(settings, "1234"), "1\xA0"
                                           "234");
}

// The stored text keeps its point from then on.
TEST(FormatNumber, ReplacesTheDecimalCharacterOfTheText) {
    NumberSettings settings = Kind(kFloating, 1);
    settings.decimalChar = ',';
    char text[] = "1234,5";
    char formatted[kNumberTextSize];
    FormatNumber(settings, text, 0, formatted);
    EXPECT_STREQ(text, "1234.5");
    EXPECT_STREQ(formatted, "1234,5");
}

TEST(FormatNumber, TheDigitDisplayShowsIntegers) {
    for (std::uint32_t kind = 0; kind < 10; ++kind) {
        NumberSettings settings = Kind(kind, 2);
        settings.displayStyle = kDigitDisplay;
        settings.leadingZero = 0;
        EXPECT_EQ(Formatted(settings, "-1234.567"), "-1234") << kind;
        EXPECT_EQ(Formatted(settings, "0.9", 1), "0") << kind;
        EXPECT_EQ(Formatted(settings, "1e300"), "2147483647") << kind;
    }
    NumberSettings settings = Kind(kFloating, 2);
    settings.displayStyle = 3;
    EXPECT_EQ(Formatted(settings, "-1234.567"), "-1234.57") << "the other cells show decimals";
}

TEST(FormatNumber, NullIsABlank) {
    for (std::uint32_t kind = 0; kind < 10; ++kind) {
        NumberSettings settings = Kind(kind, 2);
        settings.isNull = 1;
        EXPECT_EQ(Formatted(settings, "12"), " ");
        EXPECT_EQ(Formatted(settings, "12", 1), " ");
        settings.displayStyle = kDigitDisplay;
        EXPECT_EQ(Formatted(settings, ""), " ");
    }
    NumberSettings settings = Kind(kFloating, 2);
    settings.isNull = -1;
    settings.decimalChar = ',';
    char text[] = "1,5";
    char formatted[kNumberTextSize];
    FormatNumber(settings, text, 0, formatted);
    EXPECT_STREQ(text, "1,5") << "nothing is converted";
}

TEST(FormatNumber, WritesWhatAnInvalidTextBeginsWith) {
    EXPECT_EQ(Formatted(Kind(kFloating, 2), "12abc"), "12.00");
    EXPECT_EQ(Formatted(Kind(kFloating, 2), ""), "0.00");
    EXPECT_EQ(Formatted(Kind(kInteger), "x"), "0");
}

TEST(FormatNumber, InfiniteNumbersAreNotRounded) {
    EXPECT_EQ(Formatted(Kind(kGeneral), "1e999"), "1.#INF");
    EXPECT_EQ(Formatted(Kind(kFloating, 1), "-1e999"), "-1.#INF");
    EXPECT_EQ(Formatted(Kind(kFloatingGroupedParentheses, 1), "-1e999"), "(1.#INF)");
    EXPECT_EQ(Formatted(Kind(kInteger), "1e999"), "2147483647");
    EXPECT_EQ(Formatted(Kind(kInteger), "-1e999"), "-2147483648");
}

TEST(FormatNumber, CutsDecimalsAt63Characters) {
    for (const int digits : {62, 64, 100, 32768, 65535}) {
        const auto count = static_cast<std::uint16_t>(digits);
        EXPECT_EQ(Formatted(Kind(kFloating, count), "1"), "1." + std::string(61, '0'));
        EXPECT_EQ(Formatted(Kind(kFloatingGrouped, count), "-1234.5"),
                  "-1,234.5" + std::string(55, '0'));
        // The closing parenthesis and the exponent stay.
        EXPECT_EQ(Formatted(Kind(kFloatingParentheses, count), "-1"),
                  "(1." + std::string(59, '0') + ")");
        EXPECT_EQ(Formatted(Kind(kFloatingParentheses, count), "1"), "1." + std::string(61, '0'));
        EXPECT_EQ(Formatted(Kind(kFloatingGroupedParentheses, count), "-1234.5"),
                  "(1,234.5" + std::string(54, '0') + ")");
        EXPECT_EQ(Formatted(Kind(kFloatingGroupedParentheses, count), "-1.5e20"),
                  "(1.5" + std::string(53, '0') + "e+020)");
    }
}

} // namespace
} // namespace vorn::numeric
