// The picture button's values and layout: everything about what it holds and how it looks that
// needs no window.
#pragma once

#include "core/color.h"
#include "core/geometry.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace vorn::button {

// Window style bits.
constexpr std::uint32_t kStyleDefault = 0x0001;
constexpr std::uint32_t kStylePictureOnly = 0x0002;
constexpr std::uint32_t kStylePicture = 0x0004;
constexpr std::uint32_t kStyleSwatch = 0x0008; // counts without kStylePicture
constexpr std::uint32_t kStyleAutoRepeat = 0x0200;
constexpr std::uint32_t kStyleToggle = 0x0400;
constexpr std::uint32_t kStyleNotify = 0x4000;
constexpr std::uint32_t kStyleDisabled = 0x08000000; // WS_DISABLED

// State flags.
constexpr std::uint32_t kStateEnabled = 0x01;
constexpr std::uint32_t kStateDown = 0x02;
constexpr std::uint32_t kStateCaptured = 0x04; // from a press inside to the release
constexpr std::uint32_t kStateFocus = 0x08;

struct Colors {
    ColorCode swatch = 0x008000; // dark green
    ColorCode face = kButtonFaceColor;
    ColorCode text = kButtonTextColor;
    ColorCode highlight = kButtonHighlightColor;
    ColorCode shadow = kButtonShadowColor;
};

inline constexpr ColorSlot<Colors> kColorSlots[] = {
    {0, &Colors::highlight}, {1, &Colors::shadow},  {2, &Colors::face},
    {4, &Colors::text},      {64, &Colors::swatch},
};

constexpr std::size_t kCaptionSize = 256; // with its terminator

struct State {
    Colors colors;
    std::uint32_t pictureIndex = 0; // any number; those beyond the strip show its first cell
    std::uint32_t flags = kStateEnabled;
    // The auto-repeat timer that was started last, 0 before the first. It keeps its value when the
    // timer is stopped.
    std::uint32_t repeatTimer = 0;
    std::array<char, kCaptionSize> caption{};
};

constexpr bool IsDown(const State& state) {
    return (state.flags & kStateDown) != 0;
}

// The state of a button created with these style bits, its caption still empty.
State StateFromStyle(std::uint32_t style);

// Takes the text over, cut to 255 characters; null is an empty one.
void SetCaption(State& state, const char* text);
std::size_t CaptionLength(const State& state);

// Copies the caption and its terminator to a buffer of `size` characters and returns the caption's
// length. A size below the length copies that many characters, returns it, and writes the
// terminator behind them: size + 1 bytes in all. A null buffer gets nothing: 0.
std::size_t GetCaption(const State& state, char* buffer, std::size_t size);

// What BM_GETSTATE answers: 4 when down, 8 with the focus, their sum for both.
std::uint32_t ReportedState(const State& state);

// What WM_GETDLGCODE answers: a button that wants Tab and the arrow keys, default or not.
std::uint32_t DialogCode(std::uint32_t style);

// The style after a change by BM_SETSTYLE. All of the bits are added; those that they replace are
// auto-repeat, toggle and, unless the button is picture only, default and picture only. A dialog
// manager that moves the default look thus ends auto-repeat and toggle.
std::uint32_t StyleWithBits(std::uint32_t style, std::uint32_t bits);

// The style with the picture (the swatch) on, which turns the other one off, or just off.
std::uint32_t StyleWithPicture(std::uint32_t style, bool enable);
std::uint32_t StyleWithSwatch(std::uint32_t style, bool enable);

// The built-in strips: 20 by 20 for buttons with a caption, 16 by 15 for those created as picture
// only. The former come with a picture for host applications of their own look.
constexpr std::uint16_t kCaptionStrip = 222;
constexpr std::uint16_t kPictureOnlyStrip = 223;
constexpr std::uint16_t kHostAppPicture = 228;

// The strip of a button created with this style; whether it has the host-application picture.
std::uint16_t StripOfStyle(std::uint32_t style);
bool HasHostAppPicture(std::uint32_t style);

enum class PictureSource : std::uint8_t { None, Strip, User, HostApp };

// What there is to choose a picture from.
struct PictureChoice {
    std::uint32_t index = 0; // of the strip
    bool hasUser = false;
    Size user; // the user's bitmap, when there is one
    bool inHostApp = false;
};

// Where things are in the client area.
struct Layout {
    PictureSource picture = PictureSource::None;
    Rect pictureTarget;
    Point pictureOrigin; // the piece's top left corner in its bitmap
    bool hasSwatch = false;
    Rect swatch;
    Rect swatchFrame;
    std::int32_t captionLeft = 0; // where the caption's share of the client area starts
};

Layout LayOut(const Rect& client, std::uint32_t style, const PictureChoice& choice);

// The area in which the caption is measured: its share less two pixels on every side.
Rect CaptionArea(const Rect& client, std::int32_t captionLeft);

// One drawing of the caption's text.
struct CaptionPass {
    Rect rect;
    ColorCode color = 0;

    friend constexpr bool operator==(const CaptionPass&, const CaptionPass&) = default;
};

// How the caption is drawn: in one pass, embossed in two, or not at all.
struct Caption {
    std::array<CaptionPass, 2> passes{};
    std::size_t passCount = 0;
    bool hasFocusRect = false;
    Rect focusRect;
};

// `measured` is the text's size in the caption's area.
Caption PlanCaption(const Rect& client, std::int32_t captionLeft, Size measured,
                    std::uint32_t style, const State& state);

// The colours A, B and C of a frame.
struct FrameCodes {
    ColorCode a;
    ColorCode b;
    ColorCode c;
};

FrameCodes SwatchFrameColors(const Colors& colors);

// The button's own frame lies within a one-pixel outline along the client area's edge. It is sunken
// when the button is down, raised otherwise.
ColorCode OutlineColor(std::uint32_t style, const Colors& colors);
Rect FaceFrame(const Rect& client);
FrameCodes FaceFrameColors(const Colors& colors);

} // namespace vorn::button
