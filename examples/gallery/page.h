// A page of the gallery: some controls, and what happens to them.
#pragma once

#include <vector>
#include <vorn32.h>

namespace gallery {

struct Page {
    const char* name;  // on the command line
    const char* title; // in the list of pages
    void (*create)(HWND page);
    // A control's notification; null when the page needs none.
    void (*command)(HWND page, int id, int code, HWND control);
    // Every tenth of a second while the page is shown; null when nothing runs.
    void (*tick)(HWND page);
    // A control's scroll message; null when the page needs none.
    void (*scroll)(HWND page, int code, int position, HWND control) = nullptr;
    // What controls ask that leave drawing to the page; null when there are none.
    void (*measure)(MEASUREITEMSTRUCT& item) = nullptr;
    void (*draw)(const DRAWITEMSTRUCT& item) = nullptr;
};

constexpr int kPageWidth = 620;
constexpr int kPageHeight = 460;

// The pages, in the order of the list.
const std::vector<const Page*>& Pages();

// Adds a control to a page.
HWND Add(HWND page, const char* className, const char* text, DWORD style, const RECT& place,
         int id = 0);

// Adds a line of text.
HWND AddLabel(HWND page, const char* text, int x, int y, int width);

} // namespace gallery
