#pragma once

#include <QByteArray>
#include <optional>

namespace quarvel {

/// How uncompressed sound is told in bytes: interleaved little-endian samples.
struct PcmFormat {
    int sampleRate = 0;    ///< Hz
    int channels = 0;      ///< 1 to 8
    int bitsPerSample = 0; ///< 8 (unsigned) or 16 (signed)

    [[nodiscard]] qsizetype bytesPerFrame() const { return qsizetype{channels} * bitsPerSample / 8; }
    bool operator==(const PcmFormat&) const = default;
};

struct WaveSound {
    PcmFormat format;
    QByteArray samples;
};

/// Reads a RIFF WAVE file with uncompressed 8- or 16-bit samples; nothing for any other. A file that ends
/// before its samples do gives those that are there. Format: Microsoft and IBM, Multimedia Programming
/// Interface and Data Specifications 1.0 (1991).
[[nodiscard]] std::optional<WaveSound> readWave(const QByteArray& file);

} // namespace quarvel
