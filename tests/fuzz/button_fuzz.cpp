// Any sequence of events keeps the picture button's state within its rules, and any size keeps its
// layout defined.
#include "controls/button/button_input.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

void Require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

using namespace vorn;
using namespace vorn::button;

constexpr std::size_t kEventSize = 8;

Event EventOf(const std::uint8_t* data) {
    Event event{static_cast<EventKind>(data[0] % 12)};
    event.style = (data[1] & 0x0Fu) | (data[1] & 0x30u) << 5 | (data[1] & 0x40u) << 8;
    event.client = {0, 0, 100, 40};
    event.point = {static_cast<std::int8_t>(data[2]), static_cast<std::int8_t>(data[3])};
    event.captureOwner = static_cast<CaptureOwner>(data[4] % 3);
    event.timer = data[4];
    event.key = data[5];
    event.control = (data[6] & 1) != 0;
    event.alt = (data[6] & 2) != 0;
    event.shift = (data[6] & 4) != 0;
    event.otherIsButton = (data[6] & 8) != 0;
    event.handsOver = (data[6] & 16) != 0;
    event.on = (data[6] & 32) != 0;
    return event;
}

// What the parent was told last of the button being down.
struct Parent {
    bool told = false;
};

void Perform(Parent& parent, const State& state, const Event& event, const Action& action) {
    Require(!IsStale(state, action)); // nothing came between
    const bool notify = (event.style & kStyleNotify) != 0;
    switch (action.kind) {
    case ActionKind::Notify:
        Require(action.value == kClicked || notify);
        if (action.value == kClicked) {
            Require(event.kind == EventKind::Press || event.kind == EventKind::Release ||
                    event.kind == EventKind::Timer || event.kind == EventKind::KeyDown ||
                    event.kind == EventKind::KeyUp);
        } else if (action.value == kWentDown || action.value == kCameUp) {
            parent.told = action.value == kWentDown;
        }
        break;
    case ActionKind::StartTimer:
        Require(action.value == state.repeatTimer);
        [[fallthrough]];
    case ActionKind::KillTimer:
        Require(action.value == kDelayTimer || action.value == kRepeatTimer);
        break;
    case ActionKind::Capture:
        Require(event.kind == EventKind::Press && Contains(event.client, event.point));
        break;
    case ActionKind::ReleaseCapture:
        Require(event.kind == EventKind::Release);
        break;
    case ActionKind::MarkEnabled:
    case ActionKind::MarkDisabled:
        Require(event.kind == EventKind::Enable);
        break;
    case ActionKind::StyleSelf:
    case ActionKind::StyleOther:
        Require(event.kind == EventKind::FocusGained || event.kind == EventKind::FocusLost);
        break;
    case ActionKind::PassOn:
        Require(event.kind == EventKind::KeyDown || event.kind == EventKind::KeyUp);
        break;
    case ActionKind::FocusNext:
    case ActionKind::FocusPrevious:
        Require(event.kind == EventKind::KeyDown && !event.control && !event.alt);
        break;
    case ActionKind::Redraw:
        break;
    }
}

void RunSteps(const std::uint8_t* data, std::size_t size) {
    State state;
    Parent parent;
    for (std::size_t at = 0; at + kEventSize <= size; at += kEventSize) {
        const Event event = EventOf(data + at);
        const bool wasDown = IsDown(state);
        const Actions actions = Step(state, event);
        Require(actions.count <= actions.items.size());
        bool redraws = false;
        for (const Action& action : actions) {
            Perform(parent, state, event, action);
            redraws = redraws || action.kind == ActionKind::Redraw;
        }
        Require(wasDown == IsDown(state) || redraws);
        Require(wasDown == IsDown(state) || (event.style & kStyleNotify) == 0 ||
                parent.told == IsDown(state));
        Require(state.flags <= 0x0F && state.repeatTimer <= kRepeatTimer);
        const std::uint32_t style = StyleWithBits(event.style, kStyleDefault);
        Require((style & (kStyleAutoRepeat | kStyleToggle)) == 0 && DialogCode(style) == 0x2013);
    }
}

void RunLayout(const std::uint8_t* data, std::size_t size) {
    std::int16_t numbers[8] = {};
    std::memcpy(numbers, data, size < sizeof numbers ? size : sizeof numbers);
    const Rect client = {0, 0, numbers[0] & 0x7FFF, numbers[1] & 0x7FFF};
    const std::uint32_t style = static_cast<std::uint32_t>(numbers[2]) & 0x0F;
    PictureChoice choice;
    choice.index = static_cast<std::uint32_t>(numbers[3]);
    choice.hasUser = (numbers[2] & 0x10) != 0;
    choice.user = {numbers[4], numbers[5]};
    choice.inHostApp = (numbers[2] & 0x20) != 0;
    const Layout layout = LayOut(client, style, choice);
    if (layout.picture == PictureSource::Strip) {
        const bool small = (style & kStylePictureOnly) != 0;
        const std::int32_t strip = small ? 32 * 16 : 15 * 20;
        Require(layout.pictureOrigin.x >= 0 &&
                layout.pictureOrigin.x + Width(layout.pictureTarget) <= strip);
    }
    Require(!layout.hasSwatch || (style & kStylePicture) == 0);

    const Size measured = {numbers[6], numbers[7]};
    const Caption caption = PlanCaption(client, layout.captionLeft, measured, style, State{});
    Require(caption.passCount == ((style & kStylePictureOnly) != 0 ? 0u : 1u));
    if (caption.passCount != 0) {
        Require(Width(caption.passes[0].rect) == measured.width &&
                Height(caption.passes[0].rect) == measured.height);
    }
}

void RunCaption(const std::uint8_t* data, std::size_t size) {
    char text[400] = {};
    const std::size_t length = size < sizeof text ? size : sizeof text - 1;
    std::memcpy(text, data, length);
    State state;
    SetCaption(state, text);
    char copy[kCaptionSize + 1] = {};
    const std::size_t room = size % 300;
    Require(GetCaption(state, copy, room) <= room && std::strlen(copy) < kCaptionSize);
    Require(std::strncmp(copy, text, std::strlen(copy)) == 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size != 0) {
        RunSteps(data, size);
        RunLayout(data, size);
        RunCaption(data, size);
    }
    return 0;
}
