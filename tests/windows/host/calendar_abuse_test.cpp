// Year calendars whose host does its worst, and windows that are hardly calendars.
#include "tests/windows/support/abuse.h"
#include "tests/windows/support/calendar_host.h"
#include "tests/windows/support/objects.h"

#include <array>

namespace {

using vorn::test::CalendarDate;
using vorn::test::CalendarTest;
using vorn::test::Message;
using vorn::test::PumpMessages;

using Codes = std::vector<int>;

class CalendarAbuse : public CalendarTest {};

TEST_F(CalendarAbuse, BearsAParentThatDestroysItInANotification) {
    for (const UINT message : {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK}) {
        HWND calendar = Create();
        Set(calendar, 2024, 5, 17);
        host.answer = [&](const Message& received) -> std::optional<LRESULT> {
            if (received.message == WM_COMMAND) {
                DestroyWindow(calendar);
            }
            return std::nullopt;
        };
        const POINT point = Middle(4, 19);
        EXPECT_EQ(SendMessageA(calendar, message, 0, MAKELPARAM(point.x, point.y)), 0);
        EXPECT_FALSE(IsWindow(calendar));
        host.answer = nullptr;
    }
}

TEST_F(CalendarAbuse, BearsAParentThatSelectsAnotherDayInTheNotification) {
    HWND calendar = Create();
    host.answer = [&](const Message& received) -> std::optional<LRESULT> {
        if (received.message == WM_COMMAND) {
            Set(calendar, 1999, 12, 31);
        }
        return std::nullopt;
    };
    Press(calendar, Middle(0, 10));
    EXPECT_EQ(DateOf(calendar), (CalendarDate{1999, 12, 31}));
}

// What the window does when a message reaches it, once.
UINT actOn = 0;
void (*act)(HWND) = nullptr;
WNDPROC procedure = nullptr;

LRESULT CALLBACK ActOnce(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == actOn) {
        actOn = WM_NULL;
        act(window);
    }
    return CallWindowProcA(procedure, window, message, wParam, lParam);
}

void Arm(HWND window, UINT message, void (*what)(HWND)) {
    PumpMessages();
    actOn = message;
    act = what;
    procedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(ActOnce)));
}

void Destroy(HWND window) {
    DestroyWindow(window);
}

TEST_F(CalendarAbuse, BearsDestructionAsItGetsTheFocusOrPaints) {
    for (const UINT message : {WM_SETFOCUS, WM_PAINT, WM_ERASEBKGND, WM_NCPAINT}) {
        SetFocus(host.window());
        HWND calendar = Create();
        Set(calendar, 2024, 5, 17);
        Arm(calendar, message, Destroy);
        Codes codes;
        if (message == WM_SETFOCUS || message == WM_PAINT) {
            codes = Press(calendar, Middle(0, 10));
        } else {
            RedrawWindow(calendar, nullptr, nullptr,
                         RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
        }
        EXPECT_FALSE(IsWindow(calendar)) << message;
        EXPECT_EQ(codes, Codes{}) << "nobody is told of a calendar that is gone";
    }
}

TEST_F(CalendarAbuse, UsesTheDateThatTheHostSetsAsItGetsTheFocus) {
    SetFocus(host.window());
    HWND calendar = Create();
    Set(calendar, 2024, 5, 17);
    Arm(calendar, WM_SETFOCUS, [](HWND window) { Set(window, 1752, 1, 1); });
    EXPECT_EQ(Press(calendar, Middle(8, 4)), Codes{0x100});
    EXPECT_EQ(DateOf(calendar), (CalendarDate{1752, 9, 14}));
}

TEST_F(CalendarAbuse, BearsAHostThatRepaintsItAsItPaints) {
    HWND calendar = Create();
    for (const UINT message : {WM_PAINT, WM_ERASEBKGND}) {
        Arm(calendar, message, [](HWND window) {
            RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        });
        RedrawWindow(calendar, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_UPDATENOW);
        PumpMessages();
        EXPECT_FALSE(GetUpdateRect(calendar, nullptr, FALSE));
        SetWindowLongPtrA(calendar, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    }
}

// A class of the host's own on the library's procedure.
class OwnClass {
public:
    explicit OwnClass(int extraBytes) {
        WNDCLASSA theirs{};
        theirs.lpfnWndProc = VORNCalendarWinFn;
        theirs.cbWndExtra = extraBytes;
        theirs.hInstance = GetModuleHandleA(nullptr);
        theirs.lpszClassName = kName;
        EXPECT_NE(RegisterClassA(&theirs), 0);
    }
    ~OwnClass() { EXPECT_TRUE(UnregisterClassA(kName, GetModuleHandleA(nullptr))); }
    OwnClass(const OwnClass&) = delete;
    OwnClass& operator=(const OwnClass&) = delete;

    static constexpr char kName[] = "HostsOwnCalendar";
};

TEST_F(CalendarAbuse, WorksInAClassOfTheHostsOwn) {
    WNDCLASSA ours{};
    ASSERT_TRUE(GetClassInfoA(nullptr, VORN_CALENDAR_CLASS, &ours));
    const OwnClass theirs(ours.cbWndExtra);
    HWND calendar = host.Create(OwnClass::kName, 0, 0, 0, kWidth, kHeight, 77);
    Set(calendar, 2024, 1, 1);
    EXPECT_EQ(Press(calendar, Middle(4, 19)), Codes{0x100});
    EXPECT_EQ(DateOf(calendar), (CalendarDate{2024, 5, 17}));
    DestroyWindow(calendar);
}

TEST_F(CalendarAbuse, IsSafeInAClassWithoutRoomForTheDate) {
    for (const int extraBytes : {0, 1, 3, 4, 5}) {
        const OwnClass theirs(extraBytes);
        HWND calendar = host.Create(OwnClass::kName, 0, 0, 0, kWidth, kHeight, 77);
        Set(calendar, 2024, 5, 17);
        EXPECT_EQ(Get(calendar).day, 0) << extraBytes;
        Press(calendar, Middle(4, 19));
        EXPECT_EQ(Get(calendar).day, 0) << extraBytes;
        RedrawWindow(calendar, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        DestroyWindow(calendar);
    }
}

TEST_F(CalendarAbuse, LivesOnWhenAHostSaysThatItIsDestroyed) {
    HWND calendar = Create();
    Set(calendar, 2024, 1, 1);
    SendMessageA(calendar, WM_NCDESTROY, 0, 0);
    EXPECT_EQ(Press(calendar, Middle(4, 19)), Codes{0x100});
    RedrawWindow(calendar, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    EXPECT_EQ(DateOf(calendar), (CalendarDate{2024, 5, 17}));
}

TEST_F(CalendarAbuse, AnswersForWindowsThatAreNone) {
    const HWND windows[] = {nullptr, vorn::test::DestroyedWindow(),
                            reinterpret_cast<HWND>(static_cast<INT_PTR>(-1))};
    for (HWND window : windows) {
        VORNCALENDARDATE date = {1, 2, 3, 4, 1};
        EXPECT_EQ(VORNCalendarWinFn(window, VCALM_SETDATE, 2024, MAKELONG(5, 17)), 0);
        EXPECT_EQ(VORNCalendarWinFn(window, VCALM_GETDATE, 0, reinterpret_cast<LPARAM>(&date)), 0);
        EXPECT_EQ(date.year, 0);
        EXPECT_EQ(VORNCalendarWinFn(window, WM_LBUTTONDOWN, 0, MAKELPARAM(60, 60)), 0);
        EXPECT_EQ(VORNCalendarWinFn(window, WM_LBUTTONDBLCLK, 0, MAKELPARAM(60, 60)), 0);
        if (window != nullptr) {
            EXPECT_EQ(VORNCalendarWinFn(window, WM_PAINT, 0, 0), 0);
        }
    }
}

TEST_F(CalendarAbuse, PaintsAnyDateAtAnySize) {
    const std::array<WORD, 8> numbers = {0, 1, 2, 9, 13, 1752, 0x7FFF, 0xFFFF};
    for (const int size : {0, 1, 2, 3, 7, 20, 61}) {
        HWND calendar = Create(size, size);
        ASSERT_NE(calendar, nullptr);
        for (const WORD year : numbers) {
            for (const WORD month : numbers) {
                Set(calendar, year, month, numbers[month % numbers.size()]);
            }
        }
        for (int point = -1; point <= size; ++point) {
            Press(calendar, {point, point});
        }
        DestroyWindow(calendar);
    }
}

TEST_F(CalendarAbuse, LeavesNoObjectsBehind) {
    EXPECT_EQ(vorn::test::ObjectsLeftBy([&] {
                  HWND calendar = Create(120, 90);
                  Set(calendar, 2024, 5, 17);
                  Press(calendar, {60, 60});
                  SendMessageA(calendar, WM_LBUTTONDBLCLK, 0, 0);
                  DestroyWindow(calendar);
              }),
              "");
}

// The query's parameter is a pointer, so a host's random one must lead somewhere.
LRESULT CALLBACK AnswerQueriesElsewhere(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    static VORNCALENDARDATE date;
    if (message == VCALM_GETDATE) {
        lParam = (lParam & 1) != 0 ? reinterpret_cast<LPARAM>(&date) : 0;
    }
    return CallWindowProcA(VORNCalendarWinFn, window, message, wParam, lParam);
}

TEST_F(CalendarAbuse, BearsRandomMessages) {
    vorn::test::SendRandomMessages(
        [&] {
            HWND calendar = Create();
            SetWindowLongPtrA(calendar, GWLP_WNDPROC,
                              reinterpret_cast<LONG_PTR>(AnswerQueriesElsewhere));
            return calendar;
        },
        20250119, 20000);
}

} // namespace
