// The percent bar's window procedure and its exported functions.
#include "controls/percentbar/percentbar_win.h"

#include "core/gdi_win.h"
#include "core/window_win.h"

#include <vorn32/percentbar.h>

namespace vorn::percentbar {
namespace {

LRESULT OnCreate(HWND window, WPARAM wParam, LPARAM lParam) {
    if (DefWindowProcA(window, WM_NCCREATE, wParam, lParam) == 0) {
        return 0;
    }
    Record* record = AttachRecord<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    record->state = StateFromStyle(StyleOf(window));
    record->scaleFont = OrSystemFont(nullptr);
    record->percentFont = OrSystemFont(nullptr);
    return 1;
}

LRESULT OnSetFont(HWND window, HFONT font, bool redraw) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        record->scaleFont = OrSystemFont(font);
        if (redraw) {
            Redraw(window);
        }
    }
    return 0;
}

LRESULT OnGetFont(HWND window) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr || record->scaleFont == OrSystemFont(nullptr)) {
        return 0;
    }
    return reinterpret_cast<LRESULT>(record->scaleFont);
}

// Changes a flag of the record and the style bit that stands for it.
BOOL EnableFlag(HWND window, std::int32_t State::*flag, BOOL enable, DWORD styleBit) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    record->state.*flag = enable;
    ChangeStyle(window, styleBit, enable != 0 ? styleBit : 0);
    return Redraw(window);
}

// The message's 32-bit argument.
LONG Value(LPARAM lParam) {
    return static_cast<LONG>(lParam);
}

LRESULT OnColorMessage(HWND window, int slot, LPARAM lParam) {
    pbSetColor(window, slot, static_cast<COLORREF>(lParam));
    return 0;
}

} // namespace
} // namespace vorn::percentbar

using namespace vorn;
using namespace vorn::percentbar;

extern "C" LRESULT CALLBACK VORNPctBarWinFn(HWND window, UINT message, WPARAM wParam,
                                            LPARAM lParam) {
    switch (message) {
    case WM_NCCREATE:
        return OnCreate(window, wParam, lParam);
    case WM_NCDESTROY:
        DetachRecord<Record>(window);
        return DefWindowProcA(window, message, wParam, lParam);
    case WM_NCCALCSIZE:
    case WM_NCPAINT:
        return 0;
    case WM_ERASEBKGND:
        return 1;
    case WM_PAINT:
        return PaintWindow<Record>(window, Draw);
    case WM_SETFONT:
        return OnSetFont(window, reinterpret_cast<HFONT>(wParam), lParam != 0);
    case WM_GETFONT:
        return OnGetFont(window);
    case VPBM_SETLIMIT:
        pbSetLimit(window, Value(lParam));
        return 0;
    case VPBM_SETPROGRESS:
        pbSetProgress(window, Value(lParam));
        return 0;
    case VPBM_SETBARCOLOR:
        return OnColorMessage(window, VORN_COLOR_FACE, lParam);
    case VPBM_SETBACKGROUNDCOLOR:
        return OnColorMessage(window, VORN_COLOR_BACKGROUND, lParam);
    case VPBM_SETFILLCOLOR:
        return OnColorMessage(window, VORN_COLOR_FILL, lParam);
    case VPBM_SETTEXTCOLOR:
        return OnColorMessage(window, VORN_COLOR_TEXT, lParam);
    case VPBM_SETPERCENTFONT:
        pbSetPercentFont(window, reinterpret_cast<HFONT>(wParam));
        return 0;
    case VPBM_GETPROGRESS:
        return pbGetProgress(window);
    case VPBM_GETLIMIT:
        return pbGetLimit(window);
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}

extern "C" BOOL WINAPI pbSetLimit(HWND window, LONG limit) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    SetLimit(record->state, limit);
    return Redraw(window);
}

extern "C" LONG WINAPI pbGetLimit(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? 0 : record->state.limit;
}

extern "C" BOOL WINAPI pbSetProgress(HWND window, LONG progress) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    SetProgress(record->state, progress);
    const RECT bar = ToPlatform(MeasureBar(window, *record));
    return Redraw(window, &bar);
}

extern "C" LONG WINAPI pbGetProgress(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? 0 : record->state.progress;
}

extern "C" BOOL WINAPI pbSetColor(HWND window, int slot, COLORREF colorCode) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    SetColorSlot(record->state.colors, kColorSlots, slot, colorCode);
    return Redraw(window);
}

extern "C" BOOL WINAPI pbSetBorderStyle(HWND window, DWORD borderStyle) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    record->state.borderStyle = borderStyle;
    ChangeStyle(window, kStyleBorders, StyleBitsOfBorder(borderStyle));
    return Redraw(window);
}

extern "C" BOOL WINAPI pbEnableText(HWND window, BOOL enable) {
    return EnableFlag(window, &State::scaleText, enable, kStyleScaleText);
}

extern "C" BOOL WINAPI pbEnableTickMarks(HWND window, BOOL enable) {
    return EnableFlag(window, &State::tickMarks, enable, kStyleTickMarks);
}

extern "C" BOOL WINAPI pbEnablePercent(HWND window, BOOL enable) {
    return EnableFlag(window, &State::percent, enable, kStylePercent);
}

extern "C" BOOL WINAPI pbSetPercentFont(HWND window, HFONT font) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    record->percentFont = OrSystemFont(font);
    return Redraw(window);
}
