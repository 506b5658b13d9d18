#pragma once

#include "pictures/axis.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace quarvel {

/// One target row in the making of a filtered picture whose palette indices are its shades of grey. As InkRow
/// it adds up the source rows first, one sum a source column, and then the columns. Without a palette in
/// between, both are loops over neighbouring numbers that the compiler turns into vector instructions, which
/// is faster than to look for empty areas.
class GreyRow {
public:
    /// Makes room for the source columns of `across`, which must not be empty. Memory of earlier rows is used
    /// again.
    void arrange(const Axis& across);
    /// The source column at which rows to be added begin.
    [[nodiscard]] int firstColumn() const { return firstColumn_; }

    /// Adds `count` (at least 1) source rows that each have the same `share`, 0 to 1. `source` is the pixel
    /// firstColumn() of the first of them, and the next row follows `stride` bytes later.
    void add(const std::uint8_t* source, std::size_t stride, int count, float share);

    /// Writes the pixels of `line` (one for each target column of `across`), rounded to the nearest shade.
    /// Nothing is left for the next row then.
    void pour(const Axis& across, std::uint32_t* line);

private:
    void addSum(const std::uint8_t* source, std::size_t stride, int count, float share);

    int firstColumn_ = 0;
    std::size_t columns_ = 0;
    std::size_t taps_ = 0; // of a target column, filled up to whole vectors with shares of 0
    std::vector<std::uint16_t> together_;
    std::vector<float> sums_;   // as many more as a vector reads past the last column, always 0
    std::vector<float> shares_; // taps_ a target column
};

} // namespace quarvel
