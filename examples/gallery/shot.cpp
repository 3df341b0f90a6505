#include "shot.h"

#include <cstdio>

namespace gallery {
namespace {

constexpr DWORD kSettleMilliseconds = 300;

// Lets the window be mapped and painted.
void Settle(HWND window) {
    UpdateWindow(window);
    const DWORD start = GetTickCount();
    while (GetTickCount() - start < kSettleMilliseconds) {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            DispatchMessageA(&message);
        }
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
    }
}

// Rows in a bitmap file begin at multiples of four bytes.
std::size_t Padding(int width) {
    return static_cast<std::size_t>(width) % 4;
}

} // namespace

void Shot::Add(HWND window) {
    Settle(window);
    RECT client{};
    GetClientRect(window, &client);
    width_ = static_cast<int>(client.right);

    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = client.right;
    info.bmiHeader.biHeight = -client.bottom;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    HDC source = GetDC(window);
    HDC copy = CreateCompatibleDC(source);
    HGDIOBJ previous = SelectObject(copy, bitmap);
    BitBlt(copy, 0, 0, client.right, client.bottom, source, 0, 0, SRCCOPY);
    GdiFlush();
    const auto* quads = static_cast<const RGBQUAD*>(bits);
    for (LONG i = 0; i < client.right * client.bottom; ++i) {
        pixels_.push_back({quads[i].rgbBlue, quads[i].rgbGreen, quads[i].rgbRed});
    }
    SelectObject(copy, previous);
    DeleteDC(copy);
    ReleaseDC(window, source);
    DeleteObject(bitmap);
}

bool Shot::Write(const std::string& file) const {
    if (pixels_.empty()) {
        return false;
    }
    const int height = static_cast<int>(pixels_.size()) / width_;
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = width_;
    header.biHeight = height;
    header.biPlanes = 1;
    header.biBitCount = 24;
    BITMAPFILEHEADER start{};
    start.bfType = 0x4D42; // "BM"
    start.bfOffBits = sizeof start + sizeof header;
    start.bfSize = start.bfOffBits +
                   static_cast<DWORD>(height) *
                       static_cast<DWORD>(static_cast<std::size_t>(width_) * 3 + Padding(width_));

    FILE* out = std::fopen(file.c_str(), "wb");
    if (out == nullptr) {
        return false;
    }
    bool written = std::fwrite(&start, sizeof start, 1, out) == 1 &&
                   std::fwrite(&header, sizeof header, 1, out) == 1;
    for (int y = height - 1; y >= 0 && written; --y) {
        const RGBTRIPLE* row = pixels_.data() + static_cast<std::ptrdiff_t>(y) * width_;
        const auto width = static_cast<std::size_t>(width_);
        written = std::fwrite(row, sizeof *row, width, out) == width &&
                  std::fwrite("\0\0\0", 1, Padding(width_), out) == Padding(width_);
    }
    return std::fclose(out) == 0 && written;
}

} // namespace gallery
