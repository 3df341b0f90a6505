// Prints, a row a line: microseconds a call of ours and of what a user would pick instead, and
// their ratio; and for growth the cost an item at 1,000, 10,000 and 100,000 items, relative to the
// first. An argument names the only one to measure.
#include "bench/windows/measure.h"

#include <cstdio>
#include <string>

namespace {

struct Measured {
    const char* name;
    void (*measure)();
};

constexpr Measured kMeasured[] = {
    {"outline", bench::MeasureOutline},
    {"outline-items", bench::MeasureOutlineItems},
    {"button", bench::MeasureButton},
    {"calendar", bench::MeasureCalendar},
    {"dateedit", bench::MeasureDateEdit},
    {"numedit", bench::MeasureNumEdit},
    {"percentbar", bench::MeasurePercentBar},
    {"udlr", bench::MeasureUdlr},
    {"dial", bench::MeasureDial},
    {"fontselect", bench::MeasureFontSelect},
    {"timeedit", bench::MeasureTimeEdit},
    {"hierlist", bench::MeasureHierList},
};

} // namespace

int main(int count, char** arguments) {
    const std::string only = count > 1 ? arguments[1] : "";
    std::printf("%-58s %13s %13s %8s\n", "", "ours", "theirs", "ours/theirs");
    bench::MeasureLoading();
    LoadLibraryA("VORN32.dll");
    LoadLibraryA("comctl32.dll");
    bench::Host();
    for (const Measured& measured : kMeasured) {
        if (only.empty() || only == measured.name) {
            measured.measure();
        }
    }
    return 0;
}
