// What a host cannot make fail: the time edit without its record's block and its pictures.
#include "core/memory.h"
#include "tests/windows/support/host_window.h"
#include "tests/windows/support/objects.h"
#include "timeedit/timeedit_win.h"

#include <gtest/gtest.h>
#include <vorn32.h>

namespace vorn::timeedit {
namespace {

TEST(TimeEditRecord, IsInWindowLongEight) {
    test::HostWindow host;
    HWND edit = host.Create(VORN_TIMEEDIT_CLASS, 0, 0, 0, 100, 24);
    EXPECT_EQ(GetWindowLongPtrA(edit, 8), reinterpret_cast<LONG_PTR>(RecordOf<Record>(edit)));
    EXPECT_NE(RecordOf<Record>(edit), nullptr);
}

TEST(TimeEditRecord, StartsWithTheDefaults) {
    test::HostWindow host;
    HWND edit = host.Create(VORN_TIMEEDIT_CLASS, 0, 0, 0, 100, 24);
    const Record& record = *RecordOf<Record>(edit);
    EXPECT_EQ(record.colors.highlight, static_cast<ColorCode>(-21));
    EXPECT_EQ(record.colors.shadow, static_cast<ColorCode>(-17));
    EXPECT_EQ(record.colors.background, static_cast<ColorCode>(-6));
    EXPECT_EQ(record.colors.text, static_cast<ColorCode>(-9));
    EXPECT_EQ(record.colors.face, static_cast<ColorCode>(-16));
    EXPECT_EQ(record.font, GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(record.displayStyle, 0u);
    EXPECT_EQ(record.borderStyle, 0u);
    EXPECT_FALSE(record.readOnly);
    EXPECT_FALSE(record.disabled);
    EXPECT_EQ(record.entry.time.null, 0);
    EXPECT_EQ(record.entry.time.am, record.entry.time.value.hour < 12 ? 1 : 0);
    EXPECT_EQ(record.entry.time.format.showSeconds, 0);
}

TEST(TimeEditRecord, ReadsItsStyle) {
    test::HostWindow host;
    const struct {
        DWORD style;
        std::uint32_t display;
        std::uint32_t border;
    } cases[] = {{0x10, 2, 0},   {0x20, 3, 0},   {0x30, 3, 0},   {0x1000, 0, 2}, {0x2000, 0, 3},
                 {0x4000, 0, 1}, {0x3000, 0, 2}, {0x6000, 0, 3}, {0x7000, 0, 2}};
    for (const auto& [style, display, border] : cases) {
        HWND edit = host.Create(VORN_TIMEEDIT_CLASS, style, 0, 0, 100, 24);
        EXPECT_EQ(RecordOf<Record>(edit)->displayStyle, display) << style;
        EXPECT_EQ(RecordOf<Record>(edit)->borderStyle, border) << style;
        DestroyWindow(edit);
    }
    HWND edit = host.Create(VORN_TIMEEDIT_CLASS, 0x840 | WS_DISABLED, 0, 0, 100, 24);
    EXPECT_TRUE(RecordOf<Record>(edit)->readOnly);
    EXPECT_TRUE(RecordOf<Record>(edit)->disabled);
    EXPECT_EQ(RecordOf<Record>(edit)->entry.time.format.showSeconds, 1);
    EnableWindow(edit, TRUE);
    EXPECT_FALSE(RecordOf<Record>(edit)->disabled);
}

TEST(TimeEditRecord, FailedCreationsLeaveNoObject) {
    test::HostWindow host;
    FailAllocationsAfter(0);
    EXPECT_EQ(test::ObjectsLeftBy([&] {
                  EXPECT_EQ(host.Create(VORN_TIMEEDIT_CLASS, VTMS_DIGITS, 0, 0, 100, 24), nullptr);
              }),
              "");
    FailAllocationsAfter(-1);
}

TEST(TimeEditRecord, OwnsItsDigitsOnlyWhileTheyAreShown) {
    test::HostWindow host;
    HWND edit = host.Create(VORN_TIMEEDIT_CLASS, VTMS_DIGITS, 0, 0, 100, 24);
    const auto digits = RecordOf<Record>(edit)->digits;
    for (HBITMAP picture : digits) {
        EXPECT_EQ(GetObjectType(picture), DWORD{OBJ_BITMAP});
    }
    tmSetDisplayStyle(edit, VTMD_CELLS);
    for (std::size_t index = 0; index < digits.size(); ++index) {
        EXPECT_EQ(GetObjectType(digits[index]), 0u);
        EXPECT_EQ(RecordOf<Record>(edit)->digits[index], nullptr);
    }
    tmSetDisplayStyle(edit, VTMD_DIGITS);
    const auto again = RecordOf<Record>(edit)->digits;
    EXPECT_EQ(GetObjectType(again[0]), DWORD{OBJ_BITMAP});
    DestroyWindow(edit);
    for (HBITMAP picture : again) {
        EXPECT_EQ(GetObjectType(picture), 0u);
    }
}

// Without a picture a digit is written in the font.
TEST(TimeEditRecord, PaintsWithoutItsPictures) {
    test::HostWindow host;
    HWND edit = host.Create(VORN_TIMEEDIT_CLASS, VTMS_DIGITS, 0, 0, 100, 24);
    Record* record = RecordOf<Record>(edit);
    edit::ReleaseEdit(*record);
    InvalidateRect(edit, nullptr, FALSE);
    UpdateWindow(edit);
    EXPECT_FALSE(GetUpdateRect(edit, nullptr, FALSE));
}

} // namespace
} // namespace vorn::timeedit
