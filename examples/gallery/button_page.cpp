// Picture buttons: both strips, swatches, colours, a toggle and an auto-repeat button. All of them
// count.
#include "page.h"

#include <string>

namespace gallery {
namespace {

enum Id { kFirst = 100, kToggle = 300, kRepeat, kStatus };

int clicks = 0;

HWND AddButton(HWND page, const char* caption, DWORD style, const RECT& place, int id = kFirst) {
    return Add(page, VORN_BUTTON_CLASS, caption, WS_TABSTOP | style, place, id);
}

void AddCaptions(HWND page) {
    AddButton(page, "&Plain", 0, {20, 15, 130, 45});
    AddButton(page, "Default", VBTS_DEFAULT, {140, 15, 250, 45});
    AddButton(page, "Disabled", WS_DISABLED, {260, 15, 370, 45});
    AddButton(page, "Disabled", VBTS_PICTURE | WS_DISABLED, {380, 15, 490, 45});
    btnSetState(AddButton(page, "Down", 0, {500, 15, 600, 45}), TRUE);
}

void AddStrips(HWND page) {
    const char* names[] = {"New",        "Open",  "Save",        "Print",   "Cut",
                           "Copy",       "Paste", "Undo",        "Redo",    "Find",
                           "Properties", "Help",  "Information", "Warning", "Stop"};
    int index = 0;
    for (const char* name : names) {
        const int x = 20 + index % 5 * 117;
        const int y = 60 + index / 5 * 37;
        HWND button = AddButton(page, name, VBTS_PICTURE, {x, y, x + 112, y + 32});
        btnSetPicture(button, static_cast<UINT>(index));
        ++index;
    }
    for (index = 0; index < 32; ++index) {
        const int x = 20 + index % 16 * 36;
        const int y = 182 + index / 16 * 31;
        HWND button = AddButton(page, "", VBTS_PICTURE | VBTS_PICTUREONLY, {x, y, x + 31, y + 27});
        btnSetPicture(button, static_cast<UINT>(index));
    }
}

void AddSwatches(HWND page) {
    const struct {
        const char* name;
        COLORREF color;
    } swatches[] = {{"Red", RGB(200, 0, 0)},
                    {"Green", RGB(0, 128, 0)},
                    {"Blue", RGB(0, 0, 200)},
                    {"Selection", VORN_SYSCOLOR(COLOR_HIGHLIGHT)}};
    int x = 20;
    for (const auto& swatch : swatches) {
        HWND button = AddButton(page, swatch.name, VBTS_SWATCH, {x, 256, x + 112, 286});
        btnSetColorCode(button, swatch.color);
        x += 117;
    }
}

void AddColors(HWND page) {
    HWND dark = AddButton(page, "Night", VBTS_PICTURE, {20, 302, 132, 334});
    btnSetPicture(dark, 9);
    btnSetColor(dark, VORN_COLOR_FACE, RGB(40, 48, 64));
    btnSetColor(dark, VORN_COLOR_TEXT, RGB(240, 240, 240));
    btnSetColor(dark, VORN_COLOR_HIGHLIGHT, RGB(100, 116, 140));
    btnSetColor(dark, VORN_COLOR_SHADOW, RGB(16, 20, 28));
    HWND warm = AddButton(page, "Day", VBTS_SWATCH, {137, 302, 249, 334});
    btnSetColor(warm, VORN_COLOR_FACE, RGB(255, 228, 170));
    btnSetColor(warm, VORN_COLOR_TEXT, RGB(120, 40, 0));
    btnSetColor(warm, VORN_COLOR_SWATCH, RGB(230, 120, 0));
    static HFONT font =
        CreateFontA(-19, 0, 0, 0, FW_BOLD, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "Arial");
    HWND large = AddButton(page, "Large", VBTS_PICTURE, {254, 302, 483, 334});
    btnSetPicture(large, 13);
    SendMessageA(large, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

// Gaining the focus turns both into ordinary buttons; who wants them otherwise says so again.
void KeepKinds(HWND page) {
    const auto keep = [page](int id, DWORD kind) {
        HWND button = GetDlgItem(page, id);
        const auto style = static_cast<DWORD>(GetWindowLongA(button, GWL_STYLE));
        if ((style & kind) == 0) {
            btnSetStyle(button, (style & VBTS_DEFAULT) | kind, FALSE);
        }
    };
    keep(kToggle, VBTS_TOGGLE);
    keep(kRepeat, VBTS_AUTOREPEAT);
}

void ShowStatus(HWND page, const std::string& what) {
    SetDlgItemTextA(page, kStatus, ("Clicks: " + std::to_string(clicks) + what).c_str());
}

void Create(HWND page) {
    clicks = 0;
    AddCaptions(page);
    AddStrips(page);
    AddSwatches(page);
    AddColors(page);
    AddButton(page, "Toggle", VBTS_TOGGLE | VBTS_NOTIFY, {20, 350, 132, 382}, kToggle);
    AddButton(page, "Hold me", VBTS_AUTOREPEAT, {137, 350, 249, 382}, kRepeat);
    Add(page, "STATIC", "", SS_LEFT | SS_NOPREFIX, {20, 402, 600, 418}, kStatus);
    ShowStatus(page, "");
}

void Command(HWND page, int /*id*/, int code, HWND control) {
    if (code == VBTN_CLICKED) {
        ++clicks;
        KeepKinds(page);
    }
    char caption[80] = "";
    GetWindowTextA(control, caption, static_cast<int>(sizeof caption) - 1); // writes one more
    const char* events[] = {"clicked", "", "down", "up", "disabled", "", "focused", "left"};
    ShowStatus(page, std::string(", last: ") + (*caption != '\0' ? caption : "a picture") + " " +
                         events[code % 8]);
}

void Tick(HWND page) {
    KeepKinds(page);
}

} // namespace

extern const Page kButtonPage = {"button", "Picture button", Create, Command, Tick};

} // namespace gallery
