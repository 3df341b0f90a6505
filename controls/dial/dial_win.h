// The dial as a window.
#pragma once

#include "controls/dial/dial.h"
#include "controls/dial/dial_face.h"
#include "core/paint_win.h"
#include "core/record_win.h"

namespace vorn::dial {

struct Record {
    static constexpr ControlClass kClass = ControlClass::Dial;

    State state;
    FaceColors colors{};        // the system's when the palette was made
    HPALETTE palette = nullptr; // the face's shades of them
    HBITMAP face = nullptr;     // null when the knob has no area or there is no memory
    std::int32_t faceSide = 0;
    PaintState paint;
};

Size ClientSize(HWND window);

// Makes the palette. False when there is no memory; the record owns whatever was made.
bool MakePalette(Record& record);

// Makes the face anew for a knob of this side, in the system's colours.
void RebuildFace(Record& record, std::int32_t side);

// Makes the face anew when the system's colours are others than before.
void FollowSystemColors(Record& record);

// Paints the face, or nothing when there is none.
void DrawFace(HDC context, const Record& record, const Rect& knob);

// Frees what the record owns.
void FreeFace(Record& record);

// Draws the whole dial.
void Draw(HWND window, const OffscreenPaint& offscreen);

} // namespace vorn::dial
