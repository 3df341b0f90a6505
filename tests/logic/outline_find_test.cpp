// Searching and naming.
#include "tests/support/outline_host.h"

#include <gtest/gtest.h>

namespace vorn::hierlist::test {
namespace {

constexpr std::uint32_t kFromFirst = kNoRow;

// Closed, with ann, bob, anna and bob again.
struct Names : TestHost {
    OlbItem* p = Add(nullptr, "p");
    OlbItem* ann = Add(p, "ann");
    OlbItem* bob = Add(p, "bob");
    OlbItem* anna = Add(p, "anna");
    OlbItem* bob2 = Add(p, "bob");

    OlbItem* Find(std::uint32_t start, const char* text, bool exact = false) {
        return FindString(outline, p, start, text, exact);
    }
};

TEST(OutlineFind, BeginningOfATextByteForByte) {
    Names host;
    EXPECT_EQ(host.Find(kFromFirst, "b"), host.bob);
    EXPECT_EQ(host.Find(kFromFirst, "an"), host.ann);
    EXPECT_EQ(host.Find(kFromFirst, "anna"), host.anna);
    EXPECT_EQ(host.Find(kFromFirst, "B"), NoItem());
    EXPECT_EQ(host.Find(kFromFirst, "annabel"), NoItem()) << "longer than any";
    EXPECT_EQ(host.Find(kFromFirst, ""), host.ann) << "every text begins so";
    EXPECT_EQ(host.Find(kFromFirst, nullptr), host.ann);
}

TEST(OutlineFind, WholeText) {
    Names host;
    EXPECT_EQ(host.Find(kFromFirst, "anna", true), host.anna);
    EXPECT_EQ(host.Find(kFromFirst, "an", true), NoItem());
    EXPECT_EQ(host.Find(kFromFirst, "ANN", true), NoItem());
}

TEST(OutlineFind, BeginsBehindTheStartAndWrapsThroughIt) {
    Names host;
    EXPECT_EQ(host.Find(0, "ann"), host.anna) << "child 1 on";
    EXPECT_EQ(host.Find(1, "bob"), host.bob2);
    EXPECT_EQ(host.Find(0, "bob"), host.bob) << "child start + 1 is not skipped";
    EXPECT_EQ(host.Find(2, "ann"), host.ann) << "around the end";
    EXPECT_EQ(host.Find(2, "anna"), host.anna) << "the start itself, last of all";
    EXPECT_EQ(host.Find(3, "bob"), host.bob);
    EXPECT_EQ(host.Find(3, "x"), NoItem());
    EXPECT_EQ(host.Find(99, "bob"), host.bob) << "past the end: from the first";
    EXPECT_EQ(host.Find(kFromFirst - 1, "bob"), host.bob);
}

TEST(OutlineFind, AmongTheChildrenOfAnOpenParentFindsNothing) {
    Names host;
    host.OpenItem(host.p);
    EXPECT_EQ(host.Find(kFromFirst, "bob"), NoItem());
    EXPECT_EQ(FindString(host.outline, host.bob, kFromFirst, "", false), NoItem()) << "childless";
    EXPECT_EQ(FindString(host.outline, NoItem(), kFromFirst, "", false), NoItem());
}

TEST(OutlineFind, AtTheTopStartIsARow) {
    TestHost host;
    host.outline.autoOpen = true;
    OlbItem* a = host.Add(nullptr, "a1");
    host.Add(a, "x1");
    OlbItem* b = host.Add(nullptr, "b1");
    OlbItem* a2 = host.Add(nullptr, "a2");
    // Rows: a1, x1, b1, a2.
    EXPECT_EQ(FindString(host.outline, nullptr, kFromFirst, "a", false), a);
    EXPECT_EQ(FindString(host.outline, nullptr, 1, "a", false), a2);
    EXPECT_EQ(FindString(host.outline, nullptr, 3, "b", false), b) << "from the front again";
    EXPECT_EQ(FindString(host.outline, nullptr, kFromFirst, "x", false), NoItem());
    EXPECT_EQ(FindString(host.outline, nullptr, 2, "a1", false), a);
}

TEST(OutlineFind, InNothing) {
    TestHost host;
    EXPECT_EQ(FindString(host.outline, nullptr, kFromFirst, "", false), NoItem());
}

TEST(OutlineFind, ValueMustBeEqual) {
    TestHost host;
    host.outline.style = kStyleOwnerDrawFixed;
    host.AddValue(nullptr, 10);
    OlbItem* item = host.AddValue(nullptr, 1);
    const auto* one = reinterpret_cast<const char*>(1);
    EXPECT_EQ(FindString(host.outline, nullptr, kFromFirst, one, false), item);
    EXPECT_EQ(FindString(host.outline, nullptr, kFromFirst, one, true), item);
    const auto* two = reinterpret_cast<const char*>(2);
    EXPECT_EQ(FindString(host.outline, nullptr, kFromFirst, two, false), NoItem());
}

// After a hidden append links and run differ: the search starts by the run and goes by the links.
TEST(OutlineFind, GoesByTheLinks) {
    TestHost host;
    OlbItem* p = host.Add(nullptr, "p");
    OlbItem* a = host.Add(p, "a");
    host.Add(a, "x");
    OlbItem* y = host.Add(a, "y");
    OlbItem* z = host.Insert(a, kAppend, "z"); // links: z x y, run: x y z
    EXPECT_EQ(FindString(host.outline, a, 0, "y", false), y);
    EXPECT_EQ(FindString(host.outline, a, 0, "z", false), z) << "in the wrap: one item, z";
    EXPECT_EQ(FindString(host.outline, a, 1, "y", false), y) << "run position 2 is z, then x, y";
}

// ---- Full path ----

std::string PathOf(const Outline& outline, const OlbItem* item) {
    char buffer[256];
    std::memset(buffer, '#', sizeof(buffer));
    const std::uint32_t length = FullPath(outline, item, buffer);
    EXPECT_EQ(std::strlen(buffer), length);
    for (std::size_t i = length + 1; i < sizeof(buffer); ++i) {
        EXPECT_EQ(buffer[i], '#') << "the caller's buffer may be no longer than the path";
    }
    return buffer;
}

TEST(OutlinePath, JoinsTextsWithTheSeparator) {
    TestHost host;
    OlbItem* a = host.Add(nullptr, "one");
    OlbItem* b = host.Add(a, "two");
    OlbItem* c = host.Add(b, "three");
    EXPECT_EQ(PathOf(host.outline, a), "one");
    EXPECT_EQ(PathOf(host.outline, c), "one\\two\\three");
    host.outline.pathSeparator = '/';
    EXPECT_EQ(PathOf(host.outline, c), "one/two/three");
    host.outline.pathSeparator = '\0';
    EXPECT_EQ(PathOf(host.outline, c), "onetwothree");
}

TEST(OutlinePath, SeparatorIsNotDoubled) {
    TestHost host;
    OlbItem* root = host.Add(nullptr, "C:\\");
    OlbItem* folder = host.Add(root, "WINDOWS");
    EXPECT_EQ(PathOf(host.outline, folder), "C:\\WINDOWS");
    EXPECT_EQ(PathOf(host.outline, root), "C:\\");
    EXPECT_EQ(PathOf(host.outline, host.Add(folder, "a\\")), "C:\\WINDOWS\\a\\");
    EXPECT_EQ(PathOf(host.outline, host.Add(folder, "\\a")), "C:\\WINDOWS\\\\a");
}

TEST(OutlinePath, EmptyTexts) {
    TestHost host;
    OlbItem* a = host.Add(nullptr, "");
    EXPECT_EQ(PathOf(host.outline, a), "");
    EXPECT_EQ(PathOf(host.outline, host.Add(a, "b")), "\\b");
}

TEST(OutlinePath, NoItemIsEmpty) {
    TestHost host;
    EXPECT_EQ(PathOf(host.outline, nullptr), "");
    EXPECT_EQ(PathOf(host.outline, NoItem()), "");
}

TEST(OutlinePath, IsCutAt255Characters) {
    for (std::size_t length = 120; length <= 300; ++length) {
        TestHost host;
        const std::string first(length, 'a');
        const std::string second(length / 2, 'b');
        OlbItem* a = host.Add(nullptr, first.c_str());
        OlbItem* b = host.Add(a, second.c_str());
        OlbItem* c = host.Add(b, "c");
        EXPECT_EQ(PathOf(host.outline, c), (first + "\\" + second + "\\c").substr(0, 255));
    }
}

TEST(OutlinePath, OfADeepItemNeedsNoStack) {
    TestHost host;
    OlbItem* item = nullptr;
    for (int level = 0; level < 20'000; ++level) {
        item = host.Add(item, "x");
    }
    std::string expected;
    for (int i = 0; i < 128; ++i) {
        expected += "x\\";
    }
    EXPECT_EQ(PathOf(host.outline, item), expected.substr(0, 255));
}

} // namespace
} // namespace vorn::hierlist::test
