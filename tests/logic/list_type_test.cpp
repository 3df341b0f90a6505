// Typed characters: opening, closing and searching among siblings.
#include "tests/support/list_host.h"

#include <gtest/gtest.h>

namespace vorn::hierlist::test {
namespace {

// Rows: apple 0, (banana 1, cherry 2, (date 3,) cherimoya 4, blueberry 5,) bread 6, avocado 7.
struct Fruit : ListHost {
    OlbItem* apple = Add(nullptr, "apple");
    OlbItem* bread = Add(nullptr, "bread");
    OlbItem* avocado = Add(nullptr, "avocado");
    OlbItem* banana = Add(apple, "banana");
    OlbItem* cherry = Add(apple, "cherry");
    OlbItem* cherimoya = Add(apple, "cherimoya");
    OlbItem* blueberry = Add(apple, "blueberry");
    OlbItem* date = Add(cherry, "date");

    explicit Fruit(std::uint32_t style = 0) : ListHost(style) {
        OpenRow(0);
        OpenRow(2);
    }
    std::uint32_t Find(std::uint32_t start, const char* text) {
        return FindSibling(outline, start, text);
    }
};

TEST(ListSearch, LooksAtTheSiblingsBehindFirst) {
    Fruit list;
    EXPECT_EQ(list.Find(1, "b"), 5u) << "banana: on to blueberry";
    EXPECT_EQ(list.Find(2, "cher"), 4u);
    EXPECT_EQ(list.Find(0, "a"), 7u) << "apple: on to avocado";
}

TEST(ListSearch, WrapsAroundUpToTheStartItself) {
    Fruit list;
    EXPECT_EQ(list.Find(5, "b"), 1u) << "blueberry: round to banana";
    EXPECT_EQ(list.Find(4, "cher"), 2u);
    EXPECT_EQ(list.Find(1, "ba"), 1u) << "only itself";
    EXPECT_EQ(list.Find(7, "av"), 7u);
    EXPECT_EQ(list.Find(6, "ap"), 0u);
}

TEST(ListSearch, NeverLeavesTheSiblings) {
    Fruit list;
    EXPECT_EQ(list.Find(1, "a"), kNoRow) << "apple is their parent";
    EXPECT_EQ(list.Find(1, "d"), kNoRow) << "date is cherry's child";
    EXPECT_EQ(list.Find(0, "c"), kNoRow);
    EXPECT_EQ(list.Find(3, "d"), 3u);
}

TEST(ListSearch, MatchesBeginningsByteForByte) {
    Fruit list;
    EXPECT_EQ(list.Find(0, "B"), kNoRow);
    EXPECT_EQ(list.Find(0, "bread"), 6u);
    EXPECT_EQ(list.Find(0, "breads"), kNoRow);
    EXPECT_EQ(list.Find(0, "read"), kNoRow);
    EXPECT_EQ(list.Find(0, ""), 6u) << "every text begins with nothing";
    list.Add(nullptr, "\xC4pfel");
    EXPECT_EQ(list.Find(0, "\xC4"), 8u);
}

TEST(ListSearch, WithoutAStartTheTopIsSearchedFromItsFirst) {
    Fruit list;
    EXPECT_EQ(list.Find(kNoRow, "a"), 0u);
    EXPECT_EQ(list.Find(kNoRow, "av"), 7u);
    EXPECT_EQ(list.Find(kNoRow, "c"), kNoRow);
    EXPECT_EQ(list.Find(100, "b"), 6u) << "no such row";
    ListHost empty;
    EXPECT_EQ(FindSibling(empty.outline, kNoRow, "a"), kNoRow);
    EXPECT_EQ(FindSibling(empty.outline, 0, ""), kNoRow);
}

TEST(ListSearch, FindsValues) {
    ListHost list(kStyleOwnerDrawFixed);
    for (const std::uintptr_t value : {7U, 8U, 9U}) {
        AddChild(list.outline, nullptr, reinterpret_cast<const char*>(value));
    }
    const auto find = [&](std::uint32_t start, std::uintptr_t value) {
        return FindSibling(list.outline, start, reinterpret_cast<const char*>(value));
    };
    EXPECT_EQ(find(0, 9), 2u);
    EXPECT_EQ(find(2, 8), 1u);
    EXPECT_EQ(find(0, 10), kNoRow);
}

// InsertChild under a hidden parent, without childCount: closing such a parent leaves rows.
TEST(ListSearch, SkipsSiblingsThatAreNoRows) {
    ListHost list;
    OlbItem* top = list.Add(nullptr, "top");
    OlbItem* parent = list.Add(top, "parent");
    list.Add(parent, "x1");
    InsertChild(list.outline, parent, 1, "x2"); // hidden: not counted
    list.OpenRow(0);
    list.OpenRow(1);
    ASSERT_EQ(RowCount(list.outline), 4u) << "top, parent, x1, x2";
    list.CloseRow(1); // takes back the one child that is counted
    ASSERT_EQ(RowCount(list.outline), 3u);
    EXPECT_EQ(FindSibling(list.outline, 2, "x"), 2u);
}

TEST(ListSearch, SelectStringSelectsAndAnswersTheRow) {
    Fruit list(kStyleExtendedSel);
    list.Click(3);
    list.Click(4, kControl);
    std::uint32_t row = 0;
    const Actions found = SelectString(list.outline, list.input, 1, "blue", Tell::Nobody, row);
    EXPECT_EQ(row, 5u);
    EXPECT_EQ(list.Do(found), "show 5, paint all, update") << "the host did it";
    EXPECT_EQ(list.Selected(), "blueberry");
    const Actions none = SelectString(list.outline, list.input, 1, "x", Tell::Nobody, row);
    EXPECT_EQ(row, kNoRow);
    EXPECT_EQ(list.Do(none), "");
    EXPECT_EQ(list.Selected(), "blueberry");
}

// ---- WM_CHAR ----

TEST(ListType, SearchesFromTheCaret) {
    Fruit list;
    list.Click(1);
    EXPECT_EQ(list.Type('c'), "show 2, paint 1, paint 2, update, notify 1");
    EXPECT_EQ(list.Selected(), "cherry");
    list.Type('c');
    EXPECT_EQ(list.Selected(), "cherimoya");
    list.Type('c');
    EXPECT_EQ(list.Selected(), "cherry") << "round again";
    EXPECT_EQ(list.Type('d'), "") << "date is no sibling";
    EXPECT_EQ(list.Type('C'), "");
    EXPECT_EQ(list.Selected(), "cherry");
}

TEST(ListType, CaretRowItselfIsFoundLast) {
    Fruit list;
    list.Click(6);
    EXPECT_EQ(list.Type('b'), "show 6, paint 6, update, notify 1");
    EXPECT_EQ(list.Selected(), "bread");
}

TEST(ListType, WithoutACaretTheTopIsSearched) {
    Fruit list;
    list.Type('a');
    EXPECT_EQ(list.Selected(), "apple");
}

TEST(ListType, SearchesInEveryMode) {
    Fruit multiple(kStyleMultipleSel);
    multiple.Click(1);
    multiple.Type('c');
    EXPECT_EQ(multiple.Selected(), "banana cherry");
    Fruit extended(kStyleExtendedSel);
    extended.Click(1);
    extended.Click(2, kControl);
    extended.Type('b');
    EXPECT_EQ(extended.Selected(), "blueberry");
}

TEST(ListType, TabReturnSpaceAndNothingAreIgnored) {
    Fruit list(kStyleMultipleSel);
    list.Add(nullptr, " ");
    list.Add(nullptr, "\t");
    list.Add(nullptr, "\r");
    list.Caret(0);
    for (const char character : {'\t', '\r', ' ', '\0'}) {
        EXPECT_EQ(list.Type(character), "");
    }
}

TEST(ListType, StarIsSearchedFor) {
    Fruit list;
    list.Add(nullptr, "*star");
    list.Click(0);
    list.CloseRow(2);
    EXPECT_EQ(list.Type('*'), "show 7, paint 0, paint 7, update, notify 1");
    EXPECT_EQ(list.Selected(), "*star");
    EXPECT_EQ(QueryOpen(list.cherry), 0);
}

TEST(ListType, ControlCharactersAndHighOnesAreSearchedFor) {
    Fruit list;
    list.Add(nullptr, "\xC4pfel");
    list.Click(0);
    EXPECT_EQ(list.Type('\x1B'), "");
    list.Type('\xC4');
    EXPECT_EQ(list.Selected(), "\xC4pfel");
}

TEST(ListType, PlusOpensAndMinusCloses) {
    Fruit list;
    list.CloseRow(0);
    list.Click(0);
    EXPECT_EQ(list.Type('+'), "open 0, paint all, update");
    EXPECT_EQ(QueryOpen(list.apple), 1);
    EXPECT_EQ(RowCount(list.outline), 7u) << "its children alone";
    EXPECT_EQ(list.Type('-'), "close 0, paint all, update");
    EXPECT_EQ(QueryOpen(list.apple), 0);
    EXPECT_EQ(list.Selected(), "apple");
}

TEST(ListType, PlusDoesNotOpenWhatIsLockedButMinusCloses) {
    Fruit list;
    SetLocked(list.apple, true);
    list.Click(0);
    list.Type('-');
    EXPECT_EQ(QueryOpen(list.apple), 0);
    list.Type('+');
    EXPECT_EQ(QueryOpen(list.apple), 0);
}

TEST(ListType, PlusAndMinusNeedACaret) {
    Fruit list;
    EXPECT_EQ(list.Type('+'), "");
    EXPECT_EQ(list.Type('-'), "");
}

TEST(ListType, PlusAndMinusAreNotSearchedFor) {
    Fruit list;
    list.Add(nullptr, "+");
    list.Click(6);
    list.Type('+');
    EXPECT_EQ(list.Selected(), "bread");
}

TEST(ListType, NothingIsPaintedUnderNoRedraw) {
    Fruit list;
    list.Click(0);
    list.outline.style |= kStyleNoRedraw;
    EXPECT_EQ(list.Type('-'), "close 0");
    EXPECT_EQ(list.Type('b'), "show 1, notify 1");
}

TEST(ListType, ValuesAreNotSearched) {
    ListHost list(kStyleOwnerDrawFixed);
    AddChild(list.outline, nullptr, reinterpret_cast<const char*>(std::uintptr_t{'a'}));
    EXPECT_EQ(list.Type('a'), "");
    EXPECT_EQ(list.Marks(), "- - -");
}

TEST(ListType, EmptyListDoesNothing) {
    ListHost list;
    for (int character = 0; character < 256; ++character) {
        EXPECT_EQ(list.Type(static_cast<char>(character)), "");
    }
}

} // namespace
} // namespace vorn::hierlist::test
