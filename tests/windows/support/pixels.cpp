#include "tests/windows/support/pixels.h"

#include <sstream>

namespace vorn::test {
namespace {

// A 32-bit bitmap whose pixels can be read, selected into a context.
class Canvas {
public:
    Canvas(int width, int height) : width_(width), height_(height) {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        bitmap_ = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits_, nullptr, 0);
        context_ = CreateCompatibleDC(nullptr);
        previous_ = SelectObject(context_, bitmap_);
    }
    ~Canvas() {
        SelectObject(context_, previous_);
        DeleteDC(context_);
        DeleteObject(bitmap_);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    HDC context() const { return context_; }

    Pixels Read() const {
        GdiFlush();
        Pixels pixels = {width_, height_, {}};
        const auto* quads = static_cast<const RGBQUAD*>(bits_);
        for (int i = 0; i < width_ * height_; ++i) {
            pixels.colors.push_back(RGB(quads[i].rgbRed, quads[i].rgbGreen, quads[i].rgbBlue));
        }
        return pixels;
    }

private:
    int width_;
    int height_;
    void* bits_ = nullptr;
    HBITMAP bitmap_ = nullptr;
    HDC context_ = nullptr;
    HGDIOBJ previous_ = nullptr;
};

} // namespace

int Pixels::Count(const RECT& area, COLORREF color) const {
    int count = 0;
    for (LONG y = area.top; y < area.bottom; ++y) {
        for (LONG x = area.left; x < area.right; ++x) {
            count += At(static_cast<int>(x), static_cast<int>(y)) == color;
        }
    }
    return count;
}

std::vector<std::string> Pixels::Letters(const std::map<COLORREF, char>& letters) const {
    std::vector<std::string> rows;
    for (int y = 0; y < height; ++y) {
        std::string row;
        for (int x = 0; x < width; ++x) {
            const auto found = letters.find(At(x, y));
            row += found == letters.end() ? '?' : found->second;
        }
        rows.push_back(row);
    }
    return rows;
}

std::string Difference(const Pixels& expected, const Pixels& actual) {
    std::ostringstream text;
    if (expected.width != actual.width || expected.height != actual.height) {
        text << "expected " << expected.width << " by " << expected.height << " pixels, have "
             << actual.width << " by " << actual.height;
        return text.str();
    }
    int different = 0;
    for (int y = 0; y < expected.height; ++y) {
        for (int x = 0; x < expected.width; ++x) {
            if (expected.At(x, y) != actual.At(x, y) && ++different == 1) {
                text << std::hex << "at (" << std::dec << x << ", " << y << ") expected 0x"
                     << std::hex << expected.At(x, y) << ", have 0x" << actual.At(x, y);
            }
        }
    }
    if (different > 1) {
        text << std::dec << ", and " << different - 1 << " more pixels differ";
    }
    return text.str();
}

Pixels PixelsOf(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    const Canvas canvas(rect.right - rect.left, rect.bottom - rect.top);
    HDC source = GetWindowDC(window);
    BitBlt(canvas.context(), 0, 0, rect.right - rect.left, rect.bottom - rect.top, source, 0, 0,
           SRCCOPY);
    ReleaseDC(window, source);
    return canvas.Read();
}

Pixels Drawing(int width, int height, COLORREF background, const std::function<void(HDC)>& draw) {
    const Canvas canvas(width, height);
    const RECT area = {0, 0, width, height};
    HBRUSH brush = CreateSolidBrush(background);
    FillRect(canvas.context(), &area, brush);
    DeleteObject(brush);
    draw(canvas.context());
    return canvas.Read();
}

} // namespace vorn::test
