#pragma once

#include <QByteArray>
#include <optional>

namespace quarvel {

/// Uncompressed sound: interleaved little-endian samples.
struct WaveSound {
    int sampleRate = 0;    ///< Hz
    int channels = 0;      ///< 1 to 8
    int bitsPerSample = 0; ///< 8 (unsigned) or 16 (signed)
    QByteArray samples;
};

/// Reads a RIFF WAVE file with uncompressed 8- or 16-bit samples; nothing for any other. Format: Microsoft
/// and IBM, Multimedia Programming Interface and Data Specifications 1.0 (1991).
[[nodiscard]] std::optional<WaveSound> readWave(const QByteArray& file);

} // namespace quarvel
