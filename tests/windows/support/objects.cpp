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

// The index part of a handle.
int IndexOf(const void* handle) {
    return LOWORD(reinterpret_cast<UINT_PTR>(handle));
}

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

DWORD Counted(DWORD kind) {
    return GetGuiResources(GetCurrentProcess(), kind);
}

} // namespace

ObjectPlaces FindObjectPlaces() {
    HWND window =
        CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    const ObjectPlaces places = {HighestGdiPlace(), IndexOf(window)};
    DestroyWindow(window);
    return places;
}

std::string ObjectsLeftBy(const std::function<void()>& cycle, int cycles) {
    for (int i = 0; i < kWarmUp; ++i) {
        cycle();
    }
    const ObjectPlaces before = FindObjectPlaces();
    const DWORD gdi = Counted(GR_GDIOBJECTS);
    const DWORD user = Counted(GR_USEROBJECTS);
    for (int i = 0; i < cycles; ++i) {
        cycle();
    }
    if (Counted(GR_GDIOBJECTS) != gdi || Counted(GR_USEROBJECTS) != user) {
        return "the system counts more or fewer objects than before";
    }
    const ObjectPlaces after = FindObjectPlaces();
    if (std::abs(after.gdi - before.gdi) > cycles / kCyclesAnObject) {
        return "GDI objects stayed: " + std::to_string(after.gdi - before.gdi) + " places";
    }
    if (std::abs(after.user - before.user) > cycles / kCyclesAnObject) {
        return "USER objects stayed: " + std::to_string(after.user - before.user) + " places";
    }
    return {};
}

} // namespace vorn::test
