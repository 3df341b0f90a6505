// The date edit's creation, functions and messages.
#include "tests/windows/host/dateedit_host.h"
#include "tests/windows/support/abuse.h"

#include <cstring>

namespace {

using vorn::test::ChangedProfile;
using vorn::test::DateEditHost;
using vorn::test::DestroyedWindow;
using vorn::test::Events;
using vorn::test::Form;
using vorn::test::Numbers;

class DateEdit : public DateEditHost {};

RECT WindowRect(HWND window) {
    RECT rect{};
    GetWindowRect(window, &rect);
    return rect;
}

SIZE SizeOf(HWND window) {
    const RECT rect = WindowRect(window);
    return {rect.right - rect.left, rect.bottom - rect.top};
}

SIZE ClientOf(HWND window) {
    RECT rect{};
    GetClientRect(window, &rect);
    return {rect.right, rect.bottom};
}

bool operator==(const SIZE& a, const SIZE& b) {
    return a.cx == b.cx && a.cy == b.cy;
}

DWORD StyleOf(HWND window) {
    return static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE)) & 0xFFFF;
}

Numbers Today() {
    SYSTEMTIME now{};
    GetSystemTime(&now);
    return {now.wMonth, now.wDay, now.wYear};
}

// Wide: what lets a window size be told from a client size.
TEST_F(DateEdit, StartsWithTodayInTheUsersLayout) {
    const ChangedProfile separator("sDate", ".");
    const ChangedProfile picture("sShortDate", "dd.MM.yyyy");
    const Numbers before = Today();
    HWND edit = CreateEdit(VORN_DATEEDIT_CLASS, 0);
    const Numbers date = DateOf(edit);
    EXPECT_TRUE(date == before || date == Today());
    char expected[32];
    wsprintfA(expected, "%02d.%02d.%04d", date.day, date.month, date.year);
    EXPECT_EQ(ValueOf(edit), expected);
    EXPECT_EQ(TextOf(edit), expected);
    EXPECT_FALSE(dtIsNull(edit));
    EXPECT_EQ(SendMessageA(edit, EM_GETMODIFY, 0, 0), 0);
    EXPECT_EQ(SelectionOf(edit), "0-0");
    EXPECT_EQ(SendMessageA(edit, WM_GETFONT, 0, 0), 0) << "the stock system font";
    EXPECT_EQ(TakeEvents(), Events{}) << "nothing is told";
}

TEST_F(DateEdit, FollowsTheUsersSettings) {
    HWND edit = Create();
    {
        const ChangedProfile separator("sDate", "-");
        const ChangedProfile picture("sShortDate", "yyyy-MM-dd");
        SendMessageA(edit, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>("windows"));
        SendMessageA(edit, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>("Intl"));
        EXPECT_EQ(ValueOf(edit), "3/5/2007") << "another section";
        SendMessageA(edit, WM_WININICHANGE, 0, reinterpret_cast<LPARAM>("intl"));
        EXPECT_EQ(ValueOf(edit), "2007-03-05");
        EXPECT_EQ(TextOf(edit), "2007-03-05");
    }
    const ChangedProfile separator("sDate", "/");
    const ChangedProfile picture("sShortDate", "d/M/yy");
    SendMessageA(edit, WM_WININICHANGE, 0, 0);
    EXPECT_EQ(ValueOf(edit), "5/3/07");
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_F(DateEdit, HandsItsParametersOutAndTakesThemBack) {
    HWND edit = Create(0, Form::DayFirst);
    DtEditParams params;
    std::memset(&params, 0x5A, sizeof params);
    for (const bool byMessage : {false, true}) {
        if (byMessage) {
            SendMessageA(edit, VDTM_GETEDITPARAMS, 0, reinterpret_cast<LPARAM>(&params));
        } else {
            dtGetEditParams(edit, &params);
        }
        EXPECT_EQ(params.size, 48u);
        EXPECT_EQ(params.setDate, 1u);
        EXPECT_EQ(params.keepLayout, 1u);
        EXPECT_EQ(params.separator, '.');
        EXPECT_EQ(params.dayLeadingZero, 0x5A5A5A5Au);
        EXPECT_EQ(params.fourDigitYear, 0x5A5A5A5Au);
        EXPECT_EQ(params.kinds[2], static_cast<DWORD>(DT_YEAR));
    }
    params.year = 1999;
    params.month = 12;
    params.day = 31;
    TakeEvents();
    SendMessageA(edit, VDTM_SETEDITPARAMS, 0, reinterpret_cast<LPARAM>(&params));
    EXPECT_EQ(ValueOf(edit), "31.12.1999") << "the layout stays";
    EXPECT_EQ(TakeEvents(), (Events{"ask", "changed"}));
}

TEST_F(DateEdit, TakesNoParametersOfAnotherSize) {
    HWND edit = Create();
    for (const DWORD size : {DWORD{0}, DWORD{47}, DWORD{49}, DWORD{0xFFFFFFFF}}) {
        // Nothing behind the size is looked at.
        SendMessageA(edit, VDTM_SETEDITPARAMS, 0, reinterpret_cast<LPARAM>(&size));
    }
    dtSetEditParams(edit, nullptr);
    dtGetEditParams(edit, nullptr);
    EXPECT_EQ(ValueOf(edit), "3/5/2007");
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_F(DateEdit, TakesTodayForTheYear0) {
    HWND edit = Create();
    dtSetNull(edit);
    DtEditParams params{};
    params.size = sizeof params;
    params.setDate = 1;
    params.keepLayout = 1;
    const Numbers before = Today();
    dtSetEditParams(edit, &params);
    EXPECT_TRUE(DateOf(edit) == before || DateOf(edit) == Today());
    EXPECT_FALSE(dtIsNull(edit));
}

TEST_F(DateEdit, AnswersItsDate) {
    HWND edit = Create();
    EXPECT_EQ(dtGetMonth(edit), 3);
    EXPECT_EQ(dtGetDay(edit), 5);
    EXPECT_EQ(dtGetYear(edit), 2007);
    EXPECT_EQ(SendMessageA(edit, VDTM_GETMONTH, 0, 0), 3);
    EXPECT_EQ(SendMessageA(edit, VDTM_GETDAY, 0, 0), 5);
    EXPECT_EQ(SendMessageA(edit, VDTM_GETYEAR, 0, 0), 2007);
    SetDate(edit, 1, 1, 2000);
    EXPECT_EQ(dtGetDate(edit, nullptr), 36524);
    SetDate(edit, 12, 31, 1899);
    DtDate date{};
    EXPECT_EQ(SendMessageA(edit, VDTM_GETDATE, 0, reinterpret_cast<LPARAM>(&date)), -1);
    EXPECT_EQ(date.month, 12);
    EXPECT_EQ(date.day, 31);
    EXPECT_EQ(date.year, 1899);
}

TEST_F(DateEdit, SetsADateWithoutAskingOrTellingTheParent) {
    HWND edit = Create();
    allowed = 0;
    EXPECT_NE(SetDate(edit, 12, 25, 1998), FALSE);
    EXPECT_EQ(ValueOf(edit), "12/25/1998");
    EXPECT_EQ(TakeEvents(), Events{"changed"});
    const DtDate none = {9, 0, 0};
    EXPECT_NE(SendMessageA(edit, VDTM_SETDATE, 0, reinterpret_cast<LPARAM>(&none)), 0);
    EXPECT_TRUE(dtIsNull(edit));
    EXPECT_EQ(SendMessageA(edit, VDTM_ISNULL, 0, 0), 1);
    EXPECT_EQ(ValueOf(edit), "");
    EXPECT_EQ(TextOf(edit), "");
    SetDate(edit, 0, 0, 0);
    EXPECT_FALSE(dtIsNull(edit));
    EXPECT_EQ(ValueOf(edit), "0/0/0000");
    TakeEvents();
    dtSetDate(edit, nullptr);
    EXPECT_EQ(ValueOf(edit), "0/0/0000");
    EXPECT_EQ(TakeEvents(), Events{}) << "nothing changed";
}

TEST_F(DateEdit, TakesDateStrings) {
    HWND edit = Create(0, Form::TwoDigits);
    dtSetDateString(edit, "2/31/95");
    EXPECT_EQ(DateOf(edit), (Numbers{2, 31, 1995}));
    EXPECT_EQ(ValueOf(edit), "2/31/95");
    EXPECT_EQ(TakeEvents(), (Events{"ask", "changed"}));
    SendMessageA(edit, VDTM_SETDATESTRING, 0, reinterpret_cast<LPARAM>("3/5/2095"));
    EXPECT_EQ(DateOf(edit), (Numbers{3, 5, 2095}));
    for (const char* text : {static_cast<const char*>(nullptr), ""}) {
        SetDate(edit, 3, 5, 2007);
        EXPECT_NE(dtSetDateString(edit, text), FALSE);
        EXPECT_TRUE(dtIsNull(edit));
        EXPECT_EQ(DateOf(edit), (Numbers{0, 0, 0}));
    }
}

TEST_F(DateEdit, GivesUpItsDate) {
    HWND edit = Create();
    EXPECT_NE(SendMessageA(edit, VDTM_SETNULL, 0, 0), 0);
    EXPECT_TRUE(dtIsNull(edit));
    EXPECT_EQ(DateOf(edit), (Numbers{0, 0, 0}));
    EXPECT_EQ(ValueOf(edit), "");
    EXPECT_EQ(TakeEvents(), (Events{"ask", "changed"}));
}

TEST_F(DateEdit, AVetoKeepsTheDateButForSetDate) {
    HWND edit = Create(0, Form::DayFirst);
    allowed = 0;
    EXPECT_EQ(dtSetNull(edit), FALSE);
    EXPECT_EQ(dtSetDateString(edit, "1.2.1995"), FALSE);
    EXPECT_EQ(SendMessageA(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>("1.2.1995")), 0);
    const int time[9] = {0, 0, 0, 1, 1, 95, 0, 0, 0};
    SendMessageA(edit, VDTM_SETTIME, 0, reinterpret_cast<LPARAM>(time));
    EXPECT_EQ(ValueOf(edit), "05.03.2007");
    EXPECT_EQ(TakeEvents(), (Events{"ask", "ask", "ask", "ask"}));

    DtEditParams params{};
    params.size = sizeof params;
    params.setDate = 1;
    params.year = 1995;
    params.separator = '-';
    params.fourDigitYear = 1;
    params.kinds[0] = DT_YEAR;
    params.kinds[1] = DT_MONTH;
    params.kinds[2] = DT_DAY;
    dtSetEditParams(edit, &params);
    EXPECT_EQ(ValueOf(edit), "2007-3-5") << "the layout is taken";
    EXPECT_EQ(TakeEvents(), Events{"ask"});
    params.setDate = 0;
    dtSetEditParams(edit, &params);
    EXPECT_EQ(TakeEvents(), Events{}) << "there is nothing to ask for";
    SetDate(edit, 1, 2, 1995);
    EXPECT_EQ(ValueOf(edit), "1995-1-2");
}

TEST_F(DateEdit, AllowsChangesItself) {
    HWND edit = host.Create(VORN_DATEEDIT_CLASS, 0, 0, 0, 80, 20);
    EXPECT_EQ(SendMessageA(edit, VDTM_OKTOCHANGE, 0, 0), 1);
    EXPECT_TRUE(dtOkToChange(edit));
    EXPECT_TRUE(dtOkToChange(nullptr));
    EXPECT_EQ(SendMessageA(edit, VDTM_CHANGED, 0, 0), 0);
}

TEST_F(DateEdit, TakesAndGivesABrokenDownTime) {
    HWND edit = Create();
    dtSetNull(edit);
    TakeEvents();
    int time[9] = {59, 58, 23, 29, 1, 100, 9, 9, 9};
    SendMessageA(edit, VDTM_SETTIME, 0, reinterpret_cast<LPARAM>(time));
    EXPECT_EQ(DateOf(edit), (Numbers{2, 29, 2000}));
    EXPECT_FALSE(dtIsNull(edit));
    EXPECT_EQ(TakeEvents(), (Events{"ask", "changed"}));
    SendMessageA(edit, VDTM_GETTIME, 0, reinterpret_cast<LPARAM>(time));
    const int expected[9] = {0, 0, 0, 29, 1, 100, 2, 59, 0}; // a Tuesday
    EXPECT_EQ(std::memcmp(time, expected, sizeof time), 0);
    EXPECT_EQ(SendMessageA(edit, VDTM_QUERY, 1, 2), 0);
    DWORD size = 0;
    EXPECT_EQ(SendMessageA(edit, VDTM_GETTIMESIZE, 0, reinterpret_cast<LPARAM>(&size)), 11);
    EXPECT_EQ(size, 36u);
    EXPECT_EQ(SendMessageA(edit, VDTM_GETTIMESIZE, 0, 0), 11);
}

TEST_F(DateEdit, ReadsTypedTextAsItsWindowText) {
    HWND edit = Create(0, Form::TwoDigits);
    EXPECT_TRUE(SetWindowTextA(edit, "13/31/98"));
    EXPECT_EQ(DateOf(edit), (Numbers{12, 31, 2098}));
    EXPECT_EQ(TakeEvents(), (Events{"ask", "changed"}));
    EXPECT_TRUE(SetWindowTextA(edit, ""));
    EXPECT_TRUE(dtIsNull(edit));
    SetWindowTextA(edit, "2/30/04");
    EXPECT_FALSE(dtIsNull(edit));
    EXPECT_EQ(TextOf(edit), "2/29/4") << "what is edited has no leading zero in the year";
    EXPECT_EQ(ValueOf(edit), "2/29/04");
}

TEST_F(DateEdit, ReadsItsStylesAndKeepsThemInStep) {
    HWND edit = Create(VDTS_CALENDAR | VDTS_NOERASE | VDTS_DIGITS | VDTS_RAISED | 0x0180);
    EXPECT_EQ(StyleOf(edit),
              DWORD{VDTS_CALENDAR | VDTS_NOERASE | VDTS_DIGITS | VDTS_RAISED | 0x180});
    EXPECT_NE(dtEnableErase(edit, TRUE) & VDTS_NOERASE, 0) << "the style before";
    EXPECT_EQ(StyleOf(edit) & VDTS_NOERASE, 0u);
    EXPECT_EQ(SendMessageA(edit, VDTM_ENABLEERASE, 0, 0) & VDTS_NOERASE, 0);
    EXPECT_NE(StyleOf(edit) & VDTS_NOERASE, 0u);

    EXPECT_NE(dtEnableCalendar(edit, FALSE), FALSE);
    EXPECT_EQ(StyleOf(edit) & VDTS_CALENDAR, 0u);
    EXPECT_NE(SendMessageA(edit, VDTM_ENABLECALENDAR, 1, 0), 0);
    EXPECT_NE(StyleOf(edit) & VDTS_CALENDAR, 0u);

    EXPECT_NE(dtSetDisplayStyle(edit, VDTD_CELLS), FALSE);
    EXPECT_EQ(StyleOf(edit) & 0x30, DWORD{VDTS_CELLS});
    EXPECT_NE(SendMessageA(edit, VDTM_SETDISPLAYSTYLE, VDTD_DIGITS, 0), 0);
    EXPECT_EQ(StyleOf(edit) & 0x30, DWORD{VDTS_DIGITS});
    dtSetDisplayStyle(edit, 7);
    EXPECT_EQ(StyleOf(edit) & 0x30, 0u);
    dtSetDisplayStyle(edit, VDTD_TEXT);
    EXPECT_EQ(StyleOf(edit) & 0x30, 0u);

    EXPECT_NE(SendMessageA(edit, EM_SETREADONLY, TRUE, 0), 0);
    EXPECT_NE(StyleOf(edit) & VDTS_READONLY, 0u);
    SendMessageA(edit, EM_SETREADONLY, FALSE, 0);
    EXPECT_EQ(StyleOf(edit) & VDTS_READONLY, 0u);
    EXPECT_EQ(StyleOf(edit) & 0x180, 0x180u) << "bits without a use stay";
}

TEST_F(DateEdit, HasTheClientAreaThatItsBorderLeaves) {
    EXPECT_TRUE(ClientOf(Create(0)) == (SIZE{120, 24}));
    EXPECT_TRUE(ClientOf(Create(VDTS_LINE)) == (SIZE{118, 22}));
    EXPECT_TRUE(ClientOf(Create(VDTS_RAISED)) == (SIZE{116, 20}));
    EXPECT_TRUE(ClientOf(Create(VDTS_SUNKEN)) == (SIZE{116, 20}));
    EXPECT_TRUE(ClientOf(Create(VDTS_SUNKEN | VDTS_LINE)) == (SIZE{116, 20}));
    EXPECT_TRUE(ClientOf(Create(VDTS_RAISED | VDTS_LINE)) == (SIZE{116, 20}));
    EXPECT_TRUE(ClientOf(Create(VDTS_SUNKEN, Form::MonthFirst, 3, 2)) == (SIZE{0, 0}));
}

TEST_F(DateEdit, GrowsByItsBorder) {
    HWND edit = Create();
    EXPECT_EQ(dtSetBorderStyle(edit, 2), 1);
    EXPECT_EQ(StyleOf(edit) & 0x7000, DWORD{VDTS_RAISED});
    EXPECT_TRUE(SizeOf(edit) == (SIZE{124, 28}));
    EXPECT_TRUE(ClientOf(edit) == (SIZE{120, 24}));
    EXPECT_EQ(SendMessageA(edit, VDTM_SETBORDERSTYLE, 2, 0), 1);
    EXPECT_TRUE(SizeOf(edit) == (SIZE{128, 32})) << "asked for again it grows again";
    EXPECT_TRUE(ClientOf(edit) == (SIZE{124, 28}));
    dtSetBorderStyle(edit, 1);
    EXPECT_EQ(StyleOf(edit) & 0x7000, DWORD{VDTS_LINE});
    EXPECT_TRUE(SizeOf(edit) == (SIZE{126, 30}));
    EXPECT_TRUE(ClientOf(edit) == (SIZE{124, 28}));
    dtSetBorderStyle(edit, 3);
    EXPECT_EQ(StyleOf(edit) & 0x7000, DWORD{VDTS_SUNKEN});
    EXPECT_TRUE(SizeOf(edit) == (SIZE{128, 32}));
    EXPECT_EQ(dtSetBorderStyle(edit, 4), 1);
    EXPECT_EQ(StyleOf(edit) & 0x7000, 0u);
    EXPECT_TRUE(SizeOf(edit) == (SIZE{124, 28}));
    EXPECT_TRUE(ClientOf(edit) == (SIZE{120, 24})) << "the frame stays the one that it had";
    dtSetBorderStyle(edit, 0);
    EXPECT_TRUE(SizeOf(edit) == (SIZE{120, 24}));
    EXPECT_TRUE(ClientOf(edit) == (SIZE{120, 24}));
}

TEST_F(DateEdit, AnswersItsLeastSize) {
    HWND edit = Create();
    TEXTMETRICA metrics{};
    HDC screen = GetDC(nullptr);
    SelectObject(screen, GetStockObject(SYSTEM_FONT));
    GetTextMetricsA(screen, &metrics);
    ReleaseDC(nullptr, screen);
    const int width = metrics.tmMaxCharWidth + metrics.tmHeight * 7 / 8;
    for (const int border : {0, 1, 2, 3}) {
        const int allowance[] = {0, 2, 4, 4};
        dtSetBorderStyle(edit, static_cast<DWORD>(border));
        EXPECT_EQ(dtGetMinHeight(edit), metrics.tmHeight + allowance[border]);
        EXPECT_EQ(dtGetMinWidth(edit), width + allowance[border]);
        EXPECT_EQ(SendMessageA(edit, VDTM_GETMINHEIGHT, 0, 0), dtGetMinHeight(edit));
        EXPECT_EQ(SendMessageA(edit, VDTM_GETMINWIDTH, 0, 0), dtGetMinWidth(edit));
    }
}

HFONT MakeFont(int height) {
    return CreateFontA(-height, 0, 0, 0, FW_NORMAL, 0, 0, 0, DEFAULT_CHARSET, 0, 0, 0, FF_DONTCARE,
                       "Arial");
}

TEXTMETRICA MetricsOf(HFONT font) {
    TEXTMETRICA metrics{};
    HDC screen = GetDC(nullptr);
    HGDIOBJ before = SelectObject(screen, font);
    GetTextMetricsA(screen, &metrics);
    SelectObject(screen, before);
    ReleaseDC(nullptr, screen);
    return metrics;
}

TEST_F(DateEdit, GrowsWithItsFontWhenItMust) {
    HFONT font = MakeFont(40);
    HFONT small = MakeFont(10);
    const int height = MetricsOf(font).tmHeight;
    HWND edit = Create(VDTS_SUNKEN);
    SendMessageA(edit, WM_SETFONT, reinterpret_cast<WPARAM>(small), TRUE);
    EXPECT_TRUE(SizeOf(edit) == (SIZE{120, 24})) << "it has room";
    SendMessageA(edit, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    EXPECT_EQ(reinterpret_cast<HFONT>(SendMessageA(edit, WM_GETFONT, 0, 0)), font);
    EXPECT_EQ(SizeOf(edit).cy, height + 4) << "as high as the font, and four border lines of 1";
    EXPECT_EQ(SizeOf(edit).cx, 120) << "wide enough: at least " << dtGetMinWidth(edit);
    SendMessageA(edit, WM_SETFONT, 0, TRUE);
    EXPECT_EQ(SendMessageA(edit, WM_GETFONT, 0, 0), 0);
    DestroyWindow(edit);
    EXPECT_TRUE(DeleteObject(font)) << "the host's";
    DeleteObject(small);
}

TEST_F(DateEdit, HasAWholeNumberOfCells) {
    HWND edit = Create(VDTS_CELLS | VDTS_CALENDAR, Form::MonthFirst, 200, 24);
    HFONT font = MakeFont(12);
    const int cell = MetricsOf(font).tmMaxCharWidth + 2;
    const int button = 24 * 7 / 8;
    const int cells = (200 - button + cell - 1) / cell;
    const int wanted = cells * cell + button - 1;
    SendMessageA(edit, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    EXPECT_EQ(ClientOf(edit).cx, wanted > 200 ? wanted : 200);
    EXPECT_EQ(ClientOf(edit).cy, 24);
    DestroyWindow(edit);
    DeleteObject(font);
}

TEST_F(DateEdit, AnswersTheMessagesOfASystemEdit) {
    HWND edit = Create(VDTS_CALENDAR);
    EXPECT_EQ(SendMessageA(edit, WM_GETDLGCODE, 0, 0), 0x8189);
    EXPECT_EQ(SendMessageA(edit, EM_GETLINECOUNT, 0, 0), 1);
    EXPECT_EQ(SendMessageA(edit, EM_LINELENGTH, 0, 0), 8);
    EXPECT_EQ(SendMessageA(edit, WM_GETTEXTLENGTH, 0, 0), 8);
    RECT rect{};
    SendMessageA(edit, EM_GETRECT, 0, reinterpret_cast<LPARAM>(&rect));
    EXPECT_EQ(rect.left, 4);
    EXPECT_EQ(rect.top, 0);
    EXPECT_EQ(rect.right, 120 - 24 * 7 / 8);
    EXPECT_EQ(rect.bottom, 24);
    SendMessageA(edit, EM_GETRECT, 0, 0);
    SendMessageA(edit, EM_SETMODIFY, TRUE, 0);
    EXPECT_EQ(SendMessageA(edit, EM_GETMODIFY, 0, 0), 1);
    SendMessageA(edit, EM_SETMODIFY, FALSE, 0);
    EXPECT_EQ(SendMessageA(edit, EM_GETMODIFY, 0, 0), 0);
    Select(edit, 2, 5);
    EXPECT_EQ(SendMessageA(edit, EM_GETSEL, 0, 0), MAKELRESULT(2, 5));
    EXPECT_EQ(SelectionOf(edit), "2-5");
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_F(DateEdit, GivesNoMoreTextThanAskedFor) {
    HWND edit = Create();
    const struct {
        WPARAM size;
        const char* text;
    } cases[] = {{1, ""}, {2, "3"}, {8, "3/5/200"}, {9, "3/5/2007"}, {0x7FFFFFFF, "3/5/2007"}};
    for (const auto& [size, text] : cases) {
        char buffer[12] = "xxxxxxxxxxx";
        EXPECT_EQ(SendMessageA(edit, WM_GETTEXT, size, reinterpret_cast<LPARAM>(buffer)),
                  static_cast<LRESULT>(std::strlen(text)));
        EXPECT_STREQ(buffer, text);
        EXPECT_EQ(buffer[std::strlen(text) + 1], 'x') << size;
    }
    char buffer[12] = "xxxxxxxxxxx";
    EXPECT_EQ(SendMessageA(edit, WM_GETTEXT, 0, reinterpret_cast<LPARAM>(buffer)), 0);
    EXPECT_EQ(buffer[0], 'x');
    for (const WORD size : {WORD{0}, WORD{3}, WORD{8}, WORD{0xFFFF}}) {
        std::memset(buffer, 'x', sizeof buffer);
        std::memcpy(buffer, &size, sizeof size);
        const int count = size < 8 ? size : 8;
        EXPECT_EQ(SendMessageA(edit, EM_GETLINE, 0, reinterpret_cast<LPARAM>(buffer)), count);
        EXPECT_EQ(std::memcmp(buffer, size == 0 ? "\0\0" : "3/5/2007", count == 0 ? 2 : count), 0);
        EXPECT_EQ(buffer[count < 2 ? 2 : count], 'x') << "no terminator";
    }
    EXPECT_EQ(SendMessageA(edit, EM_GETLINE, 0, 0), 0);
}

TEST_F(DateEdit, KeepsCaptionsForAllEdits) {
    HWND edit = Create();
    EXPECT_STREQ(dtSetButtonText(edit, 0, nullptr), "&OK");
    EXPECT_STREQ(dtSetButtonText(nullptr, 2, "&Leeren"), "&Leeren");
    EXPECT_STREQ(dtSetButtonText(edit, 2, nullptr), "&Leeren");
    EXPECT_EQ(dtSetButtonText(edit, 7, "x"), reinterpret_cast<char*>(7));
    EXPECT_EQ(dtSetButtonText(edit, -1, "x"), reinterpret_cast<char*>(INT_PTR{-1}));
    Create();
    EXPECT_STREQ(dtSetButtonText(edit, 2, nullptr), "&Erase") << "a new edit brings them back";
}

TEST_F(DateEdit, LeavesUnusedMessagesToTheSystem) {
    HWND edit = Create();
    for (const UINT message : {1165u, 1166u, 1170u, 1171u, 1174u}) {
        EXPECT_EQ(SendMessageA(edit, message, 1, 1), 0) << message;
    }
    EXPECT_EQ(ValueOf(edit), "3/5/2007");
    SendMessageA(edit, VDTM_SETBUTTONSTYLE, 2, 0);
    dtSetButtonStyle(edit, 3);
    EXPECT_NE(dtSetColor(edit, 99, 0), FALSE);
    EXPECT_NE(SendMessageA(edit, VDTM_SETDIALOGCOLOR, 0, RGB(1, 2, 3)), 0);
    EXPECT_EQ(TakeEvents(), Events{});
}

TEST_F(DateEdit, FunctionsAnswerSanelyWithoutAnEdit) {
    HWND foreign = vorn::test::CreateForeignWindow();
    for (HWND window : {HWND{nullptr}, foreign, host.window(), DestroyedWindow()}) {
        DtDate date = {7, 7, 7};
        DtEditParams params{};
        params.size = sizeof params;
        char text[32] = "untouched";
        EXPECT_EQ(dtGetDate(window, &date), -1);
        EXPECT_EQ(date.day, 7);
        EXPECT_EQ(dtGetMonth(window), -1);
        EXPECT_EQ(dtGetDay(window), -1);
        EXPECT_EQ(dtGetYear(window), -1);
        EXPECT_EQ(dtSetDate(window, &date), 0);
        EXPECT_EQ(dtSetColor(window, 0, 0), 0);
        EXPECT_EQ(dtEnableErase(window, TRUE), 0);
        EXPECT_EQ(dtSetDisplayStyle(window, 1), 0);
        EXPECT_EQ(dtEnableCalendar(window, TRUE), 0);
        EXPECT_EQ(dtSetNull(window), 0);
        EXPECT_EQ(dtIsNull(window), 1);
        EXPECT_EQ(dtGetDateString(window, text), text);
        EXPECT_STREQ(text, "untouched");
        EXPECT_EQ(dtSetDateString(window, "1/2/3"), 0);
        EXPECT_EQ(dtGetMinHeight(window), 24);
        EXPECT_EQ(dtGetMinWidth(window), 80);
        EXPECT_EQ(dtSetBorderStyle(window, 1), 0);
        dtSetButtonStyle(window, 1);
        dtGetEditParams(window, &params);
        EXPECT_EQ(params.setDate, 0u);
        dtSetEditParams(window, &params);
        dtSetMonthLiterals(window, nullptr);
        dtSetDayLiterals(window, nullptr);
    }
    EXPECT_EQ(dtGetDateString(Create(), nullptr), nullptr);
    DestroyWindow(foreign);
}

// Null is a date of the year 0 then, whatever the record brings.
TEST_F(DateEdit, TellsWhenParametersTakeTheDateAway) {
    HWND edit = Create();
    const DtDate zeros = {0, 0, 0};
    dtSetDate(edit, &zeros);
    ASSERT_FALSE(dtIsNull(edit));
    TakeEvents();
    DtEditParams params{};
    params.size = sizeof params;
    params.keepLayout = 1;
    dtSetEditParams(edit, &params);
    EXPECT_TRUE(dtIsNull(edit));
    EXPECT_EQ(TakeEvents(), Events{"changed"});
    dtSetEditParams(edit, &params);
    EXPECT_EQ(TakeEvents(), Events{}) << "nothing changed";
}

} // namespace
