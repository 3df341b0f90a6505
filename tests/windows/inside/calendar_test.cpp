// The year calendar from inside: no memory, no record, no window.
#include "core/memory.h"
#include "date/calendar_win.h"
#include "tests/windows/support/abuse.h"
#include "tests/windows/support/host_window.h"

#include <gtest/gtest.h>
#include <vorn32.h>

namespace vorn::calendar {
namespace {

TEST(CalendarInside, NeedsNoBlockOfMemory) {
    test::HostWindow host;
    const std::uint32_t before = BlockCount();
    FailAllocationsAfter(0);
    HWND window = host.Create(VORN_CALENDAR_CLASS, 0, 0, 0, 300, 200);
    ASSERT_NE(window, nullptr);
    SendMessageA(window, VCALM_SETDATE, 2024, MAKELONG(5, 17));
    EXPECT_EQ(SelectionOf(window), (date::Date{5, 17, 2024}));
    EXPECT_EQ(BlockCount(), before);
    DestroyWindow(window);
    FailAllocationsAfter(-1);
}

TEST(CalendarInside, MeasuresTheClientArea) {
    test::HostWindow host;
    HWND window = host.Create(VORN_CALENDAR_CLASS, WS_BORDER, 0, 0, 304, 404);
    const Layout layout = MeasureCalendar(window);
    EXPECT_EQ(layout.client, (Rect{0, 0, 302, 402}));
    EXPECT_GT(layout.lines.small, 0);
    EXPECT_GT(layout.lines.title, layout.lines.small) << "the days' font is the smaller one";
}

TEST(CalendarInside, HasNoSelectionAndNoDaysWithoutAWindow) {
    for (HWND window : {HWND{nullptr}, test::DestroyedWindow()}) {
        EXPECT_EQ(SelectionOf(window), date::Date{});
        EXPECT_EQ(PlaceAt(MeasureCalendar(window), {0, 0}), kNowhere);
    }
}

TEST(PaintOffscreen, DrawsOnlyForAWindow) {
    test::HostWindow host;
    int drawn = 0;
    const auto draw = [&](HWND, const OffscreenPaint&) { ++drawn; };
    EXPECT_EQ(PaintOffscreen(test::DestroyedWindow(), draw), 0);
    EXPECT_EQ(drawn, 0);
    HWND window = host.Create("STATIC", 0, 0, 0, 50, 50);
    InvalidateRect(window, nullptr, FALSE);
    EXPECT_EQ(PaintOffscreen(window, draw), 0);
    EXPECT_EQ(drawn, 1);
    EXPECT_FALSE(GetUpdateRect(window, nullptr, FALSE)) << "the paint is answered";
}

} // namespace
} // namespace vorn::calendar
