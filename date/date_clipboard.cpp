#include "date/date_clipboard.h"

#include "core/text.h"

#include <cstring>

namespace vorn::date {
namespace {

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

// Removes the characters from `start` to `end` but for separators, and reads what is left.
void RemoveText(edit::Actions& actions, DateEntry& entry, std::int32_t start, std::int32_t end) {
    HeldDate& date = entry.date;
    char text[kWorkTextSize];
    FormatEditText(text, date);
    char kept[kWorkTextSize];
    TextBuilder rest = StartText(kept);
    for (std::int32_t index = 0; text[index] != '\0'; ++index) {
        const bool inside = index >= start && index < end;
        if (!inside || text[index] == date.layout.separator) {
            Append(rest, text[index]);
        }
    }
    ClearTypedZeros(date);
    ReadTypedText(date, kept);
    PutCaret(entry.caret, FieldMapOf(date), start);
    FinishChange(actions, entry);
}

void MakeNull(edit::Actions& actions, DateEntry& entry) {
    entry.date.null = 1;
    ClearTypedZeros(entry.date);
    ResetCaret(entry);
    FinishChange(actions, entry);
}

// The character at the caret, 0 at the end of the text.
char CharacterAtCaret(const DateEntry& entry) {
    char text[kWorkTextSize];
    FormatEditText(text, entry.date);
    return text[entry.caret.index];
}

// Moves on to the first character that is no blank. A separator is none, whatever it is.
void SkipBlanks(const char*& text, char separator) {
    while (*text == ' ' && *text != separator) {
        ++text;
    }
}

// How many digits a field may have.
int MostDigits(const Layout& layout, std::int32_t kind) {
    if (kind == kYear && layout.fourDigitYear != 0) {
        return 4;
    }
    return kind == kDay || kind == kMonth || kind == kYear ? 2 : 0;
}

struct Number {
    std::uint16_t value = 0;
    int digits = 0;
};

Number ReadNumber(const char*& text, int mostDigits) {
    Number number;
    for (; number.digits < mostDigits && IsDigit(*text); ++text) {
        number.value = static_cast<std::uint16_t>(number.value * 10 + (*text - '0'));
        ++number.digits;
    }
    return number;
}

void SetField(Date& date, std::int32_t kind, std::uint16_t number, int century) {
    if (kind == kDay) {
        date.day = number;
    } else if (kind == kMonth) {
        date.month = number;
    } else if (kind == kYear) {
        date.year = static_cast<std::uint16_t>(number + century);
    }
}

int CenturyOf(const HeldDate& held, const Date& today) {
    if (held.layout.fourDigitYear != 0) {
        return 0;
    }
    const Date& date = held.null != 0 ? today : held.value;
    return date.year / 100 * 100;
}

} // namespace

void DeleteAtCaret(edit::Actions& actions, DateEntry& entry) {
    if (HasSelection(entry.caret)) {
        ClearSelection(actions, entry);
        return;
    }
    const char character = CharacterAtCaret(entry);
    if (character == '\0' || character == entry.date.layout.separator) {
        MoveCaret(actions, entry.caret, FieldMapOf(entry.date), edit::CaretMove::Right);
    } else {
        RemoveText(actions, entry, entry.caret.index, entry.caret.index + 1);
    }
}

void DeleteBeforeCaret(edit::Actions& actions, DateEntry& entry) {
    if (HasSelection(entry.caret)) {
        ClearSelection(actions, entry);
        return;
    }
    const std::uint16_t before = entry.caret.index;
    MoveCaret(actions, entry.caret, FieldMapOf(entry.date), edit::CaretMove::Left);
    if (entry.caret.index != before && CharacterAtCaret(entry) != entry.date.layout.separator) {
        DeleteAtCaret(actions, entry);
    }
}

void ClearSelection(edit::Actions& actions, DateEntry& entry) {
    KeepCaretInText(entry);
    if (!HasSelection(entry.caret)) {
        return;
    }
    const std::int32_t start = entry.caret.selectionStart;
    const std::int32_t end = entry.caret.selectionEnd;
    if (start == 0 && end == FieldMapOf(entry.date).length) {
        MakeNull(actions, entry);
    } else {
        RemoveText(actions, entry, start, end);
    }
}

bool ReadWholeDate(Date& date, const char* text, const HeldDate& held, const Date& today) {
    const Layout& layout = held.layout;
    Date read = held.value;
    const char* rest = text;
    for (std::int32_t position = 0; position < kPositions; ++position) {
        const std::int32_t kind = layout.kinds[position];
        const int mostDigits = MostDigits(layout, kind);
        SkipBlanks(rest, layout.separator);
        const Number number = ReadNumber(rest, mostDigits);
        if (mostDigits != 0 && number.digits == 0) {
            return false;
        }
        SetField(read, kind, number.value, CenturyOf(held, today));
        SkipBlanks(rest, layout.separator);
        if (position + 1 < kPositions && layout.separator != '\0') {
            if (*rest != layout.separator) {
                return false;
            }
            ++rest;
        }
    }
    if (*rest != '\0' || !IsValidDate(read)) {
        return false;
    }
    date = read;
    return true;
}

void PasteText(edit::Actions& actions, DateEntry& entry, const char* text, const Date& today) {
    HeldDate& date = entry.date;
    if (!ReadWholeDate(date.value, text, date, today)) {
        Append(actions, {edit::ActionKind::Beep});
        return;
    }
    date.null = 0;
    ClearTypedZeros(date);
    const edit::FieldMap map = FieldMapOf(date);
    PutCaret(entry.caret, map, map.length);
    FinishChange(actions, entry);
}

} // namespace vorn::date
