#pragma once

#include "platform/wave_file.h"

#include <QByteArray>
#include <memory>

namespace quarvel {

enum class PcmState {
    Waiting, ///< nothing has begun, or the sound server has not answered yet
    Playing,
    Ended, ///< all has been heard
    Failed ///< there is no sound server, or it has gone
};

struct PcmProgress {
    PcmState state = PcmState::Waiting;
    qsizetype waitingBytes = 0; ///< handed over and not yet with the sound server
    qint64 heardFrames = 0;     ///< of the sound's frames, as far as the sound server knows
};

/// Plays one sound at a time and never waits: a thread of its own stands in for the caller while the sound
/// server is slow. That thread lives as long as there is something to play. Nobody waits for it, and what it
/// touches is its own as much as the output's, so that it may be stuck for good in a sound server that is
/// stopped. There is one at most for each output: a sound that begins meanwhile waits until it comes back.
class PcmOutput {
public:
    PcmOutput();
    /// Silences what plays.
    ~PcmOutput();
    PcmOutput(const PcmOutput&) = delete;
    PcmOutput& operator=(const PcmOutput&) = delete;

    /// Begins a sound; another one that still plays is cut off.
    void begin(const PcmFormat& format);
    /// Adds samples to the sound that has begun. Any number of bytes: a frame may come in parts.
    void write(const QByteArray& samples);
    /// Nothing will be added to the sound: when all of it has been heard it has ended.
    void end();
    /// Cuts off the sound.
    void stop();
    [[nodiscard]] PcmProgress progress() const;

private:
    struct Desk;
    std::shared_ptr<Desk> desk_;
};

} // namespace quarvel
