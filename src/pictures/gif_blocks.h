#pragma once

#include "files/result.h"

#include <QByteArray>
#include <QRect>
#include <QSize>
#include <QString>
#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace quarvel {

/// What a GIF file tells about its first frame, the pixels still packed.
struct GifFrame {
    QSize screen; ///< the logical screen, in pixels; the frame's own size where the file gives none
    QRect place;  ///< the frame on the logical screen; it may reach beyond it
    bool interlaced = false;
    std::optional<std::uint8_t> transparent; ///< the palette index that leaves the paper bare
    std::array<std::uint32_t, 256> palette;  ///< 0xFFRRGGBB; black where the file defines nothing
    std::array<std::uint8_t, 256> values;    ///< for each pixel value of the file, its index in `palette`
    unsigned rootBits = 0;                   ///< the LZW code size, 1 to 8
    std::vector<std::uint8_t> packed; ///< the LZW codes, their sub-blocks joined, with the slack of lzw.h

    [[nodiscard]] std::span<const std::uint8_t> codes() const;
};

/// Walks the blocks of a GIF87a or GIF89a file as far as its first frame and takes that; other blocks, and
/// stray bytes between them, are passed over, and what comes behind the frame is not looked at. The frame's
/// codes may be cut off. Where all colours are grey, the palette runs from black to white, and each shade
/// stands at its own index. Fails with TooLarge when the logical screen or the frame has a side above 32767
/// pixels or more than 128 million pixels, and with Damaged when there is no frame; `path` names the file in
/// the failure.
[[nodiscard]] Result<GifFrame> readFirstFrame(const QByteArray& gif, const QString& path);

} // namespace quarvel
