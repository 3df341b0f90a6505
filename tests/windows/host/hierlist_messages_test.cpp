// The outline list's own messages: each does and answers what its function does.
#include "tests/windows/support/outline_list.h"
#include "tests/windows/support/outline_tree.h"

#include <set>
#include <string>

namespace {

using vorn::test::Difference;
using vorn::test::kOutlineId;
using vorn::test::kOutlineWidth;
using vorn::test::kSmallTreeHeight;
using vorn::test::PictureOf;
using vorn::test::Pixels;
using vorn::test::PlantTree;
using vorn::test::RedStrip;
using vorn::test::SmallTree;
using vorn::test::StateOf;

// The records, with fields as wide as a pointer and aligned as usual.
struct Rows {
    LONG_PTR item, parent;
};
struct Items {
    HOLBITEM item, parent;
};
struct Text {
    HOLBITEM item;
    const char* text;
};
struct Buffer {
    HOLBITEM item;
    char* buffer;
};
struct RowSearch {
    LONG_PTR parent, start;
    const char* text;
};
struct ItemSearch {
    HOLBITEM parent;
    LONG_PTR start;
    const char* text;
};
struct Insertion {
    HOLBITEM parent;
    WORD position;
    const char* text;
};
static_assert(sizeof(Rows) == 2 * sizeof(void*) && sizeof(OLBROWPAIR) == sizeof(Rows));
static_assert(sizeof(Insertion) == 3 * sizeof(void*) && sizeof(OLBINSERTION) == sizeof(Insertion));

template <class Record>
const Record* Kept(const Record& record) {
    static Record kept;
    kept = record;
    return &kept;
}

// The strip of a single item, which the list does not delete.
HBITMAP OwnStrip() {
    static HBITMAP strip = RedStrip();
    return strip;
}

enum Doing : std::uint8_t { kAsks, kChanges, kAsksX, kChangesX }; // X: of several selected

LRESULT Number(LRESULT number) {
    return number;
}
LRESULT Number(HOLBITEM item) {
    return reinterpret_cast<LRESULT>(item);
}
LRESULT Number(HBITMAP bitmap) {
    return reinterpret_cast<LRESULT>(bitmap);
}

struct Case {
    UINT number;
    bool isItem; // the answer is one
    const char* answer;
    Doing doing;
    LRESULT (*send)(SmallTree& t, UINT number);
    LRESULT (*call)(SmallTree& t);
};

#define CASE(number, isItem, answer, doing, w, l, call)                                            \
    {                                                                                              \
        number, isItem, answer, doing,                                                             \
            [](SmallTree& t, UINT message) {                                                       \
                return SendMessageA(t.list, message, (WPARAM)(w), (LPARAM)(l));                    \
            },                                                                                     \
            [](SmallTree& t) -> LRESULT { call; }                                                  \
    }
#define NUMBER(number, answer, doing, w, l, call)                                                  \
    CASE(number, false, answer, doing, w, l, return Number(call))
#define ITEM(number, answer, doing, w, l, call)                                                    \
    CASE(number, true, answer, doing, w, l, return Number(call))
#define DOES(number, answer, doing, w, l, call)                                                    \
    CASE(number, false, answer, doing, w, l, call; static_cast<void>(t); return 0)

// clang-format off
const Case kCases[] = {
    NUMBER(1324, "3", kChanges, 0, "new", olbAddChildString(t.list, 0, "new")),
    ITEM(1325, "new", kChanges, 0, Kept(Text{t.a, "new"}), olbAddChildStringEx(t.list, t.a, "new")),
    NUMBER(1326, "4", kChanges, 0, "new", olbAddString(t.list, "new")),
    NUMBER(1327, "0", kChanges, LBS_SORT, 0, olbChangeStyle(t.list, LBS_SORT)),
    DOES(1328, "0", kChanges, 0, 0, olbCloseItem(t.list, 0)),
    NUMBER(1329, "1", kChanges, 0, Kept(Rows{0, -1}), olbCopyChildren(t.list, 0, -1, 0)),
    ITEM(1330, "c", kChanges, 1, Kept(Items{t.a, nullptr}), olbCopyChildrenEx(t.list, t.a, nullptr, 1)),
    NUMBER(1331, "4", kChanges, 65535, Kept(Rows{1, -1}), olbCopyItem(t.list, 1, -1, 65535)),
    ITEM(1332, "b", kChanges, 1, Kept(Items{t.b, t.a}), olbCopyItemEx(t.list, t.b, t.a, 1)),
    NUMBER(1333, "1", kChanges, 1, 0, olbDeleteString(t.list, 1)),
    NUMBER(1334, "1", kChanges, 0, t.b, olbDeleteStringEx(t.list, t.b)),
    NUMBER(1335, "2", kChanges, 0, 0, olbDeleteSubTree(t.list, 0)),
    NUMBER(1336, "4", kChanges, 0, t.c, olbDeleteSubTreeEx(t.list, t.c)),
    NUMBER(1337, "-1", kAsks, 0, 27, olbDirEx(t.list, 0, 27)),
    NUMBER(1337, "*", kChanges, DDL_DRIVES, 1, olbDirEx(t.list, DDL_DRIVES, 1)),
    NUMBER(1338, "0", kAsks, 0, Kept(RowSearch{2, -1, "em"}), olbFindString(t.list, 2, -1, "em", FALSE)),
    NUMBER(1338, "-1", kAsks, 1, Kept(RowSearch{2, -1, "em"}), olbFindString(t.list, 2, -1, "em", TRUE)),
    NUMBER(1338, "3", kAsks, 0, Kept(RowSearch{-1, 2, "d"}), olbFindString(t.list, -1, 2, "d", FALSE)),
    ITEM(1339, "ember", kAsks, 0, Kept(ItemSearch{t.c, 0, "em"}), olbFindStringEx(t.list, t.c, 0, "em", FALSE)),
    ITEM(1339, "-1", kAsks, 1, Kept(ItemSearch{t.c, 0, "em"}), olbFindStringEx(t.list, t.c, 0, "em", TRUE)),
    NUMBER(1340, "-1", kAsks, 0, Kept(RowSearch{2, -1, "em"}), olbFindString(t.list, 2, -1, "em", TRUE)),
    NUMBER(1340, "0", kAsks, 0, Kept(RowSearch{2, -1, "ember"}), olbFindString(t.list, 2, -1, "ember", TRUE)),
    ITEM(1341, "-1", kAsks, 0, Kept(ItemSearch{t.c, -1, "em"}), olbFindStringEx(t.list, t.c, -1, "em", TRUE)),
    ITEM(1341, "ember", kAsks, 0, Kept(ItemSearch{t.c, -1, "ember"}), olbFindStringEx(t.list, t.c, -1, "ember", TRUE)),
    NUMBER(1342, "3", kAsks, 0, 0, olbGetBottomIndex(t.list)),
    ITEM(1343, "ember", kAsks, 2, 0, olbGetChildHandle(t.list, 2, 0)),
    ITEM(1343, "0", kAsks, 2, 1, olbGetChildHandle(t.list, 2, 1)),
    ITEM(1344, "ember", kAsks, 0, t.c, olbGetChildHandleEx(t.c, 0)),
    ITEM(1344, "0", kAsks, 1, t.c, olbGetChildHandleEx(t.c, 1)),
    NUMBER(1345, "5", kAsks, 0, 0, olbGetCount(t.list)),
    NUMBER(1346, "1", kAsks, 0, 0, olbGetCurSel(t.list)),
    ITEM(1347, "b", kAsks, 0, 0, olbGetCurSelEx(t.list)),
    NUMBER(1348, "3 a\\b", kAsks, 1, t.buffer, lstrlenA(olbGetFullPath(t.list, 1, t.buffer))),
    NUMBER(1349, "9 a\\c\\ember", kAsks, 0, Kept(Buffer{t.ember, t.buffer}), lstrlenA(olbGetFullPathEx(t.list, t.ember, t.buffer))),
    NUMBER(1350, "11", kAsks, 1, 0, olbGetItemData(t.list, 1)),
    NUMBER(1351, "11", kAsks, 0, t.b, olbGetItemDataEx(t.list, t.b)),
    NUMBER(1352, "18", kAsks, 1, 0, olbGetItemHeight(t.list, 1)),
    NUMBER(1353, "18", kAsks, 0, t.b, olbGetItemHeightEx(t.list, t.b)),
    NUMBER(1354, "1 (0,18)", kAsks, 2, &t.rect, olbGetItemRect(t.list, 2, &t.rect)),
    DOES(1355, "0 \\", kAsks, 0, t.buffer, olbGetPathSeparator(t.list, t.buffer)),
    NUMBER(1356, "1", kAsks, 1, 0, olbGetSel(t.list, 1)),
    NUMBER(1357, "1 [1,-5]", kAsksX, 3, t.rows, olbGetSelItems(t.list, 3, t.rows)),
    NUMBER(1358, "1 c", kAsks, 2, t.buffer, olbGetText(t.list, 2, t.buffer)),
    NUMBER(1359, "5 ember", kAsks, 0, Kept(Buffer{t.ember, t.buffer}), olbGetTextEx(t.list, t.ember, t.buffer)),
    NUMBER(1360, "1", kAsks, 2, 0, olbGetTextLength(t.list, 2)),
    NUMBER(1361, "5", kAsks, 0, t.ember, olbGetTextLengthEx(t.list, t.ember)),
    NUMBER(1362, "1", kAsks, 0, 0, olbGetTopIndex(t.list)),
    NUMBER(1363, "4", kAsks, 0, 0, olbGetVisibleCount(t.list)),
    NUMBER(1364, "3", kAsks, 0, t.d, olbHandleToIndex(t.d)),
    ITEM(1365, "d", kAsks, 3, 0, olbIndexToHandle(t.list, 3)),
    NUMBER(1366, "1", kChanges, 1, "new", olbInsertString(t.list, 1, "new")),
    ITEM(1367, "new", kChanges, 0, Kept(Insertion{t.a, 1, "new"}), olbInsertStringEx(t.list, t.a, 1, "new")),
    NUMBER(1368, "1", kChanges, 3, 0, olbLockItem(t.list, 3, FALSE)),
    NUMBER(1369, "0", kChanges, 1, t.b, olbLockItemEx(t.list, t.b, TRUE)),
    NUMBER(1370, "1", kChanges, 0, Kept(Rows{0, -1}), olbMoveChildren(t.list, 0, -1, 0)),
    ITEM(1371, "c", kChanges, 1, Kept(Items{t.a, nullptr}), olbMoveChildrenEx(t.list, t.a, nullptr, 1)),
    NUMBER(1372, "2", kChanges, 1, Kept(Rows{1, -1}), olbMoveItem(t.list, 1, -1, 1)),
    ITEM(1373, "b", kChanges, 0, Kept(Items{t.b, nullptr}), olbMoveItemEx(t.list, t.b, nullptr, 0)),
    DOES(1374, "0", kChanges, 2, 0, olbOpenItem(t.list, 2)),
    DOES(1375, "0", kChanges, 0, 0, olbOpenAll(t.list, 0)),
    NUMBER(1376, "0", kAsks, 0, 0, olbIsAutoOpen(t.list)),
    NUMBER(1377, "1", kAsks, 2, 0, olbHasChildren(t.list, 2)),
    NUMBER(1378, "1", kAsks, 0, t.c, olbHasChildrenEx(t.list, t.c)),
    NUMBER(1379, "1", kAsks, 2, 0, olbQueryLevel(t.list, 2)),
    NUMBER(1380, "2", kAsks, 0, t.ember, olbQueryLevelEx(t.list, t.ember)),
    NUMBER(1381, "1", kAsks, 3, 0, olbQueryLock(t.list, 3)),
    NUMBER(1382, "1", kAsks, 0, t.d, olbQueryLockEx(t.list, t.d)),
    NUMBER(1383, "0", kAsks, 3, 0, olbQueryOpen(t.list, 3)),
    NUMBER(1384, "1", kAsks, 0, t.a, olbQueryOpenEx(t.list, t.a)),
    NUMBER(1385, "0", kAsks, 2, 0, olbQueryParent(t.list, 2)),
    ITEM(1386, "c", kAsks, 0, t.ember, olbQueryParentEx(t.list, t.ember)),
    NUMBER(1387, "1", kAsks, 0, t.b, olbQueryVisible(t.list, t.b)),
    NUMBER(1388, "3", kChanges, 0, "d", olbSelectString(t.list, 0, "d")),
    NUMBER(1389, "0", kChanges, 1, 0, olbSetAutoOpen(t.list, TRUE)),
    NUMBER(1390, "-1", kChanges, 1, 4, olbSetBitmapIndex(t.list, 1, 4)),
    NUMBER(1391, "-1", kChanges, 9, t.b, olbSetBitmapIndexEx(t.list, t.b, 9)),
    NUMBER(1392, "0", kChanges, 1, OwnStrip(), Number(olbSetBitmaps(t.list, 1, OwnStrip()))),
    NUMBER(1393, "0", kChanges, OwnStrip(), t.b, Number(olbSetBitmapsEx(t.list, t.b, OwnStrip()))),
    NUMBER(1394, "1", kChanges, 3, 0, olbSetBorderStyle(t.list, 3)),
    NUMBER(1395, "0", kChanges, 2, 0, olbSetCurSel(t.list, 2)),
    NUMBER(1396, "0", kChanges, 1, 0, olbSetFullSelectRect(t.list, TRUE)),
    NUMBER(1397, "20", kChanges, 7, 0, olbSetIndent(t.list, 7)),
    NUMBER(1398, "0", kChanges, 2, 99, olbSetItemData(t.list, 2, 99)),
    NUMBER(1399, "0", kChanges, 98, t.c, olbSetItemDataEx(t.list, t.c, 98)),
    NUMBER(1400, "0", kChanges, 1, 30, olbSetItemHeight(t.list, 1, 30)),
    NUMBER(1401, "0", kChanges, 31, t.b, olbSetItemHeightEx(t.list, t.b, 31)),
    NUMBER(1402, "0", kChanges, 2, "new", olbSetItemText(t.list, 2, "new")),
    NUMBER(1403, "0", kChanges, 0, Kept(Text{t.c, "new"}), olbSetItemTextEx(t.list, t.c, "new")),
    DOES(1404, "0", kChanges, 1, RedStrip(), olbSetLevelBitmap(t.list, 1, RedStrip())),
    NUMBER(1405, "-1", kChanges, 1, 5, olbSetLevelIndex(t.list, 1, 5)),
    NUMBER(1406, "92", kChanges, '/', 0, olbSetPathSeparator(t.list, '/')),
    NUMBER(1407, "0", kAsks, 1, 0, olbSetProportionalScrollBars(t.list, TRUE)),
    NUMBER(1408, "0", kChangesX, 2, 1, olbSetSel(t.list, 2, TRUE)),
    NUMBER(1409, "0", kChanges, 0, 0, olbSetTopIndex(t.list, 0)),
    NUMBER(1410, "0", kChanges, 1, 0, olbShowLines(t.list, TRUE)),
    DOES(1064, "0", kChanges, 0, 0, olbCloseAll(t.list)),
};
// clang-format on

// An answer in words, with what was written to the caller's memory.
std::string InWords(const SmallTree& tree, const Case& thisCase, LRESULT answer) {
    if (thisCase.isItem && answer != 0 && answer != -1) {
        char text[256] = "";
        olbGetTextEx(tree.list, reinterpret_cast<HOLBITEM>(answer), text);
        return text;
    }
    std::string words = std::to_string(answer);
    if (tree.buffer[0] != '\0') {
        words += " " + std::string(tree.buffer);
    }
    if (tree.rows[0] != -5) {
        words += " [" + std::to_string(tree.rows[0]) + "," + std::to_string(tree.rows[1]) + "]";
    }
    if (tree.rect.bottom != 0) {
        words += " (" + std::to_string(tree.rect.left) + "," + std::to_string(tree.rect.top) + ")";
    }
    return words;
}

class HierListMessages : public testing::Test {
protected:
    vorn::test::HostWindow host;

    SmallTree Plant(DWORD style, int x) {
        return PlantTree(host.Create(VORN_HIERLIST_CLASS, style, x, 6, kOutlineWidth,
                                     kSmallTreeHeight, kOutlineId));
    }
};

TEST_F(HierListMessages, DoWhatTheFunctionsDo) {
    for (const Case& thisCase : kCases) {
        SCOPED_TRACE(thisCase.number);
        const bool several = thisCase.doing == kAsksX || thisCase.doing == kChangesX;
        const bool changes = thisCase.doing == kChanges || thisCase.doing == kChangesX;
        SmallTree sent = Plant(several ? LBS_EXTENDEDSEL : 0, 5);
        SmallTree called = Plant(several ? LBS_EXTENDEDSEL : 0, 300);
        const std::string before = StateOf(sent);
        const Pixels pictureBefore = PictureOf(sent);

        const std::string answer = InWords(sent, thisCase, thisCase.send(sent, thisCase.number));
        EXPECT_EQ(answer, InWords(called, thisCase, thisCase.call(called)));
        if (std::string(thisCase.answer) != "*") {
            EXPECT_EQ(answer, thisCase.answer);
        }
        EXPECT_EQ(StateOf(sent), StateOf(called));
        EXPECT_EQ(Difference(PictureOf(called), PictureOf(sent)), "");
        EXPECT_EQ(StateOf(sent) != before || !(PictureOf(sent) == pictureBefore), changes);
        DestroyWindow(sent.list);
        DestroyWindow(called.list);
    }
}

TEST_F(HierListMessages, AreAllInTheTable) {
    std::set<UINT> numbers;
    for (const Case& thisCase : kCases) {
        numbers.insert(thisCase.number);
    }
    for (UINT number = 1324; number <= 1410; ++number) {
        EXPECT_EQ(numbers.count(number), 1u) << number;
    }
    EXPECT_EQ(numbers.count(1064), 1u);
}

TEST_F(HierListMessages, KeepOptionsToThemselvesThatNothingShows) {
    const SmallTree tree = Plant(0, 5);
    EXPECT_EQ(SendMessageA(tree.list, 1407, 1, 0), 0);
    EXPECT_EQ(olbSetProportionalScrollBars(tree.list, FALSE), 1);
    EXPECT_EQ(SendMessageA(tree.list, 1389, 1, 0), 0);
    EXPECT_EQ(SendMessageA(tree.list, 1376, 0, 0), 1);
}

TEST_F(HierListMessages, WithoutTheirRecordAreErrors) {
    const SmallTree tree = Plant(0, 5);
    const std::string before = StateOf(tree);
    for (const UINT number : {1325, 1329, 1330, 1331, 1332, 1338, 1339, 1340, 1341, 1349, 1354,
                              1358, 1359, 1367, 1370, 1371, 1372, 1373, 1403}) {
        EXPECT_EQ(SendMessageA(tree.list, number, 0, 0), -1) << number;
    }
    EXPECT_EQ(StateOf(tree), before);
}

TEST_F(HierListMessages, AnswerLengthsInSixteenBits) {
    const SmallTree tree = Plant(0, 5);
    EXPECT_EQ(SendMessageA(tree.list, 1360, 77, 0), -1) << "an error stays one";
    olbSetItemText(tree.list, 1, std::string(60000, 'x').c_str());
    EXPECT_EQ(SendMessageA(tree.list, 1360, 1, 0), 60000);
}

// Around the block and between the list's two there are none.
TEST_F(HierListMessages, EndWhereTheyEnd) {
    const SmallTree tree = Plant(0, 5);
    const std::string before = StateOf(tree);
    for (const UINT number : {1024, 1060, 1063, 1065, 1073, 1183, 1184, 1323, 1411}) {
        EXPECT_EQ(SendMessageA(tree.list, number, 0, 0), 0) << number;
    }
    EXPECT_EQ(StateOf(tree), before);
}

// The system turns nothing in these messages into another alphabet.
TEST_F(HierListMessages, TakeTextsFromUnicodeHostsAsTheyAre) {
    const SmallTree tree = Plant(0, 5);
    EXPECT_EQ(SendMessageW(tree.list, 1326, 0, reinterpret_cast<LPARAM>("plain")), 4);
    EXPECT_EQ(SendMessageW(tree.list, LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(L"wide")), 5);
    char text[16] = "";
    EXPECT_EQ(olbGetText(tree.list, 4, text), 5);
    EXPECT_STREQ(text, "plain");
    EXPECT_EQ(olbGetText(tree.list, 5, text), 4);
    EXPECT_STREQ(text, "wide");
}

} // namespace
