// Texts in buffers of a fixed size.
#include "core/text.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace vorn {
namespace {

// A buffer on the heap, so that the sanitizer sees any byte beyond it.
std::vector<char> Filled(std::size_t size) {
    return std::vector<char>(size, 'x');
}

TEST(TextCopy, FillsTheBuffer) {
    std::vector<char> buffer = Filled(6);
    CopyText(buffer, "abc");
    EXPECT_EQ(std::string(buffer.data(), 6), std::string("abc\0\0\0", 6));
    CopyText(buffer, "");
    EXPECT_EQ(std::string(buffer.data(), 6), std::string(6, '\0'));
}

TEST(TextCopy, CutsToTheBuffer) {
    const struct {
        std::size_t size;
        const char* text;
    } cases[] = {{1, ""}, {2, "a"}, {4, "abc"}, {5, "abcd"}, {6, "abcd"}};
    for (const auto& [size, text] : cases) {
        std::vector<char> buffer = Filled(size);
        CopyText(buffer, "abcd");
        EXPECT_STREQ(buffer.data(), text);
    }
    CopyText({}, "abcd");
}

TEST(TextBuilding, AppendsTextsAndCutsThem) {
    std::vector<char> buffer = Filled(6);
    TextBuilder text = StartText(buffer);
    AppendText(text, "ab");
    AppendText(text, "");
    EXPECT_STREQ(buffer.data(), "ab");
    AppendText(text, "cdef");
    EXPECT_STREQ(buffer.data(), "abcde");
    EXPECT_EQ(text.length, 5u);
}

TEST(TextBuilding, StartsEmptyAndAppends) {
    std::vector<char> buffer = Filled(16);
    TextBuilder text = StartText(buffer);
    EXPECT_STREQ(buffer.data(), "");
    Append(text, 'a');
    EXPECT_STREQ(buffer.data(), "a");
    AppendNumber(text, 7, 1);
    AppendNumber(text, 7, 2);
    Append(text, '\0');
    AppendNumber(text, 123, 2);
    EXPECT_STREQ(buffer.data(), "a707123");
    EXPECT_EQ(text.length, 7u);
}

TEST(TextBuilding, WritesNumbersInFull) {
    const struct {
        std::uint32_t number;
        int digits;
        const char* text;
    } cases[] = {{0, 0, "0"},
                 {0, 1, "0"},
                 {0, 4, "0000"},
                 {9, 1, "9"},
                 {10, 1, "10"},
                 {99, 4, "0099"},
                 {2007, 4, "2007"},
                 {65535, 4, "65535"},
                 {4294967295u, 1, "4294967295"},
                 {5, 12, "000000000005"}};
    for (const auto& [number, digits, expected] : cases) {
        std::vector<char> buffer = Filled(16);
        TextBuilder text = StartText(buffer);
        AppendNumber(text, number, digits);
        EXPECT_STREQ(buffer.data(), expected);
    }
}

TEST(TextBuilding, CutsToTheBuffer) {
    const std::string whole = "ab0123/";
    for (std::size_t size = 0; size < 10; ++size) {
        std::vector<char> buffer = Filled(size);
        TextBuilder text = StartText(buffer);
        Append(text, 'a');
        Append(text, 'b');
        AppendNumber(text, 123, 4);
        Append(text, '/');
        if (size == 0) {
            EXPECT_EQ(text.length, 0u);
        } else {
            EXPECT_EQ(std::string(buffer.data()), whole.substr(0, size - 1));
        }
    }
}

} // namespace
} // namespace vorn
