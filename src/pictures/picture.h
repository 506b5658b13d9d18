#pragma once

#include "files/result.h"

#include <QByteArray>
#include <QColor>
#include <QSize>
#include <QString>
#include <array>
#include <cstdint>
#include <memory>
#include <optional>

namespace quarvel {

/// A GIF picture, kept as it is stored: one byte a pixel and a palette of up to 256 colours. A picture is
/// decoded once and never scaled as a whole; painting works from these pixels (pictures/painter.h).
/// Copies share the pixels. Rows, palette and ground are only there when isNull() is false.
class Picture {
public:
    /// No picture: size 0 x 0.
    Picture() = default;

    /// Reads the first frame of a GIF file, composed onto its logical screen. Rows of it that are cut off or
    /// broken are marked by grey stripes and told by shortfall(); what the file holds behind it does not
    /// matter. Fails with the faults of readWholeFile, with Damaged (not a GIF, or not a row of a frame in
    /// it) or with TooLarge (a side above 32767 pixels, more than 128 million pixels, or more than there is
    /// memory for).
    [[nodiscard]] static Result<Picture> read(const QString& path);

    /// The same from bytes in memory; `path` only names them in a failure.
    [[nodiscard]] static Result<Picture> decode(const QByteArray& gif, const QString& path);

    [[nodiscard]] bool isNull() const { return size_.isEmpty(); }
    [[nodiscard]] QSize size() const { return size_; } ///< in pixels of the picture

    /// What the file lacks, if anything: CutOff or RowsMissing (detail: how many hundredths).
    [[nodiscard]] const std::optional<Failure>& shortfall() const { return shortfall_; }

    /// width() bytes of palette indices, row 0 on top.
    [[nodiscard]] const std::uint8_t* row(int y) const;
    /// 256 colours as 0xFFRRGGBB; indices that the file does not define are black. What the file leaves
    /// transparent shows as white paper.
    [[nodiscard]] const std::array<std::uint32_t, 256>& palette() const { return *palette_; }

    /// Whether each palette index is its own shade of grey, 0 black to 255 white. All pictures without colour
    /// are kept so.
    [[nodiscard]] bool isGrey() const { return grey_; }

    /// The palette index that most of the picture shows, by a sample: a chart's paper. Only the speed of
    /// painting rests on it.
    [[nodiscard]] std::uint8_t ground() const { return ground_; }

private:
    QSize size_{0, 0};
    std::uint8_t ground_ = 0;
    bool grey_ = false;
    std::optional<Failure> shortfall_;
    std::shared_ptr<const std::uint8_t[]> pixels_;
    std::shared_ptr<const std::array<std::uint32_t, 256>> palette_;
};

} // namespace quarvel
