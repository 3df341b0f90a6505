// The font selector as a window.
#pragma once

#include "core/record_win.h"
#include "fontselect/families.h"
#include "fontselect/fontselect.h"

namespace vorn::fontselect {

constexpr WORD kDialog = 224;
constexpr WORD kTrueTypeMark = 355;
constexpr WORD kPlainMark = 356;

struct Record {
    static constexpr ControlClass kClass = ControlClass::FontSelect;

    State state;
    HWND dialog = nullptr;
    HWND familyList = nullptr; // in the dialog; asked for once, since each family goes there
    HWND sizeList = nullptr;
    HFONT font = nullptr; // the host's, or the stock SYSTEM_FONT
    HBITMAP trueTypeMark = nullptr;
    HBITMAP plainMark = nullptr;
    HBRUSH fieldBrush = nullptr;
    Families families;
};

// WM_NCCREATE: the record, the dialog and its lists. Runs host code. 0 refuses the window, and -1
// stands for one that has no families and no lists.
LRESULT Create(HWND window, WPARAM wParam, LPARAM lParam);

// Frees the record and what it owns, the dialog included; does nothing without one.
void Release(HWND window);

// Lists the system's families anew, with the same choice when it is still there.
void ListFamiliesAnew(HWND window);

// Disables or enables both lists, as the control is.
void EnableLists(HWND window, bool enabled);

// The dialog, or one of its lists; null when there is none.
HWND DialogOf(HWND window);
HWND ListOf(HWND window, std::int32_t list);

// Sends a message to a list, whose procedure may be a host's; CB_ERR when there is no list.
LRESULT AskList(HWND list, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

// Copies the chosen family's name; false, and nothing is copied, when none is chosen.
bool CopyChosenFamily(HWND window, char (&name)[kFaceNameSize]);

// The metrics that the logic knows, of a font on the screen.
FontMetrics MetricsOf(HFONT font);

HFONT OrSystemFont(HFONT font);

} // namespace vorn::fontselect
