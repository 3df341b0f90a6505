// What no host sees of the numeric edit: its pictures, and clipboard and painting without memory.
#include "core/record_win.h"
#include "numeric/numedit_win.h"
#include "tests/windows/support/host_window.h"
#include "tests/windows/support/pixels.h"

#include <gtest/gtest.h>
#include <vector>
#include <vorn32.h>

namespace vorn::numeric {
namespace {

class NumEditInside : public testing::Test {
protected:
    test::HostWindow host;

    HWND Create(DWORD style) { return host.Create(VORN_NUMEDIT_CLASS, style, 10, 20, 80, 24); }
};

std::vector<HBITMAP> PicturesOf(const Record& record) {
    std::vector<HBITMAP> pictures(record.digits.begin(), record.digits.end());
    pictures.push_back(record.spinPicture);
    return pictures;
}

TEST_F(NumEditInside, PicturesGoWithTheWindow) {
    HWND edit = Create(VNMS_SPIN | VNMS_DIGITS);
    const std::vector<HBITMAP> pictures = PicturesOf(*RecordOf<Record>(edit));
    for (HBITMAP picture : pictures) {
        EXPECT_EQ(GetObjectType(picture), DWORD{OBJ_BITMAP});
    }
    DestroyWindow(edit);
    for (HBITMAP picture : pictures) {
        EXPECT_EQ(GetObjectType(picture), 0u);
    }
}

TEST_F(NumEditInside, DigitsAreLoadedForTheirStyleAlone) {
    HWND edit = Create(0);
    Record* record = RecordOf<Record>(edit);
    const auto loaded = [record] { return record->digits[0] != nullptr; };
    EXPECT_FALSE(loaded());
    nmSetDisplayStyle(edit, VNMD_DIGITS);
    EXPECT_TRUE(loaded());
    EXPECT_EQ(record->displayStyle, 2u);
    EXPECT_EQ(record->entry.settings.displayStyle, 2);
    HBITMAP spin = record->spinPicture;
    nmSetDisplayStyle(edit, 9);
    EXPECT_FALSE(loaded());
    EXPECT_EQ(record->displayStyle, 2u) << "only the bits and the pictures go";
    EXPECT_EQ(record->entry.settings.displayStyle, 2);
    EXPECT_EQ(GetObjectType(record->spinPicture), DWORD{OBJ_BITMAP}) << "loaded anew";
    EXPECT_TRUE(spin == record->spinPicture || GetObjectType(spin) == 0);
    nmSetDisplayStyle(edit, VNMD_CELLS);
    EXPECT_FALSE(loaded());
    EXPECT_EQ(record->entry.settings.displayStyle, 3);
}

TEST_F(NumEditInside, MissingPicturesDrawNothing) {
    HWND edit = Create(VNMS_SPIN | VNMS_DIGITS);
    Record* record = RecordOf<Record>(edit);
    for (HBITMAP picture : PicturesOf(*record)) {
        DeleteObject(picture);
    }
    record->spinPicture = nullptr;
    record->digits = {};
    nmSetInteger(edit, 123);
    EXPECT_NE(RedrawWindow(edit, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW), 0);
    const test::Pixels pixels = test::PixelsOf(edit);
    EXPECT_GT(pixels.Count({4, 0, 64, 24}, GetSysColor(COLOR_WINDOWTEXT)), 0)
        << "digits in the font";
}

TEST_F(NumEditInside, TheStyleOfANumberIsKept) {
    HWND edit = Create(VNMS_NUMBER);
    EXPECT_EQ(RecordOf<Record>(edit)->entry.settings.displayStyle, 1);
    HWND both = Create(VNMS_NUMBER | VNMS_DIGITS);
    EXPECT_EQ(RecordOf<Record>(both)->entry.settings.displayStyle, 2) << "digits win";
    HWND all = Create(VNMS_NUMBER | VNMS_DIGITS | VNMS_CELLS);
    EXPECT_EQ(RecordOf<Record>(all)->entry.settings.displayStyle, 3);
    HWND plain = Create(0);
    NmEditParams params{};
    params.formatKind = NM_INTEGER;
    nmSetEditParams(plain, &params);
    EXPECT_EQ(RecordOf<Record>(plain)->entry.settings.displayStyle, 1);
    EXPECT_EQ(RecordOf<Record>(plain)->displayStyle, 1u);
}

TEST_F(NumEditInside, TheRepeatIsCounted) {
    HWND edit = Create(VNMS_SPIN);
    SendMessageA(edit, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(75, 5));
    const SpinState& spin = RecordOf<Record>(edit)->spin;
    EXPECT_EQ(spin.pressed, SpinButton::Up);
    EXPECT_EQ(spin.timer, 1);
    EXPECT_EQ(spin.repeatCount, 0);
    SendMessageA(edit, WM_TIMER, 1, 0);
    EXPECT_EQ(spin.timer, 2);
    EXPECT_EQ(spin.repeatCount, 1);
    SendMessageA(edit, WM_LBUTTONUP, 0, 0);
    EXPECT_EQ(spin.pressed, SpinButton::None);
    EXPECT_EQ(spin.timer, 0);
}

} // namespace
} // namespace vorn::numeric
