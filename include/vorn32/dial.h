/*
 * VORN32: the dial (window class "VORNDial32").
 *
 * A round knob that selects a position within a range by turning a pointer through an arc of
 * angles, with a small "-" and "+" button in the two lower corners. It never moves its own
 * position: like a vertical scroll bar it says what the user did, and its owner answers with
 * SetDialPos. What the user does comes as WM_VSCROLL with MAKELONG(scroll code, position) in
 * wParam and the dial in lParam; the codes are the platform's SB_ codes. The position has 16 bits
 * there: take it as (short)HIWORD(wParam) when it may be negative, and ask GetDialPos beyond.
 *
 * Beware of the two line codes. From a corner button and from the keys "+" and "-" SB_LINEUP means
 * a step towards the minimum and SB_LINEDOWN one towards the maximum. From the arrow keys it is the
 * other way round: Up and Right send SB_LINEUP while there is room towards the maximum, Left and
 * Down SB_LINEDOWN while there is room towards the minimum. An owner that tells them apart asks
 * GetKeyState whether an arrow key is down.
 *
 * Angles are whole degrees, counter-clockwise from the positive x axis (east).
 *
 * Every function returns 0 when the window is no dial. "Redraws" means at once.
 */
#ifndef VORN32_DIAL_H
#define VORN32_DIAL_H

#include <vorn32/library.h>

/*
 * The offset of a window word (SetWindowWord) that selects who is sent the scroll messages: the
 * parent when it is 0, as at creation, else the dial itself, for a host that subclasses it. A class
 * of the host's own on top of the dial's procedure keeps nothing of its own in these bytes.
 */
#define VORN_DIAL_RECEIVER 10

#ifdef __cplusplus
extern "C" {
#endif

/*
 * Sets the position (0 at creation), kept within the range; in a range with its ends swapped it is
 * the minimum. Redraws when `redraw` is not 0. Returns the previous position.
 */
VORNAPI LONG WINAPI SetDialPos(HWND window, LONG position, BOOL redraw);

/* The position. */
VORNAPI LONG WINAPI GetDialPos(HWND window);

/*
 * Sets the range (0 to 100 at creation), as given: the two may be equal or swapped, and the
 * position stays where it is, in or out of the new range. Redraws when `redraw` is not 0. Returns
 * 1.
 */
VORNAPI BOOL WINAPI SetDialRange(HWND window, LONG minimum, LONG maximum, BOOL redraw);

/* Tells the range; either pointer may be null. Returns 1; nothing is written when it returns 0. */
VORNAPI BOOL WINAPI GetDialRange(HWND window, LONG* minimum, LONG* maximum);

/*
 * Sets the angles of the minimum and the maximum (-45 and 225 at creation), as given. Made for an
 * end of 0 to 359 and a start less than a full turn below it; with other angles positions may lie
 * outside of the range, and with two equal ones every point means the minimum. Redraws when
 * `redraw` is not 0. Returns 1.
 */
VORNAPI BOOL WINAPI SetDialTurnRange(HWND window, LONG start, LONG end, BOOL redraw);

/* Tells the angles; either pointer may be null. Returns 1; nothing is written when it returns 0. */
VORNAPI BOOL WINAPI GetDialTurnRange(HWND window, LONG* start, LONG* end);

/*
 * Sets the direction to the value's lowest bit. 1, as at creation: angles are mirrored from left
 * to right, so that the value grows clockwise; 0: counter-clockwise. Redraws. Returns the previous
 * direction.
 */
VORNAPI LONG WINAPI SetDialDirection(HWND window, LONG direction);

/* The direction. */
VORNAPI LONG WINAPI GetDialDirection(HWND window);

#ifdef __cplusplus
}
#endif

#endif
