// Time edits in several forms, display styles, borders and states, and a clock.
#include "edit_page.h"

#include <cstdio>
#include <cstring>

namespace gallery {
namespace {

enum Id { kFirst = 100, kLast = 198, kClock, kEvent };

constexpr int kRowHeight = 44;
constexpr int kTop = 20;

// What all of them show, the clock until it runs.
constexpr TmTime kTime = {14, 5, 9};

struct Sample {
    const char* label;
    int left;
    int row;
    DWORD style;
    char separator;
    DWORD leadingZero;
    DWORD twentyFourHour;
    const char* am;
    const char* pm;
};

constexpr DWORD kUsual = VTMS_SUNKEN | VTMS_SECONDS;

constexpr Sample kSamples[] = {
    {"24 hours:", kLeft, 0, kUsual, ':', 1, 1, "AM", "PM"},
    {"12 hours:", kLeft, 1, kUsual, ':', 0, 0, "AM", "PM"},
    {"Without seconds:", kLeft, 2, VTMS_SUNKEN, ':', 0, 0, "AM", "PM"},
    {"With points:", kLeft, 3, kUsual, '.', 1, 1, "", ""},
    {"Other texts:", kLeft, 4, kUsual, ':', 1, 0, "vorm.", "nachm."},
    {"Digits:", kLeft, 5, kUsual | VTMS_DIGITS, ':', 1, 1, "", ""},
    {"Cells:", kLeft, 6, VTMS_SECONDS | VTMS_CELLS, ':', 1, 1, "", ""},
    {"No border:", kSecondLeft, 0, VTMS_SECONDS, ':', 1, 1, "", ""},
    {"A line:", kSecondLeft, 1, VTMS_SECONDS | VTMS_LINE, ':', 1, 1, "", ""},
    {"Raised:", kSecondLeft, 2, VTMS_SECONDS | VTMS_RAISED, ':', 1, 1, "", ""},
    {"Read-only:", kSecondLeft, 3, kUsual | VTMS_READONLY, ':', 1, 1, "", ""},
    {"Disabled:", kSecondLeft, 4, kUsual | WS_DISABLED, ':', 1, 1, "", ""},
};

void SetParams(HWND edit, const Sample& sample) {
    TmEditParams params{};
    params.setTime = 1;
    params.time = kTime;
    params.separator = static_cast<unsigned char>(sample.separator);
    params.leadingZero = sample.leadingZero;
    params.twentyFourHour = sample.twentyFourHour;
    params.showSeconds = (sample.style & VTMS_SECONDS) != 0 ? 1 : 0;
    std::strncpy(params.amText, sample.am, sizeof params.amText - 1);
    std::strncpy(params.pmText, sample.pm, sizeof params.pmText - 1);
    tmSetEditParams(edit, &params);
}

HWND AddSample(HWND page, const Sample& sample, int id) {
    const bool isTall = (sample.style & VTMS_DIGITS) != 0;
    const int y = kTop + sample.row * kRowHeight;
    const int width = (sample.style & VTMS_CELLS) != 0 ? kWidth + 24 : kWidth; // for all of them
    const int height = isTall ? kHeight + 8 : kHeight;
    AddLabel(page, sample.label, sample.left - 130, y + 5, 120);
    HWND edit = Add(page, VORN_TIMEEDIT_CLASS, "", sample.style | WS_TABSTOP,
                    {sample.left, y, sample.left + width, y + height}, id);
    if (isTall) {
        SendMessageA(edit, WM_SETFONT, 0, FALSE);
    }
    SetParams(edit, sample);
    return edit;
}

void Create(HWND page) {
    int id = kFirst;
    for (const Sample& sample : kSamples) {
        AddSample(page, sample, id++);
    }
    HWND null = AddSample(page, {"No time yet:", kSecondLeft, 5, kUsual, ':', 1, 1, "", ""}, id++);
    tmSetNull(null);
    // Texts that are nobody's, so that the clock's text is taken as it is.
    HWND clock = AddSample(
        page,
        {"A clock:", kSecondLeft, 6, kUsual | VTMS_DIGITS | VTMS_READONLY, ':', 1, 1, "AM", "PM"},
        kClock);
    tmSetColor(clock, VORN_COLOR_FACE, kDisplayFace);
    tmSetColor(clock, VORN_COLOR_TEXT, kDisplayText);
    AddEventLine(page, kEvent);
}

void Command(HWND page, int id, int code, HWND control) {
    if (id < kFirst || id > kLast || code == EN_KILLFOCUS) {
        return;
    }
    char time[64] = "";
    tmGetTimeString(control, time);
    char text[120];
    std::snprintf(text, sizeof text, "%s: %s%s", NameOfEditCode(code), time,
                  tmIsNull(control) != 0 ? "no time" : "");
    SetWindowTextA(GetDlgItem(page, kEvent), text);
}

// Starts the clock where the page runs, so that its picture stays the same.
void Tick(HWND page) {
    static HWND running = nullptr;
    HWND clock = GetDlgItem(page, kClock);
    if (running != clock) {
        running = clock;
        tmStartClock(clock);
    }
}

} // namespace

extern const Page kTimeEditPage = {"timeedit", "Time edit", Create, Command, Tick};

} // namespace gallery
