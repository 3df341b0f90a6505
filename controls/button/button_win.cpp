// The picture button's window procedure and its exported functions.
#include "controls/button/button_win.h"

#include "controls/button/button_input_win.h"
#include "core/color_win.h"
#include "core/gdi_win.h"
#include "core/window_win.h"

#include <vorn32/button.h>

namespace vorn::button {
namespace {

constexpr UINT kNothing = WM_USER + 3; // accepted, does nothing

LRESULT OnCreate(HWND window, WPARAM wParam, LPARAM lParam) {
    if (DefWindowProcA(window, WM_NCCREATE, wParam, lParam) == 0) {
        return 0;
    }
    Record* record = AttachRecord<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    const DWORD style = StyleOf(window);
    record->state = StateFromStyle(style);
    // A template may name an ordinal in place of a text.
    const auto* create = reinterpret_cast<const CREATESTRUCTA*>(lParam);
    const char* text =
        create == nullptr || IS_INTRESOURCE(create->lpszName) ? nullptr : create->lpszName;
    SetCaption(record->state, text);
    record->strip = LoadPicture(StripOfStyle(style));
    record->hostAppPicture = HasHostAppPicture(style) ? LoadPicture(kHostAppPicture) : nullptr;
    record->font = OrSystemFont(nullptr);
    return 1;
}

void OnDestroy(HWND window) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    DeleteObject(record->strip);
    DeleteObject(record->hostAppPicture);
    DetachRecord<Record>(window);
}

LRESULT OnSetText(HWND window, const char* text) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return FALSE;
    }
    SetCaption(record->state, text);
    Redraw(window);
    return TRUE;
}

LRESULT OnGetText(HWND window, WPARAM size, char* buffer) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? 0 : static_cast<LRESULT>(GetCaption(record->state, buffer, size));
}

LRESULT OnGetTextLength(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? 0 : static_cast<LRESULT>(CaptionLength(record->state));
}

LRESULT OnSetFont(HWND window, HFONT font, bool redraw) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        record->font = OrSystemFont(font);
        if (redraw) {
            Redraw(window);
        }
    }
    return 0;
}

LRESULT OnGetFont(HWND window) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr || record->font == OrSystemFont(nullptr)) {
        return 0;
    }
    return reinterpret_cast<LRESULT>(record->font);
}

LRESULT OnEraseBackground(HWND window, HDC context) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    FillWithColor(context, ClientRect(window), ResolveColor(record->state.colors.face));
    return 1;
}

BOOL ChangeKind(HWND window, std::uint32_t (*change)(std::uint32_t style, bool enable),
                BOOL enable) {
    if (RecordOf<Record>(window) == nullptr) {
        return 0;
    }
    const std::uint32_t style = change(StyleOf(window), enable != 0);
    SetWindowLongA(window, GWL_STYLE, static_cast<LONG>(style));
    return Redraw(window);
}

// The messages that go with the exported functions, and all that the button leaves alone.
LRESULT OnOwnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case BM_GETSTATE:
    case VBTM_GETSTATE:
        return static_cast<LRESULT>(btnGetState(window));
    case BM_SETSTATE:
        btnSetState(window, wParam != 0);
        return 0;
    case BM_SETSTYLE:
    case VBTM_SETSTYLE:
        btnSetStyle(window, static_cast<DWORD>(wParam), LOWORD(lParam));
        return 0;
    case VBTM_SETBITMAP:
        btnSetBitmap(window, reinterpret_cast<HBITMAP>(wParam));
        return 0;
    case VBTM_STOPREPEAT:
        btnStopRepeat(window);
        return 0;
    case VBTM_SETPICTURE:
        btnSetPicture(window, static_cast<UINT>(wParam));
        return 0;
    case VBTM_GETBITMAP:
        return reinterpret_cast<LRESULT>(btnGetBitmap(window));
    case VBTM_SETCOLORCODE:
        btnSetColorCode(window, static_cast<COLORREF>(lParam));
        return 0;
    case kNothing:
        return 0;
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}

LRESULT OnInput(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        OnPress(window, lParam);
        return 0;
    case WM_MOUSEMOVE:
        OnMove(window, lParam);
        return 0;
    case WM_LBUTTONUP:
        OnRelease(window);
        return 0;
    case WM_CAPTURECHANGED:
        OnCaptureChanged(window, lParam);
        return 0;
    case WM_TIMER:
        OnTimer(window, wParam);
        return 0;
    case WM_KEYDOWN:
        return OnKeyDown(window, wParam) ? DefWindowProcA(window, message, wParam, lParam) : 0;
    case WM_KEYUP:
        return OnKeyUp(window, wParam) ? DefWindowProcA(window, message, wParam, lParam) : 0;
    case WM_SETFOCUS:
        OnSetFocus(window, reinterpret_cast<HWND>(wParam));
        return 0;
    case WM_KILLFOCUS:
        OnKillFocus(window, reinterpret_cast<HWND>(wParam));
        return 0;
    case WM_ENABLE:
        OnEnable(window, wParam != 0);
        return 0;
    default:
        return OnOwnMessage(window, message, wParam, lParam);
    }
}

} // namespace
} // namespace vorn::button

using namespace vorn;
using namespace vorn::button;

extern "C" LRESULT CALLBACK VORNButtonWinFn(HWND window, UINT message, WPARAM wParam,
                                            LPARAM lParam) {
    switch (message) {
    case WM_NCCREATE:
        return OnCreate(window, wParam, lParam);
    case WM_CREATE:
        return 0;
    case WM_NCDESTROY:
        OnDestroy(window);
        return DefWindowProcA(window, message, wParam, lParam);
    case WM_NCCALCSIZE:
    case WM_NCPAINT:
        return 0;
    case WM_ERASEBKGND:
        return OnEraseBackground(window, reinterpret_cast<HDC>(wParam));
    case WM_PAINT:
        return PaintWindow<Record>(window, Draw);
    case WM_SETTEXT:
        return OnSetText(window, reinterpret_cast<const char*>(lParam));
    case WM_GETTEXT:
        return OnGetText(window, wParam, reinterpret_cast<char*>(lParam));
    case WM_GETTEXTLENGTH:
        return OnGetTextLength(window);
    case WM_SETFONT:
        return OnSetFont(window, reinterpret_cast<HFONT>(wParam), lParam != 0);
    case WM_GETFONT:
        return OnGetFont(window);
    case WM_GETDLGCODE:
        return static_cast<LRESULT>(DialogCode(StyleOf(window)));
    default:
        return OnInput(window, message, wParam, lParam);
    }
}

extern "C" DWORD WINAPI btnGetState(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? 0 : ReportedState(record->state);
}

extern "C" void WINAPI btnSetState(HWND window, BOOL down) {
    SetDown(window, down != 0);
}

extern "C" LONG WINAPI btnSetStyle(HWND window, DWORD styleBits, BOOL redraw) {
    if (RecordOf<Record>(window) == nullptr) {
        return 0;
    }
    const std::uint32_t style = StyleWithBits(StyleOf(window), styleBits);
    const LONG before = SetWindowLongA(window, GWL_STYLE, static_cast<LONG>(style));
    return redraw != 0 ? Redraw(window) : before;
}

extern "C" BOOL WINAPI btnSetPicture(HWND window, UINT index) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    record->state.pictureIndex = index;
    return Redraw(window);
}

extern "C" BOOL WINAPI btnSetBitmap(HWND window, HBITMAP bitmap) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    record->userBitmap = bitmap;
    return Redraw(window);
}

extern "C" HBITMAP WINAPI btnGetBitmap(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? nullptr : record->userBitmap;
}

extern "C" void WINAPI btnStopRepeat(HWND window) {
    StopRepeat(window);
}

extern "C" BOOL WINAPI btnSetColorCode(HWND window, COLORREF colorCode) {
    return btnSetColor(window, VORN_COLOR_SWATCH, colorCode);
}

extern "C" BOOL WINAPI btnSetColor(HWND window, int slot, COLORREF colorCode) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    SetColorSlot(record->state.colors, kColorSlots, slot, colorCode);
    return Redraw(window);
}

extern "C" BOOL WINAPI btnEnablePicture(HWND window, BOOL enable) {
    return ChangeKind(window, StyleWithPicture, enable);
}

extern "C" BOOL WINAPI btnEnableColorCode(HWND window, BOOL enable) {
    return ChangeKind(window, StyleWithSwatch, enable);
}
