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
