// The outline list beside the system's list box: the same keys and clicks must lead to the same.
#include "tests/windows/support/same_list.h"

namespace {

using vorn::test::ExpectTheSame;
using vorn::test::kSelectionStyles;
using vorn::test::ListSession;
using vorn::test::Outcome;

void Fill(ListSession& session) {
    session.Fill({L"pear", L"apple", L"quince", L"fig", L"banana", L"medlar", L"sloe"});
}

#define KEY(name) #name, name

// From where nothing is selected to where something is, and without the keys that mean something
// else in an outline list.
TEST(HierListListBoxInput, FollowsTheKeys) {
    for (const DWORD style : {DWORD{0}, DWORD{LBS_EXTENDEDSEL}}) {
        ExpectTheSame(style, [](ListSession& session) {
            Fill(session);
            session.TakeFocus(true);
            session.Key(KEY(VK_HOME));
            session.Key(KEY(VK_DOWN));
            session.Key(KEY(VK_DOWN));
            session.Key(KEY(VK_UP));
            session.Key(KEY(VK_END));
            session.Key(KEY(VK_UP));
            session.Key(KEY(VK_HOME));
            session.Key(KEY(VK_DOWN), MK_SHIFT);
            session.Key(KEY(VK_DOWN), MK_SHIFT);
            session.Key(KEY(VK_DOWN), MK_SHIFT);
            session.Key(KEY(VK_END));
            session.Key(KEY(VK_HOME));
            session.TakeFocus(false);
        });
    }
}

TEST(HierListListBoxInput, FollowsTheMouse) {
    for (const DWORD style : kSelectionStyles) {
        const std::vector<Outcome> theirs = ExpectTheSame(style, [](ListSession& session) {
            Fill(session);
            session.Click(2);
            session.Click(4);
            session.Click(1, MK_CONTROL);
            session.Click(3, MK_CONTROL);
            session.Click(0);
            session.TakeFocus(false);
        });
        EXPECT_EQ(theirs[1].answer, ", notified 4, notified 1") << style;
    }
}

TEST(HierListListBoxInput, ClicksAgainOnTheOnlyRow) {
    ExpectTheSame(0, [](ListSession& session) {
        Fill(session);
        session.Click(2);
        session.Click(2);
        session.Click(2, MK_CONTROL);
        session.Click(4, MK_SHIFT);
    });
}

TEST(HierListListBoxInput, TypesAhead) {
    ExpectTheSame(0, [](ListSession& session) {
        Fill(session);
        session.TakeFocus(true);
        for (const wchar_t letter : {L'f', L'a', L'a', L'x', L's', L'p'}) {
            session.Type(letter);
        }
    });
}

TEST(HierListListBoxInput, SaysNothingUnasked) {
    for (const DWORD style : kSelectionStyles) {
        const std::vector<Outcome> theirs = ExpectTheSame(style, [](ListSession& session) {
            Fill(session);
            session.Do(MESSAGE(LB_SETCARETINDEX), 3);
            session.Do(MESSAGE(LB_SETCURSEL), 2);
            session.Do(MESSAGE(LB_SELITEMRANGE), TRUE, MAKELPARAM(1, 4));
            session.Do(MESSAGE(LB_SETTOPINDEX), 2);
            session.TakeFocus(true);
            session.TakeFocus(false);
        });
        EXPECT_EQ(theirs[1].answer, "") << style;
        EXPECT_EQ(theirs[5].answer, ", notified 4") << style;
        EXPECT_EQ(theirs[6].answer, ", notified 5") << style;
    }
}

} // namespace
