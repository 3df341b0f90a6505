/*
 * VORN32: what all of its headers share. Hosts include <vorn32.h>, or this through the header of
 * the control that they use.
 */
#ifndef VORN32_BASE_H
#define VORN32_BASE_H

#include <windows.h>

/* Every function is exported from VORN32.dll with the platform's standard calling convention. */
#ifdef VORN32_BUILD
#define VORNAPI
#else
#define VORNAPI DECLSPEC_IMPORT
#endif

/*
 * Colour codes, as the ...SetColor functions take them: an RGB colour, or VORN_SYSCOLOR of one of
 * the platform's COLOR_ indexes. A code is resolved at every paint, so a control whose colours are
 * system colours follows the system.
 */
#define VORN_SYSCOLOR(index) ((COLORREF) ~(DWORD)(index))

/* Colour slots, with one meaning across controls. Each control's header lists those it knows. */
#define VORN_COLOR_HIGHLIGHT 0
#define VORN_COLOR_SHADOW 1
#define VORN_COLOR_FACE 2
#define VORN_COLOR_TEXT 4
#define VORN_COLOR_BACKGROUND 8
#define VORN_COLOR_FILL 16
#define VORN_COLOR_SWATCH 64

/* Border styles, as the ...SetBorderStyle functions take them. */
#define VORN_BORDER_NONE 0
#define VORN_BORDER_LINE 1
#define VORN_BORDER_RAISED 2
#define VORN_BORDER_SUNKEN 3

#endif
