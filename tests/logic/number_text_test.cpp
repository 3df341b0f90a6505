// Text to number: what converts, what is valid, and that every result is the nearest double.
#include "numeric/number_text.h"
#include "tests/support/decimal_oracle.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

namespace vorn::numeric {
namespace {

using test::CompareDecimals;
using test::Decimal;
using test::ExactDecimal;
using test::MakeDecimal;
using test::RandomBits;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

struct Read {
    double value;
    bool valid;
    std::string text; // what became of it
};

// Reads from the heap, so that the sanitizer sees any byte beyond the text.
Read ReadText(const std::string& text, char decimalChar = '.') {
    std::vector<char> exact(text.c_str(), text.c_str() + text.size() + 1);
    NumberSettings settings;
    settings.decimalChar = static_cast<unsigned char>(decimalChar);
    Read read{99, false, {}};
    read.valid = TextToNumber(settings, exact.data(), read.value) != 0;
    read.text = exact.data();
    return read;
}

void ExpectBits(double actual, double expected, const std::string& text) {
    EXPECT_EQ(std::bit_cast<std::uint64_t>(actual), std::bit_cast<std::uint64_t>(expected))
        << text << " reads as " << actual;
}

TEST(TextToNumber, ConvertsWholeTexts) {
    const struct {
        const char* text;
        double value;
    } cases[] = {{"0", 0},
                 {"-0", -0.0},
                 {"7", 7},
                 {"+7", 7},
                 {"-7", -7},
                 {"007", 7},
                 {"2.9", 2.9},
                 {"-2.9", -2.9},
                 {".5", 0.5},
                 {"-.5", -0.5},
                 {"5.", 5},
                 {"0.", 0},
                 {"-0.", -0.0},
                 {"  12", 12},
                 {"\t\n\v\f\r 12", 12},
                 {"1e3", 1000},
                 {"1E3", 1000},
                 {"1e+3", 1000},
                 {"1e-3", 0.001},
                 {"1.5e+020", 1.5e20},
                 {"5.e-002", 0.05},
                 {".5e1", 5},
                 {"0e999", 0},
                 {"123456789012.", 123456789012.0},
                 {"2147483648", 2147483648.0},
                 {"9007199254740993", 9007199254740992.0},
                 {"1.7976931348623157e308", 1.7976931348623157e308},
                 {"0.000000000000000000000000000001e30", 1},
                 {"1000000000000000000000000000000e-30", 1}};
    for (const auto& [text, value] : cases) {
        const Read read = ReadText(text);
        EXPECT_TRUE(read.valid) << text;
        ExpectBits(read.value, value, text);
        EXPECT_EQ(read.text, text);
    }
}

// The value is that of what converts.
TEST(TextToNumber, RefusesWhatDoesNotConvertWhole) {
    const struct {
        const char* text;
        double value;
    } cases[] = {{"", 0},
                 {" ", 0},
                 {"-", 0},
                 {"+", 0},
                 {".", 0},
                 {"-.", 0},
                 {"e", 0},
                 {"e5", 0},
                 {".e5", 0},
                 {"abc", 0},
                 {"--1", 0},
                 {"- 1", 0},
                 {"7 ", 7},
                 {"12abc", 12},
                 {"1.2.3", 1.2},
                 {"1..2", 1},
                 {"1e", 1},
                 {"1e+", 1},
                 {"1e-", 1},
                 {"1ee5", 1},
                 {"1e5.5", 1e5},
                 {"1e 5", 1},
                 {"2d3", 2},
                 {"1,234", 1},
                 {"(5)", 0},
                 {"\xA0"
                  "5",
                  0}};
    for (const auto& [text, value] : cases) {
        const Read read = ReadText(text);
        EXPECT_FALSE(read.valid) << text;
        ExpectBits(read.value, value, text);
    }
}

// Names and other bases are letters, whatever a C library takes them for.
TEST(TextToNumber, KnowsNoNamesAndNoOtherBases) {
    for (const char* text : {"inf", "infinity", "-inf", "nan", "nan(1)", "1.#INF"}) {
        EXPECT_FALSE(ReadText(text).valid) << text;
    }
    ExpectBits(ReadText("inf").value, 0, "inf");
    ExpectBits(ReadText("nan").value, 0, "nan");
    EXPECT_FALSE(ReadText("0x1A").valid);
    ExpectBits(ReadText("0x1A").value, 0, "0x1A");
}

// The middle of the largest double and the next power of two, (2^54 - 1) * 2^970, and one less.
constexpr char kOverflow[] =
    "17976931348623158079372897140530341507993413271003782693617377898044496829276475"
    "09466490179775872070963302864166928879109465555478519404026306574886715058206819"
    "08902000708383676273854845817711531764475730270069855571366959622842914819860834"
    "936475292719074168444365510704342711559699508093042880177904174497792";
constexpr char kLargest[] =
    "17976931348623158079372897140530341507993413271003782693617377898044496829276475"
    "09466490179775872070963302864166928879109465555478519404026306574886715058206819"
    "08902000708383676273854845817711531764475730270069855571366959622842914819860834"
    "936475292719074168444365510704342711559699508093042880177904174497791";

TEST(TextToNumber, RefusesOverflow) {
    for (const char* text :
         {"1e309", "1e999999999999999999999", "1.7976931348623159e308", kOverflow}) {
        const Read read = ReadText(text);
        EXPECT_FALSE(read.valid) << text;
        ExpectBits(read.value, kInfinity, text);
        ExpectBits(ReadText(std::string("-") + text).value, -kInfinity, text);
    }
    const Read largest = ReadText(kLargest);
    EXPECT_TRUE(largest.valid);
    ExpectBits(largest.value, std::numeric_limits<double>::max(), "the largest");
}

TEST(TextToNumber, UnderflowIsValid) {
    const double least = std::numeric_limits<double>::denorm_min();
    const struct {
        const char* text;
        double value;
    } cases[] = {{"1e-400", 0},
                 {"-1e-400", -0.0},
                 {"1e-99999999999999999999", 0},
                 {"2.4703282292062327e-324", 0}, // below the middle of 0 and the least
                 {"2.4703282292062328e-324", least},
                 {"4.9406564584124654e-324", least},
                 {"7.4109846876186981e-324", least}, // below the middle of it and its double
                 {"7.4109846876186982e-324", 2 * least},
                 {"2.2250738585072011e-308", 2.2250738585072011e-308},
                 {"2.2250738585072014e-308", std::numeric_limits<double>::min()}};
    for (const auto& [text, value] : cases) {
        const Read read = ReadText(text);
        EXPECT_TRUE(read.valid) << text;
        ExpectBits(read.value, value, text);
    }
}

TEST(TextToNumber, ReadsTextsOfAnyLength) {
    const std::string zeros(100000, '0');
    ExpectBits(ReadText(zeros + "7").value, 7, "zeros in front");
    ExpectBits(ReadText("0." + zeros + "7e100001").value, 7, "zeros between");
    ExpectBits(ReadText("7" + zeros + "e-100000").value, 7, "zeros behind");
    ExpectBits(ReadText("7." + zeros).value, 7, "zeros as decimals");
    ExpectBits(ReadText("7" + zeros).value, kInfinity, "a large number");
    ExpectBits(ReadText("1e" + zeros + "2").value, 100, "an exponent with zeros");
}

// Only the last of very many digits tells on which side of the middle a number is.
TEST(TextToNumber, SeesTheLastDigit) {
    const std::string middle = "9007199254740993"; // between ...992, which is even, and ...994
    const std::string zeros(2000, '0');
    ExpectBits(ReadText(middle + "." + zeros).value, 9007199254740992.0, "the middle");
    ExpectBits(ReadText(middle + "." + zeros + "1").value, 9007199254740994.0, "above");
    ExpectBits(ReadText("9007199254740992." + std::string(2000, '9')).value, 9007199254740992.0,
               "below");
    const std::string other = "9007199254740995"; // between ...994 and ...996, which is even
    ExpectBits(ReadText(other).value, 9007199254740996.0, "the middle");
    ExpectBits(ReadText(other + zeros + "1e-2001").value, 9007199254740996.0, "above");
    ExpectBits(ReadText("9007199254740994" + std::string(2000, '9') + "e-2000").value,
               9007199254740994.0, "below");
    ExpectBits(ReadText(middle + ".0.1").value, 9007199254740992.0, "what converts is the middle");
}

TEST(TextToNumber, ReplacesTheDecimalCharacter) {
    const Read comma = ReadText("1234,5", ',');
    EXPECT_TRUE(comma.valid);
    EXPECT_EQ(comma.value, 1234.5);
    EXPECT_EQ(comma.text, "1234.5");
    EXPECT_TRUE(ReadText("1234.5", ',').valid) << "a point reads as one all the same";
    const Read two = ReadText("1,2,3", ',');
    EXPECT_FALSE(two.valid);
    EXPECT_EQ(two.text, "1.2.3");
    EXPECT_EQ(two.value, 1.2);
    const Read high = ReadText("1\xB7"
                               "5",
                               '\xB7');
    EXPECT_TRUE(high.valid);
    EXPECT_EQ(high.text, "1.5");
}

TEST(TextToNumber, WithoutADecimalCharacterLeavesTheText) {
    NumberSettings settings;
    settings.decimalChar = 0x0100; // no character in the low byte
    char text[] = "1.5";
    double value = 0;
    EXPECT_EQ(TextToNumber(settings, text, value), 1);
    EXPECT_EQ(value, 1.5);
    EXPECT_STREQ(text, "1.5");
}

TEST(TruncateToInteger, GoesTowardZero) {
    EXPECT_EQ(TruncateToInteger(2.9), 2);
    EXPECT_EQ(TruncateToInteger(-2.9), -2);
    EXPECT_EQ(TruncateToInteger(0.99), 0);
    EXPECT_EQ(TruncateToInteger(-0.0), 0);
}

TEST(TruncateToInteger, StaysWithin32Bits) {
    EXPECT_EQ(TruncateToInteger(2147483646.9), 2147483646);
    EXPECT_EQ(TruncateToInteger(2147483647.0), 2147483647);
    EXPECT_EQ(TruncateToInteger(2147483647.9), 2147483647);
    EXPECT_EQ(TruncateToInteger(2147483648.0), 2147483647);
    EXPECT_EQ(TruncateToInteger(-2147483647.9), -2147483647);
    EXPECT_EQ(TruncateToInteger(-2147483648.0), -2147483647 - 1);
    EXPECT_EQ(TruncateToInteger(-2147483648.9), -2147483647 - 1);
    EXPECT_EQ(TruncateToInteger(-1e300), -2147483647 - 1);
    EXPECT_EQ(TruncateToInteger(kInfinity), 2147483647);
    EXPECT_EQ(TruncateToInteger(-kInfinity), -2147483647 - 1);
    EXPECT_EQ(TruncateToInteger(std::numeric_limits<double>::quiet_NaN()), -2147483647 - 1);
}

// The middle of a positive double and the one `step` away from it, where the infinite one counts as
// the next power of two.
Decimal Middle(double value, int step) {
    const std::uint64_t bits = std::bit_cast<std::uint64_t>(value);
    const std::uint64_t lower = step > 0 ? bits : bits - 1;
    const std::uint64_t fraction = lower & 0xFFFFFFFFFFFFF;
    const int field = static_cast<int>(lower >> 52);
    // From one double to the next the mantissa, in units of the lower one, grows by one.
    const std::uint64_t mantissa = field == 0 ? fraction : fraction | (std::uint64_t{1} << 52);
    return ExactDecimal(2 * mantissa + 1, (field == 0 ? 1 : field) - 1076);
}

// Whether a number reads as the double next to it.
void CheckNearest(const std::string& digits, long long power) {
    const std::string text = digits + "e" + std::to_string(power);
    const Decimal exact = MakeDecimal(digits, static_cast<long long>(digits.size()) + power);
    const double value = ReadText(text).value;
    const bool even = (std::bit_cast<std::uint64_t>(value) & 1) == 0;
    if (value != kInfinity) {
        const int above = CompareDecimals(exact, Middle(value, 1));
        EXPECT_TRUE(above < 0 || (above == 0 && even)) << text << " reads as " << value;
    }
    if (value != 0) {
        const int below = CompareDecimals(exact, Middle(value, -1));
        EXPECT_TRUE(below > 0 || (below == 0 && even)) << text << " reads as " << value;
    }
}

TEST(TextToNumber, ReadsRandomNumbersAsTheNearestDouble) {
    RandomBits random;
    for (int count = 0; count < 10000; ++count) {
        std::string digits = std::to_string(random.Next());
        digits.resize(1 + static_cast<std::size_t>(random.Below(digits.size())));
        if (random.Below(3) == 0) {
            digits += std::to_string(random.Next()) + std::to_string(random.Next());
        }
        CheckNearest(digits, static_cast<long long>(random.Below(680)) - 350);
        CheckNearest(digits, static_cast<long long>(random.Below(30)) - 20);
    }
}

// The middle of two doubles itself, and one unit of its last digit beside it.
TEST(TextToNumber, ReadsTheMiddleOfTwoDoubles) {
    RandomBits random;
    for (int count = 0; count < 1500; ++count) {
        // Every third has few digits, as typed numbers do.
        const std::uint64_t exponent =
            count % 3 == 0 ? 1000 + random.Below(120) : random.Below(2047);
        const double value =
            std::bit_cast<double>(exponent << 52 | (random.Next() & 0xFFFFFFFFFFFFF));
        const Decimal middle = Middle(value, 1);
        const long long power = middle.point - static_cast<long long>(middle.digits.size());
        CheckNearest(middle.digits, power);
        std::string beside = middle.digits + "1";
        CheckNearest(beside, power - 1);
        beside = middle.digits;
        --beside.back(); // the last digit is never 0
        beside += "9";
        CheckNearest(beside, power - 1);
    }
}

} // namespace
} // namespace vorn::numeric
