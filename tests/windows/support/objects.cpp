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
constexpr std::size_t kWindowProbes = 200;

// The index part of a handle.
int IndexOf(const void* handle) {
    return LOWORD(reinterpret_cast<UINT_PTR>(handle));
}

// The highest place that some new objects get; all are gone again afterwards.
template <class Object, std::size_t kCount, class Make, class Free>
int HighestPlace(Make make, Free free) {
    std::array<Object, kCount> objects{};
    int highest = 0;
    for (Object& object : objects) {
        object = make();
        highest = std::max(highest, IndexOf(object));
    }
    for (Object object : objects) {
        free(object);
    }
    return highest;
}

HWND MakeWindow() {
    return CreateWindowExA(0, "STATIC", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr,
                           nullptr);
}

DWORD Counted(DWORD kind) {
    return GetGuiResources(GetCurrentProcess(), kind);
}

} // namespace

ObjectPlaces FindObjectPlaces() {
    return {HighestPlace<HBRUSH, kProbes>([] { return CreateSolidBrush(RGB(1, 2, 3)); },
                                          [](HBRUSH brush) { DeleteObject(brush); }),
            HighestPlace<HWND, kWindowProbes>(MakeWindow, DestroyWindow)};
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
