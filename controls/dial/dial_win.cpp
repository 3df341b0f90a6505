// The dial's window procedure and its exported functions.
#include "controls/dial/dial_win.h"

#include "controls/dial/dial_input.h"
#include "core/perform_win.h"
#include "core/window_win.h"

#include <vorn32/dial.h>

namespace vorn::dial {
namespace {

constexpr LRESULT kDialogCode =
    DLGC_WANTARROWS | DLGC_HASSETSEL | DLGC_WANTCHARS | DLGC_STATIC; // 0x189

// ---- Doing what the steps answer ----

void SendScroll(HWND window, const Action& action) {
    const bool toParent = GetWindowWord(window, VORN_DIAL_RECEIVER) == 0;
    SendMessageA(toParent ? GetParent(window) : window, WM_VSCROLL,
                 MAKEWPARAM(action.code, action.position), reinterpret_cast<LPARAM>(window));
}

void MakeFace(HWND window) {
    RebuildFace(*RecordOf<Record>(window), Width(LayOut(ClientSize(window)).knob));
}

// Anything may happen to the dial in here.
void Perform(HWND window, const Action& action) {
    switch (action.kind) {
    case ActionKind::Capture:
        SetCapture(window);
        break;
    case ActionKind::ReleaseCapture:
        ReleaseCapture();
        break;
    case ActionKind::Scroll:
        SendScroll(window, action);
        break;
    case ActionKind::StartTimer:
        SetTimer(window, action.timer, action.milliseconds, nullptr);
        break;
    case ActionKind::StopTimer:
        KillTimer(window, action.timer);
        break;
    case ActionKind::Redraw:
        Redraw(window);
        break;
    case ActionKind::TakeFocus:
        SetFocus(window);
        break;
    case ActionKind::FocusNext:
        FocusTabItem(window, false);
        break;
    case ActionKind::FocusPrevious:
        FocusTabItem(window, true);
        break;
    case ActionKind::MakeSmallest:
        SetWindowPos(window, nullptr, 0, 0, kSmallestWindow.width, kSmallestWindow.height,
                     SWP_NOMOVE | SWP_NOZORDER);
        break;
    case ActionKind::RebuildFace:
        MakeFace(window);
        break;
    }
}

// `step` takes the dial's state and answers the actions. All messages that go here result in 0.
template <class Step>
LRESULT Take(HWND window, Step step) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        PerformActions<Record>(window, step(record->state),
                               [window](const Action& action) { Perform(window, action); });
    }
    return 0;
}

// ---- Messages ----

LRESULT OnCreate(HWND window, WPARAM wParam, LPARAM lParam) {
    if (DefWindowProcA(window, WM_NCCREATE, wParam, lParam) == 0) {
        return 0;
    }
    Record* record = AttachRecord<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    if (!MakePalette(*record)) {
        DetachRecord<Record>(window);
        return 0;
    }
    SetWindowWord(window, VORN_DIAL_RECEIVER, 0);
    return 1;
}

void OnDestroy(HWND window) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        FreeFace(*record);
        DetachRecord<Record>(window);
    }
}

LRESULT OnSize(HWND window, WPARAM wParam) {
    // The icon of a minimized window is as small as it is.
    if (wParam == SIZE_MINIMIZED) {
        return 0;
    }
    RECT rect{};
    GetWindowRect(window, &rect);
    const Size size = {rect.right - rect.left, rect.bottom - rect.top};
    return Take(window, [&](State&) { return Resized(size); });
}

LRESULT OnSystemColors(HWND window) {
    if (RecordOf<Record>(window) != nullptr) {
        MakeFace(window);
        Redraw(window);
    }
    return 0;
}

Point PointOf(LPARAM lParam) {
    return {static_cast<std::int16_t>(LOWORD(lParam)), static_cast<std::int16_t>(HIWORD(lParam))};
}

LRESULT OnPress(HWND window, LPARAM lParam) {
    const bool tabStop = (GetWindowLongA(window, GWL_STYLE) & WS_TABSTOP) != 0;
    return Take(window, [&](State& state) {
        return Press(state, ClientSize(window), PointOf(lParam), tabStop);
    });
}

LRESULT OnCaptureChanged(HWND window, LPARAM lParam) {
    const CaptureOwner owner = NewCaptureOwner(window, lParam);
    return Take(window, [&](State& state) { return CaptureChanged(state, owner); });
}

LRESULT OnTimer(HWND window, WPARAM timer) {
    DWORD keyboardSpeed = 0;
    SystemParametersInfoA(SPI_GETKEYBOARDSPEED, 0, &keyboardSpeed, 0);
    return Take(window, [&](State& state) {
        return TimerTick(state, static_cast<std::uint32_t>(timer), keyboardSpeed);
    });
}

bool IsDown(int key) {
    return GetKeyState(key) < 0;
}

LRESULT OnKey(HWND window, WPARAM key) {
    const Modifiers modifiers = {
        .shift = IsDown(VK_SHIFT), .control = IsDown(VK_CONTROL), .alt = IsDown(VK_MENU)};
    return Take(window, [&](State& state) {
        return KeyDown(state, static_cast<std::uint32_t>(key), modifiers);
    });
}

// ---- Exported functions ----

template <class Change>
BOOL Set(HWND window, BOOL redraw, Change change) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    change(record->state);
    if (redraw != 0) {
        Redraw(window);
    }
    return 1;
}

LONG Get(HWND window, std::int32_t State::*field) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? 0 : record->state.*field;
}

BOOL GetPair(HWND window, std::int32_t State::*first, std::int32_t State::*second, LONG* toFirst,
             LONG* toSecond) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    if (toFirst != nullptr) {
        *toFirst = record->state.*first;
    }
    if (toSecond != nullptr) {
        *toSecond = record->state.*second;
    }
    return 1;
}

} // namespace
} // namespace vorn::dial

using namespace vorn;
using namespace vorn::dial;

extern "C" LRESULT CALLBACK VORNDialWinFn(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_NCCREATE:
        return OnCreate(window, wParam, lParam);
    case WM_NCDESTROY:
        OnDestroy(window);
        return DefWindowProcA(window, message, wParam, lParam);
    case WM_SIZE:
        return OnSize(window, wParam);
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        return Take(window, [](State&) { return FocusChanged(); });
    case WM_ENABLE:
        return Take(window, [&](State& state) { return Enable(state, static_cast<UINT>(wParam)); });
    case WM_SYSCOLORCHANGE:
        return OnSystemColors(window);
    case WM_PAINT:
        return PaintWindow<Record>(window, Draw);
    case WM_GETDLGCODE:
        return kDialogCode;
    case WM_KEYDOWN:
        return OnKey(window, wParam);
    case WM_CHAR:
        return Take(window, [&](State& state) {
            return CharacterTyped(state, static_cast<std::uint32_t>(wParam));
        });
    case WM_TIMER:
        return OnTimer(window, wParam);
    case WM_MOUSEMOVE:
        return Take(window,
                    [&](State& state) { return Move(state, ClientSize(window), PointOf(lParam)); });
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        return OnPress(window, lParam);
    case WM_LBUTTONUP:
        return Take(window, [&](State& state) {
            return Release(state, ClientSize(window), PointOf(lParam));
        });
    case WM_CAPTURECHANGED:
        return OnCaptureChanged(window, lParam);
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}

extern "C" LONG WINAPI SetDialPos(HWND window, LONG position, BOOL redraw) {
    LONG previous = 0;
    Set(window, redraw, [&](State& state) { previous = SetPosition(state, position); });
    return previous;
}

extern "C" LONG WINAPI GetDialPos(HWND window) {
    return Get(window, &State::position);
}

extern "C" BOOL WINAPI SetDialRange(HWND window, LONG minimum, LONG maximum, BOOL redraw) {
    return Set(window, redraw, [&](State& state) {
        state.minimum = minimum;
        state.maximum = maximum;
    });
}

extern "C" BOOL WINAPI GetDialRange(HWND window, LONG* minimum, LONG* maximum) {
    return GetPair(window, &State::minimum, &State::maximum, minimum, maximum);
}

extern "C" BOOL WINAPI SetDialTurnRange(HWND window, LONG start, LONG end, BOOL redraw) {
    return Set(window, redraw, [&](State& state) {
        state.turnStart = start;
        state.turnEnd = end;
    });
}

extern "C" BOOL WINAPI GetDialTurnRange(HWND window, LONG* start, LONG* end) {
    return GetPair(window, &State::turnStart, &State::turnEnd, start, end);
}

extern "C" LONG WINAPI SetDialDirection(HWND window, LONG direction) {
    LONG previous = 0;
    Set(window, TRUE, [&](State& state) { previous = SetDirection(state, direction); });
    return previous;
}

extern "C" LONG WINAPI GetDialDirection(HWND window) {
    return Get(window, &State::direction);
}
