#include "hierlist/picture_choice.h"

namespace vorn::hierlist {
namespace {

// Whether an item's level may have pictures of its own.
bool HasLevel(const OlbItem* item) {
    return static_cast<std::uint16_t>(item->level) < kPictureLevels;
}

void* StripOf(const OlbItem* item, const Strips& strips) {
    if (item->bitmaps != nullptr) {
        return item->bitmaps;
    }
    void* level = HasLevel(item) ? strips.level[static_cast<std::uint16_t>(item->level)] : nullptr;
    if (level != nullptr) {
        return level;
    }
    return strips.user != nullptr ? strips.user : strips.own;
}

std::int32_t IndexOf(const OlbItem* item, const ListOptions& options) {
    if (item->bitmapIndex != kDefaultPicture) {
        return item->bitmapIndex;
    }
    const std::int32_t level =
        HasLevel(item) ? options.levelPicture[static_cast<std::uint16_t>(item->level)] : kNoPicture;
    return level != kNoPicture ? level : options.defaultPicture;
}

} // namespace

PictureChoice ChoosePicture(const OlbItem* item, const ListOptions& options, const Strips& strips) {
    std::int32_t index = IndexOf(item, options);
    if (index == kSortFirst) {
        index = (item->flags & kFlagOpen) != 0 ? kOpenFolderPicture : kClosedFolderPicture;
    }
    return {StripOf(item, strips), index};
}

} // namespace vorn::hierlist
