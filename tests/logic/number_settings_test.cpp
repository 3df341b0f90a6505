// The numbers' settings: the host's record, the user's profile and the range.
#include "numeric/number_settings.h"

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <initializer_list>
#include <limits>
#include <map>
#include <string>

namespace vorn::numeric {
namespace {

struct FakeProfile {
    std::map<std::string, std::string> texts;
    std::map<std::string, std::uint32_t> numbers;
    std::string asked;

    static void ReadString(void* context, const char* key, const char* fallback, char* buffer,
                           std::uint32_t size) {
        FakeProfile& self = *static_cast<FakeProfile*>(context);
        self.asked += std::string(key) + " or " + fallback + " into " + std::to_string(size) + "; ";
        const auto found = self.texts.find(key);
        const std::string text = found == self.texts.end() ? fallback : found->second;
        const std::string cut = text.substr(0, size - 1);
        std::copy_n(cut.c_str(), cut.size() + 1, buffer);
    }
    static std::uint32_t ReadInteger(void* context, const char* key, std::int32_t fallback) {
        FakeProfile& self = *static_cast<FakeProfile*>(context);
        self.asked += std::string(key) + " or " + std::to_string(fallback) + "; ";
        const auto found = self.numbers.find(key);
        return found == self.numbers.end() ? static_cast<std::uint32_t>(fallback) : found->second;
    }
    RegionalProfile Profile() { return {this, ReadString, ReadInteger}; }
};

FakeProfile German() {
    return {{{"sThousand", "."}, {"sDecimal", ","}}, {{"iLzero", 0}, {"iDigits", 3}}, {}};
}

EditParams AnyParams() {
    return {7, 1, 4, 0xABCDEF01, -1.5, 99.25, 0, '\'', ';', 1};
}

TEST(NumberSettings, StartAsAGeneralNumber) {
    const NumberSettings settings;
    EXPECT_EQ(settings.formatKind, 0U);
    EXPECT_EQ(settings.rangeCheck, 0);
    EXPECT_EQ(settings.decimalDigits, 0);
    EXPECT_EQ(settings.minValue, 0);
    EXPECT_EQ(settings.maxValue, 0);
    EXPECT_EQ(settings.useRegional, 0);
    EXPECT_EQ(settings.isNull, 0);
    EXPECT_EQ(settings.displayStyle, 0);
}

TEST(CreationText, IsStored) {
    NumberSettings settings;
    settings.isNull = 1;
    char text[kNumberTextSize];
    EXPECT_EQ(StoreCreationText(settings, text, "12.5"), 1);
    EXPECT_STREQ(text, "12.5");
    EXPECT_EQ(settings.isNull, 0);
}

TEST(CreationText, IsAZeroWithoutAText) {
    NumberSettings settings;
    char text[kNumberTextSize];
    StoreCreationText(settings, text, nullptr);
    EXPECT_STREQ(text, "0");
    EXPECT_EQ(settings.isNull, 0);
}

TEST(CreationText, MakesNullWhenItIsEmpty) {
    NumberSettings settings;
    char text[kNumberTextSize];
    StoreCreationText(settings, text, "");
    EXPECT_STREQ(text, "");
    EXPECT_NE(settings.isNull, 0);
    StoreCreationText(settings, text, " ");
    EXPECT_EQ(settings.isNull, 0);
}

TEST(CreationText, IsCutTo63Characters) {
    NumberSettings settings;
    char text[kNumberTextSize];
    for (const std::size_t length : {63U, 64U, 65U, 200U}) {
        StoreCreationText(settings, text, std::string(length, '7').c_str());
        EXPECT_EQ(std::string(text), std::string(63, '7'));
    }
}

TEST(NumberProfile, IsAskedForThreeKeysAtCreation) {
    FakeProfile fake;
    NumberSettings settings;
    settings.thousandChar = settings.decimalChar = 'x';
    settings.leadingZero = 0;
    settings.decimalDigits = 9;
    EXPECT_EQ(LoadRegionalSettings(settings, fake.Profile()), 1);
    EXPECT_EQ(fake.asked, "sThousand or , into 2; sDecimal or . into 2; iLzero or 1; ");
    EXPECT_EQ(settings.thousandChar, ',');
    EXPECT_EQ(settings.decimalChar, '.');
    EXPECT_EQ(settings.leadingZero, 1);
    EXPECT_EQ(settings.decimalDigits, 9);
}

TEST(NumberProfile, GivesTheUsersSettings) {
    FakeProfile fake = German();
    NumberSettings settings;
    LoadRegionalSettings(settings, fake.Profile());
    EXPECT_EQ(settings.thousandChar, '.');
    EXPECT_EQ(settings.decimalChar, ',');
    EXPECT_EQ(settings.leadingZero, 0);
    EXPECT_EQ(settings.decimalDigits, 0);
}

TEST(NumberProfile, CharactersAreSingleAndNeverMissing) {
    FakeProfile fake;
    fake.texts = {{"sThousand", "\xA0 "}, {"sDecimal", ",,"}};
    NumberSettings settings;
    LoadRegionalSettings(settings, fake.Profile());
    EXPECT_EQ(settings.thousandChar, 0xA0);
    EXPECT_EQ(ThousandCharOf(settings), '\xA0');
    EXPECT_EQ(DecimalCharOf(settings), ',');
    fake.texts = {{"sThousand", ""}, {"sDecimal", ""}};
    LoadRegionalSettings(settings, fake.Profile());
    EXPECT_EQ(settings.thousandChar, ',');
    EXPECT_EQ(settings.decimalChar, '.');
}

TEST(NumberProfile, IsReadAgainWhenItChanges) {
    FakeProfile fake = German();
    NumberSettings settings;
    settings.useRegional = 1;
    EXPECT_EQ(ReloadRegionalSettings(settings, fake.Profile(), "intl"), 1);
    EXPECT_EQ(fake.asked,
              "iDigits or 2; sThousand or , into 2; sDecimal or . into 2; iLzero or 1; ");
    EXPECT_EQ(settings.decimalDigits, 3);
    EXPECT_EQ(settings.thousandChar, '.');
    EXPECT_EQ(settings.decimalChar, ',');
    EXPECT_EQ(settings.leadingZero, 0);
    FakeProfile empty;
    ReloadRegionalSettings(settings, empty.Profile(), "intl");
    EXPECT_EQ(settings.decimalDigits, 2);
    EXPECT_EQ(settings.thousandChar, ',');
    EXPECT_EQ(settings.decimalChar, '.');
    EXPECT_EQ(settings.leadingZero, 1);
}

TEST(NumberProfile, OtherChangesAreIgnored) {
    FakeProfile fake = German();
    NumberSettings settings;
    settings.useRegional = 1;
    for (const char* section : {"Intl", "INTL", "intl ", "int", "windows", ""}) {
        EXPECT_EQ(ReloadRegionalSettings(settings, fake.Profile(), section), 0) << section;
    }
    EXPECT_EQ(ReloadRegionalSettings(settings, fake.Profile(), nullptr), 0);
    settings.useRegional = 0;
    EXPECT_EQ(ReloadRegionalSettings(settings, fake.Profile(), "intl"), 0);
    EXPECT_EQ(fake.asked, "");
    EXPECT_EQ(settings.decimalChar, '.');
}

TEST(EditParams, AreTaken) {
    FakeProfile fake = German();
    NumberSettings settings;
    EXPECT_EQ(SetEditParams(settings, AnyParams(), fake.Profile()), 1);
    EXPECT_EQ(fake.asked, "");
    EXPECT_EQ(settings.formatKind, 7U);
    EXPECT_EQ(settings.rangeCheck, 1);
    EXPECT_EQ(settings.decimalDigits, 4);
    EXPECT_EQ(settings.minValue, -1.5);
    EXPECT_EQ(settings.maxValue, 99.25);
    EXPECT_EQ(settings.useRegional, 0);
    EXPECT_EQ(settings.thousandChar, '\'');
    EXPECT_EQ(settings.decimalChar, ';');
    EXPECT_EQ(settings.leadingZero, 1);
}

TEST(EditParams, MissingCharactersAreTheUsers) {
    FakeProfile fake = German();
    NumberSettings settings;
    EditParams params = AnyParams();
    params.thousandChar = 0;
    params.leadingZero = 5;
    SetEditParams(settings, params, fake.Profile());
    EXPECT_EQ(fake.asked, "sThousand or , into 2; ");
    EXPECT_EQ(settings.thousandChar, '.');
    EXPECT_EQ(settings.decimalChar, ';');
    EXPECT_EQ(settings.leadingZero, 5) << "the host's, not the user's";
    fake.asked.clear();
    params.decimalChar = 0;
    SetEditParams(settings, params, fake.Profile());
    EXPECT_EQ(fake.asked, "sDecimal or . into 2; sThousand or , into 2; ");
    EXPECT_EQ(settings.decimalChar, ',');
    fake.texts = {{"sThousand", ""}, {"sDecimal", ""}};
    SetEditParams(settings, params, fake.Profile());
    EXPECT_EQ(settings.thousandChar, ',');
    EXPECT_EQ(settings.decimalChar, '.');
}

TEST(EditParams, UserSettingsReplaceTheHosts) {
    FakeProfile fake = German();
    NumberSettings settings;
    EditParams params = AnyParams();
    params.useRegional = 0x80000000;
    SetEditParams(settings, params, fake.Profile());
    EXPECT_EQ(fake.asked, "sThousand or , into 2; sDecimal or . into 2; iLzero or 1; ");
    EXPECT_NE(settings.useRegional, 0);
    EXPECT_EQ(settings.decimalDigits, 4) << "these are still the host's";
    EXPECT_EQ(settings.thousandChar, '.');
    EXPECT_EQ(settings.decimalChar, ',');
    EXPECT_EQ(settings.leadingZero, 0);
}

TEST(EditParams, DecimalDigits) {
    const struct {
        std::uint32_t given;
        std::uint16_t stored;
    } cases[] = {{0, 0},
                 {2, 2},
                 {0x7FFF, 0x7FFF},
                 {0xFFFF, 0xFFFF},
                 {0x10000, 0},
                 {0x12345678, 0x5678},
                 {0xFFFFFFFE, 0xFFFE}};
    FakeProfile fake;
    NumberSettings settings;
    EditParams params = AnyParams();
    for (const auto& [given, stored] : cases) {
        params.decimalDigits = given;
        SetEditParams(settings, params, fake.Profile());
        EXPECT_EQ(settings.decimalDigits, stored) << given;
    }
    EXPECT_EQ(fake.asked, "");
    params.decimalDigits = 0xFFFFFFFF;
    SetEditParams(settings, params, fake.Profile());
    EXPECT_EQ(fake.asked, "iDigits or 2; ");
    EXPECT_EQ(settings.decimalDigits, 2);
    fake.numbers = {{"iDigits", 0x10005}};
    SetEditParams(settings, params, fake.Profile());
    EXPECT_EQ(settings.decimalDigits, 5);
}

TEST(EditParams, AreGivenBack) {
    FakeProfile fake;
    NumberSettings settings;
    SetEditParams(settings, AnyParams(), fake.Profile());
    EditParams params = {};
    params.reserved = 0x55555555;
    EXPECT_EQ(GetEditParams(settings, params), 1);
    EXPECT_EQ(params.formatKind, 7U);
    EXPECT_EQ(params.rangeCheck, 1U);
    EXPECT_EQ(params.decimalDigits, 4U);
    EXPECT_EQ(params.reserved, 0x55555555U) << "never written";
    EXPECT_EQ(params.minValue, -1.5);
    EXPECT_EQ(params.maxValue, 99.25);
    EXPECT_EQ(params.useRegional, 0U);
    EXPECT_EQ(params.thousandChar, '\'');
    EXPECT_EQ(params.decimalChar, ';');
    EXPECT_EQ(params.leadingZero, 1U);
    settings.decimalDigits = 0xFFFF;
    GetEditParams(settings, params);
    EXPECT_EQ(params.decimalDigits, 0xFFFFU) << "a count, not the user's";
}

TEST(NumberDisplay, ComesWithAFormatKind) {
    NumberSettings settings;
    settings.formatKind = kFloating;
    std::uint32_t style = 0x50814037;
    EXPECT_EQ(AdoptNumberDisplay(settings, style), 1);
    EXPECT_EQ(settings.displayStyle, 1);
    EXPECT_EQ(style, 0x5081400FU);
}

TEST(NumberDisplay, OtherwiseStays) {
    NumberSettings settings;
    std::uint32_t style = 0x50814030;
    EXPECT_EQ(AdoptNumberDisplay(settings, style), 0) << "the general kind";
    for (const std::uint16_t display : std::initializer_list<std::uint16_t>{1, 2, 3}) {
        settings.formatKind = kInteger;
        settings.displayStyle = display;
        EXPECT_EQ(AdoptNumberDisplay(settings, style), 0);
        EXPECT_EQ(settings.displayStyle, display);
    }
    EXPECT_EQ(style, 0x50814030U);
}

TEST(ClampToRange, StopsAtTheNearerLimit) {
    NumberSettings settings;
    settings.minValue = -5;
    settings.maxValue = 10.5;
    EXPECT_EQ(ClampToRange(settings, 1e300), 1e300) << "unchecked";
    settings.rangeCheck = -1;
    EXPECT_EQ(ClampToRange(settings, 1e300), 10.5);
    EXPECT_EQ(ClampToRange(settings, 10.5), 10.5);
    EXPECT_EQ(ClampToRange(settings, 3), 3);
    EXPECT_EQ(ClampToRange(settings, -5), -5);
    EXPECT_EQ(ClampToRange(settings, -5.1), -5);
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(ClampToRange(settings, infinity), 10.5);
    EXPECT_EQ(ClampToRange(settings, -infinity), -5);
}

TEST(ClampToRange, TheMinimumWins) {
    NumberSettings settings;
    settings.rangeCheck = 1;
    settings.minValue = 10;
    settings.maxValue = 5;
    for (const double value : {-100.0, 4.0, 5.0, 7.0, 10.0, 11.0, 100.0}) {
        EXPECT_EQ(ClampToRange(settings, value), 10);
    }
}

} // namespace
} // namespace vorn::numeric
