// Dials: one that turns a percent bar, sizes, directions, turn ranges, one disabled. All of them
// answer what the user does.
#include "page.h"

#include <string>

namespace gallery {
namespace {

enum Id { kVolume = 100, kBar, kValue };

constexpr LONG kPage = 10;

HWND AddDial(HWND page, const char* name, int x, int y, int size, LONG position, int id = 0) {
    HWND dial = Add(page, VORN_DIAL_CLASS, "", WS_TABSTOP, {x, y, x + size, y + size}, id);
    SetDialPos(dial, position, TRUE);
    AddLabel(page, name, x, y + size + 4, size + 50);
    return dial;
}

void ShowVolume(HWND page) {
    const LONG position = GetDialPos(GetDlgItem(page, kVolume));
    pbSetProgress(GetDlgItem(page, kBar), position);
    SetDlgItemTextA(page, kValue, ("Position " + std::to_string(position)).c_str());
}

void Create(HWND page) {
    AddDial(page, "200 pixels, turns the percent bar", 30, 20, 200, 65, kVolume);
    Add(page, VORN_PERCENTBAR_CLASS, "", VPBS_SUNKEN | VPBS_PERCENT, {30, 250, 230, 274}, kBar);
    Add(page, "STATIC", "", SS_LEFT, {30, 284, 230, 300}, kValue);
    ShowVolume(page);

    AddDial(page, "40 pixels", 290, 80, 40, 20);
    AddDial(page, "64 pixels", 360, 56, 64, 40);
    AddDial(page, "100 pixels", 450, 20, 100, 80);

    SetDialDirection(AddDial(page, "Counter-clockwise", 290, 170, 100, 30), 0);
    EnableWindow(AddDial(page, "Disabled", 450, 170, 100, 50), FALSE);

    HWND half = AddDial(page, "Half a turn, 0 to 50", 290, 310, 100, 20);
    SetDialRange(half, 0, 50, FALSE);
    SetDialTurnRange(half, 0, 180, TRUE);
    // North is 0, and 359 the last degree before it.
    HWND compass = AddDial(page, "A compass, 0 to 359", 450, 310, 100, 0);
    SetDialRange(compass, 0, 359, FALSE);
    SetDialTurnRange(compass, -270, 89, FALSE);
    SetDialPos(compass, 315, TRUE);
}

// The arrow keys have their line codes the other way round than the corner buttons.
bool IsArrowDown() {
    return GetKeyState(VK_LEFT) < 0 || GetKeyState(VK_UP) < 0 || GetKeyState(VK_RIGHT) < 0 ||
           GetKeyState(VK_DOWN) < 0;
}

LONG Moved(HWND dial, int code, int position) {
    const LONG now = GetDialPos(dial);
    LONG minimum = 0;
    LONG maximum = 0;
    GetDialRange(dial, &minimum, &maximum);
    switch (code) {
    case SB_LINEUP:
        return IsArrowDown() ? now + 1 : now - 1;
    case SB_LINEDOWN:
        return IsArrowDown() ? now - 1 : now + 1;
    case SB_PAGEUP:
        return now + kPage;
    case SB_PAGEDOWN:
        return now - kPage;
    case SB_TOP:
        return maximum;
    case SB_BOTTOM:
        return minimum;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
        return position;
    default:
        return now;
    }
}

void Scroll(HWND page, int code, int position, HWND dial) {
    SetDialPos(dial, Moved(dial, code, position), TRUE);
    if (GetDlgCtrlID(dial) == kVolume) {
        ShowVolume(page);
    }
}

} // namespace

extern const Page kDialPage = {"dial", "Dial", Create, nullptr, nullptr, Scroll};

} // namespace gallery
