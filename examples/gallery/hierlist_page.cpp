// Outline lists: one with lines, boxes and pictures, and looks beside it.
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
    AddWith(list, letters, "to R&D.doc", kText);
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

void Create(HWND page) {
    AddLabel(page, "Lines, boxes, pictures", 10, 10, 290);
    HWND tree = Add(page, VORN_HIERLIST_CLASS, "", WS_TABSTOP | WS_VSCROLL | OLBS_SUNKEN,
                    {10, 30, 300, 420}, 0);
    olbShowLines(tree, TRUE);
    olbEnableMicroBitmaps(tree, TRUE);
    FillFolders(tree);

    AddLabel(page, "Text alone", 320, 10, 130);
    HWND plain = Add(page, VORN_HIERLIST_CLASS, "", WS_TABSTOP | WS_VSCROLL | WS_BORDER,
                     {320, 30, 450, 200}, 0);
    olbEnableBitmaps(plain, FALSE);
    FillPlain(plain, 40);

    AddLabel(page, "Colours", 470, 10, 140);
    HWND colored = Add(page, VORN_HIERLIST_CLASS, "", WS_TABSTOP | WS_VSCROLL | OLBS_RAISED,
                       {470, 30, 600, 200}, 0);
    olbSetColor(colored, OLBC_BACKGROUND, RGB(0, 0, 64), FALSE);
    olbSetColor(colored, OLBC_TEXT, RGB(255, 255, 192), FALSE);
    olbSetColor(colored, OLBC_LINES, RGB(128, 128, 255), FALSE);
    olbShowLines(colored, TRUE);
    FillFolders(colored);

    AddLabel(page, "Columns", 320, 220, 100);
    HWND columns =
        Add(page, VORN_HIERLIST_CLASS, "", WS_TABSTOP | WS_HSCROLL | LBS_MULTICOLUMN | OLBS_SUNKEN,
            {320, 240, 600, 420}, 0);
    FillPlain(columns, 40);
}

} // namespace

extern const Page kHierListPage = {"hierlist", "Outline list", Create, nullptr, nullptr};

} // namespace gallery
