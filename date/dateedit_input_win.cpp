#include "date/dateedit_input_win.h"

#include "core/edit/edit_caret_win.h"
#include "core/edit/field_edit_win.h"
#include "core/window_win.h"
#include "date/date_keys.h"
#include "date/dateedit_win.h"
#include "date/popup_win.h"
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
    return OpenPopup(window) != kPopupCancelled;
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

edit::Actions RunKeyOf(edit::EditBody& body, const edit::Key& key, bool allowed) {
    return RunKey(edit::RecordIn<Record>(body).entry, key, allowed, Today());
}

edit::FieldMap MapOf(const edit::EditBody& body) {
    return FieldMapOf(edit::RecordIn<Record>(body).entry.date);
}

constinit const edit::FieldEdit kDateFields = {kDateKind, RunKeyOf, MapOf};

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
        PressFieldText(kDateFields, window, point, wholeField);
    }
}

LRESULT OnKeyDown(const edit::EditMessage& message) {
    return PressFieldKey(kDateFields, message);
}

} // namespace vorn::date
