// Any text and any decimal character: what converts is what a C library converts, to the same
// double, and nothing but decimal characters changes in the text.
#include "numeric/general_form.h"
#include "numeric/number_text.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

using namespace vorn::numeric;

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

// A C library also knows names and hexadecimal numbers, behind blanks and a sign.
bool IsPlainDecimal(const std::string& text) {
    std::size_t start = text.find_first_not_of(" \t\n\v\f\r");
    if (start == std::string::npos) {
        return true;
    }
    start += text[start] == '-' || text[start] == '+' ? 1 : 0;
    const std::string number = text.substr(start, 2);
    return number.empty() ||
           (std::strchr("iInN", number[0]) == nullptr && number != "0x" && number != "0X");
}

void CheckAgainstLibrary(const std::string& text, double value, bool valid) {
    if (!IsPlainDecimal(text)) {
        Require(!valid && value == 0);
        return;
    }
    char* end = nullptr;
    const double expected = std::strtod(text.c_str(), &end);
    const bool whole = end != text.c_str() && *end == '\0';
    Require(std::bit_cast<std::uint64_t>(value) == std::bit_cast<std::uint64_t>(expected));
    Require(valid == (whole && std::isfinite(expected)));
}

// A number that is written reads as itself, to twelve digits.
void CheckWriting(double value) {
    char text[kGeneralFormSize];
    GeneralForm(value, text);
    if (!std::isfinite(value)) {
        return;
    }
    double again = 0;
    Require(TextToNumber({}, text, again) == 1 || std::fabs(value) > 1.79e308);
    char second[kGeneralFormSize];
    GeneralForm(again, second);
    const bool normal = std::fabs(value) >= 1e-300 || value == 0;
    Require(!normal || std::isinf(again) || std::strcmp(text, second) == 0);
    Require(!normal || std::isinf(again) || std::fabs(again - value) <= std::fabs(value) * 5.1e-12);
}

// Mostly digits, so that random bytes are likely to be a number.
char Numeral(std::uint8_t byte) {
    constexpr char kNumerals[] = "0123456789012345678900009999....--+eeE x";
    return kNumerals[byte % (sizeof kNumerals - 1)];
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 9) {
        return 0;
    }
    NumberSettings settings;
    settings.decimalChar = static_cast<std::uint16_t>(data[0] % 4 == 0 ? data[0] : '.');
    std::uint64_t bits = 0;
    std::memcpy(&bits, data + 1, sizeof bits);
    CheckWriting(std::bit_cast<double>(bits));

    std::vector<char> text(data + 9, data + size);
    if (data[0] % 3 != 0) {
        std::transform(text.begin(), text.end(), text.begin(),
                       [](char byte) { return Numeral(static_cast<std::uint8_t>(byte)); });
    }
    text.push_back('\0');
    std::string expected = text.data();
    if (const char decimalChar = DecimalCharOf(settings); decimalChar != '\0') {
        std::replace(expected.begin(), expected.end(), decimalChar, '.');
    }
    double value = 0;
    const bool valid = TextToNumber(settings, text.data(), value) != 0;
    Require(expected == text.data());
    CheckAgainstLibrary(expected, value, valid);
    const double truncated = TruncateToInteger(value);
    Require(truncated == std::clamp(std::trunc(value), -2147483648.0, 2147483647.0));
    return 0;
}
