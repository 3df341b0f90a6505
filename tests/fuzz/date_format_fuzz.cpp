// Any picture, text, numbers and flags: texts stay inside their buffers, what is typed is a date,
// and a date that exists survives being written and read.
#include "date/date_format.h"
#include "date/date_literals.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace {

using namespace vorn;
using namespace vorn::date;

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

    // A terminated text of at most `longest` characters, in a block of exactly its size.
    std::vector<char> Text(std::size_t longest) {
        std::vector<char> text;
        for (char next = '?'; text.size() < longest && size > 0 && next != '\0';) {
            next = static_cast<char>(Byte());
            if (next != '\0') {
                text.push_back(next);
            }
        }
        text.push_back('\0');
        return text;
    }
};

bool HasEveryKind(const Layout& layout) {
    for (const std::int32_t kind : {kDay, kMonth, kYear}) {
        if (std::count(layout.kinds, layout.kinds + kPositions, kind) != 1) {
            return false;
        }
    }
    return true;
}

// A character at which both the typed numbers before it end.
bool IsPlainSeparator(char character) {
    return character != '\0' && character != ' ' && (character < '0' || character > '9');
}

std::string EditText(const HeldDate& date) {
    char text[kLongestEditText + 1];
    FormatEditText(text, date);
    return text;
}

void CheckTexts(HeldDate& date, std::size_t size) {
    const std::string text = EditText(date);
    std::vector<char> buffer(size);
    FormatEditText(buffer, date);
    Require(size == 0 || text.substr(0, size - 1) == buffer.data());
    std::fill_n(date.valueText, kValueTextSize, 'x');
    FormatValueText(date);
    Require(std::strlen(date.valueText) <= kLongestEditText);
    Require(date.null == 0 || (text.empty() && date.valueText[0] == '\0'));

    if (date.null != 0 || !IsValidDate(date.value)) {
        return;
    }
    std::int32_t start2 = 0;
    std::int32_t start3 = -1;
    MeasureFieldStarts(start2, start3, date);
    const auto length = static_cast<std::int32_t>(text.size());
    Require(start2 >= 0 && start2 <= length);
    Require(date.layout.kinds[1] == kYear ? start3 == -1 : start3 >= start2 && start3 <= length);
    if (date.layout.separator != '\0' && date.layout.kinds[1] != kYear) {
        Require(text[static_cast<std::size_t>(start2) - 1] == date.layout.separator);
        Require(text[static_cast<std::size_t>(start3) - 1] == date.layout.separator);
    }
    if (IsPlainSeparator(date.layout.separator)) {
        HeldDate read = date;
        ParseTypedDate(read, text.c_str());
        Require(read.value == date.value);
    }
}

void CheckTyping(HeldDate date, const char* text) {
    const HeldDate before = date;
    ParseTypedDate(date, text);
    if (HasEveryKind(date.layout)) {
        Require(date.value.month >= 1 && date.value.month <= 12 && date.value.day >= 1);
        Require(date.value.day <= MonthLength(date.value.month, date.value.year));
        Require(date.layout.fourDigitYear == 0 || date.value.year <= kLastYear);
    }
    Require(date.null == before.null && date.focused == before.focused);

    // What was typed reads the same again, once it is written.
    if (IsPlainSeparator(date.layout.separator) && IsValidDate(date.value)) {
        date.null = 0;
        HeldDate again = date;
        ParseTypedDate(again, EditText(date).c_str());
        Require(again.value == date.value);
    }
}

void CheckNumbers(const Date& value) {
    std::uint16_t weekday = 7;
    MonthLengths lengths{};
    const std::uint32_t number = DayNumber(value.month, value.day, value.year, &lengths, &weekday);
    Require(weekday <= 6 && lengths == MonthLengthsOf(value.year));
    Require(SerialDate(value) == static_cast<std::int32_t>(number - 693597));
    if (IsValidDate(value)) {
        Require(DayOfYear(value) >= 0 && DayOfYear(value) <= 365);
    }
}

void CheckLiterals(const char* text) {
    NameTables tables = PlaceholderNames();
    SetDayLiterals(tables, text);
    Require(std::string(text).substr(0, 7) == tables.weekdayInitials);
    std::vector<char> list;
    for (std::size_t month = 0; month < kMonths; ++month) {
        list.insert(list.end(), text, text + std::strlen(text) + 1);
    }
    SetMonthLiterals(tables, list.data());
    for (const char* name : tables.monthNames) {
        Require(std::string(text).substr(0, kHostMonthNameSize - 1) == name);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input = {data, size};
    HeldDate date;
    const std::uint8_t flags = input.Byte();
    date.layout.monthLeadingZero = flags & 1;
    date.layout.dayLeadingZero = flags & 2;
    date.layout.fourDigitYear = flags & 4;
    date.focused = flags & 8;
    date.null = flags & 16;
    date.typedZero[0] = flags & 32;
    date.typedZero[1] = flags & 64;
    date.typedZero[2] = flags & 128;
    const std::uint8_t kinds = input.Byte();
    date.layout.kinds[0] = kinds & 3;
    date.layout.kinds[1] = kinds >> 2 & 3;
    date.layout.kinds[2] = kinds >> 4 & 3;
    const std::uint8_t textSize = input.Byte() % 24;
    const auto separator = static_cast<char>(input.Byte());
    date.value = {input.Word(), input.Word(), input.Word()};
    if ((kinds & 0x40) != 0) { // numbers that are likely to be a date
        date.value = {static_cast<std::uint16_t>(date.value.month % 13),
                      static_cast<std::uint16_t>(date.value.day % 32),
                      static_cast<std::uint16_t>(date.value.year % 10000)};
    }
    if ((kinds & 0x80) != 0) {
        ReadShortDateLayout(input.Text(16).data(), separator, date.layout);
        Require(date.layout.separator == separator);
    } else {
        date.layout.separator = separator;
    }
    const std::vector<char> text = input.Text(200);

    CheckNumbers(date.value);
    CheckTexts(date, textSize);
    CheckTyping(date, text.data());
    CheckLiterals(text.data());
    return 0;
}
