#include "numeric/number_access.h"

#include "core/text.h"
#include "numeric/general_form.h"
#include "numeric/number_format.h"
#include "numeric/number_text.h"

#include <cmath>
#include <cstring>
#include <limits>

namespace vorn::numeric {
namespace {

using edit::ActionKind;

constexpr double kLargestUnsigned = std::numeric_limits<std::uint32_t>::max();

// The bits of the value without its fraction, above the signed range as an unsigned number.
std::uint32_t TruncateToUnsigned(double value) {
    if (value > std::numeric_limits<std::int32_t>::max()) {
        return value >= kLargestUnsigned ? std::numeric_limits<std::uint32_t>::max()
                                         : static_cast<std::uint32_t>(value);
    }
    return static_cast<std::uint32_t>(TruncateToInteger(value));
}

void WriteInteger(std::span<char> text, double value, bool isUnsigned) {
    TextBuilder number = StartText(text);
    std::uint32_t magnitude = isUnsigned ? TruncateToUnsigned(value)
                                         : static_cast<std::uint32_t>(TruncateToInteger(value));
    if (TruncateToInteger(value) < 0) {
        Append(number, '-');
        magnitude = 0 - magnitude;
    }
    AppendNumber(number, magnitude, 1);
}

// A general form without decimals ends with the decimal character.
void WriteFloating(std::span<char> text, double value) {
    GeneralForm(value, text);
    const std::size_t length = std::strlen(text.data());
    if (text[length - 1] == '.') {
        text[length - 1] = '\0';
    }
}

bool PadsDecimals(const NumberSettings& settings) {
    return settings.displayStyle != kDigitDisplay && !IsIntegerKind(settings.formatKind) &&
           settings.formatKind != kFloatingUnpadded;
}

// The text that a value is written as, as if there were no limit to it. An integer kind has no text
// for what is no finite number, but one for the nearer end of 32 bits.
void WriteWhole(const NumberSettings& settings, double value, Written as,
                std::span<char, kNumberTextSize> text) {
    const double kept = ClampToRange(settings, value);
    const bool isInteger = IsIntegerKind(settings.formatKind);
    const bool floating = as == Written::Floating || as == Written::UnsignedLong;
    if (floating && (!isInteger || std::isfinite(kept))) {
        WriteFloating(text, isInteger ? std::trunc(kept) : kept);
    } else {
        WriteInteger(text, kept, as == Written::UnsignedInteger || as == Written::UnsignedLong);
    }
    if (PadsDecimals(settings) && std::isfinite(kept)) {
        RoundDigits(text, settings.decimalDigits, '.', settings.formatKind);
    }
}

} // namespace

std::int32_t ReadInteger(const NumberEntry& entry) {
    return TruncateToInteger(ValueOf(entry));
}

std::uint32_t ReadUnsigned(const NumberEntry& entry) {
    return TruncateToUnsigned(ValueOf(entry));
}

int ReadLastGoodNumber(const NumberEntry& entry, std::span<char, kNumberTextSize> text) {
    return FormatValue(entry.settings, ValueOf(entry), 1, text);
}

bool IsCutWritten(const NumberEntry& entry, double value, Written as) {
    char text[kNumberTextSize];
    WriteWhole(entry.settings, value, as, text);
    return CutAtLimit(entry, text);
}

edit::Actions Write(NumberEntry& entry, double value, Written as) {
    char text[kNumberTextSize];
    WriteWhole(entry.settings, value, as, text);
    CutAtLimit(entry, text);
    edit::Actions actions;
    StoreNumber(entry, text, 0);
    ResetCaret(entry);
    entry.modified = 0;
    Append(actions, {ActionKind::Repaint});
    Append(actions, {ActionKind::SendChanged});
    Append(actions, {ActionKind::PlaceCaret});
    return actions;
}

} // namespace vorn::numeric
