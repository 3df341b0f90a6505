// The outline list beside the system's list box: the same messages must lead to the same.
#include "tests/windows/support/same_list.h"

#include <random>

namespace {

using vorn::test::AllListStyles;
using vorn::test::ExpectTheSame;
using vorn::test::ListSession;

// More than fit into the view; no two begin with the same letter, which is all that is left of them
// in a list without texts.
void Fill(ListSession& session) {
    session.Fill({L"pear", L"apple", L"quince", L"fig", L"banana", L"medlar", L"\u00e9toile"});
}

constexpr int kRows[] = {-2, -1, 0, 1, 3, 6, 7, 99};

bool SelectsSeveral(DWORD style) {
    return (style & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0;
}

bool IsVariable(DWORD style) {
    return (style & LBS_OWNERDRAWVARIABLE) != 0;
}

TEST(HierListListBox, AnswersWhatItHolds) {
    for (const DWORD style : AllListStyles()) {
        ExpectTheSame(style, [](ListSession& session) {
            Fill(session);
            session.Send(MESSAGE(LB_GETCOUNT));
            for (const int row : kRows) {
                session.SendForText(MESSAGE(LB_GETTEXT), row);
                session.Send(MESSAGE(LB_GETTEXTLEN), static_cast<WPARAM>(row));
                session.Send(MESSAGE(LB_GETITEMDATA), static_cast<WPARAM>(row));
                session.Send(MESSAGE(LB_GETSEL), static_cast<WPARAM>(row));
                session.Do(MESSAGE(LB_SETITEMDATA), static_cast<WPARAM>(row), 700 + row);
                session.Send(MESSAGE(LB_GETITEMDATA), static_cast<WPARAM>(row));
            }
            for (const int row : {-2, -1, 7, 99}) {
                session.Send(MESSAGE(LB_SETITEMDATA), static_cast<WPARAM>(row), 1);
                session.Send(MESSAGE(LB_DELETESTRING), static_cast<WPARAM>(row));
            }
        });
    }
}

TEST(HierListListBox, IsEmptyLikeIt) {
    for (const DWORD style : AllListStyles()) {
        ExpectTheSame(style, [style](ListSession& session) {
            const auto ask = [&] {
                for (const int row : kRows) {
                    session.SendForText(MESSAGE(LB_GETTEXT), row);
                    session.Send(MESSAGE(LB_GETTEXTLEN), static_cast<WPARAM>(row));
                    session.Send(MESSAGE(LB_GETITEMDATA), static_cast<WPARAM>(row));
                    session.Send(MESSAGE(LB_SETITEMDATA), static_cast<WPARAM>(row), 1);
                    session.Send(MESSAGE(LB_GETSEL), static_cast<WPARAM>(row));
                    session.Send(MESSAGE(LB_SETCURSEL), static_cast<WPARAM>(row));
                    session.Send(MESSAGE(LB_SETANCHORINDEX), static_cast<WPARAM>(row));
                    session.Send(MESSAGE(LB_DELETESTRING), static_cast<WPARAM>(row));
                    session.SendText(MESSAGE(LB_FINDSTRING), row < 0 ? -1 : row, L"pear");
                    session.SendText(MESSAGE(LB_FINDSTRINGEXACT), row < 0 ? -1 : row, L"pear");
                    session.SendText(MESSAGE(LB_SELECTSTRING), row < 0 ? -1 : row, L"pear");
                }
                session.Send(MESSAGE(LB_GETCOUNT));
                session.Send(MESSAGE(LB_GETTOPINDEX));
                session.Send(MESSAGE(LB_SETTOPINDEX), 0);
                session.Send(MESSAGE(LB_GETANCHORINDEX));
                session.Send(MESSAGE(LB_GETSELCOUNT));
                session.SendForRows(MESSAGE(LB_GETSELITEMS), 10);
                if (SelectsSeveral(style)) {
                    session.Send(MESSAGE(LB_SETSEL), TRUE, -1);
                    session.Send(MESSAGE(LB_SETSEL), TRUE, 0);
                    session.Send(MESSAGE(LB_SELITEMRANGE), TRUE, MAKELPARAM(0, 3));
                }
                if (!IsVariable(style)) {
                    session.SendForRect(MESSAGE(LB_GETITEMRECT), 0);
                    session.Send(MESSAGE(LB_GETITEMHEIGHT));
                }
            };
            session.WithoutCaret(ask); // an empty outline list has none
            Fill(session);
            if ((style & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) == 0) {
                session.WithoutCaret([&] {
                    session.Do(MESSAGE(LB_RESETCONTENT));
                    ask();
                });
            }
        });
    }
}

TEST(HierListListBox, FindsWhatItFinds) {
    for (const DWORD style : AllListStyles()) {
        ExpectTheSame(style, [](ListSession& session) {
            Fill(session);
            for (const int start : {-1, 0, 1, 3, 6, 7, 99}) {
                for (const wchar_t* text : {L"fig", L"pear", L"\u00e9toile", L"none"}) {
                    session.SendText(MESSAGE(LB_FINDSTRING), start, text);
                    session.SendText(MESSAGE(LB_FINDSTRINGEXACT), start, text);
                }
            }
        });
        if ((style & (LBS_OWNERDRAWFIXED | LBS_OWNERDRAWVARIABLE)) == 0 ||
            (style & LBS_HASSTRINGS) != 0) {
            ExpectTheSame(style, [](ListSession& session) {
                session.Fill({L"apple", L"apricot", L"ape", L"apricots", L"bap"});
                for (const int start : {-1, 0, 2, 4, 5}) {
                    for (const wchar_t* text : {L"a", L"ap", L"apri", L"apricot", L"b", L"bapt"}) {
                        session.SendText(MESSAGE(LB_FINDSTRING), start, text);
                        session.SendText(MESSAGE(LB_FINDSTRINGEXACT), start, text);
                    }
                }
            });
        }
    }
}

TEST(HierListListBox, SelectsOneAsItDoes) {
    for (const DWORD style : AllListStyles()) {
        if (SelectsSeveral(style)) {
            continue;
        }
        ExpectTheSame(style, [](ListSession& session) {
            Fill(session);
            for (const int row : {2, 0, 3, 3, 6}) {
                session.Do(MESSAGE(LB_SETCURSEL), static_cast<WPARAM>(row));
                session.Send(MESSAGE(LB_GETCURSEL));
                session.Send(MESSAGE(LB_GETSELCOUNT));
                session.SendForRows(MESSAGE(LB_GETSELITEMS), 10);
                session.Send(MESSAGE(LB_SELITEMRANGE), TRUE, MAKELPARAM(1, 3));
                session.Send(MESSAGE(LB_SELITEMRANGEEX), 1, 3);
            }
            for (const int row : {-2, 7, 99, -1}) {
                session.Send(MESSAGE(LB_SETCURSEL), static_cast<WPARAM>(row));
                session.Send(MESSAGE(LB_GETCURSEL));
            }
            for (const wchar_t* text : {L"fig", L"quince", L"none"}) {
                session.SendText(MESSAGE(LB_SELECTSTRING), -1, text);
                session.Send(MESSAGE(LB_GETCURSEL));
            }
        });
    }
}

TEST(HierListListBox, SelectsSeveralAsItDoes) {
    constexpr int kRanges[][2] = {{1, 3},  {4, 2},   {5, 99}, {90, 99}, {0, 0},
                                  {-1, 2}, {-1, -1}, {2, -1}, {6, 0},   {7, 7}};
    for (const DWORD style : AllListStyles()) {
        if (!SelectsSeveral(style)) {
            continue;
        }
        ExpectTheSame(style, [&](ListSession& session) {
            Fill(session);
            for (const int row : {-2, 1, 3, 3, 6, 7, 99}) {
                session.Send(MESSAGE(LB_SETCURSEL), static_cast<WPARAM>(row));
                session.Send(MESSAGE(LB_SETSEL), TRUE, row);
                session.Send(MESSAGE(LB_GETSELCOUNT));
                session.Send(MESSAGE(LB_GETANCHORINDEX));
            }
            for (const int most : {10, 2, 0, -1}) {
                session.SendForRows(MESSAGE(LB_GETSELITEMS), most);
            }
            session.Send(MESSAGE(LB_SETSEL), FALSE, 3);
            session.Send(MESSAGE(LB_SETSEL), FALSE, 99);
            for (const auto& range : kRanges) {
                const LPARAM packed = MAKELPARAM(range[0], range[1]);
                session.Send(MESSAGE(LB_SETSEL), FALSE, -1);
                session.Send(MESSAGE(LB_SELITEMRANGE), TRUE, packed);
                session.Send(MESSAGE(LB_SETSEL), FALSE, -1);
                session.Send(MESSAGE(LB_SELITEMRANGEEX), static_cast<WPARAM>(range[0]), range[1]);
                session.Send(MESSAGE(LB_SETSEL), TRUE, -1);
                session.Send(MESSAGE(LB_GETANCHORINDEX));
                session.Send(MESSAGE(LB_SELITEMRANGE), FALSE, packed);
                session.Send(MESSAGE(LB_SETSEL), TRUE, -1);
                session.Send(MESSAGE(LB_SELITEMRANGEEX), static_cast<WPARAM>(range[1]), range[0]);
            }
        });
    }
}

TEST(HierListListBox, KeepsAnchorCaretAndTopAsItDoes) {
    for (const DWORD style : AllListStyles()) {
        ExpectTheSame(style, [](ListSession& session) {
            Fill(session);
            for (const int row : kRows) {
                session.Send(MESSAGE(LB_SETANCHORINDEX), static_cast<WPARAM>(row));
                session.Send(MESSAGE(LB_GETANCHORINDEX));
                session.Send(MESSAGE(LB_SETCARETINDEX), static_cast<WPARAM>(row), FALSE);
                session.Send(MESSAGE(LB_GETCARETINDEX));
            }
            for (const int row : {0, 1, 3, 6, 0}) {
                session.Send(MESSAGE(LB_SETTOPINDEX), static_cast<WPARAM>(row));
                for (const int asked : {0, 1, 3, 6, 7, 99}) {
                    session.SendForRect(MESSAGE(LB_GETITEMRECT), asked);
                }
            }
        });
    }
}

TEST(HierListListBox, IsMeasuredAsItIs) {
    for (const DWORD style : AllListStyles()) {
        ExpectTheSame(style, [](ListSession& session) {
            Fill(session);
            for (const int row : {0, 3, 7, 99}) {
                for (const int height : {25, 0, 255, 256, 65535, 65536, 20}) {
                    session.Send(MESSAGE(LB_SETITEMHEIGHT), static_cast<WPARAM>(row), height);
                    session.Send(MESSAGE(LB_GETITEMHEIGHT), static_cast<WPARAM>(row));
                }
            }
            for (const int extent : {500, 0}) {
                session.Do(MESSAGE(LB_SETHORIZONTALEXTENT), static_cast<WPARAM>(extent));
                session.Send(MESSAGE(LB_GETHORIZONTALEXTENT));
            }
            static constexpr int kStops[] = {20, 50, 90};
            for (const int count : {0, 1, 3}) {
                SendMessageW(session.list(), LB_SETTABSTOPS, 0, 0);
                session.Note("LB_SETTABSTOPS", SendMessageW(session.list(), LB_SETTABSTOPS,
                                                            static_cast<WPARAM>(count),
                                                            reinterpret_cast<LPARAM>(kStops)));
            }
        });
    }
}

TEST(HierListListBox, InsertsWhereItDoes) {
    for (const DWORD style : AllListStyles()) {
        ExpectTheSame(style, [style](ListSession& session) {
            Fill(session);
            session.WithoutCaret([&] { // the caret stays with its item, in an outline list
                session.SendText(MESSAGE(LB_INSERTSTRING), 2, L"sloe");
                session.SendText(MESSAGE(LB_INSERTSTRING), 0, L"first");
                session.SendText(MESSAGE(LB_INSERTSTRING), -1, L"last");
                session.SendText(MESSAGE(LB_INSERTSTRING), 10, L"behind it");
                if ((style & LBS_SORT) == 0) { // what is out of order has no place for another
                    session.SendText(MESSAGE(LB_ADDSTRING), 0, L"cherry");
                }
            });
        });
    }
}

// Random numbers are drawn the same for both.
void SendAnything(ListSession& session, std::mt19937& random, bool several) {
    static const std::vector<std::pair<const char*, UINT>> kAny = {
        {MESSAGE(LB_GETITEMDATA)}, {MESSAGE(LB_GETTEXTLEN)},     {MESSAGE(LB_GETSEL)},
        {MESSAGE(LB_GETCOUNT)},    {MESSAGE(LB_SETCARETINDEX)},  {MESSAGE(LB_GETCARETINDEX)},
        {MESSAGE(LB_GETTOPINDEX)}, {MESSAGE(LB_SETANCHORINDEX)}, {MESSAGE(LB_GETANCHORINDEX)}};
    const int row = static_cast<int>(random() % 10) - 2;
    const int other = static_cast<int>(random() % 10) - 2;
    const bool on = random() % 2 != 0;
    const auto& any = kAny[random() % kAny.size()];
    switch (random() % 6) {
    case 0:
        several ? session.Send(MESSAGE(LB_SETSEL), on ? TRUE : FALSE, row)
                : session.Do(MESSAGE(LB_SETCARETINDEX), static_cast<WPARAM>(row));
        break;
    case 1:
        session.Send(MESSAGE(LB_SELITEMRANGE), on ? TRUE : FALSE, MAKELPARAM(row, other));
        break;
    case 2:
        session.Send(MESSAGE(LB_SELITEMRANGEEX), static_cast<WPARAM>(row), other);
        break;
    case 3:
        session.Send(MESSAGE(LB_SETTOPINDEX), static_cast<WPARAM>(row < 0 || row > 6 ? 0 : row));
        break;
    case 4:
        session.SendForRows(MESSAGE(LB_GETSELITEMS), other);
        break;
    default:
        session.Send(any.first, any.second, static_cast<WPARAM>(row));
        break;
    }
}

TEST(HierListListBox, AnswersAnythingAsItDoes) {
    std::uint32_t seed = 20240901;
    for (const DWORD style : AllListStyles()) {
        ++seed;
        ExpectTheSame(style, [seed, style](ListSession& session) {
            std::mt19937 random(seed);
            Fill(session);
            for (int i = 0; i < 150; ++i) {
                SendAnything(session, random, SelectsSeveral(style));
            }
        });
    }
}

} // namespace
