/*
 * VORN32: the picture button (window class "VORNButton32").
 *
 * A push button with a centred caption and beside it a picture of the built-in strip, a bitmap of
 * the host's or a colour swatch. It can be an ordinary button, a toggle button or an auto-repeat
 * button, takes part in the dialog manager's default-button protocol like a system button, and
 * tells its parent of presses, releases, focus and disabling.
 *
 * Every function answers 0 and touches nothing when the window is no picture button. "Redraws"
 * means at once; the result of such a function is that of RedrawWindow.
 */
#ifndef VORN32_BUTTON_H
#define VORN32_BUTTON_H

#include <vorn32/library.h>

/* Window styles. */
#define VBTS_DEFAULT 0x0001     /* the dialog's default button: framed, answers Return */
#define VBTS_PICTUREONLY 0x0002 /* picture centred, no caption; at creation: strip of 16 by 15 */
#define VBTS_PICTURE 0x0004     /* a picture */
#define VBTS_SWATCH 0x0008      /* a colour swatch; counts without VBTS_PICTURE */
#define VBTS_AUTOREPEAT 0x0200  /* clicks at the press and on while it is held */
#define VBTS_TOGGLE 0x0400      /* each press flips between down and up; clicks when going down */
#define VBTS_NOTIFY 0x4000      /* send all notifications, not only clicks */

/* Notification codes. All but VBTN_CLICKED need VBTS_NOTIFY. */
#define VBTN_CLICKED 0   /* it was clicked */
#define VBTN_DOWN 2      /* it went down */
#define VBTN_UP 3        /* it came up */
#define VBTN_DISABLED 4  /* it was disabled */
#define VBTN_SETFOCUS 6  /* it got the focus */
#define VBTN_KILLFOCUS 7 /* it lost the focus */

/* What btnGetState answers: none, one or both of these. */
#define VBTST_DOWN 4  /* it is down */
#define VBTST_FOCUS 8 /* it has the focus */

/*
 * Messages: the functions' twins, beside BM_GETSTATE, BM_SETSTATE and BM_SETSTYLE. Those that set
 * something result in 0. WM_USER + 3 is accepted and does nothing.
 */
#define VBTM_GETSTATE (WM_USER + 2)       /* result: state */
#define VBTM_SETSTYLE (WM_USER + 4)       /* wParam: style bits; LOWORD(lParam): redraw */
#define VBTM_SETBITMAP (WM_USER + 100)    /* wParam: bitmap, or null */
#define VBTM_STOPREPEAT (WM_USER + 101)   /* */
#define VBTM_SETPICTURE (WM_USER + 103)   /* wParam: index */
#define VBTM_GETBITMAP (WM_USER + 104)    /* result: bitmap, or null */
#define VBTM_SETCOLORCODE (WM_USER + 105) /* lParam: colour code */

#ifdef __cplusplus
extern "C" {
#endif

/* VBTST_DOWN, VBTST_FOCUS, their sum or 0. */
VORNAPI DWORD WINAPI btnGetState(HWND window);

/*
 * Takes the button down (non-zero) or up. When it was not, it is redrawn and notifies VBTN_DOWN or
 * VBTN_UP; it never clicks.
 */
VORNAPI void WINAPI btnSetState(HWND window, BOOL down);

/*
 * Adds style bits after clearing VBTS_AUTOREPEAT and VBTS_TOGGLE and, unless the button is
 * VBTS_PICTUREONLY, VBTS_DEFAULT and VBTS_PICTUREONLY. Redraws when asked to; otherwise the result
 * is that of SetWindowLong, the style before.
 */
VORNAPI LONG WINAPI btnSetStyle(HWND window, DWORD styleBits, BOOL redraw);

/*
 * Chooses the picture of the built-in strip: 0 to 14 with a caption, 0 to 31 without; any other
 * index shows the first. Redraws the button.
 */
VORNAPI BOOL WINAPI btnSetPicture(HWND window, UINT index);

/*
 * Shows a bitmap of the host's in place of the strip's picture; null returns to the strip. The
 * colour of its bottom-left pixel is transparent. The bitmap stays the host's, who deletes it
 * after the button or after setting another. Redraws the button.
 */
VORNAPI BOOL WINAPI btnSetBitmap(HWND window, HBITMAP bitmap);

/* The host's bitmap; null when there is none. */
VORNAPI HBITMAP WINAPI btnGetBitmap(HWND window);

/* Stops the repeat of a VBTS_AUTOREPEAT button that is held down. */
VORNAPI void WINAPI btnStopRepeat(HWND window);

/* Sets the swatch's colour (dark green at creation). Redraws the button. */
VORNAPI BOOL WINAPI btnSetColorCode(HWND window, COLORREF colorCode);

/*
 * Sets a colour: VORN_COLOR_HIGHLIGHT and VORN_COLOR_SHADOW of the frames and of a disabled
 * caption, VORN_COLOR_FACE the background, VORN_COLOR_TEXT the caption, VORN_COLOR_SWATCH the
 * swatch. Any other slot changes nothing. Redraws the button.
 */
VORNAPI BOOL WINAPI btnSetColor(HWND window, int slot, COLORREF colorCode);

/* Shows (non-zero) or hides the picture; showing it hides the swatch. Redraws the button. */
VORNAPI BOOL WINAPI btnEnablePicture(HWND window, BOOL enable);

/* Shows (non-zero) or hides the swatch; showing it hides the picture. Redraws the button. */
VORNAPI BOOL WINAPI btnEnableColorCode(HWND window, BOOL enable);

#ifdef __cplusplus
}
#endif

#endif
