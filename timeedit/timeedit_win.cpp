// The time edit's window procedure.
#include "timeedit/timeedit_win.h"

#include "core/edit/edit_caret_win.h"
#include "core/edit/edit_messages_win.h"
#include "core/edit/edit_paint_win.h"
#include "core/edit/field_edit_win.h"
#include "core/edit/time_record.h"
#include "core/profile_win.h"
#include "core/text.h"
#include "core/window_win.h"
#include "timeedit/time_clipboard.h"
#include "timeedit/time_clock.h"
#include "timeedit/time_format.h"
#include "timeedit/time_keys.h"
#include "timeedit/time_settings.h"

#include <vorn32/timeedit.h>

namespace vorn::timeedit {
namespace {

static_assert(VTMM_OKTOCHANGE == edit::kAskOkToChange && VTMM_CHANGED == edit::kTellChanged);
static_assert(VTMS_DIGITS == edit::kStyleDigits && VTMS_CELLS == edit::kStyleCells &&
              VTMS_READONLY == edit::kStyleReadOnly);
static_assert(kValueTextSize == edit::kShownTextSize);

void WriteText(const edit::EditBody& body, edit::TextBuffer& buffer) {
    CopyText(buffer, edit::RecordIn<Record>(body).entry.time.valueText);
}

bool IsNull(const edit::EditBody& body) {
    return edit::RecordIn<Record>(body).entry.time.null != 0;
}

void OnEnterFocus(edit::EditBody& body) {
    EnterFocus(edit::RecordIn<Record>(body).entry);
}

void OnLeaveFocus(edit::EditBody& body) {
    LeaveFocus(edit::RecordIn<Record>(body).entry);
}

edit::FieldMap MapOf(const edit::EditBody& body) {
    return FieldMapOf(edit::RecordIn<Record>(body).entry.time);
}

void FollowCaret(edit::EditBody& body) {
    FollowCaretWithField(edit::RecordIn<Record>(body).entry.caret, MapOf(body));
}

edit::Actions ClearSelected(edit::EditBody& body) {
    edit::Actions actions;
    ClearSelection(actions, edit::RecordIn<Record>(body).entry);
    return actions;
}

edit::Actions TakeText(edit::EditBody& body, const char* text) {
    edit::Actions actions;
    PasteText(actions, edit::RecordIn<Record>(body).entry, text);
    return actions;
}

void PaintNothing(HDC /*context*/, const edit::EditBody& /*body*/, const Rect& /*rect*/) {}

edit::Actions RunKeyOf(edit::EditBody& body, const edit::Key& key, bool allowed) {
    return RunKey(edit::RecordIn<Record>(body).entry, key, allowed);
}

constexpr edit::Compactness kCompactness = {3, 0};

// The other way round than tmSetBorderStyle writes them.
constexpr edit::BorderBits kBorderBits = {
    {{VTMS_RAISED, kBorderRaised}, {VTMS_SUNKEN, kBorderSunken}, {VTMS_LINE, kBorderLine}}};

} // namespace

constinit const edit::EditKind kTimeEdit = {
    edit::BodyOf<Record>, WriteText, IsNull,       OnEnterFocus, OnLeaveFocus, FollowCaret,
    ClearSelected,        TakeText,  PaintNothing, kCompactness, kBorderBits};

namespace {

constinit const edit::FieldEdit kFieldEdit = {kTimeEdit, RunKeyOf, MapOf};

Time TimeOf(const SYSTEMTIME& now) {
    return {now.wHour, now.wMinute, now.wSecond};
}

// The raised and the sunken border have the system's border bit too from the start.
DWORD StyleBitsBesides(std::uint32_t border) {
    return border == kBorderRaised || border == kBorderSunken ? WS_BORDER : 0;
}

LRESULT OnCreate(HWND window, WPARAM wParam, LPARAM lParam) {
    if (DefWindowProcA(window, WM_NCCREATE, wParam, lParam) == 0) {
        return 0;
    }
    Record* record = AttachRecord<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    record->caret = &record->entry.caret;
    record->modified = &record->entry.modified;
    const DWORD style = StyleOf(window);
    InitEdit(*record, style, kTimeEdit);
    SYSTEMTIME now{};
    GetSystemTime(&now);
    HeldTime& time = record->entry.time;
    StoreTime(time, TimeOf(now));
    time.format.showSeconds = (style & VTMS_SECONDS) != 0 ? 1 : 0;
    ReadUserFormat(kUserProfile, time.format);
    FormatValueText(time);
    ChangeStyle(window, 0, StyleBitsBesides(record->borderStyle));
    return 1;
}

LRESULT OnDestroy(HWND window, WPARAM wParam, LPARAM lParam) {
    tmStopClock(window);
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        edit::ReleaseEdit(*record);
    }
    DetachRecord<Record>(window);
    return DefWindowProcA(window, WM_NCDESTROY, wParam, lParam);
}

void Draw(HWND window, const OffscreenPaint& offscreen) {
    const Record* record = RecordOf<Record>(window);
    PaintEdit(kTimeEdit, window, offscreen.context(), edit::FieldInkOf(*record));
}

LRESULT OnPress(const edit::EditMessage& message) {
    const Record* record = RecordOf<Record>(message.window);
    if (record == nullptr) {
        return 0;
    }
    const Point point = PointOf(message.lParam);
    if (record->readOnly) {
        edit::ShowCursorAt(kTimeEdit, message.window, point);
        return 0;
    }
    edit::BeginPress(kTimeEdit, message.window);
    PressFieldText(kFieldEdit, message.window, point, message.message == WM_LBUTTONDBLCLK);
    return 0;
}

// Only of the section that it names in this spelling, and of none that it does not name.
LRESULT OnProfileChange(HWND window, LPARAM section) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr && section != 0 && ConcernsUserProfile(section)) {
        ReadUserFormat(kUserProfile, record->entry.time.format);
        RenewText(record->entry);
        Redraw(window);
        PlaceCaret(kTimeEdit, window, edit::Told::No);
    }
    return 0;
}

void OnTick(HWND window) {
    SYSTEMTIME now{};
    GetLocalTime(&now);
    char text[kClockTextSize];
    FormatClockText(text, TimeOf(now));
    tmSetTimeString(window, text);
}

void OnSetBrokenDown(HWND window, const edit::TimeRecord* given) {
    if (given != nullptr) {
        const TmTime time = {static_cast<WORD>(given->hours), static_cast<WORD>(given->minutes),
                             static_cast<WORD>(given->seconds)};
        tmSetTime(window, &time);
    }
}

void OnGetBrokenDown(HWND window, edit::TimeRecord* asked) {
    TmTime time{};
    if (asked != nullptr && tmGetTime(window, &time) != 0) {
        *asked = {};
        asked->seconds = time.second;
        asked->minutes = time.minute;
        asked->hours = time.hour;
    }
}

// Messages whose argument is a pointer.
bool AnswerPointerMessage(const edit::EditMessage& message, LRESULT& result) {
    const HWND window = message.window;
    const LPARAM lParam = message.lParam;
    result = 0;
    switch (message.message) {
    case VTMM_GETEDITPARAMS:
        result = tmGetEditParams(window, reinterpret_cast<TmEditParams*>(lParam));
        return true;
    case VTMM_SETEDITPARAMS:
        result = tmSetEditParams(window, reinterpret_cast<const TmEditParams*>(lParam));
        return true;
    case VTMM_GETTIME:
        result = tmGetTime(window, reinterpret_cast<TmTime*>(lParam));
        return true;
    case VTMM_SETTIME:
        result = tmSetTime(window, reinterpret_cast<const TmTime*>(lParam));
        return true;
    case VTMM_GETTIMESTRING:
        result =
            reinterpret_cast<LRESULT>(tmGetTimeString(window, reinterpret_cast<char*>(lParam)));
        return true;
    case WM_SETTEXT:
    case VTMM_SETTIMESTRING:
        result = tmSetTimeString(window, reinterpret_cast<const char*>(lParam));
        return true;
    case VTMM_SETBROKENDOWN:
        OnSetBrokenDown(window, reinterpret_cast<const edit::TimeRecord*>(lParam));
        return true;
    case VTMM_GETBROKENDOWN:
        OnGetBrokenDown(window, reinterpret_cast<edit::TimeRecord*>(lParam));
        return true;
    case VTMM_GETBROKENDOWNSIZE:
        result = edit::TellTimeSize(reinterpret_cast<std::uint32_t*>(lParam));
        return true;
    default:
        return false;
    }
}

LRESULT OnOwnMessage(const edit::EditMessage& message) {
    const HWND window = message.window;
    const auto color = static_cast<COLORREF>(message.lParam);
    switch (message.message) {
    case VTMM_GETHOUR:
        return static_cast<LRESULT>(tmGetHour(window));
    case VTMM_GETMINUTE:
        return static_cast<LRESULT>(tmGetMinute(window));
    case VTMM_GETSECOND:
        return static_cast<LRESULT>(tmGetSecond(window));
    case VTMM_SETDISPLAYSTYLE:
        return tmSetDisplayStyle(window, static_cast<DWORD>(message.wParam));
    case VTMM_SETNULL:
        return tmSetNull(window);
    case VTMM_ISNULL:
        return tmIsNull(window);
    case VTMM_GETMINHEIGHT:
        return tmGetMinHeight(window);
    case VTMM_GETMINWIDTH:
        return tmGetMinWidth(window);
    case VTMM_SETBACKGROUNDCOLOR:
        return tmSetColor(window, VORN_COLOR_FACE, color);
    case VTMM_SETTEXTCOLOR:
        return tmSetColor(window, VORN_COLOR_TEXT, color);
    case VTMM_OKTOCHANGE:
        return tmOkToChange(window);
    case VTMM_STARTCLOCK:
        return tmStartClock(window);
    case VTMM_STOPCLOCK:
        return tmStopClock(window);
    case VTMM_QUERY:
        return 0;
    default:
        return DefWindowProcA(window, message.message, message.wParam, message.lParam);
    }
}

} // namespace
} // namespace vorn::timeedit

using namespace vorn;
using namespace vorn::timeedit;

extern "C" LRESULT CALLBACK VORNTimeEditWinFn(HWND window, UINT message, WPARAM wParam,
                                              LPARAM lParam) {
    const edit::EditMessage asked = {window, message, wParam, lParam};
    switch (message) {
    case WM_NCCREATE:
        return OnCreate(window, wParam, lParam);
    case WM_NCDESTROY:
        return OnDestroy(window, wParam, lParam);
    case WM_PAINT:
        return PaintWindow<Record>(window, Draw);
    case WM_KEYDOWN:
        return PressFieldKey(kFieldEdit, asked);
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        return OnPress(asked);
    case WM_WININICHANGE:
        return OnProfileChange(window, lParam);
    case WM_TIMER:
        if (wParam == kClockTimer) {
            OnTick(window);
            return 0;
        }
        break;
    default:
        break;
    }
    LRESULT result = 0;
    if (AnswerEditMessage(kTimeEdit, asked, result) || AnswerPointerMessage(asked, result)) {
        return result;
    }
    return OnOwnMessage(asked);
}
