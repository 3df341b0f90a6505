#include "numeric/number_format.h"

#include "core/text.h"
#include "numeric/general_form.h"
#include "numeric/number_text.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace vorn::numeric {
namespace {

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

// What a text may use of its buffer.
std::span<char> Usable(std::span<char> text) {
    return text.first(std::min(text.size(), kNumberTextSize));
}

// The text in a usable buffer, cut to it.
TextBuilder TextIn(std::span<char> buffer) {
    TextBuilder text = {buffer};
    if (buffer.empty()) {
        return text;
    }
    while (text.length + 1 < buffer.size() && buffer[text.length] != '\0') {
        ++text.length;
    }
    buffer[text.length] = '\0';
    return text;
}

void Cut(TextBuilder& text, std::size_t length) {
    if (length < text.length) {
        text.length = length;
        text.buffer[length] = '\0';
    }
}

void Remove(TextBuilder& text, std::size_t index) {
    char* character = text.buffer.data() + index;
    std::copy(character + 1, text.buffer.data() + text.length + 1, character);
    --text.length;
}

// Leaves out what no longer fits.
void Insert(TextBuilder& text, std::size_t index, char character) {
    if (character == '\0') {
        return;
    }
    const std::size_t end = text.length;
    Append(text, character);
    if (index < end) {
        char* place = text.buffer.data() + index;
        char* last = text.buffer.data() + text.length;
        std::copy_backward(place, last - 1, last);
        *place = character;
    }
}

std::size_t Find(const TextBuilder& text, char character) {
    const char* end = text.buffer.data() + text.length;
    const char* found = std::find(static_cast<const char*>(text.buffer.data()), end, character);
    return found == end ? kNone : static_cast<std::size_t>(found - text.buffer.data());
}

char FirstOf(const TextBuilder& text) {
    return text.length == 0 ? '\0' : text.buffer[0];
}

// Takes a leading sign off; returns whether it was a "-".
bool TakeSign(TextBuilder& text) {
    const char first = FirstOf(text);
    if (first == '-' || first == '+') {
        Remove(text, 0);
    }
    return first == '-';
}

// Adds one to the last of the text's digits; returns whether a carry is left of the first.
bool CarryInto(TextBuilder& text) {
    for (std::size_t index = text.length; index > 0; --index) {
        char& character = text.buffer[index - 1];
        if (!IsDigit(character)) {
            continue;
        }
        if (character != '9') {
            ++character;
            return false;
        }
        character = '0';
    }
    return true;
}

// Rounds at `point`, the place of the decimal character.
void RoundFraction(TextBuilder& text, std::size_t point, std::size_t digits) {
    const std::size_t end = point + 1 + digits;
    if (text.length <= end) {
        const std::size_t missing = std::min(end - text.length, kNumberTextSize);
        for (std::size_t count = 0; count < missing; ++count) {
            Append(text, '0');
        }
        return;
    }
    const char dropped = text.buffer[end];
    Cut(text, end);
    if (IsDigit(dropped) && dropped > '4' && CarryInto(text)) {
        // All moves right from the second character on, so that this one is there twice.
        Insert(text, 1, text.buffer[1]);
        text.buffer[0] = '1';
    }
}

// Rounds a text without sign and exponent.
void RoundPlain(TextBuilder& text, std::size_t digits, char decimalChar) {
    if (decimalChar == '\0') {
        return;
    }
    std::size_t point = Find(text, decimalChar);
    if (point == kNone) {
        if (digits == 0) {
            return;
        }
        point = text.length;
        Append(text, decimalChar);
    }
    if (digits == 0) {
        Cut(text, point);
    } else {
        RoundFraction(text, point, digits);
    }
}

void EncloseNegative(std::span<char, kNumberTextSize> formatted) {
    TextBuilder text = TextIn(formatted);
    if (FirstOf(text) == '-') {
        text.buffer[0] = '(';
        Append(text, ')');
    }
}

void AppendInteger(TextBuilder& text, std::int32_t number) {
    auto magnitude = static_cast<std::uint32_t>(number);
    if (number < 0) {
        Append(text, '-');
        magnitude = 0 - magnitude;
    }
    AppendNumber(text, magnitude, 1);
}

// How a kind displays its numbers.
struct Display {
    bool integer;
    bool grouped;
    bool parentheses;
};

Display DisplayOf(std::uint32_t formatKind) {
    const bool integer = IsIntegerKind(formatKind);
    switch (formatKind) {
    case kIntegerGrouped:
    case kFloatingGrouped:
        return {integer, true, false};
    case kIntegerParentheses:
    case kFloatingParentheses:
        return {integer, false, true};
    case kIntegerGroupedParentheses:
    case kFloatingGroupedParentheses:
        return {integer, true, true};
    default:
        return {integer, false, false};
    }
}

void WriteFloating(const NumberSettings& settings, double value, std::span<char> formatted) {
    const char decimalChar = DecimalCharOf(settings);
    GeneralForm(value, formatted);
    if (decimalChar != '\0') {
        std::replace(formatted.data(), formatted.data() + std::strlen(formatted.data()), '.',
                     decimalChar);
    }
    if (std::isfinite(value)) {
        RoundDigits(formatted, settings.decimalDigits, decimalChar, settings.formatKind);
    }
}

} // namespace

int RoundDigits(std::span<char> text, std::uint16_t digits, char decimalChar,
                std::uint32_t formatKind) {
    const std::span<char> buffer = Usable(text);
    TextBuilder number = TextIn(buffer);
    char exponent[kNumberTextSize] = {};
    if (const std::size_t start = Find(number, 'e'); start != kNone) {
        if (formatKind == kGeneral || formatKind > kFloatingUnpadded) {
            return 1;
        }
        CopyText(exponent, buffer.data() + start);
        Cut(number, start);
    }
    const bool negative = TakeSign(number);

    number.buffer = buffer.first(buffer.size() - std::strlen(exponent) - (negative ? 1 : 0));
    RoundPlain(number, digits, decimalChar);

    number.buffer = buffer;
    for (const char* character = exponent; *character != '\0'; ++character) {
        Append(number, *character);
    }
    if (negative) {
        Insert(number, 0, '-');
    }
    if (number.length > 0 && buffer[number.length - 1] == decimalChar) {
        Cut(number, number.length - 1);
    }
    return 1;
}

int GroupThousands(std::span<char> text, const NumberSettings& settings) {
    TextBuilder number = TextIn(Usable(text));
    const char thousandChar = ThousandCharOf(settings);
    const bool negative = TakeSign(number);
    const std::size_t point = Find(number, DecimalCharOf(settings));
    std::size_t place = point == kNone ? number.length : point;
    while (place > 3) {
        place -= 3;
        Insert(number, place, thousandChar);
    }
    if (negative) {
        Insert(number, 0, '-');
    }
    return 1;
}

int StripLeadingZero(std::span<char> text, std::int32_t leadingZero, char decimalChar) {
    if (leadingZero != 0 || decimalChar == '\0') {
        return 1;
    }
    TextBuilder number = TextIn(Usable(text));
    const char first = FirstOf(number);
    const std::size_t zero = first == '-' || first == '(' ? 1 : 0;
    if (number.length > zero + 1 && number.buffer[zero] == '0' &&
        number.buffer[zero + 1] == decimalChar) {
        Remove(number, zero);
    }
    return 1;
}

int FormatValue(const NumberSettings& settings, double value, std::int32_t editForm,
                std::span<char, kNumberTextSize> formatted) {
    TextBuilder number = StartText(formatted);
    if (settings.isNull != 0) {
        Append(number, ' ');
        return 1;
    }
    const Display display = DisplayOf(settings.formatKind);
    if (settings.displayStyle == kDigitDisplay) {
        AppendInteger(number, TruncateToInteger(value));
        return 1;
    }
    const bool enclosed = display.parentheses && editForm == 0 && std::signbit(value);
    // Leaves room for the closing parenthesis.
    const std::span<char> room = formatted.first(kNumberTextSize - (enclosed ? 1 : 0));
    if (display.integer) {
        AppendInteger(number, TruncateToInteger(value));
    } else {
        WriteFloating(settings, value, room);
    }
    if (display.grouped && editForm == 0) {
        GroupThousands(room, settings);
    }
    if (enclosed) {
        EncloseNegative(formatted);
    }
    return display.integer
               ? 1
               : StripLeadingZero(formatted, settings.leadingZero, DecimalCharOf(settings));
}

int FormatNumber(const NumberSettings& settings, char* text, std::int32_t editForm,
                 std::span<char, kNumberTextSize> formatted) {
    double value = 0;
    if (settings.isNull == 0) {
        TextToNumber(settings, text, value);
    }
    return FormatValue(settings, value, editForm, formatted);
}

} // namespace vorn::numeric
