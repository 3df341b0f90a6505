// Reading and writing numbers, beside the C library's own.
#include "numeric/general_form.h"
#include "numeric/number_format.h"
#include "numeric/number_text.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>

namespace {

using namespace vorn::numeric;

// What people write, and what arithmetic leaves.
constexpr const char* kTexts[] = {
    "0",    "7",         "-12",      "3.5",      "1234.56",          "-1234567.89",
    "0.05", "99999.995", "1.5e+020", "2.5e-007", "3.14159265358979", "123456789012345678.5"};
constexpr double kNumbers[] = {0,    7,         -12,  3.5,    1234.56,          -1234567.89,
                               0.05, 99999.995, 1e20, 2.5e-7, 3.14159265358979, 1.0 / 3};

void ReadTexts(benchmark::State& state) {
    char texts[std::size(kTexts)][kNumberTextSize];
    for (std::size_t index = 0; index < std::size(kTexts); ++index) {
        std::snprintf(texts[index], kNumberTextSize, "%s", kTexts[index]);
    }
    const NumberSettings settings;
    for (auto _ : state) {
        for (auto& text : texts) {
            double value = 0;
            benchmark::DoNotOptimize(TextToNumber(settings, text, value));
            benchmark::DoNotOptimize(value);
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(std::size(kTexts)));
}
BENCHMARK(ReadTexts);

void ReadTextsByStrtod(benchmark::State& state) {
    for (auto _ : state) {
        for (const char* text : kTexts) {
            char* end = nullptr;
            benchmark::DoNotOptimize(std::strtod(text, &end));
            benchmark::DoNotOptimize(end);
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(std::size(kTexts)));
}
BENCHMARK(ReadTextsByStrtod);

void WriteNumbers(benchmark::State& state) {
    char text[kGeneralFormSize];
    for (auto _ : state) {
        for (const double number : kNumbers) {
            GeneralForm(number, text);
            benchmark::DoNotOptimize(text);
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(std::size(kNumbers)));
}
BENCHMARK(WriteNumbers);

void WriteNumbersBySnprintf(benchmark::State& state) {
    char text[32];
    for (auto _ : state) {
        for (const double number : kNumbers) {
            benchmark::DoNotOptimize(std::snprintf(text, sizeof text, "%#.12g", number));
            benchmark::DoNotOptimize(text);
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(std::size(kNumbers)));
}
BENCHMARK(WriteNumbersBySnprintf);

// A whole paint's worth: read the text, write it, round, group, enclose.
void FormatTexts(benchmark::State& state) {
    char texts[std::size(kTexts)][kNumberTextSize];
    for (std::size_t index = 0; index < std::size(kTexts); ++index) {
        std::snprintf(texts[index], kNumberTextSize, "%s", kTexts[index]);
    }
    NumberSettings settings;
    settings.formatKind = kFloatingGroupedParentheses;
    settings.decimalDigits = 2;
    char formatted[kNumberTextSize];
    for (auto _ : state) {
        for (auto& text : texts) {
            FormatNumber(settings, text, 0, formatted);
            benchmark::DoNotOptimize(formatted);
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(std::size(kTexts)));
}
BENCHMARK(FormatTexts);

// As much by the C library: read and write with two decimals, neither grouped nor enclosed.
void FormatTextsByStrtodAndSnprintf(benchmark::State& state) {
    char formatted[kNumberTextSize];
    for (auto _ : state) {
        for (const char* text : kTexts) {
            const double value = std::strtod(text, nullptr);
            benchmark::DoNotOptimize(std::snprintf(formatted, sizeof formatted, "%.2f", value));
            benchmark::DoNotOptimize(formatted);
        }
    }
    state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(std::size(kTexts)));
}
BENCHMARK(FormatTextsByStrtodAndSnprintf);

} // namespace
