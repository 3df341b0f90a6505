// The families of a font selector: any number of them, with and without memory.
#include "core/memory.h"
#include "fontselect/families.h"

#include <gtest/gtest.h>
#include <string>

namespace vorn::fontselect {
namespace {

std::string NameOf(int number) {
    return "Family " + std::to_string(number);
}

TEST(FontFamilies, KeepTheirOrderAndFlags) {
    Families families;
    ASSERT_TRUE(StartFamilies(families));
    EXPECT_TRUE(AddFamily(families, 0x26, "Times"));
    EXPECT_TRUE(AddFamily(families, 0x22, "Roman"));
    EXPECT_TRUE(AddFamily(families, 0x04, "@Arial"));
    ASSERT_EQ(families.count, 3u);
    EXPECT_STREQ(FamilyAt(families, 0)->name, "Times");
    EXPECT_STREQ(FamilyAt(families, 1)->name, "Roman");
    EXPECT_STREQ(FamilyAt(families, 2)->name, "@Arial");
    EXPECT_EQ(FamilyAt(families, 0)->trueType, 4u);
    EXPECT_EQ(FamilyAt(families, 1)->trueType, 0u);
    EXPECT_EQ(FamilyAt(families, 2)->trueType, 4u);
    FreeFamilies(families);
}

TEST(FontFamilies, CutALongName) {
    Families families;
    ASSERT_TRUE(StartFamilies(families));
    AddFamily(families, 0, std::string(31, 'a').c_str());
    AddFamily(families, 0, std::string(32, 'b').c_str());
    AddFamily(families, 0, std::string(500, 'c').c_str());
    EXPECT_EQ(FamilyAt(families, 0)->name, std::string(31, 'a'));
    EXPECT_EQ(FamilyAt(families, 1)->name, std::string(31, 'b'));
    EXPECT_EQ(FamilyAt(families, 2)->name, std::string(31, 'c'));
    FreeFamilies(families);
}

// More than one block of memory could ever hold.
TEST(FontFamilies, MayBeThousands) {
    const std::uint32_t before = BlockCount();
    Families families;
    ASSERT_TRUE(StartFamilies(families));
    constexpr int kCount = 5000;
    for (int i = 0; i < kCount; ++i) {
        ASSERT_TRUE(AddFamily(families, static_cast<std::uint8_t>(i), NameOf(i).c_str()));
    }
    ASSERT_EQ(families.count, 5000u);
    for (int i = 0; i < kCount; ++i) {
        const Family* family = FamilyAt(families, static_cast<std::uint32_t>(i));
        ASSERT_EQ(family->name, NameOf(i));
        ASSERT_EQ(family->trueType, static_cast<std::uint32_t>(i & 4));
    }
    FreeFamilies(families);
    EXPECT_EQ(BlockCount(), before);
}

TEST(FontFamilies, HaveNoneBeyondTheLast) {
    Families families;
    EXPECT_EQ(FamilyAt(families, 0), nullptr) << "no block";
    ASSERT_TRUE(StartFamilies(families));
    EXPECT_EQ(FamilyAt(families, 0), nullptr);
    AddFamily(families, 0, "one");
    EXPECT_NE(FamilyAt(families, 0), nullptr);
    EXPECT_EQ(FamilyAt(families, 1), nullptr);
    EXPECT_EQ(FamilyAt(families, 0xFFFFFFFF), nullptr);
    FreeFamilies(families);
    EXPECT_EQ(families.count, 0u);
    EXPECT_EQ(FamilyAt(families, 0), nullptr);
}

TEST(FontFamilies, StayAsTheyAreWithoutMemory) {
    const std::uint32_t before = BlockCount();
    FailAllocationsAfter(0);
    Families families;
    EXPECT_FALSE(StartFamilies(families));
    EXPECT_FALSE(AddFamily(families, 0, "no block to be in"));
    EXPECT_EQ(families.count, 0u);

    FailAllocationsAfter(2); // two blocks
    ASSERT_TRUE(StartFamilies(families));
    std::uint32_t added = 0;
    while (AddFamily(families, 0, NameOf(static_cast<int>(added)).c_str())) {
        ++added;
        ASSERT_LT(added, 10000u);
    }
    EXPECT_GT(added, 0u);
    EXPECT_EQ(families.count, added);
    EXPECT_EQ(BlockCount(), before + 2);
    EXPECT_FALSE(AddFamily(families, 0, "still none"));

    FailAllocationsAfter(-1);
    EXPECT_TRUE(AddFamily(families, 0, "again"));
    EXPECT_STREQ(FamilyAt(families, added)->name, "again");
    EXPECT_EQ(FamilyAt(families, added - 1)->name, NameOf(static_cast<int>(added) - 1));
    FreeFamilies(families);
    EXPECT_EQ(BlockCount(), before);
}

TEST(FontFamilies, AreFreedOnce) {
    const std::uint32_t before = BlockCount();
    Families families;
    FreeFamilies(families);
    ASSERT_TRUE(StartFamilies(families));
    FreeFamilies(families);
    FreeFamilies(families);
    EXPECT_EQ(BlockCount(), before);
    EXPECT_FALSE(AddFamily(families, 0, "gone"));
}

} // namespace
} // namespace vorn::fontselect
