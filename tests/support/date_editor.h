// A date to edit, and what a test says to it.
#pragma once

#include "core/edit/field_keys.h"
#include "date/date_keys.h"
#include "tests/support/edit_printing.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <ostream>
#include <string>
#include <vector>

namespace vorn::date {

inline void PrintTo(const Date& date, std::ostream* out) {
    *out << "{month " << date.month << ", day " << date.day << ", year " << date.year << "}";
}

using List = std::vector<edit::Action>;
using enum edit::ActionKind;

constexpr std::uint32_t kBack = 8;
constexpr std::uint32_t kSpace = 32;
constexpr std::uint32_t kEnd = 35;
constexpr std::uint32_t kHome = 36;
constexpr std::uint32_t kLeft = 37;
constexpr std::uint32_t kUp = 38;
constexpr std::uint32_t kRight = 39;
constexpr std::uint32_t kDown = 40;
constexpr std::uint32_t kInsert = 45;
constexpr std::uint32_t kDelete = 46;

constexpr Date kToday = {8, 17, 2026};

// The notifications of a change, in order, and what an edit does after every key.
inline const List kChanged = {{SendChanged},   {Notify, 0x400}, {Repaint},
                              {Notify, 0x300}, {PlaceCaret},    {PostChanged}};
inline const List kStepped = {{SendChanged},   {Notify, 0x400}, {RepaintText},
                              {Notify, 0x300}, {PlaceCaret},    {PostChanged}};
inline const List kBeeped = {{Beep}, {PostChanged}};
inline const List kMoved = {{PlaceCaret}, {PostChanged}};
inline const List kMovedAndRepainted = {{Repaint}, {PlaceCaret}, {PostChanged}};

struct Editor {
    DateEntry entry;

    // With the focus, so that the first field is selected.
    Editor(Date value, const char* picture, char separator = '/') {
        entry.date.value = value;
        ReadShortDateLayout(picture, separator, entry.date.layout);
        EnterFocus(entry);
    }

    List Run(const edit::Key& key, bool allowed = true) {
        const edit::Actions actions = RunKey(entry, key, allowed, kToday);
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

    void PutCaretAt(std::int32_t index) { PutCaret(entry.caret, FieldMapOf(entry.date), index); }
    void SelectText(std::int32_t start, std::int32_t end) {
        const edit::FieldMap map = FieldMapOf(entry.date);
        PutCaret(entry.caret, map, end);
        edit::Select(entry.caret, start, end, end, map.length);
    }
    void MakeNull() {
        entry.date.null = 1;
        ResetCaret(entry);
    }

    std::string Text() const {
        char text[kWorkTextSize];
        FormatEditText(text, entry.date);
        return text;
    }

    // The edit text with | at the caret and < > around the selection, as in "<|3 >/5 /7".
    std::string Shown() const {
        const std::string text = Text();
        const edit::TextCaret& caret = entry.caret;
        const bool selected = HasSelection(caret);
        std::string shown;
        for (std::size_t index = 0; index <= text.size(); ++index) {
            shown += selected && index == caret.selectionStart ? "<" : "";
            shown += index == caret.index ? "|" : "";
            shown += selected && index == caret.selectionEnd ? ">" : "";
            shown += index < text.size() ? text.substr(index, 1) : "";
        }
        return shown;
    }

    const Date& Value() const { return entry.date.value; }
    std::int32_t Field() const { return entry.caret.field; }
    std::string ValueText() const { return entry.date.valueText; }
};

struct OrderOfFields {
    std::int32_t kinds[kPositions];
};

constexpr OrderOfFields kOrders[] = {
    {{kDay, kMonth, kYear}}, {{kMonth, kDay, kYear}}, {{kYear, kMonth, kDay}},
    {{kYear, kDay, kMonth}}, {{kDay, kYear, kMonth}}, {{kMonth, kYear, kDay}},
};

// All orders of the three kinds, both widths of the year, with and without leading zeros.
inline std::vector<Layout> AllLayouts() {
    std::vector<Layout> layouts;
    for (const OrderOfFields& order : kOrders) {
        for (std::int32_t flags = 0; flags < 8; ++flags) {
            layouts.push_back({flags & 1,
                               flags & 2,
                               flags & 4,
                               {order.kinds[0], order.kinds[1], order.kinds[2]},
                               '/'});
        }
    }
    return layouts;
}

} // namespace vorn::date
