#include "hierlist/list_input_win.h"

#include "core/perform_win.h"
#include "core/window_win.h"
#include "hierlist/list_focus.h"
#include "hierlist/list_keys.h"
#include "hierlist/list_mouse.h"
#include "hierlist/list_repaint_win.h"
#include "hierlist/list_scroll_win.h"
#include "hierlist/list_view_win.h"
#include "hierlist/row_spans.h"
#include "hierlist/type_ahead.h"

#include <vorn32/hierlist.h>
#include <windowsx.h>

namespace vorn::hierlist {
namespace {

static_assert(kStyleNotify == LBS_NOTIFY && kStyleMultipleSel == LBS_MULTIPLESEL);
static_assert(kStyleWantKeyboardInput == LBS_WANTKEYBOARDINPUT);
static_assert(kStyleExtendedSel == LBS_EXTENDEDSEL);
static_assert(kShift == MK_SHIFT && kControl == MK_CONTROL);
static_assert(kSelChange == LBN_SELCHANGE && kDoubleClicked == LBN_DBLCLK);
static_assert(kGotFocus == LBN_SETFOCUS && kLostFocus == LBN_KILLFOCUS);

View ViewOf(Record& record) {
    const Layout layout = LayoutOf(record);
    return {layout.multiColumn ? FirstColumnRow(layout) : layout.topIndex, LastRowInView(layout),
            LinesPerColumn(layout)};
}

std::uint32_t HeldModifiers() {
    return (GetKeyState(VK_SHIFT) < 0 ? kShift : 0) | (GetKeyState(VK_CONTROL) < 0 ? kControl : 0);
}

// ---- Doing what the steps answer ----

void TurnPage(HWND window, std::uint32_t key, std::uint32_t modifiers) {
    const std::uint32_t topBefore = RecordOf<Record>(window)->topIndex;
    SendMessageA(window, WM_VSCROLL, key == kKeyPageDown ? SB_PAGEDOWN : SB_PAGEUP, 0);
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        PerformAll(window, Paged(record->outline, record->state, key, modifiers, topBefore,
                                 record->topIndex));
    }
}

void PerformOnItems(Record& record, const Action& action) {
    Outline& outline = record.outline;
    switch (action.kind) {
    case ActionKind::Open:
        Open(outline, action.first);
        break;
    case ActionKind::Close:
        Close(outline, action.first);
        break;
    case ActionKind::OpenAll: {
        OlbItem* item = IndexToHandle(outline, action.first);
        if (item != nullptr) {
            OpenAll(outline, item);
        }
        break;
    }
    default:
        TogglePressed(outline, record.state);
        break;
    }
}

// The record is there. Anything may happen to it in here.
void Perform(HWND window, const Action& action) {
    switch (action.kind) {
    case ActionKind::Notify:
        NotifyParent(window, static_cast<WORD>(action.first));
        break;
    case ActionKind::ShowRow:
        ShowRow(window, action.first);
        break;
    case ActionKind::RepaintRows:
        MarkRows(window, action.first, action.last);
        break;
    case ActionKind::RepaintTop:
        MarkTop(window);
        break;
    case ActionKind::RepaintAll:
        MarkAll(window);
        break;
    case ActionKind::Update:
        PaintMarked(window);
        break;
    case ActionKind::Open:
    case ActionKind::Close:
    case ActionKind::OpenAll:
    case ActionKind::Toggle:
        PerformOnItems(*RecordOf<Record>(window), action);
        break;
    case ActionKind::Capture:
        SetCapture(window);
        break;
    case ActionKind::ReleaseCapture:
        ReleaseCapture();
        break;
    case ActionKind::StartTimer:
        SetTimer(window, action.first, RecordOf<Record>(window)->state.autoScrollInterval,
                 lbTimerProc);
        break;
    case ActionKind::KillTimer:
        KillTimer(window, action.first);
        break;
    case ActionKind::PageUp:
        TurnPage(window, kKeyPageUp, action.first);
        break;
    case ActionKind::PageDown:
        TurnPage(window, kKeyPageDown, action.first);
        break;
    case ActionKind::FocusNext:
        FocusTabItem(window, false);
        break;
    case ActionKind::FocusPrevious:
        FocusTabItem(window, true);
        break;
    }
}

// ---- Keyboard ----

// Asks the parent what to do about a key or a character, if the style wants that, and does it.
// Returns whether the list goes on with it itself.
bool GoesOn(HWND window, UINT question, WORD subject) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr || !Has(record->outline, kStyleWantKeyboardInput)) {
        return record != nullptr;
    }
    const auto caretRow = static_cast<WORD>(CaretRow(record->outline, record->state.selection));
    const auto answer = static_cast<std::int32_t>(SendMessageA(GetParent(window), question,
                                                               MAKEWPARAM(subject, caretRow),
                                                               reinterpret_cast<LPARAM>(window)));
    record = RecordOf<Record>(window);
    if (record == nullptr || answer == kAnswerHandled) {
        return false;
    }
    PerformAll(window, TakeAnswer(record->outline, record->state, answer));
    return RecordOf<Record>(window) != nullptr;
}

LRESULT OnKeyDown(HWND window, WPARAM wParam, LPARAM lParam) {
    if (wParam > kKeyPlus || !IsListKey(static_cast<std::uint32_t>(wParam))) {
        return DefWindowProcA(window, WM_KEYDOWN, wParam, lParam);
    }
    const std::uint32_t modifiers = HeldModifiers();
    if (GoesOn(window, WM_VKEYTOITEM, LOWORD(wParam))) {
        Record* record = RecordOf<Record>(window);
        PerformAll(window, KeyDown(record->outline, record->state, ViewOf(*record),
                                   static_cast<std::uint32_t>(wParam), modifiers));
    }
    return 0;
}

LRESULT OnChar(HWND window, WPARAM wParam) {
    if (GoesOn(window, WM_CHARTOITEM, LOWORD(wParam))) {
        Record* record = RecordOf<Record>(window);
        PerformAll(window,
                   TypeCharacter(record->outline, record->state, static_cast<char>(wParam)));
    }
    return 0;
}

// ---- Mouse ----

Point PointOf(LPARAM lParam) {
    return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

LRESULT OnPress(HWND window, bool isDouble, WPARAM wParam, LPARAM lParam) {
    SetFocus(window);
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    const Layout layout = LayoutOf(*record);
    PressEvent event;
    event.point = PointOf(lParam);
    event.row = RowAt(layout, event.point);
    event.modifiers = static_cast<std::uint32_t>(wParam) & (kShift | kControl);
    event.isDouble = isDouble;
    const OlbItem* item = IndexToHandle(record->outline, event.row);
    event.isOnBox = item != nullptr && PartAt(RowRect(layout, event.row), record->options,
                                              item->level, event.point.x) == RowPart::Box;
    PerformAll(window, Press(record->outline, record->state, event));
    return 0;
}

LRESULT OnMove(HWND window, LPARAM lParam) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr && record->state.captured) {
        const Point point = PointOf(lParam);
        const std::uint32_t row = RowAt(LayoutOf(*record), point);
        PerformAll(window, Move(record->outline, record->state, point, row));
    }
    return 0;
}

LRESULT OnRelease(HWND window) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        PerformAll(window, Release(record->state));
    }
    return 0;
}

LRESULT OnCaptureChanged(HWND window, LPARAM lParam) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        PerformAll(window, CaptureChanged(record->state, NewCaptureOwner(window, lParam)));
    }
    return 0;
}

void OnTimer(HWND window, UINT_PTR timer) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr || (timer != kDragTimer && timer != kIdleTimer)) {
        return;
    }
    POINT pointer{};
    GetCursorPos(&pointer);
    ScreenToClient(window, &pointer);
    PerformAll(window,
               Tick(record->outline, record->state, ViewOf(*record),
                    static_cast<std::uint32_t>(timer), {pointer.x, pointer.y}, ClientRect(window)));
}

// ---- Focus ----

LRESULT OnFocus(HWND window, bool gained) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        PerformAll(window, gained ? FocusGained(record->outline, record->state)
                                  : FocusLost(record->outline, record->state));
    }
    return 0;
}

} // namespace

void PerformAll(HWND window, const Actions& actions) {
    PerformActions<Record>(window, actions,
                           [window](const Action& action) { Perform(window, action); });
}

bool IsInputMessage(UINT message) {
    switch (message) {
    case WM_GETDLGCODE:
    case WM_KEYDOWN:
    case WM_CHAR:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
    case WM_MOUSEMOVE:
    case WM_LBUTTONUP:
    case WM_CAPTURECHANGED:
    case WM_TIMER:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        return true;
    default:
        return false;
    }
}

LRESULT OnInputMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_GETDLGCODE:
        return DLGC_WANTARROWS | DLGC_WANTCHARS;
    case WM_KEYDOWN:
        return OnKeyDown(window, wParam, lParam);
    case WM_CHAR:
        return OnChar(window, wParam);
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        return OnPress(window, message == WM_LBUTTONDBLCLK, wParam, lParam);
    case WM_MOUSEMOVE:
        return OnMove(window, lParam);
    case WM_LBUTTONUP:
        return OnRelease(window);
    case WM_CAPTURECHANGED:
        return OnCaptureChanged(window, lParam);
    case WM_TIMER:
        OnTimer(window, wParam);
        return 0;
    case WM_SETFOCUS:
        return OnFocus(window, true);
    case WM_KILLFOCUS:
        return OnFocus(window, false);
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}

} // namespace vorn::hierlist

extern "C" void CALLBACK lbTimerProc(HWND window, UINT /*message*/, UINT_PTR timer,
                                     DWORD /*time*/) {
    vorn::hierlist::OnTimer(window, timer);
}
