#include "date/dateedit_input_win.h"

#include "core/edit/edit_caret_win.h"
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

bool IsKeyDown(int key) {
    return GetKeyState(key) < 0;
}

bool RunAllowedKey(HWND window, const edit::Key& key) {
    const bool allowed = IsOkToChange(kDateKind, window);
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return false;
    }
    return PerformEdit(kDateKind, window, RunKey(record->entry, key, allowed, Today()));
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
    const edit::Key key = {static_cast<std::uint32_t>(code), IsKeyDown(VK_CONTROL),
                           IsKeyDown(VK_MENU), IsKeyDown(VK_SHIFT)};
    switch (RouteKey(key, record->readOnly)) {
    case edit::KeyRoute::PassOn:
        return true;
    case edit::KeyRoute::FocusNext:
        FocusTabItem(window, false);
        return false;
    case edit::KeyRoute::FocusPrevious:
        FocusTabItem(window, true);
        return false;
    case edit::KeyRoute::Refuse:
        MessageBeep(MB_ICONHAND);
        return false;
    case edit::KeyRoute::Ask:
        return RunAllowedKey(window, key);
    }
    return true;
}

} // namespace vorn::date
