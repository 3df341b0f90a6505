// Any sequence of events leaves the spin pad in one of its states, with the timers, the capture and
// the notifications that belong to it.
#include "controls/udlr/udlr.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

using namespace vorn::udlr;

Event EventOf(const std::uint8_t* data) {
    Event event = {static_cast<EventKind>(data[0] % 6)};
    // Mostly on the pad, sometimes far outside.
    event.x = static_cast<std::uint16_t>((data[1] & 0x80) != 0 ? data[1] << 8 : data[1] % 32);
    event.y = static_cast<std::uint16_t>((data[2] & 0x80) != 0 ? data[2] << 8 : data[2] % 32);
    event.buttonHeld = (data[0] & 0x80) != 0;
    event.enabled = (data[0] & 0x40) != 0;
    event.captureOwner = static_cast<vorn::CaptureOwner>(data[1] % 3);
    return event;
}

// The timers that run, as the system would keep them.
struct Timers {
    bool running[3] = {};
};

void Perform(Timers& timers, const State& state, const Event& event, const Action& action) {
    Require(!IsStale(state, action)); // nothing came between
    switch (action.kind) {
    case ActionKind::Notify:
        Require(event.kind != EventKind::ButtonUp && event.kind != EventKind::CaptureChanged);
        Require(state.captured && action.code == NotificationCode(state.direction));
        Require(action.code >= 100 && action.code <= 103);
        break;
    case ActionKind::StartTimer:
        Require(action.timer == kDelayTimer || action.timer == kRepeatTimer);
        timers.running[action.timer] = true;
        break;
    case ActionKind::KillTimer:
        Require(action.timer == kDelayTimer || action.timer == kRepeatTimer);
        timers.running[action.timer] = false;
        break;
    case ActionKind::Capture:
    case ActionKind::ReleaseCapture:
    case ActionKind::Repaint:
    case ActionKind::RepaintErased:
        break;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    State state;
    Timers timers;
    for (std::size_t at = 0; at + 3 <= size; at += 3) {
        const Event event = EventOf(data + at);
        const Actions actions = Step(state, event);
        Require(actions.count <= actions.items.size());
        for (const Action& action : actions) {
            Perform(timers, state, event, action);
        }
        Require(state.captured == (state.timerPhase != kNoTimer));
        Require(state.captured || state.direction == Direction::None);
        Require(state.captured || !state.captureTaken);
        Require(!state.captured || timers.running[state.timerPhase]);
        Require(PictureOf(state.direction) < kPictures);
    }
    return 0;
}
