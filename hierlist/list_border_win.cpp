#include "hierlist/list_border_win.h"

#include "core/color_win.h"
#include "core/frames_win.h"
#include "core/gdi_win.h"
#include "core/window_win.h"

namespace vorn::hierlist {
namespace {

bool HasFrame(const Record& record) {
    return record.options.border == kBorderRaised || record.options.border == kBorderSunken;
}

// The frame's rectangle in the window's own coordinates: around the client area and the bars.
Rect FrameOf(HWND window) {
    RECT outer{};
    GetWindowRect(window, &outer);
    RECT client{};
    GetClientRect(window, &client);
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&client), 2);
    const DWORD style = StyleOf(window);
    const int barWidth = (style & WS_VSCROLL) != 0 ? GetSystemMetrics(SM_CXVSCROLL) : 0;
    const int barHeight = (style & WS_HSCROLL) != 0 ? GetSystemMetrics(SM_CYHSCROLL) : 0;
    const Rect inner = {client.left - outer.left, client.top - outer.top,
                        client.right - outer.left + barWidth,
                        client.bottom - outer.top + barHeight};
    return Grown(inner, BorderWidth(kBorderSunken));
}

// The client size that a new border keeps. The outer size has room for scroll bars that may be
// hidden, and is a pixel short beside a line border: while it is still what the last border gave,
// the size that this one kept counts, or each call would change it further.
Size ClientToKeep(HWND window, const Record& record, Size bars) {
    RECT outer{};
    GetWindowRect(window, &outer);
    const Size now = {outer.right - outer.left, outer.bottom - outer.top};
    const Rect client = ClientRect(window);
    return now == OuterSize(record.keptClient, record.options, bars)
               ? record.keptClient
               : Size{client.right, client.bottom};
}

} // namespace

LRESULT OnCalcSize(HWND window, WPARAM wParam, LPARAM lParam) {
    const Record* record = RecordOf<Record>(window);
    if (record != nullptr && HasFrame(*record)) {
        // Both forms of the message begin with the window's rectangle.
        auto* rect = reinterpret_cast<RECT*>(lParam);
        const int width = BorderWidth(record->options.border);
        if (rect->right - rect->left >= 2 * width && rect->bottom - rect->top >= 2 * width) {
            InflateRect(rect, -width, -width);
        }
    }
    return DefWindowProcA(window, WM_NCCALCSIZE, wParam, lParam);
}

LRESULT OnPaintBorder(HWND window, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = DefWindowProcA(window, WM_NCPAINT, wParam, lParam);
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr || !HasFrame(*record)) {
        return result;
    }
    const HDC context = GetWindowDC(window);
    const ListColors& codes = record->options.colors;
    const FrameColors colors = {ResolveColor(codes.darkEdge), ResolveColor(codes.lightEdge),
                                ResolveColor(codes.face)};
    if (record->options.border == kBorderRaised) {
        DrawRaisedFrame(context, FrameOf(window), colors);
    } else {
        DrawSunkenFrame(context, FrameOf(window), colors);
    }
    ReleaseDC(window, context);
    return result;
}

void SetBorder(HWND window, std::uint32_t border) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    const Size bars = {GetSystemMetrics(SM_CXVSCROLL), GetSystemMetrics(SM_CYHSCROLL)};
    record->keptClient = ClientToKeep(window, *record, bars);
    const DWORD style = StyleWithBorder(StyleOf(window), border);
    record->options.border = BorderFromStyle(style);
    const Size size = OuterSize(record->keptClient, record->options, bars);
    SetWindowLongA(window, GWL_STYLE, static_cast<LONG>(style));
    SetWindowPos(window, nullptr, 0, 0, size.width, size.height,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

} // namespace vorn::hierlist
