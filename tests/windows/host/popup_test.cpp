// The dialog that a date edit drops down, run as users see it: what it does to the date.
#include "tests/windows/host/popup_host.h"
#include "tests/windows/support/input.h"
#include "tests/windows/support/pixels.h"

#include <tuple>

namespace {

using vorn::test::DateText;
using vorn::test::FindPopup;
using vorn::test::Message;
using vorn::test::Pixels;
using vorn::test::PixelsOf;
using vorn::test::PopupTest;
using vorn::test::PumpMessages;
using vorn::test::SendMouse;
using vorn::test::Spy;
using vorn::test::StrikeKey;

class Popup : public PopupTest {};

using Codes = std::vector<int>;
const Codes kChanged = {EN_UPDATE, EN_CHANGE};

// The button is seven eighths as wide as the date edits here are high.
constexpr int kWidth = 160;
constexpr int kHeight = 32;
constexpr int kButtonWidth = 28;

// Notifications but those of the focus, which comes and goes with the dialog.
Codes ChangesOf(Codes codes) {
    std::erase_if(codes, [](int code) { return code == EN_SETFOCUS || code == EN_KILLFOCUS; });
    return codes;
}

TEST_F(Popup, OpensOnItsDate) {
    HWND dateEdit = Create();
    EXPECT_TRUE(Open(dateEdit, [](HWND dialog) {
        EXPECT_EQ(DateText(CalendarDate(dialog)), "12/25/1995");
        EXPECT_EQ(TextOf(GetDlgItem(dialog, 14)), "1995");
        EXPECT_TRUE(IsWindowVisible(dialog));
        EXPECT_FALSE(IsWindowEnabled(GetParent(dialog))) << "it is modal";
        Command(dialog, IDCANCEL);
    }));
    EXPECT_EQ(FindPopup(), nullptr);
    EXPECT_TRUE(IsWindowEnabled(host.window()));
    EXPECT_EQ(GetFocus(), dateEdit);
}

TEST_F(Popup, HasNoCaptureAndLooksPressedWhileItIsOpen) {
    HWND dateEdit = Create();
    const auto button = [dateEdit] {
        const Pixels all = PixelsOf(dateEdit);
        std::vector<COLORREF> colors;
        for (int y = 0; y < kHeight; ++y) {
            for (int x = kWidth - kButtonWidth; x < kWidth; ++x) {
                colors.push_back(all.At(x, y));
            }
        }
        return colors;
    };
    const std::vector<COLORREF> before = button();
    EXPECT_TRUE(Open(dateEdit, [&](HWND dialog) {
        EXPECT_EQ(GetCapture(), nullptr);
        SetWindowPos(dialog, nullptr, 300, 200, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        PumpMessages();
        EXPECT_NE(button(), before);
        Command(dialog, IDCANCEL);
    }));
    PumpMessages();
    EXPECT_EQ(button(), before) << "it came up again";
}

TEST_F(Popup, OpensOnTodayWithoutADateAndLeavesNoneWhenCancelled) {
    HWND dateEdit = Create();
    dtSetNull(dateEdit);
    host.TakeNotifications();
    SYSTEMTIME now{};
    GetSystemTime(&now);
    EXPECT_TRUE(Open(dateEdit, [&](HWND dialog) {
        const VORNCALENDARDATE shown = CalendarDate(dialog);
        EXPECT_EQ(std::tuple(shown.year, shown.month, shown.day),
                  std::tuple(now.wYear, now.wMonth, now.wDay));
        EXPECT_EQ(TextOf(GetDlgItem(dialog, 14)), std::to_string(now.wYear));
        Command(dialog, IDCANCEL);
    }));
    EXPECT_TRUE(dtIsNull(dateEdit));
    EXPECT_EQ(ValueOf(dateEdit), "");
    EXPECT_EQ(ChangesOf(host.TakeNotifications()), Codes{});
}

TEST_F(Popup, MakesADateOfZerosTodayAndNoneWhenItOpens) {
    HWND dateEdit = Create();
    const DtDate zeros = {0, 0, 0};
    dtSetDate(dateEdit, &zeros);
    EXPECT_FALSE(dtIsNull(dateEdit));
    SYSTEMTIME now{};
    GetSystemTime(&now);
    EXPECT_TRUE(Open(dateEdit, [](HWND dialog) { Command(dialog, IDCANCEL); }));
    EXPECT_TRUE(dtIsNull(dateEdit));
    const DtDate held = DateOf(dateEdit);
    EXPECT_EQ(std::tuple(held.year, held.month, held.day),
              std::tuple(now.wYear, now.wMonth, now.wDay));
    EXPECT_EQ(TextOf(dateEdit), "");
}

TEST_F(Popup, OpensOnTodayAfterTheUserDeletedTheDate) {
    HWND dateEdit = Create();
    SetFocus(dateEdit);
    SendMessageA(dateEdit, EM_SETSEL, 0, -1);
    SendMessageA(dateEdit, WM_CLEAR, 0, 0);
    ASSERT_TRUE(dtIsNull(dateEdit));
    SYSTEMTIME now{};
    GetSystemTime(&now);
    EXPECT_TRUE(Open(dateEdit, [&](HWND dialog) {
        EXPECT_EQ(CalendarDate(dialog).year, now.wYear);
        Command(dialog, IDCANCEL);
    }));
    EXPECT_TRUE(dtIsNull(dateEdit));
}

TEST_F(Popup, EndsWithItsResults) {
    const std::pair<PopupTest::Step, INT_PTR> ways[] = {
        {[](HWND dialog) { Command(dialog, IDOK); }, 1},
        {[](HWND dialog) { Command(dialog, IDCANCEL); }, 2},
        {[](HWND dialog) { Command(dialog, 22); }, 203},
        {[](HWND dialog) { Command(dialog, 300, VCALN_DBLCLK); }, 1},
    };
    for (const auto& [way, expected] : ways) {
        HWND dateEdit = Create();
        EXPECT_EQ(ResultOf(dateEdit, way), expected);
        DestroyWindow(dateEdit);
    }
}

// {9, 0, 0} is how hosts say that there is none; the calendar gets it as it is.
TEST_F(Popup, TakesTheNumbersOfNoDateLiterally) {
    HWND dateEdit = Create();
    const DtDate none = {9, 0, 0};
    dtSetDate(dateEdit, &none);
    EXPECT_TRUE(Open(dateEdit, [](HWND dialog) {
        EXPECT_EQ(DateText(CalendarDate(dialog)), "9/0/0");
        Command(dialog, IDCANCEL);
    }));
    EXPECT_TRUE(dtIsNull(dateEdit));
}

TEST_F(Popup, AcceptsWhatTheCalendarShows) {
    HWND dateEdit = Create();
    std::vector<std::string> log;
    Spy spy(dateEdit);
    spy.before = [&](const Message& message) {
        if (message.message == VDTM_CHANGED) {
            log.emplace_back("changed " + ValueOf(dateEdit));
        }
    };
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        const int code = HIWORD(message.wParam);
        if (message.message == WM_COMMAND && (code == EN_UPDATE || code == EN_CHANGE)) {
            log.emplace_back(code == EN_UPDATE ? "update" : "change");
        }
        return std::nullopt;
    };
    EXPECT_TRUE(Open(dateEdit, [](HWND dialog) {
        ShowDate(dialog, 2001, 2, 3);
        Click(dialog, IDOK);
    }));
    EXPECT_EQ(DateText(DateOf(dateEdit)), "2/3/2001");
    EXPECT_FALSE(dtIsNull(dateEdit));
    EXPECT_EQ(TextOf(dateEdit).substr(TextOf(dateEdit).size() - 4), "2001");
    EXPECT_EQ(log, (std::vector<std::string>{"changed 2/3/2001", "update", "change"}));
    EXPECT_NE(SendMessageA(dateEdit, EM_GETMODIFY, 0, 0), 0);
}

TEST_F(Popup, GivesADateToAnEditWithoutOne) {
    HWND dateEdit = Create();
    dtSetNull(dateEdit);
    EXPECT_TRUE(Open(dateEdit, [](HWND dialog) {
        ShowDate(dialog, 1988, 6, 5);
        Command(dialog, IDOK);
    }));
    EXPECT_FALSE(dtIsNull(dateEdit));
    EXPECT_EQ(ValueOf(dateEdit), "6/5/1988");
}

TEST_F(Popup, AcceptsACalendarWithoutASelection) {
    HWND dateEdit = Create();
    EXPECT_TRUE(Open(dateEdit, [](HWND dialog) {
        for (int word : {0, 2, 4}) {
            SetWindowWord(GetDlgItem(dialog, 300), word, 0);
        }
        Command(dialog, IDOK);
    }));
    EXPECT_EQ(DateText(DateOf(dateEdit)), "0/0/0");
    EXPECT_FALSE(dtIsNull(dateEdit));
}

TEST_F(Popup, ErasesTheDate) {
    HWND dateEdit = Create();
    host.TakeNotifications();
    EXPECT_TRUE(Open(dateEdit, [](HWND dialog) { Click(dialog, 22); }));
    EXPECT_TRUE(dtIsNull(dateEdit));
    EXPECT_EQ(DateText(DateOf(dateEdit)), "0/0/0");
    EXPECT_EQ(TextOf(dateEdit), "");
    EXPECT_EQ(ValueOf(dateEdit), "");
    EXPECT_EQ(ChangesOf(host.TakeNotifications()), kChanged);
}

TEST_F(Popup, ChangesNothingWhenCancelled) {
    const PopupTest::Step ways[] = {
        [](HWND dialog) { Click(dialog, IDCANCEL); },
        [](HWND) { StrikeKey(VK_ESCAPE); },
        [](HWND dialog) { PostMessageA(dialog, WM_SYSCOMMAND, SC_CLOSE, 0); },
        [](HWND dialog) { PostMessageA(dialog, WM_CLOSE, 0, 0); },
    };
    for (const auto& way : ways) {
        HWND dateEdit = Create();
        host.TakeNotifications();
        EXPECT_TRUE(Open(dateEdit, {[](HWND dialog) { ShowDate(dialog, 2001, 2, 3); }, way}));
        EXPECT_EQ(DateText(DateOf(dateEdit)), "12/25/1995");
        EXPECT_EQ(ChangesOf(host.TakeNotifications()), Codes{});
        EXPECT_EQ(GetFocus(), dateEdit);
        DestroyWindow(dateEdit);
    }
}

TEST_F(Popup, ReturnAccepts) {
    HWND dateEdit = Create();
    EXPECT_TRUE(Open(dateEdit, {[](HWND dialog) { ShowDate(dialog, 2001, 2, 3); },
                                [](HWND) { StrikeKey(VK_RETURN); }}));
    EXPECT_EQ(ValueOf(dateEdit), "2/3/2001");
}

TEST_F(Popup, ReturnInTheYearBoxAccepts) {
    HWND dateEdit = Create();
    EXPECT_TRUE(Open(dateEdit, {[](HWND dialog) {
                                    ShowDate(dialog, 2001, 2, 3);
                                    SetFocus(GetDlgItem(dialog, 14));
                                },
                                [](HWND) { StrikeKey(VK_RETURN); }}));
    EXPECT_EQ(ValueOf(dateEdit), "2/3/2001");
}

// The first line of every panel is a title, which has no day.
TEST_F(Popup, ADoubleClickOnNoDayAcceptsTheSelectedOne) {
    HWND dateEdit = Create();
    EXPECT_TRUE(Open(dateEdit, [](HWND dialog) {
        ShowDate(dialog, 2001, 2, 3);
        SendMouse(GetDlgItem(dialog, 300), WM_LBUTTONDBLCLK, 10, 4);
    }));
    EXPECT_EQ(ValueOf(dateEdit), "2/3/2001");
}

// The first week of 2000 ended on Saturday 1 January, so the second row of its January is the 2nd
// to the 8th. The day is clicked in the middle of the row's first cell.
TEST_F(Popup, AClickOnADayOnlySelectsIt) {
    HWND dateEdit = Create();
    host.TakeNotifications();
    EXPECT_TRUE(Open(dateEdit, {[](HWND dialog) {
                                    ShowDate(dialog, 2000, 5, 5);
                                    HDC screen = GetDC(nullptr);
                                    TEXTMETRICA system{};
                                    SelectObject(screen, GetStockObject(SYSTEM_FONT));
                                    GetTextMetricsA(screen, &system);
                                    ReleaseDC(nullptr, screen);
                                    // 16 and at least 11 pixels high: the row's middle is below
                                    // the title, the weekdays and the first row.
                                    const int small = static_cast<int>(system.tmHeight) * 7 / 10;
                                    const int y =
                                        2 + static_cast<int>(system.tmHeight) + small * 5 / 2 + 2;
                                    SendMouse(GetDlgItem(dialog, 300), WM_LBUTTONDOWN, 8, y);
                                },
                                [](HWND dialog) {
                                    EXPECT_EQ(DateText(CalendarDate(dialog)), "1/2/2000");
                                    Command(dialog, IDCANCEL);
                                }}));
    EXPECT_EQ(ValueOf(dateEdit), "12/25/1995");
    EXPECT_EQ(ChangesOf(host.TakeNotifications()), Codes{});
}

// ---- Years ----

TEST_F(Popup, ItsArrowsTurnTheYears) {
    HWND dateEdit = Create();
    EXPECT_TRUE(Open(dateEdit, [](HWND dialog) {
        ShowDate(dialog, 1995, 2, 3);
        Command(dialog, 23);
        EXPECT_EQ(DateText(CalendarDate(dialog)), "2/3/1994");
        EXPECT_EQ(TextOf(GetDlgItem(dialog, 14)), "1994");
        Command(dialog, 25);
        Command(dialog, 25);
        EXPECT_EQ(DateText(CalendarDate(dialog)), "2/3/1996");
        EXPECT_EQ(TextOf(GetDlgItem(dialog, 14)), "1996");
        Command(dialog, IDCANCEL);
    }));
    EXPECT_EQ(ValueOf(dateEdit), "12/25/1995") << "the arrows touch the dialog alone";
}

TEST_F(Popup, ItsArrowsEndAtZeroAnd9999) {
    HWND dateEdit = Create();
    EXPECT_TRUE(Open(dateEdit, [](HWND dialog) {
        ShowDate(dialog, 1, 2, 3);
        Command(dialog, 23);
        EXPECT_EQ(DateText(CalendarDate(dialog)), "2/3/0");
        EXPECT_EQ(TextOf(GetDlgItem(dialog, 14)), "1") << "the least that the box takes";
        Command(dialog, 23);
        EXPECT_EQ(DateText(CalendarDate(dialog)), "2/3/0");
        ShowDate(dialog, 9998, 2, 3);
        Command(dialog, 25);
        Command(dialog, 25);
        EXPECT_EQ(DateText(CalendarDate(dialog)), "2/3/9999");
        EXPECT_EQ(TextOf(GetDlgItem(dialog, 14)), "9999");
        Command(dialog, IDCANCEL);
    }));
}

// A press takes the focus, and the focus takes the bit that makes the button repeat: so it clicks
// once when it goes down and once when it comes up. Later presses click once.
TEST_F(Popup, AnArrowsFirstPressStepsTwice) {
    HWND dateEdit = Create();
    EXPECT_TRUE(Open(dateEdit, [](HWND dialog) {
        Click(dialog, 23);
        EXPECT_EQ(DateText(CalendarDate(dialog)), "12/25/1993");
        Click(dialog, 23);
        EXPECT_EQ(DateText(CalendarDate(dialog)), "12/25/1992");
        Command(dialog, IDCANCEL);
    }));
}

TEST_F(Popup, ATypedYearIsTheDateEditsAtOnceAndStaysWhenCancelled) {
    HWND dateEdit = Create();
    host.TakeNotifications();
    EXPECT_TRUE(Open(dateEdit, {[](HWND dialog) {
                                    ShowDate(dialog, 1995, 2, 3);
                                    SetFocus(GetDlgItem(dialog, 14));
                                    SendDlgItemMessageA(dialog, 14, EM_SETSEL, 3, 4);
                                    StrikeKey('8');
                                },
                                [=](HWND dialog) {
                                    EXPECT_EQ(TextOf(GetDlgItem(dialog, 14)), "1998");
                                    EXPECT_EQ(DateText(CalendarDate(dialog)), "12/25/1998")
                                        << "the date edit's month and day";
                                    EXPECT_EQ(dtGetYear(dateEdit), 1998);
                                    Command(dialog, IDCANCEL);
                                }}));
    EXPECT_EQ(DateText(DateOf(dateEdit)), "12/25/1998");
    EXPECT_EQ(ValueOf(dateEdit), "12/25/1995") << "the text follows with the next change";
    EXPECT_EQ(ChangesOf(host.TakeNotifications()), Codes{});
}

TEST_F(Popup, AYearIsFrom1To9999) {
    HWND dateEdit = Create();
    EXPECT_TRUE(Open(dateEdit, [=](HWND dialog) {
        HWND box = GetDlgItem(dialog, 14);
        SetFocus(box);
        SendMessageA(box, EM_SETSEL, 4, 4);
        SendMessageA(box, WM_CHAR, '7', 1);
        EXPECT_EQ(TextOf(box), "9999");
        EXPECT_EQ(dtGetYear(dateEdit), 9999);
        SendMessageA(box, EM_SETSEL, 0, 4);
        SendMessageA(box, WM_CHAR, '0', 1);
        EXPECT_EQ(TextOf(box), "1");
        EXPECT_EQ(dtGetYear(dateEdit), 1);
        EXPECT_EQ(CalendarDate(dialog).year, 1);
        Command(dialog, IDCANCEL);
    }));
}

// ---- Hosts ----

TEST_F(Popup, DoesNotOpenWhenTheHostRefuses) {
    HWND dateEdit = Create();
    static WNDPROC original = nullptr;
    original = reinterpret_cast<WNDPROC>(SetWindowLongPtrA(
        dateEdit, GWLP_WNDPROC,
        reinterpret_cast<LONG_PTR>(
            +[](HWND window, UINT message, WPARAM wParam, LPARAM lParam) -> LRESULT {
                return message == VDTM_OKTOCHANGE
                           ? 0
                           : CallWindowProcA(original, window, message, wParam, lParam);
            })));
    EXPECT_FALSE(Open(dateEdit, [](HWND) {}));
    EXPECT_EQ(ValueOf(dateEdit), "12/25/1995");
}

TEST_F(Popup, EndsWithoutADateEdit) {
    const PopupTest::Step ways[] = {
        [](HWND dialog) { Command(dialog, IDOK); },
        [](HWND dialog) { Command(dialog, 22); },
        [](HWND dialog) { SendMouse(GetDlgItem(dialog, 300), WM_LBUTTONDBLCLK, 10, 4); },
        [](HWND dialog) {
            Command(dialog, 23);
            Command(dialog, 14, EN_CHANGE);
            RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
            Command(dialog, IDCANCEL);
        },
    };
    for (const auto& way : ways) {
        HWND dateEdit = Create();
        host.TakeNotifications();
        EXPECT_TRUE(Open(dateEdit, [&](HWND dialog) {
            DestroyWindow(dateEdit);
            way(dialog);
        }));
        EXPECT_FALSE(IsWindow(dateEdit));
        EXPECT_EQ(ChangesOf(host.TakeNotifications()), Codes{});
    }
}

TEST_F(Popup, MayBeDestroyedByTheHost) {
    HWND dateEdit = Create();
    Open(dateEdit, [](HWND dialog) { EndDialog(dialog, IDOK); });
    EXPECT_EQ(FindPopup(), nullptr);
    EXPECT_EQ(ValueOf(dateEdit), "12/25/1995");
}

TEST_F(Popup, EndsWhenItIsOpenedWithoutARecord) {
    HMODULE module = GetModuleHandleA("VORN32.dll");
    for (const LPARAM parameter : {LPARAM{0}, LPARAM{4}, LPARAM{-1}}) {
        EXPECT_EQ(
            DialogBoxParamA(module, MAKEINTRESOURCEA(110), host.window(), CalendarProc, parameter),
            2);
    }
}

TEST_F(Popup, EachDateEditHasItsOwn) {
    HWND first = Create();
    HWND second = Create(VDTS_NOERASE, 20, 100);
    const DtDate date = {7, 4, 1976};
    dtSetDate(second, &date);
    EXPECT_TRUE(Open(second, [](HWND dialog) {
        EXPECT_EQ(DateText(CalendarDate(dialog)), "7/4/1976");
        EXPECT_FALSE(IsWindowVisible(GetDlgItem(dialog, 22)));
        ShowDate(dialog, 1977, 1, 1);
        Command(dialog, IDOK);
    }));
    EXPECT_TRUE(Open(first, [](HWND dialog) {
        EXPECT_EQ(DateText(CalendarDate(dialog)), "12/25/1995");
        EXPECT_TRUE(IsWindowVisible(GetDlgItem(dialog, 22)));
        Command(dialog, IDCANCEL);
    }));
    EXPECT_EQ(ValueOf(first), "12/25/1995");
    EXPECT_EQ(ValueOf(second), "1/1/1977");
}

} // namespace
