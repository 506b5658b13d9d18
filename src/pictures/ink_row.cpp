#include "pictures/ink_row.h"

#include <algorithm>
#include <cstring>

namespace quarvel {

InkRow::Ink InkRow::asInk(std::uint32_t colour) {
    const auto channel = [colour](int shift) { return static_cast<float>(colour >> shift & 255); };
    return Ink{channel(0), channel(8), channel(16), 0};
}

/// The colour whose channels are the whole parts of `light`, each 0 to 255.
inline std::uint32_t InkRow::asColour(Ink light) {
    using Lanes = std::int32_t __attribute__((vector_size(16)));
    const Lanes lanes = __builtin_convertvector(light, Lanes);
    std::array<std::uint64_t, 2> pairs; // green above blue, nothing above red
    static_assert(sizeof pairs == sizeof lanes);
    std::memcpy(pairs.data(), &lanes, sizeof lanes);
    return 0xFF000000u | static_cast<std::uint32_t>(pairs[0]) | static_cast<std::uint32_t>(pairs[0] >> 24) |
           static_cast<std::uint32_t>(pairs[1]) << 16;
}

void InkRow::setColours(const std::array<std::uint32_t, 256>& palette, std::uint8_t ground) {
    groundColour_ = palette[ground];
    std::memset(&blockOfGround_, ground, sizeof blockOfGround_);
    const Ink groundLight = asInk(groundColour_);
    light_ = groundLight + 0.5f;
    for (std::size_t i = 0; i < palette.size(); ++i) inks_[i] = groundLight - asInk(palette[i]);
}

void InkRow::arrange(const Axis& across) {
    const int taps = across.taps();
    firstColumn_ = across.first(across.begin());
    columns_ = static_cast<std::size_t>(across.first(across.end() - 1) + taps - firstColumn_);
    const std::size_t count = (columns_ + blockPixels - 1) / blockPixels;
    sums_.assign(count * blockPixels, Ink{});
    found_.resize(count);
    blocks_.resize(count);
    int begin = across.begin();
    int end = begin;
    int column = firstColumn_;
    for (Block& block : blocks_) {
        while (begin < across.end() && across.first(begin) + taps <= column) ++begin;
        column += static_cast<int>(blockPixels);
        while (end < across.end() && across.first(end) < column) ++end;
        block = {begin, end, false};
    }
}

inline void InkRow::addPixels(const std::uint8_t* source, std::size_t block, std::size_t count, float share) {
    blocks_[block].inked = true;
    source += block * blockPixels;
    Ink* sums = sums_.data() + block * blockPixels;
    for (std::size_t i = 0; i < count; ++i) sums[i] += inks_[source[i]] * share;
}

void InkRow::add(const std::uint8_t* source, float share) {
    const std::size_t whole = columns_ / blockPixels;
    // Where the ink lies cannot be foretold, so it is first found without a branch and then added without
    // one.
    std::uint32_t* const found = found_.data();
    std::size_t count = 0;
    for (std::size_t b = 0; b < whole; ++b) {
        std::uint64_t pixels;
        static_assert(sizeof pixels == blockPixels);
        std::memcpy(&pixels, source + b * blockPixels, sizeof pixels);
        found[count] = static_cast<std::uint32_t>(b);
        count += pixels != blockOfGround_ ? 1 : 0;
    }
    for (std::size_t i = 0; i < count; ++i) addPixels(source, found[i], blockPixels, share);
    if (whole < blocks_.size()) addPixels(source, whole, columns_ - whole * blockPixels, share);
}

void InkRow::pour(const Axis& across, std::uint32_t* line) {
    const int taps = across.taps();
    const auto isInked = [](const Block& block) { return block.inked; };
    int x = across.begin();
    auto from = blocks_.begin();
    while ((from = std::find_if(from, blocks_.end(), isInked)) != blocks_.end()) {
        const auto to = std::find_if_not(from, blocks_.end(), isInked);
        const int end = (to - 1)->end;
        x = std::max(x, from->begin);
        const float* share = across.shares(x);
        for (; x < end; ++x) {
            const Ink* sum = sums_.data() + (across.first(x) - firstColumn_);
            Ink light = light_;
            for (int k = 0; k < taps; ++k) light -= sum[k] * *share++;
            line[x] = asColour(light);
        }
        const auto sums = sums_.begin() + (from - blocks_.begin()) * std::ptrdiff_t{blockPixels};
        std::fill(sums, sums + (to - from) * std::ptrdiff_t{blockPixels}, Ink{});
        for (; from != to; ++from) from->inked = false;
    }
}

} // namespace quarvel
