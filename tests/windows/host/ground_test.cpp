// What controls are painted on when their parent answers the question for it.
#include "tests/windows/support/host_window.h"
#include "tests/windows/support/pixels.h"

#include <gtest/gtest.h>
#include <vorn32.h>

namespace vorn {
namespace {

using test::Message;

constexpr COLORREF kOwn = RGB(1, 2, 3);
constexpr COLORREF kParents = RGB(200, 150, 30);
constexpr COLORREF kEarlier = RGB(0, 255, 0);
constexpr int kWidth = 120;
constexpr int kHeight = 60;

struct Asking {
    const char* className;
    DWORD style;
    UINT question;
    void (*prepare)(HWND); // gives it its own colour, and has it ask
};

constexpr Asking kAsking[] = {
    {VORN_PERCENTBAR_CLASS, VPBS_SCALETEXT, WM_CTLCOLORDLG,
     [](HWND bar) { pbSetColor(bar, VORN_COLOR_BACKGROUND, kOwn); }},
    {VORN_NUMEDIT_CLASS, 0, WM_CTLCOLOREDIT,
     [](HWND edit) { nmSetColor(edit, VORN_COLOR_FACE, kOwn); }},
    {VORN_HIERLIST_CLASS, 0, WM_CTLCOLORLISTBOX,
     [](HWND list) {
         olbSetColor(list, OLBC_BACKGROUND, kOwn, FALSE);
         olbSetFlags(list, 0xFFFF, OLBO_ASKBACKGROUND);
     }},
};

// The corner of a control whose parent answers so, after another control has been painted.
COLORREF CornerOf(const Asking& asking, const std::function<HBRUSH(HDC)>& answer) {
    test::HostWindow host;
    HWND earlier = host.Create(VORN_NUMEDIT_CLASS, 0, 200, 0, kWidth, kHeight);
    HWND control = host.Create(asking.className, asking.style, 0, 0, kWidth, kHeight);
    asking.prepare(control);
    nmSetColor(earlier, VORN_COLOR_FACE, kEarlier);
    EXPECT_EQ(test::PixelsOf(earlier).At(0, 0), kEarlier);
    host.answer = [&](const Message& message) -> std::optional<LRESULT> {
        if (message.message != asking.question ||
            reinterpret_cast<HWND>(message.lParam) != control) {
            return std::nullopt;
        }
        return reinterpret_cast<LRESULT>(answer(reinterpret_cast<HDC>(message.wParam)));
    };
    RedrawWindow(control, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    const test::Pixels pixels = test::PixelsOf(control);
    host.answer = nullptr;
    return pixels.At(kWidth - 1, kHeight - 1);
}

TEST(Ground, IsTheBrushOfTheParent) {
    HBRUSH brush = CreateSolidBrush(kParents);
    for (const Asking& asking : kAsking) {
        EXPECT_EQ(CornerOf(asking, [brush](HDC) { return brush; }), kParents) << asking.className;
    }
    DeleteObject(brush);
}

TEST(Ground, IsTheColorThatTheContextsBrushWasGiven) {
    const auto answer = [](HDC context) {
        SetDCBrushColor(context, kParents);
        return static_cast<HBRUSH>(GetStockObject(DC_BRUSH));
    };
    for (const Asking& asking : kAsking) {
        EXPECT_EQ(CornerOf(asking, answer), kParents) << asking.className;
    }
}

TEST(Ground, IsTheSystemColorWhoseNumberAndOneIsTheAnswer) {
    const auto answer = [](HDC) { return reinterpret_cast<HBRUSH>(UINT_PTR{COLOR_INFOBK + 1}); };
    for (const Asking& asking : kAsking) {
        EXPECT_EQ(CornerOf(asking, answer), GetSysColor(COLOR_INFOBK)) << asking.className;
    }
}

TEST(Ground, IsTheOwnColorWithoutABrush) {
    HBRUSH gone = CreateSolidBrush(kParents);
    DeleteObject(gone);
    for (HBRUSH answer : {HBRUSH{}, gone, reinterpret_cast<HBRUSH>(INT_PTR{-1})}) {
        for (const Asking& asking : kAsking) {
            EXPECT_EQ(CornerOf(asking, [&](HDC) { return answer; }), kOwn)
                << asking.className << " answered " << answer;
        }
    }
}

// Where a hollow brush or the gaps of a hatched one leave the ground open, nothing of an earlier
// paint shows.
TEST(Ground, IsTheOwnColorWhereTheBrushLeavesItOpen) {
    const auto hollow = [](HDC context) {
        SetBkMode(context, TRANSPARENT);
        return static_cast<HBRUSH>(GetStockObject(NULL_BRUSH));
    };
    for (const Asking& asking : kAsking) {
        EXPECT_EQ(CornerOf(asking, hollow), kOwn) << asking.className;
    }
}

TEST(Ground, IsThePatternOfTheParent) {
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, 8, 8);
    HGDIOBJ before = SelectObject(memory, bitmap);
    HBRUSH brush = CreateSolidBrush(kParents);
    const RECT all = {0, 0, 8, 8};
    FillRect(memory, &all, brush);
    SelectObject(memory, before);
    HBRUSH pattern = CreatePatternBrush(bitmap);
    for (const Asking& asking : kAsking) {
        EXPECT_EQ(CornerOf(asking, [pattern](HDC) { return pattern; }), kParents)
            << asking.className;
    }
    DeleteObject(pattern);
    DeleteObject(brush);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
}

} // namespace
} // namespace vorn
