// Prints, a row a line: microseconds a call of ours and of what a user would pick instead, and
// their ratio; and for growth the cost an item at 1,000, 10,000 and 100,000 items, relative to the
// first.
#include "bench/windows/measure.h"

#include <cstdio>

int main() {
    std::printf("%-58s %13s %13s %8s\n", "", "ours", "theirs", "ours/theirs");
    bench::MeasureLoading();
    LoadLibraryA("VORN32.dll");
    LoadLibraryA("comctl32.dll");
    bench::Host();
    bench::MeasureOutline();
    bench::MeasureOutlineItems();
    bench::MeasureButton();
    bench::MeasureCalendar();
    bench::MeasureDateEdit();
    bench::MeasureNumEdit();
    bench::MeasurePercentBar();
    bench::MeasureUdlr();
    bench::MeasureDial();
    bench::MeasureFontSelect();
    bench::MeasureTimeEdit();
    bench::MeasureHierList();
    return 0;
}
