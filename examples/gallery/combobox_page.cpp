// Combo boxes of all three kinds, which tell where the focus came from.
#include "page.h"

#include <string>

namespace gallery {
namespace {

enum Id { kSimple = 100, kDropDown, kDropDownList, kEdit, kButton, kTold };

void AddCombo(HWND page, const char* label, DWORD style, int x, int id) {
    AddLabel(page, label, x, 20, 170);
    HWND combo = Add(page, VORN_COMBOBOX_CLASS, "", style | WS_TABSTOP | WS_VSCROLL | CBS_SORT,
                     {x, 40, x + 170, 190}, id);
    for (const char* text : {"Pear", "Apple", "Quince", "Fig", "Plum", "Medlar"}) {
        SendMessageA(combo, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    }
    SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(id - kSimple), 0);
}

void Create(HWND page) {
    AddCombo(page, "Simple", CBS_SIMPLE, 20, kSimple);
    AddCombo(page, "Drop-down", CBS_DROPDOWN, 220, kDropDown);
    AddCombo(page, "Drop-down list", CBS_DROPDOWNLIST, 420, kDropDownList);
    AddLabel(page, "Move the focus from here", 20, 235, 170);
    Add(page, "EDIT", "an edit field", WS_BORDER | WS_TABSTOP, {220, 230, 390, 252}, kEdit);
    Add(page, "BUTTON", "a button", WS_TABSTOP, {420, 228, 590, 254}, kButton);
    AddLabel(page, "The combo box says", 20, 280, 170);
    Add(page, "STATIC", "nothing yet", SS_NOPREFIX, {220, 280, 590, 300}, kTold);
}

std::string NameOf(HWND page, WORD handle) {
    const struct {
        int id;
        const char* name;
    } names[] = {{kSimple, "the simple one"},
                 {kDropDown, "the drop-down"},
                 {kDropDownList, "the drop-down list"},
                 {kEdit, "the edit field"},
                 {kButton, "the button"}};
    for (const auto& known : names) {
        if (LOWORD(reinterpret_cast<DWORD_PTR>(GetDlgItem(page, known.id))) == handle) {
            return known.name;
        }
    }
    return handle == 0 ? "nowhere" : "some other window";
}

void Command(HWND page, int id, int code, HWND control) {
    if (id < kSimple || id > kDropDownList || code != CBN_SETFOCUS) {
        return;
    }
    const auto previous = static_cast<WORD>(SendMessageA(control, VCBM_GETPREVFOCUS, 0, 0));
    SetDlgItemTextA(page, kTold, ("the focus came from " + NameOf(page, previous)).c_str());
}

} // namespace

extern const Page kComboBoxPage = {"combobox", "Combo box", Create, Command, nullptr};

} // namespace gallery
