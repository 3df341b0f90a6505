// Outline lists beside the system's list box: the same messages, the same answers.
#include "tests/windows/support/outline_list.h"

#include <iterator>
#include <set>
#include <string>

namespace {

using vorn::test::OutlineListTest;

struct Question {
    const char* name;
    LRESULT (*ask)(HWND list, LONG row);
};

LRESULT Send(HWND list, UINT message, LONG wParam, LPARAM lParam = 0) {
    return SendMessageA(list, message, static_cast<WPARAM>(wParam), lParam);
}

LPARAM Text(const char* text) {
    return reinterpret_cast<LPARAM>(text);
}

// Results that are written are summed up in a number.
const Question kQuestions[] = {
    {"LB_ADDSTRING", [](HWND list, LONG) { return Send(list, LB_ADDSTRING, 0, Text("bc")); }},
    {"LB_INSERTSTRING",
     [](HWND list, LONG row) { return Send(list, LB_INSERTSTRING, row, Text("x")); }},
    {"LB_DELETESTRING", [](HWND list, LONG row) { return Send(list, LB_DELETESTRING, row); }},
    {"LB_RESETCONTENT", [](HWND list, LONG) { return Send(list, LB_RESETCONTENT, 0); }},
    {"LB_SETSEL", [](HWND list, LONG row) { return Send(list, LB_SETSEL, 1, row); }},
    {"LB_SETSEL off", [](HWND list, LONG row) { return Send(list, LB_SETSEL, 0, row); }},
    {"LB_SETCURSEL", [](HWND list, LONG row) { return Send(list, LB_SETCURSEL, row); }},
    {"LB_GETSEL", [](HWND list, LONG row) { return Send(list, LB_GETSEL, row); }},
    {"LB_GETTEXT",
     [](HWND list, LONG row) {
         char text[64] = "";
         const LRESULT length = Send(list, LB_GETTEXT, row, Text(text));
         return length * 1000 + text[0];
     }},
    {"LB_GETTEXTLEN", [](HWND list, LONG row) { return Send(list, LB_GETTEXTLEN, row); }},
    {"LB_GETCOUNT", [](HWND list, LONG) { return Send(list, LB_GETCOUNT, 0); }},
    {"LB_SELECTSTRING",
     [](HWND list, LONG row) { return Send(list, LB_SELECTSTRING, row, Text("a")); }},
    {"LB_FINDSTRING",
     [](HWND list, LONG row) { return Send(list, LB_FINDSTRING, row, Text("a")); }},
    {"LB_FINDSTRING none",
     [](HWND list, LONG row) { return Send(list, LB_FINDSTRING, row, Text("q")); }},
    {"LB_FINDSTRINGEXACT",
     [](HWND list, LONG row) { return Send(list, LB_FINDSTRINGEXACT, row, Text("a")); }},
    {"LB_GETSELITEMS",
     [](HWND list, LONG row) {
         int rows[8] = {};
         return Send(list, LB_GETSELITEMS, row, reinterpret_cast<LPARAM>(rows)) * 1000 +
                rows[0] * 10 + rows[1];
     }},
    {"LB_SETITEMDATA",
     [](HWND list, LONG row) {
         const LRESULT result = Send(list, LB_SETITEMDATA, row, 7);
         return result * 1000 + Send(list, LB_GETITEMDATA, row);
     }},
    {"LB_SELITEMRANGE",
     [](HWND list, LONG row) { return Send(list, LB_SELITEMRANGE, 1, MAKELPARAM(2, row)); }},
    {"LB_SELITEMRANGE off",
     [](HWND list, LONG row) { return Send(list, LB_SELITEMRANGE, 0, MAKELPARAM(0, row)); }},
    {"LB_SELITEMRANGEEX",
     [](HWND list, LONG row) { return Send(list, LB_SELITEMRANGEEX, 2, row); }},
    {"LB_SETANCHORINDEX",
     [](HWND list, LONG row) {
         const LRESULT result = Send(list, LB_SETANCHORINDEX, row);
         return result * 1000 + Send(list, LB_GETANCHORINDEX, 0);
     }},
    {"LB_SETCARETINDEX",
     [](HWND list, LONG row) {
         const LRESULT result = Send(list, LB_SETCARETINDEX, row);
         return result * 1000 + Send(list, LB_GETCARETINDEX, 0);
     }},
    {"LB_SETTOPINDEX",
     [](HWND list, LONG row) {
         const LRESULT result = Send(list, LB_SETTOPINDEX, row);
         return result * 1000 + Send(list, LB_GETTOPINDEX, 0);
     }},
    {"LB_GETITEMRECT",
     [](HWND list, LONG row) {
         RECT rect{};
         return Send(list, LB_GETITEMRECT, row, reinterpret_cast<LPARAM>(&rect)) * 1000 + rect.top;
     }},
    {"LB_SETITEMHEIGHT",
     [](HWND list, LONG row) {
         const LRESULT result = Send(list, LB_SETITEMHEIGHT, row, 25);
         return result * 1000 + Send(list, LB_GETITEMHEIGHT, 0);
     }},
    {"LB_SETHORIZONTALEXTENT",
     [](HWND list, LONG) {
         Send(list, LB_SETHORIZONTALEXTENT, 300);
         return Send(list, LB_GETHORIZONTALEXTENT, 0);
     }},
    {"LB_SETTABSTOPS",
     [](HWND list, LONG) {
         const int stops[] = {10, 40};
         return Send(list, LB_SETTABSTOPS, 2, reinterpret_cast<LPARAM>(stops));
     }},
    {"LB_GETSELCOUNT", [](HWND list, LONG) { return Send(list, LB_GETSELCOUNT, 0); }},
    {"LB_GETCURSEL", [](HWND list, LONG) { return Send(list, LB_GETCURSEL, 0); }},
};

// The rows with their marks, as the messages tell.
std::string StateOf(HWND list) {
    std::string state;
    for (LONG row = 0; row < Send(list, LB_GETCOUNT, 0); ++row) {
        char text[64] = "";
        Send(list, LB_GETTEXT, row, Text(text));
        state += std::string(Send(list, LB_GETSEL, row) > 0 ? "[" : " ") + text;
    }
    return state + " top " + std::to_string(Send(list, LB_GETTOPINDEX, 0));
}

class HierListListBox : public OutlineListTest {
protected:
    void SetUp() override { ShowWindow(host.window(), SW_HIDE); } // thousands of lists are made

    // Six rows, of which five are in view, with two selected where that may be.
    HWND Fill(const char* className, DWORD style) {
        HWND list = host.Create(className, style | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL,
                                5, 6, 120, 90, 1);
        Send(list, LB_SETITEMHEIGHT, 0, 18);
        for (const char* text : {"a", "ab", "b", "a", "c", "d"}) {
            EXPECT_GE(Send(list, LB_ADDSTRING, 0, Text(text)), 0);
        }
        Send(list, LB_SETCURSEL, 1);
        if ((style & (LBS_MULTIPLESEL | LBS_EXTENDEDSEL)) != 0) {
            Send(list, LB_SETSEL, TRUE, 1);
            Send(list, LB_SETSEL, TRUE, 3);
        }
        return list;
    }
};

const DWORD kKinds[] = {0, LBS_MULTIPLESEL, LBS_EXTENDEDSEL};
const DWORD kTexts[] = {0, LBS_SORT, LBS_OWNERDRAWFIXED | LBS_HASSTRINGS,
                        LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_SORT};

struct Told {
    LRESULT answer;
    std::string state;
};

// What differs, and why. Everything else is the same in the answer and in what the list is then.
const char* const kDifferences[] = {
    "LB_DELETESTRING answer",   // the row that the item had
    "LB_GETCURSEL answer",      // none in lists that select several
    "LB_GETITEMRECT answer",    // 0, and no rectangle for no row
    "LB_GETSELITEMS answer",    // no number below none
    "LB_INSERTSTRING answer",   // past the end is behind the last row ...
    "LB_INSERTSTRING state",    // ... and not refused
    "LB_SELECTSTRING state",    // works in lists that select several, too
    "LB_SETANCHORINDEX answer", // lists that select one have an anchor
    "LB_SETCARETINDEX answer",  // and a caret that can be moved
    "LB_SETCARETINDEX state",   // into view
    "LB_SETCURSEL answer",      // 0
    "LB_SETITEMDATA answer",    // 0
    "LB_SETSEL answer",         // refused by lists that select one
    "LB_SETSEL state",          //
    "LB_SETSEL off answer",     //
    "LB_SETSEL off state",      //
    "LB_SETTABSTOPS answer",    // LBS_USETABSTOPS is not asked for
    "LB_SETTOPINDEX answer",    // refused for no row
    "LB_SETTOPINDEX state",     //
};

TEST_F(HierListListBox, AnswersAsTheSystemsDoes) {
    std::set<std::string> differences;
    const auto ask = [this](const char* className, DWORD style, const Question& question,
                            LONG row) {
        HWND list = Fill(className, style);
        const LRESULT answer = question.ask(list, row);
        Told told = {answer, StateOf(list)};
        DestroyWindow(list);
        return told;
    };
    const std::set<std::string> known(std::begin(kDifferences), std::end(kDifferences));
    for (const DWORD kind : kKinds) {
        for (const DWORD texts : kTexts) {
            for (const Question& question : kQuestions) {
                for (const LONG row : {0, 2, 5, -1, 6, 60000}) {
                    const Told ours = ask(VORN_HIERLIST_CLASS, kind | texts, question, row);
                    const Told theirs = ask("LISTBOX", kind | texts, question, row);
                    const std::string name = question.name;
                    if (ours.answer != theirs.answer) {
                        differences.insert(name + " answer");
                        EXPECT_TRUE(known.contains(name + " answer"))
                            << name << " " << row << " style " << (kind | texts) << ": "
                            << ours.answer << ", the system's " << theirs.answer;
                    }
                    if (ours.state != theirs.state) {
                        differences.insert(name + " state");
                        EXPECT_TRUE(known.contains(name + " state"))
                            << name << " " << row << " style " << (kind | texts) << ":"
                            << ours.state << ", the system's" << theirs.state;
                    }
                }
            }
        }
    }
    EXPECT_EQ(differences, known) << "no more and no fewer";
}

// Where both select several the answers are those of the system's list alone.
TEST_F(HierListListBox, SelectsSeveralAsTheSystemsDoes) {
    for (const DWORD kind : {DWORD{LBS_MULTIPLESEL}, DWORD{LBS_EXTENDEDSEL}}) {
        for (const LONG row : {0, 2, 5, -1, 6, 60000}) {
            for (const WPARAM on : {WPARAM{0}, WPARAM{1}}) {
                std::string told[2];
                for (int which = 0; which < 2; ++which) {
                    HWND list = Fill(which == 0 ? VORN_HIERLIST_CLASS : "LISTBOX", kind);
                    told[which] = std::to_string(SendMessageA(list, LB_SETSEL, on, row)) +
                                  " caret " + std::to_string(Send(list, LB_GETCARETINDEX, 0)) +
                                  StateOf(list);
                    DestroyWindow(list);
                }
                EXPECT_EQ(told[0], told[1]) << kind << " row " << row << " on " << on;
            }
        }
    }
}

TEST_F(HierListListBox, RefusesWhatItHasNoFunctionFor) {
    HWND list = Fill(VORN_HIERLIST_CLASS, 0);
    const std::string before = StateOf(list);
    for (const UINT message : {UINT{LB_SETCOUNT}, UINT{LB_GETLOCALE}, UINT{LB_SETLOCALE},
                               UINT{LB_INITSTORAGE}, UINT{LB_ITEMFROMPOINT}}) {
        EXPECT_EQ(Send(list, message, 3), LB_ERR) << message;
    }
    EXPECT_EQ(StateOf(list), before);
}

} // namespace
