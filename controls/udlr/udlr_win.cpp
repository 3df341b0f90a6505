// The spin pad's window procedure.
#include "controls/udlr/udlr_win.h"

#include "core/gdi_win.h"
#include "core/perform_win.h"
#include "core/window_win.h"

#include <vorn32/library.h>

namespace vorn::udlr {
namespace {

static_assert(kStyleBorder == WS_BORDER);

void SetSize(HWND window, Size size) {
    SetWindowPos(window, nullptr, 0, 0, size.width, size.height, SWP_NOMOVE | SWP_NOZORDER);
}

LRESULT OnCreate(HWND window) {
    Record* record = AttachRecord<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    for (std::uint32_t picture = 0; picture < kPictures; ++picture) {
        record->pictures[picture] = LoadPicture(static_cast<WORD>(kFirstPicture + picture));
    }
    SetSize(window, {kPictureSide, kPictureSide});
    return 1;
}

void OnDestroy(HWND window) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    for (HBITMAP picture : record->pictures) {
        DeleteObject(picture);
    }
    DetachRecord<Record>(window);
}

// Whatever size the window was given, it gets its own.
void OnSize(HWND window) {
    RECT now{};
    GetWindowRect(window, &now);
    const Size border = {GetSystemMetrics(SM_CXBORDER), GetSystemMetrics(SM_CYBORDER)};
    const Size required = RequiredSize(StyleOf(window), border);
    const Rect rect = FromPlatform(now);
    if (Size{Width(rect), Height(rect)} != required) {
        SetSize(window, required);
    }
}

void StartTimer(HWND window, std::uint32_t timer) {
    const UINT interval = timer == kDelayTimer ? kDelay : KeyboardSetting(SPI_GETKEYBOARDSPEED);
    SetTimer(window, timer, interval, nullptr);
}

void Repaint(HWND window, BOOL erase) {
    InvalidateRect(window, nullptr, erase);
    UpdateWindow(window);
}

void Perform(HWND window, const Action& action) {
    switch (action.kind) {
    case ActionKind::Notify:
        NotifyParent(window, action.code);
        break;
    case ActionKind::Capture:
        SetCapture(window);
        break;
    case ActionKind::ReleaseCapture:
        ReleaseCapture();
        break;
    case ActionKind::StartTimer:
        StartTimer(window, action.timer);
        break;
    case ActionKind::KillTimer:
        KillTimer(window, action.timer);
        break;
    case ActionKind::Repaint:
        Repaint(window, FALSE);
        break;
    case ActionKind::RepaintErased:
        Repaint(window, TRUE);
        break;
    }
}

LRESULT React(HWND window, const Event& event) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        PerformActions<Record>(window, Step(record->state, event),
                               [window](const Action& action) { Perform(window, action); });
    }
    return 0;
}

LRESULT OnMouse(HWND window, EventKind kind, LPARAM lParam) {
    return React(window, {kind, LOWORD(lParam), HIWORD(lParam)});
}

// Whether the button that the user has as the first one is down this moment.
bool IsButtonHeld() {
    const int button = GetSystemMetrics(SM_SWAPBUTTON) != 0 ? VK_RBUTTON : VK_LBUTTON;
    return GetAsyncKeyState(button) < 0;
}

LRESULT OnTimer(HWND window) {
    Event event{EventKind::Timer};
    event.buttonHeld = IsButtonHeld();
    return React(window, event);
}

LRESULT OnCaptureChanged(HWND window, LPARAM lParam) {
    Event event{EventKind::CaptureChanged};
    event.buttonHeld = IsButtonHeld();
    event.captureOwner = NewCaptureOwner(window, lParam);
    return React(window, event);
}

LRESULT OnEnable(HWND window, bool enabled) {
    Event event{EventKind::Enable};
    event.enabled = enabled;
    return React(window, event);
}

void Draw(HWND window, HDC context) {
    const Record* record = RecordOf<Record>(window);
    HBITMAP picture =
        record == nullptr ? nullptr : record->pictures[PictureOf(record->state.direction)];
    HDC memory = picture == nullptr ? nullptr : CreateCompatibleDC(context);
    if (memory == nullptr) {
        return;
    }
    HGDIOBJ previous = SelectObject(memory, picture);
    BitBlt(context, 0, 0, kPictureSide, kPictureSide, memory, 0, 0, SRCCOPY);
    SelectObject(memory, previous);
    DeleteDC(memory);
}

// A host may hand a device context of its own over in wParam.
LRESULT OnPaint(HWND window, WPARAM wParam) {
    const auto given = reinterpret_cast<HDC>(wParam);
    if (given != nullptr) {
        Draw(window, given);
        return 0;
    }
    PAINTSTRUCT paint;
    HDC context = BeginPaint(window, &paint);
    Draw(window, context);
    EndPaint(window, &paint);
    return 0;
}

} // namespace
} // namespace vorn::udlr

using namespace vorn::udlr;

extern "C" LRESULT CALLBACK VORNUDLRWinFn(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_NCCREATE:
        return OnCreate(window);
    case WM_NCDESTROY:
        OnDestroy(window);
        return DefWindowProcA(window, message, wParam, lParam);
    case WM_SIZE:
        OnSize(window);
        return DefWindowProcA(window, message, wParam, lParam);
    case WM_ENABLE:
        return OnEnable(window, wParam != 0);
    case WM_ERASEBKGND:
        return 0;
    case WM_PAINT:
        return OnPaint(window, wParam);
    case WM_LBUTTONDOWN:
        return OnMouse(window, EventKind::ButtonDown, lParam);
    case WM_MOUSEMOVE:
        return OnMouse(window, EventKind::Move, lParam);
    case WM_LBUTTONUP:
        return React(window, {EventKind::ButtonUp});
    case WM_CAPTURECHANGED:
        return OnCaptureChanged(window, lParam);
    case WM_TIMER:
        return OnTimer(window);
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}
