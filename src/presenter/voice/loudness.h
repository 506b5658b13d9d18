#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <deque>

namespace quarvel {

/// How loud signed 16-bit little-endian samples sound: 0 for silence, 1 for the loudest moments of speech and
/// anything above.
[[nodiscard]] double loudnessOf(QByteArrayView samples);

/// The loudness of one channel of such samples over time, in steps of a thirtieth of a second. Keeps what has
/// not been asked for, so that its size goes with the sound that is not heard yet.
class LoudnessTrack {
public:
    /// `sampleRate` in Hz, at least 30.
    explicit LoudnessTrack(int sampleRate) : bytesPerStep_(qsizetype{sampleRate} / 30 * 2) {}

    /// Adds samples; any number of bytes.
    void add(const QByteArray& samples);
    /// The loudness about a frame, 0 behind the end. The frame is never before that of an earlier call.
    [[nodiscard]] double at(qint64 frame);

private:
    qsizetype bytesPerStep_;
    QByteArray begun_; // of a step that is not whole yet
    std::deque<double> levels_;
    qint64 first_ = 0; // step of the first level
};

} // namespace quarvel
