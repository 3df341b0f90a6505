/*
 * VORN32: eleven custom controls for Windows programs. This header brings all of them.
 */
#ifndef VORN32_H
#define VORN32_H

#include <vorn32/button.h>
#include <vorn32/calendar.h>
#include <vorn32/combobox.h>
#include <vorn32/dial.h>
#include <vorn32/fontselect.h>
#include <vorn32/hierlist.h>
#include <vorn32/library.h>
#include <vorn32/percentbar.h>
#include <vorn32/udlr.h>

#endif
