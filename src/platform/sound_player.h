#pragma once

#include "platform/pcm_output.h"

#include <QString>

namespace quarvel {

/// Plays wave files without waiting for their end.
class SoundPlayer {
public:
    SoundPlayer() = default;
    SoundPlayer(const SoundPlayer&) = delete;
    SoundPlayer& operator=(const SoundPlayer&) = delete;
    virtual ~SoundPlayer() = default;
    /// Starts a wave file and returns at once; a sound that still plays is cut off. When the file cannot be
    /// played the desktop's default sound plays instead. Without a sound server nothing happens.
    virtual void play(const QString& path) = 0;
};

/// Plays through the desktop's sound server.
class DesktopSoundPlayer : public SoundPlayer {
public:
    void play(const QString& path) override;

private:
    PcmOutput output_;
};

} // namespace quarvel
