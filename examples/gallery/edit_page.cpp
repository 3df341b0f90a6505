#include "edit_page.h"

namespace gallery {

void AddEventLine(HWND page, int id) {
    Add(page, "STATIC", "", SS_LEFTNOWORDWRAP | SS_NOPREFIX,
        {20, kPageHeight - 40, kPageWidth - 20, kPageHeight - 20}, id);
}

const char* NameOfEditCode(int code) {
    switch (code) {
    case EN_SETFOCUS:
        return "EN_SETFOCUS";
    case EN_KILLFOCUS:
        return "EN_KILLFOCUS";
    case EN_UPDATE:
        return "EN_UPDATE";
    case EN_CHANGE:
        return "EN_CHANGE";
    case EN_MAXTEXT:
        return "EN_MAXTEXT";
    case EN_HSCROLL:
        return "EN_HSCROLL";
    case VNMN_TEXTCUT:
        return "VNMN_TEXTCUT";
    default:
        return "?";
    }
}

} // namespace gallery
