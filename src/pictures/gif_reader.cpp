#include "pictures/gif_reader.h"

#include "pictures/gif_blocks.h"
#include "pictures/lzw.h"
#include "pictures/pixel_memory.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace quarvel {
namespace {

constexpr std::uint32_t white = 0xFFFFFFFF;

std::size_t area(QSize size) {
    return static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height());
}

/// The frame's rows in the order in which they are stored, or null when its codes are broken.
PixelMemory unpack(const GifFrame& frame) {
    const std::size_t count = area(frame.place.size());
    PixelMemory pixels = pixelMemory(count + lzwOutputSlack);
    return unpackLzw(frame.codes(), frame.rootBits, frame.values, pixels.get(), count) ? std::move(pixels)
                                                                                       : nullptr;
}

/// How white a colour is, 0 to 765.
int whiteness(std::uint32_t colour) {
    return static_cast<int>((colour >> 16 & 255) + (colour >> 8 & 255) + (colour & 255));
}

/// An index for bare paper. A palette without white gets one at an index that no pixel uses; where all 256
/// are in use, the lightest colour has to do.
std::uint8_t paperIndex(GifFrame& frame, const std::uint8_t* pixels) {
    auto& palette = frame.palette;
    const auto lightest =
        std::max_element(palette.begin(), palette.end(),
                         [](std::uint32_t a, std::uint32_t b) { return whiteness(a) < whiteness(b); });
    const auto lightestIndex = static_cast<std::uint8_t>(lightest - palette.begin());
    if (*lightest == white) return lightestIndex;
    std::array<bool, 256> used{};
    const std::size_t count = area(frame.place.size());
    for (std::size_t i = 0; i < count; ++i) used[pixels[i]] = true;
    const auto unused = std::find(used.begin(), used.end(), false);
    if (unused == used.end()) return lightestIndex;
    const auto index = static_cast<std::uint8_t>(unused - used.begin());
    palette[index] = white;
    return index;
}

/// The rows of a frame, top to bottom, in the order in which the file stores them.
class RowOrder {
public:
    RowOrder(int height, bool interlaced) : height_(height), interlaced_(interlaced) {}

    /// The place of the stored row `stored`, which must be asked for in order from 0.
    int next() {
        const int y = y_;
        y_ += interlaced_ ? passes[pass_].step : 1;
        while (interlaced_ && y_ >= height_ && pass_ + 1 < passes.size()) y_ = passes[++pass_].start;
        return y;
    }

private:
    struct Pass {
        int start, step;
    };
    static constexpr std::array<Pass, 4> passes{{{0, 8}, {4, 8}, {2, 4}, {1, 2}}};
    int height_;
    bool interlaced_;
    std::size_t pass_ = 0;
    int y_ = 0;
};

/// Copies what of the frame lies on the logical screen to its place. A frame that reaches beyond the screen
/// is cut off there: the file says how large the picture is, and the frame is only what it shows.
void place(const GifFrame& frame, const std::uint8_t* stored, std::uint8_t* screen) {
    const QRect visible = frame.place & QRect(QPoint(0, 0), frame.screen);
    if (visible.isEmpty()) return;
    const auto frameWidth = static_cast<std::size_t>(frame.place.width());
    const auto screenWidth = static_cast<std::size_t>(frame.screen.width());
    RowOrder order(frame.place.height(), frame.interlaced);
    for (int i = 0; i < frame.place.height(); ++i, stored += frameWidth) {
        const int y = frame.place.y() + order.next();
        if (y > visible.bottom()) continue;
        std::memcpy(screen + static_cast<std::size_t>(y) * screenWidth + visible.x(), stored,
                    static_cast<std::size_t>(visible.width()));
    }
}

PixelMemory compose(GifFrame& frame, PixelMemory stored) {
    const QRect screen(QPoint(0, 0), frame.screen);
    if (frame.place == screen && !frame.interlaced) return stored;
    const std::size_t count = area(frame.screen);
    PixelMemory composed = pixelMemory(count);
    if (!frame.place.contains(screen)) std::memset(composed.get(), paperIndex(frame, stored.get()), count);
    place(frame, stored.get(), composed.get());
    return composed;
}

} // namespace

Result<GifPicture> readGif(const QByteArray& gif, const QString& path) {
    auto read = readFirstFrame(gif, path);
    if (!read) return read.failure();
    GifFrame frame = read.take();
    PixelMemory stored = unpack(frame);
    if (!stored) return Failure{Fault::Damaged, path, {}};
    PixelMemory composed = compose(frame, std::move(stored));
    return GifPicture{frame.screen, std::move(composed), frame.palette};
}

} // namespace quarvel
