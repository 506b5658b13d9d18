#include "presenter/voice/loudness.h"

#include <QtEndian>
#include <algorithm>
#include <cmath>

namespace quarvel {

double loudnessOf(QByteArrayView samples) {
    // Root mean square of a thirtieth of a second that one in twenty exceeds in speech by espeak-ng's Italian
    // voice; half of them stay below a third of it.
    constexpr double loudSpeech = 5200;
    const qsizetype count = samples.size() / 2;
    if (count == 0) return 0;
    double squares = 0;
    for (qsizetype i = 0; i < count; ++i) {
        const double sample = qFromLittleEndian<qint16>(samples.data() + 2 * i);
        squares += sample * sample;
    }
    return std::min(1.0, std::sqrt(squares / static_cast<double>(count)) / loudSpeech);
}

void LoudnessTrack::add(const QByteArray& samples) {
    begun_ += samples;
    qsizetype at = 0;
    for (; begun_.size() - at >= bytesPerStep_; at += bytesPerStep_)
        levels_.push_back(loudnessOf(QByteArrayView(begun_).sliced(at, bytesPerStep_)));
    begun_.remove(0, at);
}

double LoudnessTrack::at(qint64 frame) {
    const qint64 step = frame * 2 / bytesPerStep_;
    for (; first_ < step && !levels_.empty(); ++first_) levels_.pop_front();
    return levels_.empty() ? 0 : levels_.front();
}

} // namespace quarvel
