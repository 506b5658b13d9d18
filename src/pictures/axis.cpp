#include "pictures/axis.h"

#include <algorithm>
#include <cmath>

namespace quarvel {

void Axis::plan(int source, double stretched, int from, int count) {
    const double step = source / stretched; // source pixels a target pixel
    scale_ = step > 1 ? Scale::Smaller : step < 1 ? Scale::Larger : Scale::Natural;
    const double wanted = scale_ == Scale::Smaller ? std::ceil(step) + 1 : scale_ == Scale::Larger ? 2 : 1;
    taps_ = static_cast<int>(std::min(wanted, double(source)));
    const auto clampToPart = [&](double place) {
        return static_cast<int>(std::clamp<double>(place - from, 0, count));
    };
    begin_ = clampToPart(0);
    end_ = clampToPart(std::ceil(stretched - 0.5));

    const auto pixels = static_cast<std::size_t>(end_ - begin_);
    first_.resize(pixels);
    shares_.resize(pixels * static_cast<std::size_t>(taps_));
    float* shares = shares_.data();
    for (std::size_t i = 0; i < pixels; ++i, shares += taps_) {
        const double x = double(from) + begin_ + static_cast<double>(i);
        if (scale_ == Scale::Smaller)
            average(x * step, (x + 1) * step, source, shares, first_[i]);
        else
            blend((x + 0.5) * step - 0.5, source, shares, first_[i]);
    }
}

/// Each source pixel has its share of the stretch [from, to), as far as the picture goes.
void Axis::average(double from, double to, int source, float* shares, int& first) const {
    first = std::min(static_cast<int>(from), source - taps_);
    const double covered = std::min<double>(to, source) - from;
    for (int k = 0; k < taps_; ++k) {
        const double pixel = first + k;
        shares[k] =
            static_cast<float>(std::max(0.0, std::min(to, pixel + 1) - std::max(from, pixel)) / covered);
    }
}

/// The two pixels whose centres lie on either side of `at`, where 0 is the centre of the first pixel. At
/// natural size the one tap stands at `at` itself.
void Axis::blend(double at, int source, float* shares, int& first) const {
    const double inside = std::clamp<double>(at, 0, source - 1);
    first = std::min(static_cast<int>(inside), source - taps_);
    const auto next = static_cast<float>(inside - first);
    shares[0] = taps_ == 1 ? 1.0f : 1.0f - next;
    if (taps_ == 2) shares[1] = next;
}

} // namespace quarvel
