// The "Select Date" dialog apart from its windows.
#include "date/popup.h"

#include <gtest/gtest.h>

namespace vorn::date {
namespace {

TEST(PopupCommands, ButtonsActWhenClicked) {
    EXPECT_EQ(CommandOf(1, 0), PopupCommand::Accept);
    EXPECT_EQ(CommandOf(2, 0), PopupCommand::Cancel);
    EXPECT_EQ(CommandOf(22, 0), PopupCommand::Erase);
    EXPECT_EQ(CommandOf(23, 0), PopupCommand::PreviousYear);
    EXPECT_EQ(CommandOf(25, 0), PopupCommand::NextYear);
    for (const std::int32_t button : {1, 2, 22, 23, 25}) {
        for (const std::uint32_t code : {1u, 2u, 3u, 5u, 6u, 7u, 0x100u, 0x101u, 0x300u}) {
            EXPECT_EQ(CommandOf(button, code), PopupCommand::None) << button << " " << code;
        }
    }
}

TEST(PopupCommands, TheYearBoxActsWhenItsTextHasChanged) {
    EXPECT_EQ(CommandOf(14, 0x0300), PopupCommand::TakeTypedYear);
    for (const std::uint32_t code : {0u, 0x100u, 0x101u, 0x200u, 0x400u, 0x500u}) {
        EXPECT_EQ(CommandOf(14, code), PopupCommand::None) << code;
    }
}

TEST(PopupCommands, TheCalendarActsOnADoubleClick) {
    EXPECT_EQ(CommandOf(300, 0x0101), PopupCommand::Accept);
    EXPECT_EQ(CommandOf(300, 0x0100), PopupCommand::None) << "only moves the selection";
    EXPECT_EQ(CommandOf(300, 0), PopupCommand::None);
}

TEST(PopupCommands, NothingElseActs) {
    for (const std::int32_t control : {0, 3, 15, 24, 203, 500}) {
        EXPECT_EQ(CommandOf(control, 0), PopupCommand::None) << control;
    }
}

TEST(PopupYears, EndAtZeroAnd9999) {
    EXPECT_EQ(YearBefore(2000), 1999);
    EXPECT_EQ(YearBefore(1), 0);
    EXPECT_EQ(YearBefore(0), 0);
    EXPECT_EQ(YearAfter(0), 1);
    EXPECT_EQ(YearAfter(9998), 9999);
    EXPECT_EQ(YearAfter(9999), 9999);
    EXPECT_EQ(YearAfter(65535), 65535);
}

// A calendar from (10, 40) to (310, 240) and a frame from 4: a band 36 high.
TEST(PopupLayout, CentresTheYearLineInItsBand) {
    const YearLine line = PlaceYearLine({10, 40, 310, 240}, 4, {18, 20}, {80, 26});
    EXPECT_EQ(line.previous.x, 9) << "a pixel left of the calendar";
    EXPECT_EQ(line.previous.y, 4 + 8);
    EXPECT_EQ(line.next.x, 309 - 18) << "its right edge a pixel left of the calendar's";
    EXPECT_EQ(line.next.y, 4 + 8);
    EXPECT_EQ(line.box.x, 10 + 110);
    EXPECT_EQ(line.box.y, 4 + 5);
}

TEST(PopupLayout, PutsSystemButtonsEightPixelsApart) {
    const Rect accept = {300, 30, 390, 55};
    for (std::int32_t index = 0; index < 3; ++index) {
        const Rect place = PlaceSystemButton(accept, index);
        EXPECT_EQ(place.left, 300);
        EXPECT_EQ(place.right, 390);
        EXPECT_EQ(place.top, 30 + index * 33);
        EXPECT_EQ(place.bottom, 55 + index * 33);
    }
}

TEST(PopupLayout, MovesAWindowInsideAnArea) {
    const Rect area = {100, 50, 900, 650};
    const struct {
        Rect window;
        Point expected;
    } cases[] = {
        {{200, 100, 300, 200}, {200, 100}}, // inside
        {{850, 100, 950, 200}, {800, 100}}, {{200, 600, 300, 700}, {200, 550}},
        {{-20, 100, 80, 200}, {100, 100}},  {{200, 0, 300, 100}, {200, 50}},
        {{0, 0, 2000, 100}, {100, 50}}, // wider than the area
        {{500, 0, 600, 2000}, {500, 50}},
    };
    for (const auto& [window, expected] : cases) {
        const Point moved = MoveInside(window, area);
        EXPECT_EQ(moved.x, expected.x);
        EXPECT_EQ(moved.y, expected.y);
    }
}

} // namespace
} // namespace vorn::date
