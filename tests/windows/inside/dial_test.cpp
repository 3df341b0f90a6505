// What a host cannot make fail: the dial without its record's block, its palette and its bitmap.
#include "controls/dial/dial_win.h"
#include "core/memory.h"
#include "tests/windows/support/host_window.h"
#include "tests/windows/support/objects.h"
#include "tests/windows/support/pixels.h"

#include <gtest/gtest.h>
#include <vorn32.h>

namespace vorn::dial {
namespace {

TEST(DialRecord, FailedCreationsLeaveNoObject) {
    test::HostWindow host;
    FailAllocationsAfter(0);
    EXPECT_EQ(test::ObjectsLeftBy(
                  [&] { EXPECT_EQ(host.Create(VORN_DIAL_CLASS, 0, 0, 0, 50, 50), nullptr); }),
              "");
    FailAllocationsAfter(-1);
}

TEST(DialRecord, OwnsAPaletteOfTheSystemsColors) {
    test::HostWindow host;
    HWND dial = host.Create(VORN_DIAL_CLASS, 0, 0, 0, 50, 50);
    const Record* record = RecordOf<Record>(dial);
    const HPALETTE palette = record->palette;
    const struct {
        UINT shade;
        int color;
    } cases[] = {{0, COLOR_BTNFACE},
                 {64, COLOR_3DDKSHADOW},
                 {128, COLOR_BTNSHADOW},
                 {255, COLOR_BTNHIGHLIGHT}};
    for (const auto& [shade, color] : cases) {
        PALETTEENTRY entry{};
        ASSERT_EQ(GetPaletteEntries(palette, shade, 1, &entry), 1u);
        EXPECT_EQ(RGB(entry.peRed, entry.peGreen, entry.peBlue), GetSysColor(color)) << shade;
    }
    DestroyWindow(dial);
    EXPECT_EQ(GetObjectType(palette), 0u) << "deleted with the dial";
}

TEST(DialRecord, HasAFaceOfTheKnobsSizeForEachSize) {
    test::HostWindow host;
    HWND dial = host.Create(VORN_DIAL_CLASS, 0, 0, 0, 50, 50);
    HBITMAP previous = nullptr;
    for (const int side : {50, 40, 100, 200, 2000}) {
        SetWindowPos(dial, nullptr, 0, 0, side, side, SWP_NOMOVE | SWP_NOZORDER);
        const Record* record = RecordOf<Record>(dial);
        BITMAP face{};
        ASSERT_NE(GetObjectA(record->face, sizeof face, &face), 0) << side;
        const LONG expected = side == 2000 ? 1024 : side - 16;
        EXPECT_EQ(face.bmWidth, expected);
        EXPECT_EQ(face.bmHeight, expected);
        previous = record->face;
    }
    DestroyWindow(dial);
    EXPECT_EQ(GetObjectType(previous), 0u) << "deleted with the dial";
}

// As when there is no memory for it.
TEST(DialRecord, PaintsWithoutAFace) {
    test::HostWindow host;
    HWND dial = host.Create(VORN_DIAL_CLASS, 0, 0, 0, 100, 100);
    Record* record = RecordOf<Record>(dial);
    DeleteObject(record->face);
    record->face = nullptr;
    SetDialPos(dial, 50, TRUE);
    const test::Pixels pixels = test::PixelsOf(dial);
    EXPECT_EQ(pixels.At(50, 46), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(pixels.At(50, 7), RGB(255, 0, 0)) << "the mark is there";
}

TEST(DialRecord, HasNoFaceWithoutRoomForTheKnob) {
    test::HostWindow host;
    HWND dial = host.Create(VORN_DIAL_CLASS, 0, 0, 0, 100, 100);
    RebuildFace(*RecordOf<Record>(dial), 0);
    EXPECT_EQ(RecordOf<Record>(dial)->face, nullptr);
    RebuildFace(*RecordOf<Record>(dial), -16);
    EXPECT_EQ(RecordOf<Record>(dial)->face, nullptr);
    SetDialPos(dial, 50, TRUE);
}

} // namespace
} // namespace vorn::dial
