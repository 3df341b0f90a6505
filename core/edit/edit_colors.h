// The colours of an edit.
#pragma once

#include "core/color.h"

namespace vorn::edit {

struct EditColors {
    ColorCode highlight = kButtonHighlightColor;
    ColorCode shadow = kButtonShadowColor;
    ColorCode background = kWindowColor;
    ColorCode text = kWindowTextColor;
    ColorCode face = kButtonFaceColor;
};

constexpr ColorSlot<EditColors> kColorSlots[] = {
    {0, &EditColors::highlight}, {1, &EditColors::shadow}, {2, &EditColors::background},
    {4, &EditColors::text},      {8, &EditColors::face},
};

// Background and text of a field. One that cannot be edited looks like the system's unless the host
// chose its background; the text of a disabled one is gray in any case.
struct FieldCodes {
    ColorCode background;
    ColorCode text;
};

constexpr FieldCodes FieldCodesOf(const EditColors& colors, bool disabled, bool readOnly) {
    const bool isFace = (disabled || readOnly) && colors.background == kWindowColor;
    return {isFace ? kButtonFaceColor : colors.background, disabled ? kGrayTextColor : colors.text};
}

} // namespace vorn::edit
