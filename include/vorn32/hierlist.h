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
 * Functions answer -1 for a window that is no outline list; 0, FALSE or null where a bitmap, a
 * BOOL, a colour or flags are the answer.
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

/* No item, as a handle: what functions answer that found none or had no memory for one. */
#define OLB_NOITEM ((HOLBITEM)(LONG_PTR)-1)

/* As a picture index: a folder, closed or open as the item is, ahead of all others when sorted. */
#define OLB_SORTFIRST (-32768)

/* As a position: behind all siblings. */
#define OLB_APPEND 65535

/* As a picture index of an item: that of its level, or else of the control. */
#define OLB_DEFAULTPICTURE (-1)

/* The parts of the list that olbSetColor colours. */
#define OLBC_LIGHTEDGE 0     /* the light lines of a frame */
#define OLBC_DARKEDGE 1      /* its dark lines */
#define OLBC_BACKGROUND 2    /* behind the rows */
#define OLBC_TEXT 4          /* text */
#define OLBC_FACE 8          /* the face of a frame */
#define OLBC_LINES 16        /* the tree's lines */
#define OLBC_LOCKEDTEXT 32   /* text of locked items */
#define OLBC_SELECTEDTEXT 64 /* text of selected items */

/*
 * The options that olbSetFlags changes. Each has a function of its own too, but for
 * OLBO_ASKBACKGROUND.
 */
#define OLBO_PROPORTIONAL 0x01  /* proportional scroll bars; they always are */
#define OLBO_AUTOOPEN 0x02      /* a visible item that is not locked opens when it gets a child */
#define OLBO_LINES 0x04         /* the tree's dotted lines */
#define OLBO_ASKBACKGROUND 0x08 /* the parent gives the background brush (WM_CTLCOLORLISTBOX) */
#define OLBO_FULLSELECT 0x10    /* the highlight reaches to the right edge */
#define OLBO_BOXES 0x80         /* open/close boxes in front of items */

/*
 * Records of messages that take more than fits. Fields are as wide as a pointer, but for a position
 * of 16 bits.
 */
/* NOLINTBEGIN(modernize-use-using): C has no other way */
typedef struct OLBROWPAIR { /* an item, and its new parent; or from, and to */
    LONG_PTR item;          /* row of the item, or of that whose children are meant */
    LONG_PTR parent;        /* row of the new parent */
} OLBROWPAIR;
typedef struct OLBHANDLEPAIR { /* the same as handles */
    HOLBITEM item;             /* the item, or that whose children are meant */
    HOLBITEM parent;           /* the new parent */
} OLBHANDLEPAIR;
typedef struct OLBHANDLETEXT { /* an item and a text */
    HOLBITEM item;             /* the item; when adding, the parent */
    LPCSTR text;               /* the text */
} OLBHANDLETEXT;
typedef struct OLBHANDLEBUFFER { /* an item and where its text goes */
    HOLBITEM item;               /* the item */
    LPSTR buffer;                /* the buffer */
} OLBHANDLEBUFFER;
typedef struct OLBROWSEARCH { /* what is searched */
    LONG_PTR parent;          /* row of the parent */
    LONG_PTR start;           /* as olbFindString takes it */
    LPCSTR text;              /* the text */
} OLBROWSEARCH;
typedef struct OLBHANDLESEARCH { /* the same as a handle */
    HOLBITEM parent;             /* the parent */
    LONG_PTR start;              /* as olbFindStringEx takes it */
    LPCSTR text;                 /* the text */
} OLBHANDLESEARCH;
typedef struct OLBINSERTION { /* aligned as usual */
    HOLBITEM parent;          /* the parent */
    WORD position;            /* as olbInsertStringEx takes it */
    LPCSTR text;              /* the text */
} OLBINSERTION;
/* NOLINTEND(modernize-use-using) */

/*
 * Messages: the functions' twins, with their results; text results are lengths, of 16 bits. Those
 * whose function has no result result in 0. OLBM_FINDSTRINGEXACT and OLBM_FINDSTRINGEXACTEX are
 * olbFindString and olbFindStringEx for whole texts. The list takes all messages of a list box
 * beside them, LB_ADDSTRING to LB_FINDSTRINGEXACT.
 */
#define OLBM_CLOSEALL (WM_USER + 40)                   /* */
#define OLBM_ADDCHILDSTRING (WM_USER + 300)            /* wParam: row of the parent; lParam: text */
#define OLBM_ADDCHILDSTRINGEX (WM_USER + 301)          /* lParam: OLBHANDLETEXT */
#define OLBM_ADDSTRING (WM_USER + 302)                 /* lParam: text */
#define OLBM_CHANGESTYLE (WM_USER + 303)               /* wParam: style */
#define OLBM_CLOSEITEM (WM_USER + 304)                 /* wParam: row */
#define OLBM_COPYCHILDREN (WM_USER + 305)              /* wParam: position; lParam: OLBROWPAIR */
#define OLBM_COPYCHILDRENEX (WM_USER + 306)            /* wParam: position; lParam: OLBHANDLEPAIR */
#define OLBM_COPYITEM (WM_USER + 307)                  /* wParam: position; lParam: OLBROWPAIR */
#define OLBM_COPYITEMEX (WM_USER + 308)                /* wParam: position; lParam: OLBHANDLEPAIR */
#define OLBM_DELETESTRING (WM_USER + 309)              /* wParam: row */
#define OLBM_DELETESTRINGEX (WM_USER + 310)            /* lParam: handle */
#define OLBM_DELETESUBTREE (WM_USER + 311)             /* wParam: row */
#define OLBM_DELETESUBTREEEX (WM_USER + 312)           /* lParam: handle */
#define OLBM_DIREX (WM_USER + 313)                     /* wParam: attributes; lParam: drive */
#define OLBM_FINDSTRING (WM_USER + 314)                /* wParam: exact; lParam: OLBROWSEARCH */
#define OLBM_FINDSTRINGEX (WM_USER + 315)              /* wParam: exact; lParam: OLBHANDLESEARCH */
#define OLBM_FINDSTRINGEXACT (WM_USER + 316)           /* lParam: OLBROWSEARCH */
#define OLBM_FINDSTRINGEXACTEX (WM_USER + 317)         /* lParam: OLBHANDLESEARCH */
#define OLBM_GETBOTTOMINDEX (WM_USER + 318)            /* */
#define OLBM_GETCHILDHANDLE (WM_USER + 319)            /* wParam: row; lParam: child */
#define OLBM_GETCHILDHANDLEEX (WM_USER + 320)          /* wParam: child; lParam: handle */
#define OLBM_GETCOUNT (WM_USER + 321)                  /* */
#define OLBM_GETCURSEL (WM_USER + 322)                 /* */
#define OLBM_GETCURSELEX (WM_USER + 323)               /* */
#define OLBM_GETFULLPATH (WM_USER + 324)               /* wParam: row; lParam: buffer */
#define OLBM_GETFULLPATHEX (WM_USER + 325)             /* lParam: OLBHANDLEBUFFER */
#define OLBM_GETITEMDATA (WM_USER + 326)               /* wParam: row */
#define OLBM_GETITEMDATAEX (WM_USER + 327)             /* lParam: handle */
#define OLBM_GETITEMHEIGHT (WM_USER + 328)             /* wParam: row */
#define OLBM_GETITEMHEIGHTEX (WM_USER + 329)           /* lParam: handle */
#define OLBM_GETITEMRECT (WM_USER + 330)               /* wParam: row; lParam: RECT */
#define OLBM_GETPATHSEPARATOR (WM_USER + 331)          /* lParam: buffer */
#define OLBM_GETSEL (WM_USER + 332)                    /* wParam: row */
#define OLBM_GETSELITEMS (WM_USER + 333)               /* wParam: how many; lParam: rows */
#define OLBM_GETTEXT (WM_USER + 334)                   /* wParam: row; lParam: buffer */
#define OLBM_GETTEXTEX (WM_USER + 335)                 /* lParam: OLBHANDLEBUFFER */
#define OLBM_GETTEXTLENGTH (WM_USER + 336)             /* wParam: row */
#define OLBM_GETTEXTLENGTHEX (WM_USER + 337)           /* lParam: handle */
#define OLBM_GETTOPINDEX (WM_USER + 338)               /* */
#define OLBM_GETVISIBLECOUNT (WM_USER + 339)           /* */
#define OLBM_HANDLETOINDEX (WM_USER + 340)             /* lParam: handle */
#define OLBM_INDEXTOHANDLE (WM_USER + 341)             /* wParam: row */
#define OLBM_INSERTSTRING (WM_USER + 342)              /* wParam: row; lParam: text */
#define OLBM_INSERTSTRINGEX (WM_USER + 343)            /* lParam: OLBINSERTION */
#define OLBM_LOCKITEM (WM_USER + 344)                  /* wParam: row; lParam: on */
#define OLBM_LOCKITEMEX (WM_USER + 345)                /* wParam: on; lParam: handle */
#define OLBM_MOVECHILDREN (WM_USER + 346)              /* wParam: position; lParam: OLBROWPAIR */
#define OLBM_MOVECHILDRENEX (WM_USER + 347)            /* wParam: position; lParam: OLBHANDLEPAIR */
#define OLBM_MOVEITEM (WM_USER + 348)                  /* wParam: position; lParam: OLBROWPAIR */
#define OLBM_MOVEITEMEX (WM_USER + 349)                /* wParam: position; lParam: OLBHANDLEPAIR */
#define OLBM_OPENITEM (WM_USER + 350)                  /* wParam: row */
#define OLBM_OPENALL (WM_USER + 351)                   /* wParam: row */
#define OLBM_ISAUTOOPEN (WM_USER + 352)                /* */
#define OLBM_HASCHILDREN (WM_USER + 353)               /* wParam: row */
#define OLBM_HASCHILDRENEX (WM_USER + 354)             /* lParam: handle */
#define OLBM_QUERYLEVEL (WM_USER + 355)                /* wParam: row */
#define OLBM_QUERYLEVELEX (WM_USER + 356)              /* lParam: handle */
#define OLBM_QUERYLOCK (WM_USER + 357)                 /* wParam: row */
#define OLBM_QUERYLOCKEX (WM_USER + 358)               /* lParam: handle */
#define OLBM_QUERYOPEN (WM_USER + 359)                 /* wParam: row */
#define OLBM_QUERYOPENEX (WM_USER + 360)               /* lParam: handle */
#define OLBM_QUERYPARENT (WM_USER + 361)               /* wParam: row */
#define OLBM_QUERYPARENTEX (WM_USER + 362)             /* lParam: handle */
#define OLBM_QUERYVISIBLE (WM_USER + 363)              /* lParam: handle */
#define OLBM_SELECTSTRING (WM_USER + 364)              /* wParam: row to start at; lParam: text */
#define OLBM_SETAUTOOPEN (WM_USER + 365)               /* wParam: on */
#define OLBM_SETBITMAPINDEX (WM_USER + 366)            /* wParam: row; lParam: index */
#define OLBM_SETBITMAPINDEXEX (WM_USER + 367)          /* wParam: index; lParam: handle */
#define OLBM_SETBITMAPS (WM_USER + 368)                /* wParam: row; lParam: bitmap */
#define OLBM_SETBITMAPSEX (WM_USER + 369)              /* wParam: bitmap; lParam: handle */
#define OLBM_SETBORDERSTYLE (WM_USER + 370)            /* wParam: border */
#define OLBM_SETCURSEL (WM_USER + 371)                 /* wParam: row */
#define OLBM_SETFULLSELECTRECT (WM_USER + 372)         /* wParam: on */
#define OLBM_SETINDENT (WM_USER + 373)                 /* wParam: pixels */
#define OLBM_SETITEMDATA (WM_USER + 374)               /* wParam: row; lParam: data */
#define OLBM_SETITEMDATAEX (WM_USER + 375)             /* wParam: data; lParam: handle */
#define OLBM_SETITEMHEIGHT (WM_USER + 376)             /* wParam: row; lParam: height */
#define OLBM_SETITEMHEIGHTEX (WM_USER + 377)           /* wParam: height; lParam: handle */
#define OLBM_SETITEMTEXT (WM_USER + 378)               /* wParam: row; lParam: text */
#define OLBM_SETITEMTEXTEX (WM_USER + 379)             /* lParam: OLBHANDLETEXT */
#define OLBM_SETLEVELBITMAP (WM_USER + 380)            /* wParam: level; lParam: bitmap */
#define OLBM_SETLEVELINDEX (WM_USER + 381)             /* wParam: level; lParam: index */
#define OLBM_SETPATHSEPARATOR (WM_USER + 382)          /* wParam: character */
#define OLBM_SETPROPORTIONALSCROLLBARS (WM_USER + 383) /* wParam: on */
#define OLBM_SETSEL (WM_USER + 384)                    /* wParam: row; lParam: on */
#define OLBM_SETTOPINDEX (WM_USER + 385)               /* wParam: row */
#define OLBM_SHOWLINES (WM_USER + 386)                 /* wParam: on */

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Adding items ---- */

/*
 * Add an item as a child: behind its new siblings, or in order with LBS_SORT. The parent is a row
 * or a handle; none, and a row that does not exist, means the top level. An owner-drawn list
 * without LBS_HASSTRINGS keeps the pointer as a value and never reads a text there. The result is
 * the new item's row (of an item that is hidden, its position among its siblings) or its handle; -1
 * or OLB_NOITEM when memory ran out.
 */
VORNAPI LONG WINAPI olbAddString(HWND window, LPCSTR text);
VORNAPI LONG WINAPI olbAddChildString(HWND window, LONG parent, LPCSTR text);
VORNAPI HOLBITEM WINAPI olbAddChildStringEx(HWND window, HOLBITEM parent, LPCSTR text);

/*
 * Insert an item whatever the order: as a sibling in front of a row, behind the last row for -1 and
 * past the end; or as a child at a position among its siblings, OLB_APPEND and past the end for
 * behind them. Results as above.
 */
VORNAPI LONG WINAPI olbInsertString(HWND window, LONG row, LPCSTR text);
VORNAPI HOLBITEM WINAPI olbInsertStringEx(HWND window, HOLBITEM parent, WORD position, LPCSTR text);

/*
 * Add what the file system has at the top level, each entry with the picture of its kind; olbDir
 * and olbDirEx in lower case. The attributes are those of LB_DIR (DDL_...). olbDir adds the drives
 * with DDL_DRIVES, otherwise what matches the pattern, with DDL_EXCLUSIVE only what shares an
 * attribute; it results in the row of the last entry, -1 when there is none. olbDirEx adds a drive
 * (1 for A, 0 the current one) with all its folders below it, and results in its row; with
 * DDL_DRIVES it is olbDir. olbAddFile adds the one name as it is and results in its row.
 */
VORNAPI LONG WINAPI olbDir(HWND window, DWORD attributes, LPCSTR pattern);
VORNAPI LONG WINAPI olbDirEx(HWND window, DWORD attributes, LONG drive);
VORNAPI LONG WINAPI olbAddFile(HWND window, LPCSTR name);

/* ---- Removing, moving, copying ---- */

/* Delete an item with all below it. The result is the row that it had, -1 if it was hidden. */
VORNAPI LONG WINAPI olbDeleteString(HWND window, LONG row);
VORNAPI LONG WINAPI olbDeleteStringEx(HWND window, HOLBITEM item);

/* Delete all below an item. The result is the number of items left. */
VORNAPI LONG WINAPI olbDeleteSubTree(HWND window, LONG row);
VORNAPI LONG WINAPI olbDeleteSubTreeEx(HWND window, HOLBITEM item);

VORNAPI void WINAPI olbResetContent(HWND window); /* deletes everything */

/*
 * Move an item, closed, to a position under a new parent; the parent may be -1 or null for the top
 * level. The result is the item; -1 or OLB_NOITEM when the new parent is the item or below it, null
 * for a handle of no item. olbMoveChildren and olbMoveChildrenEx move all children of an item, in
 * order, and result in the last one, null when there are none. The copying functions do the same
 * with copies of text, data, pictures, height and lock of all below too.
 */
VORNAPI LONG WINAPI olbMoveItem(HWND window, LONG row, LONG newParent, WORD position);
VORNAPI HOLBITEM WINAPI olbMoveItemEx(HWND window, HOLBITEM item, HOLBITEM newParent,
                                      WORD position);
VORNAPI LONG WINAPI olbMoveChildren(HWND window, LONG from, LONG to, WORD position);
VORNAPI HOLBITEM WINAPI olbMoveChildrenEx(HWND window, HOLBITEM from, HOLBITEM to, WORD position);
VORNAPI LONG WINAPI olbCopyItem(HWND window, LONG row, LONG newParent, WORD position);
VORNAPI HOLBITEM WINAPI olbCopyItemEx(HWND window, HOLBITEM item, HOLBITEM newParent,
                                      WORD position);
VORNAPI LONG WINAPI olbCopyChildren(HWND window, LONG from, LONG to, WORD position);
VORNAPI HOLBITEM WINAPI olbCopyChildrenEx(HWND window, HOLBITEM from, HOLBITEM to, WORD position);

/* ---- Opening and closing ---- */

/*
 * Make rows of an item's children, and hide them with all below them. A locked item, one without
 * children and a row that does not exist cannot be opened; a locked one can be closed. olbOpenAll
 * opens an item and all below it, -1 every item, but not what is locked nor what is below that;
 * olbCloseAll closes every item at the top.
 */
VORNAPI void WINAPI olbOpenItem(HWND window, LONG row);
VORNAPI void WINAPI olbCloseItem(HWND window, LONG row);
VORNAPI void WINAPI olbOpenAll(HWND window, LONG row);
VORNAPI void WINAPI olbCloseAll(HWND window);

/* Lock an item, so that it cannot be opened, or unlock it. The result is what was before, 0 or 1.
 */
VORNAPI LONG WINAPI olbLockItem(HWND window, LONG row, BOOL on);
VORNAPI LONG WINAPI olbLockItemEx(HWND window, HOLBITEM item, BOOL on);

/*
 * Whether a visible item that is not locked opens when a child is added; it does whenever one is
 * inserted, moved or copied into it. Setting results in what was before.
 */
VORNAPI BOOL WINAPI olbSetAutoOpen(HWND window, BOOL on);
VORNAPI BOOL WINAPI olbIsAutoOpen(HWND window);

/* ---- Where items are ---- */

/* 1 or 0; -1 for no item. Visible is an item that is a row, in view or not. */
VORNAPI LONG WINAPI olbQueryOpen(HWND window, LONG row);
VORNAPI LONG WINAPI olbQueryOpenEx(HWND window, HOLBITEM item);
VORNAPI LONG WINAPI olbQueryLock(HWND window, LONG row);
VORNAPI LONG WINAPI olbQueryLockEx(HWND window, HOLBITEM item);
VORNAPI LONG WINAPI olbHasChildren(HWND window, LONG row);
VORNAPI LONG WINAPI olbHasChildrenEx(HWND window, HOLBITEM item);
VORNAPI LONG WINAPI olbQueryVisible(HWND window, HOLBITEM item);

/* The level, 0 at the top; the parent, -1 or null for an item at the top. */
VORNAPI LONG WINAPI olbQueryLevel(HWND window, LONG row);
VORNAPI LONG WINAPI olbQueryLevelEx(HWND window, HOLBITEM item);
VORNAPI LONG WINAPI olbQueryParent(HWND window, LONG row);
VORNAPI HOLBITEM WINAPI olbQueryParentEx(HWND window, HOLBITEM item);

/*
 * A child by its number from 0. Only closed items know their children by number: null for an open
 * one and past the last. OLB_NOITEM for a parent that is none, 65535 included.
 */
VORNAPI HOLBITEM WINAPI olbGetChildHandle(HWND window, LONG row, LONG child);
VORNAPI HOLBITEM WINAPI olbGetChildHandleEx(HOLBITEM parent, LONG child);

/* The row of an item (of a hidden one its position among its siblings), and the item of a row. */
VORNAPI LONG WINAPI olbHandleToIndex(HOLBITEM item);
VORNAPI HOLBITEM WINAPI olbIndexToHandle(HWND window, LONG row); /* null past the end */

VORNAPI LONG WINAPI olbGetCount(HWND window);        /* all items */
VORNAPI LONG WINAPI olbGetVisibleCount(HWND window); /* the rows */

/*
 * Search the children of a closed item, or for -1 or null the items at the top, for a text: one
 * that begins with it, or is exactly it; upper and lower case differ. The search begins behind
 * `start`, a position or row, -1 for the first, and goes round. Results in the item's row (of a
 * hidden one its position among its siblings) or its handle; -1 or OLB_NOITEM when there is none.
 */
VORNAPI LONG WINAPI olbFindString(HWND window, LONG parent, LONG start, LPCSTR text, BOOL exact);
VORNAPI HOLBITEM WINAPI olbFindStringEx(HWND window, HOLBITEM parent, LONG start, LPCSTR text,
                                        BOOL exact);

/* ---- What items hold ---- */

/*
 * The text, copied to a buffer that must have room for it, and its length; of an item without text
 * its value, as wide as a pointer. Setting results in 0, -1 when memory ran out; the item keeps its
 * place, in order or not.
 */
VORNAPI LONG WINAPI olbGetText(HWND window, LONG row, LPSTR buffer);
VORNAPI LONG WINAPI olbGetTextEx(HWND window, HOLBITEM handle, LPSTR buffer);
VORNAPI LONG WINAPI olbGetTextLength(HWND window, LONG row);
VORNAPI LONG WINAPI olbGetTextLengthEx(HWND window, HOLBITEM handle);
VORNAPI LONG WINAPI olbSetItemText(HWND window, LONG row, LPCSTR text);
VORNAPI LONG WINAPI olbSetItemTextEx(HWND window, HOLBITEM handle, LPCSTR text);

/*
 * A value of the host's; until one is set, 0, and of an item without text the value that it was
 * added with. Setting results in 0.
 */
VORNAPI LONG_PTR WINAPI olbGetItemData(HWND window, LONG row);
VORNAPI LONG_PTR WINAPI olbGetItemDataEx(HWND window, HOLBITEM handle);
VORNAPI LONG WINAPI olbSetItemData(HWND window, LONG row, LONG_PTR data);
VORNAPI LONG WINAPI olbSetItemDataEx(HWND window, HOLBITEM handle, LONG_PTR data);

/*
 * The height in pixels, at least 1: of the item with LBS_OWNERDRAWVARIABLE, of all rows otherwise
 * and for -1, null and OLB_NOITEM. Setting results in 0.
 */
VORNAPI LONG WINAPI olbGetItemHeight(HWND window, LONG row);
VORNAPI LONG WINAPI olbGetItemHeightEx(HWND window, HOLBITEM handle);
VORNAPI LONG WINAPI olbSetItemHeight(HWND window, LONG row, LONG height);
VORNAPI LONG WINAPI olbSetItemHeightEx(HWND window, HOLBITEM handle, LONG height);

/*
 * The texts from the top down to the item with separators between them, in a buffer of 256
 * characters, which is the result. The separator is a backslash at first; setting one results in
 * the one before, and olbGetPathSeparator writes it and a NUL.
 */
VORNAPI LPSTR WINAPI olbGetFullPath(HWND window, LONG row, LPSTR buffer);
VORNAPI LPSTR WINAPI olbGetFullPathEx(HWND window, HOLBITEM handle, LPSTR buffer);
VORNAPI LONG WINAPI olbSetPathSeparator(HWND window, char separator);
VORNAPI void WINAPI olbGetPathSeparator(HWND window, LPSTR buffer);

/* ---- Pictures ---- */

/*
 * Set a strip of pictures, each as large as one of the library's own: of an item, and for -1, null
 * or OLB_NOITEM of the control. Results in the strip before. The control deletes its own at its
 * end; those of items stay the host's.
 */
VORNAPI HBITMAP WINAPI olbSetBitmaps(HWND window, LONG row, HBITMAP bitmap);
VORNAPI HBITMAP WINAPI olbSetBitmapsEx(HWND window, HOLBITEM handle, HBITMAP bitmap);

/*
 * Set which picture of the strip an item shows, and for -1, null or OLB_NOITEM those without one of
 * their own. OLB_SORTFIRST shows a folder and sorts ahead of all others. Results in what was
 * before.
 */
VORNAPI LONG WINAPI olbSetBitmapIndex(HWND window, LONG row, LONG index);
VORNAPI LONG WINAPI olbSetBitmapIndexEx(HWND window, HOLBITEM handle, LONG index);

/*
 * The strip and the picture of a level below 20, for items without their own. The control owns the
 * strip and deletes the one before; a new strip resets the index. Setting an index results in what
 * was before, -1 for none.
 */
VORNAPI void WINAPI olbSetLevelBitmap(HWND window, int level, HBITMAP bitmap);
VORNAPI LONG WINAPI olbSetLevelIndex(HWND window, int level, LONG index);

/*
 * For parents that draw rows: draw a row's picture, and its lines and open/close box, as the list
 * itself would in a row at this place, as far as they are shown. The ground is the parent's; of the
 * picture's place one colour counts, that of the top left pixel. The first results in the x behind
 * the picture (where the text may begin, 3 pixels further on), -1 for no outline list or row; the
 * second in 1, 0 for none.
 */
VORNAPI int WINAPI olbPaintBitmap(HWND window, HDC context, LONG row, const RECT* place);
VORNAPI BOOL WINAPI olbPaintLines(HWND window, HDC context, LONG row, const RECT* place);

/* ---- Looks ---- */

/*
 * Show or hide parts of every row: the tree's dotted lines, the open/close boxes in front of items,
 * and the items' pictures (shown from the start); and have the highlight reach to the right edge.
 * The result is what was before, 0 or 1.
 */
VORNAPI LONG WINAPI olbShowLines(HWND window, BOOL on);
VORNAPI LONG WINAPI olbEnableMicroBitmaps(HWND window, BOOL on);
VORNAPI LONG WINAPI olbEnableBitmaps(HWND window, BOOL on);
VORNAPI LONG WINAPI olbSetFullSelectRect(HWND window, BOOL on);

/* Kept as an option; scroll bars are proportional. The frame is reckoned anew. Result as above. */
VORNAPI LONG WINAPI olbSetProportionalScrollBars(HWND window, BOOL on);

/* Keeps the options in `kept` (OLBO_...) and adds those in `added`, which are the result. */
VORNAPI WORD WINAPI olbSetFlags(HWND window, WORD kept, WORD added);

/*
 * Replaces the low 16 bits of the window's style (LBS_...), the border among them (OLBS_...;
 * without either the list has WS_BORDER's line if it had that before, else none). The window's size
 * stays. Results in the 16 bits before.
 */
VORNAPI LONG WINAPI olbChangeStyle(HWND window, WORD style);

/*
 * Has the parent draw the rows: 1 all of one height, for which the list asks itself, and so its
 * parent, by WM_MEASUREITEM with the item 65535; 2 each of its own; 0 not at all. Results in what
 * was before.
 */
VORNAPI LONG WINAPI olbSetOwnerDraw(HWND window, int mode);

/* Keeps a table beside the items, as list boxes have one (from the start), or not; the list is
 * emptied in any case. Results in what was before. */
VORNAPI LONG WINAPI olbSetCompatibilityMode(HWND window, BOOL on);

/* The pixels that each level is indented by, 20 at first. Setting results in what was before. */
VORNAPI LONG WINAPI olbSetIndent(HWND window, WORD pixels);
VORNAPI LONG WINAPI olbGetIndent(HWND window);

/*
 * Sets the colour of a part (OLBC_...); an unknown one changes nothing. Repaints if `redraw` is
 * nonzero and the style lacks LBS_NOREDRAW. Results in what UpdateWindow answers after a repaint,
 * else in the stored colour code, or in the part when it is unknown; 0 for no outline list.
 */
VORNAPI DWORD WINAPI olbSetColor(HWND window, int part, COLORREF colorCode, BOOL redraw);

/*
 * The border, VORN_BORDER_NONE to VORN_BORDER_SUNKEN. Setting gives the window the size that keeps
 * its client area, counting the scroll bars that the list was created with, shown or not; set once
 * more, it keeps the client area that the first border kept. It results in 1, 0 for no outline
 * list.
 */
VORNAPI BOOL WINAPI olbSetBorderStyle(HWND window, DWORD border);
VORNAPI LONG WINAPI olbGetBorderStyle(HWND window);

/* ---- Columns ---- */

/*
 * Divides the width into 1 to 20 columns, with a horizontal scroll bar; 0 for one column with a
 * vertical one. FALSE, and nothing is changed, for other numbers and for columns of less than 24
 * pixels.
 */
VORNAPI BOOL WINAPI olbSetColumns(HWND window, LONG count);

/* The width of columns; 0: of 15 average characters. Setting results in what was before. */
VORNAPI LONG WINAPI olbSetColumnWidth(HWND window, LONG width);
VORNAPI LONG WINAPI olbGetColumnWidth(HWND window);
VORNAPI LONG WINAPI olbGetLinesPerColumn(HWND window); /* the rows that fit in the first one */

/* Where texts go on behind a tab, in dialog units from the text's start; a single one repeats. */
VORNAPI BOOL WINAPI olbSetTabStops(HWND window, LONG count, const int* stops);

/* The width to scroll through in one column, 0 at first. Setting results in what was before. */
VORNAPI LONG WINAPI olbSetHorizontalExtent(HWND window, LONG pixels);
VORNAPI LONG WINAPI olbGetHorizontalExtent(HWND window);

/* ---- Selection ---- */

/*
 * The selected row of a list that selects one; -1 when there is none, and in lists that select
 * several. Setting results in 0; -1 selects none and results in -1. Nothing is notified.
 */
VORNAPI LONG WINAPI olbSetCurSel(HWND window, LONG row);
VORNAPI LONG WINAPI olbGetCurSel(HWND window);
VORNAPI HOLBITEM WINAPI olbGetCurSelEx(HWND window);

/*
 * For lists that select several (-1 in others): select or deselect a row, all rows for -1; rows
 * from one to another, whichever comes first, -1 being the last; and answer how many items are
 * selected, and at most so many of their rows, from the top down, whose number is the result.
 * Nothing is notified. A row that olbSetSel selects becomes anchor and caret and is scrolled into
 * view.
 */
VORNAPI LONG WINAPI olbSetSel(HWND window, LONG row, BOOL select);
VORNAPI LONG WINAPI olbSelItemRange(HWND window, LONG first, LONG last, BOOL select);
VORNAPI LONG WINAPI olbGetSelCount(HWND window);
VORNAPI LONG WINAPI olbGetSelItems(HWND window, LONG most, int* rows);

VORNAPI LONG WINAPI olbGetSel(HWND window, LONG row); /* 1, 0, or -1 for no row; in any list */

/*
 * Selects the next sibling of a row whose text begins with this, going round and ending with the
 * row itself; among the items at the top for -1. Results in its row, -1 when there is none.
 */
VORNAPI LONG WINAPI olbSelectString(HWND window, LONG start, LPCSTR text);

/*
 * Where a range with Shift starts, and the row of the keyboard, which setting scrolls into view.
 * Setting results in 0.
 */
VORNAPI LONG WINAPI olbSetAnchorIndex(HWND window, LONG row); /* -1: none */
VORNAPI LONG WINAPI olbGetAnchorIndex(HWND window);
VORNAPI LONG WINAPI olbSetCaretIndex(HWND window, LONG row);
VORNAPI LONG WINAPI olbGetCaretIndex(HWND window);

/* ---- View ---- */

/*
 * The first and the last row in view. Setting scrolls a row to the top as far as the last page
 * allows, and results in 0.
 */
VORNAPI LONG WINAPI olbSetTopIndex(HWND window, LONG row);
VORNAPI LONG WINAPI olbGetTopIndex(HWND window);
VORNAPI LONG WINAPI olbGetBottomIndex(HWND window);

/*
 * The row at a client point; and where a row is, resulting in 1 when a part of it is in view, else
 * in 0. An empty list has a place for row 0.
 */
VORNAPI LONG WINAPI olbGetItemAtPoint(HWND window, int x, int y);
VORNAPI LONG WINAPI olbGetItemRect(HWND window, LONG row, RECT* rect);

/*
 * The procedure that the list gives its timers: 101, which carries a selection on while the mouse
 * is held outside the list, and 100, which starts anew at each tick. Hosts have no need to call it.
 */
VORNAPI void CALLBACK lbTimerProc(HWND window, UINT message, UINT_PTR timer, DWORD time);

#ifdef __cplusplus
}
#endif

#endif
