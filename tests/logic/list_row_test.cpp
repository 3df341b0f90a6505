// The parts of a row of an outline list: spans, lines, pictures, tab stops; and the list's options.
#include "core/frames.h"
#include "hierlist/connect_lines.h"
#include "hierlist/picture_choice.h"
#include "hierlist/row_spans.h"
#include "hierlist/tab_stops.h"
#include "tests/support/outline_host.h"

#include <gtest/gtest.h>

namespace vorn::hierlist {

static void PrintTo(const DottedLine& line, std::ostream* out) {
    *out << (line.vertical ? "down" : "right") << " from " << line.from.x << "," << line.from.y
         << " length " << line.length;
}

namespace {

constexpr Rect kRow = {0, 36, 200, 54}; // 18 high, the box picture in 39 to 49, its middle at 44

ListOptions WithBoxes() {
    ListOptions options = OptionsFromStyle(0, {16, 16});
    options.flags = kOptionBoxes;
    return options;
}

ListOptions WithoutBoxes() {
    return OptionsFromStyle(0, {16, 16});
}

DottedLine Down(std::int32_t x, std::int32_t top, std::int32_t bottom) {
    return {{x, top}, bottom - top, true};
}

DottedLine Right(std::int32_t left, std::int32_t right, std::int32_t y) {
    return {{left, y}, right - left, false};
}

// ---- Options ----

TEST(ListOptionsOf, AStyleAreItsBorderAndBars) {
    EXPECT_EQ(OptionsFromStyle(0, {16, 16}).border, kBorderNone);
    EXPECT_EQ(OptionsFromStyle(0x800000, {16, 16}).border, kBorderLine);
    EXPECT_EQ(OptionsFromStyle(0x808000, {16, 16}).border, kBorderRaised);
    EXPECT_EQ(OptionsFromStyle(0x80C000, {16, 16}).border, kBorderSunken);
    const ListOptions options = OptionsFromStyle(0x300000, {16, 15});
    EXPECT_TRUE(options.wantsVerticalBar);
    EXPECT_TRUE(options.wantsHorizontalBar);
    EXPECT_FALSE(OptionsFromStyle(0x100000, {16, 16}).wantsVerticalBar);
    EXPECT_EQ(options.rowHeight, 17) << "the picture's height and 2";
    EXPECT_EQ(options.indent, 20);
    EXPECT_EQ(options.defaultPicture, 1);
    EXPECT_EQ(options.levelPicture[19], -1);
    EXPECT_EQ(options.flags, 0);
    EXPECT_TRUE(ShowsPictures(options));
}

TEST(ListOptionsOf, ABorderIsOneStyleBit) {
    EXPECT_EQ(StyleWithBorder(0x80C001, 0), 1u);
    EXPECT_EQ(StyleWithBorder(0x00C001, 1), 0x800001u);
    EXPECT_EQ(StyleWithBorder(0x804001, 2), 0x8001u);
    EXPECT_EQ(StyleWithBorder(0x808001, 3), 0x4001u);
    EXPECT_EQ(StyleWithBorder(0x808001, 4), 1u);
}

TEST(ListOptionsOf, TheWindowIsLargerByBorderAndBars) {
    ListOptions options;
    EXPECT_EQ(OuterSize({100, 50}, options, {17, 16}), (Size{100, 50}));
    options.border = 1;
    EXPECT_EQ(OuterSize({100, 50}, options, {17, 16}), (Size{102, 52}));
    options.wantsVerticalBar = true;
    EXPECT_EQ(OuterSize({100, 50}, options, {17, 16}), (Size{118, 52})) << "a bar less 1";
    options.border = 2;
    options.wantsHorizontalBar = true;
    EXPECT_EQ(OuterSize({100, 50}, options, {17, 16}), (Size{121, 70}));
    options.border = 3;
    options.wantsVerticalBar = false;
    EXPECT_EQ(OuterSize({100, 50}, options, {17, 16}), (Size{104, 70}));
}

TEST(ListOptionsOf, AColumnHasAWidth) {
    ListOptions options;
    options.averageWidth = 7;
    EXPECT_EQ(ColumnWidthOf(options), 105) << "15 characters";
    options.columnWidth = 60;
    EXPECT_EQ(ColumnWidthOf(options), 60);
    options.columnWidth = -5;
    options.averageWidth = 0;
    EXPECT_EQ(ColumnWidthOf(options), 1);
}

TEST(ListOptionsOf, ColoursHaveSlots) {
    ListColors colors;
    EXPECT_EQ(colors.lightEdge, ~20u);
    EXPECT_EQ(colors.darkEdge, ~16u);
    EXPECT_EQ(colors.background, ~5u);
    EXPECT_EQ(colors.text, ~8u);
    EXPECT_EQ(colors.face, ~15u);
    EXPECT_EQ(colors.lines, ~6u);
    EXPECT_EQ(colors.lockedText, ~17u);
    EXPECT_EQ(colors.selectedText, ~14u);
    EXPECT_EQ(colors.selection, ~13u);
    ColorCode code = 100;
    for (const int slot : {0, 1, 2, 4, 8, 16, 32, 64}) {
        SetColorSlot(colors, kListColorSlots, slot, ++code);
    }
    SetColorSlot(colors, kListColorSlots, 3, 999);
    SetColorSlot(colors, kListColorSlots, 128, 999);
    EXPECT_EQ(colors.lightEdge, 101u);
    EXPECT_EQ(colors.darkEdge, 102u);
    EXPECT_EQ(colors.background, 103u);
    EXPECT_EQ(colors.text, 104u);
    EXPECT_EQ(colors.face, 105u);
    EXPECT_EQ(colors.lines, 106u);
    EXPECT_EQ(colors.lockedText, 107u);
    EXPECT_EQ(colors.selectedText, 108u);
    EXPECT_EQ(colors.selection, ~13u);
}

TEST(ListOptionsOf, TextIsColouredByStateSelectionFirst) {
    const ListColors colors;
    EXPECT_EQ(TextColorOf(colors, 0), colors.text);
    EXPECT_EQ(TextColorOf(colors, kFlagLocked), colors.lockedText);
    EXPECT_EQ(TextColorOf(colors, kFlagSelected), colors.selectedText);
    EXPECT_EQ(TextColorOf(colors, kFlagSelected | kFlagLocked), colors.selectedText);
    EXPECT_EQ(TextColorOf(colors, kFlagOpen | kFlagCaret), colors.text);
}

// ---- Spans ----

TEST(ListRow, ContentIsIndentedByLevelAndBox) {
    EXPECT_EQ(ContentStart(WithBoxes(), 3), 80);
    EXPECT_EQ(ContentStart(WithBoxes(), 0), 20);
    EXPECT_EQ(ContentStart(WithoutBoxes(), 3), 60);
    EXPECT_EQ(ContentStart(WithoutBoxes(), 0), 0);
}

TEST(ListRow, TheBoxIsInTheMiddleOfItsSlot) {
    EXPECT_EQ(BoxRect(kRow, WithBoxes(), 0), (Rect{3, 39, 14, 50}));
    EXPECT_EQ(BoxRect(kRow, WithBoxes(), 2), (Rect{43, 39, 54, 50}));
    EXPECT_EQ(BoxRect({-30, 0, 200, 9}, WithBoxes(), 2), (Rect{13, -1, 24, 10})) << "a low row";
}

TEST(ListRow, PictureAndTextFollow) {
    const ListOptions options = WithBoxes();
    EXPECT_EQ(PictureRect(kRow, options, 40), (Rect{40, 37, 56, 53}));
    EXPECT_EQ(TextStart(kRow, options, 1), 59) << "40, the picture's 16, and 3";
    EXPECT_EQ(TextRect(kRow, options, 1, 30), (Rect{56, 36, 92, 54})) << "3 more on both sides";
}

TEST(ListRow, WithoutPicturesTextIsTheContent) {
    ListOptions options = WithBoxes();
    options.pictures = 0x8000;
    EXPECT_FALSE(ShowsPictures(options));
    EXPECT_EQ(TextStart(kRow, options, 1), 40);
    EXPECT_EQ(TextRect(kRow, options, 1, 30), (Rect{37, 36, 73, 54}));
}

TEST(ListRow, AFullRowIsHighlightedToTheRightEdge) {
    ListOptions options = WithBoxes();
    options.flags |= kOptionFullRow;
    EXPECT_EQ(TextRect(kRow, options, 1, 30), (Rect{56, 36, 200, 54}));
}

TEST(ListRow, PointsAreInItsParts) {
    const ListOptions options = WithBoxes();
    EXPECT_EQ(PartAt(kRow, options, 1, 22), RowPart::Indent);
    EXPECT_EQ(PartAt(kRow, options, 1, 23), RowPart::Box);
    EXPECT_EQ(PartAt(kRow, options, 1, 34), RowPart::Box);
    EXPECT_EQ(PartAt(kRow, options, 1, 35), RowPart::Indent);
    EXPECT_EQ(PartAt(kRow, options, 1, 39), RowPart::Indent);
    EXPECT_EQ(PartAt(kRow, options, 1, 40), RowPart::Picture);
    EXPECT_EQ(PartAt(kRow, options, 1, 56), RowPart::Text);
    EXPECT_EQ(PartAt({-23, 0, 200, 18}, options, 1, 0), RowPart::Box) << "scrolled by 23";
    EXPECT_EQ(PartAt(kRow, WithoutBoxes(), 1, 23), RowPart::Picture);
}

TEST(ListRow, HostileIndentsDoNotOverflow) {
    ListOptions options = WithBoxes();
    options.indent = 65535;
    EXPECT_GT(ContentStart(options, 32767), 0);
    EXPECT_GT(TextRect(kRow, options, 32767, 1000).right, 0);
}

// ---- Lines ----

class ConnectLines : public ::testing::Test {
protected:
    ConnectLines() {
        // a        b (last)
        //   a1       b1 (only)
        //     x
        //   a2
        a = host.Add(nullptr, "a");
        b = host.Add(nullptr, "b");
        a1 = host.Add(a, "a1");
        a2 = host.Add(a, "a2");
        x = host.Add(a1, "x");
        b1 = host.Add(b, "b1");
    }

    test::TestHost host;
    OlbItem* a;
    OlbItem* b;
    OlbItem* a1;
    OlbItem* a2;
    OlbItem* x;
    OlbItem* b1;
};

TEST_F(ConnectLines, RunThroughTheBoxes) {
    const OwnLines first = LinesOf(a, kRow, WithBoxes());
    EXPECT_EQ(first.down, Down(8, 44, 54)) << "from the first item's box downwards";
    EXPECT_EQ(first.branch, Right(8, 20, 44));
    const OwnLines last = LinesOf(b, kRow, WithBoxes());
    EXPECT_EQ(last.down, Down(8, 36, 45)) << "ended at the last";
}

TEST_F(ConnectLines, ComeFromTheParentAbove) {
    EXPECT_EQ(LinesOf(a1, kRow, WithBoxes()).down, Down(28, 36, 54));
    EXPECT_EQ(LinesOf(a2, kRow, WithBoxes()).down, Down(28, 36, 45));
    EXPECT_EQ(LinesOf(b1, kRow, WithBoxes()).down, Down(28, 36, 45)) << "an only child";
    EXPECT_EQ(LinesOf(b1, kRow, WithBoxes()).branch, Right(28, 40, 44));
}

TEST_F(ConnectLines, GoOnBesideWhatIsBelowAParent) {
    EXPECT_EQ(PassedParent(x), a1);
    EXPECT_EQ(PassedParent(a1), a);
    EXPECT_EQ(PassedParent(a), nullptr);
    EXPECT_EQ(PassedParent(b1), nullptr) << "b is the last";
    EXPECT_EQ(PassingLine(a1, kRow, WithBoxes()), Down(28, 36, 54));
    EXPECT_EQ(PassingLine(a, kRow, WithBoxes()), Down(8, 36, 54));
}

TEST_F(ConnectLines, WithoutBoxesBeginBelowTheParentsPicture) {
    EXPECT_EQ(LinesOf(a, kRow, WithoutBoxes()).down.length, 0);
    EXPECT_EQ(LinesOf(a, kRow, WithoutBoxes()).branch.length, 0);
    EXPECT_EQ(LinesOf(a1, kRow, WithoutBoxes()).down, Down(8, 36, 54));
    EXPECT_EQ(LinesOf(a1, kRow, WithoutBoxes()).branch, Right(8, 20, 44));
    EXPECT_EQ(PassingLine(a, kRow, WithoutBoxes()).length, 0);
}

TEST_F(ConnectLines, AnOnlyItemHasABranchAlone) {
    test::TestHost lonely;
    const OwnLines lines = LinesOf(lonely.Add(nullptr, "a"), kRow, WithBoxes());
    EXPECT_EQ(lines.down.length, 1);
    EXPECT_EQ(lines.branch, Right(8, 20, 44));
}

TEST_F(ConnectLines, BeginWithADotWhereTheCoordinatesAddUpToAnEvenNumber) {
    EXPECT_EQ(FromFirstDot(Down(8, 36, 54)), Down(8, 36, 54));
    EXPECT_EQ(FromFirstDot(Down(9, 36, 54)), Down(9, 37, 54));
    EXPECT_EQ(FromFirstDot(Right(8, 20, 45)), Right(9, 20, 45));
    EXPECT_EQ(FromFirstDot(Down(-1, -4, 5)), Down(-1, -3, 5));
    EXPECT_EQ(FromFirstDot(Down(1, 4, 5)).length, 0);
}

// ---- Pictures ----

class PictureOf : public ::testing::Test {
protected:
    PictureOf() : item(host.Add(host.Add(nullptr, "a"), "b")) { strips.own = &own; }

    PictureChoice Choose() const { return ChoosePicture(item, options, strips); }

    test::TestHost host;
    OlbItem* item; // of level 1
    ListOptions options = OptionsFromStyle(0, {16, 16});
    Strips strips;
    int own = 0, user = 0, level = 0, ofItem = 0; // bitmaps
};

TEST_F(PictureOf, AnItemIsTheControlsByDefault) {
    EXPECT_EQ(Choose(), (PictureChoice{&own, 1}));
    strips.user = &user;
    EXPECT_EQ(Choose(), (PictureChoice{&user, 1}));
    options.defaultPicture = 4;
    EXPECT_EQ(Choose(), (PictureChoice{&user, 4}));
}

TEST_F(PictureOf, ALevelGoesBeforeTheControl) {
    strips.user = &user;
    strips.level[1] = &level;
    options.levelPicture[1] = 7;
    EXPECT_EQ(Choose(), (PictureChoice{&level, 7}));
    options.levelPicture[1] = -1;
    EXPECT_EQ(Choose(), (PictureChoice{&level, 1}));
}

TEST_F(PictureOf, AnItemGoesBeforeItsLevel) {
    strips.level[1] = &level;
    options.levelPicture[1] = 7;
    item->bitmapIndex = 3;
    EXPECT_EQ(Choose(), (PictureChoice{&level, 3}));
    item->bitmaps = &ofItem;
    item->bitmapIndex = -1;
    EXPECT_EQ(Choose(), (PictureChoice{&ofItem, 7}));
}

TEST_F(PictureOf, AnItemThatSortsFirstIsAFolder) {
    item->bitmapIndex = -32768;
    EXPECT_EQ(Choose().index, 6);
    item->flags |= kFlagOpen;
    EXPECT_EQ(Choose().index, 7);
    item->flags = 0;
}

TEST_F(PictureOf, ADeepItemIsOfNoLevel) {
    strips.level.fill(&level);
    options.levelPicture.fill(5);
    item->level = 19;
    EXPECT_EQ(Choose(), (PictureChoice{&level, 5}));
    item->level = 20;
    EXPECT_EQ(Choose(), (PictureChoice{&own, 1}));
    item->level = 1;
}

// ---- Tab stops ----

class TabStopsOf : public ::testing::Test {
protected:
    ~TabStopsOf() override { FreeTabStops(tabs); }
    int Next(int x) const { return NextTab(tabs, {8, 6}, x); }
    void Set(std::vector<std::int32_t> stops) {
        EXPECT_TRUE(SetTabStops(tabs, stops.data(), static_cast<std::uint32_t>(stops.size())));
    }
    TabStops tabs;
};

TEST_F(TabStopsOf, NoneAreEightCharacters) {
    EXPECT_EQ(Next(0), 48);
    EXPECT_EQ(Next(47), 48);
    EXPECT_EQ(Next(48), 96);
}

TEST_F(TabStopsOf, SomeAreInDialogUnits) {
    Set({20, 60}); // of 2 pixels each
    EXPECT_EQ(Next(0), 40);
    EXPECT_EQ(Next(40), 120);
    EXPECT_EQ(Next(120), 144) << "beyond the last: three times 48";
}

TEST_F(TabStopsOf, OneRepeatsItself) {
    Set({20});
    EXPECT_EQ(Next(0), 40);
    EXPECT_EQ(Next(79), 80);
    EXPECT_EQ(Next(80), 120);
}

TEST_F(TabStopsOf, AnyOrderDoes) {
    Set({60, -5, 20});
    EXPECT_EQ(Next(0), 40);
    EXPECT_EQ(Next(41), 120);
}

TEST_F(TabStopsOf, StayWhenOthersDoNotFit) {
    Set({20});
    const std::vector<std::int32_t> many(20000, 1);
    EXPECT_FALSE(SetTabStops(tabs, many.data(), 20000));
    EXPECT_FALSE(SetTabStops(tabs, nullptr, 2));
    FailAllocationsAfter(0);
    EXPECT_FALSE(SetTabStops(tabs, many.data(), 2));
    FailAllocationsAfter(-1);
    EXPECT_EQ(Next(0), 40);
    Set({});
    EXPECT_EQ(Next(0), 48);
}

TEST_F(TabStopsOf, HostileOnesEndSomewhere) {
    Set({2147483647, 2147483647});
    EXPECT_EQ(Next(0), 2147483647);
    Set({0});
    EXPECT_EQ(Next(5), 5);
    Set({-3});
    EXPECT_EQ(Next(5), 5);
}

} // namespace
} // namespace vorn::hierlist
