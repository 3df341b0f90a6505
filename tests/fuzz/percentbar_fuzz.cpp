// Any sequence of settings keeps the percent bar's arithmetic defined and its rules true.
#include "controls/percentbar/percentbar.h"

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

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace vorn;
    using namespace vorn::percentbar;

    State state = StateFromStyle(size == 0 ? 0 : data[0]);
    for (std::size_t at = 1; at + 5 <= size; at += 5) {
        std::int32_t value = 0;
        std::memcpy(&value, data + at + 1, sizeof value);
        switch (data[at] % 5) {
        case 0:
            SetLimit(state, value);
            break;
        case 1:
            SetProgress(state, value);
            break;
        case 2:
            state.borderStyle = static_cast<std::uint32_t>(value);
            break;
        case 3:
            state.scaleText = value;
            break;
        default:
            SetColorSlot(state.colors, kColorSlots, value, kWindowColor);
            break;
        }
        Require(state.progress <= state.limit);

        const std::int32_t width = value & 0x7FFF;
        const std::int32_t fill = FillWidth(width, state.progress, state.limit);
        Require(state.limit <= 0 ||
                (fill <= width && Percentage(state.progress, state.limit) <= 100));
        const Rect bar = BarRectangle({0, 0, width, width / 2}, state, {16, 13, 3, 14});
        Require(state.scaleText == 0 || (Width(bar) >= 6 && Height(bar) >= 6));
        Require(LongTicks(width)[8] <= width && ShortTicks(width)[9] <= width);
    }
    return 0;
}
