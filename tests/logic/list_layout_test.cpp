// Where the rows of an outline list are, against places reckoned one row after the other.
#include "hierlist/layout.h"
#include "tests/support/outline_host.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace vorn::hierlist {
namespace {

class ListLayout : public ::testing::Test {
protected:
    ~ListLayout() override { FreeColumns(columns); }

    void AddRows(int count) {
        for (int i = 0; i < count; ++i) {
            host.Add(nullptr, "x");
        }
    }
    // Adds a row of each height.
    void AddHeights(const std::vector<std::uint16_t>& heights) {
        for (const std::uint16_t height : heights) {
            host.Add(nullptr, "x")->height = height;
        }
    }
    Layout Make(Size client, std::uint32_t style = 0) {
        ListOptions options;
        options.rowHeight = 10;
        options.columnWidth = 50;
        Layout layout = MakeLayout(host.outline, options, style, client);
        BuildColumns(columns, layout);
        layout.columns = &columns;
        return layout;
    }

    test::TestHost host;
    ColumnTable columns;
};

TEST_F(ListLayout, FixedRowsLieBelowEachOther) {
    AddRows(10);
    Layout layout = Make({100, 45});
    EXPECT_EQ(LinesPerColumn(layout), 4u);
    EXPECT_EQ(RowRect(layout, 0), (Rect{0, 0, 100, 10}));
    EXPECT_EQ(RowRect(layout, 4), (Rect{0, 40, 100, 50}));
    layout.topIndex = 3;
    EXPECT_EQ(RowRect(layout, 1), (Rect{0, -20, 100, -10}));
    EXPECT_EQ(RowRect(layout, 9), (Rect{0, 60, 100, 70}));
    EXPECT_EQ(RowRect(layout, 10), Rect{}) << "there is no such row";
    EXPECT_EQ(RowRect(layout, kNoRow), Rect{});
}

TEST_F(ListLayout, ScrolledSidewaysRowsReachToTheExtent) {
    AddRows(1);
    Layout layout = Make({100, 45});
    layout.extent = 300;
    layout.offset = 40;
    EXPECT_EQ(RowRect(layout, 0), (Rect{-40, 0, 260, 10}));
    layout.extent = 50;
    layout.offset = 0;
    EXPECT_EQ(RowRect(layout, 0).right, 100) << "never less than the client area";
}

TEST_F(ListLayout, AtLeastOneRowFits) {
    AddRows(3);
    EXPECT_EQ(LinesPerColumn(Make({100, 9})), 1u);
    EXPECT_EQ(LinesPerColumn(Make({0, 0})), 1u);
    EXPECT_EQ(LastTop(Make({100, 9})), 2u);
    EXPECT_EQ(LinesPerColumn(Make({100, 9}, kStyleOwnerDrawVariable)), 1u);
}

TEST_F(ListLayout, VariableRowsHaveTheirOwnHeights) {
    AddHeights({10, 20, 5, 40});
    Layout layout = Make({100, 36}, kStyleOwnerDrawVariable);
    EXPECT_EQ(RowRect(layout, 2), (Rect{0, 30, 100, 35}));
    EXPECT_EQ(LinesPerColumn(layout), 3u) << "10 + 20 + 5 fit into 36";
    layout.topIndex = 2;
    EXPECT_EQ(RowRect(layout, 0), (Rect{0, -30, 100, -20}));
    EXPECT_EQ(RowRect(layout, 3), (Rect{0, 5, 100, 45}));
}

TEST_F(ListLayout, RowsNeverMeasuredAreAsHighAsFixedOnes) {
    AddHeights({0, 7});
    EXPECT_EQ(RowRect(Make({100, 36}, kStyleOwnerDrawVariable), 1), (Rect{0, 10, 100, 17}));
}

TEST_F(ListLayout, HeightsCountForVariableRowsOnly) {
    AddHeights({33, 7});
    EXPECT_EQ(RowRect(Make({100, 36}), 1), (Rect{0, 10, 100, 20}));
}

TEST_F(ListLayout, TheLastPageEndsWithTheLastRow) {
    AddHeights({10, 10, 10, 30, 5, 5});
    Layout layout = Make({100, 41}, kStyleOwnerDrawVariable);
    EXPECT_EQ(LastTop(layout), 3u) << "30 + 5 + 5 fit, with another 10 no more";
    EXPECT_EQ(PageRows(layout), 3u);
    EXPECT_EQ(LastTop(Make({100, 40}, kStyleOwnerDrawVariable)), 3u) << "they just fit";
    EXPECT_EQ(LastTop(Make({100, 29}, kStyleOwnerDrawVariable)), 4u);
    EXPECT_EQ(LastTop(Make({100, 45})), 2u) << "four rows of 10";
    EXPECT_EQ(LastTop(Make({100, 60})), 0u);
}

TEST_F(ListLayout, PagesMoveByWholeRows) {
    AddHeights({10, 10, 10, 30, 5, 5, 40, 10, 10});
    Layout layout = Make({100, 41}, kStyleOwnerDrawVariable);
    EXPECT_EQ(TopPageDown(layout), 3u);
    layout.topIndex = 3;
    EXPECT_EQ(TopPageDown(layout), 6u);
    EXPECT_EQ(TopPageUp(layout), 0u);
    layout.topIndex = 6;
    EXPECT_EQ(TopPageUp(layout), 3u) << "30 + 5 + 5 above it";
    EXPECT_EQ(TopPageDown(layout), 7u) << "not beyond the last page";
    layout.topIndex = 7;
    EXPECT_EQ(TopPageDown(layout), 7u);
    Layout fixed = Make({100, 45});
    EXPECT_EQ(TopPageDown(fixed), 4u);
    fixed.topIndex = 4;
    EXPECT_EQ(TopPageDown(fixed), 5u);
    EXPECT_EQ(TopPageUp(fixed), 0u);
}

TEST_F(ListLayout, RowsComeIntoViewByTheShortestWay) {
    AddRows(20);
    Layout layout = Make({100, 45});
    layout.topIndex = 5;
    EXPECT_EQ(TopToShow(layout, 5), 5u);
    EXPECT_EQ(TopToShow(layout, 8), 5u);
    EXPECT_EQ(TopToShow(layout, 9), 6u) << "the fifth is only half in view";
    EXPECT_EQ(TopToShow(layout, 2), 2u);
    EXPECT_EQ(TopToShow(layout, 19), 16u);
}

TEST_F(ListLayout, FixedRowsGoOnInTheNextColumn) {
    AddRows(10);
    Layout layout = Make({120, 45}, kStyleMultiColumn);
    EXPECT_EQ(ColumnCount(layout), 3u) << "4 + 4 + 2";
    EXPECT_EQ(RowRect(layout, 3), (Rect{0, 30, 50, 40}));
    EXPECT_EQ(RowRect(layout, 4), (Rect{50, 0, 100, 10}));
    layout.offset = 30;
    EXPECT_EQ(RowRect(layout, 9), (Rect{70, 10, 120, 20}));
    EXPECT_EQ(LastTop(layout), 0u);
    EXPECT_EQ(ColumnCount(Make({120, 100}, kStyleMultiColumn)), 1u);
}

TEST_F(ListLayout, AnEmptyListHasOneColumn) {
    EXPECT_EQ(ColumnCount(Make({120, 45}, kStyleMultiColumn)), 1u);
    EXPECT_EQ(ColumnCount(Make({120, 45}, kStyleMultiColumn | kStyleOwnerDrawVariable)), 1u);
    EXPECT_EQ(LastRowInView(Make({120, 45})), kNoRow);
    EXPECT_EQ(RowAt(Make({120, 45}), {0, 0}), kNoRow);
}

TEST_F(ListLayout, ColumnsOfVariableRowsBeginWhereTheHeightIsPassed) {
    AddHeights({20, 20, 10, 45, 50, 5, 5});
    const Layout layout = Make({120, 45}, kStyleMultiColumn | kStyleOwnerDrawVariable);
    // 20 + 20 | 10 | 45 | 50, which fits nowhere | 5 + 5
    EXPECT_EQ(ColumnCount(layout), 5u);
    EXPECT_EQ(LinesPerColumn(layout), 2u);
    const std::vector<std::uint32_t> starts = {0, 2, 3, 4, 5};
    for (std::uint32_t column = 0; column < starts.size(); ++column) {
        EXPECT_EQ(ColumnStart(columns, layout, column), starts[column]);
    }
    EXPECT_EQ(ColumnStart(columns, layout, 5), 7u) << "behind the last row";
    EXPECT_EQ(RowRect(layout, 1), (Rect{0, 20, 50, 40}));
    EXPECT_EQ(RowRect(layout, 2), (Rect{50, 0, 100, 10}));
    EXPECT_EQ(RowRect(layout, 6), (Rect{200, 5, 250, 10}));
}

TEST_F(ListLayout, ColumnsAreFoundWithoutMemoryForTheirTable) {
    AddHeights(std::vector<std::uint16_t>(3000, 30));
    const Layout layout = Make({120, 45}, kStyleMultiColumn | kStyleOwnerDrawVariable);
    for (const std::int32_t allowed : {0, 1, 2}) { // the table itself, and chunks of 1024 columns
        FreeColumns(columns);
        FailAllocationsAfter(allowed);
        BuildColumns(columns, layout);
        FailAllocationsAfter(-1);
        EXPECT_EQ(columns.known, allowed == 2 ? 1024u : 0u);
        EXPECT_EQ(ColumnCount(layout), 3000u);
        EXPECT_EQ(ColumnStart(columns, layout, 2500), 2500u);
        EXPECT_EQ(ColumnOf(columns, layout, 2500), 2500u);
        EXPECT_EQ(ColumnOf(columns, layout, 1000), 1000u);
    }
}

TEST_F(ListLayout, ColumnsComeIntoViewByTheShortestWay) {
    AddRows(40);
    Layout layout = Make({120, 45}, kStyleMultiColumn); // ten columns, two and a bit in view
    EXPECT_EQ(OffsetToShow(layout, 0), 0);
    EXPECT_EQ(OffsetToShow(layout, 8), 30) << "150 - 120";
    layout.offset = 160;
    EXPECT_EQ(OffsetToShow(layout, 8), 100);
    EXPECT_EQ(OffsetToShow(layout, 16), 160);
    EXPECT_EQ(FirstColumnRow(layout), 16u) << "the fourth column is cut";
    EXPECT_EQ(OffsetOfColumn(layout, 17), 200);
    Layout narrow = Make({40, 45}, kStyleMultiColumn);
    EXPECT_EQ(OffsetToShow(narrow, 4), 50) << "the start of a column that is too wide";
}

TEST_F(ListLayout, PointsAreInRows) {
    AddRows(3);
    Layout layout = Make({100, 45});
    EXPECT_EQ(RowAt(layout, {0, 0}), 0u);
    EXPECT_EQ(RowAt(layout, {99, 29}), 2u);
    EXPECT_EQ(RowAt(layout, {50, 30}), kNoRow) << "below the last row";
    EXPECT_EQ(RowAt(layout, {-1, 5}), kNoRow);
    EXPECT_EQ(RowAt(layout, {5, -1}), kNoRow);
    EXPECT_EQ(RowAt(layout, {100, 5}), kNoRow);
    EXPECT_EQ(RowAt(layout, {5, 45}), kNoRow);
    layout.topIndex = 2;
    EXPECT_EQ(RowAt(layout, {0, 5}), 2u);
}

TEST_F(ListLayout, BelowAColumnIsNoRow) {
    AddRows(10);
    const Layout layout = Make({170, 45}, kStyleMultiColumn);
    EXPECT_EQ(RowAt(layout, {10, 42}), kNoRow);
    EXPECT_EQ(RowAt(layout, {60, 39}), 7u);
    EXPECT_EQ(RowAt(layout, {110, 25}), kNoRow);
    EXPECT_EQ(RowAt(layout, {160, 5}), kNoRow) << "behind the last column";
}

TEST_F(ListLayout, FarRowsDoNotOverflow) {
    AddRows(3);
    Layout layout = Make({100, 45});
    layout.topIndex = 0;
    layout.rowHeight = 2000000000;
    EXPECT_EQ(RowRect(layout, 2).top, 2147483647);
    layout.topIndex = 2;
    EXPECT_EQ(RowRect(layout, 0).top, -2147483647);
}

// Every row of the view, by the slow way: all rows from the first on.
std::vector<Rect> AllRects(const Layout& layout, const std::vector<std::int32_t>& heights) {
    std::vector<Rect> rects;
    std::int32_t left = -layout.offset;
    std::int32_t top = 0;
    for (std::uint32_t row = 0; !layout.multiColumn && row < layout.topIndex; ++row) {
        top -= heights[row];
    }
    for (const std::int32_t height : heights) {
        if (layout.multiColumn && top != 0 && top + height > layout.client.height) {
            top = 0;
            left += layout.columnWidth;
        }
        const std::int32_t right = layout.multiColumn
                                       ? left + layout.columnWidth
                                       : std::max(layout.client.width, layout.extent + left);
        rects.push_back({left, top, right, top + height});
        top += height;
    }
    return rects;
}

TEST_F(ListLayout, AgreesWithReckoningRowAfterRow) {
    std::mt19937 random(6202);
    const auto below = [&](int end) {
        return static_cast<int>(random() % static_cast<unsigned>(end));
    };
    for (int round = 0; round < 300; ++round) {
        Reset(host.outline);
        const bool variable = below(2) != 0;
        const bool multiColumn = below(2) != 0;
        std::vector<std::int32_t> heights;
        const int count = 1 + below(60);
        for (int i = 0; i < count; ++i) {
            const int height = 1 + below(40);
            host.Add(nullptr, "x")->height = static_cast<std::uint16_t>(height);
            heights.push_back(variable ? height : 10);
        }
        Layout layout =
            Make({1 + below(200), 1 + below(120)},
                 (variable ? kStyleOwnerDrawVariable : 0) | (multiColumn ? kStyleMultiColumn : 0));
        layout.extent = below(400);
        layout.offset = below(150);
        layout.topIndex = multiColumn ? 0 : static_cast<std::uint32_t>(below(count));
        const std::vector<Rect> rects = AllRects(layout, heights);
        for (std::uint32_t row = 0; row < rects.size(); ++row) {
            ASSERT_EQ(RowRect(layout, row), rects[row]) << "round " << round << " row " << row;
        }
        for (int i = 0; i < 40; ++i) {
            const Point point = {below(layout.client.width), below(layout.client.height)};
            std::uint32_t expected = kNoRow;
            for (std::uint32_t row = 0; row < rects.size(); ++row) {
                expected = Contains(rects[row], point) ? row : expected;
            }
            ASSERT_EQ(RowAt(layout, point), expected) << "round " << round;
        }
    }
}

TEST_F(ListLayout, WalksTheRowsOfAnAreaOnly) {
    AddRows(1000);
    Layout layout = Make({100, 45});
    layout.topIndex = 500;
    const Rect area = {0, 12, 100, 31};
    std::vector<std::uint32_t> rows;
    for (PlacedRow placed = FirstRowIn(layout, area); !IsBeyond(layout, placed, area);
         placed = NextRow(layout, placed)) {
        rows.push_back(placed.row);
    }
    EXPECT_EQ(rows, (std::vector<std::uint32_t>{501, 502, 503}));
    EXPECT_EQ(LastRowInView(layout), 504u);
}

} // namespace
} // namespace vorn::hierlist
