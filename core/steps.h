// What the state machines of controls share. A step takes a control's state over an event and
// answers a few actions, which the window half performs one by one, in order; each may run host
// code, and the control may be gone after any of them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

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

// Who has the mouse capture after it changed, as the control sees it that had it before.
enum class CaptureOwner : std::uint8_t { Nobody, Self, Other };

} // namespace vorn
