// The outline list's window procedure.
#include "core/gdi_win.h"
#include "core/window_win.h"
#include "hierlist/list_border_win.h"
#include "hierlist/list_font_win.h"
#include "hierlist/list_host_win.h"
#include "hierlist/list_input_win.h"
#include "hierlist/list_messages_win.h"
#include "hierlist/list_paint_win.h"
#include "hierlist/list_scroll_win.h"
#include "hierlist/list_view_win.h"
#include "hierlist/structure.h"

#include <vorn32/hierlist.h>

namespace vorn::hierlist {
namespace {

constexpr WORD kClosedBox = 214;
constexpr WORD kOpenBox = 215;
constexpr WORD kPictures = 217;
constexpr int kPicturesInStrip = 14;

static_assert(kStyleHorizontalBar == WS_HSCROLL && kStyleVerticalBar == WS_VSCROLL);
static_assert(kStyleBorderLine == WS_BORDER);

// The size of one picture of a strip; of what is usual when there is no strip.
Size PictureSize(HBITMAP strip) {
    BITMAP header{};
    if (GetObjectA(strip, sizeof header, &header) == 0) {
        return {16, 16};
    }
    return {header.bmWidth / kPicturesInStrip, header.bmHeight};
}

// The control shows its scroll bars itself when they are needed, so the style goes without.
LRESULT OnNcCreate(HWND window, WPARAM wParam, LPARAM lParam) {
    if (DefWindowProcA(window, WM_NCCREATE, wParam, lParam) == 0) {
        return 0;
    }
    Record* record = AttachRecord<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    const DWORD style = StyleOf(window);
    HBITMAP strip = LoadPicture(kPictures);
    record->window = window;
    record->strips.own = strip;
    record->boxes = {LoadPicture(kClosedBox), LoadPicture(kOpenBox)};
    record->options = OptionsFromStyle(style, PictureSize(strip));
    record->outline.callbacks = &kListCallbacks;
    record->outline.context = record;
    TakeFont(*record, nullptr);
    const DWORD border = StyleWithBorder(style, record->options.border);
    ChangeStyle(window, ~0u, border & ~DWORD{WS_VSCROLL | WS_HSCROLL});
    record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    record->outline.style = StyleOf(window);
    return 1;
}

LRESULT OnCreate(HWND window) {
    if ((StyleOf(window) & kStyleOwnerDrawFixed) != 0) {
        AskRowHeight(window);
    }
    UpdateBars(window);
    return RecordOf<Record>(window) != nullptr ? 0 : -1;
}

// Tells the parent of each value that goes, as the system's list box does: hosts free there what
// the values stand for. Runs host code.
void OnDestroy(HWND window) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr && HoldsValues(record->outline)) {
        record->redrawOff = true; // there is nothing to be seen any more, nor to be scrolled
        record->topIndex = 0;
        record->offset = 0;
        Reset(record->outline);
    }
}

void OnNcDestroy(HWND window) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    Destroy(record->outline);
    ClearTable(record->sideTable);
    for (void* strip : record->strips.level) {
        DeleteObject(strip);
    }
    DeleteObject(record->strips.user);
    DeleteObject(record->strips.own);
    DeleteObject(record->prepared.bitmap);
    for (HBITMAP box : record->boxes) {
        DeleteObject(box);
    }
    FreeColumns(record->columns);
    FreeTabStops(record->tabs);
    DetachRecord<Record>(window);
}

// While drawing is off nothing is painted; all of it is when it is on again.
LRESULT OnPaint(HWND window, WPARAM wParam, LPARAM lParam) {
    UpdateStaleBars(window);
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return IsWindow(window) ? DefWindowProcA(window, WM_PAINT, wParam, lParam) : 0;
    }
    if (record->redrawOff) {
        ValidateRect(window, nullptr);
        return 0;
    }
    return PaintWindow<Record>(window, PaintRows);
}

void OnSetRedraw(HWND window, bool on) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    const bool wasOff = record->redrawOff;
    record->redrawOff = !on;
    if (on && wasOff) {
        UpdateStaleBars(window);
        InvalidateRect(window, nullptr, FALSE);
    }
}

// Whether another size changes what is drawn where the list was before: rows in columns lie
// elsewhere, and highlights to the right edge, rows that the parent draws and the focus of an empty
// list end elsewhere.
bool ReachesItsEdges(const Record& record) {
    const bool showsFocusAlone =
        record.outline.visibleRoot == nullptr && record.state.selection.hasFocus;
    return (StyleOf(record.window) & (kStyleMultiColumn | kStyleOwnerDraw)) != 0 ||
           HasOption(record.options, kOptionFullRow) || showsFocusAlone;
}

void OnSize(HWND window) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    if (ReachesItsEdges(*record)) {
        InvalidateRect(window, nullptr, FALSE);
    }
    UpdateBars(window);
}

void OnStyleChanged(HWND window, WPARAM which) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr && static_cast<int>(which) == GWL_STYLE) {
        record->outline.style = StyleOf(window);
        record->options.border = BorderFromStyle(record->outline.style);
        record->barsStale = true;
        ForgetColumns(*record);
    }
}

LRESULT OnDrawingMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_SETFONT:
        OnSetFont(window, reinterpret_cast<HFONT>(wParam), LOWORD(lParam) != 0);
        return 0;
    case WM_GETFONT:
        return OnGetFont(window);
    case WM_SETREDRAW:
        OnSetRedraw(window, wParam != 0);
        return 0;
    case WM_SYSCOLORCHANGE:
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
        return 0;
    case WM_MEASUREITEM:
        return OnMeasureItem(window, wParam, lParam);
    case WM_VSCROLL:
        OnVerticalScroll(window, wParam);
        return 0;
    case WM_HSCROLL:
        OnHorizontalScroll(window, wParam);
        return 0;
    case WM_MOUSEWHEEL:
        OnWheel(window, wParam);
        return 0;
    case WM_MOUSEHWHEEL:
        OnSideWheel(window, wParam);
        return 0;
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}

} // namespace
} // namespace vorn::hierlist

using namespace vorn::hierlist;

extern "C" LRESULT CALLBACK VORNHierListWinFn(HWND window, UINT message, WPARAM wParam,
                                              LPARAM lParam) {
    switch (message) {
    case WM_NCCREATE:
        return OnNcCreate(window, wParam, lParam);
    case WM_CREATE:
        return OnCreate(window);
    case WM_DESTROY:
        OnDestroy(window);
        return 0;
    case WM_NCDESTROY:
        OnNcDestroy(window);
        return DefWindowProcA(window, message, wParam, lParam);
    case WM_NCCALCSIZE:
        return OnCalcSize(window, wParam, lParam);
    case WM_NCPAINT:
        return OnPaintBorder(window, wParam, lParam);
    case WM_ERASEBKGND:
        return 1; // every paint covers all of it
    case WM_PAINT:
        return OnPaint(window, wParam, lParam);
    case WM_SIZE:
        OnSize(window);
        return 0;
    case WM_STYLECHANGED:
        OnStyleChanged(window, wParam);
        return 0;
    default:
        break;
    }
    LRESULT result = 0;
    if (AnswerListBoxMessage(window, message, wParam, lParam, result) ||
        AnswerOwnMessage(window, message, wParam, lParam, result)) {
        return result;
    }
    return IsInputMessage(message) ? OnInputMessage(window, message, wParam, lParam)
                                   : OnDrawingMessage(window, message, wParam, lParam);
}
