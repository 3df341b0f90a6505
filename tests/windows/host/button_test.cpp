// The picture button as a host meets it: functions, messages, styles, text, failures.
#include "tests/windows/support/abuse.h"
#include "tests/windows/support/button_host.h"
#include "tests/windows/support/objects.h"
#include "tests/windows/support/pixels.h"

#include <string>

namespace {

using vorn::test::Codes;
using vorn::test::Drawing;
using vorn::test::PumpMessages;
using vorn::test::SendMouse;
using vorn::test::TakeTimer;

class Button : public vorn::test::ButtonTest {};

TEST_F(Button, HasTheDocumentedNumbers) {
    EXPECT_EQ(VBTM_GETSTATE, 1026);
    EXPECT_EQ(VBTM_SETSTYLE, 1028);
    EXPECT_EQ(VBTM_SETBITMAP, 1124);
    EXPECT_EQ(VBTM_STOPREPEAT, 1125);
    EXPECT_EQ(VBTM_SETPICTURE, 1127);
    EXPECT_EQ(VBTM_GETBITMAP, 1128);
    EXPECT_EQ(VBTM_SETCOLORCODE, 1129);
    EXPECT_EQ(BM_GETSTATE, 242);
    EXPECT_EQ(BM_SETSTATE, 243);
    EXPECT_EQ(BM_SETSTYLE, 244);
}

TEST_F(Button, TellsWhetherItIsDownAndHasTheFocus) {
    HWND button = Create();
    const auto expectState = [button](DWORD state) {
        EXPECT_EQ(btnGetState(button), state);
        EXPECT_EQ(SendMessageA(button, BM_GETSTATE, 0, 0), static_cast<LRESULT>(state));
        EXPECT_EQ(SendMessageA(button, VBTM_GETSTATE, 0, 0), static_cast<LRESULT>(state));
    };
    expectState(0);
    btnSetState(button, TRUE);
    expectState(4);
    SetFocus(button);
    expectState(12);
    btnSetState(button, FALSE);
    expectState(8);
    SetFocus(host.window());
    expectState(0);
}

TEST_F(Button, GoesDownAndUpWithoutAClick) {
    HWND button = Create(VBTS_NOTIFY);
    EXPECT_EQ(Told([&] { btnSetState(button, FALSE); }), Codes{}) << "up already";
    EXPECT_EQ(Told([&] { btnSetState(button, 5); }), Codes{VBTN_DOWN});
    EXPECT_EQ(Told([&] { btnSetState(button, TRUE); }), Codes{}) << "down already";
    EXPECT_EQ(Told([&] { btnSetState(button, FALSE); }), Codes{VBTN_UP});
    EXPECT_EQ(Told([&] { EXPECT_EQ(SendMessageA(button, BM_SETSTATE, 1, 0), 0); }),
              Codes{VBTN_DOWN});
    EXPECT_EQ(Told([&] { SendMessageA(button, BM_SETSTATE, 0, 0); }), Codes{VBTN_UP});

    HWND quiet = Create();
    EXPECT_EQ(Told([&] {
                  btnSetState(quiet, TRUE);
                  btnSetState(quiet, FALSE);
              }),
              Codes{});
}

TEST_F(Button, ReplacesStyleBits) {
    const struct {
        DWORD before;
        DWORD bits;
        DWORD after;
    } cases[] = {
        {0x0000, 0x0001, 0x0001}, {0x0601, 0x0000, 0x0000}, {0x4604, 0x0001, 0x4005},
        {0x0003, 0x0200, 0x0203}, {0x0001, 0x0200, 0x0200}, {0x0602, 0x0000, 0x0002},
        {0x0003, 0x0000, 0x0003}, {0x000C, 0x0602, 0x060E},
    };
    HWND button = Create();
    for (const auto& [before, bits, after] : cases) {
        SetStyleBits(button, before);
        EXPECT_EQ(btnSetStyle(button, bits, TRUE), TRUE) << "that of RedrawWindow";
        EXPECT_EQ(StyleBits(button), after);

        SetStyleBits(button, before);
        const LONG style = GetWindowLongA(button, GWL_STYLE);
        EXPECT_EQ(btnSetStyle(button, bits, FALSE), style) << "that of SetWindowLong";
        EXPECT_EQ(StyleBits(button), after);

        for (const UINT message : {UINT{BM_SETSTYLE}, UINT{VBTM_SETSTYLE}}) {
            SetStyleBits(button, before);
            EXPECT_EQ(SendMessageA(button, message, bits, MAKELPARAM(FALSE, TRUE)), 0);
            EXPECT_EQ(StyleBits(button), after);
        }
    }
}

TEST_F(Button, KnowsItsDialogCode) {
    HWND button = Create();
    EXPECT_EQ(SendMessageA(button, WM_GETDLGCODE, 0, 0), 0x2023);
    btnSetStyle(button, VBTS_DEFAULT, TRUE);
    EXPECT_EQ(SendMessageA(button, WM_GETDLGCODE, 0, 0), 0x2013);
}

TEST_F(Button, ShowsAPictureOrASwatch) {
    HWND button = Create(VBTS_SWATCH);
    EXPECT_TRUE(btnEnablePicture(button, TRUE));
    EXPECT_EQ(StyleBits(button), 0x0004u);
    EXPECT_TRUE(btnEnableColorCode(button, 9));
    EXPECT_EQ(StyleBits(button), 0x0008u);
    EXPECT_TRUE(btnEnablePicture(button, FALSE));
    EXPECT_EQ(StyleBits(button), 0x0008u) << "the swatch stays";
    EXPECT_TRUE(btnEnableColorCode(button, FALSE));
    EXPECT_EQ(StyleBits(button), 0x0000u);
    btnEnablePicture(button, TRUE);
    btnEnableColorCode(button, FALSE);
    EXPECT_EQ(StyleBits(button), 0x0004u) << "the picture stays";
}

TEST_F(Button, BorrowsTheHostsBitmap) {
    HBITMAP bitmap = CreateBitmap(10, 10, 1, 1, nullptr);
    HWND button = Create(VBTS_PICTURE);
    EXPECT_EQ(btnGetBitmap(button), nullptr);
    EXPECT_TRUE(btnSetBitmap(button, bitmap));
    EXPECT_EQ(btnGetBitmap(button), bitmap);
    EXPECT_EQ(SendMessageA(button, VBTM_GETBITMAP, 0, 0), reinterpret_cast<LRESULT>(bitmap));
    EXPECT_EQ(SendMessageA(button, VBTM_SETBITMAP, 0, 0), 0);
    EXPECT_EQ(btnGetBitmap(button), nullptr);
    SendMessageA(button, VBTM_SETBITMAP, reinterpret_cast<WPARAM>(bitmap), 0);
    EXPECT_EQ(btnGetBitmap(button), bitmap);
    DestroyWindow(button);
    EXPECT_EQ(GetObjectType(bitmap), DWORD{OBJ_BITMAP});
    DeleteObject(bitmap);
}

TEST_F(Button, BearsABitmapThatIsGone) {
    HWND button = Create(VBTS_PICTURE);
    HBITMAP bitmap = CreateBitmap(10, 10, 1, 1, nullptr);
    DeleteObject(bitmap);
    EXPECT_TRUE(btnSetBitmap(button, bitmap));
    SetStyleBits(button, VBTS_PICTURE | VBTS_PICTUREONLY);
    EXPECT_TRUE(btnSetBitmap(button, bitmap));
    EXPECT_EQ(btnGetBitmap(button), bitmap);
}

TEST_F(Button, AcceptsAMessageThatDoesNothing) {
    HWND button = Create(VBTS_NOTIFY);
    EXPECT_EQ(Told([&] { EXPECT_EQ(SendMessageA(button, 1027, 7, 7), 0); }), Codes{});
    EXPECT_EQ(StyleBits(button), DWORD{VBTS_NOTIFY});
}

TEST_F(Button, StopsARepeatByItsTimer) {
    HWND button = CreateFocused(VBTS_AUTOREPEAT);
    Press(button);
    btnStopRepeat(button);
    EXPECT_FALSE(TakeTimer(button, 1));
    Press(button);
    SendMessageA(button, WM_TIMER, 1, 0);
    EXPECT_EQ(SendMessageA(button, VBTM_STOPREPEAT, 0, 0), 0);
    EXPECT_FALSE(TakeTimer(button, 2));
    Press(button);
    SetStyleBits(button, 0);
    btnStopRepeat(button);
    EXPECT_TRUE(TakeTimer(button, 1)) << "no auto-repeat button any more";
}

std::string TextOf(HWND window, WPARAM size) {
    std::string buffer(400, '#');
    SendMessageA(window, WM_GETTEXT, size, reinterpret_cast<LPARAM>(buffer.data()));
    return buffer.c_str();
}

TEST_F(Button, KeepsItsCaption) {
    HWND button = CreateWindowExA(0, VORN_BUTTON_CLASS, "created", WS_CHILD, 0, 0, 50, 20,
                                  host.window(), nullptr, GetModuleHandleA(nullptr), nullptr);
    EXPECT_EQ(TextOf(button, 100), "created");
    EXPECT_EQ(SendMessageA(button, WM_GETTEXTLENGTH, 0, 0), 7);
    EXPECT_TRUE(SetWindowTextA(button, "set"));
    EXPECT_EQ(TextOf(button, 100), "set");
    EXPECT_EQ(GetWindowTextLengthA(button), 3);
    EXPECT_EQ(SendMessageA(button, WM_SETTEXT, 0, 0), TRUE);
    EXPECT_EQ(GetWindowTextLengthA(button), 0);
}

TEST_F(Button, CutsItsCaptionTo255Characters) {
    const std::string given = std::string(200, 'a') + std::string(100, 'b');
    const std::string kept = given.substr(0, 255);
    HWND created = CreateWindowExA(0, VORN_BUTTON_CLASS, given.c_str(), WS_CHILD, 0, 0, 50, 20,
                                   host.window(), nullptr, GetModuleHandleA(nullptr), nullptr);
    EXPECT_EQ(TextOf(created, 400), kept);
    EXPECT_EQ(SendMessageA(created, WM_GETTEXTLENGTH, 0, 0), 255);
    HWND button = Create();
    SetWindowTextA(button, given.c_str());
    EXPECT_EQ(TextOf(button, 400), kept);
}

TEST_F(Button, WritesItsTerminatorBehindABufferThatIsTooSmall) {
    HWND button = Create();
    SetWindowTextA(button, "caption");
    const struct {
        WPARAM size;
        LRESULT result;
        std::string bytes; // '0' is the terminator
    } cases[] = {{0, 0, "0#########"}, {3, 3, "cap0######"}, {6, 6, "captio0###"},
                 {7, 7, "caption0##"}, {8, 7, "caption0##"}, {100, 7, "caption0##"}};
    for (const auto& given : cases) {
        std::string buffer(10, '#');
        EXPECT_EQ(
            SendMessageA(button, WM_GETTEXT, given.size, reinterpret_cast<LPARAM>(buffer.data())),
            given.result);
        for (char& byte : buffer) {
            byte = byte == '\0' ? '0' : byte;
        }
        EXPECT_EQ(buffer, given.bytes) << given.size;
    }
}

TEST_F(Button, GivesTheFontItWasGiven) {
    HWND button = Create();
    EXPECT_EQ(SendMessageA(button, WM_GETFONT, 0, 0), 0) << "the stock font";
    HFONT font = CreateFontA(20, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    SendMessageA(button, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    EXPECT_EQ(SendMessageA(button, WM_GETFONT, 0, 0), reinterpret_cast<LRESULT>(font));
    SendMessageA(button, WM_SETFONT, 0, TRUE);
    EXPECT_EQ(SendMessageA(button, WM_GETFONT, 0, 0), 0);
    SendMessageA(button, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
    DestroyWindow(button);
    EXPECT_EQ(GetObjectType(font), DWORD{OBJ_FONT}) << "the host's font stays the host's";
    DeleteObject(font);
}

TEST_F(Button, IsClientAreaThroughout) {
    HWND button =
        CreateWindowExA(WS_EX_CLIENTEDGE, VORN_BUTTON_CLASS, "", WS_CHILD | WS_BORDER, 0, 0, 50, 20,
                        host.window(), nullptr, GetModuleHandleA(nullptr), nullptr);
    RECT client{};
    GetClientRect(button, &client);
    EXPECT_EQ(client.right, 50);
    EXPECT_EQ(client.bottom, 20);
}

TEST_F(Button, ErasesWithItsFaceColor) {
    constexpr COLORREF kFace = RGB(10, 200, 30);
    constexpr COLORREF kPaper = RGB(255, 255, 255);
    HWND button = Create(0, 40, 20);
    btnSetColor(button, VORN_COLOR_FACE, kFace);
    const auto erased = Drawing(50, 30, kPaper, [&](HDC context) {
        EXPECT_EQ(SendMessageA(button, WM_ERASEBKGND, reinterpret_cast<WPARAM>(context), 0), 1);
    });
    EXPECT_EQ(erased.Count({0, 0, 40, 20}, kFace), 40 * 20);
    EXPECT_EQ(erased.Count({0, 0, 50, 30}, kPaper), 50 * 30 - 40 * 20);
}

// Counts a button's paints.
WNDPROC buttonProcedure = nullptr;
int paints = 0;

LRESULT CALLBACK CountPaints(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    paints += message == WM_PAINT;
    return CallWindowProcA(buttonProcedure, window, message, wParam, lParam);
}

TEST_F(Button, RepaintsAtOnce) {
    HWND button = Create(VBTS_PICTURE);
    PumpMessages();
    buttonProcedure = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(button, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CountPaints)));
    const auto painted = [](const auto& run) {
        paints = 0;
        run();
        return paints;
    };
    EXPECT_EQ(painted([&] { btnSetState(button, TRUE); }), 1);
    EXPECT_EQ(painted([&] { btnSetState(button, TRUE); }), 0) << "down already";
    EXPECT_EQ(painted([&] { btnSetStyle(button, 0, TRUE); }), 1);
    EXPECT_EQ(painted([&] { btnSetStyle(button, 0, FALSE); }), 0);
    EXPECT_EQ(painted([&] { btnSetPicture(button, 3); }), 1);
    EXPECT_EQ(painted([&] { SendMessageA(button, VBTM_SETPICTURE, 4, 0); }), 1);
    EXPECT_EQ(painted([&] { btnSetBitmap(button, nullptr); }), 1);
    EXPECT_EQ(painted([&] { btnSetColorCode(button, RGB(1, 2, 3)); }), 1);
    EXPECT_EQ(painted([&] { SendMessageA(button, VBTM_SETCOLORCODE, 0, RGB(1, 2, 3)); }), 1);
    EXPECT_EQ(painted([&] { btnSetColor(button, VORN_COLOR_TEXT, RGB(1, 2, 3)); }), 1);
    EXPECT_EQ(painted([&] { EXPECT_TRUE(btnSetColor(button, 99, RGB(1, 2, 3))); }), 1)
        << "an unknown slot repaints too";
    EXPECT_EQ(painted([&] { btnEnablePicture(button, TRUE); }), 1);
    EXPECT_EQ(painted([&] { btnEnableColorCode(button, TRUE); }), 1);
    EXPECT_EQ(painted([&] { SetWindowTextA(button, "new"); }), 1);
    EXPECT_EQ(painted([&] { SendMessageA(button, WM_SETFONT, 0, TRUE); }), 1);
    EXPECT_EQ(painted([&] { SendMessageA(button, WM_SETFONT, 0, FALSE); }), 0);
    EXPECT_EQ(painted([&] { EnableWindow(button, FALSE); }), 1);
    EXPECT_EQ(painted([&] { btnStopRepeat(button); }), 0);
}

void ExpectAllFunctionsAnswerZero(HWND window) {
    HBITMAP bitmap = CreateBitmap(1, 1, 1, 1, nullptr);
    EXPECT_EQ(btnGetState(window), 0u);
    btnSetState(window, TRUE);
    EXPECT_EQ(btnSetStyle(window, 1, TRUE), 0);
    EXPECT_EQ(btnSetStyle(window, 1, FALSE), 0);
    EXPECT_EQ(btnSetPicture(window, 1), 0);
    EXPECT_EQ(btnSetBitmap(window, bitmap), 0);
    EXPECT_EQ(btnGetBitmap(window), nullptr);
    btnStopRepeat(window);
    EXPECT_EQ(btnSetColorCode(window, 1), 0);
    EXPECT_EQ(btnSetColor(window, 0, 1), 0);
    EXPECT_EQ(btnEnablePicture(window, TRUE), 0);
    EXPECT_EQ(btnEnableColorCode(window, TRUE), 0);
    DeleteObject(bitmap);
}

TEST_F(Button, FunctionsAnswerZeroForOtherWindows) {
    ExpectAllFunctionsAnswerZero(nullptr);
    ExpectAllFunctionsAnswerZero(vorn::test::DestroyedWindow());
    ExpectAllFunctionsAnswerZero(reinterpret_cast<HWND>(static_cast<INT_PTR>(-1)));
    ExpectAllFunctionsAnswerZero(GetDesktopWindow());
    HWND foreign = vorn::test::CreateForeignWindow();
    const LONG style = GetWindowLongA(foreign, GWL_STYLE);
    ExpectAllFunctionsAnswerZero(foreign);
    EXPECT_EQ(GetWindowLongA(foreign, GWL_STYLE), style) << "a foreign window is left alone";
    DestroyWindow(foreign);
    ExpectAllFunctionsAnswerZero(host.Create(VORN_PERCENTBAR_CLASS, 0, 0, 0, 50, 50));
}

TEST_F(Button, WorksInAClassOfTheHostsOwn) {
    WNDCLASSA ours{};
    GetClassInfoA(nullptr, VORN_BUTTON_CLASS, &ours);
    ours.lpszClassName = "HostsOwnButton";
    ours.hInstance = GetModuleHandleA(nullptr);
    ours.style &= ~static_cast<UINT>(CS_GLOBALCLASS);
    ASSERT_NE(RegisterClassA(&ours), 0);
    HWND button = host.Create("HostsOwnButton", VBTS_NOTIFY, 0, 0, 100, 30);
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(Press(button), (Codes{VBTN_SETFOCUS, VBTN_DOWN}));
    EXPECT_EQ(Release(button), (Codes{VBTN_UP, VBTN_CLICKED}));
    DestroyWindow(button);
    EXPECT_TRUE(UnregisterClassA("HostsOwnButton", GetModuleHandleA(nullptr)));
}

TEST_F(Button, ASecondCreationMessageChangesNothing) {
    HWND button = Create();
    SetWindowTextA(button, "first");
    btnSetState(button, TRUE);
    CREATESTRUCTA create{};
    create.lpszName = "second";
    EXPECT_EQ(SendMessageA(button, WM_NCCREATE, 0, reinterpret_cast<LPARAM>(&create)), 0);
    EXPECT_EQ(TextOf(button, 100), "first");
    EXPECT_EQ(btnGetState(button), 4u);
}

TEST_F(Button, LivesOnWithoutItsRecord) {
    HWND button = Create(VBTS_NOTIFY | VBTS_PICTURE | VBTS_AUTOREPEAT);
    SendMessageA(button, WM_NCDESTROY, 0, 0);
    ExpectAllFunctionsAnswerZero(button);
    EXPECT_EQ(SendMessageA(button, WM_GETFONT, 0, 0), 0);
    EXPECT_EQ(SendMessageA(button, WM_GETTEXTLENGTH, 0, 0), 0);
    SetFocus(button);
    SendMouse(button, WM_LBUTTONDOWN, 5, 5);
    SendMouse(button, WM_LBUTTONUP, 5, 5);
    SendMessageA(button, WM_KEYDOWN, VK_SPACE, 0);
    SendMessageA(button, WM_KEYUP, VK_SPACE, 0);
    SetFocus(host.window());
    SetWindowTextA(button, "text");
    SendMessageA(button, WM_SETFONT, 0, TRUE);
    InvalidateRect(button, nullptr, TRUE);
    UpdateWindow(button);
    EXPECT_FALSE(GetUpdateRect(button, nullptr, FALSE)) << "painted by the default procedure";
    EXPECT_EQ(host.TakeNotifications(), Codes{});
}

TEST_F(Button, LeavesNoObjectsBehind) {
    HFONT font = CreateFontA(20, 0, 0, 0, FW_NORMAL, 0, 0, 0, 0, 0, 0, 0, 0, "Arial");
    HBITMAP bitmap = CreateBitmap(10, 10, 1, 1, nullptr);
    DWORD style = 0;
    EXPECT_EQ(vorn::test::ObjectsLeftBy([&] {
                  style = (style + 1) % 16;
                  HWND button = Create(style | VBTS_NOTIFY | VBTS_AUTOREPEAT);
                  SendMessageA(button, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
                  btnSetBitmap(button, bitmap);
                  SendMouse(button, WM_LBUTTONDOWN, 5, 5);
                  SendMouse(button, WM_LBUTTONUP, 5, 5);
                  btnSetBitmap(button, nullptr);
                  DestroyWindow(button);
              }),
              "");
    DeleteObject(bitmap);
    DeleteObject(font);
}

TEST_F(Button, BearsRandomMessages) {
    vorn::test::SendRandomMessages([&] { return Create(VBTS_NOTIFY | VBTS_PICTURE); }, 20240902,
                                   20000);
}

} // namespace
