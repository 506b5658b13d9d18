#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace quarvel {

/// Colours of our own in a picture of palette indices: bare paper, and the marks of what is missing.
class OwnColours {
public:
    using Palette = std::array<std::uint32_t, 256>;

    /// Both must outlive this: the palette, 0xFFRRGGBB, and all pixels that the file gives.
    OwnColours(Palette& palette, std::span<const std::uint8_t> pixels) : palette_(palette), pixels_(pixels) {}

    /// An index for a colour. A palette without it gets it at an index that no pixel uses; where all 256 are
    /// in use, the colour that is nearest has to do, another one each time.
    [[nodiscard]] std::uint8_t index(std::uint32_t colour);

private:
    using Indices = std::array<bool, 256>;
    [[nodiscard]] Indices usedIndices() const;
    [[nodiscard]] std::uint8_t nearest(std::uint32_t colour) const;

    Palette& palette_;
    std::span<const std::uint8_t> pixels_;
    Indices given_{};
};

/// Grey slanting stripes for rows that a file does not hold. Averaged, as when the picture is shown small,
/// they are grey still, and neither paper nor ink.
class Stripes {
public:
    /// For rows of `width` pixels.
    Stripes(OwnColours& colours, int width);
    /// The pixels of the picture's row `y`.
    [[nodiscard]] const std::uint8_t* row(int y) const;

private:
    std::vector<std::uint8_t> pixels_;
};

} // namespace quarvel
