// The percent bar as a host meets it: functions, messages, styles, failures.
#include "tests/windows/support/abuse.h"
#include "tests/windows/support/host_window.h"
#include "tests/windows/support/objects.h"

#include <gtest/gtest.h>
#include <vector>
#include <vorn32.h>

namespace {

using vorn::test::HostWindow;
using vorn::test::Message;
using vorn::test::PumpMessages;

class PercentBar : public testing::Test {
protected:
    HostWindow host;

    HWND Create(DWORD style, int width = 200, int height = 20) {
        return host.Create(VORN_PERCENTBAR_CLASS, style, 10, 10, width, height);
    }

    static DWORD StyleOf(HWND window) {
        return static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE)) & 0xFF;
    }
};

TEST_F(PercentBar, StartsAtNoneOfAHundred) {
    HWND bar = Create(0);
    EXPECT_EQ(pbGetProgress(bar), 0);
    EXPECT_EQ(pbGetLimit(bar), 100);
}

TEST_F(PercentBar, CutsTheProgressToTheLimit) {
    HWND bar = Create(0);
    EXPECT_TRUE(pbSetProgress(bar, 150));
    EXPECT_EQ(pbGetProgress(bar), 100);
    EXPECT_TRUE(pbSetLimit(bar, 60));
    EXPECT_EQ(pbGetLimit(bar), 60);
    EXPECT_EQ(pbGetProgress(bar), 60);
    pbSetProgress(bar, -5);
    EXPECT_EQ(pbGetProgress(bar), -5) << "there is no lower bound";
}

TEST_F(PercentBar, AnswersItsMessages) {
    HWND bar = Create(0);
    EXPECT_EQ(SendMessageA(bar, VPBM_SETLIMIT, 0, 40), 0);
    EXPECT_EQ(SendMessageA(bar, VPBM_SETPROGRESS, 0, 25), 0);
    EXPECT_EQ(pbGetLimit(bar), 40);
    EXPECT_EQ(pbGetProgress(bar), 25);
    EXPECT_EQ(SendMessageA(bar, VPBM_GETPROGRESS, 0, 0), 25);
    EXPECT_EQ(SendMessageA(bar, VPBM_GETLIMIT, 0, 0), 40);
    SendMessageA(bar, VPBM_SETPROGRESS, 0, -3);
    EXPECT_EQ(SendMessageA(bar, VPBM_GETPROGRESS, 0, 0), -3);
}

TEST_F(PercentBar, HasTheDocumentedMessageNumbers) {
    const UINT messages[] = {VPBM_SETLIMIT,           VPBM_SETPROGRESS,  VPBM_SETBARCOLOR,
                             VPBM_SETBACKGROUNDCOLOR, VPBM_SETFILLCOLOR, VPBM_SETTEXTCOLOR,
                             VPBM_SETPERCENTFONT,     VPBM_GETPROGRESS,  VPBM_GETLIMIT};
    UINT expected = 1024;
    for (const UINT message : messages) {
        EXPECT_EQ(message, expected++);
    }
}

TEST_F(PercentBar, ExportsTheFontFunctionUnderItsDecoratedNameToo) {
    HMODULE module = GetModuleHandleA("VORN32.dll");
    const FARPROC decorated = GetProcAddress(module, "_pbSetPercentFont@8");
    ASSERT_NE(decorated, nullptr);
    EXPECT_EQ(decorated, GetProcAddress(module, "pbSetPercentFont"));
}

TEST_F(PercentBar, KeepsTheStyleBitsInStep) {
    HWND bar = Create(VPBS_SUNKEN);
    pbSetBorderStyle(bar, VORN_BORDER_LINE);
    EXPECT_EQ(StyleOf(bar), 0x04u);
    pbSetBorderStyle(bar, VORN_BORDER_RAISED);
    EXPECT_EQ(StyleOf(bar), 0x02u);
    pbSetBorderStyle(bar, VORN_BORDER_SUNKEN);
    EXPECT_EQ(StyleOf(bar), 0x01u);
    pbSetBorderStyle(bar, 7);
    EXPECT_EQ(StyleOf(bar), 0x00u);

    pbEnableTickMarks(bar, TRUE);
    EXPECT_EQ(StyleOf(bar), 0x08u);
    pbEnableText(bar, 5);
    EXPECT_EQ(StyleOf(bar), 0x18u);
    pbEnablePercent(bar, TRUE);
    EXPECT_EQ(StyleOf(bar), 0x38u);
    pbEnableTickMarks(bar, FALSE);
    pbEnableText(bar, FALSE);
    pbEnablePercent(bar, FALSE);
    EXPECT_EQ(StyleOf(bar), 0x00u);
}

TEST_F(PercentBar, GivesTheFontItWasGiven) {
    HWND bar = Create(VPBS_SCALETEXT);
    EXPECT_EQ(SendMessageA(bar, WM_GETFONT, 0, 0), 0) << "a fresh control";
    HFONT font = CreateFontA(20, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    SendMessageA(bar, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    EXPECT_EQ(SendMessageA(bar, WM_GETFONT, 0, 0), reinterpret_cast<LRESULT>(font));
    pbSetPercentFont(bar, font);
    SendMessageA(bar, VPBM_SETPERCENTFONT, 0, 0);
    EXPECT_EQ(SendMessageA(bar, WM_GETFONT, 0, 0), reinterpret_cast<LRESULT>(font))
        << "the percentage's font is another one";
    SendMessageA(bar, WM_SETFONT, 0, TRUE);
    EXPECT_EQ(SendMessageA(bar, WM_GETFONT, 0, 0), 0);
    DestroyWindow(bar);
    EXPECT_EQ(GetObjectType(font), DWORD{OBJ_FONT}) << "the host's font stays the host's";
    DeleteObject(font);
}

TEST_F(PercentBar, KeepsItsTextAsAnyWindowDoes) {
    HWND bar = CreateWindowExA(0, VORN_PERCENTBAR_CLASS, "copying", WS_CHILD, 0, 0, 50, 20,
                               host.window(), nullptr, GetModuleHandleA(nullptr), nullptr);
    char text[20] = "";
    GetWindowTextA(bar, text, sizeof text);
    EXPECT_STREQ(text, "copying");
}

TEST_F(PercentBar, IsClientAreaThroughout) {
    HWND bar =
        CreateWindowExA(WS_EX_CLIENTEDGE, VORN_PERCENTBAR_CLASS, "", WS_CHILD | WS_BORDER, 0, 0, 50,
                        20, host.window(), nullptr, GetModuleHandleA(nullptr), nullptr);
    RECT client{};
    GetClientRect(bar, &client);
    EXPECT_EQ(client.right, 50);
    EXPECT_EQ(client.bottom, 20);
    EXPECT_EQ(SendMessageA(bar, WM_NCPAINT, 1, 0), 0);
}

TEST_F(PercentBar, SuppressesBackgroundErasing) {
    HWND bar = Create(0);
    HDC context = GetDC(bar);
    EXPECT_EQ(SendMessageA(bar, WM_ERASEBKGND, reinterpret_cast<WPARAM>(context), 0), 1);
    ReleaseDC(bar, context);
}

// The update rectangles of the control's repaints.
std::vector<RECT> updates;
WNDPROC barProcedure = nullptr;

LRESULT CALLBACK RecordUpdates(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_PAINT) {
        RECT update{};
        GetUpdateRect(window, &update, FALSE);
        updates.push_back(update);
    }
    return CallWindowProcA(barProcedure, window, message, wParam, lParam);
}

TEST_F(PercentBar, ProgressRepaintsTheBarAlone) {
    HWND bar = Create(VPBS_SUNKEN | VPBS_SCALETEXT, 220, 60);
    PumpMessages();
    updates.clear();
    barProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(bar, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(RecordUpdates)));

    TEXTMETRICA metrics{};
    HDC context = GetDC(nullptr);
    SelectObject(context, GetStockObject(SYSTEM_FONT));
    GetTextMetricsA(context, &metrics);
    ReleaseDC(nullptr, context);
    const RECT expected = {metrics.tmMaxCharWidth + 2, 2, 220 - metrics.tmMaxCharWidth - 2,
                           60 - metrics.tmHeight - metrics.tmAscent - metrics.tmInternalLeading -
                               2};

    for (int progress = 1; progress <= 100; ++progress) {
        EXPECT_TRUE(pbSetProgress(bar, progress));
    }
    ASSERT_EQ(updates.size(), 100u) << "each is painted at once";
    for (const RECT& update : updates) {
        EXPECT_TRUE(EqualRect(&update, &expected))
            << update.left << " " << update.top << " " << update.right << " " << update.bottom;
    }
}

TEST_F(PercentBar, OtherSettingsRepaintTheWholeControl) {
    HWND bar = Create(VPBS_SUNKEN | VPBS_SCALETEXT, 220, 60);
    PumpMessages();
    updates.clear();
    barProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(bar, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(RecordUpdates)));
    pbSetLimit(bar, 50);
    pbSetColor(bar, 4, RGB(255, 0, 0));
    pbSetColor(bar, 99, RGB(255, 0, 0));
    pbSetBorderStyle(bar, 1);
    pbEnableText(bar, TRUE);
    pbEnableTickMarks(bar, TRUE);
    pbEnablePercent(bar, TRUE);
    pbSetPercentFont(bar, nullptr);
    SendMessageA(bar, WM_SETFONT, 0, TRUE);
    ASSERT_EQ(updates.size(), 9u) << "an unknown colour slot repaints too";
    for (const RECT& update : updates) {
        EXPECT_EQ(update.left, 0);
        EXPECT_EQ(update.top, 0);
        EXPECT_EQ(update.right, 220);
        EXPECT_EQ(update.bottom, 60);
    }
    updates.clear();
    SendMessageA(bar, WM_SETFONT, 0, FALSE);
    EXPECT_TRUE(updates.empty()) << "not asked to redraw";
}

void ExpectAllFunctionsAnswerZero(HWND window) {
    EXPECT_EQ(pbSetLimit(window, 1), 0);
    EXPECT_EQ(pbGetLimit(window), 0);
    EXPECT_EQ(pbSetProgress(window, 1), 0);
    EXPECT_EQ(pbGetProgress(window), 0);
    EXPECT_EQ(pbSetColor(window, 0, 0), 0);
    EXPECT_EQ(pbSetBorderStyle(window, 1), 0);
    EXPECT_EQ(pbEnableText(window, TRUE), 0);
    EXPECT_EQ(pbEnableTickMarks(window, TRUE), 0);
    EXPECT_EQ(pbEnablePercent(window, TRUE), 0);
    EXPECT_EQ(pbSetPercentFont(window, nullptr), 0);
}

TEST_F(PercentBar, FunctionsAnswerZeroForOtherWindows) {
    ExpectAllFunctionsAnswerZero(nullptr);
    ExpectAllFunctionsAnswerZero(vorn::test::DestroyedWindow());
    ExpectAllFunctionsAnswerZero(reinterpret_cast<HWND>(static_cast<INT_PTR>(-1)));
    ExpectAllFunctionsAnswerZero(GetDesktopWindow());
    HWND foreign = vorn::test::CreateForeignWindow();
    const LONG style = GetWindowLongA(foreign, GWL_STYLE);
    ExpectAllFunctionsAnswerZero(foreign);
    EXPECT_EQ(GetWindowLongA(foreign, GWL_STYLE), style) << "a foreign window is left alone";
    DestroyWindow(foreign);
    ExpectAllFunctionsAnswerZero(host.Create(VORN_DIAL_CLASS, 0, 0, 0, 50, 50));
}

TEST_F(PercentBar, FunctionsAnswerZeroForAHostsOwnClassOfTheSameName) {
    WNDCLASSA theirs{};
    theirs.lpfnWndProc = DefWindowProcA;
    theirs.cbWndExtra = 48;
    theirs.hInstance = GetModuleHandleA(nullptr);
    theirs.lpszClassName = VORN_PERCENTBAR_CLASS;
    ASSERT_NE(RegisterClassA(&theirs), 0);
    HWND window = Create(0);
    for (int offset = 0; offset < 48; offset += 4) {
        SetWindowLongA(window, offset, 0x5A5A5A5A);
    }
    ExpectAllFunctionsAnswerZero(window);
    DestroyWindow(window);
    EXPECT_TRUE(UnregisterClassA(VORN_PERCENTBAR_CLASS, GetModuleHandleA(nullptr)));
}

TEST_F(PercentBar, WorksInAClassOfTheHostsOwn) {
    WNDCLASSA ours{};
    GetClassInfoA(nullptr, VORN_PERCENTBAR_CLASS, &ours);
    ours.lpszClassName = "HostsOwnBar";
    ours.hInstance = GetModuleHandleA(nullptr);
    ours.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
    ASSERT_NE(RegisterClassA(&ours), 0);
    HWND bar = host.Create("HostsOwnBar", VPBS_PERCENT, 0, 0, 100, 20);
    ASSERT_NE(bar, nullptr);
    EXPECT_TRUE(pbSetProgress(bar, 42));
    EXPECT_EQ(pbGetProgress(bar), 42);
    DestroyWindow(bar);
    EXPECT_TRUE(UnregisterClassA("HostsOwnBar", GetModuleHandleA(nullptr)));
}

TEST_F(PercentBar, BearsAParentThatDestroysItWhilePainting) {
    for (int round = 0; round < 20; ++round) {
        HWND bar = nullptr;
        host.answer = [&](const Message& message) -> std::optional<LRESULT> {
            if (message.message == WM_CTLCOLORDLG && bar != nullptr) {
                DestroyWindow(bar);
            }
            return std::nullopt;
        };
        HWND created = Create(VPBS_SUNKEN | VPBS_PERCENT | VPBS_SCALETEXT | VPBS_TICKMARKS);
        bar = created;
        pbSetProgress(created, 50);
        EXPECT_FALSE(IsWindow(created));
        ExpectAllFunctionsAnswerZero(created);
    }
}

UINT destroyIn = 0;

LRESULT CALLBACK DestroyWhenAsked(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == destroyIn) {
        DestroyWindow(window);
        return 0;
    }
    return CallWindowProcA(barProcedure, window, message, wParam, lParam);
}

// The messages that begin a paint reach a host's subclass before the control paints.
TEST_F(PercentBar, BearsASubclassThatDestroysItAsAPaintBegins) {
    for (const UINT message : {WM_NCPAINT, WM_ERASEBKGND, WM_STYLECHANGING, WM_STYLECHANGED}) {
        HWND bar = Create(VPBS_SUNKEN | VPBS_PERCENT);
        PumpMessages();
        destroyIn = message;
        barProcedure = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrA(bar, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(DestroyWhenAsked)));
        pbEnableText(bar, TRUE);
        if (IsWindow(bar)) {
            RedrawWindow(bar, nullptr, nullptr,
                         RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_UPDATENOW);
        }
        EXPECT_FALSE(IsWindow(bar)) << message;
    }
}

TEST_F(PercentBar, BearsAParentThatRepaintsItWhilePainting) {
    HWND bar = Create(VPBS_PERCENT);
    PumpMessages();
    int asked = 0;
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message == WM_CTLCOLORDLG && ++asked <= 3) {
            pbSetProgress(bar, 50 + asked);
        }
        return std::nullopt;
    };
    pbSetProgress(bar, 10);
    EXPECT_EQ(asked, 1) << "the repaint within a repaint waits";
    PumpMessages();
    EXPECT_EQ(asked, 4) << "three more, each asked for by the one before";
    EXPECT_EQ(pbGetProgress(bar), 53);
}

TEST_F(PercentBar, ASecondCreationMessageChangesNothing) {
    HWND bar = Create(0);
    pbSetProgress(bar, 12);
    CREATESTRUCTA create{};
    create.lpszName = "";
    EXPECT_EQ(SendMessageA(bar, WM_NCCREATE, 0, reinterpret_cast<LPARAM>(&create)), 0);
    EXPECT_EQ(pbGetProgress(bar), 12);
}

TEST_F(PercentBar, LivesOnWithoutItsRecord) {
    HWND bar = Create(VPBS_PERCENT);
    SendMessageA(bar, WM_NCDESTROY, 0, 0);
    ExpectAllFunctionsAnswerZero(bar);
    EXPECT_EQ(SendMessageA(bar, WM_GETFONT, 0, 0), 0);
    SendMessageA(bar, WM_SETFONT, 0, TRUE);
    InvalidateRect(bar, nullptr, TRUE);
    UpdateWindow(bar);
    EXPECT_FALSE(GetUpdateRect(bar, nullptr, FALSE)) << "painted by the default procedure";
}

TEST_F(PercentBar, LeavesNoObjectsBehind) {
    HFONT font = CreateFontA(20, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    EXPECT_EQ(vorn::test::ObjectsLeftBy([&] {
                  HWND bar =
                      Create(VPBS_SUNKEN | VPBS_PERCENT | VPBS_SCALETEXT | VPBS_TICKMARKS, 100, 60);
                  SendMessageA(bar, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
                  pbSetBorderStyle(bar, VORN_BORDER_RAISED);
                  pbSetProgress(bar, 50);
                  DestroyWindow(bar);
              }),
              "");
    DeleteObject(font);
}

TEST_F(PercentBar, BearsRandomMessages) {
    vorn::test::SendRandomMessages(
        [&] { return Create(VPBS_SUNKEN | VPBS_PERCENT | VPBS_SCALETEXT | VPBS_TICKMARKS); },
        20240811, 20000);
}

} // namespace
