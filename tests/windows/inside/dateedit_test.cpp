// The date edit's record: what no host sees.
#include "core/record_win.h"
#include "date/dateedit_win.h"
#include "tests/windows/support/host_window.h"
#include "tests/windows/support/pixels.h"

#include <gtest/gtest.h>
#include <vorn32.h>

namespace vorn::date {
namespace {

class DateEditRecord : public testing::Test {
protected:
    test::HostWindow host;

    HWND Create(DWORD style = 0) {
        HWND edit = host.Create(VORN_DATEEDIT_CLASS, style, 10, 10, 160, 30);
        dtSetDateString(edit, "1/2/2003");
        UpdateWindow(edit);
        return edit;
    }
    static const Record& Of(HWND edit) { return *RecordOf<Record>(edit); }
};

TEST_F(DateEditRecord, StartsWithTheDefaults) {
    const Record& record = Of(Create());
    EXPECT_EQ(record.colors.highlight, static_cast<ColorCode>(-21));
    EXPECT_EQ(record.colors.shadow, static_cast<ColorCode>(-17));
    EXPECT_EQ(record.colors.background, static_cast<ColorCode>(-6));
    EXPECT_EQ(record.colors.text, static_cast<ColorCode>(-9));
    EXPECT_EQ(record.colors.face, static_cast<ColorCode>(-16));
    EXPECT_EQ(record.dialogColor, static_cast<ColorCode>(-16));
    EXPECT_EQ(record.buttonStyle, 1u);
    EXPECT_FALSE(record.eraseDisabled);
    EXPECT_FALSE(record.rightPartShown);
    EXPECT_FALSE(record.readOnly);
    EXPECT_FALSE(record.disabled);
    EXPECT_EQ(record.displayStyle, 0u);
    EXPECT_EQ(record.borderStyle, 0u);
    EXPECT_EQ(record.font, GetStockObject(SYSTEM_FONT));
}

TEST_F(DateEditRecord, ReadsItsStyle) {
    const Record& record = Of(Create(VDTS_NOERASE | VDTS_CALENDAR | VDTS_READONLY | VDTS_LINE |
                                     VDTS_DIGITS | VDTS_CELLS | WS_DISABLED));
    EXPECT_TRUE(record.eraseDisabled);
    EXPECT_TRUE(record.rightPartShown);
    EXPECT_TRUE(record.readOnly);
    EXPECT_TRUE(record.disabled);
    EXPECT_EQ(record.displayStyle, 3u) << "cells win over digits";
    EXPECT_EQ(record.digits[0], nullptr);
    EXPECT_EQ(record.borderStyle, 1u);
}

TEST_F(DateEditRecord, StoresWhatFunctionsSet) {
    HWND edit = Create();
    const DWORD slots[] = {0, 1, 2, 4, 8, 16};
    for (const DWORD slot : slots) {
        dtSetColor(edit, static_cast<int>(slot), slot + 100);
    }
    const Record& record = Of(edit);
    EXPECT_EQ(record.colors.highlight, 100u);
    EXPECT_EQ(record.colors.shadow, 101u);
    EXPECT_EQ(record.colors.background, 102u);
    EXPECT_EQ(record.colors.text, 104u);
    EXPECT_EQ(record.colors.face, 108u);
    EXPECT_EQ(record.dialogColor, 116u);
    SendMessageA(edit, VDTM_SETDIALOGCOLOR, 0, 7);
    SendMessageA(edit, VDTM_SETBACKGROUNDCOLOR, 0, 8);
    SendMessageA(edit, VDTM_SETTEXTCOLOR, 0, 9);
    EXPECT_EQ(record.dialogColor, 7u);
    EXPECT_EQ(record.colors.background, 8u);
    EXPECT_EQ(record.colors.text, 9u);
    dtSetButtonStyle(edit, 5);
    EXPECT_EQ(record.buttonStyle, 5u);
    SendMessageA(edit, VDTM_SETBUTTONSTYLE, 6, 0);
    EXPECT_EQ(record.buttonStyle, 6u);
    dtEnableErase(edit, FALSE);
    EXPECT_TRUE(record.eraseDisabled);
    dtSetBorderStyle(edit, 9);
    EXPECT_EQ(record.borderStyle, 0u);
}

TEST_F(DateEditRecord, HasPicturesAsLongAsItNeedsThem) {
    HWND edit = Create(VDTS_DIGITS);
    const Record& record = Of(edit);
    HBITMAP digits = record.digits[0];
    for (HBITMAP size : record.digits) {
        EXPECT_EQ(GetObjectType(size), DWORD{OBJ_BITMAP});
    }
    dtSetDisplayStyle(edit, VDTD_CELLS);
    EXPECT_EQ(GetObjectType(digits), 0u);
    EXPECT_EQ(record.digits[2], nullptr);
    dtSetDisplayStyle(edit, VDTD_DIGITS);
    digits = record.digits[2];
    HBITMAP button = record.normalButton;
    EXPECT_EQ(GetObjectType(button), DWORD{OBJ_BITMAP});
    EXPECT_EQ(GetObjectType(record.pressedButton), DWORD{OBJ_BITMAP});
    dtSetDisplayStyle(edit, 9);
    EXPECT_EQ(record.displayStyle, 2u) << "the display style stays";
    EXPECT_EQ(record.digits[2], nullptr);
    dtSetDisplayStyle(edit, VDTD_DIGITS);
    digits = record.digits[2];
    DestroyWindow(edit);
    EXPECT_EQ(GetObjectType(digits), 0u);
    EXPECT_EQ(GetObjectType(button), 0u);
}

TEST_F(DateEditRecord, WithoutItsPicturesItWritesInItsFont) {
    HWND edit = Create(VDTS_DIGITS | VDTS_CALENDAR);
    Record* record = RecordOf<Record>(edit);
    const COLORREF text = GetSysColor(COLOR_WINDOWTEXT);
    const test::Pixels before = test::PixelsOf(edit);
    for (HBITMAP& picture : record->digits) {
        DeleteObject(picture);
        picture = nullptr;
    }
    DeleteObject(record->normalButton);
    record->normalButton = nullptr;
    RedrawWindow(edit, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    const test::Pixels after = test::PixelsOf(edit);
    EXPECT_NE(before, after);
    for (int index = 0; index < 8; ++index) {
        EXPECT_GT(after.Count({4 + index * 12, 0, 16 + index * 12, 30}, text), 0) << index;
    }
}

} // namespace
} // namespace vorn::date
