// Percent bars: frames, scale and ticks, colours and fonts, one running, one driven by messages.
#include "page.h"

namespace gallery {
namespace {

enum Id { kRunning = 100, kDriven, kLess, kMore };

HWND AddBar(HWND page, DWORD style, const RECT& place, int progress, int id = 0) {
    HWND bar = Add(page, VORN_PERCENTBAR_CLASS, "", style, place, id);
    pbSetProgress(bar, progress);
    return bar;
}

void AddFrames(HWND page) {
    const struct {
        const char* name;
        DWORD style;
        int progress;
    } frames[] = {{"No frame", 0, 30},
                  {"Line", VPBS_LINE, 45},
                  {"Raised", VPBS_RAISED, 60},
                  {"Sunken", VPBS_SUNKEN, 75}};
    int y = 20;
    for (const auto& frame : frames) {
        AddLabel(page, frame.name, 20, y + 5, 70);
        AddBar(page, frame.style, {90, y, 290, y + 26}, frame.progress);
        AddBar(page, frame.style | VPBS_PERCENT, {310, y, 590, y + 26}, frame.progress);
        y += 36;
    }
}

void AddScales(HWND page) {
    AddLabel(page, "Scale", 20, 175, 70);
    AddBar(page, VPBS_SUNKEN | VPBS_SCALETEXT | VPBS_PERCENT, {90, 170, 590, 222}, 40);
    AddLabel(page, "Scale, ticks", 20, 240, 70);
    AddBar(page, VPBS_LINE | VPBS_SCALETEXT | VPBS_TICKMARKS, {90, 235, 590, 287}, 63);
}

void AddColors(HWND page) {
    AddLabel(page, "Colours", 20, 310, 70);
    HWND warm = AddBar(page, VPBS_SUNKEN | VPBS_PERCENT, {90, 305, 330, 335}, 55);
    pbSetColor(warm, VORN_COLOR_FACE, RGB(255, 243, 205));
    pbSetColor(warm, VORN_COLOR_FILL, RGB(180, 70, 10));
    HWND green = AddBar(page, VPBS_RAISED | VPBS_PERCENT, {350, 305, 590, 335}, 80);
    pbSetColor(green, VORN_COLOR_FACE, RGB(20, 40, 20));
    pbSetColor(green, VORN_COLOR_FILL, RGB(120, 220, 120));
    // For the life of the program, however often the page is made.
    static HFONT font =
        CreateFontA(-19, 0, 0, 0, FW_BOLD, 0, 0, 0, ANSI_CHARSET, 0, 0, 0, 0, "Arial");
    pbSetPercentFont(green, font);
}

void Create(HWND page) {
    AddFrames(page);
    AddScales(page);
    AddColors(page);
    AddLabel(page, "On a timer", 20, 361, 70);
    AddBar(page, VPBS_SUNKEN | VPBS_PERCENT, {90, 356, 590, 380}, 25, kRunning);
    AddLabel(page, "By messages", 20, 405, 70);
    AddBar(page, VPBS_LINE | VPBS_PERCENT, {90, 400, 430, 424}, 50, kDriven);
    Add(page, "BUTTON", "Less", WS_TABSTOP, {445, 399, 510, 425}, kLess);
    Add(page, "BUTTON", "More", WS_TABSTOP, {525, 399, 590, 425}, kMore);
}

void Command(HWND page, int id, int /*code*/, HWND /*control*/) {
    if (id != kLess && id != kMore) {
        return;
    }
    HWND bar = GetDlgItem(page, kDriven);
    const LRESULT progress = SendMessageA(bar, VPBM_GETPROGRESS, 0, 0);
    SendMessageA(bar, VPBM_SETPROGRESS, 0, progress + (id == kMore ? 10 : -10));
}

void Tick(HWND page) {
    HWND bar = GetDlgItem(page, kRunning);
    const LONG progress = pbGetProgress(bar);
    pbSetProgress(bar, progress == pbGetLimit(bar) ? 0 : progress + 1);
}

} // namespace

extern const Page kPercentBarPage = {"percentbar", "Percent bar", Create, Command, Tick};

} // namespace gallery
