// The font selector's creation, its lists and its end.
#include "core/classes_win.h"
#include "core/gdi_win.h"
#include "core/window_win.h"
#include "fontselect/fontselect_win.h"

#include <vorn32/fontselect.h>

namespace vorn::fontselect {
namespace {

// The Tab key of a host's dialog looks for its next stop inside such windows.
void LetTabsIn(HWND window) {
    SetWindowLongA(window, GWL_EXSTYLE,
                   GetWindowLongA(window, GWL_EXSTYLE) | static_cast<LONG>(WS_EX_CONTROLPARENT));
}

void CreateLists(HWND window) {
    HWND dialog = CreateDialogParamA(Module(), MAKEINTRESOURCEA(kDialog), window, fnFontSelProc, 0);
    Record* record = RecordOf<Record>(window);
    if (record == nullptr || dialog == nullptr) {
        return;
    }
    record->dialog = dialog;
    record->familyList = GetDlgItem(dialog, kFamilyList);
    record->sizeList = GetDlgItem(dialog, kSizeList);
    LetTabsIn(window);
    LetTabsIn(dialog);
    ShowWindow(dialog, SW_SHOW);
}

void ListFamilies(HWND window) {
    HDC context = GetDC(window);
    EnumFontFamiliesA(context, nullptr, EnumFamCallBack, reinterpret_cast<LPARAM>(window));
    ReleaseDC(window, context);
}

void ListSizes(HWND window) {
    HWND list = ListOf(window, kSizeList);
    for (const std::int32_t points : kPointSizes) {
        char text[8];
        wsprintfA(text, "%3i", points);
        const LRESULT index = AskList(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
        AskList(list, CB_SETITEMDATA, static_cast<WPARAM>(index), points);
    }
    AskList(list, CB_SETCURSEL, kDefaultSizeIndex);
}

void AddFamilyTo(HWND window, std::uint8_t pitchAndFamily, const char* name) {
    Record* record = RecordOf<Record>(window);
    if (record == nullptr || !AddFamily(record->families, pitchAndFamily, name)) {
        return;
    }
    const std::uint32_t index = record->families.count - 1;
    const Family added = *FamilyAt(record->families, index);
    HWND list = ListOf(window, kFamilyList);
    const LRESULT place = AskList(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(added.name));
    if (place >= 0) {
        AskList(list, CB_SETITEMDATA, static_cast<WPARAM>(place), static_cast<LPARAM>(index));
    }
}

} // namespace

LRESULT Create(HWND window, WPARAM wParam, LPARAM lParam) {
    if (RecordOf<Record>(window) != nullptr) {
        return 0;
    }
    ChangeStyle(window, WS_BORDER, 0);
    if (DefWindowProcA(window, WM_NCCREATE, wParam, lParam) == 0) {
        return 0;
    }
    Record* record = AttachRecord<Record>(window);
    if (record == nullptr) {
        return 0;
    }
    record->trueTypeMark = LoadBitmapA(Module(), MAKEINTRESOURCEA(kTrueTypeMark));
    record->plainMark = LoadBitmapA(Module(), MAKEINTRESOURCEA(kPlainMark));
    record->fieldBrush = CreateSolidBrush(GetSysColor(COLOR_WINDOW));
    record->font = OrSystemFont(nullptr);
    if (!StartFamilies(record->families)) {
        return -1;
    }
    CreateLists(window);
    ListFamilies(window);
    AskList(ListOf(window, kFamilyList), CB_SETCURSEL, 0);
    ListSizes(window);
    if (IsWindowEnabled(window) == FALSE) {
        EnableLists(window, false);
    }
    return RecordOf<Record>(window) != nullptr ? 1 : 0;
}

void Release(HWND window) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    HWND dialog = DialogOf(window);
    Record owned = *record;
    DetachRecord<Record>(window);
    FreeFamilies(owned.families);
    DeleteObject(owned.trueTypeMark);
    DeleteObject(owned.plainMark);
    DeleteObject(owned.fieldBrush);
    // Host code may run in its end.
    if (dialog != nullptr) {
        DestroyWindow(dialog);
    }
}

void ListFamiliesAnew(HWND window) {
    char chosen[kFaceNameSize];
    const bool wasChosen = CopyChosenFamily(window, chosen);
    HWND list = ListOf(window, kFamilyList);
    AskList(list, CB_RESETCONTENT);
    Record* record = RecordOf<Record>(window);
    if (record == nullptr) {
        return;
    }
    FreeFamilies(record->families);
    if (!StartFamilies(record->families)) {
        return;
    }
    ListFamilies(window);
    const LRESULT found = wasChosen ? AskList(list, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                              reinterpret_cast<LPARAM>(chosen))
                                    : CB_ERR;
    AskList(list, CB_SETCURSEL, found >= 0 ? static_cast<WPARAM>(found) : 0);
}

void EnableLists(HWND window, bool enabled) {
    EnableWindow(ListOf(window, kFamilyList), enabled ? TRUE : FALSE);
    EnableWindow(ListOf(window, kSizeList), enabled ? TRUE : FALSE);
}

// A host may have destroyed the dialog or a list.
HWND DialogOf(HWND window) {
    const Record* record = RecordOf<Record>(window);
    return record != nullptr && GetParent(record->dialog) == window ? record->dialog : nullptr;
}

HWND ListOf(HWND window, std::int32_t list) {
    const Record* record = RecordOf<Record>(window);
    if (record == nullptr || record->dialog == nullptr) {
        return nullptr;
    }
    HWND found = list == kFamilyList ? record->familyList : record->sizeList;
    return GetParent(found) == record->dialog ? found : nullptr;
}

LRESULT AskList(HWND list, UINT message, WPARAM wParam, LPARAM lParam) {
    return list == nullptr ? CB_ERR : SendMessageA(list, message, wParam, lParam);
}

bool CopyChosenFamily(HWND window, char (&name)[kFaceNameSize]) {
    HWND list = ListOf(window, kFamilyList);
    const LRESULT chosen = AskList(list, CB_GETCURSEL);
    if (chosen < 0) {
        return false;
    }
    const LRESULT index = AskList(list, CB_GETITEMDATA, static_cast<WPARAM>(chosen));
    const Record* record = RecordOf<Record>(window);
    const Family* family =
        record == nullptr ? nullptr : FamilyAt(record->families, static_cast<std::uint32_t>(index));
    if (family == nullptr) {
        return false;
    }
    lstrcpynA(name, family->name, kFaceNameSize);
    return true;
}

FontMetrics MetricsOf(HFONT font) {
    const TEXTMETRICA metrics = MeasureFont(font);
    return {metrics.tmHeight, metrics.tmInternalLeading, metrics.tmAveCharWidth};
}

HFONT OrSystemFont(HFONT font) {
    return font != nullptr ? font : static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
}

} // namespace vorn::fontselect

using namespace vorn::fontselect;

extern "C" int CALLBACK EnumFamCallBack(const LOGFONTA* font, const TEXTMETRICA* metrics,
                                        DWORD /*fontType*/, LPARAM window) {
    if (font != nullptr && metrics != nullptr) {
        AddFamilyTo(reinterpret_cast<HWND>(window), metrics->tmPitchAndFamily, font->lfFaceName);
    }
    return 1;
}
