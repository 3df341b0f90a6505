#include "hierlist/list_paint_win.h"

#include "core/color_win.h"
#include "core/gdi_win.h"
#include "core/ground_win.h"
#include "core/window_win.h"
#include "hierlist/list_host_win.h"
#include "hierlist/list_view_win.h"

namespace vorn::hierlist {
namespace {

static_assert(kStyleOwnerDrawFixed == LBS_OWNERDRAWFIXED);
static_assert(kStyleOwnerDrawVariable == LBS_OWNERDRAWVARIABLE);
static_assert(kStyleMultiColumn == LBS_MULTICOLUMN);
static_assert(kStyleDisableNoScroll == LBS_DISABLENOSCROLL);

bool Meet(const Rect& first, const RECT& second) {
    return first.left < second.right && second.left < first.right && first.top < second.bottom &&
           second.top < first.bottom;
}

// The list's own ground, or the parent's when it is to be asked; nothing but that is taken from the
// parent. Runs host code, after which the record may be gone.
Ground AskForGround(HWND window, HDC context) {
    const Record* record = RecordOf<Record>(window);
    const COLORREF own = ResolveColor(record->options.colors.background);
    if (!HasOption(record->options, kOptionAskBackground)) {
        return {own};
    }
    const SavedContext saved(context);
    HBRUSH answer = AskForBrush(window, context, WM_CTLCOLORLISTBOX);
    return GroundOf(answer, context, own);
}

// A list without a caret has it in the first row that it shows, where the keys then begin.
void GiveCaret(Record& record) {
    const Layout layout = LayoutOf(record);
    OlbItem* top = IndexToHandle(record.outline,
                                 layout.multiColumn ? FirstColumnRow(layout) : layout.topIndex);
    if (record.state.selection.caret == nullptr && top != nullptr) {
        PutCaret(record.state.selection, top);
    }
}

UINT StateOf(const OlbItem* item) {
    return ((item->flags & kFlagSelected) != 0 ? UINT{ODS_SELECTED} : 0) |
           ((item->flags & kFlagCaret) != 0 ? UINT{ODS_FOCUS} : 0);
}

// Has the parent draw a row. What it does to the context is undone. Runs host code.
void AskToDraw(HWND window, HDC context, const PlacedRow& placed) {
    const SavedContext saved(context);
    IntersectClipRect(context, placed.rect.left, placed.rect.top, placed.rect.right,
                      placed.rect.bottom);
    DRAWITEMSTRUCT question{};
    question.CtlType = ODT_LISTBOX;
    question.CtlID = static_cast<UINT>(GetDlgCtrlID(window));
    question.itemID = placed.row;
    question.itemAction = ODA_DRAWENTIRE;
    question.itemState = StateOf(placed.item);
    question.hwndItem = window;
    question.hDC = context;
    question.rcItem = ToPlatform(placed.rect);
    question.itemData = OwnerDrawData(placed.item);
    SendMessageA(GetParent(window), WM_DRAWITEM, question.CtlID,
                 reinterpret_cast<LPARAM>(&question));
}

// Has the parent draw the rows of an area.
void AskForRows(HWND window, HDC context, const Layout& layout, const RECT& area) {
    const Rect part = FromPlatform(area);
    PlacedRow placed = FirstRowIn(layout, part);
    while (placed.item != nullptr && !IsBeyond(layout, placed, part)) {
        if (Meet(placed.rect, area)) {
            AskToDraw(window, context, placed);
            // The layout is gone with the record.
            if (RecordOf<Record>(window) == nullptr) {
                return;
            }
        }
        placed = NextRow(layout, placed);
    }
}

// Draws the rows of an area. Runs no host code.
void PaintOwnRows(HDC context, Record& record, const Layout& layout, COLORREF ground,
                  const RECT& area) {
    const PictureSource pictures(context, record, ground);
    const RowTools tools = {context, record, ground, pictures.get(), MakeLinePen(record)};
    const Rect part = FromPlatform(area);
    for (PlacedRow placed = FirstRowIn(layout, part);
         placed.item != nullptr && !IsBeyond(layout, placed, part);
         placed = NextRow(layout, placed)) {
        if (Meet(placed.rect, area)) {
            PaintRow(tools, layout, placed);
        }
    }
    DeleteObject(tools.lines);
}

} // namespace

void PaintFocus(HDC context, const Rect& rect) {
    SetTextColor(context, RGB(0, 0, 0));
    SetBkColor(context, RGB(255, 255, 255));
    const RECT area = ToPlatform(rect);
    DrawFocusRect(context, &area);
}

void PaintRows(HWND window, const OffscreenPaint& offscreen) {
    const HDC context = offscreen.context();
    const Ground ground = AskForGround(window, context);
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    GiveCaret(*record);
    FillWithGround(context, FromPlatform(offscreen.area()), ground);
    SelectObject(context, record->font);
    SetBkMode(context, TRANSPARENT);
    SetTextColor(context, ResolveColor(record->options.colors.text));

    const Layout layout = LayoutOf(*record);
    if (RowCount(layout) == 0 && record->state.selection.hasFocus) {
        PaintFocus(context, {0, 0, layout.client.width, layout.rowHeight});
    }
    if ((StyleOf(window) & kStyleOwnerDraw) != 0) {
        AskForRows(window, context, layout, offscreen.area());
    } else {
        PaintOwnRows(context, *record, layout, ground.color, offscreen.area());
    }
}

} // namespace vorn::hierlist
