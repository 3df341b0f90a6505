// The time edit as a clock.
#include "tests/windows/support/input.h"
#include "tests/windows/support/spy.h"
#include "tests/windows/support/time_host.h"

#include <algorithm>
#include <set>

namespace {

using vorn::test::Events;
using vorn::test::PumpFor;
using vorn::test::Spy;
using vorn::test::TakeTimer;

class TimeEditClock : public vorn::test::TimeEditTest {
protected:
    TimeEditClock() { Use24Hours(); }

    static unsigned LocalSeconds() {
        SYSTEMTIME now{};
        GetLocalTime(&now);
        return now.wHour * 3600u + now.wMinute * 60u + now.wSecond;
    }

    // How far the edit's time is behind the local one, in seconds.
    static unsigned SecondsBehind(HWND edit) {
        const TmTime time = TimeOf(edit);
        const unsigned shown = time.hour * 3600u + time.minute * 60u + time.second;
        return (LocalSeconds() + 86400u - shown) % 86400u;
    }
};

TEST_F(TimeEditClock, RepaintsOnceASecondThoughItsTimerFiresTenTimes) {
    HWND edit = CreateAt(0, 0, 0);
    EXPECT_EQ(tmStartClock(edit), 1);
    PumpFor(1500, [&] { return SecondsBehind(edit) == 0; });
    TakeEvents();
    std::set<unsigned> seconds;
    const Spy spy(edit);
    PumpFor(3500, [&] {
        seconds.insert(LocalSeconds());
        return false;
    });
    const std::size_t ticks = spy.Received(WM_TIMER).size();
    const std::size_t paints = spy.Received(WM_PAINT).size();
    EXPECT_GE(ticks, 20u);
    EXPECT_LE(ticks, 36u);
    // The second that it started in was shown already; the last one may not be yet.
    EXPECT_LE(paints, seconds.size());
    EXPECT_GE(paints + 2, seconds.size());
    EXPECT_GE(paints, 2u);
    EXPECT_LE(SecondsBehind(edit), 1u);
    const Events heard = events; // of the same ticks: none comes without the loop
    EXPECT_EQ(static_cast<std::size_t>(std::count(heard.begin(), heard.end(), "ask")), ticks);
    EXPECT_EQ(static_cast<std::size_t>(std::count(heard.begin(), heard.end(), "changed")), paints);
    EXPECT_EQ(heard.size(), ticks + paints) << "the parent is told nothing";
    for (const vorn::test::Message& tick : spy.Received(WM_TIMER)) {
        EXPECT_EQ(tick.wParam, 567u);
    }
}

TEST_F(TimeEditClock, ShowsTheLocalTime) {
    HWND edit = CreateAt(0, 0, 0);
    SendMessageA(edit, WM_TIMER, 567, 0);
    EXPECT_LE(SecondsBehind(edit), 1u);
    Set(edit, 0, 0, 0);
    SendMessageA(edit, WM_TIMER, 566, 0);
    EXPECT_EQ(TimeOf(edit), (TmTime{0, 0, 0})) << "another's timer";
}

TEST_F(TimeEditClock, StopsWhenItIsToldTo) {
    HWND edit = CreateAt(0, 0, 0);
    tmStartClock(edit);
    tmStartClock(edit);
    EXPECT_EQ(tmStopClock(edit), 1);
    EXPECT_EQ(tmStopClock(edit), 1);
    EXPECT_FALSE(TakeTimer(edit, 567));
    Set(edit, 1, 2, 3);
    PumpFor(400);
    EXPECT_EQ(TimeOf(edit), (TmTime{1, 2, 3}));
}

TEST_F(TimeEditClock, LeavesNoTimerBehind) {
    HWND edit = CreateAt(0, 0, 0);
    tmStartClock(edit);
    EXPECT_TRUE(TakeTimer(edit, 567)) << "what this test looks for";
    tmStartClock(edit);
    // The control's own end, with the window still there to ask about.
    const auto control = reinterpret_cast<WNDPROC>(VORNTimeEditWinFn);
    CallWindowProcA(control, edit, WM_NCDESTROY, 0, 0);
    EXPECT_FALSE(TakeTimer(edit, 567));
    DestroyWindow(edit);
}

TEST_F(TimeEditClock, ARefusalStopsTheTimeAndNotTheClock) {
    HWND edit = CreateAt(1, 2, 3);
    tmStartClock(edit);
    allowed = 0;
    PumpFor(400);
    EXPECT_EQ(TimeOf(edit), (TmTime{1, 2, 3}));
    allowed = 1;
    EXPECT_TRUE(PumpFor(1000, [&] { return SecondsBehind(edit) <= 1; }));
}

// Typing stops nothing by itself.
TEST_F(TimeEditClock, RunsOnUnderTheKeys) {
    HWND edit = CreateFocused(1, 2, 3);
    tmStartClock(edit);
    PumpFor(1500, [&] { return SecondsBehind(edit) == 0; });
    PressKey(VK_UP);
    EXPECT_TRUE(PumpFor(3000, [&] { return SecondsBehind(edit) == 0; }));
    DWORD start = 99;
    SendMessageA(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), 0);
    EXPECT_EQ(start, 0u);
    tmStopClock(edit);
}

TEST_F(TimeEditClock, CanBeDestroyedByItsOwnTick) {
    for (const char* moment : {"ask", "changed"}) {
        HWND edit = CreateAt(0, 0, 0);
        onEvent = [&](HWND heard, const std::string& what) {
            if (what == moment) {
                DestroyWindow(heard);
            }
        };
        tmStartClock(edit);
        EXPECT_TRUE(PumpFor(3000, [&] { return !IsWindow(edit); })) << moment;
        onEvent = nullptr;
    }
}

} // namespace
