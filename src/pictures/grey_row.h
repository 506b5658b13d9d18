#pragma once

#include "pictures/axis.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quarvel {

/// One target row in the making of a picture that is shown smaller and whose palette indices are its shades
/// of grey. As InkRow it adds up the source rows first, one sum a source column, and then the columns. All of
/// it is whole numbers of 16 bits, which the processor takes eight at a time; that is faster than to look for
/// empty areas. Shares are rounded so that what a run has had of its whole is never off by more than half a
/// unit: 1/256 of a shade's weight downwards, 1/16384 across.
class GreyRow {
public:
    /// Makes room for the source columns of `across`, which must not be empty. Memory of earlier rows is used
    /// again.
    void arrange(const Axis& across);
    /// The source column at which rows to be added begin.
    [[nodiscard]] int firstColumn() const { return firstColumn_; }

    /// Adds up `taps` source rows with a share each, 0 to 1, that add up to 1. `source` is the pixel
    /// firstColumn() of the first of them, and the next row follows `stride` bytes later.
    void add(const std::uint8_t* source, std::size_t stride, const float* shares, int taps);

    /// Writes the pixels of `line`, one for each target column of the axis, rounded to the nearest shade.
    void pour(std::uint32_t* line) const;

private:
    int firstColumn_ = 0;
    std::size_t columns_ = 0;
    std::size_t taps_ = 0;   // of a target column, filled up to whole vectors with weights of 0
    std::size_t pixels_ = 0; // target columns
    std::vector<std::int16_t> rowWeights_;
    std::vector<std::uint16_t> sums_; // as many more as a vector reads past the last column
    // For as many target columns as storing takes at a time:
    std::vector<std::uint32_t> starts_; // the first of its sums
    std::vector<std::int16_t> weights_; // taps_ each
};

} // namespace quarvel
