/*
 * VORN32: the percent bar (window class "VORNPercentBar32").
 *
 * A horizontal progress indicator: a progress value against a limit as the filled part of a bar,
 * optionally with the percentage written across it, a scale from 0 to 100 under it, tick marks and
 * one of three frames. It takes no input and sends no notifications.
 *
 * A parent may choose the colours around the bar: the control sends it WM_CTLCOLORDLG (device
 * context, control) at every paint, uses the brush that comes back, takes the context's text
 * colour for the scale and its background colour for an edge of the frames: the raised one's outer
 * upper and left, the sunken one's inner lower and right. A parent that answers 0 and leaves the
 * context alone leaves the control its own colours; DefWindowProc does not: it answers a brush and
 * sets colours.
 *
 * Every function returns 0 when the window is no percent bar. "Redraws" means at once; the result
 * of such a function is that of RedrawWindow.
 */
#ifndef VORN32_PERCENTBAR_H
#define VORN32_PERCENTBAR_H

#include <vorn32/library.h>

/*
 * Window styles, read once at creation; of several borders the lowest bit wins. The functions
 * below keep the style bits in step.
 */
#define VPBS_SUNKEN 0x01    /* sunken frame */
#define VPBS_RAISED 0x02    /* raised frame */
#define VPBS_LINE 0x04      /* one-pixel line */
#define VPBS_TICKMARKS 0x08 /* tick marks at every twentieth of the bar, longer at the tenths */
#define VPBS_SCALETEXT 0x10 /* the scale from 0 to 100 under the bar */
#define VPBS_PERCENT 0x20   /* the percentage */

/* Messages: the functions' twins. All but the last two result in 0. */
#define VPBM_SETLIMIT (WM_USER + 0)           /* lParam: limit */
#define VPBM_SETPROGRESS (WM_USER + 1)        /* lParam: progress */
#define VPBM_SETBARCOLOR (WM_USER + 2)        /* lParam: colour code, slot 2 of pbSetColor */
#define VPBM_SETBACKGROUNDCOLOR (WM_USER + 3) /* lParam: colour code, slot 8 */
#define VPBM_SETFILLCOLOR (WM_USER + 4)       /* lParam: colour code, slot 16 */
#define VPBM_SETTEXTCOLOR (WM_USER + 5)       /* lParam: colour code, slot 4 */
#define VPBM_SETPERCENTFONT (WM_USER + 6)     /* wParam: font, or null */
#define VPBM_GETPROGRESS (WM_USER + 7)        /* result: progress */
#define VPBM_GETLIMIT (WM_USER + 8)           /* result: limit */

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Sets the value that means a full bar (100 at creation); a progress above it becomes the limit.
 * A limit of 0 shows an empty bar and 0%. Redraws the control.
 */
VORNAPI BOOL WINAPI pbSetLimit(HWND window, LONG limit);

/* The limit. */
VORNAPI LONG WINAPI pbGetLimit(HWND window);

/*
 * Sets the progress (0 at creation), at most the limit. A negative one is kept: an empty bar with
 * a negative percentage. Redraws only the bar, not its surroundings.
 */
VORNAPI BOOL WINAPI pbSetProgress(HWND window, LONG progress);

/* The progress. */
VORNAPI LONG WINAPI pbGetProgress(HWND window);

/*
 * Sets a colour: VORN_COLOR_HIGHLIGHT and VORN_COLOR_SHADOW of the frames, VORN_COLOR_FACE the
 * empty part of the bar (and the percentage over the filled part), VORN_COLOR_TEXT the scale,
 * VORN_COLOR_BACKGROUND the control outside the bar (these two when the parent leaves them, see
 * above), VORN_COLOR_FILL the filled part (and the percentage over the empty part). Any other slot
 * changes nothing. Redraws the control.
 */
VORNAPI BOOL WINAPI pbSetColor(HWND window, int slot, COLORREF colorCode);

/*
 * Sets the border, one of the VORN_BORDER_ styles; any other number draws no frame and takes no
 * room. Redraws the control.
 */
VORNAPI BOOL WINAPI pbSetBorderStyle(HWND window, DWORD borderStyle);

/* Shows (non-zero) or hides the scale from 0 to 100 under the bar. Redraws the control. */
VORNAPI BOOL WINAPI pbEnableText(HWND window, BOOL enable);

/* Shows (non-zero) or hides the tick marks. Redraws the control. */
VORNAPI BOOL WINAPI pbEnableTickMarks(HWND window, BOOL enable);

/* Shows (non-zero) or hides the percentage. Redraws the control. */
VORNAPI BOOL WINAPI pbEnablePercent(HWND window, BOOL enable);

/*
 * Sets the font of the percentage; null means the stock SYSTEM_FONT. The font stays the host's.
 * (The scale's font is that of WM_SETFONT.) Redraws the control. Also exported under the name
 * "_pbSetPercentFont@8".
 */
VORNAPI BOOL WINAPI pbSetPercentFont(HWND window, HFONT font);

#ifdef __cplusplus
}
#endif

#endif
