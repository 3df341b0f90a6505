// The painting of one row that the control draws itself.
#include "core/color_win.h"
#include "core/gdi_win.h"
#include "core/transparent_blit_win.h"
#include "hierlist/connect_lines.h"
#include "hierlist/list_paint_win.h"
#include "hierlist/row_spans.h"

#include <algorithm>
#include <cstring>

namespace vorn::hierlist {
namespace {

// A pen that paints every other pixel, from the first on, and leaves the rest as it is.
class DottedPen {
public:
    DottedPen(HDC context, COLORREF color) : context_(context) {
        const LOGBRUSH brush = {BS_SOLID, color, 0};
        pen_ = ExtCreatePen(PS_COSMETIC | PS_ALTERNATE, 1, &brush, 0, nullptr);
        before_ = SelectObject(context, pen_);
    }
    ~DottedPen() {
        SelectObject(context_, before_);
        DeleteObject(pen_);
    }
    DottedPen(const DottedPen&) = delete;
    DottedPen& operator=(const DottedPen&) = delete;

    void Draw(const DottedLine& whole) const {
        const DottedLine line = FromFirstDot(whole);
        if (line.length > 0) {
            MoveToEx(context_, line.from.x, line.from.y, nullptr);
            LineTo(context_, line.from.x + (line.vertical ? 0 : line.length),
                   line.from.y + (line.vertical ? line.length : 0));
        }
    }

private:
    HDC context_;
    HPEN pen_;
    HGDIOBJ before_;
};

// A piece of a text between tabs, and where it begins behind the text's start.
struct Piece {
    const char* text = nullptr;
    int length = 0;
    int x = 0;
    int width = 0;
};

// The pieces of a text one after the other; of a text without tabs, one.
class Pieces {
public:
    Pieces(HDC context, const Record& record, const char* text)
        : context_(context),
          tabs_(record.tabs), units_{LOWORD(GetDialogBaseUnits()), record.options.averageWidth},
          next_(text) {}

    bool Take(Piece& piece) {
        if (next_ == nullptr) {
            return false;
        }
        const char* tab = std::strchr(next_, '\t');
        piece.text = next_;
        piece.length = static_cast<int>(tab != nullptr ? static_cast<std::size_t>(tab - next_)
                                                       : std::strlen(next_));
        piece.x = x_;
        SIZE size{};
        GetTextExtentPoint32A(context_, piece.text, piece.length, &size);
        piece.width = size.cx;
        next_ = tab != nullptr ? tab + 1 : nullptr;
        x_ = next_ != nullptr ? NextTab(tabs_, units_, x_ + piece.width) : x_ + piece.width;
        return true;
    }

private:
    HDC context_;
    const TabStops& tabs_;
    TabUnits units_;
    const char* next_;
    int x_ = 0;
};

int TextWidth(HDC context, const Record& record, const char* text) {
    Pieces pieces(context, record, text);
    Piece piece;
    int width = 0;
    while (pieces.Take(piece)) {
        width = piece.x + piece.width;
    }
    return width;
}

void WriteText(HDC context, const Record& record, const char* text, const Rect& row, int left) {
    const RECT clip = ToPlatform(row);
    const int top = row.top + (Height(row) - record.fontHeight) / 2;
    Pieces pieces(context, record, text);
    Piece piece;
    while (pieces.Take(piece) && left + piece.x < clip.right) {
        ExtTextOutA(context, left + piece.x, top, ETO_CLIPPED, &clip, piece.text,
                    static_cast<UINT>(piece.length), nullptr);
    }
}

void PaintText(HDC context, const Record& record, const PlacedRow& placed) {
    const ListOptions& options = record.options;
    const OlbItem* item = placed.item;
    const char* text = TextOf(item);
    const bool selected = (item->flags & kFlagSelected) != 0;
    const bool focused = (item->flags & kFlagCaret) != 0;
    Rect framed;
    if (selected || focused) {
        framed = TextRect(placed.rect, options, item->level, TextWidth(context, record, text));
        if (selected) {
            FillWithColor(context, framed, ResolveColor(options.colors.selection));
        }
    }
    SetTextColor(context, ResolveColor(TextColorOf(options.colors, item->flags)));
    WriteText(context, record, text, placed.rect, TextStart(placed.rect, options, item->level));
    if (focused) {
        PaintFocus(context, framed);
    }
}

} // namespace

int PaintPicture(HDC context, const Record& record, const OlbItem* item, const Rect& rect, int left,
                 COLORREF background) {
    const PictureChoice choice = ChoosePicture(item, record.options, record.strips);
    const Rect target = PictureRect(rect, record.options, left);
    if (choice.index >= 0) {
        DrawTransparentBitmap(context, target, static_cast<HBITMAP>(choice.strip),
                              {choice.index * record.options.picture.width, 0}, background);
    }
    return target.right;
}

void PaintLines(HDC context, const Record& record, const OlbItem* item, const Rect& row) {
    const DottedPen pen(context, ResolveColor(record.options.colors.lines));
    const OwnLines own = LinesOf(item, row, record.options);
    pen.Draw(own.down);
    pen.Draw(own.branch);
    for (const OlbItem* parent = PassedParent(item); parent != nullptr;
         parent = PassedParent(parent)) {
        pen.Draw(PassingLine(parent, row, record.options));
    }
}

void PaintBox(HDC context, const Record& record, const OlbItem* item, const Rect& row,
              COLORREF background) {
    if (item->childCount != 0) {
        const bool open = (item->flags & kFlagOpen) != 0;
        DrawTransparentBitmap(context, BoxRect(row, record.options, item->level),
                              record.boxes[open ? 1 : 0], {}, background);
    }
}

void PaintRow(HDC context, const Record& record, const Layout& layout, const PlacedRow& placed,
              const Ground& ground) {
    const ListOptions& options = record.options;
    const Rect& row = placed.rect;
    const bool mayLeaveRow = options.picture.height > Height(row) ||
                             kBoxPicture.height > Height(row) || layout.multiColumn;
    const int saved = mayLeaveRow ? SaveDC(context) : 0;
    if (mayLeaveRow) {
        IntersectClipRect(context, row.left, row.top, row.right, row.bottom);
    }
    if (HasOption(options, kOptionLines)) {
        PaintLines(context, record, placed.item, row);
    }
    if (HasOption(options, kOptionBoxes)) {
        PaintBox(context, record, placed.item, row, ground.color);
    }
    if (ShowsPictures(options)) {
        const int left = row.left + ContentStart(options, placed.item->level);
        PaintPicture(context, record, placed.item, row, left, ground.color);
    }
    PaintText(context, record, placed);
    if (mayLeaveRow) {
        RestoreDC(context, saved);
    }
}

} // namespace vorn::hierlist
