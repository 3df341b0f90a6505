// What outline lists ask of a parent that draws their rows, and tell it.
#include "hierlist/list_record_win.h"
#include "hierlist/list_view_win.h"
#include "tests/windows/support/outline_list.h"

#include <limits>
#include <vector>

namespace vorn::hierlist {
namespace {

using test::kOutlineHeight;
using test::kOutlineId;
using test::kOutlineWidth;
using test::Message;
using test::OutlineListTest;

// The owner-draw messages of a parent, and what it answers.
class HierListOwnerDraw : public OutlineListTest {
protected:
    HierListOwnerDraw() {
        host.answer = [this](const Message& message) { return Answer(message); };
    }

    std::vector<MEASUREITEMSTRUCT> measured;
    std::vector<DRAWITEMSTRUCT> drawn;
    std::vector<std::string> texts; // of the drawn items, as texts
    std::vector<COMPAREITEMSTRUCT> compared;
    std::vector<DELETEITEMSTRUCT> deleted;
    UINT height = 0; // the answer to WM_MEASUREITEM, 0 for none
    bool hasTexts = false;
    bool isMemory = true; // all of it is drawn into memory
    std::function<void(const DRAWITEMSTRUCT&)> draw;

    static Record* In(HWND list) { return RecordOf<Record>(list); }
    static OlbItem* Row(HWND list, std::uint32_t row) {
        return IndexToHandle(In(list)->outline, row);
    }
    static LONG AddValue(HWND list, std::uintptr_t value) {
        return olbAddString(list, reinterpret_cast<const char*>(value));
    }

private:
    template <class Question>
    static Question& In(const Message& message) {
        EXPECT_EQ(message.wParam, WPARAM{kOutlineId});
        auto& question = *reinterpret_cast<Question*>(message.lParam);
        EXPECT_EQ(question.CtlType, UINT{ODT_LISTBOX});
        EXPECT_EQ(question.CtlID, UINT{kOutlineId});
        return question;
    }
    std::optional<LRESULT> Answer(const Message& message) {
        switch (message.message) {
        case WM_MEASUREITEM: {
            auto& question = In<MEASUREITEMSTRUCT>(message);
            measured.push_back(question);
            if (height != 0) {
                question.itemHeight = height;
            }
            return TRUE;
        }
        case WM_DRAWITEM: {
            const auto& question = In<DRAWITEMSTRUCT>(message);
            drawn.push_back(question);
            texts.push_back(hasTexts ? reinterpret_cast<const char*>(question.itemData) : "");
            isMemory = isMemory && GetObjectType(question.hDC) == OBJ_MEMDC;
            if (draw) {
                draw(question);
            }
            return TRUE;
        }
        case WM_COMPAREITEM: {
            const auto& question = In<COMPAREITEMSTRUCT>(message);
            compared.push_back(question);
            return static_cast<LRESULT>(question.itemData1) -
                   static_cast<LRESULT>(question.itemData2);
        }
        case WM_DELETEITEM:
            deleted.push_back(In<DELETEITEMSTRUCT>(message));
            return TRUE;
        default:
            return std::nullopt;
        }
    }
};

TEST_F(HierListOwnerDraw, FixedRowsAreMeasuredOnce) {
    height = 25;
    HWND list = Create(LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    ASSERT_EQ(measured.size(), 1u);
    EXPECT_EQ(measured[0].itemID, 65535u);
    EXPECT_EQ(measured[0].itemWidth, UINT{kOutlineWidth});
    EXPECT_EQ(measured[0].itemHeight, 18u);
    EXPECT_EQ(measured[0].itemData, 0u);
    hasTexts = true;
    olbAddString(list, "one");
    olbAddString(list, "two");
    EXPECT_EQ(measured.size(), 1u);
    ASSERT_GE(drawn.size(), 2u);
    EXPECT_EQ(texts.back(), "two");
    const DRAWITEMSTRUCT& last = drawn.back();
    EXPECT_EQ(last.itemID, 1u);
    EXPECT_EQ(last.itemAction, UINT{ODA_DRAWENTIRE});
    EXPECT_EQ(last.itemState, 0u);
    EXPECT_EQ(last.hwndItem, list);
    EXPECT_TRUE(isMemory);
    EXPECT_EQ(FromPlatform(last.rcItem), (Rect{0, 25, kOutlineWidth, 50}));
}

TEST_F(HierListOwnerDraw, AParentThatDoesNotAnswerGetsTheUsualRows) {
    HWND list = Create(LBS_OWNERDRAWFIXED);
    olbAddString(list, nullptr);
    ASSERT_FALSE(drawn.empty());
    EXPECT_EQ(FromPlatform(drawn.back().rcItem), (Rect{0, 0, kOutlineWidth, 18}));
}

TEST_F(HierListOwnerDraw, FontsLeaveAMeasuredHeightAlone) {
    height = 25;
    HWND list = Create(LBS_OWNERDRAWFIXED);
    SendMessageA(list, WM_SETFONT, 0, FALSE);
    EXPECT_EQ(In(list)->options.rowHeight, 25);
}

TEST_F(HierListOwnerDraw, VariableRowsAreMeasuredEach) {
    HWND list = Create(LBS_OWNERDRAWVARIABLE);
    EXPECT_TRUE(measured.empty());
    for (const UINT answer : {30u, 20u, 40u, 50u}) {
        height = answer;
        AddValue(list, 100 + answer);
    }
    ASSERT_EQ(measured.size(), 4u);
    for (UINT row = 0; row < 4; ++row) {
        EXPECT_EQ(measured[row].itemID, row);
        EXPECT_EQ(measured[row].itemWidth, UINT{kOutlineWidth});
        EXPECT_EQ(measured[row].itemHeight, 18u);
        EXPECT_EQ(measured[row].itemData, 0u);
    }
    drawn.clear();
    RedrawWindow(list, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    ASSERT_EQ(drawn.size(), 4u) << "the last one in part";
    const LONG tops[] = {0, 30, 50, 90, 140};
    const ULONG_PTR values[] = {130, 120, 140, 150};
    for (UINT row = 0; row < 4; ++row) {
        EXPECT_EQ(drawn[row].itemID, row);
        EXPECT_EQ(drawn[row].rcItem.top, tops[row]);
        EXPECT_EQ(drawn[row].rcItem.bottom, tops[row + 1]);
        EXPECT_EQ(drawn[row].itemData, values[row]);
    }
}

TEST_F(HierListOwnerDraw, HiddenRowsAreMeasuredToo) {
    HWND list = Create(LBS_OWNERDRAWVARIABLE | LBS_HASSTRINGS);
    height = 10;
    HOLBITEM parent = olbAddChildStringEx(list, nullptr, "parent");
    height = 33;
    olbAddChildStringEx(list, parent, "child");
    ASSERT_EQ(measured.size(), 2u);
    EXPECT_EQ(measured[1].itemID, UINT{0xFFFFFFFF}) << "it is no row";
    EXPECT_NE(measured[1].itemData, 0u) << "the text's address";
    olbOpenItem(list, 0);
    EXPECT_EQ(drawn.back().rcItem.bottom - drawn.back().rcItem.top, 33);
}

TEST_F(HierListOwnerDraw, RowsInColumnsAreAsWideAsTheColumn) {
    HWND list = Create(LBS_OWNERDRAWVARIABLE | LBS_MULTICOLUMN);
    In(list)->options.columnWidth = 44;
    height = 60;
    AddValue(list, 1);
    AddValue(list, 2);
    EXPECT_EQ(measured.back().itemWidth, 44u);
    EXPECT_EQ(FromPlatform(drawn.back().rcItem), (Rect{44, 0, 88, 60}));
}

TEST_F(HierListOwnerDraw, ItemDataGoesBeforeTheValue) {
    HWND list = Create(LBS_OWNERDRAWFIXED);
    AddValue(list, 5);
    EXPECT_EQ(drawn.back().itemData, 5u);
    for (const LONG_PTR data : {9, 0}) {
        EXPECT_EQ(olbSetItemData(list, 0, data), 0);
        RedrawRow(list, 0);
        EXPECT_EQ(drawn.back().itemData, static_cast<ULONG_PTR>(data));
        EXPECT_EQ(olbGetItemData(list, 0), data);
    }
}

TEST_F(HierListOwnerDraw, StatesAreTold) {
    HWND list = Create(LBS_OWNERDRAWFIXED);
    for (std::uintptr_t i = 1; i <= 3; ++i) {
        AddValue(list, i);
    }
    SetSelected(In(list)->outline, Row(list, 1), true);
    Row(list, 2)->flags |= kFlagCaret;
    drawn.clear();
    RedrawRows(list);
    ASSERT_EQ(drawn.size(), 3u);
    EXPECT_EQ(drawn[0].itemState, 0u);
    EXPECT_EQ(drawn[1].itemState, UINT{ODS_SELECTED});
    EXPECT_EQ(drawn[2].itemState, UINT{ODS_FOCUS});
}

TEST_F(HierListOwnerDraw, OnlyRowsThatNeedItAreDrawn) {
    HWND list = Create(LBS_OWNERDRAWFIXED);
    for (std::uintptr_t i = 1; i <= 50; ++i) {
        AddValue(list, i);
    }
    drawn.clear();
    RedrawRows(list);
    EXPECT_EQ(drawn.size(), 6u) << "five and a part of the sixth";
    drawn.clear();
    RedrawRow(list, 3);
    ASSERT_EQ(drawn.size(), 1u);
    EXPECT_EQ(drawn[0].itemID, 3u);
    drawn.clear();
    RedrawRow(list, 30);
    EXPECT_TRUE(drawn.empty()) << "not in view";
}

TEST_F(HierListOwnerDraw, WhatTheParentDrawsStaysInTheRow) {
    HWND list = Create(LBS_OWNERDRAWFIXED);
    draw = [](const DRAWITEMSTRUCT& question) {
        const RECT all = {0, 0, kOutlineWidth, kOutlineHeight};
        SetDCBrushColor(question.hDC, RGB(200, question.itemID, 0));
        SelectObject(question.hDC, GetStockObject(DC_BRUSH));
        FillRect(question.hDC, &all, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
        SetViewportOrgEx(question.hDC, 5, 5, nullptr);
    };
    AddValue(list, 1);
    AddValue(list, 2);
    const test::Pixels pixels = test::PixelsOf(list);
    EXPECT_EQ(pixels.Count({0, 0, kOutlineWidth, 18}, RGB(200, 0, 0)), kOutlineWidth * 18);
    EXPECT_EQ(pixels.Count({0, 18, kOutlineWidth, 36}, RGB(200, 1, 0)), kOutlineWidth * 18);
    EXPECT_EQ(pixels.At(5, 40), GetSysColor(COLOR_WINDOW));
}

// Regions and viewports are given in device coordinates, which parents take for those of the list.
TEST_F(HierListOwnerDraw, DeviceCoordinatesAreTheListsWhateverIsRepainted) {
    constexpr COLORREF kColor = RGB(9, 100, 200);
    const auto fill = [](HDC context, const RECT& rect) {
        SetDCBrushColor(context, kColor);
        FillRect(context, &rect, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
    };
    const auto byRegion = [&](const DRAWITEMSTRUCT& question) {
        HRGN region = CreateRectRgnIndirect(&question.rcItem);
        SelectClipRgn(question.hDC, region);
        DeleteObject(region);
        fill(question.hDC, {0, 0, kOutlineWidth, kOutlineHeight});
    };
    const auto byViewport = [&](const DRAWITEMSTRUCT& question) {
        SetViewportOrgEx(question.hDC, question.rcItem.left, question.rcItem.top, nullptr);
        fill(question.hDC, {0, 0, kOutlineWidth, test::kRowHeight});
    };
    HWND list = Create(LBS_OWNERDRAWFIXED);
    for (std::uintptr_t i = 1; i <= 5; ++i) {
        AddValue(list, i);
    }
    const RECT row = {0, 54, kOutlineWidth, 72};
    for (const auto& way :
         std::vector<std::function<void(const DRAWITEMSTRUCT&)>>{byRegion, byViewport}) {
        draw = nullptr;
        RedrawRows(list);
        EXPECT_EQ(test::PixelsOf(list).Count(row, kColor), 0);
        draw = way;
        RedrawRow(list, 3);
        EXPECT_EQ(test::PixelsOf(list).Count(row, kColor), kOutlineWidth * 18);
    }
    draw = nullptr;
}

TEST_F(HierListOwnerDraw, TextColorAndFontAreSelected) {
    HWND list = Create(LBS_OWNERDRAWFIXED);
    constexpr COLORREF kText = RGB(200, 0, 100);
    olbSetColor(list, OLBC_TEXT, kText, FALSE);
    int asked = 0;
    draw = [&](const DRAWITEMSTRUCT& question) {
        ++asked;
        EXPECT_EQ(GetTextColor(question.hDC), kText);
        EXPECT_EQ(GetBkMode(question.hDC), TRANSPARENT);
        EXPECT_EQ(GetCurrentObject(question.hDC, OBJ_FONT), GetStockObject(SYSTEM_FONT));
        SetTextColor(question.hDC, 0);
    };
    AddValue(list, 1);
    AddValue(list, 2);
    RedrawRows(list);
    EXPECT_GE(asked, 3);
    draw = nullptr;
}

TEST_F(HierListOwnerDraw, PartsAreDrawnForTheParentAsTheListWould) {
    // A list that draws itself, and one whose parent draws the same with the functions for it.
    const auto fill = [](HWND list) {
        olbShowLines(list, TRUE);
        olbEnableMicroBitmaps(list, TRUE);
        HOLBITEM parent = olbAddChildStringEx(list, nullptr, "a");
        olbAddChildStringEx(list, parent, "b");
        olbAddChildStringEx(list, nullptr, "c");
        olbOpenItem(list, 0);
    };
    HWND own = Create();
    fill(own);
    const test::Pixels expected = test::PixelsOf(own);
    DestroyWindow(own);
    int behind = 0;
    draw = [&](const DRAWITEMSTRUCT& question) {
        const int row = static_cast<int>(question.itemID);
        olbPaintLines(question.hwndItem, question.hDC, row, &question.rcItem);
        behind = olbPaintBitmap(question.hwndItem, question.hDC, row, &question.rcItem);
        RECT rect = question.rcItem;
        rect.left = behind + 3;
        SetBkMode(question.hDC, TRANSPARENT);
        DrawTextA(question.hDC, reinterpret_cast<const char*>(question.itemData), -1, &rect,
                  DT_SINGLELINE | DT_VCENTER);
    };
    HWND list = Create(LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    fill(list);
    EXPECT_EQ(test::Difference(expected, test::PixelsOf(list)), "");
    EXPECT_EQ(behind, 36) << "20 for the box, 16 for the picture";
    draw = nullptr;
}

TEST_F(HierListOwnerDraw, PartsStandOnTheParentsGround) {
    HWND list = Create();
    olbAddString(list, "a");
    const RECT row = {0, 0, 100, 18};
    const COLORREF ground = RGB(1, 200, 3);
    const test::Pixels pixels = test::Drawing(100, 18, ground, [&](HDC context) {
        EXPECT_EQ(olbPaintBitmap(list, context, 0, &row), 16);
        EXPECT_EQ(olbPaintBitmap(list, context, 1, &row), -1) << "no such row";
        EXPECT_EQ(olbPaintBitmap(list, context, 0, nullptr), -1);
        EXPECT_EQ(olbPaintBitmap(host.window(), context, 0, &row), -1);
        EXPECT_EQ(olbPaintLines(list, context, 1, &row), 0);
        EXPECT_EQ(olbPaintLines(list, context, 0, nullptr), 0);
        EXPECT_EQ(olbPaintLines(nullptr, context, 0, &row), 0);
        EXPECT_EQ(olbPaintLines(list, context, 0, &row), 1) << "none are shown";
    });
    EXPECT_EQ(pixels.At(0, 1), ground);
    EXPECT_EQ(pixels.At(2, 4), RGB(0, 0, 0)) << "the card's corner";
    EXPECT_EQ(pixels.Count({16, 0, 100, 18}, ground), 84 * 18);
    // Wherever the place is, there is nothing to reckon wrongly with.
    constexpr LONG kMost = std::numeric_limits<LONG>::max();
    constexpr LONG kLeast = std::numeric_limits<LONG>::min();
    test::Drawing(100, 18, ground, [&](HDC context) {
        for (const RECT& place :
             {RECT{kLeast, kLeast, kMost, kMost}, RECT{kMost, kMost, kLeast, kLeast},
              RECT{kMost, kLeast, kMost, kMost}}) {
            olbPaintLines(list, context, 0, &place);
            EXPECT_EQ(olbPaintBitmap(list, context, 0, &place),
                      (place.left == kMost ? 1 << 28 : -(1 << 28)) + 16);
        }
    });
    olbEnableBitmaps(list, FALSE);
    test::Drawing(100, 18, ground, [&](HDC context) {
        EXPECT_EQ(olbPaintBitmap(list, context, 0, &row), 0) << "nothing to draw";
    });
}

// Of a row that is repainted in part, or that begins left of the window, the ground is taken where
// it is drawn.
TEST_F(HierListOwnerDraw, PartsStandOnTheGroundWhereTheRowIsDrawn) {
    constexpr COLORREF kGround = RGB(1, 200, 3);
    HWND list = Create(LBS_OWNERDRAWFIXED | LBS_HASSTRINGS);
    draw = [](const DRAWITEMSTRUCT& question) {
        SetDCBrushColor(question.hDC, kGround);
        FillRect(question.hDC, &question.rcItem, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
        olbPaintBitmap(question.hwndItem, question.hDC, static_cast<int>(question.itemID),
                       &question.rcItem);
    };
    olbAddString(list, "a");
    const test::Pixels whole = test::PixelsOf(list);
    for (const RECT part : {RECT{6, 0, 40, 18}, RECT{0, 7, 40, 18}, RECT{9, 9, 12, 12}}) {
        InvalidateRect(list, &part, FALSE);
        UpdateWindow(list);
        EXPECT_EQ(test::Difference(whole, test::PixelsOf(list)), "");
    }
    In(list)->offset = 5;
    RedrawRows(list);
    const test::Pixels scrolled = test::PixelsOf(list);
    for (int y = 0; y < 18; ++y) {
        for (int x = 0; x < 20; ++x) {
            ASSERT_EQ(scrolled.At(x, y), whole.At(x + 5, y)) << x << ", " << y;
        }
    }
    draw = nullptr;
}

TEST_F(HierListOwnerDraw, TheParentComparesValues) {
    HWND list = Create(LBS_OWNERDRAWFIXED | LBS_SORT);
    AddValue(list, 20);
    AddValue(list, 10);
    EXPECT_EQ(AddValue(list, 15), 1);
    ASSERT_FALSE(compared.empty());
    EXPECT_EQ(compared[0].hwndItem, list);
    EXPECT_EQ(compared[0].itemID1, 65535u);
    EXPECT_EQ(compared[0].itemData1, 10u);
    EXPECT_EQ(compared[0].itemID2, 0u);
    EXPECT_EQ(compared[0].itemData2, 20u);
}

TEST_F(HierListOwnerDraw, TheParentIsToldOfDeletions) {
    HWND list = Create(LBS_OWNERDRAWFIXED);
    AddValue(list, 1);
    AddValue(list, 2);
    olbSetItemData(list, 1, 77);
    olbDeleteString(list, 1);
    olbDeleteString(list, 0);
    ASSERT_EQ(deleted.size(), 2u);
    EXPECT_EQ(deleted[0].hwndItem, list);
    EXPECT_EQ(deleted[0].itemID, 1u);
    EXPECT_EQ(deleted[0].itemData, 77u);
    EXPECT_EQ(deleted[1].itemID, 0u);
    EXPECT_EQ(deleted[1].itemData, 0u) << "none was set: it is not the value";
}

} // namespace
} // namespace vorn::hierlist
