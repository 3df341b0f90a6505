#include "core/transparent_blit_win.h"

#include "core/gdi_win.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace vorn {
namespace {

constexpr std::int64_t kMostPixels = std::int64_t{1} << 28; // what a 32-bit process could copy

// A copy of a bitmap's pixels. Copying them out and in again makes no objects, unlike a mask and
// memory contexts, whose making takes ten times as long as a small picture.
class PixelCopy {
public:
    PixelCopy(HDC context, HBITMAP bitmap) {
        BITMAP header{};
        if (bitmap == nullptr || GetObjectA(bitmap, sizeof header, &header) == 0) {
            return;
        }
        size_ = {header.bmWidth, header.bmHeight};
        const std::int64_t count = std::int64_t{size_.width} * size_.height;
        if (count > kMostPixels) {
            return;
        }
        pixels_ = static_cast<std::uint32_t*>(HeapAlloc(
            GetProcessHeap(), 0, static_cast<std::size_t>(count) * sizeof(std::uint32_t)));
        BITMAPINFO info = DescribePixels(size_);
        if (pixels_ != nullptr && GetDIBits(context, bitmap, 0, static_cast<UINT>(size_.height),
                                            pixels_, &info, DIB_RGB_COLORS) == 0) {
            Free();
        }
    }
    ~PixelCopy() { Free(); }
    PixelCopy(const PixelCopy&) = delete;
    PixelCopy& operator=(const PixelCopy&) = delete;

    bool HasPixels() const { return pixels_ != nullptr; }
    Size GetSize() const { return size_; }

    // The pixels of a row, 0 the top one: 0x00RRGGBB, beside a byte that means nothing.
    std::uint32_t* Row(std::int32_t y) const {
        return pixels_ + static_cast<std::ptrdiff_t>(y) * size_.width;
    }

private:
    void Free() {
        if (pixels_ != nullptr) {
            HeapFree(GetProcessHeap(), 0, pixels_);
            pixels_ = nullptr;
        }
    }

    Size size_;
    std::uint32_t* pixels_ = nullptr;
};

std::uint32_t ColorOfPixel(std::uint32_t pixel) {
    return pixel & 0x00FFFFFF;
}

std::uint32_t PixelOfColor(COLORREF color) {
    return RGB(GetBValue(color), GetGValue(color), GetRValue(color));
}

// What both rectangles hold; empty or turned inside out when that is nothing.
Rect Overlap(const Rect& a, const Rect& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
            std::min(a.bottom, b.bottom)};
}

void Replace(const PixelCopy& pixels, const Rect& piece, std::uint32_t from, std::uint32_t to) {
    for (std::int32_t y = piece.top; y < piece.bottom; ++y) {
        std::uint32_t* row = pixels.Row(y);
        for (std::int32_t x = piece.left; x < piece.right; ++x) {
            row[x] = ColorOfPixel(row[x]) == from ? to : row[x];
        }
    }
}

} // namespace

void DrawTransparentBitmap(HDC context, const Rect& target, HBITMAP bitmap, Point source,
                           COLORREF background) {
    const PixelCopy pixels(context, bitmap);
    if (!pixels.HasPixels()) {
        return;
    }
    const auto [width, height] = pixels.GetSize();
    const Rect wanted = {source.x, source.y, source.x + Width(target), source.y + Height(target)};
    const Rect piece = Overlap(wanted, {0, 0, width, height});
    FillWithColor(context, target, background);
    if (Width(piece) <= 0 || Height(piece) <= 0) {
        return;
    }
    Replace(pixels, piece, ColorOfPixel(pixels.Row(height - 1)[0]), PixelOfColor(background));
    const auto rows = static_cast<UINT>(Height(piece));
    const BITMAPINFO info = DescribePixels({width, Height(piece)});
    SetDIBitsToDevice(context, target.left + piece.left - source.x,
                      target.top + piece.top - source.y, static_cast<DWORD>(Width(piece)), rows,
                      piece.left, 0, 0, rows, pixels.Row(piece.top), &info, DIB_RGB_COLORS);
}

} // namespace vorn
