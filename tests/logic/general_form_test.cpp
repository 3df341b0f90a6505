// Twelve significant digits of any double, and the products that round them.
#include "numeric/general_form.h"
#include "numeric/power_of_ten.h"
#include "tests/support/decimal_oracle.h"

#include <bit>
#include <cmath>
#include <cstdlib>
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

std::string General(double value) {
    std::vector<char> text(kGeneralFormSize);
    EXPECT_EQ(GeneralForm(value, text), 1);
    return text.data();
}

TEST(GeneralForm, WritesKnownNumbers) {
    const struct {
        double value;
        const char* text;
    } cases[] = {{0, "0."},
                 {-0.0, "-0."},
                 {1, "1."},
                 {3, "3."},
                 {-3, "-3."},
                 {10, "10."},
                 {100, "100."},
                 {0.25, "0.25"},
                 {-0.25, "-0.25"},
                 {0.1, "0.1"},
                 {0.05, "5.e-002"},
                 {0.0999, "9.99e-002"},
                 {1.005, "1.005"},
                 {9.996, "9.996"},
                 {1234.5, "1234.5"},
                 {-1234567.891, "-1234567.891"},
                 {123456789012.0, "123456789012."},
                 {1.5e20, "1.5e+020"},
                 {-1e-7, "-1.e-007"},
                 {1e100, "1.e+100"},
                 {1.0 / 3, "0.333333333333"},
                 {2.0 / 3, "0.666666666667"},
                 {2e10 / 3, "6666666666.67"},
                 {-2.0 / 3e200, "-6.66666666667e-201"},
                 {1.7976931348623157e308, "1.79769313486e+308"},
                 {2.2250738585072014e-308, "2.22507385851e-308"},
                 {5e-324, "4.94065645841e-324"}};
    for (const auto& [value, text] : cases) {
        EXPECT_EQ(General(value), text);
    }
}

// Fixed from 0.1 to below 1e12, by the value after it is rounded.
TEST(GeneralForm, ChoosesTheFormAfterRounding) {
    EXPECT_EQ(General(0.09999999999994), "9.99999999999e-002");
    EXPECT_EQ(General(0.09999999999996), "0.1");
    EXPECT_EQ(General(0.0999999999999), "9.99999999999e-002");
    EXPECT_EQ(General(999999999999.0), "999999999999.");
    EXPECT_EQ(General(999999999999.4), "999999999999.");
    EXPECT_EQ(General(999999999999.5), "1.e+012");
    EXPECT_EQ(General(1e12), "1.e+012");
    EXPECT_EQ(General(9999999999996.0), "1.e+013");
    EXPECT_EQ(General(0.99999999999951), "1.");
    EXPECT_EQ(General(9.9999999999951), "10.");
}

// Each of these doubles lies exactly half-way between two numbers of twelve digits.
TEST(GeneralForm, RoundsHalfAwayFromZero) {
    EXPECT_EQ(General(1234567890.125), "1234567890.13");
    EXPECT_EQ(General(-1234567890.125), "-1234567890.13");
    EXPECT_EQ(General(1234567890.375), "1234567890.38");
    EXPECT_EQ(General(1234567890125.0), "1.23456789013e+012");
    EXPECT_EQ(General(12345678901.25), "12345678901.3");
    EXPECT_EQ(General(123456789012.5), "123456789013.");
    EXPECT_EQ(General(std::nextafter(123456789012.5, 0.0)), "123456789012.");
    EXPECT_EQ(General(std::nextafter(1234567890.125, 0.0)), "1234567890.12");
}

TEST(GeneralForm, WritesWhatIsNoNumber) {
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(General(infinity), "1.#INF");
    EXPECT_EQ(General(-infinity), "-1.#INF");
    EXPECT_EQ(General(std::bit_cast<double>(std::uint64_t{0x7FF8000000000000})), "1.#QNAN");
    EXPECT_EQ(General(std::bit_cast<double>(std::uint64_t{0xFFF8000000000000})), "-1.#QNAN");
}

TEST(GeneralForm, CutsToTheBuffer) {
    const std::string longest = "-1.23456789012e-308";
    ASSERT_EQ(General(-1.23456789012e-308), longest);
    EXPECT_EQ(longest.size() + 1, kGeneralFormSize);
    for (std::size_t size = 1; size <= kGeneralFormSize; ++size) {
        std::vector<char> text(size, 'x');
        GeneralForm(-1.23456789012e-308, text);
        EXPECT_EQ(std::string(text.data()), longest.substr(0, size - 1));
    }
    GeneralForm(1, {});
}

// The exact digits, rounded and laid out by hand. Three limbs have more than twelve digits.
std::string Expected(double value) {
    int exponent = 0;
    const double fraction = std::frexp(std::fabs(value), &exponent);
    Decimal exact =
        ExactDecimal(static_cast<std::uint64_t>(std::ldexp(fraction, 53)), exponent - 53, 3);
    std::string digits = exact.digits;
    digits.resize(std::max<std::size_t>(digits.size(), 13), '0');
    const bool up = digits[12] >= '5';
    digits.resize(12);
    if (up) {
        std::size_t last = digits.find_last_not_of('9');
        if (last == std::string::npos) {
            digits = "1";
            ++exact.point;
        } else {
            digits.resize(last + 1);
            ++digits[last];
        }
    }
    digits.resize(12, '0');
    const auto size = static_cast<int>(exact.point - 1);
    const int whole = size < -1 || size > 11 ? 1 : size + 1;
    std::string rest = digits.substr(static_cast<std::size_t>(whole));
    rest.erase(rest.find_last_not_of('0') + 1);
    std::string text = std::signbit(value) ? "-" : "";
    text += whole == 0 ? "0" : digits.substr(0, static_cast<std::size_t>(whole));
    text += "." + rest;
    if (size < -1 || size > 11) {
        const std::string number = std::to_string(std::abs(size));
        text += size < 0 ? "e-" : "e+";
        text += std::string(number.size() < 3 ? 3 - number.size() : 0, '0') + number;
    }
    return text;
}

// How many random numbers to try: some, or as many as VORN_NUMBER_CASES says for a long run.
std::uint64_t CaseCount(std::uint64_t usual) {
    const char* wanted = std::getenv("VORN_NUMBER_CASES");
    return wanted == nullptr ? usual : std::strtoull(wanted, nullptr, 10);
}

void CheckExact(double value) {
    if (std::isfinite(value) && value != 0 && General(value) != Expected(value)) {
        ADD_FAILURE() << General(value) << " should be " << Expected(value);
    }
}

TEST(GeneralForm, RoundsEveryDoubleCorrectly) {
    RandomBits random;
    for (std::uint64_t count = CaseCount(60000); count > 0; --count) {
        CheckExact(std::bit_cast<double>(random.Next()));
    }
}

// Numbers as people write them, whose products are exact or nearly so.
TEST(GeneralForm, RoundsShortNumbersCorrectly) {
    RandomBits random;
    for (std::uint64_t count = CaseCount(20000); count > 0; --count) {
        const auto number = static_cast<double>(random.Next() >> (11 + random.Below(53)));
        CheckExact(number / std::pow(10.0, static_cast<double>(random.Below(20))));
        // Thirteen digits with a 5 at the end: half-way, or as near as doubles are.
        const auto half = static_cast<double>(random.Below(1000000000000) * 10 + 5);
        const double scale = std::pow(10.0, static_cast<double>(random.Below(200)));
        CheckExact(half * scale);
        CheckExact(half / scale);
    }
}

TEST(GeneralForm, RoundsEveryPowerCorrectly) {
    for (int power = -1074; power <= 1023; ++power) {
        const double value = std::ldexp(1.0, power);
        CheckExact(value);
        CheckExact(std::nextafter(value, 0.0));
    }
    for (int power = -323; power <= 308; ++power) {
        const double value = std::strtod(("1e" + std::to_string(power)).c_str(), nullptr);
        CheckExact(value);
        CheckExact(std::nextafter(value, 0.0));
        CheckExact(std::nextafter(value, 1e308));
    }
}

// The product is at most the exact one, and the exact one less than the product's upper bound.
void CheckProduct(std::uint64_t number, int power) {
    const Product product = TimesPowerOfTen(number, power);
    ASSERT_NE(product.mantissa >> 63, 0U);
    const std::string digits = std::to_string(number);
    const Decimal exact = MakeDecimal(digits, static_cast<long long>(digits.size()) + power);
    // At most kProductError more; all of it may need 65 bits, but half of it fits.
    const std::uint64_t upper = (product.mantissa >> 1) + (product.mantissa & 1) + 3;
    static_assert(kProductError / 2 == 3);
    EXPECT_LE(CompareDecimals(ExactDecimal(product.mantissa, product.exponent), exact), 0)
        << number << " * 10^" << power;
    EXPECT_GT(CompareDecimals(ExactDecimal(upper, product.exponent + 1), exact), 0)
        << number << " * 10^" << power;
}

TEST(TimesPowerOfTen, StaysWithinItsError) {
    RandomBits random;
    for (int power = kLowestPower; power <= kHighestPower; ++power) {
        for (const std::uint64_t number :
             {std::uint64_t{1}, ~std::uint64_t{0}, std::uint64_t{1} << 63, random.Next() | 1,
              random.Below(100000) + 1}) {
            CheckProduct(number, power);
        }
    }
}

} // namespace
} // namespace vorn::numeric
