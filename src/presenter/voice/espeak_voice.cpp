#include "presenter/voice/espeak_voice.h"

#include "presenter/voice/loudness.h"
#include "presenter/voice/reading_time.h"
#include "presenter/voice/synthesis.h"

#include <QElapsedTimer>
#include <algorithm>
#include <limits>
#include <optional>

namespace quarvel {
namespace {

constexpr std::chrono::milliseconds tickTime{33};
constexpr qsizetype headBytes = 4096; // the sound begins within so many, or it is none
constexpr qsizetype secondsAhead = 2; // of sound that is handed over and not heard

} // namespace

/// A text on its way.
struct EspeakVoice::Speech {
    explicit Speech(const QString& text) : synthesis(text), readingTime(quarvel::readingTime(text)) {
        begun.start();
        moved.start();
    }
    /// What comes from the synthesiser is no sound.
    [[nodiscard]] bool isUnreadable() const {
        return !levels && (head.size() >= headBytes || synthesis.state() != SynthesisState::Working);
    }

    Synthesis synthesis;
    std::chrono::milliseconds readingTime;
    QElapsedTimer begun;
    QElapsedTimer moved;                 // since something came or was heard
    QByteArray head;                     // what has come before the sound begins
    qsizetype mostAhead = 0;             // bytes
    std::optional<LoudnessTrack> levels; // once the sound has begun
    qint64 heardFrames = 0;
};

EspeakVoice::EspeakVoice(std::chrono::milliseconds patience, QObject* parent)
    : Voice(parent), patience_(patience) {
    ticking_.setInterval(tickTime);
    silence_.setSingleShot(true);
    connect(&ticking_, &QTimer::timeout, this, &EspeakVoice::tick);
    connect(&silence_, &QTimer::timeout, this, &EspeakVoice::finish);
}

EspeakVoice::~EspeakVoice() = default;

void EspeakVoice::speak(const QString& text) {
    stop();
    speaking_ = true;
    if (text.isEmpty()) return finish();
    speech_ = std::make_unique<Speech>(text);
    ticking_.start();
}

void EspeakVoice::stop() {
    if (speaking_) finish();
}

void EspeakVoice::tick() {
    const bool came = takeSound();
    const PcmProgress now = output_.progress();
    const bool heard = now.heardFrames > speech_->heardFrames;
    if (came || heard) speech_->moved.start();
    speech_->heardFrames = now.heardFrames;
    if (now.state == PcmState::Ended && speech_->synthesis.state() == SynthesisState::Complete)
        return finish();
    const bool hopeless = now.state == PcmState::Ended || now.state == PcmState::Failed ||
                          speech_->isUnreadable() || speech_->moved.hasExpired(patience_.count());
    if (hopeless) return beSilent();
    if (now.heardFrames > 0) Q_EMIT loudness(heard ? speech_->levels->at(now.heardFrames) : 0);
}

/// Hands over what has come; whether anything has.
bool EspeakVoice::takeSound() {
    const qsizetype headBefore = speech_->head.size();
    if (!speech_->levels) lookForSound();
    if (!speech_->levels) return speech_->head.size() > headBefore;
    const QByteArray samples = speech_->synthesis.read(speech_->mostAhead - output_.progress().waitingBytes);
    speech_->levels->add(samples);
    output_.write(samples);
    if (speech_->synthesis.state() != SynthesisState::Working) output_.end();
    return !samples.isEmpty();
}

/// The wave file's lengths are placeholders, for the synthesiser did not know them yet when it wrote them:
/// its samples go on to its end.
void EspeakVoice::lookForSound() {
    speech_->head += speech_->synthesis.read(headBytes - speech_->head.size());
    const std::optional<WaveSound> sound = readWave(speech_->head);
    if (!sound || sound->format.channels != 1 || sound->format.bitsPerSample != 16) return;
    speech_->mostAhead = secondsAhead * sound->format.sampleRate * sound->format.bytesPerFrame();
    speech_->levels.emplace(sound->format.sampleRate).add(sound->samples);
    output_.begin(sound->format);
    output_.write(sound->samples);
}

void EspeakVoice::stayOutOfHearing() {
    speech_.reset();
    ticking_.stop();
    silence_.stop();
    output_.stop();
}

/// Lets the rest of the time pass that reading the text takes.
void EspeakVoice::beSilent() {
    const qint64 rest = speech_->readingTime.count() - speech_->begun.elapsed();
    stayOutOfHearing();
    silence_.start(static_cast<int>(std::clamp<qint64>(rest, 0, std::numeric_limits<int>::max())));
    Q_EMIT loudness(0);
}

void EspeakVoice::finish() {
    stayOutOfHearing();
    speaking_ = false;
    QMetaObject::invokeMethod(this, &Voice::finished, Qt::QueuedConnection);
    Q_EMIT loudness(0);
}

} // namespace quarvel
