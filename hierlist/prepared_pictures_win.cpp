#include "hierlist/prepared_pictures_win.h"

#include "core/transparent_blit_win.h"
#include "hierlist/list_record_win.h"
#include "hierlist/row_spans.h"

#include <algorithm>

namespace vorn::hierlist {
namespace {

Size SizeOf(void* bitmap) {
    BITMAP header{};
    GetObjectA(bitmap, sizeof header, &header);
    return {header.bmWidth, header.bmHeight};
}

// Draws all pictures into a new bitmap, which the context has selected at the end. False when there
// is no memory for it; the context is as it was then.
bool Prepare(HDC like, HDC context, const Record& record, PreparedPictures& prepared) {
    const Size strip = SizeOf(record.strips.own);
    const auto boxes = static_cast<std::int32_t>(record.boxes.size());
    prepared.boxesLeft = strip.width;
    prepared.bitmap = CreateCompatibleBitmap(like, strip.width + boxes * kBoxPicture.width,
                                             std::max(strip.height, kBoxPicture.height));
    if (prepared.bitmap == nullptr || SelectObject(context, prepared.bitmap) == nullptr) {
        DeleteObject(prepared.bitmap);
        prepared.bitmap = nullptr;
        return false;
    }
    auto* const own = static_cast<HBITMAP>(record.strips.own);
    DrawTransparentBitmap(context, {0, 0, strip.width, strip.height}, own, {}, prepared.background);
    std::int32_t left = strip.width;
    for (HBITMAP box : record.boxes) {
        DrawTransparentBitmap(context, {left, 0, left + kBoxPicture.width, kBoxPicture.height}, box,
                              {}, prepared.background);
        left += kBoxPicture.width;
    }
    return true;
}

} // namespace

PictureSource::PictureSource(HDC like, Record& record, COLORREF background) {
    PreparedPictures& prepared = record.prepared;
    const bool complete =
        record.strips.own != nullptr && record.boxes[0] != nullptr && record.boxes[1] != nullptr;
    const bool needed = ShowsPictures(record.options) || HasOption(record.options, kOptionBoxes);
    if (!complete || !needed) {
        return;
    }
    if (prepared.bitmap != nullptr && prepared.background != background) {
        DeleteObject(prepared.bitmap);
        prepared.bitmap = nullptr;
    }
    HDC context = CreateCompatibleDC(like);
    if (context == nullptr) {
        return;
    }
    prepared.background = background;
    before_ = GetCurrentObject(context, OBJ_BITMAP);
    if (prepared.bitmap != nullptr ? SelectObject(context, prepared.bitmap) != nullptr
                                   : Prepare(like, context, record, prepared)) {
        context_ = context;
    } else {
        DeleteDC(context);
    }
}

PictureSource::~PictureSource() {
    if (context_ != nullptr) {
        SelectObject(context_, before_);
        DeleteDC(context_);
    }
}

} // namespace vorn::hierlist
