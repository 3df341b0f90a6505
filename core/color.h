// Colour codes: what the ...SetColor functions of all controls take, and the slots they go to.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vorn {

// Either an RGB colour (0x00BBGGRR) or, with kSystemColorFlag set, the one's complement of a
// system colour's index. Codes are kept as given and resolved at every paint, so that a change of
// the system's colours shows at once.
using ColorCode = std::uint32_t;

constexpr ColorCode kSystemColorFlag = 0x10000000;

constexpr bool IsSystemColor(ColorCode code) {
    return (code & kSystemColorFlag) != 0;
}

// The system colour that a code with kSystemColorFlag names. Hostile codes give any index; the
// platform answers those with black.
constexpr std::int32_t SystemColorIndex(ColorCode code) {
    return static_cast<std::int32_t>(~code);
}

constexpr ColorCode SystemColor(std::int32_t index) {
    return ~static_cast<ColorCode>(index);
}

// The system colours that controls take as defaults.
constexpr ColorCode kWindowColor = SystemColor(5);
constexpr ColorCode kWindowFrameColor = SystemColor(6);
constexpr ColorCode kWindowTextColor = SystemColor(8);
constexpr ColorCode kSelectionColor = SystemColor(13);
constexpr ColorCode kSelectionTextColor = SystemColor(14);
constexpr ColorCode kButtonFaceColor = SystemColor(15);
constexpr ColorCode kButtonShadowColor = SystemColor(16);
constexpr ColorCode kGrayTextColor = SystemColor(17);
constexpr ColorCode kButtonTextColor = SystemColor(18);
constexpr ColorCode kButtonHighlightColor = SystemColor(20);

// One row of a control's slot table: which field of its colours the slot number means.
template <class Colors>
struct ColorSlot {
    std::int32_t number;
    ColorCode Colors::*field;
};

// Stores the code into the slot's field; a number that the table does not list changes nothing.
template <class Colors, std::size_t Count>
constexpr void SetColorSlot(Colors& colors, const ColorSlot<Colors> (&table)[Count],
                            std::int32_t number, ColorCode code) {
    for (const ColorSlot<Colors>& slot : table) {
        if (slot.number == number) {
            colors.*slot.field = code;
        }
    }
}

} // namespace vorn
