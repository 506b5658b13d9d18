#pragma once

#include "gif_maker.h"
#include "pictures/picture.h"

#include <QRandomGenerator>
#include <QRect>
#include <QSize>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace quarvel {

/// Noise, runs and stripes, so that codes of all lengths occur; indices below `colours`.
inline std::vector<std::uint8_t> drawing(QSize size, unsigned colours, quint32 seed) {
    QRandomGenerator random(seed);
    std::vector<std::uint8_t> pixels;
    const auto count = static_cast<std::size_t>(size.width() * size.height());
    while (pixels.size() < count) {
        const auto length =
            static_cast<std::size_t>(random.bounded(3) ? 1 + random.bounded(4) : random.bounded(300));
        pixels.insert(pixels.end(), length, static_cast<std::uint8_t>(random.bounded(colours)));
    }
    pixels.resize(count);
    return pixels;
}

/// Colours of which none is white.
inline std::vector<std::uint32_t> colours(unsigned count) {
    QRandomGenerator random(count);
    std::vector<std::uint32_t> made;
    for (unsigned i = 0; i < count; ++i) made.push_back(random.generate() & 0x7FFFFF);
    return made;
}

/// Shades of grey, in no order.
inline std::vector<std::uint32_t> greys(unsigned count) {
    std::vector<std::uint32_t> made = colours(count);
    for (std::uint32_t& colour : made) colour = (colour & 0xFF) * 0x010101;
    return made;
}

/// A frame as large as its screen.
inline GifRecipe recipe(QSize size, unsigned colourCount, Packing packing) {
    return {size, QRect(QPoint(0, 0), size), drawing(size, colourCount, colourCount), colours(colourCount),
            packing};
}

/// The picture that a recipe makes, or none.
inline Picture decoded(const GifRecipe& made) {
    auto picture = Picture::decode(makeGif(made), {});
    return picture ? picture.take() : Picture();
}

} // namespace quarvel
