// The year calendar as a host meets it: messages, clicks, notifications.
#include "tests/windows/support/calendar_host.h"

#include <cstddef>
#include <cstring>

namespace {

using vorn::test::CalendarDate;
using vorn::test::CalendarTest;
using vorn::test::Message;
using vorn::test::MoveMouse;
using vorn::test::PressMouse;
using vorn::test::PumpMessages;
using vorn::test::ReleaseMouse;
using vorn::test::SendMouse;

using Codes = std::vector<int>;

class Calendar : public CalendarTest {
protected:
    static void ExpectDate(HWND calendar, WORD year, WORD month, WORD day) {
        EXPECT_EQ(DateOf(calendar), (CalendarDate{year, month, day}))
            << "is " << DateOf(calendar).year << "-" << DateOf(calendar).month << "-"
            << DateOf(calendar).day;
    }

    // A click by the mouse itself.
    static void Click(HWND calendar, POINT point) {
        MoveMouse(calendar, static_cast<int>(point.x), static_cast<int>(point.y));
        PressMouse();
        ReleaseMouse();
        PumpMessages();
    }
};

TEST_F(Calendar, HasTheDocumentedNumbers) {
    EXPECT_EQ(VCALM_SETDATE, 1224);
    EXPECT_EQ(VCALM_GETDATE, 1225);
    EXPECT_EQ(VCALN_SELECT, 0x0100);
    EXPECT_EQ(VCALN_DBLCLK, 0x0101);
    EXPECT_EQ(sizeof(VORNCALENDARDATE), 10u);
    EXPECT_EQ(offsetof(VORNCALENDARDATE, month), 0u);
    EXPECT_EQ(offsetof(VORNCALENDARDATE, day), 2u);
    EXPECT_EQ(offsetof(VORNCALENDARDATE, year), 4u);
    EXPECT_EQ(offsetof(VORNCALENDARDATE, weekday), 6u);
    EXPECT_EQ(offsetof(VORNCALENDARDATE, leapYear), 8u);
}

TEST_F(Calendar, StartsWithoutASelection) {
    HWND calendar = Create();
    VORNCALENDARDATE date;
    FillMemory(&date, sizeof date, 0xEE);
    EXPECT_EQ(SendMessageA(calendar, VCALM_GETDATE, 0, reinterpret_cast<LPARAM>(&date)), 0);
    const VORNCALENDARDATE zeros{};
    EXPECT_EQ(std::memcmp(&date, &zeros, sizeof date), 0);
}

TEST_F(Calendar, TellsTheDateThatWasSet) {
    const struct {
        WORD year, month, day;
        WORD weekday, leapYear;
        LRESULT dayNumber;
    } cases[] = {{2000, 1, 1, 6, 1, 730121}, {1900, 1, 1, 1, 0, 693597},
                 {1752, 9, 2, 3, 1, 639797}, {1752, 9, 14, 4, 1, 639798},
                 {1, 1, 1, 6, 0, 0},         {2000, 1, 9, 0, 1, 730129}};
    HWND calendar = Create();
    for (const auto& given : cases) {
        Set(calendar, given.year, given.month, given.day);
        VORNCALENDARDATE date;
        FillMemory(&date, sizeof date, 0xEE);
        EXPECT_EQ(SendMessageA(calendar, VCALM_GETDATE, 0, reinterpret_cast<LPARAM>(&date)),
                  given.dayNumber);
        EXPECT_EQ(date.year, given.year);
        EXPECT_EQ(date.month, given.month);
        EXPECT_EQ(date.day, given.day);
        EXPECT_EQ(date.weekday, given.weekday) << given.year;
        EXPECT_EQ(date.leapYear, given.leapYear) << given.year;
        EXPECT_EQ(SendMessageA(calendar, VCALM_GETDATE, 0, 0), given.dayNumber)
            << "without a record to fill";
    }
}

TEST_F(Calendar, KeepsTheDateInTheWindowsWords) {
    HWND calendar = Create();
    Set(calendar, 2024, 11, 5);
    EXPECT_EQ(GetWindowWord(calendar, 0), 2024);
    EXPECT_EQ(GetWindowWord(calendar, 2), 11);
    EXPECT_EQ(GetWindowWord(calendar, 4), 5);
    SetWindowWord(calendar, 0, 1999);
    SetWindowWord(calendar, 2, 7);
    SetWindowWord(calendar, 4, 8);
    ExpectDate(calendar, 1999, 7, 8);
}

TEST_F(Calendar, SelectsTodayWhenBothParametersAreZero) {
    HWND calendar = Create();
    Set(calendar, 1752, 9, 2);
    SYSTEMTIME before{};
    SYSTEMTIME after{};
    GetSystemTime(&before);
    EXPECT_EQ(SendMessageA(calendar, VCALM_SETDATE, 0, 0), 0);
    GetSystemTime(&after);
    const CalendarDate date = DateOf(calendar);
    EXPECT_TRUE(date == (CalendarDate{before.wYear, before.wMonth, before.wDay}) ||
                date == (CalendarDate{after.wYear, after.wMonth, after.wDay}))
        << date.year << "-" << date.month << "-" << date.day;
}

TEST_F(Calendar, TakesEverythingElseLiterally) {
    HWND calendar = Create();
    Set(calendar, 0, 9, 0);
    ExpectDate(calendar, 0, 9, 0);
    Set(calendar, 0, 1, 1);
    ExpectDate(calendar, 0, 1, 1);
    Set(calendar, 2024, 0, 0);
    ExpectDate(calendar, 2024, 0, 0);
    Set(calendar, 2023, 2, 31);
    ExpectDate(calendar, 2023, 2, 31);
    Set(calendar, 65535, 65535, 65535);
    ExpectDate(calendar, 65535, 65535, 65535);
}

TEST_F(Calendar, NotifiesNothingOfWhatTheHostSets) {
    HWND calendar = Create();
    host.TakeNotifications();
    Set(calendar, 2024, 1, 1);
    Set(calendar, 0, 0, 0);
    PumpMessages();
    EXPECT_EQ(host.TakeNotifications(), Codes{});
}

TEST_F(Calendar, SelectsTheDayThatIsClicked) {
    HWND calendar = Create();
    Set(calendar, 2024, 1, 1);
    std::vector<Message> commands;
    HWND focusAtCommand = nullptr;
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_COMMAND) {
            commands.push_back(message);
            focusAtCommand = GetFocus();
        }
        return std::nullopt;
    };
    // 1 May 2024 was a Wednesday, so the 17th is in the third row.
    Click(calendar, Middle(4, 3 + 16));
    ExpectDate(calendar, 2024, 5, 17);
    ASSERT_EQ(commands.size(), 1u);
    EXPECT_EQ(commands[0].wParam, MAKEWPARAM(77, 0x0100));
    EXPECT_EQ(reinterpret_cast<HWND>(commands[0].lParam), calendar);
    EXPECT_EQ(focusAtCommand, calendar);
}

TEST_F(Calendar, TellsOfADoubleClickWhereverItIs) {
    HWND calendar = Create();
    Set(calendar, 2024, 1, 1);
    host.TakeNotifications();
    // 1 June 2024 was a Saturday: before it there are blank cells.
    const struct {
        POINT point;
        Codes codes;
    } cases[] = {{Middle(5, 6), {0x100, 0x101}}, {Middle(5, 2), {0x101}}, {{450, 5}, {0x101}}};
    for (const auto& [point, codes] : cases) {
        Click(calendar, point);
        Click(calendar, point);
        EXPECT_EQ(host.TakeNotifications(), codes) << point.x << ", " << point.y;
    }
    ExpectDate(calendar, 2024, 6, 1);
}

TEST_F(Calendar, ResultsInZeroForClicks) {
    HWND calendar = Create();
    EXPECT_EQ(SendMessageA(calendar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(50, 50)), 0);
    EXPECT_EQ(SendMessageA(calendar, WM_LBUTTONDBLCLK, MK_LBUTTON, MAKELPARAM(50, 50)), 0);
}

TEST_F(Calendar, TellsOfTheSelectedDayAgain) {
    HWND calendar = Create();
    Set(calendar, 2024, 5, 17);
    EXPECT_EQ(Press(calendar, Middle(4, 19)), Codes{0x100});
    EXPECT_EQ(Press(calendar, Middle(4, 19)), Codes{0x100});
    ExpectDate(calendar, 2024, 5, 17);
}

TEST_F(Calendar, ChangesNothingWhereThereIsNoDay) {
    HWND calendar = Create();
    Set(calendar, 2024, 5, 17);
    const int title = fonts.titleHeight;
    const int line = fonts.smallHeight;
    // January 2024 begins with a Monday and ends with a Wednesday in its fifth row.
    const POINT points[] = {Middle(0, 0),
                            Middle(0, 32),
                            Middle(0, 41),
                            {50, 2 + title / 2},
                            {50, 2 + title},
                            {50, 2 + title + line - 1},
                            {2 + 7 * 28, 2 + title + 2 * line},
                            {201, 2 + title + 2 * line},
                            {1, 2 + title + 2 * line},
                            {50, 1},
                            {-20, 60},
                            {50, -20},
                            {kWidth, 400},
                            {50, kHeight}};
    for (const POINT& point : points) {
        EXPECT_EQ(Press(calendar, point), Codes{}) << point.x << ", " << point.y;
        ExpectDate(calendar, 2024, 5, 17);
    }
    EXPECT_EQ(GetFocus(), calendar) << "it takes the focus all the same";
}

TEST_F(Calendar, SelectsTheCellsOfSeptember1752) {
    HWND calendar = Create();
    Set(calendar, 1752, 1, 1);
    const WORD days[] = {0, 0, 1, 2, 14, 15, 16, 17};
    for (int cell = 0; cell < 8; ++cell) {
        const bool isDay = days[cell] != 0;
        EXPECT_EQ(Press(calendar, Middle(8, cell)), isDay ? Codes{0x100} : Codes{});
        if (isDay) {
            ExpectDate(calendar, 1752, 9, days[cell]);
        }
    }
    EXPECT_EQ(Press(calendar, Middle(8, 20)), Codes{0x100});
    ExpectDate(calendar, 1752, 9, 30);
    EXPECT_EQ(Press(calendar, Middle(8, 21)), Codes{});
}

TEST_F(Calendar, WorksInTheCurrentYearWithoutASelection) {
    HWND calendar = Create();
    const WORD before = CurrentYear();
    // Whatever weekday December begins with, the second row has only days.
    EXPECT_EQ(Press(calendar, Middle(11, 10)), Codes{0x100});
    const CalendarDate date = DateOf(calendar);
    EXPECT_TRUE(date.year == before || date.year == CurrentYear());
    EXPECT_EQ(date.month, 12);
    EXPECT_EQ(Get(calendar).weekday, 3) << "the fourth column's";
}

TEST_F(Calendar, WorksInTheYearThatWasSetWithoutADay) {
    HWND calendar = Create();
    Set(calendar, 2024, 0, 0);
    EXPECT_EQ(Press(calendar, Middle(4, 19)), Codes{0x100});
    ExpectDate(calendar, 2024, 5, 17);
    Set(calendar, 0, 9, 0);
    // Year 0 begins with a Friday.
    EXPECT_EQ(Press(calendar, Middle(0, 5)), Codes{0x100});
    ExpectDate(calendar, 0, 1, 1);
}

TEST_F(Calendar, SelectsTheLastDayThatThereIs) {
    HWND calendar = Create();
    Set(calendar, 9999, 1, 1);
    // 1 December 9999 is a Wednesday.
    EXPECT_EQ(Press(calendar, Middle(11, 3 + 30)), Codes{0x100});
    ExpectDate(calendar, 9999, 12, 31);
}

// The update rectangles of the control's repaints.
std::vector<RECT> updates;
WNDPROC procedure = nullptr;

LRESULT CALLBACK RecordUpdates(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_PAINT) {
        RECT update{};
        GetUpdateRect(window, &update, FALSE);
        updates.push_back(update);
    }
    return CallWindowProcA(procedure, window, message, wParam, lParam);
}

void StartRecording(HWND window) {
    PumpMessages();
    updates.clear();
    procedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(RecordUpdates)));
}

TEST_F(Calendar, SettingADateRepaintsTheYearAtOnce) {
    HWND calendar = Create();
    StartRecording(calendar);
    Set(calendar, 2024, 5, 17);
    ASSERT_EQ(updates.size(), 1u);
    const RECT all = {0, 0, kWidth, kHeight};
    EXPECT_TRUE(EqualRect(&updates[0], &all));
}

TEST_F(Calendar, SelectingRepaintsTheTwoDaysAlone) {
    HWND calendar = Create();
    Set(calendar, 2024, 5, 17);
    StartRecording(calendar);
    Press(calendar, Middle(0, 1));
    ASSERT_EQ(updates.size(), 2u) << "both at once";
    const RECT old = Cell(4, 19);
    const RECT selected = Cell(0, 1);
    EXPECT_TRUE(EqualRect(&updates[0], &old));
    EXPECT_TRUE(EqualRect(&updates[1], &selected));
    updates.clear();
    Press(calendar, {50, 5});
    EXPECT_TRUE(updates.empty()) << "nothing was selected";
}

TEST_F(Calendar, HasTheBordersThatItsStyleSays) {
    HWND calendar = host.Create(VORN_CALENDAR_CLASS, WS_BORDER, 0, 0, 300, 200);
    RECT client{};
    GetClientRect(calendar, &client);
    EXPECT_EQ(client.right, 298);
    EXPECT_EQ(client.bottom, 198);
}

TEST_F(Calendar, SuppressesBackgroundErasing) {
    HWND calendar = Create();
    HDC context = GetDC(calendar);
    EXPECT_EQ(SendMessageA(calendar, WM_ERASEBKGND, reinterpret_cast<WPARAM>(context), 0), 1);
    ReleaseDC(calendar, context);
}

} // namespace
