#include "hierlist/list_scroll_win.h"

#include "core/window_win.h"
#include "hierlist/list_view_win.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace vorn::hierlist {
namespace {

// How often the bars are set when rows change while they are being set, by a host that never ends.
constexpr int kMostRounds = 4;

constexpr std::uint32_t kFarthestMessage = 0xFFFF; // a position in a scroll message has 16 bits

Size BarSizes() {
    return {GetSystemMetrics(SM_CXVSCROLL), GetSystemMetrics(SM_CYHSCROLL)};
}

// The client area with the room that scroll bars take.
Size RoomOf(HWND window) {
    const Rect client = ClientRect(window);
    const Size bars = BarSizes();
    const DWORD style = StyleOf(window);
    return {client.right + ((style & WS_VSCROLL) != 0 ? bars.width : 0),
            client.bottom + ((style & WS_HSCROLL) != 0 ? bars.height : 0)};
}

void SetBar(HWND window, int bar, const BarRange& range, bool always) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS | (always ? SIF_DISABLENOSCROLL : 0);
    info.nMax = range.last;
    info.nPage = range.page;
    info.nPos = range.position;
    SetScrollInfo(window, bar, &info, TRUE);
}

// Sets one bar if it is wanted, and takes an unwanted one away.
void SetBarIf(HWND window, int bar, bool wanted, DWORD styleBit, const BarRange& range,
              bool always) {
    const bool shown = (StyleOf(window) & styleBit) != 0;
    if (wanted && always && !shown) {
        ShowScrollBar(window, bar, TRUE); // nothing to scroll alone would not show it
    }
    if (wanted || shown) {
        SetBar(window, bar, wanted ? range : BarRange{}, wanted && always);
    }
}

// Hosts that look over the control's shoulder see the view pulled back as a scroll message, as far
// as such a message can tell the position.
void PullBack(HWND window, std::uint32_t topIndex) {
    if (topIndex <= kFarthestMessage) {
        SendMessageA(window, WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, topIndex), 0);
    } else {
        ScrollRowsTo(window, topIndex);
    }
}

void PullBackRows(HWND window) {
    Record* record = RecordOf<Record>(window);
    if (record->topIndex == 0) {
        return;
    }
    const std::uint32_t last = LastTop(LayoutOf(*record));
    if (record->topIndex > last) {
        PullBack(window, last);
    }
}

// What hosts ask and click goes by where the list is scrolled to, drawn or not.
void PullBackView(HWND window) {
    PullBackRows(window);
    const Record* record = RecordOf<Record>(window);
    if (record != nullptr && record->offset != 0) {
        ScrollSidewaysTo(window, record->offset);
    }
}

void SetBarsOnce(HWND window) {
    Record* record = RecordOf<Record>(window);
    const DWORD style = StyleOf(window);
    const bool always = (style & kStyleDisableNoScroll) != 0;
    const bool multiColumn = (style & kStyleMultiColumn) != 0;
    const ShownBars bars =
        ChooseBars(LayoutFor(*record, RoomOf(window)), record->options, style, BarSizes());
    Layout layout = LayoutFor(*record, bars.client);
    const std::int32_t offset = std::min(record->offset, LastOffset(layout));
    const bool wantsVertical = record->options.wantsVerticalBar;
    const bool wantsHorizontal = record->options.wantsHorizontalBar;
    BarRange horizontal = HorizontalRange(layout);
    horizontal.position = std::min(horizontal.position, offset);

    SetBarIf(window, SB_VERT, wantsVertical, WS_VSCROLL, VerticalRange(layout),
             always && !multiColumn);
    if (RecordOf<Record>(window) == nullptr) {
        return;
    }
    SetBarIf(window, SB_HORZ, wantsHorizontal, WS_HSCROLL, horizontal, always);
    record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    PullBackRows(window);
    if (RecordOf<Record>(window) != nullptr) {
        ScrollSidewaysTo(window, offset);
    }
}

// Sets the bars, and again as long as rows change meanwhile.
void SetBars(HWND window) {
    Record* record = RecordOf<Record>(window);
    if (record->settingBars) {
        record->setBarsAgain = true;
        return;
    }
    record->settingBars = true;
    for (int round = 0; round < kMostRounds; ++round) {
        record->barsStale = false;
        record->setBarsAgain = false;
        SetBarsOnce(window);
        record = RecordOf<Record>(window);
        if (record == nullptr) {
            return;
        }
        if (!record->setBarsAgain) {
            break;
        }
    }
    record->settingBars = false;
}

// Whether what is on the screen may be moved there instead of painted anew. Dotted lines stay in
// step over an even number of pixels only, and a host's brush may have a pattern.
bool MayMove(const Record& record, std::int32_t by) {
    return !HasOption(record.options, kOptionAskBackground) &&
           (!HasOption(record.options, kOptionLines) || by % 2 == 0);
}

// Shows that all rows moved by this many pixels. Moving what is on the screen pays when that is
// most of it.
void MoveView(HWND window, const Record& record, std::int32_t x, std::int32_t y) {
    const Rect client = ClientRect(window);
    if (std::abs(x) < client.right / 2 && std::abs(y) < client.bottom / 2 &&
        MayMove(record, x + y)) {
        ScrollWindowEx(window, x, y, nullptr, nullptr, nullptr, nullptr, SW_INVALIDATE);
    } else {
        InvalidateRect(window, nullptr, FALSE);
    }
    UpdateWindow(window);
}

// How far down the row that becomes the first is; something beyond the client area when it is far.
std::int32_t DistanceTo(const Layout& layout, std::uint32_t topIndex) {
    const std::uint32_t rows =
        topIndex > layout.topIndex ? topIndex - layout.topIndex : layout.topIndex - topIndex;
    return rows > static_cast<std::uint32_t>(layout.client.height) ? layout.client.height
                                                                   : RowRect(layout, topIndex).top;
}

ScrollStep StepOf(WORD code) {
    switch (code) {
    case SB_LINEUP:
        return ScrollStep::LineBack;
    case SB_LINEDOWN:
        return ScrollStep::LineOn;
    case SB_PAGEUP:
        return ScrollStep::PageBack;
    case SB_PAGEDOWN:
        return ScrollStep::PageOn;
    case SB_TOP:
        return ScrollStep::First;
    case SB_BOTTOM:
        return ScrollStep::Last;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        return ScrollStep::To;
    default:
        return ScrollStep::None;
    }
}

// Where the thumb was dragged to. The message has the position's lower half; while the thumb is
// really dragged the bar knows it all.
std::uint32_t ThumbPosition(HWND window, int bar, WPARAM wParam) {
    SCROLLINFO info{};
    info.cbSize = sizeof info;
    info.fMask = SIF_TRACKPOS;
    const bool known = GetScrollInfo(window, bar, &info) != 0 && info.nTrackPos >= 0 &&
                       LOWORD(info.nTrackPos) == HIWORD(wParam);
    return known ? static_cast<std::uint32_t>(info.nTrackPos) : HIWORD(wParam);
}

// The lines that the system scrolls for a notch of the wheel; WHEEL_PAGESCROLL means a page.
UINT LinesPerNotch(UINT setting) {
    UINT lines = 3;
    SystemParametersInfoA(setting, 0, &lines, 0);
    return lines;
}

// Widths are the host's and may be of any size.
void ScrollSidewaysBy(HWND window, std::int64_t pixels) {
    constexpr std::int64_t kFurthest = std::numeric_limits<std::int32_t>::max();
    const std::int64_t target = RecordOf<Record>(window)->offset + pixels;
    ScrollSidewaysTo(window,
                     static_cast<std::int32_t>(std::clamp<std::int64_t>(target, 0, kFurthest)));
}

} // namespace

void UpdateBars(HWND window) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    if (IsDrawingOn(*record)) {
        SetBars(window);
    } else {
        record->barsStale = true;
        PullBackView(window);
    }
}

void UpdateStaleBars(HWND window) {
    const Record* record = RecordOf<Record>(window);
    if (record != nullptr && record->barsStale && !record->redrawOff) {
        SetBars(window);
    }
}

void ScrollRowsTo(HWND window, std::uint32_t topIndex) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    const Layout layout = LayoutOf(*record);
    const std::uint32_t target = std::min(topIndex, LastTop(layout));
    if (target == record->topIndex) {
        return;
    }
    const std::int32_t distance = DistanceTo(layout, target);
    record->topIndex = target;
    if (!IsDrawingOn(*record)) {
        record->barsStale = true;
        return;
    }
    if (record->options.wantsVerticalBar) {
        SetScrollPos(window, SB_VERT, static_cast<int>(target), TRUE);
        record = RecordOf<Record>(window);
    }
    if (record != nullptr) {
        MoveView(window, *record, 0, -distance);
    }
}

void ScrollSidewaysTo(HWND window, std::int32_t offset) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    const std::int32_t target = std::clamp(offset, 0, LastOffset(LayoutOf(*record)));
    const std::int32_t distance = target - record->offset;
    if (distance == 0) {
        return;
    }
    record->offset = target;
    if (!IsDrawingOn(*record)) {
        record->barsStale = true;
        return;
    }
    if (record->options.wantsHorizontalBar) {
        SetScrollPos(window, SB_HORZ, target, TRUE);
        record = RecordOf<Record>(window);
    }
    if (record != nullptr) {
        MoveView(window, *record, -distance, 0);
    }
}

void ShowRow(HWND window, std::uint32_t row) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    const Layout layout = LayoutOf(*record);
    if (row >= RowCount(layout)) {
        return;
    }
    if (layout.multiColumn) {
        ScrollSidewaysTo(window, OffsetToShow(layout, row));
    } else {
        ScrollRowsTo(window, TopToShow(layout, row));
    }
}

void OnVerticalScroll(HWND window, WPARAM wParam) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        const ScrollStep step = StepOf(LOWORD(wParam));
        ScrollRowsTo(window,
                     TopAfter(LayoutOf(*record), step, ThumbPosition(window, SB_VERT, wParam)));
    }
}

void OnHorizontalScroll(HWND window, WPARAM wParam) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        const ScrollStep step = StepOf(LOWORD(wParam));
        const std::uint32_t thumb = ThumbPosition(window, SB_HORZ, wParam);
        ScrollSidewaysTo(window,
                         OffsetAfter(LayoutOf(*record), step, static_cast<std::int32_t>(thumb),
                                     record->options.averageWidth));
    }
}

void OnWheel(HWND window, WPARAM wParam) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    const auto turned = static_cast<SHORT>(HIWORD(wParam));
    const Layout layout = LayoutOf(*record);
    if (layout.multiColumn) {
        // There are only columns to scroll: a notch is one.
        const std::int32_t notches = WheelLines(record->wheel, turned, 1);
        ScrollSidewaysBy(window, -std::int64_t{notches} * layout.columnWidth);
        return;
    }
    const UINT setting = LinesPerNotch(SPI_GETWHEELSCROLLLINES);
    const bool byPage = setting == WHEEL_PAGESCROLL;
    const std::int32_t lines = WheelLines(record->wheel, turned, byPage ? 1 : setting);
    const std::int64_t unit = byPage ? PageRows(layout) : 1;
    const std::int64_t target = std::int64_t{record->topIndex} - lines * unit;
    ScrollRowsTo(window,
                 static_cast<std::uint32_t>(std::clamp<std::int64_t>(target, 0, LastTop(layout))));
}

void OnSideWheel(HWND window, WPARAM wParam) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    const auto turned = static_cast<SHORT>(HIWORD(wParam));
    const UINT characters = LinesPerNotch(SPI_GETWHEELSCROLLCHARS);
    const std::int32_t count = WheelLines(record->sideWheel, turned, characters);
    ScrollSidewaysBy(window, std::int64_t{count} * std::max(record->options.averageWidth, 1));
}

} // namespace vorn::hierlist
