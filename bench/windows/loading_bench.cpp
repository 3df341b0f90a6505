#include "bench/windows/measure.h"

namespace bench {
namespace {

void LoadAndFree(const char* file) {
    FreeLibrary(LoadLibraryA(file));
}

} // namespace

// Before anything else loads either of them for good.
void MeasureLoading() {
    Compare(
        "library: load and free / comctl32.dll", 20, [] { LoadAndFree("VORN32.dll"); },
        [] { LoadAndFree("comctl32.dll"); });
}

} // namespace bench
