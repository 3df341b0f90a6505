// The dialog that a date edit drops down: its controls, its looks, and what it leaves behind.
#include "tests/windows/host/popup_host.h"
#include "tests/windows/support/input.h"
#include "tests/windows/support/objects.h"
#include "tests/windows/support/pixels.h"

#include <cstring>
#include <tuple>

namespace {

using vorn::test::FindPopup;
using vorn::test::ObjectsLeftBy;
using vorn::test::PixelsOf;
using vorn::test::PopupTest;
using vorn::test::PumpMessages;
using vorn::test::StrikeKey;

class PopupLayout : public PopupTest {};

struct Control {
    int id;
    const char* className;
    const char* text;
    DWORD style;
    RECT units; // left, top, width, height in dialog units
};

constexpr DWORD kShown = WS_CHILD | WS_VISIBLE;

std::tuple<LONG, LONG, LONG, LONG> Sides(const RECT& rect) {
    return {rect.left, rect.top, rect.right, rect.bottom};
}

LONG WidthOf(const RECT& rect) {
    return rect.right - rect.left;
}

LONG HeightOf(const RECT& rect) {
    return rect.bottom - rect.top;
}

TEST_F(PopupLayout, HasItsControls) {
    const Control controls[] = {
        {1, "VORNButton32", "Ok", kShown | WS_TABSTOP | 0x0001, {232, 20, 52, 15}},
        {2, "VORNButton32", "Cancel", kShown | WS_TABSTOP, {232, 40, 52, 15}},
        {22, "VORNButton32", "Blank Date", kShown | WS_TABSTOP, {232, 60, 52, 15}},
        {300, "VORNCalendar32", "", kShown, {7, 19, 214, 199}},
        {500, "Button", "", WS_CHILD | BS_GROUPBOX, {4, -1, 220, 222}},
    };
    HWND dateEdit = Create();
    EXPECT_TRUE(Open(dateEdit, [&](HWND dialog) {
        char title[40] = "";
        GetWindowTextA(dialog, title, sizeof title);
        EXPECT_STREQ(title, "Select Date");
        for (const Control& control : controls) {
            HWND window = GetDlgItem(dialog, control.id);
            char name[40] = "";
            GetClassNameA(window, name, sizeof name);
            EXPECT_STREQ(name, control.className) << control.id;
            EXPECT_EQ(TextOf(window), control.text) << control.id;
            RECT expected = {0, 0, control.units.right, control.units.bottom};
            OffsetRect(&expected, static_cast<int>(control.units.left),
                       static_cast<int>(control.units.top));
            MapDialogRect(dialog, &expected);
            EXPECT_EQ(Sides(PlaceOf(dialog, control.id)), Sides(expected)) << control.id;
            // The default button's bit goes where the focus goes.
            const auto style = static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE));
            EXPECT_EQ(style, control.style) << control.id;
        }
        Command(dialog, IDCANCEL);
    }));
}

TEST_F(PopupLayout, IsOfItsTemplatesSize) {
    HWND dateEdit = Create();
    EXPECT_TRUE(Open(dateEdit, [](HWND dialog) {
        RECT expected = {0, 0, 291, 225};
        MapDialogRect(dialog, &expected);
        RECT client{};
        GetClientRect(dialog, &client);
        EXPECT_EQ(Sides(client), Sides(expected));
        Command(dialog, IDCANCEL);
    }));
}

TEST_F(PopupLayout, CentresTheYearLineAboveTheCalendar) {
    HWND dateEdit = Create();
    EXPECT_TRUE(Open(dateEdit, [](HWND dialog) {
        const RECT calendar = PlaceOf(dialog, 300);
        const RECT previous = PlaceOf(dialog, 23);
        const RECT box = PlaceOf(dialog, 14);
        const RECT next = PlaceOf(dialog, 25);
        const LONG bandTop = PlaceOf(dialog, 500).top;
        const LONG band = calendar.top - bandTop;
        EXPECT_EQ(previous.left, calendar.left - 1);
        EXPECT_EQ(next.right, calendar.right - 1);
        EXPECT_EQ(box.left - calendar.left, (WidthOf(calendar) - WidthOf(box)) / 2);
        for (const RECT& place : {previous, box, next}) {
            EXPECT_EQ(place.top - bandTop, (band - HeightOf(place)) / 2);
        }
        const DWORD style = WS_CHILD | WS_VISIBLE | 0x0200 | 0x0004 | 0x0002;
        for (const int arrow : {23, 25}) {
            HWND window = GetDlgItem(dialog, arrow);
            EXPECT_EQ(static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE)), style);
            BITMAP picture{};
            GetObjectA(btnGetBitmap(window), sizeof picture, &picture);
            EXPECT_EQ(std::tuple(picture.bmWidth, picture.bmHeight), std::tuple(10, 13));
        }
        Command(dialog, IDCANCEL);
    }));
}

TEST_F(PopupLayout, ShowsTheYearBoldAsHighAsTheSystemFont) {
    HWND dateEdit = Create();
    EXPECT_TRUE(Open(dateEdit, [](HWND dialog) {
        const LRESULT handle = SendDlgItemMessageA(dialog, 14, WM_GETFONT, 0, 0);
        LOGFONTA font{};
        ASSERT_NE(GetObjectA(reinterpret_cast<HFONT>(handle), sizeof font, &font), 0);
        EXPECT_STREQ(font.lfFaceName, "Times New Roman");
        EXPECT_EQ(font.lfWeight, 700);
        EXPECT_EQ(font.lfCharSet, DEFAULT_CHARSET);
        EXPECT_EQ(font.lfPitchAndFamily, 0x12);
        HDC screen = GetDC(nullptr);
        TEXTMETRICA system{};
        SelectObject(screen, GetStockObject(SYSTEM_FONT));
        GetTextMetricsA(screen, &system);
        ReleaseDC(nullptr, screen);
        EXPECT_EQ(font.lfHeight, system.tmHeight);
        Command(dialog, IDCANCEL);
    }));
}

TEST_F(PopupLayout, HoldsItsRecordAndFontInProperties) {
    HWND dateEdit = Create();
    EXPECT_TRUE(Open(dateEdit, [=](HWND dialog) {
        const auto valueOf = [dialog](const char* name) {
            HANDLE block = GetPropA(dialog, name);
            EXPECT_EQ(GlobalFlags(block) & GMEM_LOCKCOUNT, 0u) << name << " is not locked";
            EXPECT_GE(GlobalSize(block), sizeof(LONG_PTR)) << name;
            LONG_PTR value = 0;
            std::memcpy(&value, GlobalLock(block), sizeof value);
            GlobalUnlock(block);
            return value;
        };
        EXPECT_EQ(valueOf("Date"), GetWindowLongPtrA(dateEdit, 8));
        EXPECT_EQ(valueOf("Font"), SendDlgItemMessageA(dialog, 14, WM_GETFONT, 0, 0));
        Command(dialog, IDCANCEL);
    }));
}

TEST_F(PopupLayout, KeepsItsOwnCaptionsWithPictureButtons) {
    HWND dateEdit = Create();
    dtSetButtonText(dateEdit, 0, "Yes");
    EXPECT_TRUE(Open(dateEdit, [](HWND dialog) {
        EXPECT_EQ(TextOf(GetDlgItem(dialog, 1)), "Ok");
        Command(dialog, IDCANCEL);
    }));
    dtSetButtonText(dateEdit, 0, "&OK");
}

TEST_F(PopupLayout, MayHaveSystemButtonsWithTheSharedCaptions) {
    HWND dateEdit = Create();
    dtSetButtonStyle(dateEdit, 0);
    dtSetButtonText(dateEdit, 1, "&No");
    EXPECT_TRUE(Open(dateEdit, [](HWND dialog) {
        RECT accept = {232, 20, 284, 35};
        MapDialogRect(dialog, &accept);
        const char* captions[] = {"&OK", "&No", "&Erase"};
        const int ids[] = {1, 2, 22};
        for (int index = 0; index < 3; ++index) {
            HWND button = GetDlgItem(dialog, ids[index]);
            char name[40] = "";
            GetClassNameA(button, name, sizeof name);
            EXPECT_STREQ(name, "Button");
            EXPECT_EQ(TextOf(button), captions[index]);
            const RECT place = PlaceOf(dialog, ids[index]);
            EXPECT_EQ(place.left, accept.left);
            EXPECT_EQ(place.right, accept.right);
            EXPECT_EQ(place.top, accept.top + index * (25 + 8));
            EXPECT_EQ(place.bottom, place.top + 25);
            EXPECT_TRUE(GetWindowLongA(button, GWL_STYLE) & WS_TABSTOP);
        }
        EXPECT_EQ(GetFocus(), GetDlgItem(dialog, 1));
        Command(dialog, IDCANCEL);
    }));
    dtSetButtonText(dateEdit, 1, "&Cancel");
}

TEST_F(PopupLayout, SystemButtonsCanDoWithoutErasing) {
    HWND dateEdit = Create(VDTS_NOERASE);
    dtSetButtonStyle(dateEdit, 0);
    EXPECT_TRUE(Open(dateEdit, [](HWND dialog) {
        EXPECT_TRUE(IsWindowVisible(GetDlgItem(dialog, 1)));
        EXPECT_FALSE(IsWindowVisible(GetDlgItem(dialog, 22)));
        Command(dialog, IDCANCEL);
    }));
}

TEST_F(PopupLayout, SystemButtonsDoTheSame) {
    HWND dateEdit = Create();
    dtSetButtonStyle(dateEdit, 0);
    EXPECT_TRUE(Open(dateEdit, [](HWND dialog) {
        ShowDate(dialog, 2001, 2, 3);
        SendDlgItemMessageA(dialog, 1, BM_CLICK, 0, 0);
    }));
    EXPECT_EQ(ValueOf(dateEdit), "2/3/2001");
    EXPECT_TRUE(
        Open(dateEdit, [](HWND dialog) { SendDlgItemMessageA(dialog, 22, BM_CLICK, 0, 0); }));
    EXPECT_TRUE(dtIsNull(dateEdit));
}

TEST_F(PopupLayout, TabGoesThroughButtonsAndYear) {
    for (const DWORD buttonStyle : {1u, 0u}) {
        HWND dateEdit = Create();
        dtSetButtonStyle(dateEdit, buttonStyle);
        std::vector<int> stops;
        const Step look = [&](HWND) {
            stops.push_back(GetDlgCtrlID(GetFocus()));
            StrikeKey(VK_TAB);
        };
        EXPECT_TRUE(Open(dateEdit, {look, look, look, look, [&](HWND dialog) {
                                        stops.push_back(GetDlgCtrlID(GetFocus()));
                                        Command(dialog, IDCANCEL);
                                    }}));
        EXPECT_EQ(stops, (std::vector<int>{1, 2, 22, 14, 1})) << buttonStyle;
        DestroyWindow(dateEdit);
    }
}

TEST_F(PopupLayout, FillsItselfWithTheDateEditsColor) {
    HWND dateEdit = Create();
    dtSetColor(dateEdit, 16, RGB(10, 200, 30));
    EXPECT_TRUE(Open(dateEdit, {[](HWND) {},
                                [](HWND dialog) {
                                    RECT window{};
                                    GetWindowRect(dialog, &window);
                                    POINT corner = {5, 5};
                                    ClientToScreen(dialog, &corner);
                                    const auto pixels = PixelsOf(dialog);
                                    EXPECT_EQ(pixels.At(static_cast<int>(corner.x - window.left),
                                                        static_cast<int>(corner.y - window.top)),
                                              RGB(10, 200, 30));
                                    Command(dialog, IDCANCEL);
                                }}));
}

TEST_F(PopupLayout, IsWhollyOnTheScreen) {
    HWND dateEdit = Create();
    RECT work{};
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
    const POINT corners[] = {{work.right - 100, work.bottom - 100}, {-200, -200}, {50, 40}};
    for (const POINT& corner : corners) {
        SetWindowPos(host.window(), nullptr, static_cast<int>(corner.x), static_cast<int>(corner.y),
                     0, 0, SWP_NOSIZE | SWP_NOZORDER);
        PumpMessages();
        EXPECT_TRUE(Open(dateEdit, [&](HWND dialog) {
            RECT place{};
            GetWindowRect(dialog, &place);
            RECT inside{};
            IntersectRect(&inside, &place, &work);
            EXPECT_EQ(Sides(inside), Sides(place));
            Command(dialog, IDCANCEL);
        }));
    }
}

TEST_F(PopupLayout, LeavesNothingBehind) {
    const PopupTest::Step ways[] = {
        [](HWND dialog) { Command(dialog, IDOK); },
        [](HWND dialog) { Command(dialog, IDCANCEL); },
        [](HWND dialog) { Command(dialog, 22); },
        [](HWND dialog) { Command(dialog, 300, VCALN_DBLCLK); },
        [](HWND dialog) { EndDialog(dialog, 5); },
    };
    HWND dateEdit = Create();
    std::size_t way = 0;
    EXPECT_EQ(ObjectsLeftBy(
                  [&] {
                      dtSetButtonStyle(dateEdit, static_cast<DWORD>(way % 2));
                      Open(dateEdit, ways[way % std::size(ways)]);
                      ++way;
                  },
                  30),
              "");
}

} // namespace
