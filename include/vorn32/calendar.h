/*
 * VORN32: the year calendar (window class "VORNCalendar32").
 *
 * Shows a whole year: twelve months in three columns and four rows, each with its name, the weekday
 * initials and its days. A click on a day selects it and tells the parent; a double-click tells the
 * parent too. It takes the focus on a click but has no keyboard interface and does not scroll. It
 * is driven by two messages and has no functions.
 *
 * The calendar is the Julian one up to 2 September 1752 and the Gregorian one from the next day, 14
 * September 1752.
 */
#ifndef VORN32_CALENDAR_H
#define VORN32_CALENDAR_H

#include <vorn32/library.h>

/* What VCALM_GETDATE tells of a date. All fields are 0 when nothing is selected. */
/* NOLINTNEXTLINE(modernize-use-using): C has no other way */
typedef struct VORNCALENDARDATE {
    WORD month;    /* 1 to 12 */
    WORD day;      /* 1 to 31 */
    WORD year;     /* 0 to 9999 */
    WORD weekday;  /* 0 for Sunday to 6 */
    WORD leapYear; /* 1 when February of that year has 29 days, else 0 */
} VORNCALENDARDATE;

/*
 * wParam: year, lParam: MAKELONG(month, day); both 0 for today (UTC). Selects the date, shows its
 * year and repaints at once. Numbers that are no date are kept as they are, with no day
 * highlighted. Results in 0 and notifies nothing.
 */
#define VCALM_SETDATE (WM_USER + 200)

/*
 * lParam: pointer to a VORNCALENDARDATE to fill, or null. Results in the day number of the selected
 * date: 0 for 1 January of the year 1, 693597 for 1 January 1900, modulo 2^32 for the year 0.
 * The difference of two is the number of days between their dates. Without a selection the record
 * is zeroed and the result is 0.
 */
#define VCALM_GETDATE (WM_USER + 201)

/* Notifications, by WM_COMMAND. */
#define VCALN_SELECT 0x0100 /* a click selected a day, perhaps the selected one again */
#define VCALN_DBLCLK 0x0101 /* a double-click, on a day or not */

#endif
