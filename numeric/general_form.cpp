#include "numeric/general_form.h"

#include "core/text.h"
#include "numeric/double_bits.h"
#include "numeric/exact_compare.h"
#include "numeric/power_of_ten.h"

#include <bit>

namespace vorn::numeric {
namespace {

constexpr int kDigits = 12;
constexpr std::uint64_t kLimit = 1'000'000'000'000; // 10 to the power kDigits
constexpr std::uint32_t kHalfLimit = 1'000'000;     // 10 to the power kDigits / 2

constexpr int kLowestFixedExponent = -1;
constexpr int kExponentDigits = 3;

// 0.digits times 10 to the power exponent + 1, or d.igits times 10 to the power `exponent`.
struct DecimalForm {
    std::uint64_t digits; // kDigits of them
    int exponent;
};

// The whole number next to value * 10^power, which has about kDigits digits.
std::uint64_t RoundedProduct(const BinaryForm& value, int power) {
    const Product product = TimesPowerOfTen(value.mantissa, power);
    const int fractionBits = -(product.exponent + value.exponent);
    const std::uint64_t whole = product.mantissa >> fractionBits;
    const std::uint64_t fraction = product.mantissa - (whole << fractionBits);
    const std::uint64_t half = std::uint64_t{1} << (fractionBits - 1);
    if (fraction >= half) {
        return whole + 1;
    }
    if (fraction + kProductError <= half) {
        return whole;
    }
    const BigNumber twice = MakeBigNumber(2 * whole + 1);
    const bool below = CompareExactly(twice, -power, value.mantissa, value.exponent + 1) > 0;
    return below ? whole : whole + 1;
}

// For a value other than 0.
DecimalForm RoundToDigits(const BinaryForm& value) {
    // 78913 / 2^18 is log10(2): this is the value's exponent or one less.
    const int bits = value.exponent + static_cast<int>(std::bit_width(value.mantissa)) - 1;
    int exponent = (bits * 78913) >> 18;
    std::uint64_t digits = RoundedProduct(value, kDigits - 1 - exponent);
    // At the limit itself it makes no difference from which side the value came.
    if (digits > kLimit) {
        ++exponent;
        digits = RoundedProduct(value, kDigits - 1 - exponent);
    }
    return digits == kLimit ? DecimalForm{kLimit / 10, exponent + 1}
                            : DecimalForm{digits, exponent};
}

// Writes the digits into `text` and returns how many there are up to the last that is not 0.
int WriteDigits(std::uint64_t digits, char (&text)[kDigits]) {
    std::uint32_t halves[] = {static_cast<std::uint32_t>(digits / kHalfLimit),
                              static_cast<std::uint32_t>(digits % kHalfLimit)};
    for (int index = kDigits - 1; index >= 0; --index) {
        std::uint32_t& half = halves[index / (kDigits / 2)];
        text[index] = static_cast<char>('0' + half % 10);
        half /= 10;
    }
    int count = kDigits;
    while (count > 1 && text[count - 1] == '0') {
        --count;
    }
    return count;
}

void AppendDecimal(TextBuilder& text, const DecimalForm& decimal) {
    char digits[kDigits];
    const int count = WriteDigits(decimal.digits, digits);
    const bool fixed = decimal.exponent >= kLowestFixedExponent && decimal.exponent < kDigits;
    const int point = fixed ? decimal.exponent + 1 : 1;
    if (point == 0) {
        Append(text, '0');
    }
    for (int index = 0; index < point; ++index) {
        Append(text, digits[index]);
    }
    Append(text, '.');
    for (int index = point; index < count; ++index) {
        Append(text, digits[index]);
    }
    if (!fixed) {
        Append(text, 'e');
        Append(text, decimal.exponent < 0 ? '-' : '+');
        AppendNumber(
            text,
            static_cast<std::uint32_t>(decimal.exponent < 0 ? -decimal.exponent : decimal.exponent),
            kExponentDigits);
    }
}

} // namespace

int GeneralForm(double value, std::span<char> buffer) {
    TextBuilder text = StartText(buffer);
    const std::uint64_t bits = std::bit_cast<std::uint64_t>(value);
    if ((bits & kSignBit) != 0) {
        Append(text, '-');
    }
    const std::uint64_t magnitude = bits & ~kSignBit;
    if (magnitude == 0) {
        AppendText(text, "0.");
    } else if (magnitude >= kInfinityBits) {
        AppendText(text, magnitude == kInfinityBits ? "1.#INF" : "1.#QNAN");
    } else {
        AppendDecimal(text, RoundToDigits(BinaryFormOf(magnitude)));
    }
    return 1;
}

} // namespace vorn::numeric
