// The time edit's exported functions.
#include "core/edit/edit_border_win.h"
#include "core/edit/edit_caret_win.h"
#include "core/text.h"
#include "core/window_win.h"
#include "timeedit/time_clock.h"
#include "timeedit/time_format.h"
#include "timeedit/time_parse.h"
#include "timeedit/time_settings.h"
#include "timeedit/timeedit_win.h"

#include <bit>
#include <vorn32/timeedit.h>

namespace vorn::timeedit {
namespace {

static_assert(sizeof(TmTime) == sizeof(Time) && offsetof(TmTime, minute) == 2 &&
              offsetof(TmTime, second) == 4);
static_assert(sizeof(TmEditParams) == sizeof(EditParams) && offsetof(TmEditParams, time) == 4 &&
              offsetof(TmEditParams, keepFormat) == 12 && offsetof(TmEditParams, separator) == 16 &&
              offsetof(TmEditParams, leadingZero) == 20 &&
              offsetof(TmEditParams, twentyFourHour) == 24 &&
              offsetof(TmEditParams, showSeconds) == 28 && offsetof(TmEditParams, amText) == 32 &&
              offsetof(TmEditParams, pmText) == 41);

UINT NumberOf(HWND window, std::uint16_t Time::*number) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? 0 : record->entry.time.value.*number;
}

// The host's leave to change the value; the record, null when there is none or it was refused.
Record* AskToChange(HWND window) {
    if (RecordOf<Record>(window) == nullptr || !IsOkToChange(kTimeEdit, window)) {
        return nullptr;
    }
    return RecordOf<Record>(window);
}

// The value was set from outside and is on the screen.
void TellChanged(HWND window) {
    PlaceCaret(kTimeEdit, window, edit::Told::No);
    if (RecordOf<Record>(window) != nullptr) {
        SendMessageA(window, edit::kTellChanged, 0, 0);
    }
}

void ShowNewValue(HWND window, Record& record) {
    ResetCaret(record.entry);
    RenewText(record.entry);
    edit::Repaint(window);
    TellChanged(window);
}

Size LeastSizeOf(const Record& record) {
    return LeastWindowSize(record.figures, kTimeEdit.compactness, record.borderStyle);
}

} // namespace
} // namespace vorn::timeedit

using namespace vorn;
using namespace vorn::timeedit;

extern "C" BOOL WINAPI tmGetEditParams(HWND window, TmEditParams* params) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr || params == nullptr) {
        return 0;
    }
    EditParams filled = std::bit_cast<EditParams>(*params);
    GetEditParams(record->entry.time, filled);
    *params = std::bit_cast<TmEditParams>(filled);
    return 1;
}

extern "C" BOOL WINAPI tmSetEditParams(HWND window, const TmEditParams* params) {
    if (RecordOf<Record>(window) == nullptr || params == nullptr) {
        return 0;
    }
    const EditParams given = std::bit_cast<EditParams>(*params);
    const RECT area = ToPlatform(edit::TextArea(ClientRect(window), 0));
    const bool allowed = IsOkToChange(kTimeEdit, window);
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    if (SetEditParams(record->entry.time, given, allowed)) {
        ResetCaret(record->entry);
    }
    RenewText(record->entry);
    InvalidateRect(window, &area, FALSE);
    UpdateWindow(window);
    PlaceCaret(kTimeEdit, window, edit::Told::No);
    if (RecordOf<Record>(window) != nullptr) {
        PostMessageA(window, edit::kTellChanged, 0, 0);
    }
    return 1;
}

extern "C" BOOL WINAPI tmGetTime(HWND window, TmTime* time) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr || time == nullptr) {
        return 0;
    }
    const Time& value = record->entry.time.value;
    *time = {value.hour, value.minute, value.second};
    return 1;
}

extern "C" UINT WINAPI tmGetHour(HWND window) {
    return NumberOf(window, &Time::hour);
}

extern "C" UINT WINAPI tmGetMinute(HWND window) {
    return NumberOf(window, &Time::minute);
}

extern "C" UINT WINAPI tmGetSecond(HWND window) {
    return NumberOf(window, &Time::second);
}

extern "C" BOOL WINAPI tmSetTime(HWND window, const TmTime* time) {
    Record* record = time == nullptr ? nullptr : AskToChange(window);
    if (record == nullptr) {
        return 0;
    }
    StoreTime(record->entry.time, {time->hour, time->minute, time->second});
    ShowNewValue(window, *record);
    return 1;
}

extern "C" BOOL WINAPI tmSetDisplayStyle(HWND window, DWORD displayStyle) {
    return SetDisplayStyle(kTimeEdit, window, displayStyle);
}

extern "C" BOOL WINAPI tmSetNull(HWND window) {
    Record* record = AskToChange(window);
    if (record == nullptr) {
        return 0;
    }
    record->entry.time.null = 1;
    ShowNewValue(window, *record);
    return 1;
}

extern "C" BOOL WINAPI tmIsNull(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr || record->entry.time.null != 0 ? 1 : 0;
}

extern "C" LPSTR WINAPI tmGetTimeString(HWND window, LPSTR buffer) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr || buffer == nullptr) {
        return nullptr;
    }
    CopyOut(buffer, kValueTextSize, record->entry.time.valueText);
    return buffer;
}

extern "C" BOOL WINAPI tmSetTimeString(HWND window, LPCSTR text) {
    Record* record = AskToChange(window);
    if (record == nullptr) {
        return 0;
    }
    if (ReadTimeText(record->entry.time, text)) {
        ResetCaret(record->entry);
        RenewText(record->entry);
        Redraw(window);
        TellChanged(window);
    }
    return 1;
}

extern "C" int WINAPI tmGetMinHeight(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? 0 : LeastSizeOf(*record).height;
}

extern "C" int WINAPI tmGetMinWidth(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? 0 : LeastSizeOf(*record).width;
}

extern "C" BOOL WINAPI tmSetColor(HWND window, int slot, COLORREF colorCode) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    SetColorSlot(record->colors, edit::kColorSlots, slot, colorCode);
    return edit::RedrawWithBorder(window);
}

extern "C" BOOL WINAPI tmOkToChange(HWND /*window*/) {
    return 1;
}

extern "C" BOOL WINAPI tmStartClock(HWND window) {
    if (RecordOf<Record>(window) == nullptr) {
        return 0;
    }
    SetTimer(window, kClockTimer, kClockPeriod, nullptr);
    return 1;
}

extern "C" BOOL WINAPI tmStopClock(HWND window) {
    if (RecordOf<Record>(window) == nullptr) {
        return 0;
    }
    KillTimer(window, kClockTimer);
    return 1;
}

extern "C" BOOL WINAPI tmSetBorderStyle(HWND window, DWORD borderStyle) {
    return SetEditBorder(kTimeEdit, window, borderStyle);
}
