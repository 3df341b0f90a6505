// Outline lists: a tree with lines, boxes, pictures and locked items, a folder, rows that the page
// draws, colours and columns.
#include "page.h"

#include <array>

namespace gallery {
namespace {

// Pictures of the library's strip.
enum Picture : LONG {
    kDocument = 2,
    kComputer = 3,
    kProgram = 4,
    kSystem = 5,
    kText = 8,
    kHelp = 9
};

HOLBITEM AddWith(HWND list, HOLBITEM parent, const char* text, LONG picture) {
    HOLBITEM item = olbAddChildStringEx(list, parent, text);
    olbSetBitmapIndexEx(list, item, picture);
    return item;
}

void FillFolders(HWND list) {
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    HOLBITEM root = AddWith(list, nullptr, "c:\\", kComputer);
    HOLBITEM letters = AddWith(list, root, "letters", OLB_SORTFIRST);
    HOLBITEM music = AddWith(list, root, "music", OLB_SORTFIRST);
    HOLBITEM system = AddWith(list, root, "system", OLB_SORTFIRST);
    AddWith(list, root, "readme.txt", kText);
    HOLBITEM year = AddWith(list, letters, "1999", OLB_SORTFIRST);
    AddWith(list, letters, "to the bank.doc", kText);
    AddWith(list, letters, "to the club.doc", kText);
    AddWith(list, year, "january.doc", kText);
    AddWith(list, year, "february.doc", kText);
    AddWith(list, music, "score", kDocument);
    AddWith(list, system, "editor.exe", kProgram);
    AddWith(list, system, "editor.hlp", kHelp);
    AddWith(list, system, "kernel.bin", kSystem);
    HOLBITEM removable = AddWith(list, nullptr, "a:\\", 10);
    AddWith(list, removable, "backup", OLB_SORTFIRST);
    AddWith(list, nullptr, "d:\\ data", 11);
    AddWith(list, nullptr, "n:\\ \\\\server\\share", 12);
    AddWith(list, nullptr, "x:\\", 13);
    olbOpenItem(list, 0);
    olbOpenItem(list, 3);
    olbOpenItem(list, 1);
    olbOpenItem(list, 2);
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
}

void FillPlain(HWND list, int count) {
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    std::array<char, 32> text{};
    for (int i = 1; i <= count; ++i) {
        wsprintfA(text.data(), "Item %d", i);
        olbAddString(list, text.data());
    }
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
}

// Fills a list with a real folder's content.
void FillDirectory(HWND list) {
    std::array<char, MAX_PATH> folder{};
    GetWindowsDirectoryA(folder.data(), MAX_PATH - 2);
    lstrcatA(folder.data(), "\\*");
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    olbDir(list, DDL_DIRECTORY, folder.data());
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
}

// ---- Owner drawing ----

constexpr int kOwnerDrawn = 100;

struct Swatch {
    const char* name;
    COLORREF color;
};

constexpr Swatch kSwatches[] = {{"Brick", RGB(178, 74, 58)},    {"Amber", RGB(224, 168, 48)},
                                {"Olive", RGB(128, 136, 56)},   {"Spruce", RGB(48, 112, 96)},
                                {"Harbour", RGB(56, 104, 168)}, {"Plum", RGB(112, 64, 136)},
                                {"Slate", RGB(96, 104, 120)}};

void AddSwatches(HWND list) {
    SendMessageA(list, WM_SETREDRAW, FALSE, 0);
    for (const Swatch& swatch : kSwatches) {
        const LONG row = olbAddString(list, swatch.name);
        olbSetItemData(list, row, static_cast<LONG_PTR>(swatch.color));
    }
    olbSetCurSel(list, 3);
    SendMessageA(list, WM_SETREDRAW, TRUE, 0);
}

void Measure(MEASUREITEMSTRUCT& item) {
    item.itemHeight = 24;
}

void DrawSwatch(const DRAWITEMSTRUCT& item) {
    const bool selected = (item.itemState & ODS_SELECTED) != 0;
    FillRect(item.hDC, &item.rcItem, GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    const auto row = static_cast<LONG>(item.itemID);
    if (row < 0) {
        return;
    }
    RECT box = {item.rcItem.left + 4, item.rcItem.top + 4, item.rcItem.left + 36,
                item.rcItem.bottom - 4};
    SetDCBrushColor(item.hDC, static_cast<COLORREF>(olbGetItemData(item.hwndItem, row)));
    FillRect(item.hDC, &box, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    FrameRect(item.hDC, &box, GetSysColorBrush(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    RECT text = {box.right + 6, item.rcItem.top, item.rcItem.right, item.rcItem.bottom};
    SetBkMode(item.hDC, TRANSPARENT);
    SetTextColor(item.hDC, GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    DrawTextA(item.hDC, reinterpret_cast<const char*>(item.itemData), -1, &text,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}

// ---- The lists ----

void CreateTree(HWND page) {
    AddLabel(page, "Lines, boxes, pictures; locked", 10, 10, 195);
    HWND tree = Add(page, VORN_HIERLIST_CLASS, "", WS_TABSTOP | WS_VSCROLL | OLBS_SUNKEN,
                    {10, 30, 205, 440}, 0);
    olbShowLines(tree, TRUE);
    olbEnableMicroBitmaps(tree, TRUE);
    FillFolders(tree);
    olbSetCurSel(tree, 3);
    for (LONG row = 0; row < olbGetVisibleCount(tree); ++row) {
        std::array<char, 64> text{};
        olbGetText(tree, row, text.data());
        if (lstrcmpA(text.data(), "a:\\") == 0 || lstrcmpA(text.data(), "system") == 0) {
            olbLockItem(tree, row, TRUE);
        }
    }
}

void CreateBrowser(HWND page) {
    AddLabel(page, "A folder, in order", 215, 10, 190);
    HWND browser = Add(page, VORN_HIERLIST_CLASS, "",
                       WS_TABSTOP | WS_VSCROLL | WS_BORDER | LBS_SORT, {215, 30, 405, 230}, 0);
    olbSetFullSelectRect(browser, TRUE);
    FillDirectory(browser);
    olbSetCurSel(browser, 1);
}

void CreateOwnerDrawn(HWND page) {
    AddLabel(page, "Drawn by the page", 415, 10, 190);
    HWND list = Add(page, VORN_HIERLIST_CLASS, "",
                    WS_TABSTOP | WS_VSCROLL | OLBS_SUNKEN | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS,
                    {415, 30, 605, 230}, kOwnerDrawn);
    AddSwatches(list);
}

void CreateColored(HWND page) {
    AddLabel(page, "Colours, a raised frame", 215, 240, 190);
    HWND colored = Add(page, VORN_HIERLIST_CLASS, "", WS_TABSTOP | WS_VSCROLL | OLBS_RAISED,
                       {215, 260, 405, 440}, 0);
    olbSetColor(colored, OLBC_BACKGROUND, RGB(0, 0, 64), FALSE);
    olbSetColor(colored, OLBC_TEXT, RGB(255, 255, 192), FALSE);
    olbSetColor(colored, OLBC_LINES, RGB(128, 128, 255), FALSE);
    olbShowLines(colored, TRUE);
    FillFolders(colored);
}

void CreateColumns(HWND page) {
    AddLabel(page, "Columns, several selected", 415, 240, 190);
    HWND columns =
        Add(page, VORN_HIERLIST_CLASS, "", WS_TABSTOP | WS_HSCROLL | OLBS_SUNKEN | LBS_EXTENDEDSEL,
            {415, 260, 605, 440}, 0);
    olbEnableBitmaps(columns, FALSE);
    olbSetColumns(columns, 3);
    FillPlain(columns, 60);
    olbSelItemRange(columns, 3, 6, TRUE);
    olbSetSel(columns, 12, TRUE);
}

void Create(HWND page) {
    CreateTree(page);
    CreateBrowser(page);
    CreateOwnerDrawn(page);
    CreateColored(page);
    CreateColumns(page);
}

} // namespace

extern const Page kHierListPage = {.name = "hierlist",
                                   .title = "Outline list",
                                   .create = Create,
                                   .command = nullptr,
                                   .tick = nullptr,
                                   .scroll = nullptr,
                                   .measure = Measure,
                                   .draw = DrawSwatch};

} // namespace gallery
