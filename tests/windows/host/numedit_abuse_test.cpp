// Numeric edits whose host does its worst, and windows that are hardly numeric edits.
#include "tests/windows/host/numedit_host.h"
#include "tests/windows/support/abuse.h"
#include "tests/windows/support/input.h"
#include "tests/windows/support/objects.h"

namespace {

using vorn::test::ChangeEvents;
using vorn::test::Events;
using vorn::test::Message;
using vorn::test::NumEditHost;
using vorn::test::PumpMessages;
using vorn::test::SendMouse;

// What a user or a host does, and the events that come of it. Each of them may be the last.
struct Deed {
    const char* name;
    DWORD style;
    void (*act)(HWND edit);
    Events events;
};

const double kNumber = 2.5;

const Deed kDeeds[] = {
    {"digit",
     0,
     [](HWND edit) { SendMessageA(edit, WM_CHAR, '7', 0); },
     {"ask", "changed", "EN_UPDATE", "EN_CHANGE"}},
    {"Backspace",
     0,
     [](HWND edit) { SendMessageA(edit, WM_KEYDOWN, VK_BACK, 0); },
     {"ask", "changed", "EN_UPDATE", "EN_CHANGE"}},
    {"Up",
     0,
     [](HWND edit) { SendMessageA(edit, WM_KEYDOWN, VK_UP, 0); },
     {"ask", "changed", "EN_UPDATE", "EN_CHANGE"}},
    {"End", 0, [](HWND edit) { SendMessageA(edit, WM_KEYDOWN, VK_END, 0); }, {"ask", "changed"}},
    {"press",
     VNMS_SPIN,
     [](HWND edit) { SendMouse(edit, WM_LBUTTONDOWN, 110, 5); },
     {"EN_SETFOCUS", "ask", "changed", "EN_UPDATE", "EN_CHANGE"}},
    {"click", 0, [](HWND edit) { SendMouse(edit, WM_LBUTTONDOWN, 20, 5); }, {"EN_SETFOCUS"}},
    {"text",
     0,
     [](HWND edit) { SetWindowTextA(edit, "9"); },
     {"ask", "changed", "EN_UPDATE", "EN_CHANGE"}},
    {"paste",
     0,
     [](HWND edit) { SendMessageA(edit, WM_PASTE, 0, 0); },
     {"ask", "changed", "EN_UPDATE", "EN_CHANGE"}},
    {"replacement",
     0,
     [](HWND edit) { SendMessageA(edit, EM_REPLACESEL, 0, reinterpret_cast<LPARAM>("3")); },
     {"ask", "changed", "EN_UPDATE", "EN_CHANGE"}},
    {"cut",
     0,
     [](HWND edit) {
         SendMessageA(edit, EM_SETSEL, 0, -1);
         SendMessageA(edit, WM_CUT, 0, 0);
     },
     {"ask", "changed", "EN_UPDATE", "EN_CHANGE"}},
    {"integer", 0, [](HWND edit) { nmSetInteger(edit, 5); }, {"ask", "changed"}},
    {"long integer",
     0,
     [](HWND edit) {
         SendMessageA(edit, EM_LIMITTEXT, 2, 0);
         nmSetInteger(edit, 555);
     },
     {"ask", "code 1280", "changed"}},
    {"float", 0, [](HWND edit) { nmSetDouble(edit, &kNumber); }, {"ask", "changed"}},
    {"null", 0, [](HWND edit) { nmSetNull(edit); }, {"ask", "changed"}},
    {"record",
     0,
     [](HWND edit) {
         NmEditParams params{};
         params.formatKind = NM_INTEGER;
         nmSetEditParams(edit, &params);
     },
     {"changed"}},
    {"focus", 0, [](HWND edit) { SetFocus(edit); }, {"EN_SETFOCUS"}},
    {"no focus",
     0,
     [](HWND edit) {
         SetFocus(edit);
         SetFocus(GetParent(edit));
     },
     {"EN_SETFOCUS", "EN_KILLFOCUS"}},
};

class NumEditAbuse : public NumEditHost {
protected:
    HWND CreateTwelve(DWORD style) {
        SetFocus(host.window());
        HWND edit = Create(NM_GENERAL, 0, style);
        PutAndSelectEnd(edit, "12");
        return edit;
    }
};

TEST_F(NumEditAbuse, BearsDestructionInEveryEvent) {
    SetClipboard("3");
    for (const Deed& deed : kDeeds) {
        for (const std::string& last : deed.events) {
            HWND edit = CreateTwelve(deed.style);
            Events seen;
            onEvent = [&](HWND window, const std::string& event) {
                seen.push_back(event);
                if (event == last && IsWindow(window)) {
                    DestroyWindow(window);
                }
            };
            deed.act(edit);
            onEvent = nullptr;
            EXPECT_FALSE(IsWindow(edit)) << deed.name << ": " << last;
            ASSERT_FALSE(seen.empty()) << deed.name << ": " << last;
            // Losing the focus as it goes is told; nothing else is any more.
            while (!seen.empty() && seen.back() == "EN_KILLFOCUS" && last != "EN_KILLFOCUS") {
                seen.pop_back();
            }
            EXPECT_EQ(seen.back(), last) << deed.name;
            PumpMessages();
            TakeEvents();
        }
    }
}

TEST_F(NumEditAbuse, BearsDestructionAsItAsksForColors) {
    SetClipboard("3");
    for (const Deed& deed : kDeeds) {
        HWND edit = CreateTwelve(deed.style);
        PumpMessages();
        const auto before = host.answer;
        bool asked = false;
        host.answer = [&](const Message& message) -> std::optional<LRESULT> {
            if (message.message == WM_CTLCOLOREDIT && IsWindow(edit)) {
                asked = true;
                DestroyWindow(edit);
                return 0;
            }
            return before(message);
        };
        deed.act(edit);
        if (!asked) {
            RedrawWindow(edit, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        }
        EXPECT_TRUE(asked) << deed.name;
        EXPECT_FALSE(IsWindow(edit)) << deed.name;
        host.answer = before;
        PumpMessages();
    }
}

TEST_F(NumEditAbuse, BearsAHostThatRepaintsItAsItAsksForColors) {
    HWND edit = CreateTwelve(0);
    const auto before = host.answer;
    int asked = 0;
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_CTLCOLOREDIT && ++asked <= 3) {
            RedrawWindow(edit, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        }
        return before(message);
    };
    RedrawWindow(edit, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    PumpMessages();
    EXPECT_FALSE(GetUpdateRect(edit, nullptr, FALSE));
    host.answer = before;
}

TEST_F(NumEditAbuse, BearsAHostThatChangesTheNumberInEveryEvent) {
    SetClipboard("3");
    for (const Deed& deed : kDeeds) {
        for (const std::string& event : deed.events) {
            HWND edit = CreateTwelve(deed.style);
            bool inside = false;
            onEvent = [&](HWND window, const std::string& name) {
                if (name == event && !inside) {
                    inside = true;
                    nmSetInteger(window, 4);
                    nmSetNull(window);
                    SetWindowTextA(window, "7");
                    SendMessageA(window, EM_SETSEL, 1, 1);
                    inside = false;
                }
            };
            deed.act(edit);
            onEvent = nullptr;
            EXPECT_TRUE(IsWindow(edit));
            EXPECT_LE(TextOf(edit).size(), 3u) << deed.name << ": " << event;
            DestroyWindow(edit);
            TakeEvents();
        }
    }
}

TEST_F(NumEditAbuse, BearsAHostThatEndsThePressWithinIt) {
    for (const char* event : {"EN_SETFOCUS", "ask", "changed", "EN_UPDATE", "EN_CHANGE"}) {
        HWND edit = CreateTwelve(VNMS_SPIN);
        onEvent = [&](HWND window, const std::string& name) {
            if (name == event) {
                nmEnableSpinButtons(window, FALSE);
            }
        };
        SendMouse(edit, WM_LBUTTONDOWN, 110, 5);
        onEvent = nullptr;
        EXPECT_NE(GetCapture(), edit) << event;
        EXPECT_FALSE(vorn::test::TakeTimer(edit, 1)) << event;
        const bool early = std::string(event) == "EN_SETFOCUS" || std::string(event) == "ask";
        EXPECT_EQ(TextOf(edit), early ? "12" : "13") << event;
        DestroyWindow(edit);
        TakeEvents();
    }
}

TEST_F(NumEditAbuse, BearsRandomMessages) {
    vorn::test::SendRandomMessages(
        [this] { return host.Create(VORN_NUMEDIT_CLASS, VNMS_SPIN, 0, 0, 90, 24); }, 20261121,
        200000,
        {EM_GETSEL, EM_GETRECT, EM_REPLACESEL, EM_GETLINE, VNMM_GETEDITPARAMS, VNMM_SETEDITPARAMS,
         VNMM_GETLASTGOODNUMBER, VNMM_GETFLOAT, VNMM_GETDOUBLE, VNMM_GETLONGDOUBLE, VNMM_SETFLOAT,
         VNMM_SETDOUBLE, VNMM_SETLONGDOUBLE});
}

TEST_F(NumEditAbuse, LeavesNoObjectsBehind) {
    EXPECT_EQ(vorn::test::ObjectsLeftBy([this] {
                  HWND edit = host.Create(VORN_NUMEDIT_CLASS, VNMS_SPIN, 0, 0, 90, 24);
                  SetFocus(edit);
                  SendMouse(edit, WM_LBUTTONDOWN, 85, 5);
                  DestroyWindow(edit);
              }),
              "");
}

TEST_F(NumEditAbuse, OtherLooksLeaveNoObjectsBehind) {
    HWND edit = host.Create(VORN_NUMEDIT_CLASS, VNMS_SPIN | VNMS_DIGITS, 0, 0, 90, 24);
    nmSetInteger(edit, 12);
    EXPECT_EQ(vorn::test::ObjectsLeftBy(
                  [edit] {
                      nmSetDisplayStyle(edit, VNMD_CELLS);
                      nmSetDisplayStyle(edit, VNMD_DIGITS);
                      nmSetDisplayStyle(edit, VNMD_TEXT);
                      SendMessageA(edit, WM_SYSCOLORCHANGE, 0, 0);
                  },
                  200),
              "");
}

TEST_F(NumEditAbuse, WorksInAClassOfTheHostsOwn) {
    WNDCLASSA theirs{};
    theirs.lpfnWndProc = VORNNumEditWinFn;
    theirs.cbWndExtra = 0;
    theirs.hInstance = GetModuleHandleA(nullptr);
    theirs.lpszClassName = "HostsOwnNumEdit";
    ASSERT_NE(RegisterClassA(&theirs), 0);
    HWND edit = host.Create("HostsOwnNumEdit", 0, 0, 0, 90, 24);
    ASSERT_NE(edit, nullptr);
    SendMessageA(edit, WM_CHAR, '7', 0);
    EXPECT_EQ(nmGetInteger(edit), 7);
    DestroyWindow(edit);
    EXPECT_TRUE(UnregisterClassA("HostsOwnNumEdit", GetModuleHandleA(nullptr)));
}

TEST_F(NumEditAbuse, BearsTinyAreas) {
    for (const int size : {0, 1, 2, 3, 5}) {
        for (const DWORD style : {DWORD{0}, DWORD{VNMS_SPIN}, DWORD{VNMS_SPIN | VNMS_SUNKEN},
                                  DWORD{VNMS_DIGITS}, DWORD{VNMS_CELLS | VNMS_RAISED}}) {
            HWND edit = Create(NM_FLOATING, 2, style, size, size);
            ASSERT_NE(edit, nullptr);
            SetFocus(edit);
            SendMessageA(edit, WM_CHAR, '7', 0);
            SendMouse(edit, WM_LBUTTONDOWN, 0, 0);
            SendMouse(edit, WM_LBUTTONUP, 0, 0);
            RedrawWindow(edit, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
            DestroyWindow(edit);
        }
    }
}

} // namespace
