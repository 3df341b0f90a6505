// Any text, kind and setting: formatted texts stay inside their buffers, and each operation agrees
// with a plain version of itself on strings.
#include "numeric/general_form.h"
#include "numeric/number_format.h"
#include "numeric/number_text.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <span>
#include <string>
#include <vector>

namespace {

using namespace vorn::numeric;

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

// Hands out the input byte by byte, zeros at its end.
struct Input {
    const std::uint8_t* data;
    std::size_t size;

    std::uint8_t Byte() {
        if (size == 0) {
            return 0;
        }
        --size;
        return *data++;
    }
    std::uint16_t Word() { return static_cast<std::uint16_t>(Byte() * 256 + Byte()); }

    // A terminated text of all that is left, mostly of digits when it is to be a number.
    std::vector<char> Text(bool numerals) {
        constexpr char kNumerals[] = "012345678999999999..--+e";
        std::vector<char> text(data, data + size);
        for (char& character : text) {
            const auto byte = static_cast<std::uint8_t>(character);
            character = numerals ? kNumerals[byte % (sizeof kNumerals - 1)] : character;
        }
        text.push_back('\0');
        text.resize(std::strlen(text.data()) + 1);
        return text;
    }
};

std::string TakeSign(std::string& text) {
    const std::string sign = text.substr(0, 1);
    if (sign == "-" || sign == "+") {
        text.erase(0, 1);
    }
    return sign == "-" ? "-" : "";
}

std::string PlainGroup(std::string text, char thousandChar, char decimalChar) {
    const std::string sign = TakeSign(text);
    std::size_t place =
        decimalChar == '\0' ? text.size() : std::min(text.find(decimalChar), text.size());
    while (place > 3 && thousandChar != '\0') {
        place -= 3;
        text.insert(place, 1, thousandChar);
    }
    return sign + text;
}

// Only for texts and counts with room to spare.
std::string PlainRound(std::string text, std::size_t digits, char decimalChar) {
    const std::string sign = TakeSign(text);
    const std::size_t letter = std::min(text.find('e'), text.size());
    const std::string exponent = text.substr(letter);
    text.erase(letter);
    std::size_t point = text.find(decimalChar);
    if (point == std::string::npos) {
        point = text.size();
        text += digits == 0 ? "" : decimalChar + std::string(digits, '0');
    }
    if (digits == 0) {
        text.erase(std::min(point, text.size()));
    } else if (text.size() - point - 1 < digits) {
        text.append(digits - (text.size() - point - 1), '0');
    } else {
        std::size_t last = point + 1 + digits;
        if (last < text.size() && text[last] > '4' && text[last] <= '9') {
            bool carry = true;
            while (carry && last > 0) {
                --last;
                if (text[last] >= '0' && text[last] <= '9') {
                    carry = text[last] == '9';
                    text[last] = carry ? '0' : static_cast<char>(text[last] + 1);
                }
            }
            if (carry) {
                text = "1" + text.substr(1, 1) + text.substr(1);
                ++point;
            }
        }
        text.resize(std::min(text.size(), point + 1 + digits));
    }
    text = sign + text + exponent;
    if (!text.empty() && text.back() == decimalChar) {
        text.pop_back();
    }
    return text;
}

// The text's own operations, in buffers of every size.
void CheckOperations(const NumberSettings& settings, const std::string& source, std::size_t size) {
    const char decimalChar = DecimalCharOf(settings);
    const char thousandChar = ThousandCharOf(settings);
    const std::string given = source.substr(0, std::max<std::size_t>(size, 1) - 1);
    const auto fresh = [&] {
        std::vector<char> buffer(given.c_str(), given.c_str() + std::min(given.size() + 1, size));
        buffer.resize(size, 'x');
        return buffer;
    };
    const std::size_t room = std::min(size, kNumberTextSize);

    std::vector<char> buffer = fresh();
    GroupThousands(buffer, settings);
    if (room > 0 && given.size() < room) {
        Require(PlainGroup(given, thousandChar, decimalChar).substr(0, room - 1) == buffer.data());
    }
    buffer = fresh();
    StripLeadingZero(buffer, settings.leadingZero, decimalChar);
    Require(room == 0 || std::strlen(buffer.data()) <= given.size());

    buffer = fresh();
    RoundDigits(buffer, settings.decimalDigits, decimalChar, settings.formatKind);
    if (room == 0) {
        return;
    }
    Require(given.size() >= room || std::strlen(buffer.data()) < room);
    const bool left = given.find('e') != std::string::npos &&
                      (settings.formatKind == kGeneral || settings.formatKind > kFloatingUnpadded);
    if (left && given.size() < room) {
        Require(given == buffer.data());
    } else if (!left && decimalChar != '\0' && given.size() + settings.decimalDigits + 2 < room) {
        Require(PlainRound(given, settings.decimalDigits, decimalChar) == buffer.data());
    }
}

std::string Formatted(const NumberSettings& settings, std::vector<char> text, bool editForm) {
    std::vector<char> buffer(kNumberTextSize, 'x');
    FormatNumber(settings, text.data(), editForm ? 1 : 0,
                 std::span<char, kNumberTextSize>(buffer.data(), kNumberTextSize));
    Require(std::count(buffer.begin(), buffer.end(), '\0') > 0);
    return buffer.data();
}

void CheckFormat(NumberSettings settings, const std::vector<char>& text) {
    const std::string displayed = Formatted(settings, text, false);
    const std::string edited = Formatted(settings, text, true);
    if (settings.isNull != 0) {
        Require(displayed == " " && edited == " ");
        return;
    }
    std::vector<char> copy = text;
    double value = 0;
    TextToNumber(settings, copy.data(), value);
    const bool integer =
        settings.formatKind >= kInteger && settings.formatKind <= kIntegerGroupedParentheses;
    if (integer || settings.displayStyle == kDigitDisplay) {
        Require(edited == std::to_string(TruncateToInteger(value)));
    }
    if (settings.displayStyle == kDigitDisplay || settings.formatKind == kGeneral ||
        settings.formatKind == kInteger || settings.formatKind == kFloating ||
        settings.formatKind >= kFloatingUnpadded) {
        Require(displayed == edited);
    }
    const bool enclosing = settings.formatKind == kIntegerParentheses ||
                           settings.formatKind == kIntegerGroupedParentheses ||
                           settings.formatKind == kFloatingParentheses ||
                           settings.formatKind == kFloatingGroupedParentheses;
    if (enclosing && settings.displayStyle != kDigitDisplay &&
        (integer ? TruncateToInteger(value) < 0 : std::signbit(value))) {
        Require(displayed[0] == '(' && displayed.back() == ')');
    }
    // With plain characters, what is edited is the number again, as near as its digits.
    settings.decimalChar = '.';
    settings.isNull = 0;
    copy = text;
    if (!integer && settings.displayStyle != kDigitDisplay && settings.decimalDigits >= 12 &&
        TextToNumber(settings, copy.data(), value) == 1) {
        std::string again = Formatted(settings, text, true);
        double read = 0;
        Require(TextToNumber(settings, again.data(), read) == 1 || std::fabs(value) > 1.79e308);
        const double allowed = std::max(std::fabs(value) * 5.1e-12, 1e-323);
        Require(std::isinf(read) || std::fabs(read - value) <= allowed);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input = {data, size};
    NumberSettings settings;
    const std::uint8_t flags = input.Byte();
    settings.leadingZero = flags & 1;
    settings.isNull = (flags & 14) == 14 ? 1 : 0;
    settings.displayStyle = flags >> 4 & 3;
    settings.formatKind = input.Byte() % 12;
    settings.decimalDigits = (flags & 64) != 0 ? input.Word() : input.Byte() % 20;
    if ((flags & 128) != 0) {
        settings.thousandChar = input.Word();
        settings.decimalChar = input.Word();
    }
    const std::size_t room = input.Byte() % 80;
    const std::vector<char> text = input.Text(room % 3 != 0);

    CheckOperations(settings, text.data(), room);
    CheckFormat(settings, text);
    return 0;
}
