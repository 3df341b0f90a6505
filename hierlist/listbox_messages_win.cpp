// The messages of a list box, LB_ADDSTRING to LB_FINDSTRINGEXACT, answered by the list's functions.
// Those without a function, and later ones up to LB_GETLISTBOXINFO, are answered with LB_ERR.
#include "core/window_win.h"
#include "hierlist/list_handles_win.h"
#include "hierlist/list_messages_win.h"

#include <algorithm>

namespace vorn::hierlist {
namespace {

constexpr LPARAM kMostPixels = 255; // of a height that a list box takes

// The last of a list box's messages. Those behind LB_FINDSTRINGEXACT have no function here.
constexpr UINT kLastMessage = LB_GETLISTBOXINFO;

LONG ToNumber(WPARAM wParam) {
    return static_cast<LONG>(wParam);
}

LPCSTR ToText(LPARAM lParam) {
    return reinterpret_cast<LPCSTR>(lParam);
}

// Adding, removing and what the list is filled with.
bool AnswerContents(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    switch (message) {
    case LB_ADDSTRING:
        result = olbAddString(window, ToText(lParam));
        return true;
    case LB_INSERTSTRING:
        result = olbInsertString(window, ToNumber(wParam), ToText(lParam));
        return true;
    case LB_DELETESTRING:
        result = olbDeleteString(window, ToNumber(wParam));
        return true;
    case LB_RESETCONTENT:
        olbResetContent(window);
        result = 0;
        return true;
    case LB_DIR:
        result = olbDir(window, static_cast<DWORD>(wParam), ToText(lParam));
        return true;
    case LB_ADDFILE:
        result = olbAddFile(window, ToText(lParam));
        return true;
    case LB_GETCOUNT:
        result = olbGetCount(window);
        return true;
    default:
        return false;
    }
}

LRESULT FindRow(HWND window, WPARAM wParam, LPARAM lParam, bool exact) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    return RowOfHandle(ToHandle(
        FindAtTop(record->outline, static_cast<std::uint32_t>(wParam), ToText(lParam), exact)));
}

// What items hold, and searching for it. A search goes among the items at the top.
bool AnswerItems(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    switch (message) {
    case LB_GETTEXT:
        result = olbGetText(window, ToNumber(wParam), reinterpret_cast<LPSTR>(lParam));
        return true;
    case LB_GETTEXTLEN:
        result = olbGetTextLength(window, ToNumber(wParam));
        return true;
    case LB_GETITEMDATA:
        result = olbGetItemData(window, ToNumber(wParam));
        return true;
    case LB_SETITEMDATA:
        result = olbSetItemData(window, ToNumber(wParam), lParam);
        return true;
    case LB_GETITEMHEIGHT:
        result = olbGetItemHeight(window, ToNumber(wParam));
        return true;
    case LB_SETITEMHEIGHT:
        result = lParam >= 0 && lParam <= kMostPixels
                     ? olbSetItemHeight(window, ToNumber(wParam), static_cast<LONG>(lParam))
                     : LB_ERR;
        return true;
    case LB_FINDSTRING:
        result = FindRow(window, wParam, lParam, false);
        return true;
    case LB_FINDSTRINGEXACT:
        result = FindRow(window, wParam, lParam, true);
        return true;
    case LB_SELECTSTRING:
        result = olbSelectString(window, ToNumber(wParam), ToText(lParam));
        return true;
    default:
        return false;
    }
}

// A range whose first row is not behind its last is selected, any other deselected.
LRESULT SelectRange(HWND window, LONG first, LONG last) {
    return olbSelItemRange(window, std::min(first, last), std::max(first, last), first <= last);
}

bool AnswerSelection(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    switch (message) {
    case LB_SETSEL:
        result = olbSetSel(window, static_cast<LONG>(lParam), wParam != 0);
        return true;
    case LB_SETCURSEL:
        result = olbSetCurSel(window, ToNumber(wParam));
        return true;
    case LB_GETSEL:
        result = olbGetSel(window, ToNumber(wParam));
        return true;
    case LB_GETCURSEL:
        result = olbGetCurSel(window);
        return true;
    case LB_GETSELCOUNT:
        result = olbGetSelCount(window);
        return true;
    case LB_GETSELITEMS:
        result = olbGetSelItems(window, ToNumber(wParam), reinterpret_cast<int*>(lParam));
        return true;
    case LB_SELITEMRANGE:
        result = olbSelItemRange(window, LOWORD(lParam), HIWORD(lParam), wParam != 0);
        return true;
    case LB_SELITEMRANGEEX:
        result = SelectRange(window, ToNumber(wParam), static_cast<LONG>(lParam));
        return true;
    case LB_SETANCHORINDEX:
        result = olbSetAnchorIndex(window, ToNumber(wParam));
        return true;
    case LB_GETANCHORINDEX:
        result = olbGetAnchorIndex(window);
        return true;
    case LB_SETCARETINDEX:
        result = olbSetCaretIndex(window, ToNumber(wParam));
        return true;
    case LB_GETCARETINDEX:
        result = olbGetCaretIndex(window);
        return true;
    default:
        return false;
    }
}

bool AnswerView(HWND window, UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    switch (message) {
    case LB_SETTOPINDEX:
        result = olbSetTopIndex(window, ToNumber(wParam));
        return true;
    case LB_GETTOPINDEX:
        result = olbGetTopIndex(window);
        return true;
    case LB_GETITEMRECT:
        result = olbGetItemRect(window, ToNumber(wParam), reinterpret_cast<RECT*>(lParam));
        return true;
    case LB_SETTABSTOPS:
        result = olbSetTabStops(window, ToNumber(wParam), reinterpret_cast<const int*>(lParam));
        return true;
    case LB_SETHORIZONTALEXTENT:
        result = olbSetHorizontalExtent(window, ToNumber(wParam));
        return true;
    case LB_GETHORIZONTALEXTENT:
        result = olbGetHorizontalExtent(window);
        return true;
    case LB_SETCOLUMNWIDTH:
        result = olbSetColumnWidth(window, ToNumber(wParam));
        return true;
    default:
        return false;
    }
}

} // namespace

bool AnswerListBoxMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                          LRESULT& result) {
    if (message < LB_ADDSTRING || message > kLastMessage) {
        return false;
    }
    if (!AnswerContents(window, message, wParam, lParam, result) &&
        !AnswerItems(window, message, wParam, lParam, result) &&
        !AnswerSelection(window, message, wParam, lParam, result) &&
        !AnswerView(window, message, wParam, lParam, result)) {
        result = LB_ERR;
    }
    return true;
}

} // namespace vorn::hierlist
