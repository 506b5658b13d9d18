#include "platform/sound_player.h"

#include "files/whole_file.h"
#include "platform/wave_file.h"

#include <QApplication>
#include <QLibrary>
#include <optional>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

constexpr qint64 largestSoundBytes = qint64{64} * 1024 * 1024;

/// The sound theme's bell, through the desktop's event-sound library where there is one, else the window
/// system's bell. The library is looked for only now: most runs never need it.
void playDefaultSound() {
    struct Context;
    using Create = int (*)(Context**);
    using Play = int (*)(Context*, unsigned, ...);
    static Context* context = nullptr;
    static const auto create =
        reinterpret_cast<Create>(QLibrary::resolve(u"canberra"_s, 0, "ca_context_create"));
    static const auto play = reinterpret_cast<Play>(QLibrary::resolve(u"canberra"_s, 0, "ca_context_play"));
    if (context == nullptr && create != nullptr) create(&context);
    const bool played = context != nullptr && play != nullptr &&
                        play(context, 0U, "event.id", "bell", static_cast<char*>(nullptr)) == 0;
    if (!played) QApplication::beep();
}

} // namespace

void DesktopSoundPlayer::play(const QString& path) {
    output_.stop();
    const Result<QByteArray> file = readWholeFile(path, largestSoundBytes);
    const std::optional<WaveSound> sound = file ? readWave(file.value()) : std::nullopt;
    if (!sound) return playDefaultSound();
    output_.begin(sound->format);
    output_.write(sound->samples);
    output_.end();
}

} // namespace quarvel
