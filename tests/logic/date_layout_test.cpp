// The user's short-date picture and separator.
#include "date/date_layout.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace vorn::date {
namespace {

struct Expected {
    int first, second, third;
    bool monthZero, dayZero, fourDigits;
};

// Reads from the heap, so that the sanitizer sees any byte beyond the picture.
void Read(const std::string& picture, char separator, Layout& layout) {
    const std::vector<char> exact(picture.c_str(), picture.c_str() + picture.size() + 1);
    ReadShortDateLayout(exact.data(), separator, layout);
}

void ExpectLayout(const Layout& layout, const Expected& expected, const std::string& picture) {
    EXPECT_EQ(layout.kinds[0], expected.first) << picture;
    EXPECT_EQ(layout.kinds[1], expected.second) << picture;
    EXPECT_EQ(layout.kinds[2], expected.third) << picture;
    EXPECT_EQ(layout.monthLeadingZero != 0, expected.monthZero) << picture;
    EXPECT_EQ(layout.dayLeadingZero != 0, expected.dayZero) << picture;
    EXPECT_EQ(layout.fourDigitYear != 0, expected.fourDigits) << picture;
}

TEST(DateLayout, ReadsPictures) {
    const struct {
        const char* picture;
        char separator;
        Expected expected;
    } cases[] = {{"M/d/yy", '/', {2, 1, 3, false, false, false}},
                 {"dd.MM.yyyy", '.', {1, 2, 3, true, true, true}},
                 {"yyyy-MM-dd", '-', {3, 2, 1, true, true, true}},
                 {"yy/d/MM", '/', {3, 1, 2, true, false, false}},
                 {"d M yyyy", ' ', {1, 2, 3, false, false, true}},
                 {"MMM/ddd/y", '/', {2, 1, 3, true, true, false}},
                 {"M/yyyy/d", '/', {2, 3, 1, false, false, true}}};
    for (const auto& [picture, separator, expected] : cases) {
        Layout layout;
        Read(picture, separator, layout);
        ExpectLayout(layout, expected, picture);
        EXPECT_EQ(layout.separator, separator);
    }
}

// Every order and width, over a layout that says the opposite.
TEST(DateLayout, ReadsEveryOrderAndWidth) {
    int order[] = {1, 2, 3};
    do {
        for (int widths = 0; widths < 8; ++widths) {
            const std::string parts[] = {"", (widths & 1) != 0 ? "dd" : "d",
                                         (widths & 2) != 0 ? "MM" : "M",
                                         (widths & 4) != 0 ? "yyyy" : "yy"};
            const std::string picture =
                parts[order[0]] + "-" + parts[order[1]] + "-" + parts[order[2]];
            Layout layout = {(widths & 2) == 0, (widths & 1) == 0, (widths & 4) == 0, {}, 'x'};
            Read(picture, '-', layout);
            ExpectLayout(layout,
                         {order[0], order[1], order[2], (widths & 2) != 0, (widths & 1) != 0,
                          (widths & 4) != 0},
                         picture);
        }
    } while (std::next_permutation(order, order + 3));
}

TEST(DateLayout, TakesFourDigitsFromThreeLetters) {
    const struct {
        const char* picture;
        bool fourDigits;
    } cases[] = {{"d/M/y", false},
                 {"d/M/yy", false},
                 {"d/M/yyy", true},
                 {"d/M/yyyy", true},
                 {"d/M/yyyyy", true}};
    for (const auto& [picture, fourDigits] : cases) {
        Layout layout;
        layout.fourDigitYear = !fourDigits;
        Read(picture, '/', layout);
        EXPECT_EQ(layout.fourDigitYear != 0, fourDigits) << picture;
    }
}

TEST(DateLayout, KeepsTheKindOfUnknownLetters) {
    Layout layout = {1, 1, 1, {3, 2, 1}, '/'};
    Read("M/q/D", '.', layout); // no such separator: one part
    ExpectLayout(layout, {2, 2, 1, false, true, true}, "M/q/D");
    EXPECT_EQ(layout.separator, '.');
    layout = {1, 1, 1, {3, 2, 1}, '/'};
    Read("q/d/Y", '/', layout);
    ExpectLayout(layout, {3, 1, 1, true, false, true}, "q/d/Y");
    layout = {1, 1, 1, {3, 2, 1}, '/'};
    Read("//", '/', layout);
    ExpectLayout(layout, {3, 2, 1, true, true, true}, "//");
}

TEST(DateLayout, KeepsTheKindsOfAShortPicture) {
    const struct {
        const char* picture;
        Expected expected;
    } cases[] = {{"", {3, 3, 3, true, true, true}},       {"M", {2, 3, 3, false, true, true}},
                 {"d/", {1, 3, 3, true, false, true}},    {"M/dd", {2, 1, 3, false, true, true}},
                 {"y", {3, 3, 3, true, true, false}},     {"yy", {3, 3, 3, true, true, false}},
                 {"d/M/", {1, 2, 3, false, false, true}}, {"/", {3, 3, 3, true, true, true}}};
    for (const auto& [picture, expected] : cases) {
        Layout layout = {1, 1, 1, {3, 3, 3}, '/'};
        Read(picture, '/', layout);
        ExpectLayout(layout, expected, picture);
    }
}

TEST(DateLayout, ReadsNoFurtherThanThreeParts) {
    Layout layout;
    Read("M/d/yy/dd/MM", '/', layout);
    ExpectLayout(layout, {2, 1, 3, false, false, false}, "five parts");
}

TEST(DateLayout, ReadsOnePartWithoutASeparator) {
    Layout layout = {0, 0, 0, {3, 3, 3}, '/'};
    Read("MM/dd/yy", '\0', layout);
    ExpectLayout(layout, {2, 3, 3, true, false, false}, "no separator");
    EXPECT_EQ(layout.separator, '\0');
}

struct FakeProfile {
    const char* separator = nullptr; // null: no such key
    const char* picture = nullptr;
    std::string asked;

    static void ReadString(void* context, const char* key, const char* fallback, char* buffer,
                           std::uint32_t size) {
        FakeProfile& self = *static_cast<FakeProfile*>(context);
        self.asked += std::string(key) + " or " + fallback + " into " + std::to_string(size) + "; ";
        const char* text = std::string(key) == "sDate" ? self.separator : self.picture;
        const std::string cut = std::string(text == nullptr ? fallback : text).substr(0, size - 1);
        std::copy_n(cut.c_str(), cut.size() + 1, buffer);
    }
    RegionalProfile Profile() { return {this, ReadString}; }
};

TEST(DateProfile, IsAskedForTwoKeys) {
    FakeProfile fake;
    Layout layout;
    ReadUserLayout(fake.Profile(), ReadDateSeparator(fake.Profile()), layout);
    EXPECT_EQ(fake.asked, "sDate or / into 2; sShortDate or M/d/yy into 12; ");
    ExpectLayout(layout, {2, 1, 3, false, false, false}, "defaults");
    EXPECT_EQ(layout.separator, '/');
}

TEST(DateProfile, GivesTheUsersLayout) {
    FakeProfile fake;
    fake.separator = ".";
    fake.picture = "dd.MM.yyyy";
    Layout layout;
    ReadUserLayout(fake.Profile(), ReadDateSeparator(fake.Profile()), layout);
    ExpectLayout(layout, {1, 2, 3, true, true, true}, "dd.MM.yyyy");
    EXPECT_EQ(layout.separator, '.');
}

TEST(DateProfile, SeparatorIsOneCharacter) {
    FakeProfile fake;
    fake.separator = ". ";
    EXPECT_EQ(ReadDateSeparator(fake.Profile()), '.');
    fake.separator = "";
    EXPECT_EQ(ReadDateSeparator(fake.Profile()), '/') << "an empty one counts as missing";
}

TEST(DateProfile, PictureIsCutToElevenCharacters) {
    FakeProfile fake;
    fake.picture = "dddddd/M/yyyy"; // the eleventh is the second y
    Layout layout;
    ReadUserLayout(fake.Profile(), '/', layout);
    ExpectLayout(layout, {1, 2, 3, false, true, false}, fake.picture);
    fake.picture = "ddddd/M/yyyy"; // the eleventh is the third
    ReadUserLayout(fake.Profile(), '/', layout);
    ExpectLayout(layout, {1, 2, 3, false, true, true}, fake.picture);
}

TEST(DateProfile, PictureWithTheHostsSeparator) {
    FakeProfile fake;
    fake.picture = "dd.MM.yy";
    Layout layout;
    ReadUserLayout(fake.Profile(), '-', layout);
    EXPECT_EQ(layout.separator, '-');
    EXPECT_EQ(layout.kinds[0], kDay);
    EXPECT_EQ(layout.kinds[1], 0) << "the picture has no such separator";
}

} // namespace
} // namespace vorn::date
