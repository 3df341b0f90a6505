// Which picture an item shows: of which strip, and the how many-th.
#pragma once

#include "hierlist/list_options.h"

#include <cstdint>

namespace vorn::hierlist {

// Pictures of the library's own strip that have a use.
constexpr std::int32_t kClosedFolderPicture = 6;
constexpr std::int32_t kOpenFolderPicture = 7;

struct PictureChoice {
    void* strip = nullptr;  // a bitmap
    std::int32_t index = 0; // negative: no picture

    friend constexpr bool operator==(const PictureChoice&, const PictureChoice&) = default;
};

// The strips beside the items' own; null where there is none.
struct Strips {
    std::array<void*, kPictureLevels> level{};
    void* user = nullptr; // set by the host for the whole control
    void* own = nullptr;  // the library's
};

// An item's own goes before its level's, and that before the control's, strip and index each on
// their own. kSortFirst is a folder, as open as the item is.
PictureChoice ChoosePicture(const OlbItem* item, const ListOptions& options, const Strips& strips);

} // namespace vorn::hierlist
