// The order of a sorted list is that of lstrcmpA, whatever the texts are made of.
#include "tests/windows/support/outline_list.h"

#include <array>
#include <random>

namespace {

using vorn::test::OutlineListTest;

class HierListOrder : public OutlineListTest {
protected:
    static std::string TextOf(HWND list, LONG row) {
        std::array<char, 700> text{};
        olbGetText(list, row, text.data());
        return text.data();
    }

    // Each text stands behind all that lstrcmpA has in front of it.
    static void ExpectInOrder(HWND list) {
        const LONG count = olbGetCount(list);
        for (LONG row = 1; row < count; ++row) {
            const std::string before = TextOf(list, row - 1);
            const std::string text = TextOf(list, row);
            EXPECT_LE(lstrcmpA(before.c_str(), text.c_str()), 0) << before << " / " << text;
        }
    }
};

// Letters of both cases and with accents, digits, what sorting by word skips, and what it does not.
std::string AnyText(std::mt19937& random) {
    static const std::string characters = "aAbBzZ\xe4\xc4\xe9\xdf\xf8-'._ \t19!\x80\x01";
    std::string text;
    for (std::uint32_t left = random() % 7; left > 0; --left) {
        text += characters[random() % characters.size()];
    }
    return text;
}

TEST_F(HierListOrder, IsThatOfTheSystem) {
    for (std::uint32_t seed = 1; seed <= 4; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        HWND list = Create(LBS_SORT);
        SendMessageA(list, WM_SETREDRAW, FALSE, 0);
        for (int i = 0; i < 700; ++i) {
            olbAddString(list, AnyText(random).c_str());
        }
        ExpectInOrder(list);
        DestroyWindow(list);
    }
}

// Equal texts stand in the order in which they came.
TEST_F(HierListOrder, KeepsEqualTextsAsTheyCame) {
    HWND list = Create(LBS_SORT);
    for (LONG i = 0; i < 5; ++i) {
        const LONG row = olbAddString(list, "same");
        EXPECT_EQ(row, i);
        olbSetItemData(list, row, i);
        olbAddString(list, "tame");
    }
    for (LONG i = 0; i < 5; ++i) {
        EXPECT_EQ(olbGetItemData(list, i), i);
    }
}

// Long texts, ones that were set later and inserted ones are compared as they are.
TEST_F(HierListOrder, HoldsForTextsOfEveryOrigin) {
    HWND list = Create(LBS_SORT);
    const std::string length(600, 'm');
    for (const char* text : {"p", "b", "z"}) {
        olbAddString(list, text);
        olbAddString(list, (text + length).c_str());
    }
    olbSetItemText(list, 5, "zz, longer than it was");
    olbAddString(list, "zz");
    olbSetItemText(list, 0, "a");
    olbAddString(list, "aa");
    olbInsertString(list, 3, "");
    olbDeleteString(list, 3);
    olbAddString(list, "pa");
    ExpectInOrder(list);
    EXPECT_EQ(olbGetCount(list), 9);
}

// What another locale orders otherwise is asked of the system each time.
TEST_F(HierListOrder, GoesByTheThreadsLocale) {
    HWND list = Create(LBS_SORT);
    const LCID before = GetThreadLocale();
    SetThreadLocale(MAKELCID(MAKELANGID(LANG_SWEDISH, SUBLANG_DEFAULT), SORT_DEFAULT));
    for (const char* text : {"z", "a", "\xe4"}) {
        olbAddString(list, text);
    }
    ExpectInOrder(list);
    olbResetContent(list);
    SetThreadLocale(MAKELCID(MAKELANGID(LANG_ENGLISH, SUBLANG_ENGLISH_US), SORT_DEFAULT));
    for (const char* text : {"z", "a", "\xe4"}) {
        olbAddString(list, text);
    }
    ExpectInOrder(list);
    SetThreadLocale(before);
}

} // namespace
