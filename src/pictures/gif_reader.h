#pragma once

#include "files/result.h"

#include <QByteArray>
#include <QSize>
#include <QString>
#include <array>
#include <cstdint>
#include <memory>

namespace quarvel {

/// Which rows of a picture its file does not hold.
struct MissingRows {
    enum class Where {
        Nowhere,
        Below, ///< all from one row downwards
        Among  ///< rows among others that are there
    };
    Where where = Where::Nowhere;
    int percent = 0; ///< of the picture's height, 1 to 99 where any are missing
};

/// The logical screen of a GIF file with its first frame on it.
struct GifPicture {
    QSize size;                                   ///< in pixels, never empty
    std::shared_ptr<const std::uint8_t[]> pixels; ///< palette indices, row by row, row 0 on top
    std::array<std::uint32_t, 256> palette;       ///< 0xFFRRGGBB
    MissingRows missing;                          ///< they are striped
};

/// Decodes the first frame of a GIF87a or GIF89a file. What the frame does not cover or leaves transparent is
/// white; what it holds outside the logical screen is cut off. Fails as Picture::decode does; `path` names
/// the file then.
[[nodiscard]] Result<GifPicture> readGif(const QByteArray& gif, const QString& path);

} // namespace quarvel
