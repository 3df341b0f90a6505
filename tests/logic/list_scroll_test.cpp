// Which scroll bars an outline list shows, and where scrolling leads.
#include "hierlist/scroll_range.h"
#include "tests/support/outline_host.h"

#include <gtest/gtest.h>

namespace vorn::hierlist {
namespace {

constexpr Size kBars = {17, 16};

class ListScroll : public ::testing::Test {
protected:
    ~ListScroll() override { FreeColumns(columns); }

    void AddRows(int count) {
        for (int i = 0; i < count; ++i) {
            host.Add(nullptr, "x");
        }
    }
    Layout Make(Size client, std::uint32_t style = 0) {
        options.rowHeight = 10;
        options.columnWidth = 50;
        Layout layout = MakeLayout(host.outline, options, style, client);
        BuildColumns(columns, layout);
        layout.columns = &columns;
        return layout;
    }
    ShownBars Choose(Size room, std::uint32_t style = 0) {
        return ChooseBars(Make(room, style), options, style, kBars);
    }

    test::TestHost host;
    ListOptions options;
    ColumnTable columns;
};

TEST_F(ListScroll, BarsAreShownWhenNeededAndWanted) {
    AddRows(6);
    EXPECT_EQ(Choose({100, 50}), (ShownBars{false, false, {100, 50}})) << "none wanted";
    options.wantsVerticalBar = true;
    EXPECT_EQ(Choose({100, 60}), (ShownBars{false, false, {100, 60}})) << "all rows fit";
    EXPECT_EQ(Choose({100, 59}), (ShownBars{true, false, {83, 59}}));
    options.wantsHorizontalBar = true;
    options.horizontalExtent = 101;
    EXPECT_EQ(Choose({101, 60}), (ShownBars{false, false, {101, 60}}));
    EXPECT_EQ(Choose({100, 80}), (ShownBars{false, true, {100, 64}}));
}

TEST_F(ListScroll, OneBarMayCallForTheOther) {
    AddRows(6);
    options.wantsVerticalBar = options.wantsHorizontalBar = true;
    options.horizontalExtent = 100;
    EXPECT_EQ(Choose({100, 59}), (ShownBars{true, true, {83, 43}})) << "100 into 83";
    options.horizontalExtent = 101;
    EXPECT_EQ(Choose({100, 60}), (ShownBars{true, true, {83, 44}})) << "six rows into 44";
}

TEST_F(ListScroll, DisabledBarsStay) {
    options.wantsVerticalBar = options.wantsHorizontalBar = true;
    EXPECT_EQ(Choose({100, 60}, kStyleDisableNoScroll), (ShownBars{true, true, {83, 44}}));
    EXPECT_EQ(Choose({100, 60}, kStyleDisableNoScroll | kStyleMultiColumn),
              (ShownBars{false, true, {100, 44}}));
}

TEST_F(ListScroll, ColumnsCountInTheRoomThatTheBarLeaves) {
    AddRows(8);
    options.wantsHorizontalBar = true;
    const std::uint32_t style = kStyleMultiColumn;
    EXPECT_EQ(Choose({100, 40}, style), (ShownBars{false, false, {100, 40}}));
    EXPECT_EQ(Choose({99, 40}, style), (ShownBars{false, true, {99, 24}}));
    EXPECT_EQ(Choose({99, 40}, style | kStyleOwnerDrawVariable),
              (ShownBars{false, true, {99, 24}}));
}

TEST_F(ListScroll, TheVerticalRangeCountsRows) {
    AddRows(10);
    Layout layout = Make({100, 45});
    layout.topIndex = 3;
    EXPECT_EQ(VerticalRange(layout), (BarRange{9, 4, 3}));
    EXPECT_EQ(VerticalRange(Make({100, 100})), BarRange{});
    EXPECT_EQ(VerticalRange(Make({100, 45}, kStyleMultiColumn)), BarRange{});
}

TEST_F(ListScroll, ThePageOfVariableRowsEndsAtTheLast) {
    for (const std::uint16_t height : std::vector<std::uint16_t>{5, 5, 5, 30, 30}) {
        host.Add(nullptr, "x")->height = height;
    }
    // Only one row of 30 fits beside nothing else; the range's end is then the last row.
    EXPECT_EQ(VerticalRange(Make({100, 45}, kStyleOwnerDrawVariable)), (BarRange{4, 1, 0}));
}

TEST_F(ListScroll, TheHorizontalRangeCountsPixels) {
    AddRows(12);
    options.horizontalExtent = 250;
    Layout layout = Make({100, 45});
    layout.offset = 30;
    EXPECT_EQ(HorizontalRange(layout), (BarRange{249, 100, 30}));
    EXPECT_EQ(LastOffset(layout), 150);
    Layout inColumns = Make({100, 45}, kStyleMultiColumn);
    EXPECT_EQ(HorizontalRange(inColumns), (BarRange{149, 100, 0})) << "three columns of 50";
    EXPECT_EQ(HorizontalRange(Make({150, 45}, kStyleMultiColumn)), BarRange{});
}

TEST_F(ListScroll, StepsDownAndUp) {
    AddRows(10);
    Layout layout = Make({100, 45}); // the last top is 6
    layout.topIndex = 3;
    EXPECT_EQ(TopAfter(layout, ScrollStep::LineBack, 0), 2u);
    EXPECT_EQ(TopAfter(layout, ScrollStep::LineOn, 0), 4u);
    EXPECT_EQ(TopAfter(layout, ScrollStep::PageBack, 0), 0u);
    EXPECT_EQ(TopAfter(layout, ScrollStep::PageOn, 0), 6u);
    EXPECT_EQ(TopAfter(layout, ScrollStep::First, 0), 0u);
    EXPECT_EQ(TopAfter(layout, ScrollStep::Last, 0), 6u);
    EXPECT_EQ(TopAfter(layout, ScrollStep::To, 5), 5u);
    EXPECT_EQ(TopAfter(layout, ScrollStep::To, 9), 6u);
    EXPECT_EQ(TopAfter(layout, ScrollStep::None, 5), 3u);
    layout.topIndex = 6;
    EXPECT_EQ(TopAfter(layout, ScrollStep::LineOn, 0), 6u);
    layout.topIndex = 0;
    EXPECT_EQ(TopAfter(layout, ScrollStep::LineBack, 0), 0u);
    layout.topIndex = 9; // rows have gone
    EXPECT_EQ(TopAfter(layout, ScrollStep::None, 0), 6u);
}

TEST_F(ListScroll, StepsToTheSides) {
    AddRows(40);
    options.horizontalExtent = 250;
    Layout layout = Make({100, 45});
    layout.offset = 30;
    EXPECT_EQ(OffsetAfter(layout, ScrollStep::LineOn, 0, 7), 37);
    EXPECT_EQ(OffsetAfter(layout, ScrollStep::PageOn, 0, 7), 128) << "14 characters are 98 pixels";
    EXPECT_EQ(OffsetAfter(layout, ScrollStep::PageBack, 0, 7), 0);
    EXPECT_EQ(OffsetAfter(layout, ScrollStep::Last, 0, 7), 150);
    EXPECT_EQ(OffsetAfter(layout, ScrollStep::To, 77, 7), 77);
    EXPECT_EQ(OffsetAfter(layout, ScrollStep::To, 1000, 7), 150);
    Layout inColumns = Make({120, 45}, kStyleMultiColumn); // ten columns
    EXPECT_EQ(OffsetAfter(inColumns, ScrollStep::LineOn, 0, 7), 50);
    EXPECT_EQ(OffsetAfter(inColumns, ScrollStep::PageOn, 0, 7), 100);
}

TEST_F(ListScroll, TheWheelKeepsWhatIsNoWholeLine) {
    WheelState state;
    EXPECT_EQ(WheelLines(state, 120, 3), 3);
    EXPECT_EQ(WheelLines(state, -120, 3), -3);
    EXPECT_EQ(WheelLines(state, 30, 3), 0) << "three quarters of a line";
    EXPECT_EQ(WheelLines(state, 30, 3), 1);
    EXPECT_EQ(WheelLines(state, 20, 3), 1) << "0.5 + 0.5";
    EXPECT_EQ(WheelLines(state, 30, 3), 0);
    EXPECT_EQ(WheelLines(state, -30, 3), 0) << "the other way begins anew";
    EXPECT_EQ(WheelLines(state, -10, 3), -1);
    EXPECT_EQ(WheelLines(state, 120, 0), 0);
}

} // namespace
} // namespace vorn::hierlist
