#include "date/dateedit_input_win.h"

#include "core/edit/edit_caret_win.h"
#include "core/edit/route_keys_win.h"
#include "core/window_win.h"
#include "date/date_keys.h"
#include "date/dateedit_calendar_win.h"
#include "date/dateedit_win.h"
#include "date/today_win.h"

namespace vorn::date {
namespace {

void ShowButton(HWND window, bool pressed) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        record->buttonPressed = pressed;
        const RECT button = ToPlatform(RightPartOf(window, *record, kDateKind));
        Redraw(window, &button);
    }
}

// Whether the user chose.
bool ChooseDate(HWND window) {
    ReleaseCapture();
    SetCursor(LoadCursorA(nullptr, IDC_WAIT));
    return OpenCalendar(window) != kCalendarCancelled;
}

void PressButton(HWND window) {
    const Record* record = RecordOf<Record>(window);
    if (!record->focused) {
        SetFocus(window);
    }
    ShowButton(window, true);
    const bool chosen = IsOkToChange(kDateKind, window) && ChooseDate(window);
    ShowButton(window, false);
    Record* changed = chosen ? RecordOf<Record>(window) : nullptr;
    if (changed != nullptr) {
        edit::Actions actions;
        FinishChange(actions, changed->entry);
        PerformEdit(kDateKind, window, actions);
    }
    if (RecordOf<Record>(window) != nullptr) {
        SetFocus(window);
    }
}

void PressText(HWND window, std::int32_t x, bool wholeField) {
    Record* record = RecordOf<Record>(window);
    if (!record->focused) {
        SetFocus(window);
        return;
    }
    const std::uint16_t index = IndexAt(kDateKind, *record, x);
    const edit::FieldMap map = FieldMapOf(record->entry.date);
    if (wholeField) {
        SelectField(record->entry.caret, map, FieldAt(map, index));
    } else {
        PutCaret(record->entry.caret, map, index);
    }
    Redraw(window);
    PlaceCaret(kDateKind, window, edit::Told::Yes);
}

} // namespace

void OnPress(HWND window, LPARAM lParam, bool wholeField) {
    if ((StyleOf(window) & edit::kStyleReadOnly) != 0) {
        SetCursor(LoadCursorA(nullptr, IDC_ARROW));
        return;
    }
    BeginPress(kDateKind, window);
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    const Point point = PointOf(lParam);
    if (Contains(RightPartOf(window, *record, kDateKind), point)) {
        PressButton(window);
    } else {
        PressText(window, point.x, wholeField);
    }
}

bool OnKeyDown(HWND window, WPARAM code) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return true;
    }
    const edit::Key key = edit::KeyNow(code);
    return FollowRoute(window, RouteKey(key, record->readOnly), [window, &key] {
        const bool allowed = IsOkToChange(kDateKind, window);
        Record* asked = RecordOf<Record>(window);
        return asked != nullptr &&
               PerformEdit(kDateKind, window, RunKey(asked->entry, key, allowed, Today()));
    });
}

} // namespace vorn::date
