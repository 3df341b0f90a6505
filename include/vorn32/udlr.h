/*
 * VORN32: the spin pad (window class "VORNUDLR32").
 *
 * A square pad of four arrow buttons. A press tells the parent its direction at once, again after
 * half a second, and then at the keyboard's repeat rate for as long as the mouse button is held.
 * Sliding to another part of the pad changes the direction; beside the parts nothing is told.
 *
 * The pad is always 29 by 29 pixels, 31 by 31 with a WS_BORDER of one pixel; other sizes are not
 * taken. It has no functions, no messages and no text of its own.
 */
#ifndef VORN32_UDLR_H
#define VORN32_UDLR_H

#include <vorn32/library.h>

/* Notification codes: the directions, each sent as often as it is stepped. */
#define VUDN_UP 100    /* the upper button */
#define VUDN_RIGHT 101 /* the right button */
#define VUDN_DOWN 102  /* the lower button */
#define VUDN_LEFT 103  /* the left button */

#endif
