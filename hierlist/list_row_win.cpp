// The painting of one row that the control draws itself.
#include "core/color_win.h"
#include "core/gdi_win.h"
#include "core/transparent_blit_win.h"
#include "hierlist/connect_lines.h"
#include "hierlist/list_paint_win.h"
#include "hierlist/row_spans.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace vorn::hierlist {
namespace {

void DrawLine(HDC context, const DottedLine& whole) {
    const DottedLine line = FromFirstDot(whole);
    if (line.length > 0) {
        MoveToEx(context, line.from.x, line.from.y, nullptr);
        LineTo(context, line.from.x + (line.vertical ? 0 : line.length),
               line.from.y + (line.vertical ? line.length : 0));
    }
}

// Copies a prepared picture.
void Copy(const RowTools& tools, const Rect& target, Point source) {
    BitBlt(tools.context, target.left, target.top, Width(target), Height(target), tools.pictures,
           source.x, source.y, SRCCOPY);
}

constexpr UINT kTextFormat = DT_SINGLELINE;

// In texts as in captions what follows an ampersand is underlined, and two of them are one. Most
// have none, and are measured and written at once.
bool HasAmpersand(const char* text, int length) {
    return std::memchr(text, '&', static_cast<std::size_t>(length)) != nullptr;
}

int WidthOf(HDC context, const char* text, int length) {
    if (HasAmpersand(text, length)) {
        RECT area{};
        DrawTextA(context, text, length, &area, kTextFormat | DT_CALCRECT);
        return area.right;
    }
    SIZE size{};
    GetTextExtentPoint32A(context, text, length, &size);
    return size.cx;
}

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
        piece.width = WidthOf(context_, piece.text, piece.length);
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

// Texts stand as high as those that parents have the system centre in rows of their own. Where that
// cannot be said, since half of the room above and below would be half a pixel, the system does it.
void WritePiece(HDC context, const char* text, int length, const Rect& row, int left,
                int fontHeight) {
    const int room = Height(row) - fontHeight;
    if (room % 2 != 0 || HasAmpersand(text, length)) {
        RECT area = {left, row.top, row.right, row.bottom};
        DrawTextA(context, text, length, &area, kTextFormat | DT_VCENTER | DT_NOCLIP);
    } else {
        ExtTextOutA(context, left, row.top + room / 2, 0, nullptr, text, static_cast<UINT>(length),
                    nullptr);
    }
}

void WriteText(HDC context, const Record& record, const char* text, const Rect& row, int left) {
    const int fontHeight = record.fontHeight;
    if (std::strchr(text, '\t') == nullptr) {
        WritePiece(context, text, static_cast<int>(std::strlen(text)), row, left, fontHeight);
        return;
    }
    Pieces pieces(context, record, text);
    Piece piece;
    while (pieces.Take(piece) && left + piece.x < row.right) {
        WritePiece(context, piece.text, piece.length, row, left + piece.x, fontHeight);
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

HPEN MakeLinePen(const Record& record) {
    const LOGBRUSH brush = {BS_SOLID, ResolveColor(record.options.colors.lines), 0};
    return HasOption(record.options, kOptionLines)
               ? ExtCreatePen(PS_COSMETIC | PS_ALTERNATE, 1, &brush, 0, nullptr)
               : nullptr;
}

int PaintPicture(const RowTools& tools, const OlbItem* item, const Rect& rect, int left) {
    const Record& record = tools.record;
    const PictureChoice choice = ChoosePicture(item, record.options, record.strips);
    const Rect target = PictureRect(rect, record.options, left);
    const std::int64_t start = std::int64_t{choice.index} * record.options.picture.width;
    if (start < 0 || start > std::numeric_limits<std::int32_t>::max()) {
        return target.right;
    }
    const Point source = {static_cast<std::int32_t>(start), 0};
    const bool isPrepared = tools.pictures != nullptr && choice.strip == record.strips.own &&
                            source.x < record.prepared.boxesLeft;
    if (isPrepared) {
        Copy(tools, target, source);
    } else {
        DrawTransparentBitmap(tools.context, target, static_cast<HBITMAP>(choice.strip), source,
                              tools.ground);
    }
    return target.right;
}

void PaintLines(const RowTools& tools, const OlbItem* item, const Rect& row) {
    const ListOptions& options = tools.record.options;
    HGDIOBJ before = SelectObject(tools.context, tools.lines);
    const OwnLines own = LinesOf(item, row, options);
    DrawLine(tools.context, own.down);
    DrawLine(tools.context, own.branch);
    for (const OlbItem* parent = PassedParent(item); parent != nullptr;
         parent = PassedParent(parent)) {
        DrawLine(tools.context, PassingLine(parent, row, options));
    }
    SelectObject(tools.context, before);
}

void PaintBox(const RowTools& tools, const OlbItem* item, const Rect& row) {
    if (item->childCount == 0) {
        return;
    }
    const Record& record = tools.record;
    const std::size_t which = (item->flags & kFlagOpen) != 0 ? 1 : 0;
    const Rect target = BoxRect(row, record.options, item->level);
    if (tools.pictures != nullptr) {
        const auto skipped = static_cast<std::int32_t>(which) * kBoxPicture.width;
        Copy(tools, target, {record.prepared.boxesLeft + skipped, 0});
    } else {
        DrawTransparentBitmap(tools.context, target, record.boxes[which], {}, tools.ground);
    }
}

void PaintRow(const RowTools& tools, const Layout& layout, const PlacedRow& placed) {
    const ListOptions& options = tools.record.options;
    const Rect& row = placed.rect;
    const std::int32_t needed =
        std::max({options.picture.height, kBoxPicture.height, tools.record.fontHeight});
    const bool mayLeaveRow = needed > Height(row) || layout.multiColumn;
    const int saved = mayLeaveRow ? SaveDC(tools.context) : 0;
    if (mayLeaveRow) {
        IntersectClipRect(tools.context, row.left, row.top, row.right, row.bottom);
    }
    if (tools.lines != nullptr) {
        PaintLines(tools, placed.item, row);
    }
    if (HasOption(options, kOptionBoxes)) {
        PaintBox(tools, placed.item, row);
    }
    if (ShowsPictures(options)) {
        const int left = row.left + ContentStart(options, placed.item->level);
        PaintPicture(tools, placed.item, row, left);
    }
    PaintText(tools.context, tools.record, placed);
    if (mayLeaveRow) {
        RestoreDC(tools.context, saved);
    }
}

} // namespace vorn::hierlist
