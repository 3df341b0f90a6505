// The dial's face as a bitmap of one byte a pixel.
#include "controls/dial/dial_win.h"

#include <algorithm>
#include <cstddef>

namespace vorn::dial {
namespace {

constexpr WORD kShades = 256;
constexpr WORD kPaletteVersion = 0x300;

// A larger knob shows its face stretched, so that a window of any size costs no more than this.
constexpr std::int32_t kLargestFace = 1024;

FaceColors SystemColors() {
    return {GetSysColor(COLOR_BTNFACE), GetSysColor(COLOR_3DDKSHADOW), GetSysColor(COLOR_BTNSHADOW),
            GetSysColor(COLOR_BTNHIGHLIGHT)};
}

struct PaletteEntries {
    PALETTEENTRY entries[kShades];
};

PaletteEntries Shades(const FaceColors& colors) {
    PaletteEntries shades{};
    for (WORD shade = 0; shade < kShades; ++shade) {
        const COLORREF color = ColorOfShade(colors, static_cast<std::uint8_t>(shade));
        shades.entries[shade] = {GetRValue(color), GetGValue(color), GetBValue(color), 0};
    }
    return shades;
}

// A bitmap whose bytes are indexes into the palette, from the top row on.
struct FaceBitmapInfo {
    BITMAPINFOHEADER header;
    RGBQUAD colors[kShades];
};

FaceBitmapInfo DescribeFace(HPALETTE palette, std::int32_t side) {
    FaceBitmapInfo info{};
    info.header.biSize = sizeof info.header;
    info.header.biWidth = side;
    info.header.biHeight = -side;
    info.header.biPlanes = 1;
    info.header.biBitCount = 8;
    PaletteEntries shades{};
    GetPaletteEntries(palette, 0, kShades, shades.entries);
    for (WORD shade = 0; shade < kShades; ++shade) {
        const PALETTEENTRY& entry = shades.entries[shade];
        info.colors[shade] = {entry.peBlue, entry.peGreen, entry.peRed, 0};
    }
    return info;
}

// Rows of a bitmap begin at multiples of four bytes.
std::ptrdiff_t RowBytes(std::int32_t side) {
    return (std::ptrdiff_t{side} + 3) / 4 * 4;
}

HBITMAP MakeFace(HPALETTE palette, std::int32_t side) {
    const FaceBitmapInfo info = DescribeFace(palette, side);
    void* bits = nullptr;
    HBITMAP face = CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&info),
                                    DIB_RGB_COLORS, &bits, nullptr, 0);
    if (face == nullptr) {
        return nullptr;
    }
    auto* pixels = static_cast<std::uint8_t*>(bits);
    const std::ptrdiff_t rowBytes = RowBytes(side);
    for (std::int32_t y = 0; y < side; ++y) {
        // The light comes along the diagonal: what is on one side of it is on the other.
        for (std::int32_t x = 0; x <= y; ++x) {
            const std::uint8_t shade = ShadeOfPixel(side, {x, y});
            pixels[y * rowBytes + x] = shade;
            pixels[x * rowBytes + y] = shade;
        }
    }
    return face;
}

void DropFace(Record& record) {
    if (record.face != nullptr) {
        DeleteObject(record.face);
        record.face = nullptr;
    }
}

} // namespace

bool MakePalette(Record& record) {
    record.colors = SystemColors();
    struct {
        WORD version;
        WORD count;
        PaletteEntries shades;
    } description = {kPaletteVersion, kShades, Shades(record.colors)};
    record.palette = CreatePalette(reinterpret_cast<const LOGPALETTE*>(&description));
    return record.palette != nullptr;
}

void RebuildFace(Record& record, std::int32_t side) {
    const FaceColors colors = SystemColors();
    if (record.colors != colors) {
        record.colors = colors;
        const PaletteEntries shades = Shades(colors);
        SetPaletteEntries(record.palette, 0, kShades, shades.entries);
    }
    DropFace(record);
    record.faceSide = std::min(side, kLargestFace);
    if (side > 0) {
        record.face = MakeFace(record.palette, record.faceSide);
    }
}

void FollowSystemColors(Record& record) {
    if (record.colors != SystemColors()) {
        RebuildFace(record, record.faceSide);
    }
}

void DrawFace(HDC context, const Record& record, const Rect& knob) {
    HDC memory = record.face != nullptr ? CreateCompatibleDC(context) : nullptr;
    if (memory == nullptr) {
        return;
    }
    HGDIOBJ previous = SelectObject(memory, record.face);
    SetStretchBltMode(context, COLORONCOLOR);
    StretchBlt(context, knob.left, knob.top, Width(knob), Height(knob), memory, 0, 0,
               record.faceSide, record.faceSide, SRCCOPY);
    SelectObject(memory, previous);
    DeleteDC(memory);
}

void FreeFace(Record& record) {
    DropFace(record);
    if (record.palette != nullptr) {
        DeleteObject(record.palette);
        record.palette = nullptr;
    }
}

} // namespace vorn::dial
