// A host with year calendars, for their tests, and where a calendar's days must be.
#pragma once

#include "tests/windows/support/host_window.h"
#include "tests/windows/support/input.h"

#include <cstdint>
#include <gtest/gtest.h>
#include <vector>
#include <vorn32.h>

namespace vorn::test {

// The fonts of a calendar and how high they are.
class CalendarFonts {
public:
    CalendarFonts() {
        HDC screen = GetDC(nullptr);
        title = static_cast<HFONT>(GetStockObject(SYSTEM_FONT));
        titleHeight = Height(screen, title);
        small = CreateFontA(titleHeight * 7 / 10, 0, 0, 0, 400, FALSE, FALSE, FALSE,
                            DEFAULT_CHARSET, 0, 0, 0, 0x32, "Arial");
        smallHeight = Height(screen, small);
        ReleaseDC(nullptr, screen);
    }
    ~CalendarFonts() { DeleteObject(small); }
    CalendarFonts(const CalendarFonts&) = delete;
    CalendarFonts& operator=(const CalendarFonts&) = delete;

    HFONT title = nullptr;
    HFONT small = nullptr;
    int titleHeight = 0;
    int smallHeight = 0;

private:
    static int Height(HDC screen, HFONT font) {
        HGDIOBJ previous = SelectObject(screen, font);
        SIZE size{};
        GetTextExtentPoint32A(screen, "Aj", 2, &size);
        SelectObject(screen, previous);
        return static_cast<int>(size.cy);
    }
};

// A calendar's numbers.
struct CalendarDate {
    WORD year;
    WORD month;
    WORD day;

    friend bool operator==(const CalendarDate&, const CalendarDate&) = default;
};

class CalendarTest : public testing::Test {
protected:
    // As wide and high as most tests' calendars; panels of 200 by 110, columns of 28.
    static constexpr int kWidth = 602;
    static constexpr int kHeight = 442;

    HostWindow host;
    CalendarFonts fonts;

    HWND Create(int width = kWidth, int height = kHeight) {
        return host.Create(VORN_CALENDAR_CLASS, 0, 5, 6, width, height, 77);
    }

    static void Set(HWND calendar, WORD year, WORD month, WORD day) {
        EXPECT_EQ(SendMessageA(calendar, VCALM_SETDATE, year, MAKELONG(month, day)), 0);
    }

    static VORNCALENDARDATE Get(HWND calendar) {
        VORNCALENDARDATE date;
        FillMemory(&date, sizeof date, 0xEE);
        SendMessageA(calendar, VCALM_GETDATE, 0, reinterpret_cast<LPARAM>(&date));
        return date;
    }

    static CalendarDate DateOf(HWND calendar) {
        const VORNCALENDARDATE date = Get(calendar);
        return {date.year, date.month, date.day};
    }

    static WORD CurrentYear() {
        SYSTEMTIME now{};
        GetSystemTime(&now);
        return now.wYear;
    }

    // A cell of a calendar of the usual size; months and cells count from 0.
    RECT Cell(int month, int cell) const {
        const int left = 2 + month % 3 * 200 + cell % 7 * 28;
        const int top =
            2 + month / 3 * 110 + fonts.titleHeight + fonts.smallHeight * (1 + cell / 7);
        return {left, top, left + 28, top + fonts.smallHeight};
    }
    POINT Middle(int month, int cell) const {
        const RECT rect = Cell(month, cell);
        return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
    }

    // A press there, and what the parent was told.
    std::vector<int> Press(HWND calendar, POINT point) {
        host.TakeNotifications();
        SendMouse(calendar, WM_LBUTTONDOWN, static_cast<int>(point.x), static_cast<int>(point.y));
        return host.TakeNotifications();
    }
};

} // namespace vorn::test
