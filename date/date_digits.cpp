#include "date/date_digits.h"

#include <cstring>

namespace vorn::date {
namespace {

constexpr char kZero = '0';

// A field of two digits and its separator.
constexpr std::int32_t kFieldAndSeparator = 3;

// A digit on its way into the text of a date that is neither null nor selected.
struct Typing {
    char text[kWorkTextSize];
    std::int32_t length;
    std::int32_t caret;
    char digit;
};

// Whether a day or month that begins with this digit has no second one.
bool CannotBegin(std::int32_t kind, char digit) {
    return (kind == kDay && digit > '3') || (kind == kMonth && digit > '1');
}

void Insert(Typing& typing, std::int32_t index, char character) {
    char* place = typing.text + index;
    std::memmove(place + 1, place, static_cast<std::size_t>(typing.length - index) + 1);
    *place = character;
    ++typing.length;
}

bool IsSeparator(const Typing& typing, std::int32_t index, const HeldDate& date) {
    return typing.text[index] == date.layout.separator;
}

// At the end of the text or on a separator there is nothing to type over.
void Overtype(Typing& typing, const HeldDate& date) {
    if (typing.caret < typing.length && !IsSeparator(typing, typing.caret, date)) {
        typing.text[typing.caret] = typing.digit;
    }
}

// Only a field with the focus is sure to have room for both digits.
void TypeWithZero(Typing& typing, const HeldDate& date) {
    typing.text[0] = kZero;
    if (typing.length < 2 || IsSeparator(typing, 1, date)) {
        Insert(typing, 1, typing.digit);
    } else {
        typing.text[1] = typing.digit;
    }
    ++typing.caret;
}

void TypeAtStart(Typing& typing, HeldDate& date) {
    const std::int32_t kind = date.layout.kinds[0];
    if (CannotBegin(kind, typing.digit)) {
        TypeWithZero(typing, date);
        return;
    }
    Overtype(typing, date);
    if (typing.digit == kZero) {
        date.typedZero[0] = 1;
    }
}

// The year 0 shows a lone 0, which counts for nothing in front of another digit.
void TypeAtEnd(Typing& typing, const HeldDate& date) {
    if (!IsFieldFull(date, kPositions - 1)) {
        Insert(typing, typing.caret, typing.digit);
    }
}

void TypeInside(Typing& typing, HeldDate& date, const edit::FieldMap& map) {
    Overtype(typing, date);
    for (std::int32_t position = 1; position < kPositions; ++position) {
        if (typing.digit == kZero && typing.caret == map.starts[position]) {
            date.typedZero[position] = 1;
        }
    }
}

void Type(Typing& typing, HeldDate& date, const edit::FieldMap& map) {
    const std::int32_t before = FieldBeforeSeparator(map, typing.caret);
    if (typing.caret == 0) {
        TypeAtStart(typing, date);
    } else if (before != edit::kNoField) {
        if (!IsFieldFull(date, before)) {
            Insert(typing, typing.caret, typing.digit);
        }
    } else if (typing.caret == map.length) {
        TypeAtEnd(typing, date);
    } else {
        TypeInside(typing, date, map);
    }
}

// Behind the separators of full fields.
std::int32_t PassFullFields(const HeldDate& date, const edit::FieldMap& map, std::int32_t caret) {
    for (std::int32_t position = 0; position + 1 < kPositions; ++position) {
        const std::int32_t before = FieldBeforeSeparator(map, caret);
        if (before != edit::kNoField && IsFieldFull(date, before)) {
            ++caret;
        }
    }
    return caret;
}

void TypeAtCaret(DateEntry& entry, char digit) {
    HeldDate& date = entry.date;
    Typing typing{};
    FormatEditText(typing.text, date);
    typing.length = static_cast<std::int32_t>(std::strlen(typing.text));
    typing.caret = entry.caret.index;
    typing.digit = digit;
    ClearTypedZeros(date);
    Type(typing, date, FieldMapOf(date));
    ReadTypedText(date, typing.text);
    const edit::FieldMap map = FieldMapOf(date);
    PutCaret(entry.caret, map, PassFullFields(date, map, typing.caret + 1));
}

void MarkZeroOfSelection(HeldDate& date, const edit::FieldMap& map, std::int32_t start) {
    if (start == 0) {
        date.typedZero[0] = 1;
    } else {
        date.typedZero[start == map.starts[1] ? 1 : 2] = 1;
    }
}

void ReplaceSelection(DateEntry& entry, char digit) {
    HeldDate& date = entry.date;
    const std::int32_t start = entry.caret.selectionStart;
    char text[kWorkTextSize];
    FormatEditText(text, date);
    char* place = text + start;
    const char* rest = text + entry.caret.selectionEnd;
    ClearTypedZeros(date);
    if (digit == kZero) {
        MarkZeroOfSelection(date, FieldMapOf(date), start);
    }
    *place = digit;
    std::memmove(place + 1, rest, std::strlen(rest) + 1);
    ReadTypedText(date, text);
    PutCaret(entry.caret, FieldMapOf(date), start + 1);
}

// The first digit of a null date begins its first field; the others are those of the first day of
// this year.
void StartDate(DateEntry& entry, char digit, const Date& today) {
    HeldDate& date = entry.date;
    const std::int32_t kind = date.layout.kinds[0];
    const auto number = static_cast<std::uint16_t>(digit - kZero);
    date.null = 0;
    date.value = {1, 1, today.year};
    if (kind == kDay) {
        date.value.day = number;
    } else if (kind == kMonth) {
        date.value.month = number;
    } else if (kind == kYear) {
        date.value.year = number;
    }
    ClearTypedZeros(date);
    date.typedZero[0] = digit == kZero ? 1 : 0;
    char text[kWorkTextSize];
    FormatEditText(text, date);
    ReadTypedText(date, text);
    const std::int32_t advance = CannotBegin(kind, digit) ? kFieldAndSeparator : 1;
    PutCaret(entry.caret, FieldMapOf(date), entry.caret.selectionStart + advance);
}

} // namespace

void EnterDigit(edit::Actions& actions, DateEntry& entry, char digit, const Date& today) {
    if (entry.date.null != 0) {
        StartDate(entry, digit, today);
    } else if (HasSelection(entry.caret)) {
        ReplaceSelection(entry, digit);
    } else {
        TypeAtCaret(entry, digit);
    }
    FinishChange(actions, entry);
}

} // namespace vorn::date
