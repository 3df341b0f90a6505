#include "fontselect/fontselect.h"

#include "core/text.h"

#include <algorithm>
#include <limits>

namespace vorn::fontselect {
namespace {

constexpr std::int32_t kPointsPerInch = 72;

constexpr std::int32_t kLinesDropped = 10;
constexpr std::int32_t kSizeDigits = 4;
constexpr std::int32_t kSizeExtra = 24; // the button and the edges
constexpr std::int32_t kMargin = 2;     // above the lists and to the left of them
constexpr std::int32_t kSizeGap = 8;    // from a family list's width to the size list
constexpr std::int32_t kFamilyGap = 10; // what the family list leaves beside the size list
constexpr std::int32_t kSmallestWidth = 41;
constexpr std::int32_t kSmallControlFamilies = 60;
constexpr std::int32_t kSelectionExtra = 4;

// Notifications of the lists.
constexpr std::int32_t kSelectionChanged = 1;
constexpr std::int32_t kClosedUp = 8;

// Notifications of the control.
constexpr std::uint16_t kFontChanged = 1;
constexpr std::uint16_t kSizeChanged = 2;

constexpr char kNoFamily[] = " ";

std::int32_t Saturated(std::int64_t value) {
    constexpr std::int64_t kMin = std::numeric_limits<std::int32_t>::min();
    constexpr std::int64_t kMax = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::clamp(value, kMin, kMax));
}

// A length that can be added to a few others in 32 bits; hosts set fonts of any size.
std::int32_t Length(std::int64_t pixels) {
    constexpr std::int64_t kLongest = 0x0FFFFFFF;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(pixels, 0, kLongest));
}

std::int64_t LineHeight(const FontMetrics& metrics) {
    return std::int64_t{metrics.height} + metrics.internalLeading;
}

std::int32_t FamilyWidth(std::int32_t width, std::int32_t sizeWidth) {
    if (sizeWidth + kSizeGap < width) {
        return Length(std::int64_t{width} - sizeWidth - kFamilyGap);
    }
    return width >= kSmallestWidth ? Length(width) : kSmallControlFamilies;
}

} // namespace

std::int32_t IndexOfPoints(std::int32_t points) {
    constexpr auto kLast = static_cast<std::int32_t>(kPointSizes.size()) - 1;
    const auto found = std::lower_bound(kPointSizes.begin(), kPointSizes.end(), points);
    if (found == kPointSizes.end()) {
        return kLast;
    }
    const auto index = static_cast<std::int32_t>(found - kPointSizes.begin());
    if (*found == points || index == 0) {
        return index;
    }
    const std::int32_t below = points - *(found - 1);
    const std::int32_t above = *found - points;
    return below > above ? index - 1 : index;
}

std::int32_t LogicalHeight(std::int32_t points, std::int32_t pixelsPerInch) {
    return Saturated(-(std::int64_t{pixelsPerInch} * points / kPointsPerInch));
}

std::int32_t PointsOfCharacterHeight(std::int64_t height, std::int32_t pixelsPerInch) {
    return Saturated((height * kPointsPerInch + pixelsPerInch / 2) / pixelsPerInch);
}

ListPlaces PlaceLists(std::int32_t width, const FontMetrics& metrics) {
    const std::int32_t height = Length(LineHeight(metrics) * kLinesDropped);
    const std::int32_t sizeWidth =
        Length(std::int64_t{metrics.averageCharWidth} * kSizeDigits + kSizeExtra);
    const std::int32_t familyWidth = FamilyWidth(width, sizeWidth);
    const std::int32_t sizeLeft = familyWidth + kSizeGap;
    return {{kMargin, kMargin, kMargin + familyWidth, kMargin + height},
            {sizeLeft, kMargin, sizeLeft + sizeWidth, kMargin + height}};
}

ItemHeights HeightsOfItems(const FontMetrics& metrics) {
    const std::int32_t item = Length(LineHeight(metrics));
    return {item, item + kSelectionExtra};
}

Reaction ReactionTo(std::int32_t listNotification) {
    switch (listNotification) {
    case kSelectionChanged:
        return Reaction::NotifyParent;
    case kClosedUp:
        return Reaction::SelectAgain;
    default:
        return Reaction::None;
    }
}

ParentCommand CommandOfChange(const State& state, std::int32_t list, std::uint16_t controlId) {
    const bool family = list == kFamilyList;
    const std::uint16_t chosen = family ? state.fontCommandCode : state.sizeCommandCode;
    return {chosen != 0 ? chosen : controlId, family ? kFontChanged : kSizeChanged};
}

void CopyFamilyName(std::span<char> buffer, const char* name) {
    TextBuilder text = StartText(buffer);
    AppendText(text, name != nullptr ? name : kNoFamily);
}

} // namespace vorn::fontselect
