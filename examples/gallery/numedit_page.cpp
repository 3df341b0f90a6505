// Numeric edits of every format kind, in several display styles, borders and states.
#include "edit_page.h"

#include <cstdio>

namespace gallery {
namespace {

enum Id { kFirst = 100, kLast = 199, kEvent };

constexpr int kRowHeight = 38;
constexpr int kTop = 16;

struct Sample {
    const char* label;
    int left;
    int row;
    DWORD style;
    DWORD kind;
    const char* text;
};

constexpr Sample kSamples[] = {
    {"0 general:", kLeft, 0, VNMS_SUNKEN, NM_GENERAL, "-1234.567"},
    {"1 integer:", kLeft, 1, VNMS_SUNKEN, NM_INTEGER, "-1234.567"},
    {"2 grouped:", kLeft, 2, VNMS_SUNKEN, NM_INTEGER_GROUPED, "-1234.567"},
    {"3 parentheses:", kLeft, 3, VNMS_SUNKEN, NM_INTEGER_PARENTHESES, "-1234.567"},
    {"4 both:", kLeft, 4, VNMS_SUNKEN, NM_INTEGER_GROUPED_PARENTHESES, "-1234.567"},
    {"5 floating:", kLeft, 5, VNMS_SUNKEN, NM_FLOATING, "-1234.567"},
    {"6 grouped:", kLeft, 6, VNMS_SUNKEN, NM_FLOATING_GROUPED, "-1234.567"},
    {"7 parentheses:", kLeft, 7, VNMS_SUNKEN, NM_FLOATING_PARENTHESES, "-1234.567"},
    {"8 both:", kLeft, 8, VNMS_SUNKEN, NM_FLOATING_GROUPED_PARENTHESES, "-1234.567"},
    {"9 unpadded:", kLeft, 9, VNMS_SUNKEN, NM_FLOATING_UNPADDED, "-1.5e20"},
    {"Spin buttons:", kSecondLeft, 0, VNMS_SUNKEN | VNMS_SPIN, NM_INTEGER, "42"},
    {"Right:", kSecondLeft, 1, VNMS_SUNKEN | VNMS_SPIN | VNMS_RIGHT, NM_FLOATING, "42"},
    {"Centred:", kSecondLeft, 2, VNMS_RAISED | VNMS_CENTER, NM_FLOATING, "42"},
    {"A line:", kSecondLeft, 3, VNMS_LINE | VNMS_SPIN, NM_INTEGER, "42"},
    {"No border:", kSecondLeft, 4, 0, NM_INTEGER, "42"},
    {"Empty:", kSecondLeft, 5, VNMS_SUNKEN | VNMS_SPIN, NM_INTEGER, ""},
    {"Read-only:", kSecondLeft, 6, VNMS_SUNKEN | VNMS_READONLY, NM_INTEGER, "42"},
    {"Disabled:", kSecondLeft, 7, VNMS_SUNKEN | VNMS_SPIN | WS_DISABLED, NM_INTEGER, "42"},
    {"Cells:", kSecondLeft, 8, VNMS_CELLS | VNMS_SPIN, NM_INTEGER, "-1234"},
    {"Digits:", kSecondLeft, 9, VNMS_SUNKEN | VNMS_DIGITS | VNMS_SPIN, NM_INTEGER, "-1234"},
};

void AddSample(HWND page, const Sample& sample, int id) {
    const bool isLarge = (sample.style & (VNMS_DIGITS | VNMS_CELLS)) != 0;
    const int y = kTop + sample.row * kRowHeight;
    AddLabel(page, sample.label, sample.left - 130, y + 5, 120);
    HWND edit = Add(page, VORN_NUMEDIT_CLASS, sample.text, sample.style | WS_TABSTOP,
                    {sample.left, y, sample.left + kWidth, y + kHeight + (isLarge ? 6 : 0)}, id);
    if (isLarge) {
        SendMessageA(edit, WM_SETFONT, 0, FALSE);
    }
    NmEditParams params{};
    params.formatKind = sample.kind;
    params.decimalDigits = 2;
    params.thousandChar = ',';
    params.decimalChar = '.';
    params.leadingZero = 1;
    nmSetEditParams(edit, &params);
    if ((sample.style & VNMS_DIGITS) != 0) {
        nmSetColor(edit, VORN_COLOR_FACE, kDisplayFace);
        nmSetColor(edit, VORN_COLOR_TEXT, kDisplayText);
    }
}

void Create(HWND page) {
    int id = kFirst;
    for (const Sample& sample : kSamples) {
        AddSample(page, sample, id++);
    }
    AddEventLine(page, kEvent);
}

void Command(HWND page, int id, int code, HWND control) {
    if (id < kFirst || id > kLast || code == EN_KILLFOCUS) {
        return;
    }
    char number[64] = "";
    nmGetLastGoodNumber(control, number);
    char text[140];
    std::snprintf(text, sizeof text, "%s: \"%s\", as an integer %ld", NameOfEditCode(code), number,
                  nmGetInteger(control));
    SetWindowTextA(GetDlgItem(page, kEvent), text);
}

} // namespace

extern const Page kNumEditPage = {"numedit", "Numeric edit", Create, Command, nullptr};

} // namespace gallery
