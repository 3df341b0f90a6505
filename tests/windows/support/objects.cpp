#include "tests/windows/support/objects.h"

#include <windows.h>
#include <algorithm>
#include <array>
#include <cstdlib>

namespace vorn::test {
namespace {

constexpr int kWarmUp = 50;
// Tables are reused in an order of their own, so a place may move a little without a leak. One
// object left in so many cycles moves it further.
constexpr int kCyclesAnObject = 10;
constexpr std::size_t kProbes = 2000;

struct Places {
    int gdi;
    int user;
};

// The index part of a handle.
int IndexOf(const void* handle) {
    return LOWORD(reinterpret_cast<UINT_PTR>(handle));
}

// The highest place that many new objects at once get: they fill the gaps that freed ones left,
// and each that stayed behind moves the last of them one up.
int HighestGdiPlace() {
    std::array<HBRUSH, kProbes> brushes{};
    int highest = 0;
    for (HBRUSH& brush : brushes) {
        brush = CreateSolidBrush(RGB(1, 2, 3));
        highest = std::max(highest, IndexOf(brush));
    }
    for (HBRUSH brush : brushes) {
        DeleteObject(brush);
    }
    return highest;
}

Places FindPlaces() {
    HWND window =
        CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    const Places places = {HighestGdiPlace(), IndexOf(window)};
    DestroyWindow(window);
    return places;
}

DWORD Counted(DWORD kind) {
    return GetGuiResources(GetCurrentProcess(), kind);
}

} // namespace

std::string ObjectsLeftBy(const std::function<void()>& cycle, int cycles) {
    for (int i = 0; i < kWarmUp; ++i) {
        cycle();
    }
    const Places before = FindPlaces();
    const DWORD gdi = Counted(GR_GDIOBJECTS);
    const DWORD user = Counted(GR_USEROBJECTS);
    for (int i = 0; i < cycles; ++i) {
        cycle();
    }
    if (Counted(GR_GDIOBJECTS) != gdi || Counted(GR_USEROBJECTS) != user) {
        return "the system counts more or fewer objects than before";
    }
    const Places after = FindPlaces();
    if (std::abs(after.gdi - before.gdi) > cycles / kCyclesAnObject) {
        return "GDI objects stayed: " + std::to_string(after.gdi - before.gdi) + " places";
    }
    if (std::abs(after.user - before.user) > cycles / kCyclesAnObject) {
        return "USER objects stayed: " + std::to_string(after.user - before.user) + " places";
    }
    return {};
}

} // namespace vorn::test
