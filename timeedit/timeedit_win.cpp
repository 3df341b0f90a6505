// The time edit's window procedure.
#include "timeedit/timeedit_win.h"

#include "core/edit/edit_caret_win.h"
#include "core/edit/edit_messages_win.h"
#include "core/edit/edit_paint_win.h"
#include "core/edit/field_edit_win.h"
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

static_assert(kValueTextSize == edit::kShownTextSize);

Record& RecordIn(edit::EditBody& body) {
    return static_cast<Record&>(body);
}

const Record& RecordIn(const edit::EditBody& body) {
    return static_cast<const Record&>(body);
}

edit::EditBody* BodyOf(HWND window) {
    return RecordOf<Record>(window);
}

void WriteText(const edit::EditBody& body, edit::TextBuffer& buffer) {
    CopyText(buffer, RecordIn(body).entry.time.valueText);
}

bool IsNull(const edit::EditBody& body) {
    return RecordIn(body).entry.time.null != 0;
}

void OnEnterFocus(edit::EditBody& body) {
    EnterFocus(RecordIn(body).entry);
}

void OnLeaveFocus(edit::EditBody& body) {
    LeaveFocus(RecordIn(body).entry);
}

edit::FieldMap MapOf(const edit::EditBody& body) {
    return FieldMapOf(RecordIn(body).entry.time);
}

void FollowCaret(edit::EditBody& body) {
    FollowCaretWithField(RecordIn(body).entry.caret, MapOf(body));
}

edit::Actions ClearSelected(edit::EditBody& body) {
    edit::Actions actions;
    ClearSelection(actions, RecordIn(body).entry);
    return actions;
}

edit::Actions TakeText(edit::EditBody& body, const char* text) {
    edit::Actions actions;
    PasteText(actions, RecordIn(body).entry, text);
    return actions;
}

void PaintNothing(HDC /*context*/, const edit::EditBody& /*body*/, const Rect& /*rect*/) {}

edit::Actions RunKeyOf(edit::EditBody& body, const edit::Key& key, bool allowed) {
    return RunKey(RecordIn(body).entry, key, allowed);
}

constexpr edit::Compactness kCompactness = {3, 0};

// The other way round than tmSetBorderStyle writes them.
constexpr edit::BorderBits kBorderBits = {
    {{VTES_RAISED, kBorderRaised}, {VTES_SUNKEN, kBorderSunken}, {VTES_LINE, kBorderLine}}};

} // namespace

constinit const edit::EditKind kTimeEdit = {BodyOf,       WriteText,    IsNull,        OnEnterFocus,
                                            OnLeaveFocus, FollowCaret,  ClearSelected, TakeText,
                                            PaintNothing, kCompactness, kBorderBits};

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
    time.format.showSeconds = (style & VTES_SECONDS) != 0 ? 1 : 0;
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

LRESULT OnSetTimeRecord(HWND window, const VORNTIMERECORD* given) {
    if (given != nullptr) {
        const VORNTIME time = {static_cast<WORD>(given->hour), static_cast<WORD>(given->minute),
                               static_cast<WORD>(given->second)};
        tmSetTime(window, &time);
    }
    return 0;
}

LRESULT OnGetTimeRecord(HWND window, VORNTIMERECORD* asked) {
    VORNTIME time{};
    if (asked != nullptr && tmGetTime(window, &time) != 0) {
        *asked = {time.second, time.minute, time.hour, {}};
    }
    return 0;
}

LRESULT OnGetRecordSize(LONG* size) {
    constexpr LRESULT kAnswer = 11; // what hosts have always been answered
    if (size != nullptr) {
        *size = sizeof(VORNTIMERECORD);
    }
    return kAnswer;
}
static_assert(sizeof(VORNTIMERECORD) == 36);

// The messages that are the functions' twins, and those beside them.
bool AnswerPrivateMessage(const edit::EditMessage& message, LRESULT& result) {
    const HWND window = message.window;
    const LPARAM lParam = message.lParam;
    switch (message.message) {
    case VTEM_GETEDITPARAMS:
        result = tmGetEditParams(window, reinterpret_cast<VORNTIMEEDITPARAMS*>(lParam));
        return true;
    case VTEM_SETEDITPARAMS:
        result = tmSetEditParams(window, reinterpret_cast<const VORNTIMEEDITPARAMS*>(lParam));
        return true;
    case VTEM_GETTIME:
        result = tmGetTime(window, reinterpret_cast<VORNTIME*>(lParam));
        return true;
    case VTEM_GETHOUR:
        result = static_cast<LRESULT>(tmGetHour(window));
        return true;
    case VTEM_GETMINUTE:
        result = static_cast<LRESULT>(tmGetMinute(window));
        return true;
    case VTEM_GETSECOND:
        result = static_cast<LRESULT>(tmGetSecond(window));
        return true;
    case VTEM_SETTIME:
        result = tmSetTime(window, reinterpret_cast<const VORNTIME*>(lParam));
        return true;
    case VTEM_SETDISPLAYSTYLE:
        result = tmSetDisplayStyle(window, static_cast<DWORD>(message.wParam));
        return true;
    case VTEM_SETNULL:
        result = tmSetNull(window);
        return true;
    case VTEM_ISNULL:
        result = tmIsNull(window);
        return true;
    case VTEM_GETTIMESTRING:
        result =
            reinterpret_cast<LRESULT>(tmGetTimeString(window, reinterpret_cast<char*>(lParam)));
        return true;
    case WM_SETTEXT:
    case VTEM_SETTIMESTRING:
        result = tmSetTimeString(window, reinterpret_cast<const char*>(lParam));
        return true;
    case VTEM_GETMINHEIGHT:
        result = tmGetMinHeight(window);
        return true;
    case VTEM_GETMINWIDTH:
        result = tmGetMinWidth(window);
        return true;
    case VTEM_SETBACKGROUNDCOLOR:
        result = tmSetColor(window, VORN_COLOR_FACE, static_cast<COLORREF>(lParam));
        return true;
    case VTEM_SETTEXTCOLOR:
        result = tmSetColor(window, VORN_COLOR_TEXT, static_cast<COLORREF>(lParam));
        return true;
    default:
        return false;
    }
}

bool AnswerRareMessage(const edit::EditMessage& message, LRESULT& result) {
    constexpr UINT kAnswerNothing = 0x0D05; // asked by hosts of all edits
    const HWND window = message.window;
    switch (message.message) {
    case VTEM_OKTOCHANGE:
        result = tmOkToChange(window);
        return true;
    case VTEM_STARTCLOCK:
        result = tmStartClock(window);
        return true;
    case VTEM_STOPCLOCK:
        result = tmStopClock(window);
        return true;
    case VTEM_SETTIMERECORD:
        result = OnSetTimeRecord(window, reinterpret_cast<const VORNTIMERECORD*>(message.lParam));
        return true;
    case VTEM_GETTIMERECORD:
        result = OnGetTimeRecord(window, reinterpret_cast<VORNTIMERECORD*>(message.lParam));
        return true;
    case kAnswerNothing:
        result = 0;
        return true;
    case VTEM_GETRECORDSIZE:
        result = OnGetRecordSize(reinterpret_cast<LONG*>(message.lParam));
        return true;
    default:
        return AnswerPrivateMessage(message, result) ||
               AnswerEditMessage(kTimeEdit, message, result);
    }
}

} // namespace
} // namespace vorn::timeedit

using namespace vorn;
using namespace vorn::timeedit;

extern "C" LRESULT CALLBACK VORNTimeEditWinFn(HWND window, UINT message, WPARAM wParam,
                                              LPARAM lParam) {
    const edit::EditMessage asked = {window, message, wParam, lParam};
    LRESULT result = 0;
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
        if (AnswerRareMessage(asked, result)) {
            return result;
        }
        break;
    }
    return DefWindowProcA(window, message, wParam, lParam);
}
