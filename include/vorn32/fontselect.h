/*
 * VORN32: the font selector (window class "VORNFontSelect32").
 *
 * A compound control for picking a font family and a point size: two drop-down lists, one of all
 * font families of the system and one of sixteen sizes, beside each other. It starts with the first
 * family and 10 points. Values that are set by functions or messages notify nothing.
 *
 * In a dialog the Tab key goes through the lists as through controls of the dialog's own.
 * The system tells only top-level windows of added and removed fonts (WM_FONTCHANGE); a host that
 * passes the message on gets a new list of families, with the same choice when it is still there.
 *
 * Functions that have a result answer 0 when the window is no font selector, unless they say
 * otherwise.
 */
#ifndef VORN32_FONTSELECT_H
#define VORN32_FONTSELECT_H

#include <vorn32/library.h>

/*
 * Notifications, posted to the parent (not sent): WM_COMMAND with the control's identifier or the
 * command code that was set for the notification, and the control's window in lParam.
 */
#define VFSN_FONTCHANGE 1 /* the user chose a family */
#define VFSN_SIZECHANGE 2 /* the user chose a size */

/* Messages: the functions' twins, with their results; 0 for a function without a result. */
#define VFSM_GETBACKGROUNDCOLOR (WM_USER + 0)  /* result: the RGB colour of the background */
#define VFSM_SETFONTFAMILY (WM_USER + 1)       /* lParam: name */
#define VFSM_SETFONTSIZE (WM_USER + 2)         /* wParam: logical height */
#define VFSM_GETFONTFAMILY (WM_USER + 3)       /* wParam: size of the buffer; lParam: buffer */
#define VFSM_GETFONTSIZE (WM_USER + 4)         /* result: logical height */
#define VFSM_SETFONTCOMMANDCODE (WM_USER + 5)  /* wParam: code */
#define VFSM_SETSIZECOMMANDCODE (WM_USER + 6)  /* wParam: code */
#define VFSM_GETFONTPOINTSIZE (WM_USER + 7)    /* result: points */
#define VFSM_SETFONTPOINTSIZE (WM_USER + 8)    /* wParam: points */
#define VFSM_SETFIELDCOLOR (WM_USER + 9)       /* lParam: colour code, slot 2 of fsSetColor */
#define VFSM_SETBACKGROUNDCOLOR (WM_USER + 10) /* lParam: colour code, slot 8 */
#define VFSM_SETITEMHEIGHT (WM_USER + 11)      /* wParam: pixels */
#define VFSM_SETTEXTCOLOR (WM_USER + 12)       /* lParam: colour code, slot 4 */

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Copies the chosen family's name, cut to size - 1 characters and terminated. Without a choice, or
 * without a font selector, the name is " ". A size below 1 or a null buffer takes nothing.
 */
VORNAPI void WINAPI fsGetFontFamily(HWND window, LPSTR buffer, int size);

/*
 * Chooses the first family whose name begins with this one, whatever the case. The result is its
 * index in the list, or -1 when there is none; the choice stays then.
 */
VORNAPI LONG WINAPI fsSetFontFamily(HWND window, LPCSTR name);

/* The chosen size in points; 10 without a choice or without a font selector. */
VORNAPI LONG WINAPI fsGetFontPointSize(HWND window);

/*
 * Chooses a size. One that is not in the list is replaced: below 8 points by 8, above 72 by 72, and
 * between two of the list by the one farther away (the larger when both are equally far), so that
 * 34 gives 28 and 30 gives 36. The result is the size's index in the list, or -1.
 */
VORNAPI LONG WINAPI fsSetFontPointSize(HWND window, LONG points);

/*
 * The chosen size as the logical height for LOGFONT: minus the character height in pixels, pixels
 * an inch times points / 72 without its fraction. That of 10 points without a choice or without a
 * font selector.
 */
VORNAPI LONG WINAPI fsGetFontSize(HWND window);

/*
 * Chooses a size by a logical height: a negative one or 0 is a character height, a positive one the
 * cell height of the chosen family in bold. The nearest number of points is then chosen as by
 * fsSetFontPointSize, whose result this function has.
 */
VORNAPI LONG WINAPI fsSetFontSize(HWND window, LONG height);

/*
 * Set the identifier that notifications carry instead of the control's own; 0 means the control's
 * own again.
 */
VORNAPI void WINAPI fsSetFontCommandCode(HWND window, WORD code);
VORNAPI void WINAPI fsSetSizeCommandCode(HWND window, WORD code);

/*
 * Sets a colour: VORN_COLOR_BACKGROUND around the lists; VORN_COLOR_FACE and VORN_COLOR_TEXT are
 * kept for the lists, which show the system's colours. Any other slot changes nothing. Redraws the
 * control; the result is that of RedrawWindow.
 */
VORNAPI BOOL WINAPI fsSetColor(HWND window, int slot, COLORREF colorCode);

/*
 * Sets the height of the items of both lists, in pixels. The result is the family list's answer to
 * CB_SETITEMHEIGHT.
 */
VORNAPI LONG WINAPI fsSetItemHeight(HWND window, WORD height);

/*
 * The procedure of the dialog that holds the lists. Also exported under the name
 * "_fnFontSelProc@16".
 */
VORNAPI INT_PTR CALLBACK fnFontSelProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

/*
 * Adds a family to a font selector; what EnumFontFamilies calls. `window` is the font selector's
 * window. Always 1: go on.
 */
VORNAPI int CALLBACK EnumFamCallBack(const LOGFONTA* font, const TEXTMETRICA* metrics,
                                     DWORD fontType, LPARAM window);

#ifdef __cplusplus
}
#endif

#endif
