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
    /// played the desktop's default sound plays instead. Without a sound device nothing happens.
    virtual void play(const QString& path) = 0;
};

/// Plays on the desktop's default sound device, which is looked for at the first sound.
class QtSoundPlayer : public SoundPlayer {
public:
    QtSoundPlayer();
    ~QtSoundPlayer() override;
    void play(const QString& path) override;

private:
    struct Playing;
    std::unique_ptr<Playing> playing_;
};

} // namespace quarvel
