#include "bench/windows/measure.h"

#include <array>
#include <commctrl.h>
#include <cstdio>
#include <vorn32.h>

namespace bench {
namespace {

constexpr int kWidth = 250;
constexpr int kHeight = 400;

void Repaint(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
}

// A top-level window of its own at a place in a row of them, so that none covers another.
HWND CreateAt(int place, const char* className, DWORD style) {
    HWND window =
        CreateWindowExA(0, className, "", WS_POPUP | WS_VISIBLE | style, place * kWidth, 0, kWidth,
                        kHeight, nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
    SendMessageA(window, WM_SETREDRAW, FALSE, 0);
    return window;
}

HWND Shown(HWND window) {
    SendMessageA(window, WM_SETREDRAW, TRUE, 0);
    Repaint(window);
    return window;
}

HWND OurRows(int place, int count, bool plain) {
    static const auto add = Ours<decltype(olbAddString)>("olbAddString");
    HWND list = CreateAt(place, VORN_HIERLIST_CLASS, WS_VSCROLL);
    if (plain) {
        Ours<decltype(olbEnableBitmaps)>("olbEnableBitmaps")(list, FALSE);
    }
    for (int i = 0; i < count; ++i) {
        add(list, "Some text");
    }
    return Shown(list);
}

HWND TheirRows(int place, int count) {
    HWND list = CreateAt(place, "LISTBOX", WS_VSCROLL);
    SendMessageA(list, LB_SETITEMHEIGHT, 0, 18);
    for (int i = 0; i < count; ++i) {
        SendMessageA(list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>("Some text"));
    }
    return Shown(list);
}

// A tree of 20 rows on two levels, with lines, boxes and pictures.
HWND OurTree(int place) {
    static const auto add = Ours<decltype(olbAddChildStringEx)>("olbAddChildStringEx");
    HWND list = CreateAt(place, VORN_HIERLIST_CLASS, WS_VSCROLL);
    Ours<decltype(olbShowLines)>("olbShowLines")(list, TRUE);
    Ours<decltype(olbEnableMicroBitmaps)>("olbEnableMicroBitmaps")(list, TRUE);
    for (int i = 0; i < 5; ++i) {
        HOLBITEM parent = add(list, nullptr, "Some text");
        for (int child = 0; child < 3; ++child) {
            add(list, parent, "Some text");
        }
        Ours<decltype(olbOpenItem)>("olbOpenItem")(list, 4 * i);
    }
    return Shown(list);
}

// A function of the system's controls, which the program loads itself.
template <class Function>
Function* Theirs(const char* name) {
    return reinterpret_cast<Function*>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("comctl32.dll"), name)));
}

HTREEITEM AddTo(HWND tree, HTREEITEM parent) {
    static char text[] = "Some text";
    TVINSERTSTRUCTA insert{};
    insert.hParent = parent;
    insert.hInsertAfter = TVI_LAST;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE;
    insert.item.pszText = text;
    return reinterpret_cast<HTREEITEM>(
        SendMessageA(tree, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insert)));
}

HWND TheirTree(int place) {
    HWND tree = CreateAt(place, WC_TREEVIEWA, TVS_HASLINES | TVS_HASBUTTONS | TVS_LINESATROOT);
    HBITMAP pictures = LoadBitmapA(GetModuleHandleA("VORN32.dll"), MAKEINTRESOURCEA(217));
    HIMAGELIST images = Theirs<decltype(ImageList_Create)>("ImageList_Create")(
        16, 16, ILC_COLOR24 | ILC_MASK, 14, 0);
    Theirs<decltype(ImageList_AddMasked)>("ImageList_AddMasked")(images, pictures,
                                                                 RGB(255, 0, 255));
    DeleteObject(pictures);
    SendMessageA(tree, TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(images));
    for (int i = 0; i < 5; ++i) {
        HTREEITEM parent = AddTo(tree, TVI_ROOT);
        for (int child = 0; child < 3; ++child) {
            AddTo(tree, parent);
        }
        SendMessageA(tree, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(parent));
    }
    return Shown(tree);
}

// A page down and up again.
void Page(HWND window) {
    SendMessageA(window, WM_VSCROLL, SB_PAGEDOWN, 0);
    UpdateWindow(window);
    SendMessageA(window, WM_VSCROLL, SB_PAGEUP, 0);
    UpdateWindow(window);
}

void CompareScrolling(int count) {
    HWND ours = OurRows(0, count, true);
    HWND theirs = TheirRows(1, count);
    std::array<char, 80> what{};
    std::snprintf(what.data(), what.size(), "outline list: two pages, repainted, %d rows / LISTBOX",
                  count);
    Compare(
        what.data(), 10, [&] { Page(ours); }, [&] { Page(theirs); });
    DestroyWindow(theirs);
    DestroyWindow(ours);
}

} // namespace

void MeasureHierList() {
    HWND ours = OurTree(0);
    HWND theirs = TheirTree(1);
    Compare(
        "outline list: full repaint, 20 rows / SysTreeView32", 10, [&] { Repaint(ours); },
        [&] { Repaint(theirs); });
    DestroyWindow(theirs);
    DestroyWindow(ours);

    ours = OurRows(0, 20, true);
    theirs = TheirRows(1, 20);
    Compare(
        "outline list: full repaint, 20 rows of text / LISTBOX", 10, [&] { Repaint(ours); },
        [&] { Repaint(theirs); });
    DestroyWindow(theirs);
    DestroyWindow(ours);
    CompareScrolling(1000);
    CompareScrolling(1000000);
}

} // namespace bench
