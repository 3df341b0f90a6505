// The window classes of the library, as data: what a program that creates controls by class name
// can rely on.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace vorn {

// In the order in which the classes are registered.
enum class ControlClass : std::uint8_t {
    Button,
    NumEdit,
    DateEdit,
    Calendar,
    TimeEdit,
    FontSelect,
    Dial,
    Udlr,
    PercentBar,
    HierList,
    ComboBox,
};

constexpr std::size_t kControlClasses = 11;

enum class ClassCursor : std::uint8_t { None, Arrow };
enum class ClassBrush : std::uint8_t { None, LightGray };

// Class styles of the platform that the classes use.
constexpr std::uint32_t kClassRedrawOnResize = 0x0003; // CS_VREDRAW | CS_HREDRAW
constexpr std::uint32_t kClassDoubleClicks = 0x0008;   // CS_DBLCLKS
constexpr std::uint32_t kClassGlobal = 0x4000;         // CS_GLOBALCLASS

struct ClassDescription {
    ControlClass id;
    const char* name;
    std::uint32_t style;
    std::int32_t extraBytes;   // on this architecture; at least the 32-bit figure
    std::int32_t recordOffset; // of the pointer to the record, in the extra bytes
    ClassCursor cursor;
    ClassBrush brush;
};

extern const std::array<ClassDescription, kControlClasses> kClassTable;

constexpr std::size_t Index(ControlClass id) {
    return static_cast<std::size_t>(id);
}

inline const ClassDescription& Describe(ControlClass id) {
    return kClassTable[Index(id)];
}

// The order in which the classes are unregistered.
extern const std::array<ControlClass, kControlClasses> kUnregisterOrder;

} // namespace vorn
