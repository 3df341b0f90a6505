// The frames' lines, drawn on a small canvas and compared with the drawn pictures.
#include "core/frames.h"
#include "tests/support/frame_pictures.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace vorn {
namespace {

using test::Picture;

// Draws as the platform does: every point of a line but its last one.
class Canvas {
public:
    explicit Canvas(const Picture& sizedLike)
        : rows_(sizedLike.size(), std::string(sizedLike[0].size(), '.')) {}

    void Draw(const FrameLines& lines) {
        for (const FrameLine& line : lines) {
            const char letter = "ABCW"[static_cast<std::size_t>(line.pen)];
            Segment(line.points[0], line.points[1], letter);
            Segment(line.points[1], line.points[2], letter);
        }
    }

    const Picture& rows() const { return rows_; }

private:
    void Segment(Point from, Point to, char letter) {
        const int dx = std::clamp(to.x - from.x, -1, 1);
        const int dy = std::clamp(to.y - from.y, -1, 1);
        ASSERT_TRUE(dx == 0 || dy == 0) << "frames have no slanted lines";
        for (Point at = from; at != to; at = {at.x + dx, at.y + dy}) {
            const bool inside = at.x >= 0 && at.y >= 0 &&
                                static_cast<std::size_t>(at.y) < rows_.size() &&
                                static_cast<std::size_t>(at.x) < rows_[0].size();
            if (inside) {
                rows_[static_cast<std::size_t>(at.y)][static_cast<std::size_t>(at.x)] = letter;
            }
        }
    }

    Picture rows_;
};

TEST(Frames, SunkenLinesGiveThePicture) {
    for (const test::FramePicture& picture : test::FramePictures()) {
        Canvas canvas(picture.sunken);
        canvas.Draw(SunkenFrame(picture.rect));
        EXPECT_EQ(canvas.rows(), picture.sunken) << picture.name;
    }
}

TEST(Frames, RaisedLinesGiveThePicture) {
    for (const test::FramePicture& picture : test::FramePictures()) {
        Canvas canvas(picture.raised);
        canvas.Draw(RaisedFrame(picture.rect));
        EXPECT_EQ(canvas.rows(), picture.raised) << picture.name;
    }
}

} // namespace
} // namespace vorn
