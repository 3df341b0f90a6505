// The "Select Date" dialog: its procedure and its commands. It writes what the user chooses into
// the record of the date edit that opened it.
#include "date/popup_win.h"

#include "core/classes_win.h"
#include "core/color_win.h"
#include "core/gdi_win.h"
#include "core/property_win.h"
#include "date/dateedit_win.h"
#include "date/popup_controls_win.h"
#include "date/today_win.h"

#include <vorn32/calendar.h>
#include <vorn32/dateedit.h>
#include <vorn32/numedit.h>

namespace vorn::date {
namespace {

constexpr WORD kDialog = 110;

// The record's address, for whoever looks at the dialog from outside; and the date edit itself, by
// which the dialog knows whether the record is still there.
constexpr char kRecordProperty[] = "Date";
constexpr char kDateEditProperty[] = "VORNDateEdit";

// Null once the date edit is gone.
Record* SubjectOf(HWND dialog) {
    auto* expected = LoadProperty<Record*>(dialog, kRecordProperty);
    Record* record = RecordOf<Record>(static_cast<HWND>(GetPropA(dialog, kDateEditProperty)));
    return record == expected ? record : nullptr;
}

// ---- Which date edit it is ----

struct Search {
    const Record* record;
    HWND found;
};

BOOL CALLBACK CompareRecord(HWND window, LPARAM parameter) {
    auto* search = reinterpret_cast<Search*>(parameter);
    if (RecordOf<Record>(window) == search->record) {
        search->found = window;
    }
    return search->found == nullptr ? TRUE : FALSE;
}

// The date edit with this record, in the window that owns the dialog. The address may be anything.
HWND FindDateEdit(HWND dialog, const Record* record) {
    Search search = {record, nullptr};
    HWND owner = GetWindow(dialog, GW_OWNER);
    if (record != nullptr && owner != nullptr &&
        CompareRecord(owner, reinterpret_cast<LPARAM>(&search)) != 0) {
        EnumChildWindows(owner, CompareRecord, reinterpret_cast<LPARAM>(&search));
    }
    return search.found;
}

// ---- Calendar and year box ----

Date ShownDate(HWND dialog) {
    VORNCALENDARDATE shown{};
    SendDlgItemMessageA(dialog, kPopupCalendar, VCALM_GETDATE, 0, reinterpret_cast<LPARAM>(&shown));
    return {shown.month, shown.day, shown.year};
}

void ShowInCalendar(HWND dialog, const Date& date) {
    SendDlgItemMessageA(dialog, kPopupCalendar, VCALM_SETDATE, date.year,
                        MAKELPARAM(date.month, date.day));
}

void ShowInYearBox(HWND dialog, std::uint16_t year) {
    SendDlgItemMessageA(dialog, kYearBox, VNMM_SETINTEGER, year, 0);
}

void LimitYears(HWND dialog) {
    NmEditParams params{};
    params.formatKind = NM_INTEGER;
    params.rangeCheck = 1;
    params.minValue = kFirstYear;
    params.maxValue = kLastYear;
    SendDlgItemMessageA(dialog, kYearBox, VNMM_SETEDITPARAMS, 0, reinterpret_cast<LPARAM>(&params));
}

// ---- Commands ----

// The date edit takes the date, or none.
void End(HWND dialog, std::int32_t result, const Date& date, bool isNull) {
    Record* record = SubjectOf(dialog);
    if (record == nullptr) {
        EndDialog(dialog, kPopupCancelled);
        return;
    }
    record->entry.date.value = date;
    record->entry.date.null = isNull ? 1 : 0;
    EndDialog(dialog, result);
}

void GoToYear(HWND dialog, std::uint16_t (*step)(std::uint16_t)) {
    Date date = ShownDate(dialog);
    const std::uint16_t year = step(date.year);
    if (year != date.year) {
        date.year = year;
        ShowInCalendar(dialog, date);
        ShowInYearBox(dialog, year);
    }
}

// The year is the date edit's at once, whatever the dialog ends with.
void TakeTypedYear(HWND dialog) {
    const LRESULT year = SendDlgItemMessageA(dialog, kYearBox, VNMM_GETINTEGER, 0, 0);
    Record* record = SubjectOf(dialog);
    if (record != nullptr) {
        record->entry.date.value.year = static_cast<std::uint16_t>(year);
        ShowInCalendar(dialog, record->entry.date.value);
    }
}

void OnCommand(HWND dialog, WPARAM wParam) {
    switch (CommandOf(LOWORD(wParam), HIWORD(wParam))) {
    case PopupCommand::None:
        break;
    case PopupCommand::Accept:
        End(dialog, kDateChosen, ShownDate(dialog), false);
        break;
    case PopupCommand::Cancel:
        EndDialog(dialog, kPopupCancelled);
        break;
    case PopupCommand::Erase:
        End(dialog, kDateErased, Date{}, true);
        break;
    case PopupCommand::PreviousYear:
        GoToYear(dialog, YearBefore);
        break;
    case PopupCommand::NextYear:
        GoToYear(dialog, YearAfter);
        break;
    case PopupCommand::TakeTypedYear:
        TakeTypedYear(dialog);
        break;
    }
}

// ---- Beginning, painting, end ----

// No date opens on today, and stays none until the user chooses; but the numbers that hosts say no
// date with go to the calendar as they are.
Date DateToOpenOn(HeldDate& held) {
    constexpr Date kNoDateOfHosts = {9, 0, 0};
    if (held.value == Date{} || (held.null != 0 && held.value != kNoDateOfHosts)) {
        held.value = Today();
        held.null = 1;
    }
    return held.value;
}

void OnInitialize(HWND dialog, Record* record) {
    HWND dateEdit = FindDateEdit(dialog, record);
    if (dateEdit == nullptr || !StoreProperty(dialog, kRecordProperty, record) ||
        SetPropA(dialog, kDateEditProperty, dateEdit) == 0) {
        EndDialog(dialog, kPopupCancelled);
        return;
    }
    const Date date = DateToOpenOn(record->entry.date);
    ShowInCalendar(dialog, date);
    ShowInYearBox(dialog, date.year);
    LimitYears(dialog);
    // From here on host code may have run: a date edit that is gone leaves the defaults.
    ArrangeYearLine(dialog);
    record = SubjectOf(dialog);
    if (record != nullptr && record->buttonStyle == 0) {
        UseSystemButtons(dialog, captions);
    }
    record = SubjectOf(dialog);
    if (record != nullptr && record->eraseDisabled) {
        ShowWindow(GetDlgItem(dialog, kEraseButton), SW_HIDE);
    }
    BringOnScreen(dialog, dateEdit);
    SetFocus(GetDlgItem(dialog, kAcceptButton));
}

void OnPaint(HWND dialog) {
    const Record* record = SubjectOf(dialog);
    const ColorCode color = record != nullptr ? record->dialogColor : kButtonFaceColor;
    PAINTSTRUCT paint;
    HDC context = BeginPaint(dialog, &paint);
    FillWithColor(context, ClientRect(dialog), ResolveColor(color));
    EndPaint(dialog, &paint);
}

void OnDestroy(HWND dialog) {
    ReleaseYearLine(dialog);
    FreeProperty(dialog, kRecordProperty);
    RemovePropA(dialog, kDateEditProperty);
}

} // namespace

INT_PTR OpenPopup(HWND dateEdit) {
    Record* record = RecordOf<Record>(dateEdit);
    const INT_PTR result = record == nullptr
                               ? 0
                               : DialogBoxParamA(Module(), MAKEINTRESOURCEA(kDialog), dateEdit,
                                                 CalendarProc, reinterpret_cast<LPARAM>(record));
    return result > 0 ? result : kPopupCancelled; // without a dialog nothing was chosen
}

} // namespace vorn::date

using namespace vorn::date;

extern "C" INT_PTR CALLBACK CalendarProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_INITDIALOG:
        OnInitialize(dialog, reinterpret_cast<Record*>(lParam));
        return FALSE; // the focus is where it belongs
    case WM_COMMAND:
        OnCommand(dialog, wParam);
        return TRUE;
    case WM_PAINT:
        OnPaint(dialog);
        return TRUE;
    case WM_DESTROY:
        OnDestroy(dialog);
        return TRUE;
    default:
        return FALSE;
    }
}
