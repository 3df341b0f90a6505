// What the two frames look like, drawn by hand: A, B, C and W (window frame) are the pens' pixels,
// a dot is untouched. The canvas is 10 by 8 for ordinary rectangles. Rectangles too small for a
// frame get what the lines give, also outside of them.
#pragma once

#include "core/geometry.h"

#include <string>
#include <vector>

namespace vorn::test {

using Picture = std::vector<std::string>;

struct FramePicture {
    const char* name;
    Rect rect;
    Picture sunken;
    Picture raised;
};

inline const std::vector<FramePicture>& FramePictures() {
    static const std::vector<FramePicture> pictures = {
        {"ordinary",
         {1, 1, 9, 7},
         {
             "..........",
             ".AAAAAAAB.",
             ".AWWWWWCB.",
             ".AW....CB.",
             ".AW....CB.",
             ".AWCCCCCB.",
             ".BBBBBBBB.",
             "..........",
         },
         {
             "..........",
             ".CCCCCCCW.",
             ".CBBBBBAW.",
             ".CB....AW.",
             ".CB....AW.",
             ".CAAAAAAW.",
             ".WWWWWWWW.",
             "..........",
         }},
        {"2 by 2",
         {1, 1, 3, 3},
         {"....", ".AW.", ".BW.", "...."},
         {"..B.", ".CB.", ".WB.", "...."}},
        {"1 by 1",
         {1, 1, 2, 2},
         {"CCW.", ".BW.", ".WW.", "...."},
         {"AAB.", ".WB.", ".BB.", "...."}},
        {"empty", {1, 1, 1, 1}, {".BW.", "..W.", "WWW.", "...."}, {".CB.", ".CB.", "BBB.", "...."}},
    };
    return pictures;
}

} // namespace vorn::test
