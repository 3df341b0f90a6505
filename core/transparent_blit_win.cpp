#include "core/transparent_blit_win.h"

#include "core/gdi_win.h"

namespace vorn {
namespace {

// A memory device context with a bitmap selected; empty when either could not be had.
class BitmapContext {
public:
    BitmapContext(HDC like, HBITMAP bitmap) : context_(CreateCompatibleDC(like)) {
        previous_ = context_ == nullptr ? nullptr : SelectObject(context_, bitmap);
    }
    ~BitmapContext() {
        if (previous_ != nullptr) {
            SelectObject(context_, previous_);
        }
        if (context_ != nullptr) {
            DeleteDC(context_);
        }
    }
    BitmapContext(const BitmapContext&) = delete;
    BitmapContext& operator=(const BitmapContext&) = delete;

    HDC get() const { return previous_ == nullptr ? nullptr : context_; }

private:
    HDC context_;
    HGDIOBJ previous_;
};

// A bitmap of our own, deleted at the end of its scope: declared before the context it is selected
// into.
class OwnedBitmap {
public:
    explicit OwnedBitmap(HBITMAP bitmap) : bitmap_(bitmap) {}
    ~OwnedBitmap() {
        if (bitmap_ != nullptr) {
            DeleteObject(bitmap_);
        }
    }
    OwnedBitmap(const OwnedBitmap&) = delete;
    OwnedBitmap& operator=(const OwnedBitmap&) = delete;

    HBITMAP get() const { return bitmap_; }

private:
    HBITMAP bitmap_;
};

struct Piece {
    HDC context;
    Point origin;
    Size size;
    COLORREF transparent;
    bool monochrome;
};

// Clears everything in `work` but the piece's transparent pixels and those beyond its edge, then
// puts the piece there: three operations through a mask that is white where the background stays.
void Merge(HDC work, const Piece& piece) {
    const auto [width, height] = piece.size;
    const OwnedBitmap maskBitmap(CreateBitmap(width, height, 1, 1, nullptr));
    const BitmapContext mask(piece.context, maskBitmap.get());
    if (mask.get() == nullptr) {
        return;
    }
    PatBlt(mask.get(), 0, 0, width, height, WHITENESS);
    SetBkColor(piece.context, piece.transparent);
    // One bit a pixel is copied as it is, so black must be turned to make the mask's white.
    const bool turn = piece.monochrome && piece.transparent == RGB(0, 0, 0);
    BitBlt(mask.get(), 0, 0, width, height, piece.context, piece.origin.x, piece.origin.y,
           turn ? NOTSRCCOPY : SRCCOPY);

    SetBkColor(work, RGB(255, 255, 255));
    SetTextColor(work, RGB(0, 0, 0));
    BitBlt(work, 0, 0, width, height, piece.context, piece.origin.x, piece.origin.y, SRCINVERT);
    BitBlt(work, 0, 0, width, height, mask.get(), 0, 0, SRCAND);
    BitBlt(work, 0, 0, width, height, piece.context, piece.origin.x, piece.origin.y, SRCINVERT);
}

} // namespace

void DrawTransparentBitmap(HDC context, const Rect& target, HBITMAP bitmap, Point source,
                           COLORREF background) {
    BITMAP header{};
    if (bitmap == nullptr || GetObjectA(bitmap, sizeof header, &header) == 0) {
        return;
    }
    const BitmapContext from(context, bitmap);
    if (from.get() == nullptr) {
        return;
    }
    const Size size = {Width(target), Height(target)};
    const OwnedBitmap workBitmap(CreateCompatibleBitmap(context, size.width, size.height));
    const BitmapContext work(context, workBitmap.get());
    if (work.get() == nullptr) {
        return;
    }
    FillWithColor(work.get(), {0, 0, size.width, size.height}, background);
    Merge(work.get(), {from.get(), source, size, GetPixel(from.get(), 0, header.bmHeight - 1),
                       header.bmBitsPixel * header.bmPlanes == 1});
    BitBlt(context, target.left, target.top, size.width, size.height, work.get(), 0, 0, SRCCOPY);
}

} // namespace vorn
