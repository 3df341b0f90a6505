#include "date/popup_controls_win.h"

#include "core/classes_win.h"
#include "core/gdi_win.h"
#include "core/property_win.h"
#include "date/popup.h"

#include <vorn32/button.h>

namespace vorn::date {
namespace {

constexpr WORD kPreviousPicture = 1023;
constexpr WORD kNextPicture = 1025;

constexpr char kFontProperty[] = "Font";

// A control's window in the dialog's client area; empty when there is no such control.
Rect PlaceOfControl(HWND dialog, std::int32_t id) {
    RECT place{};
    GetWindowRect(GetDlgItem(dialog, id), &place);
    MapWindowPoints(HWND_DESKTOP, dialog, reinterpret_cast<POINT*>(&place), 2);
    return FromPlatform(place);
}

Size SizeOf(const Rect& rect) {
    return {Width(rect), Height(rect)};
}

void MoveControl(HWND dialog, std::int32_t id, Point to) {
    SetWindowPos(GetDlgItem(dialog, id), nullptr, to.x, to.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
}

// Bold, and as high as the system font.
void GiveYearFont(HWND dialog) {
    const LONG height = MeasureFont(OrSystemFont(nullptr)).tmHeight;
    HFONT font = CreateFamilyFont("Times New Roman", 0x12, height, FW_BOLD);
    if (!StoreProperty(dialog, kFontProperty, font)) {
        DeleteObject(font);
        return;
    }
    SendDlgItemMessageA(dialog, kYearBox, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

void GivePicture(HWND arrow, WORD picture) {
    btnEnablePicture(arrow, TRUE);
    HBITMAP bitmap = LoadPicture(picture);
    btnSetBitmap(arrow, bitmap);
    if (btnGetBitmap(arrow) != bitmap) { // the button is gone
        DeleteObject(bitmap);
    }
}

void TakePicture(HWND arrow) {
    DeleteObject(btnGetBitmap(arrow));
}

HWND CreateSystemButton(HWND dialog, std::int32_t id, DWORD style, const char* caption,
                        const Rect& place) {
    HWND button =
        CreateWindowExA(0, "BUTTON", caption, WS_CHILD | WS_VISIBLE | WS_TABSTOP | style,
                        place.left, place.top, Width(place), Height(place), dialog,
                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), Module(), nullptr);
    const LRESULT font = SendMessageA(dialog, WM_GETFONT, 0, 0);
    SendMessageA(button, WM_SETFONT, static_cast<WPARAM>(font), FALSE);
    return button;
}

} // namespace

void ArrangeYearLine(HWND dialog) {
    GiveYearFont(dialog);
    const YearLine line = PlaceYearLine(PlaceOfControl(dialog, kPopupCalendar),
                                        PlaceOfControl(dialog, kYearFrame).top,
                                        SizeOf(PlaceOfControl(dialog, kPreviousYearButton)),
                                        SizeOf(PlaceOfControl(dialog, kYearBox)));
    MoveControl(dialog, kPreviousYearButton, line.previous);
    MoveControl(dialog, kYearBox, line.box);
    MoveControl(dialog, kNextYearButton, line.next);
    GivePicture(GetDlgItem(dialog, kPreviousYearButton), kPreviousPicture);
    GivePicture(GetDlgItem(dialog, kNextYearButton), kNextPicture);
}

void ReleaseYearLine(HWND dialog) {
    TakePicture(GetDlgItem(dialog, kPreviousYearButton));
    TakePicture(GetDlgItem(dialog, kNextYearButton));
    DeleteObject(LoadProperty<HFONT>(dialog, kFontProperty));
    FreeProperty(dialog, kFontProperty);
}

void UseSystemButtons(HWND dialog, const Captions& texts) {
    constexpr std::int32_t kIds[kCaptions] = {kAcceptButton, kCancelButton, kEraseButton};
    const Rect accept = PlaceOfControl(dialog, kAcceptButton);
    for (const std::int32_t id : kIds) {
        SendDlgItemMessageA(dialog, id, WM_CLOSE, 0, 0);
    }
    // In the places that the others had among the tab stops, the first ones.
    HWND before = HWND_TOP;
    for (std::int32_t index = 0; index < kCaptions; ++index) {
        const DWORD style = index == 0 ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
        HWND button = CreateSystemButton(dialog, kIds[index], style, texts.texts[index],
                                         PlaceSystemButton(accept, index));
        SetWindowPos(button, before, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
        before = button;
    }
}

void BringOnScreen(HWND dialog, HWND dateEdit) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    RECT place{};
    if (GetMonitorInfoA(MonitorFromWindow(dateEdit, MONITOR_DEFAULTTONEAREST), &monitor) == 0 ||
        GetWindowRect(dialog, &place) == 0) {
        return;
    }
    const Point inside = MoveInside(FromPlatform(place), FromPlatform(monitor.rcWork));
    SetWindowPos(dialog, nullptr, inside.x, inside.y, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace vorn::date
