// A picture button to step, and what a test says to it.
#pragma once

#include "controls/button/button_input.h"

#include <gtest/gtest.h>
#include <ostream>
#include <vector>

namespace vorn::button {

inline void PrintTo(const Action& action, std::ostream* out) {
    *out << "{kind " << static_cast<int>(action.kind) << ", " << action.value
         << (action.redraw ? ", redraw}" : "}");
}

using List = std::vector<Action>;

constexpr Rect kClient = {3, 5, 103, 45};
constexpr Point kInside = {50, 20};
constexpr Point kOutside = {150, 20};

struct Modifiers {
    bool control = false;
    bool alt = false;
    bool shift = false;
};

struct Button {
    std::uint32_t style = 0;
    State state{};

    List Do(const Event& event) {
        const Actions actions = Step(state, event);
        return {actions.begin(), actions.end()};
    }
    List DoSwitch(EventKind kind, bool on) {
        Event event{kind, style};
        event.on = on;
        return Do(event);
    }

    List Press(Point point) { return Do({EventKind::Press, style, kClient, point}); }
    List Move(Point point) { return Do({EventKind::Move, style, kClient, point}); }
    List Release() { return Do({EventKind::Release, style, kClient, kInside}); }
    List CaptureTo(CaptureOwner owner) {
        return Do({EventKind::CaptureChanged, style, kClient, kInside, owner});
    }
    List Tick(std::uint32_t timer) {
        Event event{EventKind::Timer, style};
        event.timer = timer;
        return Do(event);
    }
    List KeyDown(std::uint32_t key, const Modifiers& modifiers = {}) {
        Event event{EventKind::KeyDown, style};
        event.key = key;
        event.control = modifiers.control;
        event.alt = modifiers.alt;
        event.shift = modifiers.shift;
        return Do(event);
    }
    List KeyUp(std::uint32_t key) {
        Event event{EventKind::KeyUp, style};
        event.key = key;
        return Do(event);
    }
    List FocusFrom(bool button) {
        Event event{EventKind::FocusGained, style};
        event.otherIsButton = button;
        return Do(event);
    }
    List LoseFocus(bool handsOver) {
        Event event{EventKind::FocusLost, style};
        event.handsOver = handsOver;
        return Do(event);
    }
    List Enable(bool on) { return DoSwitch(EventKind::Enable, on); }
    List SetDown(bool on) { return DoSwitch(EventKind::SetState, on); }
    List StopRepeat() { return Do({EventKind::StopRepeat, style}); }
};

} // namespace vorn::button
