#include "numeric/number_text.h"

#include "numeric/double_bits.h"
#include "numeric/exact_compare.h"
#include "numeric/power_of_ten.h"

#include <algorithm>
#include <bit>
#include <limits>

namespace vorn::numeric {
namespace {

// Digits that always fit in 64 bits.
constexpr int kLeadingDigits = 19;

// How much less than a power of ten every non-zero double is at least, and at most.
constexpr std::int64_t kZeroBelow = -324;
constexpr std::int64_t kInfiniteFrom = 309;

// Exponents stop growing here: far beyond what the digits of any text can make up for.
constexpr std::int64_t kLargestExponent = 1'000'000'000'000;

// A number of more than kLeadingDigits digits is less than one in its first kLeadingDigits above
// them. They take at least 60 of 64 bits, so that is 16 units more for the number and 32 for the
// product.
constexpr std::uint64_t kCutProductError = kProductError + 32;

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

bool IsBlank(char character) {
    return character == ' ' || (character >= '\t' && character <= '\r');
}

// A text's number: `leading` times 10 to the power `power`, and less than one in `leading` more
// when digits were cut.
struct ScannedNumber {
    const char* firstDigit = nullptr; // of those that count
    const char* end = nullptr;        // of the digits
    std::uint64_t leading = 0;
    int leadingCount = 0;
    bool cut = false;
    std::int64_t power = 0;
    bool negative = false;
    bool anyDigit = false;
};

void TakeDigit(ScannedNumber& number, const char* digit, bool behindPoint) {
    number.anyDigit = true;
    if (number.leadingCount == kLeadingDigits) {
        number.cut |= *digit != '0';
        number.power += behindPoint ? 0 : 1;
        return;
    }
    number.power -= behindPoint ? 1 : 0;
    if (number.leadingCount == 0) {
        if (*digit == '0') {
            return;
        }
        number.firstDigit = digit;
    }
    number.leading = number.leading * 10 + static_cast<std::uint64_t>(*digit - '0');
    ++number.leadingCount;
}

// Moves the text behind an exponent, if there is one.
std::int64_t ScanExponent(const char*& text) {
    if (*text != 'e' && *text != 'E') {
        return 0;
    }
    const char* rest = text + 1;
    const bool negative = *rest == '-';
    if (negative || *rest == '+') {
        ++rest;
    }
    if (!IsDigit(*rest)) {
        return 0;
    }
    std::int64_t exponent = 0;
    for (; IsDigit(*rest); ++rest) {
        exponent = std::min(exponent * 10 + (*rest - '0'), kLargestExponent);
    }
    text = rest;
    return negative ? -exponent : exponent;
}

// Moves the text behind the number, if there is one.
ScannedNumber ScanNumber(const char*& text) {
    ScannedNumber number;
    const char* rest = text;
    while (IsBlank(*rest)) {
        ++rest;
    }
    number.negative = *rest == '-';
    if (number.negative || *rest == '+') {
        ++rest;
    }
    bool behindPoint = false;
    for (; IsDigit(*rest) || (*rest == '.' && !behindPoint); ++rest) {
        if (*rest == '.') {
            behindPoint = true;
        } else {
            TakeDigit(number, rest, behindPoint);
        }
    }
    if (!number.anyDigit) {
        return {};
    }
    number.end = rest;
    number.power += ScanExponent(rest);
    text = rest;
    return number;
}

// The bits of the double next to product.mantissa + error, half to even.
std::uint64_t RoundToDouble(const Product& product, std::uint64_t error) {
    std::uint64_t mantissa = product.mantissa + error;
    int exponent = product.exponent;
    if (mantissa < error) { // a carry out of the highest bit; the lowest one must not get lost
        mantissa = (mantissa >> 1) | (mantissa & 1) | kSignBit;
        ++exponent;
    }
    constexpr int kSpareBits = 63 - kFractionBits;
    // A normal number's highest bit adds one to the exponent's field.
    const int field = exponent + kSpareBits - kLowestExponent;
    const int dropped = kSpareBits + std::max(-field, 0);
    if (dropped > 64) {
        return 0;
    }
    const std::uint64_t kept = dropped == 64 ? 0 : mantissa >> dropped;
    const std::uint64_t half = std::uint64_t{1} << (dropped - 1);
    const std::uint64_t rest = mantissa & (half - 1);
    const bool up = (mantissa & half) != 0 && (rest != 0 || (kept & 1) != 0);
    const std::uint64_t bits =
        (static_cast<std::uint64_t>(std::max(field, 0)) << kFractionBits) + kept + (up ? 1 : 0);
    return std::min(bits, kInfinityBits);
}

// All digits that can matter; `power` becomes theirs.
BigNumber AllDigits(const ScannedNumber& number, std::int64_t& power) {
    BigNumber big = MakeBigNumber(0);
    int count = 0;
    const char* digit = number.firstDigit;
    for (; digit != number.end && count < kMostDigits; ++digit) {
        if (*digit != '.') {
            MultiplyAdd(big, 10, static_cast<std::uint32_t>(*digit - '0'));
            ++count;
        }
    }
    const auto counts = [](char character) { return character != '0' && character != '.'; };
    if (std::any_of(digit, number.end, counts)) {
        MultiplyAdd(big, 10, 1);
        ++count;
    }
    power = number.power + number.leadingCount - count;
    return big;
}

// The bits of the number's double, whatever the number's sign.
std::uint64_t NearestDouble(const ScannedNumber& number) {
    const std::int64_t size = number.leadingCount + number.power; // the number is below 10^size
    if (number.leading == 0 || size <= kZeroBelow) {
        return 0;
    }
    if (size > kInfiniteFrom) {
        return kInfinityBits;
    }
    const Product product = TimesPowerOfTen(number.leading, static_cast<int>(number.power));
    const std::uint64_t low = RoundToDouble(product, 0);
    const std::uint64_t high =
        RoundToDouble(product, number.cut ? kCutProductError : kProductError);
    if (low == high) {
        return low;
    }
    // They are neighbours; the number is near the middle of the two.
    const BinaryForm form = BinaryFormOf(low);
    std::int64_t power = 0;
    const BigNumber digits = AllDigits(number, power);
    const int side =
        CompareExactly(digits, static_cast<int>(power), form.mantissa * 2 + 1, form.exponent - 1);
    const bool lowIsEven = (low & 1) == 0;
    return side < 0 || (side == 0 && lowIsEven) ? low : high;
}

} // namespace

int TextToNumber(const NumberSettings& settings, char* text, double& value) {
    const char decimalChar = DecimalCharOf(settings);
    if (decimalChar != '\0') {
        for (char* character = text; *character != '\0'; ++character) {
            if (*character == decimalChar) {
                *character = '.';
            }
        }
    }
    const char* rest = text;
    const ScannedNumber number = ScanNumber(rest);
    const std::uint64_t magnitude = NearestDouble(number);
    value = std::bit_cast<double>(magnitude | (number.negative ? kSignBit : 0));
    return number.anyDigit && *rest == '\0' && magnitude != kInfinityBits;
}

std::int32_t TruncateToInteger(double value) {
    using Limits = std::numeric_limits<std::int32_t>;
    if (value >= Limits::max()) {
        return Limits::max();
    }
    // Written so that what is no number takes this way too.
    if (!(value > Limits::min())) {
        return Limits::min();
    }
    return static_cast<std::int32_t>(value);
}

} // namespace vorn::numeric
