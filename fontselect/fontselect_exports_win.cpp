// The font selector's exported functions.
#include "core/gdi_win.h"
#include "core/window_win.h"
#include "fontselect/fontselect_win.h"

#include <algorithm>
#include <vorn32/fontselect.h>

namespace vorn::fontselect {
namespace {

constexpr char kFallbackFamily[] = "Arial";

int PixelsPerInch() {
    const ScreenContext screen;
    return std::max(GetDeviceCaps(screen.get(), LOGPIXELSY), 1);
}

LONG SelectPoints(HWND window, std::int32_t points) {
    const auto index = static_cast<WPARAM>(IndexOfPoints(points));
    return static_cast<LONG>(AskList(ListOf(window, kSizeList), CB_SETCURSEL, index));
}

// How much of a cell is not the characters' in the chosen family's bold font of that height.
LONG InternalLeading(HWND window, LONG cellHeight) {
    char family[kFaceNameSize];
    const bool chosen = CopyChosenFamily(window, family);
    HFONT font = CreateFontA(cellHeight, 0, 0, 0, FW_BOLD, 0, 0, 0, 0, 0, 0, 0, 0,
                             chosen ? family : kFallbackFamily);
    const LONG leading = MeasureFont(font).tmInternalLeading;
    DeleteObject(font);
    return leading;
}

} // namespace
} // namespace vorn::fontselect

using namespace vorn;
using namespace vorn::fontselect;

extern "C" void WINAPI fsGetFontFamily(HWND window, LPSTR buffer, int size) {
    if (buffer == nullptr || size < 1) {
        return;
    }
    char family[kFaceNameSize];
    const bool chosen = CopyChosenFamily(window, family);
    CopyFamilyName({buffer, static_cast<std::size_t>(size)}, chosen ? family : nullptr);
}

extern "C" LONG WINAPI fsSetFontFamily(HWND window, LPCSTR name) {
    if (RecordOf<Record>(window) == nullptr) {
        return 0;
    }
    if (name == nullptr) {
        return -1;
    }
    HWND list = ListOf(window, kFamilyList);
    const LRESULT found =
        AskList(list, CB_FINDSTRING, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(name));
    if (found < 0) {
        return -1;
    }
    return static_cast<LONG>(AskList(list, CB_SETCURSEL, static_cast<WPARAM>(found)));
}

extern "C" LONG WINAPI fsGetFontPointSize(HWND window) {
    HWND list = ListOf(window, kSizeList);
    const LRESULT chosen = AskList(list, CB_GETCURSEL);
    if (chosen < 0) {
        return kDefaultPoints;
    }
    return static_cast<LONG>(AskList(list, CB_GETITEMDATA, static_cast<WPARAM>(chosen)));
}

extern "C" LONG WINAPI fsSetFontPointSize(HWND window, LONG points) {
    return RecordOf<Record>(window) == nullptr ? 0 : SelectPoints(window, points);
}

extern "C" LONG WINAPI fsGetFontSize(HWND window) {
    return LogicalHeight(fsGetFontPointSize(window), PixelsPerInch());
}

extern "C" LONG WINAPI fsSetFontSize(HWND window, LONG height) {
    if (RecordOf<Record>(window) == nullptr) {
        return 0;
    }
    const std::int64_t characters = height >= 1
                                        ? std::int64_t{height} - InternalLeading(window, height)
                                        : -std::int64_t{height};
    return SelectPoints(window, PointsOfCharacterHeight(characters, PixelsPerInch()));
}

extern "C" void WINAPI fsSetFontCommandCode(HWND window, WORD code) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        record->state.fontCommandCode = code;
    }
}

extern "C" void WINAPI fsSetSizeCommandCode(HWND window, WORD code) {
    Record* record = RecordOf<Record>(window);
    if (record != nullptr) {
        record->state.sizeCommandCode = code;
    }
}

extern "C" BOOL WINAPI fsSetColor(HWND window, int slot, COLORREF colorCode) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    SetColorSlot(record->state.colors, kColorSlots, slot, colorCode);
    return Redraw(window);
}

extern "C" LONG WINAPI fsSetItemHeight(HWND window, WORD height) {
    if (RecordOf<Record>(window) == nullptr) {
        return 0;
    }
    AskList(ListOf(window, kSizeList), CB_SETITEMHEIGHT, 0, height);
    return static_cast<LONG>(AskList(ListOf(window, kFamilyList), CB_SETITEMHEIGHT, 0, height));
}
