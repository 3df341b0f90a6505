// The numeric edit's exported functions, but for those of its value.
#include "core/edit/edit_border_win.h"
#include "core/edit/edit_caret_win.h"
#include "core/profile_win.h"
#include "core/window_win.h"
#include "numeric/numedit_input_win.h"
#include "numeric/numedit_win.h"

#include <bit>
#include <vorn32/numedit.h>

namespace vorn::numeric {
namespace {

static_assert(sizeof(NmEditParams) == sizeof(EditParams) &&
              offsetof(NmEditParams, formatKind) == offsetof(EditParams, formatKind) &&
              offsetof(NmEditParams, rangeCheck) == offsetof(EditParams, rangeCheck) &&
              offsetof(NmEditParams, decimalDigits) == offsetof(EditParams, decimalDigits) &&
              offsetof(NmEditParams, minValue) == offsetof(EditParams, minValue) &&
              offsetof(NmEditParams, maxValue) == offsetof(EditParams, maxValue) &&
              offsetof(NmEditParams, useRegional) == offsetof(EditParams, useRegional) &&
              offsetof(NmEditParams, thousandChar) == offsetof(EditParams, thousandChar) &&
              offsetof(NmEditParams, decimalChar) == offsetof(EditParams, decimalChar) &&
              offsetof(NmEditParams, leadingZero) == offsetof(EditParams, leadingZero));
static_assert(NM_USER_DECIMAL_DIGITS == kUserDecimalDigits);
static_assert(NM_INTEGER == kInteger && NM_FLOATING == kFloating &&
              NM_FLOATING_UNPADDED == kFloatingUnpadded);

Size LeastSizeOf(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr
               ? Size{}
               : LeastWindowSize(record->figures, kNumberKind.compactness, record->borderStyle);
}

// Redraws after a change of what is shown, with the caret in its place.
BOOL Show(HWND window) {
    const BOOL result = Redraw(window);
    PlaceCaret(kNumberKind, window, edit::Told::No);
    return result;
}

// The display style's number in the settings; that of the record stays for any other.
std::uint32_t DisplayStyleOf(const Record& record, int style) {
    switch (style) {
    case VNMD_TEXT:
        return edit::kPlainText;
    case VNMD_DIGITS:
        return edit::kDigitPictures;
    case VNMD_CELLS:
        return edit::kCharacterCells;
    default:
        return record.displayStyle;
    }
}

} // namespace
} // namespace vorn::numeric

using namespace vorn;
using namespace vorn::numeric;

extern "C" void WINAPI nmGetEditParams(HWND window, NmEditParams* params) {
    const Record* record = RecordOf<Record>(window);
    if (record != nullptr && params != nullptr) {
        auto filled = std::bit_cast<EditParams>(*params);
        GetEditParams(record->entry.settings, filled);
        *params = std::bit_cast<NmEditParams>(filled);
    }
}

extern "C" LRESULT WINAPI nmSetEditParams(HWND window, const NmEditParams* params) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr || params == nullptr) {
        return 0;
    }
    NumberSettings& settings = record->entry.settings;
    SetEditParams(settings, std::bit_cast<EditParams>(*params), kUserProfile);
    KeepPoint(record->entry);
    std::uint32_t style = StyleOf(window);
    if (AdoptNumberDisplay(settings, style) != 0) {
        TakeNumberDisplay(*record, settings.displayStyle);
        SetWindowLongA(window, GWL_STYLE, static_cast<LONG>(style));
    }
    Show(window);
    return RecordOf<Record>(window) == nullptr ? 0 : SendMessageA(window, VNMM_CHANGED, 0, 0);
}

extern "C" BOOL WINAPI nmEnableSpinButtons(HWND window, BOOL enable) {
    if (RecordOf<Record>(window) == nullptr) {
        return FALSE;
    }
    if (enable == 0) {
        EndSpin(window);
    }
    ChangeStyle(window, VNMS_SPIN, enable != 0 ? VNMS_SPIN : 0);
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return FALSE;
    }
    record->rightPartShown = enable != 0;
    return Show(window);
}

extern "C" BOOL WINAPI nmSetAlignment(HWND window, int alignment) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return FALSE;
    }
    const bool known = alignment == VNMA_CENTER || alignment == VNMA_RIGHT;
    const DWORD bits = known ? static_cast<DWORD>(alignment) : 0;
    record->alignment = bits;
    ChangeStyle(window, VNMS_CENTER | VNMS_RIGHT, bits);
    return RecordOf<Record>(window) == nullptr ? FALSE : Redraw(window);
}

extern "C" BOOL WINAPI nmSetDisplayStyle(HWND window, int style) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return FALSE;
    }
    record->entry.settings.displayStyle =
        static_cast<std::uint16_t>(DisplayStyleOf(*record, style));
    LoadSpinPicture(*record);
    return SetDisplayStyle(kNumberKind, window, static_cast<std::uint32_t>(style));
}

extern "C" BOOL WINAPI nmSetBorderStyle(HWND window, DWORD borderStyle) {
    return SetEditBorder(kNumberKind, window, borderStyle);
}

extern "C" BOOL WINAPI nmSetColor(HWND window, int slot, COLORREF colorCode) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return FALSE;
    }
    SetColorSlot(record->colors, edit::kColorSlots, slot, colorCode);
    return edit::RedrawWithBorder(window);
}

extern "C" BOOL WINAPI nmSetNull(HWND window) {
    if (RecordOf<Record>(window) == nullptr || !IsOkToChange(kNumberKind, window)) {
        return FALSE;
    }
    SetNull(RecordOf<Record>(window)->entry);
    const BOOL result = Show(window);
    if (RecordOf<Record>(window) != nullptr) {
        SendMessageA(window, VNMM_CHANGED, 0, 0);
    }
    return result;
}

extern "C" BOOL WINAPI nmIsNull(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record == nullptr || record->entry.settings.isNull != 0;
}

extern "C" BOOL WINAPI nmOkToChange(HWND /*window*/) {
    return TRUE;
}

extern "C" int WINAPI nmGetMinHeight(HWND window) {
    return LeastSizeOf(window).height;
}

extern "C" int WINAPI nmGetMinWidth(HWND window) {
    return LeastSizeOf(window).width;
}
