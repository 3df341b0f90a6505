#include "core/edit/edit_body_win.h"

#include "core/edit/edit_caret_win.h"
#include "core/gdi_win.h"
#include "core/window_win.h"

#include <cstring>

namespace vorn::edit {
namespace {

constexpr std::array<WORD, kDigitPictureCount> kDigitResources = {903, 913, 923};

// The picture's ink alone, so that it can be painted in any colours.
HBITMAP LoadInk(WORD id) {
    HBITMAP picture = LoadPicture(id);
    BITMAP size{};
    if (GetObjectA(picture, sizeof size, &size) == 0) {
        DeleteObject(picture);
        return nullptr;
    }
    HBITMAP ink = CreateBitmap(size.bmWidth, size.bmHeight, 1, 1, nullptr);
    HDC from = CreateCompatibleDC(nullptr);
    HDC to = CreateCompatibleDC(nullptr);
    HGDIOBJ fromBefore = SelectObject(from, picture);
    HGDIOBJ toBefore = SelectObject(to, ink);
    SetBkColor(from, RGB(255, 255, 255));
    BitBlt(to, 0, 0, size.bmWidth, size.bmHeight, from, 0, 0, SRCCOPY);
    SelectObject(to, toBefore);
    SelectObject(from, fromBefore);
    DeleteDC(to);
    DeleteDC(from);
    DeleteObject(picture);
    return ink;
}

std::uint32_t DisplayStyleOf(DWORD style) {
    if ((style & kStyleCells) != 0) {
        return kCharacterCells;
    }
    return (style & kStyleDigits) != 0 ? kDigitPictures : kPlainText;
}

Size SizeOf(const Rect& rect) {
    return {Width(rect), Height(rect)};
}

Size WindowSize(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return SizeOf(FromPlatform(rect));
}

std::int32_t CellWidthIn(const EditKind& kind, const EditBody& body) {
    const bool ownCells = body.displayStyle == kCharacterCells && kind.cell.width > 0 &&
                          body.figures.height <= kind.cell.height;
    return ownCells ? kind.cell.width : CellWidthOf(body.displayStyle, body.figures);
}

// What a border adds to the size that a font asks for.
Size FontAllowance(std::uint32_t border) {
    const int borders = BorderAllowance(border);
    return {borders * GetSystemMetrics(SM_CXBORDER), borders * GetSystemMetrics(SM_CYBORDER)};
}

} // namespace

void InitEdit(EditBody& body, DWORD style, const EditKind& kind) {
    body.disabled = (style & WS_DISABLED) != 0;
    body.readOnly = (style & kStyleReadOnly) != 0;
    body.borderStyle = BorderOfStyle(style, kind.borderBits);
    TakeFont(body, nullptr);
    TakeDisplayStyle(body, DisplayStyleOf(style));
}

void ReleaseEdit(EditBody& body) {
    for (HBITMAP& digits : body.digits) {
        DeleteObject(digits);
        digits = nullptr;
    }
}

void TakeFont(EditBody& body, HFONT font) {
    body.font = OrSystemFont(font);
    const TEXTMETRICA metrics = MeasureFont(body.font);
    body.figures = {static_cast<std::uint16_t>(metrics.tmHeight),
                    static_cast<std::uint16_t>(metrics.tmAscent),
                    static_cast<std::uint16_t>(metrics.tmInternalLeading),
                    static_cast<std::uint16_t>(metrics.tmMaxCharWidth)};
}

void TakeDisplayStyle(EditBody& body, std::uint32_t displayStyle) {
    ReleaseEdit(body);
    body.displayStyle = displayStyle;
    if (displayStyle == kDigitPictures) {
        for (std::size_t size = 0; size < kDigitPictureCount; ++size) {
            body.digits[size] = LoadInk(kDigitResources[size]);
        }
    }
}

void SetEditFont(const EditKind& kind, HWND window, HFONT font, bool redraw) {
    EditBody* body = kind.bodyOf(window);
    if (body == nullptr) {
        return;
    }
    TakeFont(*body, font);
    const std::int32_t rightPart = Width(RightPartOf(window, *body, kind));
    const FontFit fit = FitToFont(SizeOf(ClientRect(window)), rightPart, body->displayStyle,
                                  body->figures, kind.compactness);
    if (!fit.fits) {
        const Size allowance = FontAllowance(body->borderStyle);
        SetWindowPos(window, nullptr, 0, 0, fit.client.width + allowance.width,
                     fit.client.height + allowance.height, SWP_NOMOVE | SWP_NOZORDER);
    }
    if (redraw) {
        Redraw(window);
    }
    RenewCaret(kind, window);
}

BOOL SetDisplayStyle(const EditKind& kind, HWND window, std::uint32_t style) {
    if (kind.bodyOf(window) == nullptr) {
        return FALSE;
    }
    const DWORD bits = style == 1 ? kStyleDigits : style == 2 ? kStyleCells : 0;
    ChangeStyle(window, kStyleDigits | kStyleCells, bits);
    EditBody* body = kind.bodyOf(window);
    if (body == nullptr) {
        return FALSE;
    }
    if (style <= 2) {
        TakeDisplayStyle(*body, DisplayStyleOf(bits));
    } else {
        ReleaseEdit(*body);
    }
    const BOOL result = Redraw(window);
    RenewCaret(kind, window);
    return result;
}

BOOL SetEditBorder(const EditKind& kind, HWND window, std::uint32_t border) {
    if (kind.bodyOf(window) == nullptr) {
        return FALSE;
    }
    ChangeStyle(window, kStyleBorders, StyleBitOfBorder(border));
    EditBody* body = kind.bodyOf(window);
    if (body == nullptr) {
        return FALSE;
    }
    const Size client = SizeOf(ClientRect(window));
    const Size base = kind.growsSameBorder ? WindowSize(window) : client;
    const Size size = SizeWithBorder(base, client, body->borderStyle, border);
    if (border <= kBorderSunken) {
        body->borderStyle = border;
    }
    SetWindowPos(window, nullptr, 0, 0, size.width, size.height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    return TRUE;
}

Rect RightPartOf(HWND window, const EditBody& body, const EditKind& kind) {
    Rect rect = ClientRect(window);
    const std::int32_t width =
        body.rightPartShown ? RightPartWidth(Height(rect), kind.compactness.rightEighths) : 0;
    rect.left = rect.right - width;
    return rect;
}

Rect TextAreaOf(HWND window, const EditBody& body, const EditKind& kind) {
    return TextArea(ClientRect(window), Width(RightPartOf(window, body, kind)));
}

ShownEdit::ShownEdit(const EditKind& kind, const EditBody& body) {
    SelectObject(screen_.get(), body.font);
    const auto write = kind.writeShown != nullptr ? kind.writeShown : kind.writeText;
    write(body, text_);
    shown_ = {text_,
              kind.isNull(body),
              body.displayStyle,
              CellWidthIn(kind, body),
              {screen_.get(), TextExtent}};
}

std::int32_t ShownEdit::length() const {
    return static_cast<std::int32_t>(std::strlen(text_));
}

std::int32_t TextExtent(void* context, const char* text, std::uint32_t count) {
    SIZE size{};
    GetTextExtentPoint32A(static_cast<HDC>(context), text, static_cast<int>(count), &size);
    return size.cx;
}

} // namespace vorn::edit
