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

TEST(HierListListBoxInput, FollowsTheKeys) {
    for (const DWORD style : kSelectionStyles) {
        ExpectTheSame(style, [](ListSession& session) {
            Fill(session);
            session.TakeFocus(true);
            session.Key(KEY(VK_DOWN));
            session.Key(KEY(VK_DOWN));
            session.Key(KEY(VK_UP));
            session.Key(KEY(VK_SPACE));
            session.Key(KEY(VK_END));
            session.Key(KEY(VK_UP));
            session.Key(KEY(VK_HOME));
            session.Key(KEY(VK_LEFT));
            session.Key(KEY(VK_RIGHT));
            session.Key(KEY(VK_DOWN), MK_SHIFT);
            session.Key(KEY(VK_DOWN), MK_SHIFT);
            session.Key(KEY(VK_UP), MK_SHIFT);
            session.Key(KEY(VK_END));
            session.Key(KEY(VK_HOME));
            session.Key(KEY(VK_NEXT));
            session.Key(KEY(VK_PRIOR));
            session.TakeFocus(false);
        });
    }
}

TEST(HierListListBoxInput, FollowsTheMouse) {
    for (const DWORD style : kSelectionStyles) {
        ExpectTheSame(style, [](ListSession& session) {
            Fill(session);
            session.Click(2);
            session.Click(4);
            session.Click(4);
            session.Click(1, MK_CONTROL);
            session.Click(3, MK_CONTROL);
            session.Click(1, MK_SHIFT);
            session.Click(4, MK_SHIFT);
            session.Click(0);
            session.DoubleClick(2);
            session.TakeFocus(false);
        });
    }
}

TEST(HierListListBoxInput, TypesAhead) {
    for (const DWORD style : kSelectionStyles) {
        ExpectTheSame(style, [](ListSession& session) {
            Fill(session);
            session.TakeFocus(true);
            session.Type(L'f');
            session.Type(L'a');
            session.Type(L'a');
            session.Type(L'x');
            session.Type(L's');
        });
    }
}

} // namespace
