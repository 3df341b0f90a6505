// The exported functions that say how an outline list looks and works.
#include "core/window_win.h"
#include "hierlist/list_border_win.h"
#include "hierlist/list_handles_win.h"
#include "hierlist/list_host_win.h"
#include "hierlist/list_scroll_win.h"
#include "hierlist/list_view_win.h"

namespace vorn::hierlist {
namespace {

static_assert(OLB_SORTFIRST == kSortFirst);

// Sets or clears an option. Returns what it was.
LONG SetOption(HWND window, std::uint8_t flag, bool on) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    const bool before = HasOption(record->options, flag);
    const unsigned flags = on ? record->options.flags | flag : record->options.flags & ~flag;
    record->options.flags = static_cast<std::uint8_t>(flags);
    RedrawRows(window);
    return before;
}

bool IsSlot(int number) {
    for (const ColorSlot<ListColors>& slot : kListColorSlots) {
        if (slot.number == number) {
            return true;
        }
    }
    return false;
}

// Flags that hosts see among the options and that are kept where they are used.
constexpr std::uint8_t kOptionAutoOpen = 2;
constexpr std::uint8_t kOptionHasFocus = 32;
constexpr std::uint8_t kOptionCaptured = 64;
constexpr std::uint8_t kFlagsKeptElsewhere = kOptionAutoOpen | kOptionHasFocus | kOptionCaptured;

std::uint8_t FlagsOf(const Record& record) {
    const unsigned autoOpen = record.outline.autoOpen ? kOptionAutoOpen : 0u;
    return static_cast<std::uint8_t>(record.options.flags | autoOpen);
}

// Has the frame reckoned anew, scroll bars included, and all of it repainted.
void RenewFrame(HWND window) {
    SetWindowPos(window, nullptr, 0, 0, 0, 0,
                 SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
    UpdateBars(window);
    RedrawRows(window);
}

LONG OwnerDrawMode(DWORD style) {
    if ((style & kStyleOwnerDrawFixed) != 0) {
        return 1;
    }
    return (style & kStyleOwnerDrawVariable) != 0 ? 2 : 0;
}

} // namespace
} // namespace vorn::hierlist

using namespace vorn;
using namespace vorn::hierlist;

extern "C" LONG WINAPI olbShowLines(HWND window, BOOL on) {
    return SetOption(window, kOptionLines, on != 0);
}

extern "C" LONG WINAPI olbEnableMicroBitmaps(HWND window, BOOL on) {
    return SetOption(window, kOptionBoxes, on != 0);
}

extern "C" LONG WINAPI olbSetFullSelectRect(HWND window, BOOL on) {
    return SetOption(window, kOptionFullRow, on != 0);
}

extern "C" LONG WINAPI olbEnableBitmaps(HWND window, BOOL on) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    const bool before = ShowsPictures(record->options);
    const unsigned kept = record->options.pictures & 0x8000u;
    record->options.pictures = static_cast<std::uint16_t>(kept | (on != 0 ? 1 : 0));
    RedrawRows(window);
    return before;
}

extern "C" LONG WINAPI olbSetIndent(HWND window, WORD pixels) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    const LONG before = record->options.indent;
    record->options.indent = pixels;
    if (before != pixels) {
        RedrawRows(window);
    }
    return before;
}

extern "C" LONG WINAPI olbGetIndent(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? LB_ERR : record->options.indent;
}

extern "C" DWORD WINAPI olbSetColor(HWND window, int part, COLORREF colorCode, BOOL redraw) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    SetColorSlot(record->options.colors, kListColorSlots, part, colorCode);
    if (redraw != 0 && IsDrawingOn(*record)) {
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
        return static_cast<DWORD>(UpdateWindow(window));
    }
    return IsSlot(part) ? colorCode : static_cast<DWORD>(part);
}

extern "C" BOOL WINAPI olbSetBorderStyle(HWND window, DWORD border) {
    if (RecordOf<Record>(window) == nullptr) {
        return 0;
    }
    SetBorder(window, border);
    return 1;
}

extern "C" LONG WINAPI olbGetBorderStyle(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr ? LB_ERR : static_cast<LONG>(record->options.border);
}

// ---- Options and style ----

extern "C" BOOL WINAPI olbSetAutoOpen(HWND window, BOOL on) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return FALSE;
    }
    const bool before = record->outline.autoOpen;
    record->outline.autoOpen = on != 0;
    return before;
}

extern "C" BOOL WINAPI olbIsAutoOpen(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record != nullptr && record->outline.autoOpen;
}

extern "C" LONG WINAPI olbSetProportionalScrollBars(HWND window, BOOL on) {
    const LONG before = SetOption(window, kOptionProportionalBars, on != 0);
    if (RecordOf<Record>(window) != nullptr) {
        RenewFrame(window);
    }
    return before;
}

extern "C" WORD WINAPI olbSetFlags(HWND window, WORD kept, WORD added) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    const auto flags = static_cast<std::uint8_t>((FlagsOf(*record) & kept) | added);
    record->options.flags = flags & static_cast<std::uint8_t>(~kFlagsKeptElsewhere);
    record->outline.autoOpen = (flags & kOptionAutoOpen) != 0;
    RedrawRows(window);
    return added;
}

extern "C" LONG WINAPI olbChangeStyle(HWND window, WORD style) {
    if (RecordOf<Record>(window) == nullptr) {
        return LB_ERR;
    }
    constexpr DWORD kLowHalf = 0xFFFF;
    const DWORD before = StyleOf(window);
    const DWORD changed = (before & ~kLowHalf) | style;
    ChangeStyle(window, ~0u, StyleWithBorder(changed, BorderFromStyle(changed)));
    RenewFrame(window);
    return static_cast<LONG>(before & kLowHalf);
}

extern "C" LONG WINAPI olbSetOwnerDraw(HWND window, int mode) {
    if (RecordOf<Record>(window) == nullptr) {
        return LB_ERR;
    }
    const LONG before = OwnerDrawMode(StyleOf(window));
    const DWORD bit = mode == 1 ? kStyleOwnerDrawFixed : mode == 2 ? kStyleOwnerDrawVariable : 0;
    ChangeStyle(window, kStyleOwnerDraw, bit);
    if (mode == 1) {
        AskRowHeight(window);
    }
    UpdateBars(window);
    RedrawRows(window);
    return before;
}

extern "C" LONG WINAPI olbSetCompatibilityMode(HWND window, BOOL on) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return LB_ERR;
    }
    const LONG before = record->outline.compatibilityMode;
    record->outline.compatibilityMode = on != 0 ? 1 : 0;
    Reset(record->outline);
    return before;
}
