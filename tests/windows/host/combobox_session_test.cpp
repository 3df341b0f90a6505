// The combo box beside the system's: the same sessions with both must read the same.
#include "tests/windows/support/combo_session.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <vorn32.h>

namespace {

using vorn::test::ComboSession;
using vorn::test::Difference;
using vorn::test::PumpMessages;

using Script = std::function<void(ComboSession&)>;

struct Records {
    std::vector<std::string> lines;
    std::vector<vorn::test::Pixels> pictures;
    std::vector<int> notified; // by code
};

constexpr int kCodes = 11; // CBN_SELCHANGE to CBN_SELENDCANCEL

Records Hold(const char* className, DWORD style, const Script& script) {
    ComboSession session(className, style);
    script(session);
    session.Destroy();
    Records records = {session.lines(), session.pictures(), {}};
    for (int code = 0; code < kCodes; ++code) {
        records.notified.push_back(session.Notified(code));
    }
    return records;
}

// Holds the session with both classes; what the system's gave comes back.
Records ExpectTheSame(DWORD style, const Script& script) {
    const Records theirs = Hold("COMBOBOX", style, script);
    const Records ours = Hold(VORN_COMBOBOX_CLASS, style, script);
    const auto differ = std::mismatch(theirs.lines.begin(), theirs.lines.end(), ours.lines.begin(),
                                      ours.lines.end());
    if (differ.first != theirs.lines.end() || differ.second != ours.lines.end()) {
        ADD_FAILURE() << "style " << style << ", line " << differ.first - theirs.lines.begin()
                      << "\nsystem: "
                      << (differ.first != theirs.lines.end() ? *differ.first : "(ends)")
                      << "\nours:   "
                      << (differ.second != ours.lines.end() ? *differ.second : "(ends)");
    }
    EXPECT_EQ(theirs.pictures.size(), ours.pictures.size());
    for (std::size_t i = 0; i < std::min(theirs.pictures.size(), ours.pictures.size()); ++i) {
        EXPECT_EQ(Difference(theirs.pictures[i], ours.pictures[i]), "")
            << "style " << style << ", picture " << i;
    }
    return theirs;
}

constexpr DWORD kKinds[] = {CBS_SIMPLE, CBS_DROPDOWN, CBS_DROPDOWNLIST};

constexpr DWORD kVariants[] = {
    0,
    CBS_SORT | WS_VSCROLL,
    CBS_AUTOHSCROLL | CBS_UPPERCASE | CBS_DISABLENOSCROLL | WS_VSCROLL,
    CBS_NOINTEGRALHEIGHT | CBS_LOWERCASE,
    CBS_OWNERDRAWFIXED | CBS_HASSTRINGS,
    CBS_OWNERDRAWFIXED | CBS_SORT,
    CBS_OWNERDRAWVARIABLE | CBS_HASSTRINGS | CBS_SORT | WS_VSCROLL,
    CBS_OWNERDRAWVARIABLE,
};

std::vector<DWORD> AllStyles() {
    std::vector<DWORD> styles;
    for (const DWORD kind : kKinds) {
        for (const DWORD variant : kVariants) {
            styles.push_back(kind | variant);
        }
    }
    return styles;
}

void Fill(ComboSession& session) {
    for (const char* text : {"pear", "apple", "Quince", "fig", "apricot", "plum", "banana"}) {
        session.SendText(CB_ADDSTRING, 0, text);
    }
}

TEST(ComboBoxSession, FillsSearchesAndSelects) {
    for (const DWORD style : AllStyles()) {
        ExpectTheSame(style, [](ComboSession& session) {
            Fill(session);
            session.WriteState();
            session.SendText(CB_INSERTSTRING, 2, "medlar");
            session.SendText(CB_INSERTSTRING, static_cast<WPARAM>(-1), "last");
            session.SendText(CB_FINDSTRING, static_cast<WPARAM>(-1), "AP");
            session.SendText(CB_FINDSTRING, 1, "ap");
            session.SendText(CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), "ap");
            session.SendText(CB_FINDSTRINGEXACT, 3, "FIG");
            session.SendText(CB_SELECTSTRING, static_cast<WPARAM>(-1), "pl");
            session.WriteState();
            session.SendText(CB_SELECTSTRING, static_cast<WPARAM>(-1), "no such");
            session.Send(CB_SETITEMDATA, 1, 4711);
            session.Send(CB_GETITEMDATA, 1);
            session.Send(CB_GETITEMDATA, 99);
            session.Send(CB_SETCURSEL, 3);
            session.WriteState();
            session.Send(CB_SETCURSEL, 99);
            session.Send(CB_SETCURSEL, static_cast<WPARAM>(-1));
            session.Send(CB_DELETESTRING, 0);
            session.Send(CB_DELETESTRING, 99);
            session.Send(CB_GETLBTEXTLEN, 2);
            session.Send(CB_INITSTORAGE, 100, 1000);
            session.Send(CB_SETTOPINDEX, 2);
            session.WriteState();
            session.Send(CB_RESETCONTENT);
            session.WriteState();
        });
    }
}

TEST(ComboBoxSession, KeepsItsMeasures) {
    for (const DWORD style : AllStyles()) {
        ExpectTheSame(style, [](ComboSession& session) {
            Fill(session);
            session.Send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), 25);
            session.Send(CB_SETITEMHEIGHT, 0, 19);
            session.Send(CB_SETITEMHEIGHT, 2, 30);
            session.Send(CB_SETDROPPEDWIDTH, 300);
            session.Send(CB_SETHORIZONTALEXTENT, 500);
            session.Send(CB_SETEXTENDEDUI, TRUE);
            session.Send(CB_SETLOCALE, 0x0407);
            session.Send(CB_LIMITTEXT, 4);
            session.WriteState();
            SetWindowPos(session.combo(), nullptr, 30, 40, 240, 120, SWP_NOZORDER);
            session.WriteState();
            session.Send(WM_SETFONT, reinterpret_cast<WPARAM>(GetStockObject(ANSI_FIXED_FONT)),
                         TRUE);
            session.Send(WM_GETFONT);
            session.WriteState();
            session.Paint();
            EnableWindow(session.combo(), FALSE);
            session.WriteState();
            session.Paint();
        });
    }
}

TEST(ComboBoxSession, FollowsTheKeyboard) {
    for (const DWORD style : AllStyles()) {
        const Records system = ExpectTheSame(style, [](ComboSession& session) {
            Fill(session);
            SetFocus(session.combo());
            for (const int key : {VK_DOWN, VK_DOWN, VK_END, VK_UP, VK_HOME, VK_NEXT, VK_PRIOR}) {
                session.Key(key);
            }
            for (const int key : {VK_F4, VK_DOWN, VK_DOWN, VK_RETURN}) {
                session.Key(key);
            }
            for (const int key : {VK_F4, VK_DOWN, VK_ESCAPE, VK_F4, VK_END, VK_F4}) {
                session.Key(key);
            }
            session.Type("ap");
            session.Type("x\b");
            session.Paint();
            SetFocus(session.parent());
            session.WriteState();
        });
        EXPECT_GT(system.notified[CBN_SELCHANGE], 5) << style;
        EXPECT_EQ(system.notified[CBN_SETFOCUS], 1) << style;
        EXPECT_EQ(system.notified[CBN_KILLFOCUS], 1) << style;
        if ((style & 3) != CBS_SIMPLE) {
            EXPECT_EQ(system.notified[CBN_DROPDOWN], 3) << style;
            EXPECT_EQ(system.notified[CBN_CLOSEUP], 3) << style;
        }
        if ((style & 3) != CBS_DROPDOWNLIST) {
            EXPECT_GE(system.notified[CBN_EDITCHANGE], 2) << style;
        }
    }
}

TEST(ComboBoxSession, FollowsTheMouse) {
    for (const DWORD style : AllStyles()) {
        const Records system = ExpectTheSame(style, [](ComboSession& session) {
            Fill(session);
            session.Click(150, 8); // the button
            session.ClickItem(2);
            session.Click(150, 8);
            session.Click(150, 8);
            session.Click(20, 8); // the field
            session.ClickItem(1);
            session.Send(WM_MOUSEWHEEL, MAKEWPARAM(0, static_cast<WORD>(-120)), MAKELPARAM(60, 30));
            session.WriteState();
            session.Send(CB_SHOWDROPDOWN, TRUE);
            session.Paint();
            session.Send(CB_SHOWDROPDOWN, FALSE);
            session.WriteState();
            session.Paint();
        });
        EXPECT_GT(system.notified[CBN_SELCHANGE], 0) << style;
        if ((style & 3) != CBS_SIMPLE) {
            EXPECT_GE(system.notified[CBN_DROPDOWN], 3) << style;
            EXPECT_GT(system.notified[CBN_SELENDOK], 0) << style;
        }
    }
}

TEST(ComboBoxSession, EditsItsText) {
    for (const DWORD style : AllStyles()) {
        ExpectTheSame(style, [](ComboSession& session) {
            Fill(session);
            session.SendText(WM_SETTEXT, 0, "Something else");
            session.WriteState();
            session.Send(CB_SETEDITSEL, 0, MAKELPARAM(2, 5));
            session.Send(CB_GETEDITSEL);
            session.Send(WM_CLEAR);
            session.WriteState();
            SetFocus(session.combo());
            session.Send(CB_SETEDITSEL, 0, MAKELPARAM(0, -1));
            session.Type("Typed");
            session.Send(EM_GETLIMITTEXT);
            session.Send(WM_UNDO);
            session.Send(WM_CHAR, 'q', 1);
            session.WriteState();
            session.Send(WM_CANCELMODE);
            session.Paint();
        });
    }
}

// One random message; what is random is drawn whatever the message needs, so that both sessions
// draw the same.
void SendAnything(ComboSession& session, std::mt19937& random) {
    static constexpr UINT kMessages[] = {
        WM_KILLFOCUS,
        CB_LIMITTEXT,
        CB_SETEDITSEL,
        CB_DELETESTRING,
        CB_GETCOUNT,
        CB_GETCURSEL,
        CB_GETLBTEXTLEN,
        CB_SETCURSEL,
        CB_SHOWDROPDOWN,
        CB_GETITEMDATA,
        CB_SETITEMDATA,
        CB_SETITEMHEIGHT,
        CB_GETITEMHEIGHT,
        CB_SETEXTENDEDUI,
        CB_GETEXTENDEDUI,
        CB_GETDROPPEDSTATE,
        CB_GETTOPINDEX,
        CB_SETTOPINDEX,
        CB_GETHORIZONTALEXTENT,
        CB_SETHORIZONTALEXTENT,
        CB_GETDROPPEDWIDTH,
        CB_INITSTORAGE,
        WM_ENABLE,
        WM_CHAR,
        WM_SETREDRAW,
        WM_CLEAR,
        WM_UNDO,
        WM_CANCELMODE,
        WM_USER + 1,
        WM_USER + 99,
        WM_APP,
        WM_NULL,
    };
    const UINT message = kMessages[random() % std::size(kMessages)];
    const WPARAM wParam = random() % 12 == 0 ? static_cast<WPARAM>(-1) : random() % 9;
    const auto lParam = static_cast<LPARAM>(random() % 40);
    switch (random() % 4) {
    case 0:
        session.SendText(
            random() % 2 == 0 ? CB_ADDSTRING : CB_FINDSTRING, 0,
            std::string(1 + random() % 5, static_cast<char>('a' + random() % 26)).c_str());
        break;
    case 1:
        session.Key(VK_END + static_cast<int>(random() % 6));
        break;
    default:
        session.Send(message, wParam, lParam);
        break;
    }
}

TEST(ComboBoxSession, AnswersAnythingAsTheSystemDoes) {
    std::uint32_t seed = 20240901;
    for (const DWORD style : AllStyles()) {
        ++seed;
        SCOPED_TRACE(seed);
        ExpectTheSame(style, [seed](ComboSession& session) {
            std::mt19937 random(seed);
            Fill(session);
            SetFocus(session.combo());
            for (int i = 0; i < 40; ++i) {
                SendAnything(session, random);
            }
            session.WriteState();
        });
    }
}

} // namespace
