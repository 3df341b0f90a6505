/*
 * VORN32: the outline list (window class "VORNHierList32").
 *
 * A list box whose rows are the open part of a tree of items. An item with children is open, with
 * its children as the rows below it, one level deeper, or closed. It takes the styles of the
 * system's list box (LBS_...), paints itself or has its parent paint (LBS_OWNERDRAWFIXED,
 * LBS_OWNERDRAWVARIABLE), and scrolls by scroll bars that it shows when they are needed and the
 * window was created with WS_VSCROLL or WS_HSCROLL.
 *
 * An item is named in two ways: by its handle, which stays the same until the item is deleted, and
 * by its row, its 0-based position among the visible items. Functions whose names end in Ex take
 * and give handles, the others rows. The number -1 stands for no row and for failure.
 *
 * Functions answer -1 for a window that is no outline list, unless they say otherwise.
 */
#ifndef VORN32_HIERLIST_H
#define VORN32_HIERLIST_H

#include <vorn32/library.h>

/* Window styles beside those of the system's list box and WS_BORDER. */
#define OLBS_SUNKEN 0x4000 /* a sunken frame */
#define OLBS_RAISED 0x8000 /* a raised frame */

/* An item's handle. Where none is asked for or there is none to give: null or OLB_NOITEM. */
/* NOLINTNEXTLINE(modernize-use-using): C has no other way */
typedef struct OLBITEM_* HOLBITEM;
#define OLB_NOITEM ((HOLBITEM)(LONG_PTR)-1)

/* As a picture index: a folder, closed or open as the item is, ahead of all others when sorted. */
#define OLB_SORTFIRST (-32768)

/* The parts of the list that olbSetColor colours. */
#define OLBC_LIGHTEDGE 0
#define OLBC_DARKEDGE 1
#define OLBC_BACKGROUND 2
#define OLBC_TEXT 4
#define OLBC_FACE 8
#define OLBC_LINES 16
#define OLBC_LOCKEDTEXT 32
#define OLBC_SELECTEDTEXT 64

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Add an item as a child: behind its new siblings, or in order with LBS_SORT. The parent is a row
 * or a handle; none means the top level. An owner-drawn list without LBS_HASSTRINGS keeps the
 * pointer as a value and never reads a text there. The result is the new item's row (of an item
 * that is hidden, its position among its siblings) or its handle; -1 or OLB_NOITEM when memory ran
 * out.
 */
VORNAPI LONG WINAPI olbAddString(HWND window, LPCSTR text);
VORNAPI LONG WINAPI olbAddChildString(HWND window, LONG parent, LPCSTR text);
VORNAPI HOLBITEM WINAPI olbAddChildStringEx(HWND window, HOLBITEM parent, LPCSTR text);

/*
 * Make rows of an item's children, and hide them with all below them. A locked item, one without
 * children and a row that does not exist cannot be opened; a locked one can be closed.
 */
VORNAPI void WINAPI olbOpenItem(HWND window, LONG row);
VORNAPI void WINAPI olbCloseItem(HWND window, LONG row);

/*
 * Show or hide parts of every row: the tree's dotted lines, the open/close boxes in front of items,
 * and the items' pictures (shown from the start); and have the highlight reach to the right edge.
 * The result is what was before, 0 or 1.
 */
VORNAPI LONG WINAPI olbShowLines(HWND window, BOOL on);
VORNAPI LONG WINAPI olbEnableMicroBitmaps(HWND window, BOOL on);
VORNAPI LONG WINAPI olbEnableBitmaps(HWND window, BOOL on);
VORNAPI LONG WINAPI olbSetFullSelectRect(HWND window, BOOL on);

/* The pixels that each level is indented by, 20 at first. Setting results in what was before. */
VORNAPI LONG WINAPI olbSetIndent(HWND window, WORD pixels);
VORNAPI LONG WINAPI olbGetIndent(HWND window);

/*
 * Sets which picture an item shows, or for null or OLB_NOITEM those without one of their own: the
 * how many-th of its strip. OLB_SORTFIRST shows a folder and sorts ahead of all others. Results in
 * what was before.
 */
VORNAPI LONG WINAPI olbSetBitmapIndexEx(HWND window, HOLBITEM item, LONG index);

/*
 * Sets the colour of a part (OLBC_...); an unknown one changes nothing. Repaints if `redraw` is
 * nonzero and the style lacks LBS_NOREDRAW. Results in what UpdateWindow answers after a repaint,
 * else in the stored colour code, or in the part when it is unknown; 0 for no outline list.
 */
VORNAPI DWORD WINAPI olbSetColor(HWND window, int part, COLORREF colorCode, BOOL redraw);

/*
 * The border, VORN_BORDER_NONE to VORN_BORDER_SUNKEN. Setting gives the window the size that keeps
 * its client area, counting the scroll bars that the list was created with, shown or not; it
 * results in 1, 0 for no outline list.
 */
VORNAPI BOOL WINAPI olbSetBorderStyle(HWND window, DWORD border);
VORNAPI LONG WINAPI olbGetBorderStyle(HWND window);

/*
 * For parents that draw rows: draw a row's picture, and its lines and open/close box, as the list
 * itself would in a row at this place, as far as they are shown. The ground is the parent's; of the
 * picture's place one colour counts, that of the top left pixel. The first results in the x behind
 * the picture (where the text may begin, 3 pixels further on), -1 for no outline list or row; the
 * second in 1, 0 for none.
 */
VORNAPI int WINAPI olbPaintBitmap(HWND window, HDC context, LONG row, const RECT* place);
VORNAPI BOOL WINAPI olbPaintLines(HWND window, HDC context, LONG row, const RECT* place);

/*
 * The procedure that the list gives its timers: 101, which carries a selection on while the mouse
 * is held outside the list, and 100, which starts anew at each tick. Hosts have no need to call it.
 */
VORNAPI void CALLBACK lbTimerProc(HWND window, UINT message, UINT_PTR timer, DWORD time);

#ifdef __cplusplus
}
#endif

#endif
