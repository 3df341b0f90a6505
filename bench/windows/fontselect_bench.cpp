#include "bench/windows/measure.h"

#include <cstdio>
#include <vorn32.h>

namespace bench {
namespace {

constexpr int kFamilyList = 1;
constexpr int kSizeList = 2;

INT_PTR CALLBACK AcceptDefaults(HWND, UINT, WPARAM, LPARAM) {
    return FALSE;
}

HWND AddList(HWND dialog, int id, int x, int width) {
    return CreateWindowExA(
        0, "COMBOBOX", "",
        WS_CHILD | WS_VISIBLE | WS_VSCROLL | WS_TABSTOP | CBS_DROPDOWNLIST | CBS_SORT, x, 2, width,
        190, dialog, reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
}

// What a host would build instead: a dialog with a list of families and a list of sizes.
HWND CreateDialogWithLists() {
    struct {
        DLGTEMPLATE header;
        WORD noMenuNoClassNoTitle[3];
    } box = {{WS_CHILD | WS_VISIBLE, 0, 0, 5, 5, 100, 12}, {}};
    HWND dialog = CreateDialogIndirectParamA(GetModuleHandleA(nullptr), &box.header, Host(),
                                             AcceptDefaults, 0);
    AddList(dialog, kFamilyList, 2, 138);
    AddList(dialog, kSizeList, 146, 52);
    return dialog;
}

int CALLBACK AddFamily(const LOGFONTA* font, const TEXTMETRICA*, DWORD, LPARAM list) {
    SendMessageA(reinterpret_cast<HWND>(list), CB_ADDSTRING, 0,
                 reinterpret_cast<LPARAM>(font->lfFaceName));
    return 1;
}

void FillLists(HWND dialog) {
    HWND families = GetDlgItem(dialog, kFamilyList);
    HDC context = GetDC(dialog);
    EnumFontFamiliesA(context, nullptr, AddFamily, reinterpret_cast<LPARAM>(families));
    ReleaseDC(dialog, context);
    HWND sizes = GetDlgItem(dialog, kSizeList);
    for (const int points : {8, 9, 10, 11, 12, 14, 16, 18, 20, 22, 24, 26, 28, 36, 48, 72}) {
        char text[8];
        std::snprintf(text, sizeof text, "%3i", points);
        SendMessageA(sizes, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text));
    }
}

} // namespace

void MeasureFontSelect() {
    const auto ours = [] { DestroyWindow(Create(VORN_FONTSELECT_CLASS, WS_TABSTOP)); };
    Compare("font selector: create and destroy / dialog, two full combo boxes", 20, ours, [] {
        HWND dialog = CreateDialogWithLists();
        FillLists(dialog);
        DestroyWindow(dialog);
    });
    Compare("font selector: create and destroy / dialog, two empty combo boxes", 20, ours,
            [] { DestroyWindow(CreateDialogWithLists()); });
    Compare(
        "combo box: create and destroy / COMBOBOX", 100,
        [] { DestroyWindow(Create(VORN_COMBOBOX_CLASS, CBS_DROPDOWNLIST)); },
        [] { DestroyWindow(Create("COMBOBOX", CBS_DROPDOWNLIST)); });

    HWND comboBox = Create(VORN_COMBOBOX_CLASS, CBS_DROPDOWNLIST);
    HWND system = Create("COMBOBOX", CBS_DROPDOWNLIST);
    Compare(
        "combo box: a message / COMBOBOX", 2000,
        [comboBox] { SendMessageA(comboBox, CB_GETCOUNT, 0, 0); },
        [system] { SendMessageA(system, CB_GETCOUNT, 0, 0); });
    DestroyWindow(system);
    DestroyWindow(comboBox);

    const auto addFamily =
        Ours<int CALLBACK(const LOGFONTA*, const TEXTMETRICA*, DWORD, LPARAM)>("EnumFamCallBack");
    Growth("font selector: adding families, cost a family", [addFamily](int families) {
        HWND control = Create(VORN_FONTSELECT_CLASS, 0);
        LOGFONTA font{};
        const TEXTMETRICA metrics{};
        for (int i = 0; i < families; ++i) {
            std::snprintf(font.lfFaceName, sizeof font.lfFaceName, "Zz %07d", i);
            addFamily(&font, &metrics, 0, reinterpret_cast<LPARAM>(control));
        }
        DestroyWindow(control);
    });
}

} // namespace bench
