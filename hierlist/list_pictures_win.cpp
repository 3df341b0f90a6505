// The exported functions of the pictures of an outline list, and those that draw for parents which
// draw the rows themselves.
#include "core/color_win.h"
#include "hierlist/list_handles_win.h"
#include "hierlist/list_paint_win.h"
#include "hierlist/list_view_win.h"
#include "hierlist/row_spans.h"

#include <algorithm>

namespace vorn::hierlist {
namespace {

constexpr int kLevels = static_cast<int>(kPictureLevels);

bool IsLevel(const Record* record, int level) {
    return record != nullptr && level >= 0 && level < kLevels;
}

// A number as one that an item's record holds.
std::int16_t ToIndex(LONG index) {
    return static_cast<std::int16_t>(index);
}

void RedrawItem(HWND window, const OlbItem* item) {
    if (QueryVisible(item) == 1) {
        RedrawRow(window, HandleToIndex(item));
    }
}

// Replaces a picture strip, a bitmap or none.
HBITMAP Exchange(void*& strip, HBITMAP bitmap) {
    auto* before = static_cast<HBITMAP>(strip);
    strip = bitmap;
    return before;
}

// A parent's rectangle, within what can be reckoned with.
constexpr LONG kFarthest = 1 << 28;

Rect PlaceOf(const RECT& place) {
    const auto reckonable = [](LONG number) { return std::clamp(number, -kFarthest, kFarthest); };
    return {reckonable(place.left), reckonable(place.top), reckonable(place.right),
            reckonable(place.bottom)};
}

// What a part of a row is painted with for a parent, which has painted the ground: pictures are
// laid on the colour that is at the place's corner, or at the pixel next to it that is drawn at
// all, since only a part of the row may need repainting, or be in the window.
RowTools ToolsFor(HDC context, const Record& record, Point corner) {
    RECT drawn{};
    GetClipBox(context, &drawn);
    const COLORREF there =
        GetPixel(context, std::max<int>(corner.x, drawn.left), std::max<int>(corner.y, drawn.top));
    const COLORREF background = ResolveColor(record.options.colors.background);
    return {context, record, there != CLR_INVALID ? there : background};
}

} // namespace
} // namespace vorn::hierlist

using namespace vorn;
using namespace vorn::hierlist;

// ---- Strips ----

extern "C" HBITMAP WINAPI olbSetBitmaps(HWND window, LONG row, HBITMAP bitmap) {
    HOLBITEM handle = HandleAt(window, row);
    return handle == nullptr && row != -1 ? nullptr : olbSetBitmapsEx(window, handle, bitmap);
}

extern "C" HBITMAP WINAPI olbSetBitmapsEx(HWND window, HOLBITEM handle, HBITMAP bitmap) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return nullptr;
    }
    OlbItem* item = ToItem(handle);
    if (item == nullptr || item == NoItem()) {
        HBITMAP before = Exchange(record->strips.user, bitmap);
        RedrawRows(window);
        return before;
    }
    if (!IsItem(item)) {
        return nullptr;
    }
    HBITMAP before = Exchange(item->bitmaps, bitmap);
    RedrawItem(window, item);
    return before;
}

extern "C" void WINAPI olbSetLevelBitmap(HWND window, int level, HBITMAP bitmap) {
    Record* record = RecordOf<Record>(window);
    if (IsLevel(record, level)) {
        const auto index = static_cast<std::size_t>(level);
        HBITMAP before = Exchange(record->strips.level[index], bitmap);
        if (before != bitmap) {
            DeleteObject(before);
        }
        record->options.levelPicture[index] = kNoPicture;
        RedrawRows(window);
    }
}

// ---- Indexes ----

extern "C" LONG WINAPI olbSetLevelIndex(HWND window, int level, LONG index) {
    Record* record = RecordOf<Record>(window);
    if (!IsLevel(record, level)) {
        return LB_ERR;
    }
    std::int32_t& picture = record->options.levelPicture[static_cast<std::size_t>(level)];
    const LONG before = picture;
    picture = index;
    RedrawRows(window);
    return before;
}

extern "C" LONG WINAPI olbSetBitmapIndex(HWND window, LONG row, LONG index) {
    HOLBITEM handle = HandleAt(window, row);
    return handle == nullptr && row != -1 ? LB_ERR : olbSetBitmapIndexEx(window, handle, index);
}

extern "C" LONG WINAPI olbSetBitmapIndexEx(HWND window, HOLBITEM handle, LONG index) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    OlbItem* item = ToItem(handle);
    if (item == nullptr || item == NoItem()) {
        const LONG before = record->options.defaultPicture;
        record->options.defaultPicture = index;
        RedrawRows(window);
        return before;
    }
    if (!IsItem(item)) {
        return LB_ERR;
    }
    const LONG before = item->bitmapIndex;
    SetBitmapIndex(record->outline, item, ToIndex(index));
    RedrawItem(window, item);
    return before;
}

// ---- Drawing for the parent ----

extern "C" int WINAPI olbPaintBitmap(HWND window, HDC context, LONG row, const RECT* place) {
    Record* record = RecordOf<Record>(window);
    const OlbItem* item = record == nullptr ? nullptr : ItemAt(*record, row);
    if (item == nullptr || place == nullptr) {
        return LB_ERR;
    }
    const Rect rect = PlaceOf(*place);
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
    const Rect rect = PlaceOf(*place);
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
