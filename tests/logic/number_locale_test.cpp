// A host may choose any locale for its C library; numbers stay the same.
#include "numeric/general_form.h"
#include "numeric/number_format.h"
#include "numeric/number_text.h"

#include <clocale>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>

namespace vorn::numeric {
namespace {

std::string WhatNumbersBecome() {
    std::string all;
    for (const std::uint32_t kind : {kGeneral, kIntegerGrouped, kFloatingGroupedParentheses}) {
        for (const char* source : {"-1234567.891", "1234,5", "0.05", "1.5e20"}) {
            NumberSettings settings;
            settings.formatKind = kind;
            settings.decimalDigits = 2;
            std::string text = source;
            char formatted[kNumberTextSize];
            FormatNumber(settings, text.data(), 0, formatted);
            double value = 0;
            all += TextToNumber(settings, text.data(), value) != 0 ? "valid " : "invalid ";
            all += std::string(formatted) + ' ';
            char general[kGeneralFormSize];
            GeneralForm(value, general);
            all += std::string(general) + '\n';
        }
    }
    return all;
}

// The C library's own idea of a decimal character.
char LibraryPoint() {
    char text[8];
    std::snprintf(text, sizeof text, "%.1f", 0.5);
    return text[1];
}

// Windows has every locale; elsewhere those that are installed are tried.
#ifdef _WIN32
constexpr int kFewestCommas = 2;
#else
constexpr int kFewestCommas = 0;
#endif

struct LocaleGuard {
    std::string before = std::setlocale(LC_ALL, nullptr);
    ~LocaleGuard() { std::setlocale(LC_ALL, before.c_str()); }
};

TEST(NumberLocale, ChangesNothing) {
    const LocaleGuard guard;
    const std::string before = WhatNumbersBecome();
    EXPECT_EQ(before.substr(0, before.find('\n')), "valid -1234567.89 -1234567.891");
    int commas = 0;
    for (const char* name : {"", "C.utf8", "German_Germany.1252", "de_DE.UTF-8", "de_DE.utf8",
                             "de_DE", "French_France.1252", "fr_FR.UTF-8"}) {
        if (std::setlocale(LC_ALL, name) != nullptr) {
            commas += LibraryPoint() == ',' ? 1 : 0;
            EXPECT_EQ(WhatNumbersBecome(), before) << name;
        }
    }
    EXPECT_GE(commas, kFewestCommas);
}

} // namespace
} // namespace vorn::numeric
