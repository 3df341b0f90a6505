// The date edit's window procedure.
#include "date/dateedit_win.h"

#include "core/edit/edit_caret_win.h"
#include "core/edit/edit_messages_win.h"
#include "core/edit/edit_paint_win.h"
#include "core/edit/edit_slices_win.h"
#include "core/edit/field_edit_win.h"
#include "core/profile_win.h"
#include "core/window_win.h"
#include "date/date_clipboard.h"
#include "date/dateedit_input_win.h"
#include "date/today_win.h"

#include <vorn32/dateedit.h>

namespace vorn::date {
namespace {

constexpr WORD kNormalButton = 810;
constexpr WORD kPressedButton = 811;

// How those pictures stretch.
constexpr edit::SliceCuts kButtonColumns = {16, 2, 4, 8};
constexpr edit::SliceCuts kButtonRows = {18, 2, 7, 5};

static_assert(sizeof(DtDate) == sizeof(Date) && offsetof(DtDate, day) == offsetof(Date, day) &&
              offsetof(DtDate, year) == offsetof(Date, year));
static_assert(sizeof(DtEditParams) == kEditParamsSize &&
              offsetof(DtEditParams, year) == offsetof(EditParams, year) &&
              offsetof(DtEditParams, keepLayout) == offsetof(EditParams, keepLayout) &&
              offsetof(DtEditParams, separator) == offsetof(EditParams, separator) &&
              offsetof(DtEditParams, kinds) == offsetof(EditParams, kinds));
static_assert(VDTM_OKTOCHANGE == edit::kAskOkToChange && VDTM_CHANGED == edit::kTellChanged);
static_assert(VDTS_DIGITS == edit::kStyleDigits && VDTS_CELLS == edit::kStyleCells &&
              VDTS_READONLY == edit::kStyleReadOnly);
static_assert(DT_DAY == kDay && DT_MONTH == kMonth && DT_YEAR == kYear);

void WriteText(const edit::EditBody& body, edit::TextBuffer& buffer) {
    FormatEditText(buffer, edit::RecordIn<Record>(body).entry.date);
}

bool IsNull(const edit::EditBody& body) {
    return edit::RecordIn<Record>(body).entry.date.null != 0;
}

void EnterFocus(edit::EditBody& body) {
    EnterFocus(edit::RecordIn<Record>(body).entry);
}

void LeaveFocus(edit::EditBody& body) {
    LeaveFocus(edit::RecordIn<Record>(body).entry);
}

void FollowCaret(edit::EditBody& body) {
    DateEntry& entry = edit::RecordIn<Record>(body).entry;
    edit::FollowCaretWithField(entry.caret, FieldMapOf(entry.date));
}

edit::Actions ClearSelected(edit::EditBody& body) {
    edit::Actions actions;
    ClearSelection(actions, edit::RecordIn<Record>(body).entry);
    return actions;
}

edit::Actions TakeText(edit::EditBody& body, const char* text) {
    edit::Actions actions;
    PasteText(actions, edit::RecordIn<Record>(body).entry, text, Today());
    return actions;
}

void PaintButton(HDC context, const edit::EditBody& body, const Rect& rect) {
    const Record& record = edit::RecordIn<Record>(body);
    DrawSlices(context, rect, record.buttonPressed ? record.pressedButton : record.normalButton,
               kButtonColumns, kButtonRows);
}

void LoadButtons(Record& record) {
    DeleteObject(record.normalButton);
    DeleteObject(record.pressedButton);
    record.normalButton = edit::LoadButtonPicture(kNormalButton);
    record.pressedButton = edit::LoadButtonPicture(kPressedButton);
}

LRESULT OnCreate(HWND window, WPARAM wParam, LPARAM lParam) {
    if (DefWindowProcA(window, WM_NCCREATE, wParam, lParam) == 0) {
        return 0;
    }
    Record* record = AttachRecord<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    const DWORD style = StyleOf(window);
    record->caret = &record->entry.caret;
    record->modified = &record->entry.modified;
    record->rightPartShown = (style & VDTS_CALENDAR) != 0;
    record->eraseDisabled = (style & VDTS_NOERASE) != 0;
    InitEdit(*record, style, kDateKind);
    LoadButtons(*record);
    ResetCaptions(captions);
    StartDate(record->entry, Today(), kUserProfile);
    return 1;
}

void OnDestroy(HWND window) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    ReleaseEdit(*record);
    DeleteObject(record->normalButton);
    DeleteObject(record->pressedButton);
    DetachRecord<Record>(window);
}

void Draw(HWND window, const OffscreenPaint& offscreen) {
    PaintEdit(kDateKind, window, offscreen.context(), FieldInkOf(*RecordOf<Record>(window)));
}

LRESULT OnSetText(HWND window, const char* text) {
    if (RecordOf<Record>(window) == nullptr || !IsOkToChange(kDateKind, window)) {
        return FALSE;
    }
    SetText(RecordOf<Record>(window)->entry, text);
    ShowNewDate(window);
    return TRUE;
}

LRESULT OnSettingsChanged(HWND window, LPARAM section) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr && ConcernsUserProfile(section)) {
        ReloadLayout(record->entry, kUserProfile);
        Redraw(window);
        PlaceCaret(kDateKind, window, edit::Told::No);
    }
    return 0;
}

LRESULT OnSystemColors(HWND window) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        LoadButtons(*record);
        Redraw(window);
    }
    return 0;
}

void OnSetTime(HWND window, const TimeRecord* time) {
    if (time == nullptr || RecordOf<Record>(window) == nullptr ||
        !IsOkToChange(kDateKind, window)) {
        return;
    }
    SetTime(RecordOf<Record>(window)->entry, *time);
    ShowNewDate(window);
}

void OnGetTime(HWND window, TimeRecord* time) {
    const Record* record = RecordOf<Record>(window);
    if (time != nullptr && record != nullptr) {
        *time = TimeOf(record->entry.date.value);
    }
}

// Messages whose argument is a pointer.
bool AnswerPointerMessage(HWND window, UINT message, LPARAM lParam, LRESULT& result) {
    result = 0;
    switch (message) {
    case VDTM_GETEDITPARAMS:
        dtGetEditParams(window, reinterpret_cast<DtEditParams*>(lParam));
        return true;
    case VDTM_SETEDITPARAMS:
        dtSetEditParams(window, reinterpret_cast<const DtEditParams*>(lParam));
        return true;
    case VDTM_GETDATE:
        result = dtGetDate(window, reinterpret_cast<DtDate*>(lParam));
        return true;
    case VDTM_SETDATE:
        result = dtSetDate(window, reinterpret_cast<const DtDate*>(lParam));
        return true;
    case VDTM_GETDATESTRING:
        result =
            reinterpret_cast<LRESULT>(dtGetDateString(window, reinterpret_cast<char*>(lParam)));
        return true;
    case VDTM_SETDATESTRING:
        result = dtSetDateString(window, reinterpret_cast<const char*>(lParam));
        return true;
    case VDTM_SETMONTHLITERALS:
        dtSetMonthLiterals(window, reinterpret_cast<const char*>(lParam));
        return true;
    case VDTM_SETDAYLITERALS:
        dtSetDayLiterals(window, reinterpret_cast<const char*>(lParam));
        return true;
    case VDTM_SETTIME:
        OnSetTime(window, reinterpret_cast<const TimeRecord*>(lParam));
        return true;
    case VDTM_GETTIME:
        OnGetTime(window, reinterpret_cast<TimeRecord*>(lParam));
        return true;
    case VDTM_GETTIMESIZE:
        result = edit::TellTimeSize(reinterpret_cast<std::uint32_t*>(lParam));
        return true;
    default:
        return false;
    }
}

LRESULT OnOwnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    const auto color = static_cast<COLORREF>(lParam);
    switch (message) {
    case VDTM_GETMONTH:
        return dtGetMonth(window);
    case VDTM_GETDAY:
        return dtGetDay(window);
    case VDTM_GETYEAR:
        return dtGetYear(window);
    case VDTM_SETDIALOGCOLOR:
        return dtSetColor(window, VORN_COLOR_FILL, color);
    case VDTM_SETBACKGROUNDCOLOR:
        return dtSetColor(window, VORN_COLOR_FACE, color);
    case VDTM_SETTEXTCOLOR:
        return dtSetColor(window, VORN_COLOR_TEXT, color);
    case VDTM_ENABLEERASE:
        return dtEnableErase(window, wParam != 0);
    case VDTM_SETDISPLAYSTYLE:
        return dtSetDisplayStyle(window, static_cast<int>(wParam));
    case VDTM_ENABLECALENDAR:
        return dtEnableCalendar(window, wParam != 0);
    case VDTM_SETNULL:
        return dtSetNull(window);
    case VDTM_ISNULL:
        return dtIsNull(window);
    case VDTM_GETMINHEIGHT:
        return dtGetMinHeight(window);
    case VDTM_GETMINWIDTH:
        return dtGetMinWidth(window);
    case VDTM_OKTOCHANGE:
        return dtOkToChange(window);
    case VDTM_SETBORDERSTYLE:
        return dtSetBorderStyle(window, static_cast<DWORD>(wParam));
    case VDTM_SETBUTTONSTYLE:
        dtSetButtonStyle(window, static_cast<DWORD>(wParam));
        return 0;
    case VDTM_QUERY:
        return 0;
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}

} // namespace

constinit const edit::EditKind kDateKind = {
    edit::BodyOf<Record>, WriteText, IsNull,      EnterFocus,   LeaveFocus,  FollowCaret,
    ClearSelected,        TakeText,  PaintButton, kCompactness, kBorderBits,
};

BOOL ShowNewDate(HWND window) {
    const BOOL result = Redraw(window);
    PlaceCaret(kDateKind, window, edit::Told::No);
    if (RecordOf<Record>(window) != nullptr) {
        SendMessageA(window, edit::kTellChanged, 0, 0);
    }
    return result;
}

} // namespace vorn::date

using namespace vorn;
using namespace vorn::date;

extern "C" LRESULT CALLBACK VORNDateEditWinFn(HWND window, UINT message, WPARAM wParam,
                                              LPARAM lParam) {
    switch (message) {
    case WM_NCCREATE:
        return OnCreate(window, wParam, lParam);
    case WM_NCDESTROY:
        OnDestroy(window);
        return DefWindowProcA(window, message, wParam, lParam);
    case WM_PAINT:
        return PaintWindow<Record>(window, Draw);
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        if (RecordOf<Record>(window) != nullptr) {
            OnPress(window, lParam, message == WM_LBUTTONDBLCLK);
        }
        return 0;
    case WM_KEYDOWN:
        return OnKeyDown({window, message, wParam, lParam});
    case WM_SETTEXT:
        return OnSetText(window, reinterpret_cast<const char*>(lParam));
    case WM_WININICHANGE:
        return OnSettingsChanged(window, lParam);
    case WM_SYSCOLORCHANGE:
        return OnSystemColors(window);
    default:
        break;
    }
    LRESULT result = 0;
    if (AnswerEditMessage(kDateKind, {window, message, wParam, lParam}, result) ||
        AnswerPointerMessage(window, message, lParam, result)) {
        return result;
    }
    return OnOwnMessage(window, message, wParam, lParam);
}
