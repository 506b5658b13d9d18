#pragma once

#include <cstddef>
#include <vector>

namespace quarvel {

/// How one axis of a stretched picture is made from the picture's own pixels: for each target pixel, a run of
/// neighbouring source pixels and the share that each has in it. All runs are equally long (taps()); shares
/// of 0 fill them up, and a run's shares add up to 1. Everything follows from the target pixel's place on the
/// stretched picture alone, never from the visible part, so that panning does not change a single pixel.
class Axis {
public:
    /// Plans the target pixels `from` to `from + count - 1`, counted from the start of a picture of `source`
    /// pixels (at least 1) that is stretched to `stretched` target pixels (above 0). Memory of earlier plans
    /// is used again.
    void plan(int source, double stretched, int from, int count);

    /// The target pixels, counted from `from`, whose centre lies on the picture: [begin, end).
    [[nodiscard]] int begin() const { return begin_; }
    [[nodiscard]] int end() const { return end_; }
    [[nodiscard]] bool isEmpty() const { return begin_ == end_; }

    /// One target pixel for each source pixel.
    [[nodiscard]] bool isNatural() const { return scale_ == Scale::Whole && repeats_ == 1; }
    /// Every source pixel as a whole number of target pixels.
    [[nodiscard]] bool isWhole() const { return scale_ == Scale::Whole; }
    [[nodiscard]] bool isSmaller() const { return scale_ == Scale::Smaller; }
    [[nodiscard]] int taps() const { return taps_; }
    /// The first source pixel of target pixel `i`, begin() <= i < end(); it never falls from one to the next,
    /// and all taps() of them exist.
    [[nodiscard]] int first(int i) const { return first_[static_cast<std::size_t>(i - begin_)]; }
    /// The taps() shares of target pixel `i`.
    [[nodiscard]] const float* shares(int i) const {
        return shares_.data() + static_cast<std::size_t>(i - begin_) * static_cast<std::size_t>(taps_);
    }

private:
    enum class Scale { Smaller, Whole, Sharp, Smooth };
    void choose(int source, double stretched);
    void average(double from, double to, int source, float* shares, int& first) const;
    void blend(double at, int source, float* shares, int& first) const;

    Scale scale_ = Scale::Whole;
    double repeats_ = 1; // target pixels for each source pixel of a whole scale
    int begin_ = 0;
    int end_ = 0;
    int taps_ = 1;
    std::vector<int> first_;
    std::vector<float> shares_;
};

} // namespace quarvel
