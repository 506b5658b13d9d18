#include "pictures/axis.h"

#include <algorithm>
#include <cmath>

namespace quarvel {

namespace {

constexpr double sharpUpTo = 2; // times; further enlarged, a chart of hard squares is harder to read

} // namespace

/// A whole number of target pixels for each source pixel shows these as they are, and so does the mean up to
/// twice the size: lines and print keep their edges on screens whose pixels are smaller than a chart's.
void Axis::choose(int source, double stretched) {
    const double times = stretched / source;
    repeats_ = std::round(times);
    if (stretched == repeats_ * source)
        scale_ = Scale::Whole;
    else
        scale_ = times < 1 ? Scale::Smaller : times < sharpUpTo ? Scale::Sharp : Scale::Smooth;
}

void Axis::plan(int source, double stretched, int from, int count) {
    choose(source, stretched);
    const double step = source / stretched; // source pixels a target pixel
    const double wanted = scale_ == Scale::Smaller ? std::ceil(step) + 1 : scale_ == Scale::Whole ? 1 : 2;
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
        switch (scale_) {
        case Scale::Whole:
            first_[i] = static_cast<int>((x + 0.5) * step);
            shares[0] = 1;
            break;
        case Scale::Smooth: blend((x + 0.5) * step - 0.5, source, shares, first_[i]); break;
        case Scale::Smaller:
        case Scale::Sharp: average(x * step, (x + 1) * step, source, shares, first_[i]); break;
        }
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

/// The two pixels whose centres lie on either side of `at`, where 0 is the centre of the first pixel.
void Axis::blend(double at, int source, float* shares, int& first) const {
    const double inside = std::clamp<double>(at, 0, source - 1);
    first = std::min(static_cast<int>(inside), source - taps_);
    const auto next = static_cast<float>(inside - first);
    shares[0] = taps_ == 1 ? 1.0f : 1.0f - next;
    if (taps_ == 2) shares[1] = next;
}

} // namespace quarvel
