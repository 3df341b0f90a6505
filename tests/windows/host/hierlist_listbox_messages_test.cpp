// The outline list beside the system's list box: the same sessions with both must read the same,
// but for what is listed here.
#include "tests/windows/support/list_session.h"

#include <cstdio>
#include <functional>
#include <gtest/gtest.h>
#include <vorn32.h>

namespace {

using vorn::test::ListSession;
using vorn::test::Outcome;

using Script = std::function<void(ListSession&)>;

#define MESSAGE(name) #name, name

std::vector<Outcome> Hold(const char* className, DWORD style, const Script& script) {
    ListSession session(className, style | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | LBS_USETABSTOPS | WS_VSCROLL);
    script(session);
    return session.outcomes();
}

void Explore(DWORD style, const Script& script) {
    const auto theirs = Hold("LISTBOX", style, script);
    const auto ours = Hold(VORN_HIERLIST_CLASS, style, script);
    for (std::size_t i = 0; i < theirs.size(); ++i) {
        if (theirs[i].answer != ours[i].answer)
            printf("%04lx %s: answer\n   %s\n   %s\n", style, theirs[i].step.c_str(), theirs[i].answer.c_str(), ours[i].answer.c_str());
        if (theirs[i].contents != ours[i].contents)
            printf("%04lx %s: contents\n   %s\n   %s\n", style, theirs[i].step.c_str(), theirs[i].contents.c_str(), ours[i].contents.c_str());
        if (theirs[i].view != ours[i].view)
            printf("%04lx %s: view\n   %s\n   %s\n", style, theirs[i].step.c_str(), theirs[i].view.c_str(), ours[i].view.c_str());
    }
}

void Fill(ListSession& session) {
    for (const wchar_t* text : {L"pear", L"apple", L"Quince", L"fig", L"apricot", L"plum", L"\u00e9toile"}) {
        session.SendText(MESSAGE(LB_ADDSTRING), 0, text);
    }
}

TEST(HierListListBox, Explore) {
    for (DWORD mode : {0ul, DWORD(LBS_MULTIPLESEL), DWORD(LBS_EXTENDEDSEL)})
    for (DWORD variant : {0ul, DWORD(LBS_SORT), DWORD(LBS_OWNERDRAWFIXED | LBS_HASSTRINGS), DWORD(LBS_OWNERDRAWFIXED), DWORD(LBS_OWNERDRAWFIXED | LBS_SORT), DWORD(LBS_OWNERDRAWVARIABLE|LBS_HASSTRINGS|LBS_SORT), DWORD(LBS_OWNERDRAWVARIABLE)})
    Explore(mode | variant, [](ListSession& s) {
        s.SendText(MESSAGE(LB_FINDSTRING), -1, L"x");
        s.Send(MESSAGE(LB_GETITEMHEIGHT), 0);
        s.Send(MESSAGE(LB_GETTOPINDEX), 0);
        s.Send(MESSAGE(LB_SETTOPINDEX), 0);
        s.Send(MESSAGE(LB_SETCARETINDEX), 0);
        s.Send(MESSAGE(LB_SETANCHORINDEX), 0);
        s.Send(MESSAGE(LB_SETCURSEL), 0);
        s.Send(MESSAGE(LB_SETCURSEL), -1);
        s.Send(MESSAGE(LB_SETSEL), 1, 0);
        s.Send(MESSAGE(LB_SETSEL), 1, -1);
        s.Send(MESSAGE(LB_DELETESTRING), 0);
        s.SendForRect(MESSAGE(LB_GETITEMRECT), 0);
        Fill(s);
        for (int row : {-2, -1, 0, 3, 6, 7, 99}) {
            s.SendForText(MESSAGE(LB_GETTEXT), row);
            s.Send(MESSAGE(LB_GETTEXTLEN), row);
            s.Send(MESSAGE(LB_GETITEMDATA), row);
            s.Send(MESSAGE(LB_SETITEMDATA), row, 700 + row);
            s.Send(MESSAGE(LB_GETITEMDATA), row);
            s.Send(MESSAGE(LB_GETITEMHEIGHT), row);
            s.SendForRect(MESSAGE(LB_GETITEMRECT), row);
            s.Send(MESSAGE(LB_GETSEL), row);
            if (row < -1) continue;
            s.SendText(MESSAGE(LB_FINDSTRING), row, L"ap");
            s.SendText(MESSAGE(LB_FINDSTRING), row, L"AP");
            s.SendText(MESSAGE(LB_FINDSTRING), row, L"");
            s.SendText(MESSAGE(LB_FINDSTRINGEXACT), row, L"ap");
            s.SendText(MESSAGE(LB_FINDSTRINGEXACT), row, L"apricot");
            s.SendText(MESSAGE(LB_FINDSTRINGEXACT), row, L"FIG");
        }
        s.Send(MESSAGE(LB_GETCURSEL));
        s.Send(MESSAGE(LB_GETSELCOUNT));
        s.SendForRows(MESSAGE(LB_GETSELITEMS), 10);
        for (int row : {-2, 0, 3, 3, 7, 99, -1}) {
            s.Send(MESSAGE(LB_SETCURSEL), row);
            s.Send(MESSAGE(LB_GETCURSEL));
        }
        for (int row : {-2, 1, 3, 3, 6, 7, 99}) {
            s.Send(MESSAGE(LB_SETSEL), TRUE, row);
            s.Send(MESSAGE(LB_GETSELCOUNT));
        }
        s.SendForRows(MESSAGE(LB_GETSELITEMS), 10);
        s.SendForRows(MESSAGE(LB_GETSELITEMS), 2);
        s.SendForRows(MESSAGE(LB_GETSELITEMS), 0);
        s.SendForRows(MESSAGE(LB_GETSELITEMS), -1);
        s.Send(MESSAGE(LB_GETSELITEMS), 3, 0);
        s.Send(MESSAGE(LB_SETSEL), FALSE, 3);
        s.Send(MESSAGE(LB_SETSEL), FALSE, 99);
        s.Send(MESSAGE(LB_SETSEL), TRUE, -1);
        s.Send(MESSAGE(LB_SETSEL), FALSE, -1);
        const int ranges[][2] = {{1, 3}, {4, 2}, {5, 99}, {90, 99}, {0, 0}, {-1, 2}, {-1,-1}, {2, -1}};
        for (auto& r : ranges) {
            s.Send(MESSAGE(LB_SELITEMRANGE), TRUE, MAKELPARAM(r[0], r[1]));
            s.Send(MESSAGE(LB_SETSEL), FALSE, -1);
            s.Send(MESSAGE(LB_SELITEMRANGEEX), r[0], r[1]);
            s.Send(MESSAGE(LB_SETSEL), TRUE, -1);
            s.Send(MESSAGE(LB_SELITEMRANGE), FALSE, MAKELPARAM(r[0], r[1]));
            s.Send(MESSAGE(LB_SELITEMRANGEEX), r[1], r[0]);
            s.Send(MESSAGE(LB_SETSEL), FALSE, -1);
        }
        for (int row : {-2, -1, 0, 3, 6, 7, 99}) {
            s.Send(MESSAGE(LB_SETANCHORINDEX), row);
            s.Send(MESSAGE(LB_SETCARETINDEX), row, 0);
            s.Send(MESSAGE(LB_SETCARETINDEX), 2, 1);
            s.Send(MESSAGE(LB_SETTOPINDEX), row);
            s.SendForRect(MESSAGE(LB_GETITEMRECT), 1);
            s.SendForRect(MESSAGE(LB_GETITEMRECT), 6);
        }
        for (int row : {-2, -1, 0, 3, 7}) {
            s.Send(MESSAGE(LB_SETITEMHEIGHT), row, 25);
            s.Send(MESSAGE(LB_SETITEMHEIGHT), row, 0);
            s.Send(MESSAGE(LB_SETITEMHEIGHT), row, 70000);
            s.Send(MESSAGE(LB_SETITEMHEIGHT), row, 20);
        }
        s.SendText(MESSAGE(LB_SELECTSTRING), -1, L"pl");
        s.SendText(MESSAGE(LB_SELECTSTRING), 5, L"pl");
        s.SendText(MESSAGE(LB_SELECTSTRING), -1, L"PL");
        s.SendText(MESSAGE(LB_SELECTSTRING), 3, L"ap");
        s.SendText(MESSAGE(LB_SELECTSTRING), 99, L"none");
        s.SendText(MESSAGE(LB_INSERTSTRING), 2, L"medlar");
        s.SendText(MESSAGE(LB_INSERTSTRING), -1, L"last");
        s.SendText(MESSAGE(LB_INSERTSTRING), 9, L"behind");
        s.SendText(MESSAGE(LB_INSERTSTRING), 99, L"beyond");
        s.SendText(MESSAGE(LB_INSERTSTRING), -2, L"before");
        s.Send(MESSAGE(LB_SETHORIZONTALEXTENT), 500);
        s.Send(MESSAGE(LB_GETHORIZONTALEXTENT), 500);
        s.Send(MESSAGE(LB_SETHORIZONTALEXTENT), 0);
        s.Send(MESSAGE(LB_SETCOLUMNWIDTH), 50);
        s.Send(MESSAGE(LB_SETCOLUMNWIDTH), 60);
        s.Send(MESSAGE(LB_SETTABSTOPS), 0, 0);
        const int stops[] = {10, 20};
        const LRESULT a = SendMessageW(s.list(), LB_SETTABSTOPS, 2, (LPARAM)stops); printf("tabs %d\n", int(a));
        s.Send(MESSAGE(LB_SETCOUNT), 4);
        s.Send(MESSAGE(LB_GETLOCALE), 0);
        s.Send(MESSAGE(LB_SETLOCALE), 0x407);
        s.Send(MESSAGE(LB_INITSTORAGE), 10, 100);
        s.Send(MESSAGE(LB_ITEMFROMPOINT), 0, MAKELPARAM(5, 25));
        s.Send(MESSAGE(LB_ITEMFROMPOINT), 0, MAKELPARAM(5, 250));
        s.Send(MESSAGE(LB_GETLISTBOXINFO), 0, 0);
        s.Send("0x1B1", 0x1B1, 0, 0);
        s.Send("0x1AB", 0x1AB, 0, 0);
        s.Send(MESSAGE(LB_SETCURSEL), 3);
        s.Send(MESSAGE(LB_SETSEL), TRUE, 3);
        s.Send(MESSAGE(LB_SETSEL), TRUE, 5);
        for (int row : {-2, 3, 0, 3, -1, 7, 99}) s.Send(MESSAGE(LB_DELETESTRING), row);
        s.Send(MESSAGE(LB_RESETCONTENT), 0, 0);
    });
}

} // namespace
