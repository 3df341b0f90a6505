#include "core/edit/edit_border.h"

#include <algorithm>

namespace vorn::edit {

std::uint32_t StyleBitOfBorder(std::uint32_t border) {
    switch (border) {
    case kBorderLine:
        return 0x4000;
    case kBorderRaised:
        return 0x2000;
    case kBorderSunken:
        return 0x1000;
    default:
        return 0;
    }
}

std::uint32_t BorderOfStyle(std::uint32_t style, const BorderBits& bits) {
    for (const BorderBit& row : bits) {
        if ((style & row.bit) != 0) {
            return row.border;
        }
    }
    return kBorderNone;
}

Rect ClientWithin(const Rect& window, std::uint32_t border) {
    Rect client = Grown(window, -BorderWidth(border));
    client.right = std::max(client.left, client.right);
    client.bottom = std::max(client.top, client.bottom);
    return client;
}

Size SizeWithBorder(Size window, Size client, std::uint32_t held, std::uint32_t asked) {
    const Size base = asked == held ? window : client;
    const std::int32_t allowance = BorderAllowance(asked);
    return {base.width + allowance, base.height + allowance};
}

Size LeastSize(const FontFigures& font, const Compactness& compactness) {
    const std::int32_t rightPart = RightPartWidth(font.height, compactness.rightEighths);
    return {compactness.characters * font.maxWidth + rightPart, font.height};
}

Size LeastWindowSize(const FontFigures& font, const Compactness& compactness,
                     std::uint32_t border) {
    const Size least = LeastSize(font, compactness);
    const std::int32_t allowance = BorderAllowance(border);
    return {least.width + allowance, least.height + allowance};
}

FontFit FitToFont(Size client, std::int32_t rightPartWidth, std::uint32_t displayStyle,
                  const FontFigures& font, const Compactness& compactness) {
    const Size least = LeastSize(font, compactness);
    std::int32_t wanted = client.width;
    if (displayStyle == kCharacterCells) {
        const std::int32_t cell = CellWidthOf(displayStyle, font);
        const std::int32_t room = std::max(client.width - rightPartWidth, least.width);
        wanted = (room + cell - 1) / cell * cell + rightPartWidth - 1;
    }
    const bool isLargeEnough = client.width >= least.width && client.height >= least.height;
    return {isLargeEnough && client.width == wanted,
            {std::max({client.width, wanted, least.width}), std::max(client.height, least.height)}};
}

} // namespace vorn::edit
