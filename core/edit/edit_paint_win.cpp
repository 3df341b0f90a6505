#include "core/edit/edit_paint_win.h"

#include "core/color_win.h"
#include "core/gdi_win.h"

#include <algorithm>
#include <cstring>

namespace vorn::edit {
namespace {

// What the cells of a picture of digits show, in their order.
constexpr char kDigitCharacters[] = "0123456789 -+/.:,()";

// The largest picture has so many rows above those that its smaller size shows.
constexpr std::int32_t kSpareRows = 2;

// One paint: where to and what.
struct Canvas {
    HDC context;
    const EditBody& body;
    ShownText shown;
    Rect area; // of the text
    FieldInk ordinary;
    FieldInk selected;
};

FieldInk SelectedInk() {
    const COLORREF background = GetSysColor(COLOR_HIGHLIGHT);
    return {background, GetSysColor(COLOR_HIGHLIGHTTEXT), {background}};
}

std::uint32_t LengthOf(const Canvas& canvas) {
    return static_cast<std::uint32_t>(std::strlen(canvas.shown.text));
}

void WriteIn(HDC context, Point origin, const Rect& clip, UINT options, const char* text,
             std::uint32_t length) {
    const RECT rect = ToPlatform(clip);
    ExtTextOutA(context, origin.x, origin.y, options | ETO_CLIPPED, &rect, text, length, nullptr);
}

// Like the system's edit, an edit without the focus does not show what is selected.
bool IsSelected(const Canvas& canvas, std::uint32_t index) {
    const TextCaret& caret = *canvas.body.caret;
    return canvas.body.focused && index >= caret.selectionStart && index < caret.selectionEnd;
}

// The part of the text in the selection is written a second time, over the first.
void PaintPlainText(const Canvas& canvas, std::uint32_t first, std::int32_t left) {
    const std::uint32_t length = LengthOf(canvas);
    const std::int32_t top = TextTop(canvas.area, canvas.body.figures.height);
    const char* visible = canvas.shown.text + first;
    SetBkMode(canvas.context, TRANSPARENT);
    SetTextColor(canvas.context, canvas.ordinary.text);
    WriteIn(canvas.context, {left, top}, canvas.area, 0, visible, length - first);

    const TextCaret& caret = *canvas.body.caret;
    const std::uint32_t start = std::clamp<std::uint32_t>(caret.selectionStart, first, length);
    const std::uint32_t end = std::clamp<std::uint32_t>(caret.selectionEnd, first, length);
    if (!canvas.body.focused || start >= end) {
        return;
    }
    const Rect selected = {left + TextWidth(canvas.shown, first, start), top,
                           std::min(canvas.area.right, left + TextWidth(canvas.shown, first, end)),
                           top + canvas.body.figures.height};
    if (selected.left < selected.right) {
        SetTextColor(canvas.context, canvas.selected.text);
        SetBkColor(canvas.context, canvas.selected.background);
        WriteIn(canvas.context, {left, top}, selected, ETO_OPAQUE, visible, length - first);
    }
}

void WriteCentered(const Canvas& canvas, const Rect& cell, const char* character) {
    const std::int32_t width = TextExtent(canvas.context, character, 1);
    const Point origin = {cell.left + (Width(cell) - width) / 2,
                          TextTop(cell, canvas.body.figures.height)};
    WriteIn(canvas.context, origin, cell, 0, character, 1);
}

// A character without a picture is written in the edit's font.
void PaintDigit(const Canvas& canvas, HDC digits, const Rect& cell, const char* character) {
    const char* found = std::strchr(kDigitCharacters, *character);
    if (found == nullptr || digits == nullptr) {
        WriteCentered(canvas, cell, character);
        return;
    }
    const auto column = static_cast<std::int32_t>(found - kDigitCharacters);
    const DigitSize size = DigitSizeOf(canvas.body.figures);
    const bool isShort = size.picture == kDigitPictureCount - 1 && size.cell.height < 26;
    BitBlt(canvas.context, cell.left, cell.top, Width(cell), Height(cell), digits,
           column * Width(cell), isShort ? kSpareRows : 0, SRCCOPY);
}

// Boxes beside each other; the last is cut where the area ends.
void PaintRuling(const Canvas& canvas) {
    const COLORREF color = ResolveColor(canvas.body.colors.shadow);
    const Rect& area = canvas.area;
    for (std::int32_t x = area.left; x <= area.right; x += canvas.shown.cellWidth) {
        FillWithColor(canvas.context, {x - 1, area.top, x, area.bottom}, color);
    }
    FillWithColor(canvas.context, {area.left, area.top, area.right, area.top + 1}, color);
    FillWithColor(canvas.context, {area.left, area.bottom - 1, area.right, area.bottom}, color);
}

void PaintInCells(const Canvas& canvas, std::uint32_t first, std::int32_t left) {
    const bool isDigits = canvas.shown.displayStyle == kDigitPictures;
    const DigitSize size = DigitSizeOf(canvas.body.figures);
    const std::int32_t top =
        TextTop(canvas.area, isDigits ? size.cell.height : Height(canvas.area));
    const std::int32_t height = isDigits ? size.cell.height : Height(canvas.area);
    HBITMAP picture = canvas.body.digits[static_cast<std::size_t>(size.picture)];
    HDC digits = isDigits && picture != nullptr ? CreateCompatibleDC(canvas.context) : nullptr;
    HGDIOBJ before = digits == nullptr ? nullptr : SelectObject(digits, picture);
    SetBkMode(canvas.context, TRANSPARENT);
    IntersectClipRect(canvas.context, canvas.area.left, canvas.area.top, canvas.area.right,
                      canvas.area.bottom);
    const std::uint32_t length = LengthOf(canvas);
    Rect cell = {left, top, left + canvas.shown.cellWidth, top + height};
    for (std::uint32_t index = first; index < length && cell.left < canvas.area.right; ++index) {
        const bool isSelected = IsSelected(canvas, index);
        const FieldInk& ink = isSelected ? canvas.selected : canvas.ordinary;
        SetTextColor(canvas.context, ink.text);
        SetBkColor(canvas.context, ink.background);
        // The ruling stays.
        const std::int32_t ruling = isDigits ? 0 : 1;
        const Rect inside = {cell.left, cell.top + ruling, cell.right - ruling,
                             cell.bottom - ruling};
        if (isSelected) {
            FillWithColor(canvas.context, inside, ink.background);
        }
        if (isDigits) {
            PaintDigit(canvas, digits, cell, canvas.shown.text + index);
        } else {
            WriteCentered(canvas, inside, canvas.shown.text + index);
        }
        cell.left += canvas.shown.cellWidth;
        cell.right += canvas.shown.cellWidth;
    }
    if (digits != nullptr) {
        SelectObject(digits, before);
        DeleteDC(digits);
    }
}

void PaintText(const Canvas& canvas, std::uint32_t alignment) {
    const SavedContext saved(canvas.context);
    SelectObject(canvas.context, canvas.body.font);
    const std::uint32_t length = LengthOf(canvas);
    // A text that is centred or at the right, without the focus, is not scrolled.
    const bool isScrolled = canvas.body.focused || alignment == 0;
    const std::uint32_t first =
        isScrolled ? std::min<std::uint32_t>(canvas.body.caret->firstVisible, length) : 0;
    const std::int32_t left =
        canvas.body.focused
            ? canvas.area.left
            : AlignedLeft(canvas.area, TextWidth(canvas.shown, first, length), alignment);
    if (canvas.shown.displayStyle == kCharacterCells) {
        PaintRuling(canvas);
    }
    if (IsInCells(canvas.shown.displayStyle)) {
        PaintInCells(canvas, first, left);
    } else {
        PaintPlainText(canvas, first, left);
    }
}

} // namespace

FieldInk FieldInkOf(const EditBody& body) {
    const FieldCodes codes = FieldCodesOf(body.colors, body.disabled, body.readOnly);
    const COLORREF background = ResolveColor(codes.background);
    return {background, ResolveColor(codes.text), {background}};
}

void PaintEdit(const EditKind& kind, HWND window, HDC context, const FieldInk& ink,
               std::uint32_t alignment) {
    const EditBody* body = kind.bodyOf(window);
    if (body == nullptr) {
        return;
    }
    const Rect rightPart = RightPartOf(window, *body, kind);
    const Rect client = ClientRect(window);
    FillWithGround(context, {client.left, client.top, rightPart.left, client.bottom}, ink.ground);
    const ShownEdit edit(kind, *body);
    PaintText({context, *body, edit.shown(), TextAreaOf(window, *body, kind), ink, SelectedInk()},
              alignment);
    if (body->rightPartShown) {
        kind.paintRightPart(context, *body, rightPart);
    }
}

} // namespace vorn::edit
