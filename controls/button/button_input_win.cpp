#include "controls/button/button_input_win.h"

#include "controls/button/button_win.h"
#include "core/perform_win.h"
#include "core/window_win.h"

namespace vorn::button {
namespace {

void StartTimer(HWND window, std::uint32_t timer) {
    const UINT setting = timer == kDelayTimer ? SPI_GETKEYBOARDDELAY : SPI_GETKEYBOARDSPEED;
    SetTimer(window, timer, KeyboardSetting(setting), nullptr);
}

void SendStyle(HWND button, const Action& action) {
    SendMessageA(button, BM_SETSTYLE, action.value, MAKELPARAM(action.redraw, 0));
}

// `other` is the button that StyleOther means.
void Perform(HWND window, HWND other, const Action& action) {
    switch (action.kind) {
    case ActionKind::Notify:
        NotifyParent(window, static_cast<WORD>(action.value));
        break;
    case ActionKind::Capture:
        SetCapture(window);
        break;
    case ActionKind::ReleaseCapture:
        ReleaseCapture();
        break;
    case ActionKind::StartTimer:
        StartTimer(window, action.value);
        break;
    case ActionKind::KillTimer:
        KillTimer(window, action.value);
        break;
    case ActionKind::Redraw:
        Redraw(window);
        break;
    case ActionKind::StyleSelf:
        SendStyle(window, action);
        break;
    case ActionKind::StyleOther:
        SendStyle(other, action);
        break;
    case ActionKind::MarkEnabled:
        ChangeStyle(window, WS_DISABLED, 0);
        break;
    case ActionKind::MarkDisabled:
        ChangeStyle(window, 0, WS_DISABLED);
        break;
    case ActionKind::FocusNext:
        FocusTabItem(window, false);
        break;
    case ActionKind::FocusPrevious:
        FocusTabItem(window, true);
        break;
    case ActionKind::PassOn: // the message procedure's to do
        break;
    }
}

// Answers whether the message is still to be passed on.
bool React(HWND window, const Event& event, HWND other = nullptr) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return true;
    }
    bool passOn = false;
    PerformActions<Record>(window, Step(record->state, event), [&](const Action& action) {
        passOn = passOn || action.kind == ActionKind::PassOn;
        Perform(window, other, action);
    });
    return passOn;
}

// An event of the window as it is now.
Event EventNow(HWND window, EventKind kind) {
    return {kind, StyleOf(window), ClientRect(window)};
}

Point PointOf(LPARAM lParam) {
    return {static_cast<SHORT>(LOWORD(lParam)), static_cast<SHORT>(HIWORD(lParam))};
}

// Whether a window says that it is a button. Host code may run.
bool IsButton(HWND window) {
    return IsWindow(window) && (SendMessageA(window, WM_GETDLGCODE, 0, 0) & DLGC_BUTTON) != 0;
}

bool IsKeyDown(int key) {
    return GetKeyState(key) < 0;
}

} // namespace

void OnPress(HWND window, LPARAM lParam) {
    const DWORD style = StyleOf(window); // gaining the focus changes it
    SetFocus(window);
    React(window, {EventKind::Press, style, ClientRect(window), PointOf(lParam)});
}

void OnMove(HWND window, LPARAM lParam) {
    Event event = EventNow(window, EventKind::Move);
    event.point = PointOf(lParam);
    React(window, event);
}

void OnRelease(HWND window) {
    React(window, EventNow(window, EventKind::Release));
}

void OnCaptureChanged(HWND window, LPARAM lParam) {
    Event event = EventNow(window, EventKind::CaptureChanged);
    event.captureOwner = NewCaptureOwner(window, lParam);
    React(window, event);
}

void OnTimer(HWND window, WPARAM timer) {
    Event event = EventNow(window, EventKind::Timer);
    event.timer = static_cast<std::uint32_t>(timer);
    React(window, event);
}

void OnSetFocus(HWND window, HWND loser) {
    const bool fromButton = IsButton(loser);
    Event event = EventNow(window, EventKind::FocusGained);
    event.otherIsButton = fromButton;
    React(window, event, loser);
}

void OnKillFocus(HWND window, HWND gainer) {
    Event event = EventNow(window, EventKind::FocusLost);
    // The walk is through the tab order of this button's parent, also where it enters a container.
    HWND parent = GetParent(window);
    HWND heir = DefaultHeir(window, IsButton(gainer), IsButton,
                            [parent](HWND item) { return GetNextDlgTabItem(parent, item, TRUE); });
    event.handsOver = heir != window;
    React(window, event, heir);
}

void OnEnable(HWND window, bool enabled) {
    Event event = EventNow(window, EventKind::Enable);
    event.on = enabled;
    React(window, event);
}

void SetDown(HWND window, bool down) {
    Event event = EventNow(window, EventKind::SetState);
    event.on = down;
    React(window, event);
}

void StopRepeat(HWND window) {
    React(window, EventNow(window, EventKind::StopRepeat));
}

bool OnKeyDown(HWND window, WPARAM key) {
    Event event = EventNow(window, EventKind::KeyDown);
    event.key = static_cast<std::uint32_t>(key);
    event.control = IsKeyDown(VK_CONTROL);
    event.alt = IsKeyDown(VK_MENU);
    event.shift = IsKeyDown(VK_SHIFT);
    return React(window, event);
}

bool OnKeyUp(HWND window, WPARAM key) {
    Event event = EventNow(window, EventKind::KeyUp);
    event.key = static_cast<std::uint32_t>(key);
    return React(window, event);
}

} // namespace vorn::button
