/*
 * VORN32: the combo box (window class "VORNComboBox32").
 *
 * The system's COMBOBOX in everything, its styles, messages and notifications included, with one
 * addition: it remembers which window had the keyboard focus just before it got it.
 */
#ifndef VORN32_COMBOBOX_H
#define VORN32_COMBOBOX_H

#include <vorn32/library.h>

/*
 * Result: the low 16 bits of the handle of the window that lost the focus to the combo box the
 * last time; 0 before the first time, or when no window lost it. Focus that the combo box gave to
 * its own edit field and gets back counts too: the edit field is the window then.
 */
#define VCBM_GETPREVFOCUS (WM_USER + 0)

#endif
