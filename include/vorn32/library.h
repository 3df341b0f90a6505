/*
 * VORN32: the library itself. Loading VORN32.dll registers eleven global window classes, which any
 * dialog template or CreateWindowEx call of the process can then name; unloading it unregisters
 * them. The load is refused when one of them cannot be registered.
 */
#ifndef VORN32_LIBRARY_H
#define VORN32_LIBRARY_H

#include <vorn32/base.h>

/* Window classes. */
#define VORN_BUTTON_CLASS "VORNButton32"
#define VORN_NUMEDIT_CLASS "VORNNumEdit32"
#define VORN_DATEEDIT_CLASS "VORNDateEdit32"
#define VORN_TIMEEDIT_CLASS "VORNTimeEdit32"
#define VORN_FONTSELECT_CLASS "VORNFontSelect32"
#define VORN_CALENDAR_CLASS "VORNCalendar32"
#define VORN_DIAL_CLASS "VORNDial32"
#define VORN_UDLR_CLASS "VORNUDLR32"
#define VORN_PERCENTBAR_CLASS "VORNPercentBar32"
#define VORN_HIERLIST_CLASS "VORNHierList32"
#define VORN_COMBOBOX_CLASS "VORNComboBox32"

/*
 * Asked of their parent (both parameters 0) by the picture button while it paints and by the font
 * selector when it is clicked. A parent that answers VORN_HOST_APP_YES gets their alternative
 * behaviour; every other answer, such as the 0 of a window that does not know the message, the
 * usual one.
 */
#define VORN_WM_IS_HOST_APP (WM_USER + 420)
#define VORN_HOST_APP_YES 99

#ifdef __cplusplus
extern "C" {
#endif

/*
 * The library's version from its version resource: major in bits 24 to 31, minor in bits 16 to 23,
 * third number in bits 0 to 15 (2.10.5 is 0x020A0005). 0 when it cannot be read.
 */
VORNAPI DWORD WINAPI GetLongVersion(void);

/* The high half of GetLongVersion: major in bits 8 to 15, minor in bits 0 to 7. */
VORNAPI DWORD WINAPI GetVORNVersion(void);

/*
 * The window procedures of the classes, for hosts that build a class of their own on one of them.
 */
VORNAPI LRESULT CALLBACK VORNButtonWinFn(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
VORNAPI LRESULT CALLBACK VORNNumEditWinFn(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
VORNAPI LRESULT CALLBACK VORNDateEditWinFn(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
VORNAPI LRESULT CALLBACK VORNTimeEditWinFn(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
VORNAPI LRESULT CALLBACK VORNFontSelectWinFn(HWND window, UINT message, WPARAM wParam,
                                             LPARAM lParam);
VORNAPI LRESULT CALLBACK VORNCalendarWinFn(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
VORNAPI LRESULT CALLBACK VORNDialWinFn(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
VORNAPI LRESULT CALLBACK VORNUDLRWinFn(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
VORNAPI LRESULT CALLBACK VORNPctBarWinFn(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
VORNAPI LRESULT CALLBACK VORNHierListWinFn(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
VORNAPI LRESULT CALLBACK VORNCBFunction(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

#ifdef __cplusplus
}
#endif

#endif
