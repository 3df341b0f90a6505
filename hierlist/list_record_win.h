// What an outline list keeps for its window.
#pragma once

#include "core/paint_win.h"
#include "core/record_win.h"
#include "hierlist/column_table.h"
#include "hierlist/list_input.h"
#include "hierlist/list_options.h"
#include "hierlist/outline.h"
#include "hierlist/picture_choice.h"
#include "hierlist/prepared_pictures_win.h"
#include "hierlist/scroll_range.h"
#include "hierlist/sidetable.h"
#include "hierlist/tab_stops.h"

#include <array>

namespace vorn::hierlist {

struct Record {
    static constexpr ControlClass kClass = ControlClass::HierList;

    HWND window = nullptr;
    Outline outline;
    SideTable sideTable; // of compatibility mode
    LCID sortLocale = 0; // of the items' sort keys; 0 when there are none yet
    ListOptions options;
    Size keptClient;                // by the border that was set last
    Strips strips;                  // those of levels and of the host are the control's to free
    std::array<HBITMAP, 2> boxes{}; // of a closed and of an open item
    PreparedPictures prepared;
    TabStops tabs;
    HFONT font = nullptr; // the host's, or the stock SYSTEM_FONT
    std::int32_t fontHeight = 0;

    // Where the list is scrolled to.
    std::uint32_t topIndex = 0;
    std::int32_t offset = 0;
    WheelState wheel;
    WheelState sideWheel;

    Input state;

    ColumnTable columns;
    std::int32_t columnsHeight = -1; // the client height that the table is for; -1: to be built

    std::uint32_t rowsBefore = 0; // that there were when they changed last

    bool redrawOff = false;    // by WM_SETREDRAW
    bool barsStale = false;    // the scroll bars are to be set when drawing is on again
    bool settingBars = false;  // they are being set ...
    bool setBarsAgain = false; // ... and the rows changed meanwhile

    PaintState paint;
};

} // namespace vorn::hierlist
