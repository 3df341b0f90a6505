// The exported functions that say how an outline list looks.
#include "core/color_win.h"
#include "core/window_win.h"
#include "hierlist/list_border_win.h"
#include "hierlist/list_paint_win.h"
#include "hierlist/list_view_win.h"
#include "hierlist/row_spans.h"

#include <vorn32/hierlist.h>

namespace vorn::hierlist {
namespace {

static_assert(OLB_SORTFIRST == kSortFirst);

// Sets or clears an option. Returns what it was.
LONG SetOption(HWND window, std::uint8_t flag, bool on) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    const bool before = HasOption(record->options, flag);
    const unsigned flags = on ? record->options.flags | flag : record->options.flags & ~flag;
    record->options.flags = static_cast<std::uint8_t>(flags);
    RedrawRows(window);
    return before;
}

bool IsSlot(int number) {
    for (const ColorSlot<ListColors>& slot : kListColorSlots) {
        if (slot.number == number) {
            return true;
        }
    }
    return false;
}

// A number as one that an item's record holds.
std::int16_t ToIndex(LONG index) {
    return static_cast<std::int16_t>(index);
}

const OlbItem* ItemAt(const Record& record, LONG row) {
    return IndexToHandle(record.outline, static_cast<std::uint32_t>(row));
}

// What a part of a row is painted with for a parent, which has painted the ground: pictures are
// laid on the colour that is at the point.
RowTools ToolsFor(HDC context, const Record& record, Point point) {
    const COLORREF there = GetPixel(context, point.x, point.y);
    const COLORREF background = ResolveColor(record.options.colors.background);
    return {context, record, {nullptr, there != CLR_INVALID ? there : background}};
}

} // namespace
} // namespace vorn::hierlist

using namespace vorn;
using namespace vorn::hierlist;

extern "C" LONG WINAPI olbShowLines(HWND window, BOOL on) {
    return SetOption(window, kOptionLines, on != 0);
}

extern "C" LONG WINAPI olbEnableMicroBitmaps(HWND window, BOOL on) {
    return SetOption(window, kOptionBoxes, on != 0);
}

extern "C" LONG WINAPI olbSetFullSelectRect(HWND window, BOOL on) {
    return SetOption(window, kOptionFullRow, on != 0);
}

extern "C" LONG WINAPI olbEnableBitmaps(HWND window, BOOL on) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    const bool before = ShowsPictures(record->options);
    const unsigned kept = record->options.pictures & 0x8000u;
    record->options.pictures = static_cast<std::uint16_t>(kept | (on != 0 ? 1 : 0));
    RedrawRows(window);
    return before;
}

extern "C" LONG WINAPI olbSetIndent(HWND window, WORD pixels) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    const LONG before = record->options.indent;
    record->options.indent = pixels;
    if (before != pixels) {
        RedrawRows(window);
    }
    return before;
}

extern "C" LONG WINAPI olbGetIndent(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? LB_ERR : record->options.indent;
}

extern "C" LONG WINAPI olbSetBitmapIndexEx(HWND window, HOLBITEM item, LONG index) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    auto* target = reinterpret_cast<OlbItem*>(item);
    if (target == nullptr || target == NoItem()) {
        const LONG before = record->options.defaultPicture;
        record->options.defaultPicture = index;
        RedrawRows(window);
        return before;
    }
    const LONG before = target->bitmapIndex;
    SetBitmapIndex(record->outline, target, ToIndex(index));
    if (QueryVisible(target) == 1) {
        RedrawRow(window, HandleToIndex(target));
    }
    return before;
}

extern "C" DWORD WINAPI olbSetColor(HWND window, int part, COLORREF colorCode, BOOL redraw) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    SetColorSlot(record->options.colors, kListColorSlots, part, colorCode);
    if (redraw != 0 && IsDrawingOn(*record)) {
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
        return static_cast<DWORD>(UpdateWindow(window));
    }
    return IsSlot(part) ? colorCode : static_cast<DWORD>(part);
}

extern "C" BOOL WINAPI olbSetBorderStyle(HWND window, DWORD border) {
    if (RecordOf<Record>(window) == nullptr) {
        return 0;
    }
    SetBorder(window, border);
    return 1;
}

extern "C" LONG WINAPI olbGetBorderStyle(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? LB_ERR : static_cast<LONG>(record->options.border);
}

extern "C" int WINAPI olbPaintBitmap(HWND window, HDC context, LONG row, const RECT* place) {
    Record* record = RecordOf<Record>(window);
    const OlbItem* item = record == nullptr ? nullptr : ItemAt(*record, row);
    if (item == nullptr || place == nullptr) {
        return LB_ERR;
    }
    const Rect rect = FromPlatform(*place);
    const int left = rect.left + ContentStart(record->options, item->level);
    if (!ShowsPictures(record->options)) {
        return left;
    }
    return PaintPicture(ToolsFor(context, *record, {left, rect.top}), item, rect, left);
}

extern "C" BOOL WINAPI olbPaintLines(HWND window, HDC context, LONG row, const RECT* place) {
    Record* record = RecordOf<Record>(window);
    const OlbItem* item = record == nullptr ? nullptr : ItemAt(*record, row);
    if (item == nullptr || place == nullptr) {
        return 0;
    }
    const Rect rect = FromPlatform(*place);
    RowTools tools = ToolsFor(context, *record, {rect.left, rect.top});
    tools.lines = MakeLinePen(*record);
    if (tools.lines != nullptr) {
        PaintLines(tools, item, rect);
        DeleteObject(tools.lines);
    }
    if (HasOption(record->options, kOptionBoxes)) {
        PaintBox(tools, item, rect);
    }
    return 1;
}
