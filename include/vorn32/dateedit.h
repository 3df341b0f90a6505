/*
 * VORN32: the date edit (window class "VORNDateEdit32").
 *
 * A one-line field for a date in the user's short-date layout, edited field by field from the
 * keyboard, with an optional drop-down button for a calendar. It can hold no date at all and is
 * empty then. Dialog code written for a system edit works with it: it answers the text, selection
 * and clipboard messages of one and notifies its parent with the same codes (EN_SETFOCUS,
 * EN_KILLFOCUS, EN_UPDATE, EN_CHANGE, EN_MAXTEXT, EN_HSCROLL). What the functions below change is
 * not notified.
 *
 * Before a change by the user, and before those by the functions that say so, the control sends
 * itself VDTM_OKTOCHANGE; a host that subclassed it answers 0 to refuse. After every change it
 * sends itself VDTM_CHANGED.
 *
 * Functions on a window that is no date edit touch nothing. "Redraws" means at once; the result of
 * such a function is that of RedrawWindow, and 0 when it was refused or there is no date edit.
 */
#ifndef VORN32_DATEEDIT_H
#define VORN32_DATEEDIT_H

#include <vorn32/library.h>

/* Window styles. The functions keep them in step. Of several borders the lowest bit wins. */
#define VDTS_CALENDAR 0x0004 /* the drop-down button */
#define VDTS_NOERASE 0x0008  /* the calendar cannot erase the date */
#define VDTS_DIGITS 0x0010   /* characters drawn as on a display of digits */
#define VDTS_CELLS 0x0020    /* each character in a box; wins over VDTS_DIGITS */
#define VDTS_READONLY 0x0800 /* keys beep, and presses do nothing */
#define VDTS_SUNKEN 0x1000   /* sunken border */
#define VDTS_RAISED 0x2000   /* raised border */
#define VDTS_LINE 0x4000     /* a line around it */

/* What stands at a position of the text. */
#define DT_DAY 1   /* the day */
#define DT_MONTH 2 /* the month */
#define DT_YEAR 3  /* the year */

/* What dtSetDisplayStyle takes. */
#define VDTD_TEXT 0   /* written in the font */
#define VDTD_DIGITS 1 /* as VDTS_DIGITS */
#define VDTD_CELLS 2  /* as VDTS_CELLS */

/* A date as numbers. 0 September of the year 0 is no date. */
/* NOLINTNEXTLINE(modernize-use-using): C has no other way */
typedef struct DtDate {
    WORD month; /* 1 to 12 */
    WORD day;   /* 1 to 31 */
    WORD year;  /* 0 to 9999 */
} DtDate;

/* Date and layout. */
/* NOLINTNEXTLINE(modernize-use-using): C has no other way */
typedef struct DtEditParams {
    DWORD size;             /* sizeof(DtEditParams), 48; of any other size nothing is done */
    DWORD setDate;          /* non-zero: take the date */
    WORD year;              /* 0: today, UTC's */
    WORD month;             /* 1 to 12 */
    WORD day;               /* 1 to 31 */
    WORD reserved1;         /* not used */
    DWORD keepLayout;       /* non-zero: the rest is ignored */
    WORD separator;         /* a character; 0: the user's */
    WORD reserved2;         /* not used */
    DWORD monthLeadingZero; /* non-zero: months of two digits */
    DWORD dayLeadingZero;   /* non-zero: days of two digits */
    DWORD fourDigitYear;    /* non-zero: years of four digits, otherwise of two */
    DWORD kinds[3]; /* DT_ codes by position; the first 0: these and the flags are the user's */
} DtEditParams;

/*
 * Messages: the functions' twins, with their results. In the comments "lParam: text" and the like
 * say where the argument is.
 */
#define VDTM_GETEDITPARAMS (WM_USER + 135)      /* lParam: DtEditParams */
#define VDTM_SETEDITPARAMS (WM_USER + 136)      /* lParam: DtEditParams */
#define VDTM_GETDATE (WM_USER + 137)            /* lParam: DtDate, or null */
#define VDTM_GETMONTH (WM_USER + 138)           /* */
#define VDTM_GETDAY (WM_USER + 139)             /* */
#define VDTM_GETYEAR (WM_USER + 140)            /* */
#define VDTM_SETDATE (WM_USER + 143)            /* lParam: DtDate, or null */
#define VDTM_SETDIALOGCOLOR (WM_USER + 144)     /* lParam: colour code, slot 16 of dtSetColor */
#define VDTM_ENABLEERASE (WM_USER + 145)        /* wParam: enable */
#define VDTM_SETDISPLAYSTYLE (WM_USER + 148)    /* wParam: style */
#define VDTM_ENABLECALENDAR (WM_USER + 149)     /* wParam: enable */
#define VDTM_SETNULL (WM_USER + 151)            /* */
#define VDTM_ISNULL (WM_USER + 152)             /* */
#define VDTM_GETDATESTRING (WM_USER + 153)      /* lParam: buffer */
#define VDTM_SETDATESTRING (WM_USER + 154)      /* lParam: text, or null */
#define VDTM_GETMINHEIGHT (WM_USER + 155)       /* */
#define VDTM_GETMINWIDTH (WM_USER + 156)        /* */
#define VDTM_SETBACKGROUNDCOLOR (WM_USER + 157) /* lParam: colour code, slot 2 */
#define VDTM_SETTEXTCOLOR (WM_USER + 158)       /* lParam: colour code, slot 4 */
#define VDTM_OKTOCHANGE (WM_USER + 159)         /* sent to itself; result: 0 to refuse, else 1 */
#define VDTM_SETMONTHLITERALS (WM_USER + 160)   /* lParam: list */
#define VDTM_SETDAYLITERALS (WM_USER + 161)     /* lParam: text */
#define VDTM_SETBORDERSTYLE (WM_USER + 162)     /* wParam: border style */
#define VDTM_SETBUTTONSTYLE (WM_USER + 163)     /* wParam: button style */

/* Sent, after keys posted, by the control to itself after a change of its date. */
#define VDTM_CHANGED (WM_USER + 400)

/*
 * The date from and to the broken-down time of C libraries: nine 32-bit integers, seconds, minutes,
 * hours, day of the month, month from 0, year since 1900, weekday from Sunday, day of the year from
 * 0, daylight flag. VDTM_SETTIME takes day, month and year after VDTM_OKTOCHANGE; VDTM_GETTIME
 * fills all of them, those of the time of day and the last with 0.
 */
#define VDTM_SETTIME 0x0D00 /* lParam: record */
#define VDTM_GETTIME 0x0D01 /* lParam: record */

/*
 * VDTM_QUERY results in 0. VDTM_GETTIMESIZE writes 36, the size of that record, to the DWORD that
 * lParam points to, if it does, and results in 11.
 */
#define VDTM_QUERY 0x0D05
#define VDTM_GETTIMESIZE 0x0D07

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Fills size, date, separator, month's leading zero and kinds, setDate and keepLayout with 1. The
 * other fields stay, so that the record handed back to dtSetEditParams changes the date alone.
 */
VORNAPI void WINAPI dtGetEditParams(HWND window, DtEditParams* params);

/*
 * Takes the date, if the record says so and VDTM_OKTOCHANGE allows it, and the layout, unless it is
 * to be kept. A date of the year 0 is null afterwards. The caret goes back to the start. Redraws.
 */
VORNAPI void WINAPI dtSetEditParams(HWND window, const DtEditParams* params);

/*
 * Copies the date unless `date` is null. Answers its serial date, the days since 1 January 1900,
 * which is negative before; -1 when there is no date edit.
 */
VORNAPI LONG WINAPI dtGetDate(HWND window, DtDate* date);

/* One of the date's numbers; -1 when there is no date edit. */
VORNAPI int WINAPI dtGetMonth(HWND window);
VORNAPI int WINAPI dtGetDay(HWND window);
VORNAPI int WINAPI dtGetYear(HWND window);

/* Sets the date without asking, numbers that are no day included; null changes nothing. Redraws. */
VORNAPI BOOL WINAPI dtSetDate(HWND window, const DtDate* date);

/*
 * Sets a colour: VORN_COLOR_HIGHLIGHT, VORN_COLOR_SHADOW and VORN_COLOR_BACKGROUND (8) of the
 * border, VORN_COLOR_FACE (2) the field, VORN_COLOR_TEXT its text, VORN_COLOR_FILL (16) the
 * calendar pop-up. Any other slot changes nothing. Redraws.
 */
VORNAPI BOOL WINAPI dtSetColor(HWND window, int slot, COLORREF colorCode);

/*
 * Lets (non-zero) or does not let the calendar erase the date. The result is that of SetWindowLong,
 * the style before.
 */
VORNAPI LONG WINAPI dtEnableErase(HWND window, BOOL enable);

/*
 * Sets the display style, one of the VDTD_ styles; any other number takes the style bits away and
 * stays without effect. Redraws.
 */
VORNAPI BOOL WINAPI dtSetDisplayStyle(HWND window, int style);

/* Shows (non-zero) or hides the drop-down button. Redraws. */
VORNAPI BOOL WINAPI dtEnableCalendar(HWND window, BOOL enable);

/* Makes the date null and its numbers 0, when VDTM_OKTOCHANGE allows it. Redraws. */
VORNAPI BOOL WINAPI dtSetNull(HWND window);

/* Whether there is no date: non-zero, and 1 when there is no date edit. */
VORNAPI BOOL WINAPI dtIsNull(HWND window);

/*
 * Copies the date as text, such as "03/05/07", into a buffer of at least 32 characters; "" for a
 * null date. Answers the buffer, untouched when there is no date edit.
 */
VORNAPI char* WINAPI dtGetDateString(HWND window, char* buffer);

/*
 * Sets the date from a text in the control's layout, when VDTM_OKTOCHANGE allows it: up to three
 * numbers between separators, which are not checked. A number that the text does not have keeps its
 * field. With two-digit years those below 100 are of the 20th century. An empty text or null makes
 * the date null. Redraws.
 */
VORNAPI BOOL WINAPI dtSetDateString(HWND window, const char* text);

/*
 * The least size that the control needs: the height of its font; the width of a character and the
 * drop-down button; and the border. 24 and 80 when there is no date edit.
 */
VORNAPI int WINAPI dtGetMinHeight(HWND window);
VORNAPI int WINAPI dtGetMinWidth(HWND window);

/* The control's own answer to VDTM_OKTOCHANGE: 1, for any window. */
VORNAPI BOOL WINAPI dtOkToChange(HWND window);

/*
 * Replaces the long month names of the whole process by twelve terminated ones that lie one after
 * another, each cut to 63 characters. The window does not count, nothing is redrawn, and null
 * changes nothing.
 */
VORNAPI void WINAPI dtSetMonthLiterals(HWND window, const char* list);

/* Replaces the weekday initials of the whole process: seven letters from Sunday, as above. */
VORNAPI void WINAPI dtSetDayLiterals(HWND window, const char* text);

/*
 * Sets the border: 0 none, 1 a line, 2 raised, 3 sunken. The window becomes as large as its client
 * area and the border; when it has that border already, it grows by it once more. A number above 3
 * takes the style bits away and resizes the window to its client area. Answers 1.
 */
VORNAPI BOOL WINAPI dtSetBorderStyle(HWND window, DWORD borderStyle);

/*
 * Which buttons the calendar's dialog has: 0 the system's, any other number picture buttons. 1 at
 * creation.
 */
VORNAPI void WINAPI dtSetButtonStyle(HWND window, DWORD buttonStyle);

/*
 * Replaces a caption of the calendar pop-up's system buttons, for all date edits of the process,
 * cut to 31 characters: 0 "&OK", 1 "&Cancel", 2 "&Erase". Answers the stored caption, for any other
 * number that number itself. The window does not count, and creating a date edit brings the
 * captions back.
 */
VORNAPI char* WINAPI dtSetButtonText(HWND window, int which, const char* text);

/*
 * The procedure of the calendar's dialog. It is the library's own; the lParam of its WM_INITDIALOG
 * is not for hosts to give, and the dialog ends at once when it is none of a date edit in the
 * window that owns the dialog.
 */
VORNAPI INT_PTR CALLBACK CalendarProc(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam);

#ifdef __cplusplus
}
#endif

#endif
