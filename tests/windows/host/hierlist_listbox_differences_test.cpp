// Where the outline list is meant to differ from the system's list box: each difference with its
// reason, what the list box does and what the outline list does.
#include "tests/windows/support/same_list.h"

namespace {

using vorn::test::HoldListSession;
using vorn::test::ListSession;
using vorn::test::Outcome;

enum class About : std::uint8_t { Answer, View };

// The last step of the script is what differs.
struct Difference {
    const char* reason;
    DWORD style;
    About about;
    void (*script)(ListSession&);
    const char* theirs;
    const char* ours;
};

// Rows 0 to 6, of which 0 to 4 are in view.
void Fill(ListSession& session) {
    session.Fill({L"pear", L"apple", L"quince", L"fig", L"banana", L"medlar", L"sloe"});
}

#define KEY(name) #name, name

const Difference kAnswers[] = {
    {"upper and lower case differ", 0, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.SendText(MESSAGE(LB_FINDSTRING), -1, L"AP");
     },
     "1", "-1"},
    {"upper and lower case differ", 0, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.SendText(MESSAGE(LB_FINDSTRINGEXACT), -1, L"FIG");
     },
     "3", "-1"},
    {"upper and lower case differ", 0, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.SendText(MESSAGE(LB_SELECTSTRING), -1, L"FIG");
     },
     "3", "-1"},
    {"every text begins with no text", 0, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.SendText(MESSAGE(LB_FINDSTRING), -1, L"");
     },
     "-1", "0"},
    {"deleting answers the row, not what is left", 0, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Send(MESSAGE(LB_DELETESTRING), 3);
     },
     "6", "3"},
    {"setting answers 0, or what was before", 0, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Send(MESSAGE(LB_SETITEMDATA), 3, 4711);
     },
     "1", "0"},
    {"setting answers 0, or what was before", 0, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Send(MESSAGE(LB_SETCURSEL), 3);
     },
     "3", "0"},
    {"setting answers 0, or what was before", 0, About::Answer,
     [](ListSession& list) {
         list.Do(MESSAGE(LB_SETHORIZONTALEXTENT), 500);
         list.Send(MESSAGE(LB_SETHORIZONTALEXTENT), 300);
     },
     "0", "500"},
    {"setting answers 0, or what was before", 0, About::Answer,
     [](ListSession& list) {
         list.Do(MESSAGE(LB_SETCOLUMNWIDTH), 50);
         list.Send(MESSAGE(LB_SETCOLUMNWIDTH), 60);
     },
     "0", "50"},
    {"a row behind the last is the end", 0, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.SendText(MESSAGE(LB_INSERTSTRING), 99, L"cherry");
     },
     "-1", "7"},
    {"a row that there is not is an error", 0, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Send(MESSAGE(LB_SETTOPINDEX), 99);
     },
     "0", "-1"},
    {"a row that there is not is an error", 0, About::Answer,
     [](ListSession& list) {
         Fill(list);
         RECT rect{};
         list.Note("LB_GETITEMRECT -1",
                   SendMessageW(list.list(), LB_GETITEMRECT, static_cast<WPARAM>(-1),
                                reinterpret_cast<LPARAM>(&rect)));
     },
     "0", "-1"},
    {"LB_SETSEL is for lists that select several", 0, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Send(MESSAGE(LB_SETSEL), TRUE, 3);
     },
     "0", "-1"},
    {"LB_GETCURSEL is for lists that select one", LBS_MULTIPLESEL, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Send(MESSAGE(LB_GETCURSEL));
     },
     "0", "-1"},
    {"LB_GETCURSEL is for lists that select one", LBS_EXTENDEDSEL, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Send(MESSAGE(LB_GETCURSEL));
     },
     "0", "-1"},
    {"the selected row is the anchor", 0, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Do(MESSAGE(LB_SETCURSEL), 3);
         list.Send(MESSAGE(LB_GETANCHORINDEX));
     },
     "-1", "3"},
    {"row -1 stands for the height of all rows", LBS_OWNERDRAWVARIABLE, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Send(MESSAGE(LB_SETITEMHEIGHT), static_cast<WPARAM>(-1), 30);
     },
     "-1", "0"},
    {"row -1 stands for the height of all rows", LBS_OWNERDRAWVARIABLE, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Do(MESSAGE(LB_SETITEMHEIGHT), static_cast<WPARAM>(-1), 30);
         list.Send(MESSAGE(LB_GETITEMHEIGHT), static_cast<WPARAM>(-1));
     },
     "-1", "30"},
    {"an item without text keeps its value beside its data", LBS_OWNERDRAWFIXED, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Do(MESSAGE(LB_SETITEMDATA), 3, 4711);
         list.SendText(MESSAGE(LB_FINDSTRING), -1, L"f");
     },
     "-1", "3"},
    {"an item stands behind those it equals", LBS_OWNERDRAWFIXED | LBS_SORT, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.SendText(MESSAGE(LB_ADDSTRING), 0, L"apricot"); // a value like that of row 0
     },
     "0", "1"},
    {"WM_DELETEITEM tells of items without text only", 0, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Do(MESSAGE(LB_SETITEMDATA), 3, 4711);
         list.Send(MESSAGE(LB_DELETESTRING), 3);
     },
     "6, deleted 2 77 3 4711", "3"},
    {"WM_DELETEITEM tells of items without text only", LBS_OWNERDRAWFIXED | LBS_HASSTRINGS,
     About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Send(MESSAGE(LB_DELETESTRING), 3);
     },
     "6, deleted 2 77 3 0", "3"},
    {"WM_DELETEITEM has the item's data, which is not its value", LBS_OWNERDRAWFIXED, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Send(MESSAGE(LB_DELETESTRING), 3);
     },
     "6, deleted 2 77 3 102", "3, deleted 2 77 3 0"},
    {"items that go together go in order and have no rows any more", LBS_OWNERDRAWFIXED,
     About::Answer,
     [](ListSession& list) {
         list.Fill({L"a", L"b"});
         list.Do(MESSAGE(LB_SETITEMDATA), 0, 11);
         list.Do(MESSAGE(LB_SETITEMDATA), 1, 12);
         list.Send(MESSAGE(LB_RESETCONTENT));
     },
     "0, deleted 2 77 1 12, deleted 2 77 0 11",
     "0, deleted 2 77 4294967295 11, deleted 2 77 4294967295 12"},
    {"there is no function for it", 0, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Send(MESSAGE(LB_ITEMFROMPOINT), 0, MAKELPARAM(5, 25));
     },
     "1", "-1"},
    {"there is no function for it", 0, About::Answer,
     [](ListSession& list) { list.Send(MESSAGE(LB_GETLISTBOXINFO)); }, "5", "-1"},
    {"there is no function for it", 0, About::Answer,
     [](ListSession& list) {
         list.Do(MESSAGE(LB_SETLOCALE), 0x0407);
         list.Send(MESSAGE(LB_GETLOCALE));
     },
     "1031", "-1"},
    {"there is no function for it", 0, About::Answer,
     [](ListSession& list) {
         const LRESULT answer = SendMessageW(list.list(), LB_INITSTORAGE, 100, 1000);
         list.Note("LB_INITSTORAGE made room", answer > 0 ? 1 : answer);
     },
     "1", "-1"},
};

const Difference kViews[] = {
    {"an empty list has no caret", 0, About::Answer,
     [](ListSession& list) { list.Send(MESSAGE(LB_GETCARETINDEX)); }, "0", "-1"},
    {"the caret stays with its item", 0, About::View,
     [](ListSession& list) {
         Fill(list);
         list.SendText(MESSAGE(LB_INSERTSTRING), 0, L"cherry");
     },
     "selected, caret 0, top 0", "selected, caret 1, top 0"},
    {"the caret stays with its item", 0, About::View,
     [](ListSession& list) {
         Fill(list);
         list.Do(MESSAGE(LB_SETCARETINDEX), 3);
         list.Do(MESSAGE(LB_DELETESTRING), 1);
     },
     "selected, caret 3, top 0", "selected, caret 2, top 0"},
    {"LB_SELECTSTRING selects like a click", LBS_MULTIPLESEL, About::View,
     [](ListSession& list) {
         Fill(list);
         list.Do(MESSAGE(LB_SETSEL), TRUE, 3);
         list.SendText(MESSAGE(LB_SELECTSTRING), -1, L"fig");
     },
     "selected 3, caret 3, top 0", "selected, caret 3, top 0"},
    {"LB_SELECTSTRING selects like a click", LBS_EXTENDEDSEL, About::View,
     [](ListSession& list) {
         Fill(list);
         list.Do(MESSAGE(LB_SETSEL), TRUE, 1);
         list.SendText(MESSAGE(LB_SELECTSTRING), -1, L"fig");
     },
     "selected 1 2 3, caret 3, top 0", "selected 3, caret 3, top 0"},
    {"the caret need not be on the selected row", 0, About::View,
     [](ListSession& list) {
         Fill(list);
         list.Do(MESSAGE(LB_SETCURSEL), 2);
         list.Do(MESSAGE(LB_SETCARETINDEX), 3);
     },
     "selected 2, caret 2, top 0", "selected 2, caret 3, top 0"},
};

const Difference kInput[] = {
    {"a key goes from the caret, selected or not", 0, About::View,
     [](ListSession& list) {
         Fill(list);
         list.Key(KEY(VK_DOWN));
     },
     "selected 0, caret 0, top 0", "selected 1, caret 1, top 0"},
    {"Left and Right are for columns", 0, About::View,
     [](ListSession& list) {
         Fill(list);
         list.Key(KEY(VK_HOME));
         list.Key(KEY(VK_RIGHT));
     },
     "selected 1, caret 1, top 0", "selected 0, caret 0, top 0"},
    {"Left and Right are for columns", 0, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Key(KEY(VK_HOME));
         list.Key(KEY(VK_LEFT));
     },
     ", notified 1", ""},
    {"Page Down scrolls first", 0, About::View,
     [](ListSession& list) {
         Fill(list);
         list.Key(KEY(VK_HOME));
         list.Key(KEY(VK_NEXT));
     },
     "selected 4, caret 4, top 0", "selected 2, caret 2, top 2"},
    {"what selects nothing notifies nothing", LBS_MULTIPLESEL, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Key(KEY(VK_DOWN));
     },
     ", notified 1", ""},
    {"what selects nothing notifies nothing", LBS_MULTIPLESEL, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Click(4);
         list.Click(4);
     },
     ", notified 1", ""},
    {"what selects nothing notifies nothing", LBS_EXTENDEDSEL, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Click(4);
         list.Click(4);
     },
     ", notified 1", ""},
    {"what selects nothing notifies nothing", LBS_EXTENDEDSEL, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Key(KEY(VK_HOME));
         list.Key(KEY(VK_DOWN), MK_SHIFT);
         list.Key(KEY(VK_UP), MK_SHIFT);
     },
     ", notified 1", ""},
    {"what selects nothing notifies nothing", LBS_EXTENDEDSEL, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Key(KEY(VK_HOME));
         list.Key(KEY(VK_SPACE));
     },
     ", notified 1", ""},
    {"Space selects like a click", LBS_MULTIPLESEL, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Key(KEY(VK_SPACE));
     },
     "", ", notified 1"},
    {"with both styles arrows move the caret only", LBS_MULTIPLESEL | LBS_EXTENDEDSEL, About::View,
     [](ListSession& list) {
         Fill(list);
         list.Key(KEY(VK_DOWN));
     },
     "selected 1, caret 1, top 0", "selected, caret 1, top 0"},
    {"the first Shift selects just its row", LBS_EXTENDEDSEL, About::View,
     [](ListSession& list) {
         Fill(list);
         list.Click(4);
         list.Click(2, MK_SHIFT);
     },
     "selected 2 3 4, caret 2, top 0", "selected 2 4, caret 2, top 0"},
    {"a double click's second press selects like a click", 0, About::Answer,
     [](ListSession& list) {
         Fill(list);
         list.Click(2);
         list.DoubleClick(2);
     },
     ", notified 2", ", notified 1, notified 2"},
    {"a double click's second press selects like a click", LBS_MULTIPLESEL, About::View,
     [](ListSession& list) {
         Fill(list);
         list.Click(2);
         list.DoubleClick(2);
     },
     "selected 2, caret 2, top 0", "selected, caret 2, top 0"},
    {"typing selects like a click", LBS_MULTIPLESEL, About::View,
     [](ListSession& list) {
         Fill(list);
         list.Type(L'f');
     },
     "selected, caret 3, top 0", "selected 3, caret 3, top 0"},
    {"typing selects like a click", LBS_EXTENDEDSEL, About::View,
     [](ListSession& list) {
         Fill(list);
         list.Type(L'f');
     },
     "selected, caret 3, top 0", "selected 3, caret 3, top 0"},
    {"upper and lower case differ", 0, About::View,
     [](ListSession& list) {
         Fill(list);
         list.Type(L'F');
     },
     "selected 3, caret 3, top 0", "selected, caret 0, top 0"},
};

template <std::size_t count>
void ExpectAll(const Difference (&differences)[count]) {
    for (const Difference& difference : differences) {
        const auto theirs = HoldListSession("LISTBOX", difference.style, difference.script);
        const auto ours = HoldListSession(VORN_HIERLIST_CLASS, difference.style, difference.script);
        SCOPED_TRACE(testing::Message() << difference.reason << ", style " << std::hex
                                        << difference.style << ", " << ours.back().step);
        const auto about = difference.about == About::Answer ? &Outcome::answer : &Outcome::view;
        EXPECT_EQ(theirs.back().*about, difference.theirs);
        EXPECT_EQ(ours.back().*about, difference.ours);
    }
}

TEST(HierListListBoxDifferences, OfAnswers) {
    ExpectAll(kAnswers);
}

TEST(HierListListBoxDifferences, OfSelectionAndCaret) {
    ExpectAll(kViews);
}

TEST(HierListListBoxDifferences, OfKeysAndMouse) {
    ExpectAll(kInput);
}

TEST(HierListListBoxDifferences, TabStopsNeedNoStyle) {
    const int stop = 40;
    const auto set = [&](const char* className) {
        ListSession session(className, LBS_NOINTEGRALHEIGHT);
        return SendMessageW(session.list(), LB_SETTABSTOPS, 1, reinterpret_cast<LPARAM>(&stop));
    };
    EXPECT_EQ(set("LISTBOX"), FALSE);
    EXPECT_EQ(set(VORN_HIERLIST_CLASS), TRUE);
}

// A message of the list box without a counterpart is no message of the system's default handling
// either: all of them are refused.
TEST(HierListListBoxDifferences, WhatHasNoFunctionIsRefused) {
    ListSession session(VORN_HIERLIST_CLASS, 0);
    for (const UINT message :
         {UINT{LB_FINDSTRINGEXACT} + 1, UINT{LB_FINDSTRINGEXACT} + 2, UINT{LB_SETLOCALE},
          UINT{LB_GETLOCALE}, UINT{LB_SETCOUNT}, UINT{LB_INITSTORAGE}, UINT{LB_ITEMFROMPOINT},
          UINT{LB_GETLISTBOXINFO}}) {
        EXPECT_EQ(SendMessageW(session.list(), message, 0, 0), LB_ERR) << message;
    }
}

} // namespace
