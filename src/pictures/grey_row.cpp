#include "pictures/grey_row.h"

#include <algorithm>
#include <cstring>

namespace quarvel {
namespace {

constexpr int mostTogether = 257; // rows whose sum 16 bits hold
static_assert(mostTogether * 255 <= 0xFFFF);

using Lanes = float __attribute__((vector_size(16)));
constexpr std::size_t lanes = sizeof(Lanes) / sizeof(float);

Lanes load(const float* from) {
    Lanes loaded;
    std::memcpy(&loaded, from, sizeof loaded);
    return loaded;
}

float total(Lanes one) {
    const Lanes pairs = one + __builtin_shufflevector(one, one, 2, 3, 0, 1);
    return pairs[0] + pairs[1];
}

} // namespace

void GreyRow::arrange(const Axis& across) {
    const auto taps = static_cast<std::size_t>(across.taps());
    taps_ = (taps + lanes - 1) / lanes * lanes;
    firstColumn_ = across.first(across.begin());
    columns_ = static_cast<std::size_t>(across.first(across.end() - 1) - firstColumn_) + taps;
    together_.resize(columns_);
    sums_.assign(columns_ + lanes, 0);
    shares_.assign(static_cast<std::size_t>(across.end() - across.begin()) * taps_, 0);
    float* shares = shares_.data();
    for (int x = across.begin(); x < across.end(); ++x, shares += taps_)
        std::copy_n(across.shares(x), taps, shares);
}

void GreyRow::add(const std::uint8_t* source, std::size_t stride, int count, float share) {
    for (; count > mostTogether; count -= mostTogether, source += mostTogether * stride)
        addSum(source, stride, mostTogether, share);
    addSum(source, stride, count, share);
}

void GreyRow::addSum(const std::uint8_t* source, std::size_t stride, int count, float share) {
    float* const sums = sums_.data();
    if (count == 1) {
        for (std::size_t i = 0; i < columns_; ++i) sums[i] += static_cast<float>(source[i]) * share;
        return;
    }
    std::uint16_t* const together = together_.data();
    std::copy_n(source, columns_, together);
    for (int row = 1; row < count; ++row) {
        source += stride;
        for (std::size_t i = 0; i < columns_; ++i)
            together[i] = static_cast<std::uint16_t>(together[i] + source[i]);
    }
    for (std::size_t i = 0; i < columns_; ++i) sums[i] += static_cast<float>(together[i]) * share;
}

void GreyRow::pour(const Axis& across, std::uint32_t* line) {
    const float* shares = shares_.data();
    for (int x = across.begin(); x < across.end(); ++x) {
        const float* sums = sums_.data() + (across.first(x) - firstColumn_);
        Lanes light{0.5f};
        for (std::size_t k = 0; k < taps_; k += lanes, shares += lanes)
            light += load(sums + k) * load(shares);
        line[x] = 0xFF000000u | static_cast<std::uint32_t>(static_cast<int>(total(light))) * 0x010101u;
    }
    std::fill(sums_.begin(), sums_.end(), 0.0f);
}

} // namespace quarvel
