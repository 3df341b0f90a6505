// Keys that spare the platform's comparison of texts.
#include "tests/support/outline_host.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string>

namespace vorn::hierlist::test {
namespace {

int comparisons = 0;
int keys = 0;

int CompareAndCount(void* /*context*/, const char* first, const char* second) {
    ++comparisons;
    return std::strcmp(first, second);
}

// The text behind a letter; none for texts that begin with "!", which thus are as if they were made
// in another locale.
std::uint32_t KeyAndCount(void* /*context*/, const char* text, char* key, std::uint32_t room) {
    ++keys;
    const std::size_t length = std::strlen(text);
    if (text[0] == '!' || length + 2 > room) {
        return 0;
    }
    key[0] = 'k';
    std::memcpy(key + 1, text, length + 1);
    return static_cast<std::uint32_t>(length + 2);
}

class OutlineSortKey : public testing::Test {
protected:
    OutlineSortKey() {
        callbacks = *host.outline.callbacks;
        callbacks.compareTexts = CompareAndCount;
        callbacks.sortKey = KeyAndCount;
        host.outline.callbacks = &callbacks;
        host.outline.style = kStyleSort | kStyleNoRedraw;
        comparisons = 0;
        keys = 0;
    }

    TestHost host;
    Callbacks callbacks;
};

TEST_F(OutlineSortKey, IsMadeOnceAndComparedInstead) {
    for (const char* text : {"m", "c", "x", "a", "c", ""}) {
        host.Add(nullptr, text);
    }
    EXPECT_EQ(host.Rows(), "0 0a 0c 0c 0m 0x");
    EXPECT_EQ(keys, 6);
    EXPECT_EQ(comparisons, 0);
}

TEST_F(OutlineSortKey, IsNotMadeWithoutSorting) {
    host.outline.style = kStyleNoRedraw;
    const OlbItem* item = host.Add(nullptr, "m");
    EXPECT_EQ(keys, 0);
    EXPECT_EQ(SortKeyOf(item), nullptr);
}

TEST_F(OutlineSortKey, LeavesTextsWithoutOneToThePlatform) {
    for (const char* text : {"m", "!b", "a", "!a"}) {
        host.Add(nullptr, text);
    }
    EXPECT_EQ(host.Rows(), "0!a 0!b 0a 0m");
    EXPECT_GT(comparisons, 0);
}

TEST_F(OutlineSortKey, IsNotThatOfATextOfBefore) {
    OlbItem* item = host.Add(nullptr, "some text");
    EXPECT_STREQ(SortKeyOf(item), "ksome text");
    EXPECT_TRUE(SetText(host.outline, item, "less"));
    EXPECT_EQ(SortKeyOf(item), nullptr);
    EXPECT_STREQ(TextOf(item), "less");
    OlbItem* other = host.Add(nullptr, "some text");
    EXPECT_TRUE(SetText(host.outline, other, "much more text than there was"));
    EXPECT_EQ(SortKeyOf(other), nullptr);
    EXPECT_STREQ(TextOf(other), "much more text than there was");
    host.Add(nullptr, "less and more");
    EXPECT_EQ(host.Rows(), "0less 0less and more 0much more text than there was");
}

TEST_F(OutlineSortKey, IsNotCopied) {
    OlbItem* item = host.Add(nullptr, "text");
    const OlbItem* copy = CopyItem(host.outline, item, nullptr, kAppend);
    EXPECT_EQ(SortKeyOf(copy), nullptr);
    EXPECT_STREQ(TextOf(copy), "text");
}

// A text that fits a record alone still has a record when a key would not fit beside it.
TEST_F(OutlineSortKey, LeavesRoomForTheLongestTexts) {
    for (const std::size_t length : {std::size_t{400}, std::size_t{600}, std::size_t{65'000}}) {
        const std::string text(length, 'x');
        const OlbItem* item = host.Add(nullptr, text.c_str());
        EXPECT_EQ(TextOf(item), text);
        EXPECT_EQ(SortKeyOf(item) != nullptr, length == 400);
    }
}

} // namespace
} // namespace vorn::hierlist::test
