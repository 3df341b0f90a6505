// Values that a window holds by a property: the property is the handle of a movable block, which is
// locked only while the value is read or written, so that whoever finds the property can do the
// same.
#pragma once

#include "core/platform_win.h"

#include <cstdint>
#include <type_traits>

namespace vorn {

// The value's bytes. Storing makes the block when there is none yet; false when there is no memory,
// or the property is something else.
bool StoreProperty(HWND window, const char* name, const void* value, std::uint16_t size);
bool LoadProperty(HWND window, const char* name, void* value, std::uint16_t size);

// Removes the property and frees its block; does nothing when there is none.
void FreeProperty(HWND window, const char* name);

template <class Value>
bool StoreProperty(HWND window, const char* name, const Value& value) {
    static_assert(std::is_trivially_copyable_v<Value>);
    // NOLINTNEXTLINE(bugprone-sizeof-expression): the value may be a pointer
    constexpr std::uint16_t size = sizeof(Value);
    return StoreProperty(window, name, &value, size);
}

// A value of zeros when there is none.
template <class Value>
Value LoadProperty(HWND window, const char* name) {
    static_assert(std::is_trivially_copyable_v<Value>);
    // NOLINTNEXTLINE(bugprone-sizeof-expression): the value may be a pointer
    constexpr std::uint16_t size = sizeof(Value);
    Value value{};
    LoadProperty(window, name, &value, size);
    return value;
}

} // namespace vorn
