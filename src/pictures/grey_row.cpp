#include "pictures/grey_row.h"

#include <algorithm>
#include <array>
#include <cstring>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace quarvel {
namespace {

constexpr int wholeDown = 256;           // 255 times this is what 16 bits hold
constexpr int wholeAcross = 16384;       // a sum times this is what 31 bits hold
constexpr std::uint16_t middle = 0x8000; // at which sums start, so that as signed numbers they fit as well
constexpr std::int32_t rounding = middle * wholeAcross + wholeDown * wholeAcross / 2;
constexpr int unit = 22; // bits: wholeDown * wholeAcross
static_assert(1 << unit == wholeDown * wholeAcross);

using Words = std::int16_t __attribute__((vector_size(16)));
using Lanes = std::int32_t __attribute__((vector_size(16)));
constexpr std::size_t words = sizeof(Words) / sizeof(std::int16_t);
constexpr std::size_t lanes = sizeof(Lanes) / sizeof(std::int32_t);

/// Shares as whole parts of `whole`, rounded where they end, so that they add up to it again.
void weigh(const float* shares, int taps, int whole, std::int16_t* weights) {
    float due = 0.5f;
    int given = 0;
    for (int k = 0; k < taps; ++k) {
        due += shares[k] * static_cast<float>(whole);
        const int upToHere = k + 1 < taps ? std::min(whole, static_cast<int>(due)) : whole;
        weights[k] = static_cast<std::int16_t>(upToHere - given);
        given = upToHere;
    }
}

/// Products of eight pairs, added up two by two.
Lanes multiply(const std::uint16_t* sums, const std::int16_t* weights) {
    Words a, b;
    std::memcpy(&a, sums, sizeof a);
    std::memcpy(&b, weights, sizeof b);
#ifdef __SSE2__
    return reinterpret_cast<Lanes>(
        _mm_madd_epi16(reinterpret_cast<__m128i>(a), reinterpret_cast<__m128i>(b)));
#else
    Lanes products;
    for (int i = 0; i < 4; ++i) products[i] = a[2 * i] * b[2 * i] + a[2 * i + 1] * b[2 * i + 1];
    return products;
#endif
}

/// The totals of four vectors, in their order.
Lanes totals(Lanes a, Lanes b, Lanes c, Lanes d) {
    const Lanes ab = __builtin_shufflevector(a, b, 0, 4, 1, 5) + __builtin_shufflevector(a, b, 2, 6, 3, 7);
    const Lanes cd = __builtin_shufflevector(c, d, 0, 4, 1, 5) + __builtin_shufflevector(c, d, 2, 6, 3, 7);
    return __builtin_shufflevector(ab, cd, 0, 1, 4, 5) + __builtin_shufflevector(ab, cd, 2, 3, 6, 7);
}

/// The light of four target columns, each with `taps` sums from its start and as many weights.
inline Lanes light(const std::uint16_t* sums, const std::uint32_t* starts, const std::int16_t* weights,
                   std::size_t taps) {
    std::array<Lanes, lanes> columns{};
    for (std::size_t k = 0; k < taps; k += words)
        for (std::size_t i = 0; i < lanes; ++i)
            columns[i] += multiply(sums + starts[i] + k, weights + i * taps + k);
    return totals(columns[0], columns[1], columns[2], columns[3]);
}

/// Four pixels of these shades, each 0 to 255 units, rounded to the nearest.
void storeGreys(Lanes light, std::uint32_t* to) {
    using Pixels = std::uint32_t __attribute__((vector_size(16)));
    const auto grey = reinterpret_cast<Pixels>((light + rounding) >> unit);
    const Pixels pixels = grey | grey << 8 | grey << 16 | 0xFF000000u;
    std::memcpy(to, &pixels, sizeof pixels);
}

} // namespace

void GreyRow::arrange(const Axis& across) {
    const auto taps = static_cast<std::size_t>(across.taps());
    taps_ = (taps + words - 1) / words * words;
    firstColumn_ = across.first(across.begin());
    columns_ = static_cast<std::size_t>(across.first(across.end() - 1) - firstColumn_) + taps;
    pixels_ = static_cast<std::size_t>(across.end() - across.begin());
    sums_.assign(columns_ + words, 0);
    const std::size_t stored = (pixels_ + lanes - 1) / lanes * lanes;
    starts_.assign(stored, 0);
    weights_.assign(stored * taps_, 0);
    for (std::size_t i = 0; i < pixels_; ++i) {
        const int x = across.begin() + static_cast<int>(i);
        starts_[i] = static_cast<std::uint32_t>(across.first(x) - firstColumn_);
        weigh(across.shares(x), across.taps(), wholeAcross, weights_.data() + i * taps_);
    }
}

void GreyRow::add(const std::uint8_t* source, std::size_t stride, const float* shares, int taps) {
    rowWeights_.resize(static_cast<std::size_t>(taps));
    weigh(shares, taps, wholeDown, rowWeights_.data());
    std::uint16_t* const sums = sums_.data();
    std::fill_n(sums, columns_, middle);
    for (const int weight : rowWeights_) {
        if (weight != 0)
            for (std::size_t i = 0; i < columns_; ++i)
                sums[i] = static_cast<std::uint16_t>(sums[i] + source[i] * weight);
        source += stride;
    }
}

void GreyRow::pour(std::uint32_t* line) const {
    const auto columns = [this](std::size_t i) {
        return light(sums_.data(), starts_.data() + i, weights_.data() + i * taps_, taps_);
    };
    const std::size_t whole = pixels_ / lanes * lanes;
    for (std::size_t i = 0; i < whole; i += lanes) storeGreys(columns(i), line + i);
    if (whole == pixels_) return;
    std::array<std::uint32_t, lanes> last;
    storeGreys(columns(whole), last.data());
    std::copy_n(last.begin(), pixels_ - whole, line + whole);
}

} // namespace quarvel
