// The small pieces of the core: names, class table, version numbers, colour codes, rectangles.
#include "core/class_table.h"
#include "core/color.h"
#include "core/geometry.h"
#include "core/names.h"
#include "core/version_number.h"

#include <gtest/gtest.h>
#include <string>

namespace vorn {
namespace {

TEST(Names, ArePlaceholdersBeforeLoading) {
    const NameTables tables = PlaceholderNames();
    const char* numbers[] = {"01", "02", "03", "04", "05", "06",
                             "07", "08", "09", "10", "11", "12"};
    for (std::size_t month = 0; month < kMonths; ++month) {
        EXPECT_EQ(std::string("----*----1---") + numbers[month], tables.longMonths[month]);
        EXPECT_EQ(std::string("0") + numbers[month], tables.shortMonths[month]);
    }
    EXPECT_STREQ(tables.weekdayInitials, "SMTWTFS");
}

TEST(ClassTable, KeepsEachClassAtItsIndex) {
    for (std::size_t i = 0; i < kControlClasses; ++i) {
        EXPECT_EQ(Index(kClassTable[i].id), i);
    }
}

TEST(ClassTable, ExtraBytesHoldTheRecordPointer) {
    for (const ClassDescription& description : kClassTable) {
        if (description.id == ControlClass::Calendar) {
            continue; // keeps three words and no record
        }
        EXPECT_LE(description.recordOffset + static_cast<std::int32_t>(sizeof(void*)),
                  description.extraBytes)
            << description.name;
    }
}

TEST(ClassTable, UnregistersEveryClassOnce) {
    bool seen[kControlClasses] = {};
    for (const ControlClass id : kUnregisterOrder) {
        EXPECT_FALSE(seen[Index(id)]);
        seen[Index(id)] = true;
    }
}

TEST(VersionNumber, PacksTheThreeNumbers) {
    EXPECT_EQ(PackVersion(0x0002000A, 0x00050000), 0x020A0005u); // 2.10.5.0
    EXPECT_EQ(PackVersion(0x00010000, 0x00000000), 0x01000000u); // 1.0.0.0
    EXPECT_EQ(PackVersion(0x00030004, 0x00051234), 0x03040005u) << "the fourth is not used";
}

TEST(VersionNumber, LargeNumbersKeepTheirLowBits) {
    EXPECT_EQ(PackVersion(0x01020000, 0), 0x02000000u) << "major 258";
    EXPECT_EQ(PackVersion(0x00010103, 0), 0x01030000u) << "minor 259";
    EXPECT_EQ(PackVersion(0, 0xFFFF0000), 0x0000FFFFu) << "third 65535";
}

TEST(VersionNumber, ShortFormIsTheHighHalf) {
    EXPECT_EQ(ShortVersion(0x020A0005), 0x020Au);
    EXPECT_EQ(ShortVersion(0xFF00FFFF), 0xFF00u);
}

TEST(ColorCode, SystemColorsAreComplementsOfTheirIndex) {
    EXPECT_EQ(static_cast<std::int32_t>(kWindowColor), -6);
    EXPECT_EQ(static_cast<std::int32_t>(kButtonFaceColor), -16);
    EXPECT_EQ(static_cast<std::int32_t>(kWindowTextColor), -9);
    for (std::int32_t index = 0; index <= 30; ++index) {
        EXPECT_TRUE(IsSystemColor(SystemColor(index)));
        EXPECT_EQ(SystemColorIndex(SystemColor(index)), index);
    }
}

TEST(ColorCode, RgbColorsAreNotSystemColors) {
    EXPECT_FALSE(IsSystemColor(0x00000000));
    EXPECT_FALSE(IsSystemColor(0x00FFFFFF));
    EXPECT_TRUE(IsSystemColor(0x10000000)) << "only bit 28 tells";
}

struct TwoColors {
    ColorCode first = 1;
    ColorCode second = 2;
};
constexpr ColorSlot<TwoColors> kTwoSlots[] = {{4, &TwoColors::first}, {16, &TwoColors::second}};

TEST(ColorSlots, SetOnlyTheFieldOfTheirNumber) {
    TwoColors colors;
    SetColorSlot(colors, kTwoSlots, 16, 77);
    EXPECT_EQ(colors.first, 1u);
    EXPECT_EQ(colors.second, 77u);
}

TEST(ColorSlots, IgnoreUnknownNumbers) {
    TwoColors colors;
    for (const int number : {-1, 0, 5, 17, 1 << 20}) {
        SetColorSlot(colors, kTwoSlots, number, 99);
    }
    EXPECT_EQ(colors.first, 1u);
    EXPECT_EQ(colors.second, 2u);
}

TEST(Geometry, RightAndBottomAreOutside) {
    constexpr Rect rect = {2, 3, 5, 7};
    EXPECT_TRUE(Contains(rect, {2, 3}));
    EXPECT_TRUE(Contains(rect, {4, 6}));
    EXPECT_FALSE(Contains(rect, {5, 6}));
    EXPECT_FALSE(Contains(rect, {4, 7}));
    EXPECT_FALSE(Contains(rect, {1, 3}));
    EXPECT_FALSE(Contains(rect, {2, 2}));
}

TEST(Geometry, GrowsOnAllSides) {
    EXPECT_EQ(Grown({2, 3, 5, 7}, 2), (Rect{0, 1, 7, 9}));
    EXPECT_EQ(Grown({2, 3, 5, 7}, -1), (Rect{3, 4, 4, 6}));
}

} // namespace
} // namespace vorn
