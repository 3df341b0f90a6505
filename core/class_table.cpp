#include "core/class_table.h"

namespace vorn {
namespace {

// Extra bytes hold the record's pointer, which takes four bytes more on 64-bit Windows.
constexpr std::int32_t kPointerGrowth = static_cast<std::int32_t>(sizeof(void*)) - 4;

constexpr std::uint32_t kUsualStyle = kClassRedrawOnResize | kClassDoubleClicks | kClassGlobal;

constexpr ClassDescription Class(ControlClass id, const char* name, std::int32_t extraBytes,
                                 ClassCursor cursor, std::int32_t recordOffset = 0) {
    return {id,           name,   kUsualStyle,     extraBytes + kPointerGrowth,
            recordOffset, cursor, ClassBrush::None};
}

constexpr std::array<ClassDescription, kControlClasses> MakeTable() {
    std::array<ClassDescription, kControlClasses> table = {{
        Class(ControlClass::Button, "VORNButton32", 40, ClassCursor::Arrow),
        // The edits set their cursor themselves.
        Class(ControlClass::NumEdit, "VORNNumEdit32", 12, ClassCursor::None),
        Class(ControlClass::DateEdit, "VORNDateEdit32", 12, ClassCursor::None, 8),
        Class(ControlClass::Calendar, "VORNCalendar32", 12, ClassCursor::Arrow),
        Class(ControlClass::TimeEdit, "VORNTimeEdit32", 12, ClassCursor::None, 8),
        Class(ControlClass::FontSelect, "VORNFontSelect32", 12, ClassCursor::Arrow),
        Class(ControlClass::Dial, "VORNDial32", 12, ClassCursor::Arrow),
        Class(ControlClass::Udlr, "VORNUDLR32", 10, ClassCursor::Arrow, 6),
        Class(ControlClass::PercentBar, "VORNPercentBar32", 32, ClassCursor::Arrow),
        Class(ControlClass::HierList, "VORNHierList32", 4, ClassCursor::Arrow),
        Class(ControlClass::ComboBox, "VORNComboBox32", 16, ClassCursor::Arrow),
    }};
    table[Index(ControlClass::FontSelect)].brush = ClassBrush::LightGray;
    // A list repaints the rows that a resize uncovers, not all of them.
    table[Index(ControlClass::HierList)].style = kClassDoubleClicks | kClassGlobal;
    return table;
}

} // namespace

constinit const std::array<ClassDescription, kControlClasses> kClassTable = MakeTable();

const std::array<ControlClass, kControlClasses> kUnregisterOrder = {
    ControlClass::Button,     ControlClass::NumEdit,    ControlClass::DateEdit,
    ControlClass::FontSelect, ControlClass::Calendar,   ControlClass::Dial,
    ControlClass::Udlr,       ControlClass::PercentBar, ControlClass::ComboBox,
    ControlClass::TimeEdit,   ControlClass::HierList,
};

} // namespace vorn
