#pragma once

#include "platform/wave_file.h"

#include <QByteArray>
#include <QTimer>
#include <memory>

namespace quarvel {

/// A sound on its way to the sound server. Letting go of it stops the sound.
class PulseStream {
public:
    /// Starts to play; nothing when there is no sound server or no library for it.
    [[nodiscard]] static std::unique_ptr<PulseStream> start(const WaveSound& sound);
    ~PulseStream();
    PulseStream(const PulseStream&) = delete;
    PulseStream& operator=(const PulseStream&) = delete;

private:
    PulseStream(void* connection, const WaveSound& sound);
    void feed(qsizetype bytes);

    void* connection_;
    QByteArray samples_;
    qsizetype sent_ = 0;
    QTimer feeding_;
};

} // namespace quarvel
