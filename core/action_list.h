// What a step of a control's state machine answers: a few actions in order. The window half
// performs them one by one; each may run host code, and the control may be gone after any of them.
#pragma once

#include <array>
#include <cstddef>

namespace vorn {

// Capacity is the longest answer that a step of the control has.
template <class Action, std::size_t Capacity>
struct ActionList {
    std::array<Action, Capacity> items{};
    std::size_t count = 0;

    constexpr const Action* begin() const { return items.data(); }
    constexpr const Action* end() const { return items.data() + count; }
};

template <class Action, std::size_t Capacity>
constexpr void Append(ActionList<Action, Capacity>& list, const Action& action) {
    list.items[list.count] = action;
    ++list.count;
}

} // namespace vorn
