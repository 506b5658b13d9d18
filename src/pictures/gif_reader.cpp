#include "pictures/gif_reader.h"

#include "pictures/gif_blocks.h"
#include "pictures/lzw.h"
#include "pictures/own_colours.h"
#include "pictures/pixel_memory.h"

#include <algorithm>
#include <cstring>
#include <optional>
#include <utility>

namespace quarvel {
namespace {

constexpr std::uint32_t white = 0xFFFFFFFF;

std::size_t area(QSize size) {
    return static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height());
}

/// The frame's rows in the order in which they are stored, as many of them as its codes give whole.
struct StoredRows {
    PixelMemory pixels;
    int count;
};

StoredRows unpack(const GifFrame& frame) {
    const std::size_t count = area(frame.place.size());
    PixelMemory pixels = pixelMemory(count + lzwOutputSlack);
    const auto unpackBy = [&](Widening widening) {
        return unpackLzw(frame.codes(), frame.rootBits, frame.values, pixels.get(), count, widening);
    };
    // Only with a code size of 1 does it matter, and what is wrong does not reach the end.
    std::size_t done = frame.rootBits == 1 ? unpackBy(Widening::WithTheEntry) : 0;
    if (done < count) done = unpackBy(Widening::AtOnce);
    return {std::move(pixels), static_cast<int>(done / static_cast<std::size_t>(frame.place.width()))};
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

/// Puts what of the frame lies on the logical screen at its place, and stripes where rows are missing. A
/// frame that reaches beyond the screen is cut off there: the file says how large the picture is, and the
/// frame is only what it shows. Gives how many of the picture's rows are missing.
int place(const GifFrame& frame, const StoredRows& stored, OwnColours& colours, std::uint8_t* screen) {
    const QRect visible = frame.place & QRect(QPoint(0, 0), frame.screen);
    if (visible.isEmpty()) return 0;
    const auto frameWidth = static_cast<std::size_t>(frame.place.width());
    const auto screenWidth = static_cast<std::size_t>(frame.screen.width());
    std::optional<Stripes> stripes;
    if (stored.count < frame.place.height()) stripes.emplace(colours, visible.width());
    RowOrder order(frame.place.height(), frame.interlaced);
    int missing = 0;
    const std::uint8_t* from = stored.pixels.get();
    for (int i = 0; i < frame.place.height(); ++i, from += frameWidth) {
        const int y = frame.place.y() + order.next();
        if (y > visible.bottom()) continue;
        std::uint8_t* const to = screen + static_cast<std::size_t>(y) * screenWidth + visible.x();
        const bool isMissing = i >= stored.count;
        std::memcpy(to, isMissing ? stripes->row(y) : from, static_cast<std::size_t>(visible.width()));
        missing += isMissing ? 1 : 0;
    }
    return missing;
}

MissingRows tellMissing(const GifFrame& frame, int missing) {
    if (missing == 0) return {};
    const bool reachesDown = frame.place.bottom() >= frame.screen.height() - 1;
    const bool below = reachesDown && !frame.interlaced;
    constexpr int whole = 100;
    // Rounded up, but never all of it: some of the picture is there.
    const int percent = (missing * whole + frame.screen.height() - 1) / frame.screen.height();
    return {below ? MissingRows::Where::Below : MissingRows::Where::Among, std::min(percent, whole - 1)};
}

GifPicture compose(GifFrame& frame, StoredRows stored) {
    const QRect screen(QPoint(0, 0), frame.screen);
    const bool whole = stored.count == frame.place.height();
    if (frame.place == screen && !frame.interlaced && whole)
        return {frame.screen, std::move(stored.pixels), frame.palette, {}};
    const std::size_t count = area(frame.screen);
    PixelMemory composed = pixelMemory(count);
    const auto rows = static_cast<std::size_t>(stored.count);
    OwnColours colours(frame.palette, {stored.pixels.get(), rows * std::size_t(frame.place.width())});
    if (!frame.place.contains(screen)) std::memset(composed.get(), colours.index(white), count);
    const int missing = place(frame, stored, colours, composed.get());
    return {frame.screen, std::move(composed), frame.palette, tellMissing(frame, missing)};
}

} // namespace

Result<GifPicture> readGif(const QByteArray& gif, const QString& path) {
    auto read = readFirstFrame(gif, path);
    if (!read) return read.failure();
    GifFrame frame = read.take();
    StoredRows stored = unpack(frame);
    if (stored.count == 0) return Failure{Fault::Damaged, path, {}};
    return compose(frame, std::move(stored));
}

} // namespace quarvel
