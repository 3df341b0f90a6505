// Any sequence of settings and input keeps the dial's arithmetic defined and its rules true.
#include "controls/dial/dial_input.h"
#include "controls/dial/dial_picture.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

using namespace vorn;
using namespace vorn::dial;

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

struct Window {
    State state;
    Size client = {100, 100};
    std::uint32_t timers = 0; // a bit for each that runs
};

void Perform(Window& window, const Actions& actions) {
    for (const Action& action : actions) {
        if (IsStale(window.state, action)) {
            continue;
        }
        if (action.kind == ActionKind::StartTimer) {
            Require(action.timer == kDelayTimer || action.timer == kRepeatTimer);
            window.timers |= 1u << action.timer;
        } else if (action.kind == ActionKind::StopTimer) {
            window.timers &= ~(1u << action.timer);
        }
    }
}

void Set(Window& window, std::uint8_t what, std::int32_t value) {
    switch (what % 7) {
    case 0:
        window.state.turnStart = value;
        break;
    case 1:
        window.state.turnEnd = value;
        break;
    case 2:
        window.state.minimum = value;
        break;
    case 3:
        window.state.maximum = value;
        break;
    case 4:
        SetPosition(window.state, value);
        Require(window.state.position >= window.state.minimum);
        break;
    case 5:
        SetDirection(window.state, value);
        break;
    default:
        window.client = {value & 0x7FFF, value >> 16 & 0x7FFF};
        break;
    }
}

void Input(Window& window, std::uint8_t what, std::int32_t value) {
    State& state = window.state;
    const Point pointer = {static_cast<std::int16_t>(value),
                           static_cast<std::int16_t>(value >> 16)};
    const std::uint32_t number = static_cast<std::uint32_t>(value);
    switch (what % 7) {
    case 0:
        Perform(window, Press(state, window.client, pointer, (what & 0x80) != 0));
        Require(state.captured && state.mode != MouseMode::None);
        break;
    case 1:
        Perform(window, Move(state, window.client, pointer));
        break;
    case 2:
        Perform(window, Release(state, window.client, pointer));
        Require(!state.captured && !state.leftDown && !state.rightDown);
        break;
    case 3:
        Perform(window, CaptureChanged(state, static_cast<CaptureOwner>(number % 3)));
        break;
    case 4:
        Perform(window, TimerTick(state, number % 4, number >> 8));
        break;
    case 5:
        Perform(window, KeyDown(state, number % 64, {.shift = (what & 0x80) != 0}));
        break;
    default:
        Perform(window, CharacterTyped(state, number % 256));
        break;
    }
    Require(window.timers == 0 || state.captured);
}

void CheckPicture(const Window& window) {
    const Geometry geometry = LayOut(window.client);
    const double angle = MarkAngle(window.state);
    Require(angle >= 0 && angle < 360);
    const Rect mark = MarkRectangle(window.state, geometry);
    Require(Width(mark) == MarkSize(MarkOrbit(geometry.radius)) && Width(mark) == Height(mark));
    const std::size_t left = LeftButtonLines(window.state, geometry).count;
    const std::size_t right = RightButtonLines(window.state, geometry).count;
    if (Width(geometry.leftButton) == 0) {
        Require(left == 0 && right == 0);
    } else if (window.state.direction == 1) {
        Require(left == 5 && right == 6);
    } else {
        Require(left == 6 && right == 5);
    }
}

void CheckPointer(const Window& window, std::int32_t value) {
    const State& state = window.state;
    const std::int32_t angle = AngleOfPoint(state.direction, LayOut(window.client).center,
                                            {static_cast<std::int16_t>(value), value >> 16});
    Require(angle >= 0 && angle < 360);
    const std::int32_t clamped = ClampToTurnRange(state, angle);
    const std::int32_t position = PositionOfAngle(state, clamped);
    const bool ordinary = state.turnEnd >= 0 && state.turnEnd < 360 &&
                          state.turnStart < state.turnEnd && state.turnStart > state.turnEnd - 360;
    if (ordinary) {
        Require(clamped >= state.turnStart && clamped <= state.turnEnd);
        const bool rising = state.minimum <= state.maximum;
        Require(position >= (rising ? state.minimum : state.maximum));
        Require(position <= (rising ? state.maximum : state.minimum));
    }
    PositionOfAngle(state, value);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Window window;
    for (std::size_t at = 0; at + 6 <= size; at += 6) {
        std::int32_t value = 0;
        std::memcpy(&value, data + at + 2, sizeof value);
        // Small numbers are as interesting as large ones.
        if ((data[at] & 2) != 0) {
            value %= 1000;
        }
        if ((data[at] & 1) != 0) {
            Set(window, data[at + 1], value);
        } else {
            Input(window, data[at + 1], value);
        }
        CheckPicture(window);
        CheckPointer(window, value);
    }
    return 0;
}
