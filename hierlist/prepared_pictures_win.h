// The library's own pictures of an outline list, laid on its background once, so that each paint
// only copies them.
#pragma once

#include "core/platform_win.h"
#include "hierlist/picture_choice.h"

#include <array>

namespace vorn::hierlist {

// The strip of items' pictures and beside it the boxes. Null until it is first needed.
struct PreparedPictures {
    HBITMAP bitmap = nullptr;
    COLORREF background = 0;
    std::int32_t boxesLeft = 0;
};

struct Record;

// The prepared pictures for as long as one paint takes, to copy from; null when there was no
// memory. The background is that of the paint, for which they are made anew if need be.
class PictureSource {
public:
    PictureSource(HDC like, Record& record, COLORREF background);
    ~PictureSource();
    PictureSource(const PictureSource&) = delete;
    PictureSource& operator=(const PictureSource&) = delete;

    HDC get() const { return context_; }

private:
    HDC context_ = nullptr;
    HGDIOBJ before_ = nullptr;
};

} // namespace vorn::hierlist
