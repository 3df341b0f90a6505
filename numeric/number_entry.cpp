#include "numeric/number_entry.h"

#include "core/text.h"
#include "numeric/general_form.h"
#include "numeric/number_format.h"
#include "numeric/number_text.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace vorn::numeric {

std::int32_t LengthOf(const NumberEntry& entry) {
    return static_cast<std::int32_t>(std::strlen(entry.text));
}

void KeepPoint(NumberEntry& entry) {
    const char decimalChar = DecimalCharOf(entry.settings);
    if (decimalChar != '\0') {
        std::replace(entry.text, entry.text + LengthOf(entry), decimalChar, '.');
    }
}

bool KeepsIntegers(const NumberSettings& settings) {
    return settings.displayStyle == kDigitDisplay || IsIntegerKind(settings.formatKind);
}

double ValueOf(const NumberEntry& entry) {
    if (entry.settings.isNull != 0) {
        return 0;
    }
    char text[kNumberTextSize];
    CopyText(text, entry.text);
    double value = 0;
    TextToNumber(entry.settings, text, value);
    return ClampToRange(entry.settings, value);
}

void WriteEdited(const NumberSettings& settings, double value, std::span<char> text) {
    GeneralForm(value, text);
    if (KeepsIntegers(settings)) {
        char* point = std::strchr(text.data(), '.');
        if (point != nullptr) {
            *point = '\0';
        }
    } else if (std::isfinite(value)) {
        RoundDigits(text, settings.decimalDigits, '.', settings.formatKind);
    }
}

void StoreCreationText(NumberEntry& entry, const char* text) {
    StoreCreationText(entry.settings, entry.text, text);
    KeepPoint(entry);
}

void AppendNumberChange(edit::Actions& actions, edit::ActionKind repaint) {
    Append(actions, {edit::ActionKind::Scroll});
    AppendChange(actions, repaint);
}

edit::Actions SetText(NumberEntry& entry, const char* text) {
    StoreCreationText(entry, text == nullptr ? "" : text);
    ResetCaret(entry);
    entry.modified = 0;
    edit::Actions actions;
    AppendNumberChange(actions, edit::ActionKind::Repaint);
    return actions;
}

void SetNull(NumberEntry& entry) {
    entry.settings.isNull = 1;
    entry.text[0] = '\0';
    ResetCaret(entry);
}

void SetTextLimit(NumberEntry& entry, std::uint32_t limit) {
    entry.textLimit =
        limit == 0 || limit > kLongestText ? kLongestText : static_cast<std::uint16_t>(limit);
}

bool CutAtLimit(const NumberEntry& entry, std::span<char> text) {
    if (std::strlen(text.data()) < entry.textLimit) {
        return false;
    }
    text[entry.textLimit - 1u] = '\0';
    return true;
}

void ResetCaret(NumberEntry& entry) {
    entry.caret = {};
}

void KeepCaretInText(NumberEntry& entry) {
    KeepInText(entry.caret, LengthOf(entry));
}

void StoreEdited(NumberEntry& entry, const char* text, std::int32_t caret) {
    CopyText(entry.text, text);
    const std::int32_t length = LengthOf(entry);
    entry.settings.isNull = length == 0 ? 1 : 0;
    entry.modified = 1;
    Select(entry.caret, caret, caret, caret, length);
    if (caret > length) {
        entry.caret.firstVisible = 0;
    }
    KeepCaretInText(entry);
}

void StoreNumber(NumberEntry& entry, const char* text, std::int32_t caret) {
    StoreEdited(entry, text, caret);
    entry.settings.isNull = 0;
}

} // namespace vorn::numeric
