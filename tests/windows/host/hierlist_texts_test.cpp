// What the items of outline lists hold: text, data, height, path; and searching for them.
#include "tests/windows/support/outline_list.h"

#include <cstring>
#include <string>

namespace {

using vorn::test::kRowHeight;
using vorn::test::Message;
using vorn::test::OutlineListTest;

class HierListTexts : public OutlineListTest {
protected:
    static std::string PathOf(HWND list, HOLBITEM item) {
        char path[256] = "before";
        EXPECT_EQ(olbGetFullPathEx(list, item, path), path);
        return path;
    }

    // Has the parent answer a height of 30 and 5 for each row that it is asked about.
    void AnswerHeights() {
        host.answer = [](const Message& received) -> std::optional<LRESULT> {
            if (received.message == WM_MEASUREITEM) {
                auto* question = reinterpret_cast<MEASUREITEMSTRUCT*>(received.lParam);
                question->itemHeight = 30 + 5 * question->itemID;
                return TRUE;
            }
            return std::nullopt;
        };
    }
};

TEST_F(HierListTexts, AreReadAndReplaced) {
    HWND list = Create();
    olbAddString(list, "first");
    olbAddString(list, "second");
    char text[64];
    EXPECT_EQ(olbGetText(list, 0, text), 5);
    EXPECT_STREQ(text, "first");
    HOLBITEM second = olbIndexToHandle(list, 1);
    EXPECT_EQ(olbGetTextEx(list, second, text), 6);
    EXPECT_STREQ(text, "second");
    EXPECT_EQ(olbGetTextLength(list, 0), 5);
    EXPECT_EQ(olbGetTextLengthEx(list, second), 6);
    EXPECT_EQ(olbSetItemText(list, 0, "much longer than it was before"), 0);
    EXPECT_EQ(olbSetItemTextEx(list, second, ""), 0);
    EXPECT_EQ(olbGetText(list, 0, text), 30);
    EXPECT_STREQ(text, "much longer than it was before");
    EXPECT_EQ(olbGetTextLength(list, 1), 0);
    EXPECT_EQ(olbSetItemText(list, 1, nullptr), 0) << "an empty text";
    EXPECT_EQ(olbSetItemText(list, 1, std::string(70000, 'x').c_str()), -1);
    EXPECT_EQ(olbGetTextLength(list, 1), 0) << "kept";
}

TEST_F(HierListTexts, AreErrorsForNoItem) {
    HWND list = Create();
    olbAddString(list, "first");
    char text[64] = "before";
    for (const LONG row : {-1, 1, 65535}) {
        EXPECT_EQ(olbGetText(list, row, text), -1);
        EXPECT_EQ(olbGetTextLength(list, row), -1);
        EXPECT_EQ(olbSetItemText(list, row, "x"), -1);
        EXPECT_EQ(olbGetItemData(list, row), -1);
        EXPECT_EQ(olbSetItemData(list, row, 1), -1);
    }
    for (HOLBITEM none : {HOLBITEM{nullptr}, OLB_NOITEM}) {
        EXPECT_EQ(olbGetTextEx(list, none, text), -1);
        EXPECT_EQ(olbGetTextLengthEx(list, none), -1);
        EXPECT_EQ(olbSetItemTextEx(list, none, "x"), -1);
        EXPECT_EQ(olbGetItemDataEx(list, none), -1);
        EXPECT_EQ(olbSetItemDataEx(list, none, 1), -1);
    }
    EXPECT_EQ(olbGetText(list, 0, nullptr), -1);
    EXPECT_STREQ(text, "before");
}

TEST_F(HierListTexts, AreValuesWithoutStrings) {
    HWND list = Create(LBS_OWNERDRAWFIXED);
    const auto* value = reinterpret_cast<LPCSTR>(0x12345678);
    EXPECT_EQ(olbAddString(list, value), 0);
    EXPECT_EQ(olbGetTextLength(list, 0), static_cast<LONG>(sizeof(ULONG_PTR)));
    ULONG_PTR read = 0;
    EXPECT_EQ(olbGetText(list, 0, reinterpret_cast<LPSTR>(&read)),
              static_cast<LONG>(sizeof(ULONG_PTR)));
    EXPECT_EQ(read, 0x12345678u);
    EXPECT_EQ(olbGetItemData(list, 0), 0x12345678);
    EXPECT_EQ(olbFindString(list, -1, -1, value, FALSE), 0);
    EXPECT_EQ(olbFindString(list, -1, -1, value + 1, FALSE), -1);
    EXPECT_EQ(olbSetItemText(list, 0, value + 1), 0);
    EXPECT_EQ(olbFindString(list, -1, -1, value + 1, TRUE), 0);
    EXPECT_EQ(olbAddFile(list, value), 1) << "a value, not a name";
}

TEST_F(HierListTexts, HaveDataBesideThem) {
    HWND list = Create();
    olbAddString(list, "first");
    EXPECT_EQ(olbGetItemData(list, 0), 0);
    EXPECT_EQ(olbSetItemData(list, 0, -5), 0);
    EXPECT_EQ(olbGetItemData(list, 0), -5);
    HOLBITEM first = olbIndexToHandle(list, 0);
    EXPECT_EQ(olbSetItemDataEx(list, first, 0x7FFFFFFF), 0);
    EXPECT_EQ(olbGetItemDataEx(list, first), 0x7FFFFFFF);
}

TEST_F(HierListTexts, HaveTheHeightOfAllRows) {
    HWND list = Create();
    olbAddString(list, "first");
    EXPECT_EQ(olbGetItemHeight(list, 0), kRowHeight);
    EXPECT_EQ(olbGetItemHeight(list, -1), kRowHeight);
    EXPECT_EQ(olbGetItemHeight(list, 9), kRowHeight) << "all rows have one height";
    EXPECT_EQ(olbGetItemHeightEx(list, OLB_NOITEM), kRowHeight);
    EXPECT_EQ(olbSetItemHeight(list, 0, 25), 0);
    EXPECT_EQ(olbGetItemHeight(list, -1), 25);
    EXPECT_EQ(olbSetItemHeightEx(list, nullptr, 31), 0);
    EXPECT_EQ(olbGetItemHeightEx(list, olbIndexToHandle(list, 0)), 31);
    RECT rect{};
    EXPECT_EQ(olbGetItemRect(list, 0, &rect), 1);
    EXPECT_EQ(rect.bottom, 31);
    EXPECT_EQ(olbSetItemHeight(list, -1, 0), 0);
    EXPECT_EQ(olbGetItemHeight(list, -1), 1) << "no row is lower than a pixel";
}

TEST_F(HierListTexts, HaveHeightsOfTheirOwn) {
    AnswerHeights();
    HWND list = Create(LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS);
    olbAddString(list, "first");
    olbAddString(list, "second");
    HOLBITEM second = olbIndexToHandle(list, 1);
    EXPECT_EQ(olbGetItemHeight(list, 0), 30);
    EXPECT_EQ(olbGetItemHeight(list, 1), 35);
    EXPECT_EQ(olbGetItemHeightEx(list, second), 35);
    EXPECT_EQ(olbGetItemHeight(list, -1), kRowHeight);
    EXPECT_EQ(olbGetItemHeightEx(list, nullptr), kRowHeight);
    EXPECT_EQ(olbGetItemHeightEx(list, OLB_NOITEM), kRowHeight);
    EXPECT_EQ(olbGetItemHeight(list, 2), -1);
    EXPECT_EQ(olbSetItemHeight(list, 2, 9), -1);
    EXPECT_EQ(olbSetItemHeight(list, 0, 12), 0);
    EXPECT_EQ(olbSetItemHeightEx(list, second, 13), 0);
    RECT rect{};
    EXPECT_EQ(olbGetItemRect(list, 1, &rect), 1);
    EXPECT_EQ(rect.top, 12);
    EXPECT_EQ(rect.bottom, 25);
    EXPECT_EQ(olbSetItemHeight(list, -1, 40), 0);
    EXPECT_EQ(olbGetItemHeight(list, 0), 12);
    host.answer = nullptr;
}

TEST_F(HierListTexts, FormPaths) {
    HWND list = Create();
    HOLBITEM root = olbAddChildStringEx(list, nullptr, "C:\\");
    HOLBITEM folder = olbAddChildStringEx(list, root, "WINDOWS");
    HOLBITEM file = olbAddChildStringEx(list, folder, "a.txt");
    EXPECT_EQ(PathOf(list, file), "C:\\WINDOWS\\a.txt") << "none doubled";
    EXPECT_EQ(PathOf(list, nullptr), "");
    EXPECT_EQ(PathOf(list, OLB_NOITEM), "");
    char path[256] = "before";
    EXPECT_EQ(olbGetFullPath(list, 0, path), path);
    EXPECT_STREQ(path, "C:\\");
    EXPECT_EQ(olbGetFullPath(list, 5, path), path);
    EXPECT_STREQ(path, "");
    EXPECT_EQ(olbGetFullPath(list, 0, nullptr), nullptr);

    char separator[3] = "??";
    olbGetPathSeparator(list, separator);
    EXPECT_STREQ(separator, "\\");
    EXPECT_EQ(olbSetPathSeparator(list, static_cast<char>(0xA6)), '\\');
    EXPECT_EQ(olbSetPathSeparator(list, '/'), 0xA6);
    olbGetPathSeparator(list, separator);
    EXPECT_STREQ(separator, "/");
    EXPECT_EQ(PathOf(list, file), "C:\\/WINDOWS/a.txt");
    olbGetPathSeparator(list, nullptr);
}

TEST_F(HierListTexts, FormPathsThatAreCut) {
    HWND list = Create();
    HOLBITEM item = nullptr;
    for (int level = 0; level < 100; ++level) {
        item = olbAddChildStringEx(list, item, "0123456789");
    }
    EXPECT_EQ(olbQueryLevelEx(list, item), 99);
    char path[300];
    std::memset(path, '?', sizeof path);
    olbGetFullPathEx(list, item, path);
    EXPECT_LE(std::strlen(path), 255u);
    EXPECT_EQ(path[256], '?') << "never beyond 256 characters";
}

TEST_F(HierListTexts, AreFoundAtTheTop) {
    HWND list = Create();
    for (const char* text : {"alpha", "beta", "Alpha", "alphabet", "beta"}) {
        olbAddString(list, text);
    }
    EXPECT_EQ(olbFindString(list, -1, -1, "alpha", FALSE), 0);
    EXPECT_EQ(olbFindString(list, -1, 0, "alpha", FALSE), 3) << "case counts";
    EXPECT_EQ(olbFindString(list, -1, 3, "alpha", FALSE), 0) << "round";
    EXPECT_EQ(olbFindString(list, -1, 0, "alpha", TRUE), 0) << "the whole text, round";
    EXPECT_EQ(olbFindString(list, -1, -1, "alph", TRUE), -1);
    EXPECT_EQ(olbFindString(list, -1, 1, "beta", TRUE), 4);
    EXPECT_EQ(olbFindString(list, -1, 4, "beta", TRUE), 1);
    EXPECT_EQ(olbFindString(list, -1, 99, "beta", TRUE), 1);
    EXPECT_EQ(olbFindString(list, -1, -1, "gamma", FALSE), -1);
    EXPECT_EQ(olbFindString(list, 77, -1, "beta", FALSE), -1) << "no such parent";
    EXPECT_EQ(olbFindStringEx(list, nullptr, 1, "beta", TRUE), olbIndexToHandle(list, 4));
    EXPECT_EQ(olbFindStringEx(list, nullptr, 1, "gamma", TRUE), OLB_NOITEM);
    EXPECT_EQ(olbFindStringEx(list, OLB_NOITEM, 1, "beta", TRUE), OLB_NOITEM);
}

TEST_F(HierListTexts, AreFoundAmongTheChildrenOfClosedItems) {
    HWND list = Create();
    HOLBITEM parent = olbAddChildStringEx(list, nullptr, "parent");
    HOLBITEM one = olbAddChildStringEx(list, parent, "child one");
    HOLBITEM two = olbAddChildStringEx(list, parent, "child two");
    EXPECT_EQ(olbFindStringEx(list, parent, -1, "child", FALSE), one);
    EXPECT_EQ(olbFindStringEx(list, parent, 0, "child", FALSE), two);
    EXPECT_EQ(olbFindStringEx(list, parent, 1, "child", FALSE), one);
    EXPECT_EQ(olbFindString(list, 0, 0, "child", FALSE), 1) << "its position";
    EXPECT_EQ(olbFindStringEx(list, one, -1, "child", FALSE), OLB_NOITEM) << "no children";
    olbOpenItem(list, 0);
    EXPECT_EQ(olbFindStringEx(list, parent, -1, "child", FALSE), OLB_NOITEM) << "open";
}

// Rows that were never measured are as high as the others.
TEST_F(HierListTexts, UnmeasuredRowsHaveTheHeightOfAllRows) {
    HWND list = Create();
    AddRows(list, 1);
    olbSetOwnerDraw(list, 2);
    EXPECT_EQ(olbGetItemHeight(list, 0), kRowHeight);
}

// A list box's search is among the items at the top, whatever is open.
TEST_F(HierListTexts, AreFoundAtTheTopPastOpenItems) {
    HWND list = Create();
    for (const char* text : {"p", "q", "r"}) {
        olbAddString(list, text);
    }
    olbAddChildString(list, 0, "q below");
    olbOpenItem(list, 0); // rows: p, q below, q, r
    const auto find = [list](WPARAM start, const char* text) {
        return SendMessageA(list, LB_FINDSTRING, start, reinterpret_cast<LPARAM>(text));
    };
    EXPECT_EQ(find(0, "q"), 2);
    EXPECT_EQ(find(1, "q"), 2) << "behind the item at the top that row 1 is below";
    EXPECT_EQ(find(2, "q"), 2) << "the last that is looked at";
    EXPECT_EQ(find(3, "p"), 0) << "round the end";
    EXPECT_EQ(find(static_cast<WPARAM>(-1), "r"), 3);
    EXPECT_EQ(find(99, "p"), 0) << "from the first";
    EXPECT_EQ(SendMessageA(list, LB_FINDSTRINGEXACT, 0, reinterpret_cast<LPARAM>("q below")), -1);
}

} // namespace
