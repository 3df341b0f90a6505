#include "numeric/numedit_input_win.h"

#include "core/edit/edit_caret_win.h"
#include "core/edit/route_keys_win.h"
#include "core/window_win.h"
#include "numeric/number_keys.h"
#include "numeric/number_typing.h"
#include "numeric/numedit_win.h"

namespace vorn::numeric {
namespace {

void StartTimer(HWND window, std::uint32_t timer) {
    const UINT interval = timer == kDelayTimer ? kDelay : KeyboardSetting(SPI_GETKEYBOARDSPEED);
    SetTimer(window, timer, interval, nullptr);
}

void TakeFocus(HWND window) {
    if (!RecordOf<Record>(window)->focused) {
        SetFocus(window);
    }
}

// The edit may have become read-only while the button is held.
void AskAndStep(HWND window) {
    const bool allowed = !RecordOf<Record>(window)->readOnly && IsOkToChange(kNumberKind, window);
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    if (!allowed) {
        MessageBeep(MB_ICONHAND);
        return;
    }
    const SpinButton pressed = record->spin.pressed;
    if (pressed != SpinButton::None) {
        PerformEdit(kNumberKind, window, StepByMouse(record->entry, pressed == SpinButton::Up));
    }
}

void RedrawButtons(HWND window) {
    const RECT buttons = ToPlatform(RightPartOf(window, *RecordOf<Record>(window), kNumberKind));
    Redraw(window, &buttons);
}

void Perform(HWND window, const SpinAction& action) {
    switch (action.kind) {
    case SpinActionKind::BeginPress:
        BeginPress(kNumberKind, window);
        break;
    case SpinActionKind::EndPress:
        EndPress(kNumberKind, window);
        break;
    case SpinActionKind::StartTimer:
        StartTimer(window, action.timer);
        break;
    case SpinActionKind::KillTimer:
        KillTimer(window, action.timer);
        break;
    case SpinActionKind::TakeFocus:
        TakeFocus(window);
        break;
    case SpinActionKind::Redraw:
        RedrawButtons(window);
        break;
    case SpinActionKind::AskAndStep:
        AskAndStep(window);
        break;
    case SpinActionKind::PassOn: // the message procedure's to do
        break;
    }
}

// Answers whether the message is to be passed on.
bool ReactOfSpin(HWND window, const SpinEvent& event) {
    Record* before = RecordOf<Record>(window);
    if (before == nullptr) {
        return true;
    }
    bool passOn = false;
    for (const SpinAction& action : Step(before->spin, event)) {
        const Record* record = RecordOf<Record>(window);
        if (record == nullptr) {
            break;
        }
        passOn = passOn || action.kind == SpinActionKind::PassOn;
        if (!IsStale(record->spin, action)) {
            Perform(window, action);
        }
    }
    return passOn;
}

void PressSpin(HWND window, SpinButton button) {
    if (RecordOf<Record>(window)->readOnly) {
        MessageBeep(MB_ICONHAND);
    } else {
        ReactOfSpin(window, {SpinEventKind::Press, button});
    }
}

// Puts the caret at a point of the text, extending the selection or not.
void PutCaretAt(HWND window, std::int32_t x, bool extend) {
    Record* record = RecordOf<Record>(window);
    const edit::TextCaret before = record->entry.caret;
    const std::int32_t index = IndexAt(kNumberKind, *record, x);
    const std::int32_t length = LengthOf(record->entry);
    if (extend) {
        ExtendTo(record->entry.caret, index, length);
    } else {
        Select(record->entry.caret, index, index, index, length);
    }
    if (HasSelection(before) || HasSelection(record->entry.caret)) {
        edit::RepaintText(kNumberKind, window);
    }
    PlaceCaret(kNumberKind, window, edit::Told::Yes);
}

void PressText(HWND window, std::int32_t x, bool extend) {
    TakeFocus(window);
    if (RecordOf<Record>(window) != nullptr) {
        BeginPress(kNumberKind, window);
    }
    if (RecordOf<Record>(window) != nullptr) {
        PutCaretAt(window, x, extend);
    }
}

} // namespace

void OnPress(HWND window, WPARAM keys, LPARAM lParam) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    const Point point = PointOf(lParam);
    const SpinButton button =
        record->rightPartShown ? SpinButtonAt(ClientRect(window), point) : SpinButton::None;
    if (button != SpinButton::None) {
        PressSpin(window, button);
    } else {
        PressText(window, point.x, (keys & MK_SHIFT) != 0);
    }
}

void OnDrag(HWND window, LPARAM lParam) {
    const Record* record = RecordOf<Record>(window);
    if (record != nullptr && record->captured && record->spin.pressed == SpinButton::None) {
        PutCaretAt(window, PointOf(lParam).x, true);
    }
}

void EndSpin(HWND window) {
    ReactOfSpin(window, {SpinEventKind::End});
}

bool OnTimer(HWND window, WPARAM timer) {
    return ReactOfSpin(window,
                       {SpinEventKind::Timer, SpinButton::None, static_cast<std::uint32_t>(timer)});
}

bool OnKeyDown(HWND window, WPARAM code) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return true;
    }
    const edit::Key key = edit::KeyNow(code);
    return FollowRoute(window, RouteNumberKey(key, record->readOnly), [window, &key] {
        const bool allowed = IsOkToChange(kNumberKind, window);
        Record* asked = RecordOf<Record>(window);
        return asked != nullptr &&
               PerformEdit(kNumberKind, window, RunKey(asked->entry, key, allowed));
    });
}

bool OnCharacter(HWND window, WPARAM character) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return true;
    }
    const edit::Key key = edit::KeyNow(character);
    return FollowRoute(window, RouteCharacter(key, record->readOnly), [window, character] {
        const bool allowed = IsOkToChange(kNumberKind, window);
        Record* asked = RecordOf<Record>(window);
        const bool overwrite = (GetKeyState(VK_INSERT) & 1) != 0;
        return asked != nullptr &&
               PerformEdit(
                   kNumberKind, window,
                   TypeCharacter(asked->entry, static_cast<char>(character), overwrite, allowed));
    });
}

} // namespace vorn::numeric
