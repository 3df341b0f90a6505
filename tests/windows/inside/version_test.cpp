// Versions of files that have none.
#include "core/version_win.h"

#include <cstdio>
#include <gtest/gtest.h>

namespace vorn {
namespace {

TEST(VersionOfFile, IsZeroWithoutTheFile) {
    EXPECT_EQ(VersionOfFile("no such file.dll"), 0u);
    EXPECT_EQ(VersionOfFile(""), 0u);
}

TEST(VersionOfFile, IsZeroWithoutAVersionResource) {
    constexpr char kName[] = "without version.dll";
    FILE* file = std::fopen(kName, "wb");
    ASSERT_NE(file, nullptr);
    std::fputs("MZ and nothing more", file);
    std::fclose(file);
    EXPECT_EQ(VersionOfFile(kName), 0u);
    std::remove(kName);
}

TEST(VersionOfFile, IsThatOfASystemFile) {
    EXPECT_NE(VersionOfFile("user32.dll"), 0u);
}

} // namespace
} // namespace vorn
