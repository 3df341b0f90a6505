// The border of an edit: its style bits, and the sizes that it brings.
#pragma once

#include "core/edit/edit_layout.h"
#include "core/frames.h"

#include <array>
#include <cstdint>

namespace vorn::edit {

// The window style's bits for a border, and which of them each border has when it is set later.
constexpr std::uint32_t kStyleBorders = 0x7000;
std::uint32_t StyleBitOfBorder(std::uint32_t border);

// What the bits mean at creation is each edit's own; the first row whose bit is set counts.
struct BorderBit {
    std::uint32_t bit;
    std::uint32_t border;
};
using BorderBits = std::array<BorderBit, 3>;
std::uint32_t BorderOfStyle(std::uint32_t style, const BorderBits& bits);

// How much wider and higher a border makes the window, both of its sides together.
constexpr std::int32_t BorderAllowance(std::uint32_t border) {
    return 2 * BorderWidth(border);
}

// The client area within a window; empty when the border takes it all.
Rect ClientWithin(const Rect& window, std::uint32_t border);

// The window's size when a border is asked for: the client area's and the border's allowance, which
// hosts know to come on top of the window's size when it has that border already. Borders beyond
// the last have none.
Size SizeWithBorder(Size window, Size client, std::uint32_t held, std::uint32_t asked);

// What decides how small an edit can be.
struct Compactness {
    std::int32_t characters = 1;   // of the widest width
    std::int32_t rightEighths = 0; // of the font's height, for the right part
};

// The least size of the client area in this font.
Size LeastSize(const FontFigures& font, const Compactness& compactness);

// The least size of the window.
Size LeastWindowSize(const FontFigures& font, const Compactness& compactness, std::uint32_t border);

// What a new font asks of the client area: at least its least size and, in character cells, a whole
// number of them beside the right part.
struct FontFit {
    bool fits = false; // the client area may stay
    Size client;       // otherwise: how large it is to be at least
};
FontFit FitToFont(Size client, std::int32_t rightPartWidth, std::uint32_t displayStyle,
                  const FontFigures& font, const Compactness& compactness);

} // namespace vorn::edit
