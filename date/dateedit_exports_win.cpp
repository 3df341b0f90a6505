// The date edit's exported functions.
#include "core/edit/edit_border_win.h"
#include "core/edit/edit_caret_win.h"
#include "core/profile_win.h"
#include "core/text.h"
#include "core/window_win.h"
#include "date/date_literals.h"
#include "date/dateedit_win.h"
#include "date/today_win.h"

#include <bit>
#include <vorn32/dateedit.h>

namespace vorn::date {
namespace {

constexpr int kNoNumber = -1;
constexpr int kUsualHeight = 24;
constexpr int kUsualWidth = 80;

int NumberOf(HWND window, std::uint16_t Date::*number) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? kNoNumber : record->entry.date.value.*number;
}

// Changes the date when the host allows it and shows it; FALSE when nothing came of it.
template <class Change>
BOOL ChangeIfAllowed(HWND window, Change change) {
    if (RecordOf<Record>(window) == nullptr || !IsOkToChange(kDateKind, window)) {
        return FALSE;
    }
    change(RecordOf<Record>(window)->entry);
    return ShowNewDate(window);
}

Size LeastSizeOf(const Record& record) {
    return LeastWindowSize(record.figures, kCompactness, record.borderStyle);
}

} // namespace
} // namespace vorn::date

using namespace vorn;
using namespace vorn::date;

extern "C" void WINAPI dtGetEditParams(HWND window, DtEditParams* params) {
    const Record* record = RecordOf<Record>(window);
    if (record != nullptr && params != nullptr) {
        EditParams filled = std::bit_cast<EditParams>(*params);
        GetEditParams(filled, record->entry.date);
        *params = std::bit_cast<DtEditParams>(filled);
    }
}

extern "C" void WINAPI dtSetEditParams(HWND window, const DtEditParams* params) {
    if (RecordOf<Record>(window) == nullptr || params == nullptr) {
        return;
    }
    const DWORD size = params->size; // all that a record of another size surely has
    if (size != kEditParamsSize) {
        return;
    }
    const EditParams wanted = std::bit_cast<EditParams>(*params);
    const bool takeDate = wanted.setDate != 0 && IsOkToChange(kDateKind, window);
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    const std::int32_t wasNull = record->entry.date.null;
    SetEditParams(record->entry, wanted, takeDate, Today(), kUserProfile);
    if (takeDate || record->entry.date.null != wasNull) {
        ShowNewDate(window);
    } else {
        PlaceCaret(kDateKind, window, edit::Told::No);
        Redraw(window);
    }
}

extern "C" LONG WINAPI dtGetDate(HWND window, DtDate* date) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return kNoNumber;
    }
    const Date& held = record->entry.date.value;
    if (date != nullptr) {
        *date = {held.month, held.day, held.year};
    }
    return SerialDate(held);
}

extern "C" int WINAPI dtGetMonth(HWND window) {
    return NumberOf(window, &Date::month);
}

extern "C" int WINAPI dtGetDay(HWND window) {
    return NumberOf(window, &Date::day);
}

extern "C" int WINAPI dtGetYear(HWND window) {
    return NumberOf(window, &Date::year);
}

extern "C" BOOL WINAPI dtSetDate(HWND window, const DtDate* date) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return FALSE;
    }
    if (date == nullptr) {
        return Redraw(window);
    }
    SetDate(record->entry, {date->month, date->day, date->year});
    return ShowNewDate(window);
}

extern "C" BOOL WINAPI dtSetColor(HWND window, int slot, COLORREF colorCode) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return FALSE;
    }
    SetColorSlot(record->colors, edit::kColorSlots, slot, colorCode);
    if (slot == VORN_COLOR_FILL) {
        record->dialogColor = colorCode;
    }
    return edit::RedrawWithBorder(window);
}

extern "C" LONG WINAPI dtEnableErase(HWND window, BOOL enable) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    record->eraseDisabled = enable == FALSE;
    const DWORD style = StyleOf(window) & ~static_cast<DWORD>(VDTS_NOERASE);
    const DWORD bit = enable == FALSE ? VDTS_NOERASE : 0;
    return SetWindowLongA(window, GWL_STYLE, static_cast<LONG>(style | bit));
}

extern "C" BOOL WINAPI dtSetDisplayStyle(HWND window, int style) {
    return SetDisplayStyle(kDateKind, window, static_cast<std::uint32_t>(style));
}

extern "C" BOOL WINAPI dtEnableCalendar(HWND window, BOOL enable) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return FALSE;
    }
    record->rightPartShown = enable != FALSE;
    ChangeStyle(window, VDTS_CALENDAR, enable != FALSE ? VDTS_CALENDAR : 0);
    const BOOL result = Redraw(window);
    PlaceCaret(kDateKind, window, edit::Told::No);
    return result;
}

extern "C" BOOL WINAPI dtSetNull(HWND window) {
    return ChangeIfAllowed(window, SetNull);
}

extern "C" BOOL WINAPI dtIsNull(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? TRUE : record->entry.date.null;
}

extern "C" char* WINAPI dtGetDateString(HWND window, char* buffer) {
    const Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        CopyOut(buffer, kValueTextSize, record->entry.date.valueText);
    }
    return buffer;
}

extern "C" BOOL WINAPI dtSetDateString(HWND window, const char* text) {
    return ChangeIfAllowed(window, [text](DateEntry& entry) { SetDateString(entry, text); });
}

extern "C" int WINAPI dtGetMinHeight(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? kUsualHeight : LeastSizeOf(*record).height;
}

extern "C" int WINAPI dtGetMinWidth(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? kUsualWidth : LeastSizeOf(*record).width;
}

extern "C" BOOL WINAPI dtOkToChange(HWND /*window*/) {
    return TRUE;
}

extern "C" void WINAPI dtSetMonthLiterals(HWND /*window*/, const char* list) {
    SetMonthLiterals(names, list);
}

extern "C" void WINAPI dtSetDayLiterals(HWND /*window*/, const char* text) {
    SetDayLiterals(names, text);
}

extern "C" BOOL WINAPI dtSetBorderStyle(HWND window, DWORD borderStyle) {
    return SetEditBorder(kDateKind, window, borderStyle);
}

extern "C" void WINAPI dtSetButtonStyle(HWND window, DWORD buttonStyle) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        record->buttonStyle = buttonStyle;
    }
}

extern "C" char* WINAPI dtSetButtonText(HWND /*window*/, int which, const char* text) {
    char* caption = SetCaption(captions, which, text);
    return caption != nullptr ? caption : reinterpret_cast<char*>(static_cast<INT_PTR>(which));
}
