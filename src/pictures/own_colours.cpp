#include "pictures/own_colours.h"

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace quarvel {
namespace {

constexpr std::uint32_t lightGrey = 0xFFC8C8C8;
constexpr std::uint32_t darkGrey = 0xFF909090;
constexpr int stripeWidth = 8;

int difference(std::uint32_t a, std::uint32_t b) {
    int sum = 0;
    for (const int shift : {0, 8, 16})
        sum += std::abs(static_cast<int>(a >> shift & 255) - static_cast<int>(b >> shift & 255));
    return sum;
}

} // namespace

std::uint8_t OwnColours::index(std::uint32_t colour) {
    auto at =
        static_cast<std::uint8_t>(std::find(palette_.begin(), palette_.end(), colour) - palette_.begin());
    if (palette_[at] != colour) {
        const Indices used = usedIndices();
        const auto unused = std::find(used.begin(), used.end(), false);
        at = unused == used.end() ? nearest(colour) : static_cast<std::uint8_t>(unused - used.begin());
        if (unused != used.end()) palette_[at] = colour;
    }
    given_[at] = true;
    return at;
}

OwnColours::Indices OwnColours::usedIndices() const {
    Indices used = given_;
    for (const std::uint8_t pixel : pixels_) used[pixel] = true;
    return used;
}

std::uint8_t OwnColours::nearest(std::uint32_t colour) const {
    std::uint8_t best = 0;
    int least = std::numeric_limits<int>::max();
    for (std::size_t i = 0; i < palette_.size(); ++i) {
        const int distance = difference(palette_[i], colour);
        if (given_[i] || distance >= least) continue;
        least = distance;
        best = static_cast<std::uint8_t>(i);
    }
    return best;
}

Stripes::Stripes(OwnColours& colours, int width) {
    const std::array<std::uint8_t, 2> indices = {colours.index(lightGrey), colours.index(darkGrey)};
    const auto count = static_cast<std::size_t>(width) + std::size_t{2} * stripeWidth;
    pixels_.reserve(count);
    for (std::size_t x = 0; x < count; ++x) pixels_.push_back(indices[x / stripeWidth % 2]);
}

const std::uint8_t* Stripes::row(int y) const { return pixels_.data() + y % (2 * stripeWidth); }

} // namespace quarvel
