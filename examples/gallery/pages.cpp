#include "page.h"

namespace gallery {

extern const Page kButtonPage;
extern const Page kComboBoxPage;
extern const Page kCalendarPage;
extern const Page kDialPage;
extern const Page kFontSelectPage;
extern const Page kHierListPage;
extern const Page kPercentBarPage;
extern const Page kUdlrPage;

const std::vector<const Page*>& Pages() {
    static const std::vector<const Page*> pages = {
        &kButtonPage,     &kCalendarPage, &kComboBoxPage,   &kDialPage,
        &kFontSelectPage, &kHierListPage, &kPercentBarPage, &kUdlrPage};
    return pages;
}

HWND Add(HWND page, const char* className, const char* text, DWORD style, const RECT& place,
         int id) {
    HWND control = CreateWindowExA(0, className, text, WS_CHILD | WS_VISIBLE | style, place.left,
                                   place.top, place.right - place.left, place.bottom - place.top,
                                   page, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)),
                                   GetModuleHandleA(nullptr), nullptr);
    SendMessageA(control, WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(DEFAULT_GUI_FONT)),
                 FALSE);
    return control;
}

HWND AddLabel(HWND page, const char* text, int x, int y, int width) {
    return Add(page, "STATIC", text, SS_LEFT | SS_NOPREFIX, {x, y, x + width, y + 16});
}

} // namespace gallery
