// Font selectors: one that shows what is chosen, one with a font and colours of its own, narrow
// ones.
#include "page.h"

#include <string>

namespace gallery {
namespace {

enum Id { kSelector = 100, kSample, kTold, kLarge, kFamilyCode = 200, kSizeCode };

void ShowSample(HWND page) {
    HWND selector = GetDlgItem(page, kSelector);
    LOGFONTA description{};
    description.lfHeight = fsGetFontSize(selector);
    fsGetFontFamily(selector, description.lfFaceName, LF_FACESIZE);
    static HFONT font = nullptr;
    HFONT previous = font;
    font = CreateFontIndirectA(&description);
    SendDlgItemMessageA(page, kSample, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    DeleteObject(previous);
    const std::string text = std::string(description.lfFaceName) + ", " +
                             std::to_string(fsGetFontPointSize(selector)) +
                             " points, logical height " + std::to_string(description.lfHeight);
    SetDlgItemTextA(page, kTold, text.c_str());
}

void Create(HWND page) {
    AddLabel(page, "Chosen here", 20, 25, 100);
    HWND selector = Add(page, VORN_FONTSELECT_CLASS, "", WS_TABSTOP, {130, 15, 450, 45}, kSelector);
    fsSetFontFamily(selector, "Times New Roman");
    fsSetFontPointSize(selector, 36);
    Add(page, "STATIC", "The quick brown fox", SS_NOPREFIX, {130, 60, 610, 130}, kSample);
    Add(page, "STATIC", "", SS_NOPREFIX, {130, 135, 590, 155}, kTold);
    ShowSample(page);

    AddLabel(page, "Colours, codes", 20, 190, 100);
    HWND colored = Add(page, VORN_FONTSELECT_CLASS, "", WS_TABSTOP, {130, 180, 450, 215});
    fsSetColor(colored, VORN_COLOR_BACKGROUND, RGB(255, 226, 170));
    fsSetFontCommandCode(colored, kFamilyCode);
    fsSetSizeCommandCode(colored, kSizeCode);
    fsSetFontFamily(colored, "Courier New");

    AddLabel(page, "A larger font", 20, 250, 100);
    HWND large = Add(page, VORN_FONTSELECT_CLASS, "", WS_TABSTOP, {130, 240, 530, 280}, kLarge);
    static HFONT font = CreateFontA(-21, 0, 0, 0, 0, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "Arial");
    SendMessageA(large, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    SendMessageA(large, WM_SIZE, 0, MAKELPARAM(400, 40)); // a font alone does not lay out anew
    fsSetFontFamily(large, "Arial");
    fsSetFontPointSize(large, 34); // between two sizes the farther one is taken: 28

    AddLabel(page, "Narrow", 20, 310, 100);
    Add(page, VORN_FONTSELECT_CLASS, "", WS_TABSTOP, {130, 300, 300, 330});
    Add(page, VORN_FONTSELECT_CLASS, "", WS_TABSTOP, {330, 300, 440, 330});
}

void Command(HWND page, int id, int code, HWND control) {
    if (id == kSelector) {
        ShowSample(page);
    } else if (id == kFamilyCode || id == kSizeCode) {
        const std::string text = std::string(code == VFSN_FONTCHANGE ? "Family" : "Size") +
                                 " changed, reported as " + std::to_string(id) + ": " +
                                 std::to_string(fsGetFontPointSize(control)) + " points";
        SetDlgItemTextA(page, kTold, text.c_str());
    }
}

} // namespace

extern const Page kFontSelectPage = {"fontselect", "Font selector", Create, Command, nullptr};

} // namespace gallery
