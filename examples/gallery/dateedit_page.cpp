// Date edits in several layouts, display styles, borders and states.
#include "edit_page.h"

#include <cstdio>

namespace gallery {
namespace {

enum Id { kFirst = 100, kLast = 199, kEvent };

constexpr int kRowHeight = 44;
constexpr int kTop = 20;

constexpr WORD kYear = 2026;
constexpr WORD kMonth = 3;
constexpr WORD kDay = 7;

struct Sample {
    const char* label;
    int left;
    int row;
    DWORD style;
    char separator;
    DWORD kinds[3];
    DWORD leadingZeros;
    DWORD fourDigitYear;
};

constexpr DWORD kDayFirst[] = {DT_DAY, DT_MONTH, DT_YEAR};

constexpr Sample kSamples[] = {
    {"User's layout:", kLeft, 0, VDTS_SUNKEN | VDTS_CALENDAR, 0, {}, 0, 0},
    {"With points:", kLeft, 1, VDTS_SUNKEN, '.', {DT_DAY, DT_MONTH, DT_YEAR}, 1, 1},
    {"Year first:", kLeft, 2, VDTS_SUNKEN, '-', {DT_YEAR, DT_MONTH, DT_DAY}, 1, 1},
    {"Two digits:", kLeft, 3, VDTS_SUNKEN, '/', {DT_MONTH, DT_DAY, DT_YEAR}, 0, 0},
    {"Digits:", kLeft, 4, VDTS_SUNKEN | VDTS_DIGITS, '.', {DT_DAY, DT_MONTH, DT_YEAR}, 1, 1},
    {"Cells:", kLeft, 5, VDTS_CELLS, '-', {DT_MONTH, DT_DAY, DT_YEAR}, 1, 0},
    {"No border:", kSecondLeft, 0, 0, '/', {DT_MONTH, DT_DAY, DT_YEAR}, 1, 1},
    {"A line:", kSecondLeft, 1, VDTS_LINE | VDTS_CALENDAR, '/', {DT_MONTH, DT_DAY, DT_YEAR}, 1, 1},
    {"Raised:", kSecondLeft, 2, VDTS_RAISED, '/', {DT_MONTH, DT_DAY, DT_YEAR}, 1, 1},
    {"Read-only:",
     kSecondLeft,
     3,
     VDTS_SUNKEN | VDTS_READONLY,
     '/',
     {DT_MONTH, DT_DAY, DT_YEAR},
     1,
     1},
    {"Disabled:",
     kSecondLeft,
     4,
     VDTS_SUNKEN | VDTS_CALENDAR | WS_DISABLED,
     '/',
     {DT_MONTH, DT_DAY, DT_YEAR},
     1,
     1},
    {"Large:",
     kSecondLeft,
     5,
     VDTS_LINE | VDTS_DIGITS | VDTS_CALENDAR,
     '/',
     {DT_MONTH, DT_DAY, DT_YEAR},
     0,
     0},
};

void SetParams(HWND edit, const Sample& sample) {
    DtEditParams params{};
    params.size = sizeof params;
    params.setDate = 1;
    params.year = kYear;
    params.month = kMonth;
    params.day = kDay;
    params.separator = static_cast<unsigned char>(sample.separator);
    params.monthLeadingZero = sample.leadingZeros;
    params.dayLeadingZero = sample.leadingZeros;
    params.fourDigitYear = sample.fourDigitYear;
    for (int position = 0; position < 3; ++position) {
        params.kinds[position] = sample.kinds[position];
    }
    dtSetEditParams(edit, &params);
}

void AddSample(HWND page, const Sample& sample, int id) {
    const bool isLarge = (sample.style & VDTS_DIGITS) != 0;
    const int y = kTop + sample.row * kRowHeight;
    const int height = isLarge ? kHeight + 8 : kHeight;
    AddLabel(page, sample.label, sample.left - 130, y + 5, 120);
    HWND edit = Add(page, VORN_DATEEDIT_CLASS, "", sample.style | WS_TABSTOP,
                    {sample.left, y, sample.left + kWidth, y + height}, id);
    if ((sample.style & VDTS_CELLS) != 0) { // room for all of them
        SetWindowPos(edit, nullptr, 0, 0, kWidth + 18, height, SWP_NOMOVE | SWP_NOZORDER);
    }
    if (isLarge) {
        SendMessageA(edit, WM_SETFONT, 0, FALSE);
    }
    SetParams(edit, sample);
}

void Create(HWND page) {
    int id = kFirst;
    for (const Sample& sample : kSamples) {
        AddSample(page, sample, id++);
    }
    AddLabel(page, "Colours of the host:", kLeft - 130, kTop + 6 * kRowHeight + 5, 120);
    HWND edit = Add(page, VORN_DATEEDIT_CLASS, "", VDTS_SUNKEN | VDTS_DIGITS | WS_TABSTOP,
                    {kLeft, kTop + 6 * kRowHeight, kLeft + kWidth, kTop + 6 * kRowHeight + 32}, id);
    SendMessageA(edit, WM_SETFONT, 0, FALSE);
    SetParams(edit, {"", 0, 0, 0, '.', {kDayFirst[0], kDayFirst[1], kDayFirst[2]}, 1, 1});
    dtSetColor(edit, VORN_COLOR_FACE, kDisplayFace);
    dtSetColor(edit, VORN_COLOR_TEXT, kDisplayText);
    AddEventLine(page, kEvent);
}

void Command(HWND page, int id, int code, HWND control) {
    if (id < kFirst || id > kLast || code == EN_KILLFOCUS) {
        return;
    }
    char date[32] = "";
    dtGetDateString(control, date);
    char text[100];
    std::snprintf(text, sizeof text, "%s: %s, day %ld since 1900", NameOfEditCode(code), date,
                  dtGetDate(control, nullptr));
    SetWindowTextA(GetDlgItem(page, kEvent), text);
}

} // namespace

extern const Page kDateEditPage = {"dateedit", "Date edit", Create, Command, nullptr};

} // namespace gallery
