// A time to edit, and what a test says to it.
#pragma once

#include "core/text.h"
#include "tests/support/edit_keys.h"
#include "timeedit/time_format.h"
#include "timeedit/time_keys.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace vorn::timeedit {

inline void PrintTo(const Time& time, std::ostream* out) {
    *out << "{" << time.hour << ":" << time.minute << ":" << time.second << "}";
}

using namespace edit::keys;

inline Format TwentyFourHours(bool showSeconds = true) {
    Format format;
    format.showSeconds = showSeconds ? 1 : 0;
    return format;
}

inline void SetSuffixes(Format& format, const char* am, const char* pm) {
    CopyText(format.amText, am);
    CopyText(format.pmText, pm);
}

inline Format TwelveHours(bool showSeconds = true, const char* am = "AM", const char* pm = "PM") {
    Format format = TwentyFourHours(showSeconds);
    format.twentyFourHour = 0;
    SetSuffixes(format, am, pm);
    return format;
}

inline HeldTime Held(const Time& value, const Format& format) {
    HeldTime held;
    held.format = format;
    StoreTime(held, value);
    FormatValueText(held);
    return held;
}

struct TimeEditor {
    TimeEntry entry;

    // With the focus, so that the first field is selected.
    TimeEditor(const Time& value, const Format& format) {
        entry.time = Held(value, format);
        EnterFocus(entry);
    }

    List Run(const edit::Key& key, bool allowed = true) {
        const edit::Actions actions = RunKey(entry, key, allowed);
        return {actions.begin(), actions.end()};
    }
    List Press(std::uint32_t code) { return Run({code}); }
    List PressShift(std::uint32_t code) { return Run({code, false, false, true}); }
    List PressControl(std::uint32_t code) { return Run({code, true}); }

    // Digits; each must run the whole of a change.
    void Type(const char* digits) {
        for (; *digits != '\0'; ++digits) {
            EXPECT_EQ(Press(static_cast<std::uint32_t>(*digits)), kChanged);
        }
    }

    void PutCaretAt(std::int32_t index) { PutCaret(entry.caret, FieldMapOf(entry.time), index); }
    void SelectText(std::int32_t start, std::int32_t end) {
        PutCaretAt(end);
        edit::Select(entry.caret, start, end, end, FieldMapOf(entry.time).length);
    }
    void MakeNull() {
        entry.time.null = 1;
        ResetCaret(entry);
        RenewText(entry);
    }

    std::string Text() const { return entry.time.valueText; }
    std::string Shown() const { return ShownWithCaret(Text(), entry.caret); }
    const Time& Value() const { return entry.time.value; }
    std::int32_t Field() const { return entry.caret.field; }
};

} // namespace vorn::timeedit
