#include "bench/windows/measure.h"

#include <vorn32.h>

namespace bench {
namespace {

constexpr int kWidth = 120;
constexpr int kHeight = 24;

// The number goes on, so that there is something to paint.
LONG NextNumber() {
    static LONG number = 100000;
    number = number % 900000 + 100001;
    return number;
}

void CompareNumbers(const char* what, DWORD style, DWORD kind) {
    auto* setInteger = Ours<decltype(nmSetInteger)>("nmSetInteger");
    auto* setEditParams = Ours<decltype(nmSetEditParams)>("nmSetEditParams");
    HWND ours = Create(VORN_NUMEDIT_CLASS, style, kWidth, kHeight);
    HWND theirs = Create("EDIT", ES_AUTOHSCROLL, kWidth, kHeight);
    // Below ours, so that neither covers the other.
    SetWindowPos(theirs, nullptr, 0, 2 * kHeight, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    NmEditParams params{};
    params.formatKind = kind;
    params.decimalDigits = 2;
    setEditParams(ours, &params);
    Compare(
        what, 100, [&] { setInteger(ours, NextNumber()); },
        [&] {
            char text[16];
            wsprintfA(text, "%ld", NextNumber());
            SetWindowTextA(theirs, text);
            UpdateWindow(theirs);
        });
    DestroyWindow(theirs);
    DestroyWindow(ours);
}

} // namespace

void MeasureNumEdit() {
    Compare(
        "numeric edit: create and destroy / EDIT", 100,
        [] { DestroyWindow(Create(VORN_NUMEDIT_CLASS, VNMS_SPIN, kWidth, kHeight)); },
        [] { DestroyWindow(Create("EDIT", ES_AUTOHSCROLL, kWidth, kHeight)); });
    CompareNumbers("numeric edit: set a number, repainted / EDIT", 0, NM_INTEGER);
    CompareNumbers("numeric edit: the same, grouped, with buttons / EDIT", VNMS_SPIN,
                   NM_FLOATING_GROUPED);
}

} // namespace bench
