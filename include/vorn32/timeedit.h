/*
 * VORN32: the time edit (window class "VORNTimeEdit32").
 *
 * A one-line field that holds one time of day, or none at all (null), shows it in the 12- or
 * 24-hour form of the user's regional settings, lets the user edit it field by field, and can run
 * as a clock that follows the computer's local time. A new control holds the time of its creation,
 * in UTC.
 *
 * It tells its parent what the user does by WM_COMMAND with the platform's edit codes:
 * EN_SETFOCUS, EN_KILLFOCUS; EN_UPDATE and EN_CHANGE, in this order, for every change; EN_MAXTEXT
 * when the caret is beyond the field's right end, EN_HSCROLL when the text scrolled. What the host
 * sets by functions and messages sends none of them.
 *
 * Before a change the control sends itself VTMM_OKTOCHANGE and after it VTMM_CHANGED. A host that
 * subclasses the control may answer 0 to the first and so refuse.
 *
 * Every function returns 0, tmIsNull and tmOkToChange 1, when the window is no time edit, and then
 * writes nothing.
 */
#ifndef VORN32_TIMEEDIT_H
#define VORN32_TIMEEDIT_H

#include <vorn32/library.h>

/*
 * Window styles, read at creation. Of several borders VTMS_RAISED wins over VTMS_SUNKEN over
 * VTMS_LINE. tmSetBorderStyle keeps a raised border as 0x2000 and a sunken one as 0x1000: the other
 * way round.
 */
#define VTMS_DIGITS 0x0010   /* characters drawn as on a display of digits */
#define VTMS_CELLS 0x0020    /* every character in a box of its own; wins over VTMS_DIGITS */
#define VTMS_SECONDS 0x0040  /* with seconds */
#define VTMS_READONLY 0x0800 /* keys beep, and presses do nothing */
#define VTMS_RAISED 0x1000   /* raised border */
#define VTMS_SUNKEN 0x2000   /* sunken border */
#define VTMS_LINE 0x4000     /* a line around it */

/* Display styles, as tmSetDisplayStyle takes them. */
#define VTMD_TEXT 0   /* written in the font */
#define VTMD_DIGITS 1 /* as VTMS_DIGITS */
#define VTMD_CELLS 2  /* as VTMS_CELLS */

/* A time of day. */
/* NOLINTNEXTLINE(modernize-use-using): C has no other way */
typedef struct TmTime {
    WORD hour;   /* 0 to 23 */
    WORD minute; /* 0 to 59 */
    WORD second; /* 0 to 59 */
} TmTime;

/* Time and format of a time edit, 50 bytes. */
#include <pshpack1.h>
/* NOLINTNEXTLINE(modernize-use-using): C has no other way */
typedef struct TmEditParams {
    DWORD setTime;        /* got: 1; set: the time is taken when it is not 0 */
    TmTime time;          /* unchecked */
    WORD reserved1;       /* not used */
    DWORD keepFormat;     /* got: left as it is; set: what follows is taken when it is 0 */
    WORD separator;       /* a character in the low byte; set: 0 keeps the one there is */
    WORD reserved2;       /* not used */
    DWORD leadingZero;    /* not 0: hours below 10 have two digits */
    DWORD twentyFourHour; /* not 0: the 24-hour form, without AM and PM text */
    DWORD showSeconds;    /* not 0: with seconds */
    char amText[9];       /* up to eight characters */
    char pmText[9];       /* the same */
} TmEditParams;
#include <poppack.h>

/* Messages: the functions' twins, with their results. */
#define VTMM_GETEDITPARAMS (WM_USER + 135)      /* lParam: TmEditParams* */
#define VTMM_SETEDITPARAMS (WM_USER + 136)      /* lParam: const TmEditParams* */
#define VTMM_GETTIME (WM_USER + 137)            /* lParam: TmTime* */
#define VTMM_GETHOUR (WM_USER + 138)            /* */
#define VTMM_GETMINUTE (WM_USER + 139)          /* */
#define VTMM_GETSECOND (WM_USER + 140)          /* */
#define VTMM_SETTIME (WM_USER + 143)            /* lParam: const TmTime* */
#define VTMM_SETDISPLAYSTYLE (WM_USER + 148)    /* wParam: display style */
#define VTMM_SETNULL (WM_USER + 151)            /* */
#define VTMM_ISNULL (WM_USER + 152)             /* */
#define VTMM_GETTIMESTRING (WM_USER + 153)      /* lParam: buffer of 64 characters */
#define VTMM_SETTIMESTRING (WM_USER + 154)      /* lParam: text, or null */
#define VTMM_GETMINHEIGHT (WM_USER + 155)       /* */
#define VTMM_GETMINWIDTH (WM_USER + 156)        /* */
#define VTMM_SETBACKGROUNDCOLOR (WM_USER + 157) /* lParam: colour code, slot 2 of tmSetColor */
#define VTMM_SETTEXTCOLOR (WM_USER + 158)       /* lParam: colour code, slot 4 */
#define VTMM_STARTCLOCK (WM_USER + 160)         /* */
#define VTMM_STOPCLOCK (WM_USER + 161)          /* */

/*
 * Sent by the control to itself: before a change, with 0 as the answer that refuses it, and after
 * one. VTMM_CHANGED is posted after keys and by tmSetEditParams.
 */
#define VTMM_OKTOCHANGE (WM_USER + 159) /* result: 1, or 0 to refuse the change */
#define VTMM_CHANGED (WM_USER + 400)    /* after a change of the time */

/*
 * The time from and to the broken-down time of C libraries: nine 32-bit integers that begin with
 * seconds, minutes and hours. VTMM_SETBROKENDOWN takes these three after VTMM_OKTOCHANGE;
 * VTMM_GETBROKENDOWN fills them, and the rest with 0.
 */
#define VTMM_SETBROKENDOWN 0x0D00 /* lParam: record */
#define VTMM_GETBROKENDOWN 0x0D01 /* lParam: record */

/*
 * VTMM_QUERY results in 0. VTMM_GETBROKENDOWNSIZE writes 36, the size of that record, to the DWORD
 * that lParam points to, if it does, and results in 11.
 */
#define VTMM_QUERY 0x0D05
#define VTMM_GETBROKENDOWNSIZE 0x0D07

#ifdef __cplusplus
extern "C" {
#endif

/* Fills the record but for its reserved fields and `keepFormat`. Returns 1. */
VORNAPI BOOL WINAPI tmGetEditParams(HWND window, TmEditParams* params);

/*
 * Takes time and format as the record says; the time, which is stored unchecked, only if the
 * control is not told to refuse it. Repaints, and posts VTMM_CHANGED. Returns 1, 0 for a null
 * record.
 */
VORNAPI BOOL WINAPI tmSetEditParams(HWND window, const TmEditParams* params);

/* Copies the time; of a null control the numbers that it held before. Returns 1. */
VORNAPI BOOL WINAPI tmGetTime(HWND window, TmTime* time);

/* The time's numbers, the hour from 0 to 23. */
VORNAPI UINT WINAPI tmGetHour(HWND window);
VORNAPI UINT WINAPI tmGetMinute(HWND window);
VORNAPI UINT WINAPI tmGetSecond(HWND window);

/* Sets the time, unchecked. Repaints. Returns 1, 0 when it was refused or `time` is null. */
VORNAPI BOOL WINAPI tmSetTime(HWND window, const TmTime* time);

/*
 * How the time is drawn; takes the style bits along. Any number but the three VTMD_ clears the
 * bits and leaves the rest. Redraws, and returns the result of that.
 */
VORNAPI BOOL WINAPI tmSetDisplayStyle(HWND window, DWORD displayStyle);

/* Takes the time away: the text is empty then. Repaints. Returns 1, 0 when it was refused. */
VORNAPI BOOL WINAPI tmSetNull(HWND window);

/* Whether the control holds no time. */
VORNAPI BOOL WINAPI tmIsNull(HWND window);

/* Copies the text, at most 64 characters with its terminator. Returns the buffer. */
VORNAPI LPSTR WINAPI tmGetTimeString(HWND window, LPSTR buffer);

/*
 * Sets the time from a text such as "2:05:09 PM": the numbers between the separators, unchecked,
 * and behind a blank the AM or PM text, in any case. Without either the hour counts as it is; but
 * an empty AM text, or else an empty PM text, matches a text without a suffix. A null or empty text
 * makes the control null. Redraws, unless the time is the one held. Returns 1, 0 when it was
 * refused.
 */
VORNAPI BOOL WINAPI tmSetTimeString(HWND window, LPCSTR text);

/*
 * The least size that the control needs, in pixels: the height of its font; the width of three of
 * the font's widest characters; and the border.
 */
VORNAPI int WINAPI tmGetMinHeight(HWND window);
VORNAPI int WINAPI tmGetMinWidth(HWND window);

/*
 * Sets a colour: VORN_COLOR_HIGHLIGHT and VORN_COLOR_SHADOW and VORN_COLOR_BACKGROUND (the face) of
 * the border, VORN_COLOR_FACE (the field's background, COLOR_WINDOW at creation),
 * VORN_COLOR_TEXT. Redraws, whatever the slot, and returns the result of that.
 */
VORNAPI BOOL WINAPI tmSetColor(HWND window, int slot, COLORREF colorCode);

/* The answer of the class to VTMM_OKTOCHANGE: 1, for every window. */
VORNAPI BOOL WINAPI tmOkToChange(HWND window);

/*
 * Starts and stops the clock: ten times a second it sets the time from a text of the local time
 * such as "14:05:09", as tmSetTimeString does. So it asks VTMM_OKTOCHANGE each time and redraws
 * once a second, and AM and PM texts that are empty count. Both return 1.
 */
VORNAPI BOOL WINAPI tmStartClock(HWND window);
VORNAPI BOOL WINAPI tmStopClock(HWND window);

/*
 * Sets the border, one of the VORN_BORDER_ styles. The window becomes as large as its client area
 * and 2 (line) or 4 pixels (raised, sunken) more; asked for the border that it has already, it
 * grows by them. Returns 1.
 */
VORNAPI BOOL WINAPI tmSetBorderStyle(HWND window, DWORD borderStyle);

#ifdef __cplusplus
}
#endif

#endif
