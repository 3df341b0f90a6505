#include "controls/button/button.h"

#include <algorithm>

namespace vorn::button {
namespace {

// How a strip is cut.
struct Cells {
    Size size;
    std::uint32_t count; // those in use
};

constexpr Cells kCaptionCells = {{20, 20}, 15};
constexpr Cells kPictureOnlyCells = {{16, 15}, 32};

constexpr std::int32_t kUserLeft = 4;
constexpr std::int32_t kPictureLeft = 8;
constexpr std::int32_t kCaptionAfterPicture = 28;

constexpr std::int32_t kSwatchSide = 8;
constexpr std::int32_t kSwatchLeft = 6;
constexpr std::int32_t kSwatchFrame = 2;
constexpr std::int32_t kCaptionAfterSwatch = 16;

constexpr std::int32_t kCaptionMargin = 2;

Rect RectAt(Point place, Size size) {
    return {place.x, place.y, place.x + size.width, place.y + size.height};
}

// The place of something centred between the sides of the rectangle.
std::int32_t CentredX(const Rect& rect, std::int32_t width) {
    return rect.left + (Width(rect) - width) / 2;
}
std::int32_t CentredY(const Rect& rect, std::int32_t height) {
    return rect.top + (Height(rect) - height) / 2;
}

Point CellOrigin(const Cells& cells, std::uint32_t index) {
    const std::uint32_t cell = index < cells.count ? index : 0;
    return {static_cast<std::int32_t>(cell) * cells.size.width, 0};
}

void PlacePicture(Layout& layout, PictureSource source, Point place, Size size, Point origin) {
    layout.picture = source;
    layout.pictureTarget = RectAt(place, size);
    layout.pictureOrigin = origin;
}

// Centred. A host application shows none of the strip.
void LayOutPictureOnly(Layout& layout, const Rect& client, const PictureChoice& choice) {
    if (choice.hasUser) {
        const Point place = {CentredX(client, choice.user.width),
                             CentredY(client, choice.user.height)};
        PlacePicture(layout, PictureSource::User, place, choice.user, {});
    } else if (!choice.inHostApp) {
        const Size size = kPictureOnlyCells.size;
        const Point place = {CentredX(client, size.width), CentredY(client, size.height)};
        PlacePicture(layout, PictureSource::Strip, place, size,
                     CellOrigin(kPictureOnlyCells, choice.index));
    }
}

// Left of the caption. A host application shows its own picture in place of any.
void LayOutPicture(Layout& layout, const Rect& client, const PictureChoice& choice) {
    if (choice.hasUser && !choice.inHostApp) {
        const Point place = {client.left + kUserLeft, (Height(client) - choice.user.height) / 2};
        PlacePicture(layout, PictureSource::User, place, choice.user, {});
        layout.captionLeft = place.x + choice.user.width;
        return;
    }
    const Size size = kCaptionCells.size;
    const Point place = {client.left + kPictureLeft, (Height(client) - size.height) / 2};
    if (choice.inHostApp) {
        PlacePicture(layout, PictureSource::HostApp, place, size, {});
    } else {
        PlacePicture(layout, PictureSource::Strip, place, size,
                     CellOrigin(kCaptionCells, choice.index));
    }
    layout.captionLeft = client.left + kCaptionAfterPicture;
}

void LayOutSwatch(Layout& layout, const Rect& client) {
    layout.hasSwatch = true;
    layout.swatch = RectAt({client.left + kSwatchLeft, CentredY(client, kSwatchSide)},
                           {kSwatchSide, kSwatchSide});
    layout.swatchFrame = Grown(layout.swatch, kSwatchFrame);
    layout.captionLeft = client.left + kCaptionAfterSwatch;
}

// Centred in the caption's share of the client area.
Rect CaptionText(const Rect& client, std::int32_t captionLeft, Size measured) {
    const std::int32_t room = client.right - captionLeft - measured.width - 2 * kCaptionMargin;
    const Point place = {captionLeft + room / 2 + kCaptionMargin,
                         CentredY(client, measured.height)};
    return RectAt(place, measured);
}

} // namespace

State StateFromStyle(std::uint32_t style) {
    State state;
    state.flags = (style & kStyleDisabled) != 0 ? 0 : kStateEnabled;
    return state;
}

void SetCaption(State& state, const char* text) {
    std::size_t length = 0;
    if (text != nullptr) {
        while (length < kCaptionSize - 1 && text[length] != '\0') {
            state.caption[length] = text[length];
            ++length;
        }
    }
    state.caption[length] = '\0';
}

std::size_t CaptionLength(const State& state) {
    const auto end = std::find(state.caption.begin(), state.caption.end(), '\0');
    return static_cast<std::size_t>(end - state.caption.begin());
}

std::size_t GetCaption(const State& state, char* buffer, std::size_t size) {
    if (buffer == nullptr) {
        return 0;
    }
    const std::size_t length = std::min(size, CaptionLength(state));
    std::copy_n(state.caption.begin(), length, buffer);
    buffer[length] = '\0';
    return length;
}

std::uint32_t ReportedState(const State& state) {
    return (IsDown(state) ? 4u : 0u) | ((state.flags & kStateFocus) != 0 ? 8u : 0u);
}

std::uint32_t DialogCode(std::uint32_t style) {
    constexpr std::uint32_t kButtonWithKeys = 0x2003; // DLGC_BUTTON, WANTTAB, WANTARROWS
    constexpr std::uint32_t kDefault = 0x0010;        // DLGC_DEFPUSHBUTTON
    constexpr std::uint32_t kNotDefault = 0x0020;     // DLGC_UNDEFPUSHBUTTON
    return kButtonWithKeys | ((style & kStyleDefault) != 0 ? kDefault : kNotDefault);
}

std::uint32_t StyleWithBits(std::uint32_t style, std::uint32_t bits) {
    std::uint32_t replaced = kStyleAutoRepeat | kStyleToggle;
    if ((style & kStylePictureOnly) == 0) {
        replaced |= kStyleDefault | kStylePictureOnly;
    }
    return (style & ~replaced) | bits;
}

std::uint32_t StyleWithPicture(std::uint32_t style, bool enable) {
    return enable ? (style & ~kStyleSwatch) | kStylePicture : style & ~kStylePicture;
}

std::uint32_t StyleWithSwatch(std::uint32_t style, bool enable) {
    return enable ? (style & ~kStylePicture) | kStyleSwatch : style & ~kStyleSwatch;
}

std::uint16_t StripOfStyle(std::uint32_t style) {
    return (style & kStylePictureOnly) != 0 ? kPictureOnlyStrip : kCaptionStrip;
}

bool HasHostAppPicture(std::uint32_t style) {
    return StripOfStyle(style) == kCaptionStrip;
}

Layout LayOut(const Rect& client, std::uint32_t style, const PictureChoice& choice) {
    Layout layout;
    layout.captionLeft = client.left;
    if ((style & kStylePicture) == 0) {
        if ((style & kStyleSwatch) != 0) {
            LayOutSwatch(layout, client);
        }
    } else if ((style & kStylePictureOnly) != 0) {
        LayOutPictureOnly(layout, client, choice);
    } else {
        LayOutPicture(layout, client, choice);
    }
    return layout;
}

Rect CaptionArea(const Rect& client, std::int32_t captionLeft) {
    return Grown({captionLeft, client.top, client.right, client.bottom}, -kCaptionMargin);
}

Caption PlanCaption(const Rect& client, std::int32_t captionLeft, Size measured,
                    std::uint32_t style, const State& state) {
    Caption caption;
    if ((style & kStylePictureOnly) != 0) {
        return caption;
    }
    const Rect text = CaptionText(client, captionLeft, measured);
    if ((style & kStyleDisabled) != 0) {
        const Rect light = {text.left + 1, text.top + 1, text.right + 1, text.bottom + 1};
        caption.passes = {{{light, state.colors.highlight}, {text, state.colors.shadow}}};
        caption.passCount = 2;
    } else {
        caption.passes[0] = {text, state.colors.text};
        caption.passCount = 1;
    }
    caption.hasFocusRect = (state.flags & kStateFocus) != 0 && CaptionLength(state) != 0;
    caption.focusRect = {text.left - 2, text.top, text.right + 2, text.bottom};
    return caption;
}

FrameCodes SwatchFrameColors(const Colors& colors) {
    return {colors.shadow, colors.highlight, colors.face};
}

ColorCode OutlineColor(std::uint32_t style, const Colors& colors) {
    return (style & kStyleDefault) != 0 ? kWindowFrameColor : colors.face;
}

Rect FaceFrame(const Rect& client) {
    return Grown(client, -1);
}

// The third colour is the system's even when the host chose another face.
FrameCodes FaceFrameColors(const Colors& colors) {
    return {colors.shadow, colors.highlight, kButtonFaceColor};
}

} // namespace vorn::button
