// A number to edit, and what a test says to it.
#pragma once

#include "numeric/number_keys.h"
#include "numeric/number_typing.h"
#include "tests/support/edit_printing.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace vorn::numeric {

using List = std::vector<edit::Action>;
using enum edit::ActionKind;

inline const List kNothing = {};
inline const List kBeeped = {{Beep}};

// The notifications of a change, in order.
inline const List kChanged = {{Scroll},  {SendChanged},   {Notify, 0x400},
                              {Repaint}, {Notify, 0x300}, {PlaceCaret}};
inline const List kStepped = {{Scroll},      {SendChanged},   {Notify, 0x400},
                              {RepaintText}, {Notify, 0x300}, {PlaceCaret}};

inline List operator+(const List& first, const List& second) {
    List both = first;
    both.insert(both.end(), second.begin(), second.end());
    return both;
}

// What follows every key that has a use and every character.
inline const List kAfter = {{SendChanged}};

struct Editor {
    NumberEntry entry;
    bool overwrite = false;

    explicit Editor(const char* text, std::uint32_t kind = kGeneral, std::uint16_t digits = 0) {
        entry.settings.formatKind = kind;
        entry.settings.decimalDigits = digits;
        StoreCreationText(entry, text);
        PutCaretAt(LengthOf(entry));
    }

    NumberSettings& Settings() { return entry.settings; }
    void SetRange(double lowest, double highest) {
        entry.settings.rangeCheck = 1;
        entry.settings.minValue = lowest;
        entry.settings.maxValue = highest;
    }
    void PutCaretAt(std::int32_t index) { SelectText(index, index); }
    void SelectText(std::int32_t start, std::int32_t end) {
        edit::Select(entry.caret, start, end, end, LengthOf(entry));
    }

    // Without the 1424 that follows every character, which must be there.
    List Type(char character, bool allowed = true) {
        const edit::Actions actions = TypeCharacter(entry, character, overwrite, allowed);
        List list(actions.begin(), actions.end());
        if (allowed) {
            EXPECT_EQ(list.back(), edit::Action{SendChanged});
            list.pop_back();
        }
        return list;
    }
    // Characters each of which must make a change.
    void TypeAll(const char* characters) {
        for (; *characters != '\0'; ++characters) {
            EXPECT_EQ(Type(*characters), kChanged) << *characters << " into " << Shown();
        }
    }
    List Run(const edit::Key& key, bool allowed = true) {
        const edit::Actions actions = RunKey(entry, key, allowed);
        return {actions.begin(), actions.end()};
    }
    List Press(std::uint32_t code) { return Run({code}); }
    List PressShift(std::uint32_t code) { return Run({code, false, false, true}); }
    List PressControl(std::uint32_t code) { return Run({code, true}); }

    std::string Text() const { return entry.text; }
    bool IsNull() const { return entry.settings.isNull != 0; }

    // The text with | at the caret and < > around the selection, as in "<|12>.5".
    std::string Shown() const {
        const std::string text = Text();
        const edit::TextCaret& caret = entry.caret;
        std::string shown;
        for (std::size_t index = 0; index <= text.size(); ++index) {
            shown += HasSelection(caret) && index == caret.selectionStart ? "<" : "";
            shown += index == caret.index ? "|" : "";
            shown += HasSelection(caret) && index == caret.selectionEnd ? ">" : "";
            shown += index < text.size() ? text.substr(index, 1) : "";
        }
        return shown;
    }
};

inline List AsList(const edit::Actions& actions) {
    return {actions.begin(), actions.end()};
}

} // namespace vorn::numeric
