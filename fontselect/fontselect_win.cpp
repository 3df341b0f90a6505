// The font selector's window procedure.
#include "fontselect/fontselect_win.h"

#include "core/color_win.h"
#include "core/window_win.h"

#include <vorn32/fontselect.h>

namespace vorn::fontselect {
namespace {

void Place(HWND list, const Rect& place) {
    MoveWindow(list, place.left, place.top, Width(place), Height(place), TRUE);
}

LRESULT OnSize(HWND window, int width, int height) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    const ListPlaces places = PlaceLists(width, MetricsOf(record->font));
    HWND families = ListOf(window, kFamilyList);
    HWND sizes = ListOf(window, kSizeList);
    AskList(families, CB_SHOWDROPDOWN, FALSE);
    AskList(sizes, CB_SHOWDROPDOWN, FALSE);
    MoveWindow(DialogOf(window), 0, 0, width, height, TRUE);
    Place(families, places.families);
    Place(sizes, places.sizes);
    return 0;
}

LRESULT OnPaint(HWND window) {
    PAINTSTRUCT paint;
    BeginPaint(window, &paint);
    EndPaint(window, &paint);
    HWND dialog = DialogOf(window);
    if (dialog != nullptr) {
        Redraw(dialog);
    }
    return 0;
}

// The lists make their own heights of the font; ours come after.
void GiveFont(HWND list, HFONT font) {
    AskList(list, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
}

void GiveHeights(HWND list, const ItemHeights& heights) {
    AskList(list, CB_SETITEMHEIGHT, 0, heights.item);
    AskList(list, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), heights.selection);
}

LRESULT OnSetFont(HWND window, HFONT given, bool redraw) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    HFONT font = OrSystemFont(given);
    record->font = font;
    HWND families = ListOf(window, kFamilyList);
    HWND sizes = ListOf(window, kSizeList);
    GiveFont(families, font);
    GiveFont(sizes, font);
    const ItemHeights heights = HeightsOfItems(MetricsOf(font));
    GiveHeights(families, heights);
    GiveHeights(sizes, heights);
    InvalidateRect(window, nullptr, TRUE);
    if (redraw) {
        UpdateWindow(window);
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

// The lists are what the user sees of it.
LRESULT OnEnable(HWND window, bool enabled) {
    EnableLists(window, enabled);
    return 0;
}

// A host that gives the control the focus means what the user can work with.
LRESULT OnSetFocus(HWND window) {
    HWND families = ListOf(window, kFamilyList);
    if (families != nullptr) {
        SetFocus(families);
    }
    return 0;
}

// A click on the background. Only a host application wants to know of it.
LRESULT OnButtonDown(HWND window, WPARAM wParam, LPARAM lParam) {
    if (!ParentIsHostApp(window)) {
        return DefWindowProcA(window, WM_LBUTTONDOWN, wParam, lParam);
    }
    SendMessageA(GetParent(window), WM_LBUTTONDOWN, wParam, lParam);
    return 0;
}

// Posted, so that the list has done with its own work when the host hears of it.
void TellParent(HWND window, const State& state, std::int32_t list) {
    HWND parent = GetParent(window);
    if (parent == nullptr) {
        return; // a message posted to no window goes to the thread
    }
    const ParentCommand command =
        CommandOfChange(state, list, static_cast<WORD>(GetDlgCtrlID(window)));
    PostMessageA(parent, WM_COMMAND, MAKEWPARAM(command.identifier, command.code),
                 reinterpret_cast<LPARAM>(window));
}

LRESULT OnListNotification(HWND window, std::int32_t list, std::int32_t code) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    switch (ReactionTo(code)) {
    case Reaction::NotifyParent:
        TellParent(window, record->state, list);
        break;
    case Reaction::SelectAgain: {
        HWND listWindow = ListOf(window, list);
        AskList(listWindow, CB_SETCURSEL, static_cast<WPARAM>(AskList(listWindow, CB_GETCURSEL)));
        break;
    }
    case Reaction::None:
        break;
    }
    return 0;
}

LRESULT OnCommand(HWND window, WPARAM wParam, LPARAM lParam) {
    const std::int32_t list = LOWORD(wParam);
    if (list != kFamilyList && list != kSizeList) {
        return DefWindowProcA(window, WM_COMMAND, wParam, lParam);
    }
    return OnListNotification(window, list, HIWORD(wParam));
}

LRESULT BackgroundColor(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return static_cast<LRESULT>(
        ResolveColor(record == nullptr ? kWindowColor : record->state.colors.background));
}

LRESULT OnColorMessage(HWND window, int slot, LPARAM lParam) {
    return fsSetColor(window, slot, static_cast<COLORREF>(lParam));
}

// The messages that are the functions' twins.
LRESULT OnPrivateMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
    case VFSM_GETBACKGROUNDCOLOR:
        return BackgroundColor(window);
    case VFSM_SETFONTFAMILY:
        return fsSetFontFamily(window, reinterpret_cast<LPCSTR>(lParam));
    case VFSM_SETFONTSIZE:
        return fsSetFontSize(window, static_cast<LONG>(wParam));
    case VFSM_GETFONTFAMILY:
        fsGetFontFamily(window, reinterpret_cast<LPSTR>(lParam), static_cast<int>(wParam));
        return 0;
    case VFSM_GETFONTSIZE:
        return fsGetFontSize(window);
    case VFSM_SETFONTCOMMANDCODE:
        fsSetFontCommandCode(window, LOWORD(wParam));
        return 0;
    case VFSM_SETSIZECOMMANDCODE:
        fsSetSizeCommandCode(window, LOWORD(wParam));
        return 0;
    case VFSM_GETFONTPOINTSIZE:
        return fsGetFontPointSize(window);
    case VFSM_SETFONTPOINTSIZE:
        return fsSetFontPointSize(window, static_cast<LONG>(wParam));
    case VFSM_SETFIELDCOLOR:
        return OnColorMessage(window, VORN_COLOR_FACE, lParam);
    case VFSM_SETBACKGROUNDCOLOR:
        return OnColorMessage(window, VORN_COLOR_BACKGROUND, lParam);
    case VFSM_SETITEMHEIGHT:
        return fsSetItemHeight(window, LOWORD(wParam));
    case VFSM_SETTEXTCOLOR:
        return OnColorMessage(window, VORN_COLOR_TEXT, lParam);
    default:
        return DefWindowProcA(window, message, wParam, lParam);
    }
}

} // namespace
} // namespace vorn::fontselect

using namespace vorn;
using namespace vorn::fontselect;

extern "C" LRESULT CALLBACK VORNFontSelectWinFn(HWND window, UINT message, WPARAM wParam,
                                                LPARAM lParam) {
    switch (message) {
    case WM_NCCREATE:
        return Create(window, wParam, lParam);
    case WM_DESTROY:
        Release(window);
        return 0;
    case WM_NCDESTROY:
        // A window that was refused after its creation began hears only this.
        Release(window);
        return DefWindowProcA(window, message, wParam, lParam);
    case WM_SIZE:
        return OnSize(window, LOWORD(lParam), HIWORD(lParam));
    case WM_PAINT:
        return OnPaint(window);
    case WM_SETFONT:
        return OnSetFont(window, reinterpret_cast<HFONT>(wParam), lParam != 0);
    case WM_GETFONT:
        return OnGetFont(window);
    case WM_ENABLE:
        return OnEnable(window, wParam != 0);
    case WM_SETFOCUS:
        return OnSetFocus(window);
    case WM_LBUTTONDOWN:
        return OnButtonDown(window, wParam, lParam);
    case WM_COMMAND:
        return OnCommand(window, wParam, lParam);
    case WM_FONTCHANGE:
        ListFamiliesAnew(window);
        return 0;
    default:
        return OnPrivateMessage(window, message, wParam, lParam);
    }
}
