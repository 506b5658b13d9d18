#pragma once

#include <QString>
#include <memory>

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

class PulseStream;

/// Plays through the desktop's PulseAudio-compatible sound server. Its library is looked for at the first
/// sound and nothing is linked for it: a program that is silent most of the time need not load it at every
/// start.
class DesktopSoundPlayer : public SoundPlayer {
public:
    DesktopSoundPlayer();
    ~DesktopSoundPlayer() override;
    void play(const QString& path) override;

private:
    std::unique_ptr<PulseStream> playing_;
};

} // namespace quarvel
