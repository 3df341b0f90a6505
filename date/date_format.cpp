#include "date/date_format.h"

#include "core/text.h"

#include <algorithm>

namespace vorn::date {
namespace {

constexpr int kFirst = 0;
constexpr int kSecond = 1;
constexpr int kThird = 2;

// Numbers stop growing here: beyond the largest field, so that it is clamped like any larger one,
// and where one more digit just fits.
constexpr std::int32_t kLargestNumber = 214'748'363;

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

bool IsBlank(char character) {
    return character == ' ' || (character >= '\t' && character <= '\r');
}

std::int32_t WithDigit(std::int32_t number, char digit) {
    return std::min(number * 10 + (digit - '0'), kLargestNumber);
}

// The number up to the first character that is neither digit nor space; moves the text behind that
// character.
std::int32_t ScanNumber(const char*& text) {
    std::int32_t number = 0;
    for (; IsDigit(*text) || *text == ' '; ++text) {
        if (IsDigit(*text)) {
            number = WithDigit(number, *text);
        }
    }
    if (*text != '\0') {
        ++text;
    }
    return number;
}

std::uint16_t Clamped(std::int32_t value, std::int32_t lowest, std::int32_t highest) {
    return static_cast<std::uint16_t>(std::clamp(value, lowest, highest));
}

std::uint16_t ShownYear(const HeldDate& date) {
    return date.layout.fourDigitYear != 0 ? date.value.year
                                          : static_cast<std::uint16_t>(date.value.year % 100);
}

// A day or a month.
struct ShortField {
    std::uint16_t value;
    bool leadingZero;
};

ShortField ShortFieldOf(const HeldDate& date, std::int32_t kind) {
    return kind == kDay ? ShortField{date.value.day, date.layout.dayLeadingZero != 0}
                        : ShortField{date.value.month, date.layout.monthLeadingZero != 0};
}

void AppendShortField(TextBuilder& text, const ShortField& field) {
    AppendNumber(text, field.value, field.leadingZero ? 2 : 1);
}

// With the focus: two places, the second one empty unless the user typed the first as a zero.
void AppendEditedField(TextBuilder& text, const ShortField& field, bool typedZero) {
    AppendNumber(text, field.value, typedZero ? 2 : 1);
    if (field.value < 10 && !typedZero) {
        Append(text, ' ');
    }
}

void AppendValueField(TextBuilder& text, const HeldDate& date, std::int32_t kind) {
    if (kind == kYear) {
        AppendNumber(text, ShownYear(date), date.layout.fourDigitYear != 0 ? 4 : 2);
    } else {
        AppendShortField(text, ShortFieldOf(date, kind));
    }
}

void AppendEditField(TextBuilder& text, const HeldDate& date, int position) {
    const std::int32_t kind = date.layout.kinds[position];
    if (kind == kYear) {
        AppendNumber(text, ShownYear(date), 1);
    } else if (date.focused != 0) {
        AppendEditedField(text, ShortFieldOf(date, kind), date.typedZero[position] != 0);
    } else {
        AppendShortField(text, ShortFieldOf(date, kind));
    }
}

bool IsFieldKind(std::int32_t kind) {
    return kind == kDay || kind == kMonth || kind == kYear;
}

std::int32_t YearWidth(std::uint16_t year) {
    if (year > 999) {
        return 4;
    }
    if (year > 99) {
        return 3;
    }
    return year <= 9 ? 1 : 2;
}

// How wide a field and the separator behind it are in the edit text.
std::int32_t WidthWithSeparator(const HeldDate& date, std::int32_t kind) {
    const std::int32_t separator = date.layout.separator != '\0' ? 1 : 0;
    if (!IsFieldKind(kind)) {
        return separator;
    }
    if (kind == kYear) {
        return YearWidth(ShownYear(date)) + separator;
    }
    const ShortField field = ShortFieldOf(date, kind);
    const bool oneDigit = field.value <= 9 && !field.leadingZero && date.focused == 0;
    return (oneDigit ? 1 : 2) + separator;
}

void SetYear(std::int32_t value, HeldDate& date) {
    const std::int32_t century = date.value.year / 100 * 100;
    date.value.year = Clamped(value, 0, kLastYear);
    if (date.layout.fourDigitYear == 0) {
        date.value.year = static_cast<std::uint16_t>(date.value.year + century);
    }
}

} // namespace

std::int32_t DecimalAt(const char* text) {
    while (IsBlank(*text)) {
        ++text;
    }
    const bool negative = *text == '-';
    if (negative || *text == '+') {
        ++text;
    }
    std::int32_t number = 0;
    for (; IsDigit(*text); ++text) {
        number = WithDigit(number, *text);
    }
    return negative ? -number : number;
}

int SetDateField(std::int32_t value, std::int32_t kind, HeldDate& date) {
    switch (kind) {
    case kDay:
        date.value.day = Clamped(value, 1, 31);
        if (IsSkippedDay(date.value)) {
            date.value.day = kFirstGregorianDay;
        }
        break;
    case kMonth:
        date.value.month = Clamped(value, 1, 12);
        break;
    case kYear:
        SetYear(value, date);
        break;
    default:
        break;
    }
    return 1;
}

void ParseTypedDate(HeldDate& date, const char* text) {
    const std::int32_t* kinds = date.layout.kinds;
    const char* rest = text;
    SetDateField(ScanNumber(rest), kinds[kFirst], date);
    SetDateField(ScanNumber(rest), kinds[kSecond], date);
    SetDateField(DecimalAt(rest), kinds[kThird], date);
    LimitDay(date.value);
}

void FormatValueText(HeldDate& date) {
    TextBuilder text = StartText(date.valueText);
    if (date.null != 0) {
        return;
    }
    for (int position = kFirst; position <= kThird; ++position) {
        const std::int32_t kind = date.layout.kinds[position];
        if (!IsFieldKind(kind)) {
            continue;
        }
        AppendValueField(text, date, kind);
        if (position != kThird) {
            Append(text, date.layout.separator);
        }
    }
}

void FormatEditText(std::span<char> buffer, const HeldDate& date) {
    TextBuilder text = StartText(buffer);
    if (date.null != 0) {
        return;
    }
    for (int position = kFirst; position <= kThird; ++position) {
        if (IsFieldKind(date.layout.kinds[position])) {
            AppendEditField(text, date, position);
        }
        if (position != kThird) {
            Append(text, date.layout.separator);
        }
    }
}

void MeasureFieldStarts(std::int32_t& start2, std::int32_t& start3, const HeldDate& date) {
    start2 = WidthWithSeparator(date, date.layout.kinds[kFirst]);
    const std::int32_t second = WidthWithSeparator(date, date.layout.kinds[kSecond]);
    if (date.layout.kinds[kSecond] == kYear) {
        start2 += second;
    } else {
        start3 = start2 + second;
    }
}

} // namespace vorn::date
