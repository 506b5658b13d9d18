#pragma once

#include "pictures/axis.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace quarvel {

/// One target row of a filtered picture in the making. The source rows that it shows are added up first, one
/// sum a source column; then the sums are gathered into, or spread over, the target columns.
///
/// What is summed is not colour but ink: how far a pixel departs from the ground colour, which most of a
/// chart shows. Ground has no ink, so whole blocks of it are passed over in both steps, and an empty area
/// costs hardly more than reading it.
class InkRow {
public:
    /// Takes the picture's colours, 0xFFRRGGBB, and the index of its ground.
    void setColours(const std::array<std::uint32_t, 256>& palette, std::uint8_t ground);
    [[nodiscard]] std::uint32_t groundColour() const { return groundColour_; }

    /// Makes room for the source columns of `across`, which must not be empty. Memory of earlier rows is used
    /// again.
    void arrange(const Axis& across);
    /// The source column at which rows to be added begin.
    [[nodiscard]] int firstColumn() const { return firstColumn_; }

    /// Adds a `share`, 0 to 1, of a source row's palette indices. `source` is its pixel firstColumn().
    void add(const std::uint8_t* source, float share);

    /// Writes those pixels of `line` (one for each target column of `across`) that any ink has come into,
    /// rounded to the nearest colour. No ink is left for the next row then.
    void pour(const Axis& across, std::uint32_t* line);

private:
    /// Blue, green and red, each -255 to 255, and an idle lane: a vector that one instruction adds or scales.
    using Ink = float __attribute__((vector_size(16)));
    static constexpr std::size_t blockPixels = 8;
    struct Block {
        int begin, end; // the target columns that show some of it
        bool inked;
    };

    static Ink asInk(std::uint32_t colour);
    static std::uint32_t asColour(Ink light);
    void addPixels(const std::uint8_t* source, std::size_t block, std::size_t count, float share);

    std::array<Ink, 256> inks_;
    Ink light_{}; // of the ground, with the half that rounds it
    std::uint32_t groundColour_ = 0;
    std::uint64_t blockOfGround_ = 0;
    int firstColumn_ = 0;
    std::size_t columns_ = 0;
    std::vector<Ink> sums_; // zero in all blocks that are not inked
    std::vector<Block> blocks_;
    std::vector<std::uint32_t> found_; // the blocks of the row being added that hold ink
};

} // namespace quarvel
