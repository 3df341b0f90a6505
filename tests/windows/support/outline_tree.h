// A small tree in an outline list, and all that a host can see of it.
#pragma once

#include "tests/windows/support/pixels.h"

#include <windows.h>
#include <string>
#include <vorn32.h>

namespace vorn::test {

// The rows a (open), b (selected, with data), c (closed, with "ember" below it) and d (locked), of
// which the last three are in view.
struct SmallTree {
    HWND list = nullptr;
    HOLBITEM a = nullptr, b = nullptr, c = nullptr, ember = nullptr, d = nullptr;
    char buffer[256] = "";
    int rows[4] = {-5, -5, -5, -5};
    RECT rect{};
};

constexpr int kSmallTreeHeight = 54; // three rows

inline SmallTree PlantTree(HWND list) {
    SmallTree tree;
    tree.list = list;
    tree.a = olbAddChildStringEx(list, nullptr, "a");
    tree.b = olbAddChildStringEx(list, tree.a, "b");
    tree.c = olbAddChildStringEx(list, tree.a, "c");
    tree.ember = olbAddChildStringEx(list, tree.c, "ember");
    tree.d = olbAddChildStringEx(list, nullptr, "d");
    olbOpenItem(list, 0);
    olbSetItemData(list, 1, 11);
    olbLockItem(list, 3, TRUE);
    olbSetCurSel(list, 1);
    olbSetSel(list, 1, TRUE);
    olbSetTopIndex(list, 1);
    return tree;
}

// What the functions tell, in words.
inline std::string StateOf(const SmallTree& tree) {
    HWND list = tree.list;
    std::string state;
    for (LONG row = 0; row < olbGetVisibleCount(list); ++row) {
        char text[256] = "";
        olbGetText(list, row, text);
        state += std::string(text) + " level " + std::to_string(olbQueryLevel(list, row)) +
                 (olbQueryOpen(list, row) == 1 ? " open" : "") +
                 (olbQueryLock(list, row) == 1 ? " locked" : "") +
                 (olbGetSel(list, row) == 1 ? " selected" : "") + " data " +
                 std::to_string(olbGetItemData(list, row)) + "\n";
    }
    char separator[2] = "";
    olbGetPathSeparator(list, separator);
    RECT frame{};
    GetWindowRect(list, &frame);
    const auto add = [&state](const char* name, LONG value) {
        state += std::string(name) + " " + std::to_string(value) + "\n";
    };
    add("count", olbGetCount(list));
    add("selected", olbGetSelCount(list));
    add("top", olbGetTopIndex(list));
    add("indent", olbGetIndent(list));
    add("height", olbGetItemHeight(list, -1));
    add("border", olbGetBorderStyle(list));
    add("opens", olbIsAutoOpen(list));
    add("separator", separator[0]);
    add("style", GetWindowLongA(list, GWL_STYLE));
    add("width", frame.right - frame.left);
    return state;
}

// What the screen shows once all is painted.
inline Pixels PictureOf(const SmallTree& tree) {
    RedrawWindow(tree.list, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME | RDW_UPDATENOW);
    return PixelsOf(tree.list);
}

// A strip of pictures that is all of one colour but for its transparent corner.
inline HBITMAP RedStrip() {
    HDC screen = GetDC(nullptr);
    HDC context = CreateCompatibleDC(screen);
    HBITMAP strip = CreateCompatibleBitmap(screen, 14 * 16, 16);
    HGDIOBJ before = SelectObject(context, strip);
    const RECT all = {0, 0, 14 * 16, 16};
    HBRUSH brush = CreateSolidBrush(RGB(255, 0, 0));
    FillRect(context, &all, brush);
    SetPixel(context, 0, 15, RGB(0, 0, 255));
    DeleteObject(brush);
    SelectObject(context, before);
    DeleteDC(context);
    ReleaseDC(nullptr, screen);
    return strip;
}

} // namespace vorn::test
