#include "platform/pcm_output.h"

#include "platform/pulse_connection.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

namespace quarvel {
namespace {

using Clock = std::chrono::steady_clock;

/// What is handed over at a time: a sound that is cut off waits for no longer than such a portion takes.
constexpr std::chrono::milliseconds portionTime{25};

struct Sound {
    explicit Sound(const PcmFormat& itsFormat) : format(itsFormat) {}

    const PcmFormat format;
    QByteArray waiting;
    qsizetype taken = 0; // bytes of `waiting` that are with the server
    bool whole = false;  // nothing will be added
    PcmState state = PcmState::Waiting;
    qint64 writtenFrames = 0;
    Clock::time_point silentFrom; // when all that is written has been heard
};

} // namespace

/// Where the two threads meet. The lock is never held while the sound server is waited for.
struct PcmOutput::Desk {
    std::mutex lock;
    std::condition_variable changed;
    std::shared_ptr<Sound> sound; // the one to play: a thread that plays another one leaves off
    bool threadRuns = false;

    void serve();
    void play(Sound& mine);
    [[nodiscard]] QByteArray nextPortion(Sound& mine);
    [[nodiscard]] bool waitUntilHeard(Sound& mine);
    [[nodiscard]] bool isCutOff(const Sound& mine) const { return sound.get() != &mine; }
    void set(Sound& mine, PcmState state) {
        const std::lock_guard guard(lock);
        mine.state = state;
    }
};

void PcmOutput::Desk::serve() {
    std::unique_lock guard(lock);
    while (sound != nullptr && sound->state == PcmState::Waiting) {
        const std::shared_ptr<Sound> mine = sound;
        guard.unlock();
        play(*mine);
        guard.lock();
    }
    threadRuns = false;
}

void PcmOutput::Desk::play(Sound& mine) {
    const std::unique_ptr<PulseConnection> server = PulseConnection::open(mine.format);
    set(mine, server ? PcmState::Playing : PcmState::Failed);
    if (!server) return;
    for (QByteArray portion; !(portion = nextPortion(mine)).isEmpty();) {
        if (!server->write(portion)) return set(mine, PcmState::Failed);
        const Clock::time_point silentFrom = Clock::now() + server->latency();
        const std::lock_guard guard(lock);
        mine.writtenFrames += portion.size() / mine.format.bytesPerFrame();
        mine.silentFrom = silentFrom;
    }
    // As a rule the drain finds nothing left: it is there for a server that told too short a latency.
    if (waitUntilHeard(mine))
        server->drain();
    else
        server->flush();
}

/// The frames to hand over next; none when the sound is cut off or has been handed over whole.
QByteArray PcmOutput::Desk::nextPortion(Sound& mine) {
    const qsizetype frame = mine.format.bytesPerFrame();
    const auto framesThere = [&] { return (mine.waiting.size() - mine.taken) / frame; };
    std::unique_lock guard(lock);
    changed.wait(guard, [&] { return isCutOff(mine) || mine.whole || framesThere() > 0; });
    if (isCutOff(mine)) return {};
    // The first portion fills the server's buffer, for a sound that starts on less stumbles.
    const std::chrono::milliseconds time = mine.writtenFrames == 0 ? PulseConnection::buffer : portionTime;
    const qsizetype most = time.count() * mine.format.sampleRate / 1000;
    QByteArray portion = mine.waiting.mid(mine.taken, std::min(framesThere(), most) * frame);
    mine.taken += portion.size();
    return portion;
}

/// Whether the sound has been heard to its end; it has not when it was cut off.
bool PcmOutput::Desk::waitUntilHeard(Sound& mine) {
    std::unique_lock guard(lock);
    if (changed.wait_until(guard, mine.silentFrom, [&] { return isCutOff(mine); })) return false;
    mine.state = PcmState::Ended;
    return true;
}

PcmOutput::PcmOutput() : desk_(std::make_shared<Desk>()) {}

PcmOutput::~PcmOutput() { stop(); }

void PcmOutput::begin(const PcmFormat& format) {
    const std::lock_guard guard(desk_->lock);
    desk_->sound = std::make_shared<Sound>(format);
    desk_->changed.notify_all();
    if (desk_->threadRuns) return;
    try {
        std::thread([desk = desk_] { desk->serve(); }).detach();
        desk_->threadRuns = true;
    } catch (const std::system_error&) { // too many threads: silence is all that follows
        desk_->sound->state = PcmState::Failed;
    }
}

void PcmOutput::write(const QByteArray& samples) {
    const std::lock_guard guard(desk_->lock);
    if (desk_->sound == nullptr) return;
    Sound& sound = *desk_->sound;
    sound.waiting.remove(0, sound.taken);
    sound.taken = 0;
    sound.waiting += samples;
    desk_->changed.notify_all();
}

void PcmOutput::end() {
    const std::lock_guard guard(desk_->lock);
    if (desk_->sound != nullptr) desk_->sound->whole = true;
    desk_->changed.notify_all();
}

void PcmOutput::stop() {
    const std::lock_guard guard(desk_->lock);
    desk_->sound = nullptr;
    desk_->changed.notify_all();
}

PcmProgress PcmOutput::progress() const {
    const std::lock_guard guard(desk_->lock);
    if (desk_->sound == nullptr) return {};
    const Sound& sound = *desk_->sound;
    const auto unheard = std::chrono::duration<double>(sound.silentFrom - Clock::now()).count();
    const auto unheardFrames = static_cast<qint64>(std::max(unheard, 0.0) * sound.format.sampleRate);
    return {sound.state, sound.waiting.size() - sound.taken,
            std::max<qint64>(sound.writtenFrames - unheardFrames, 0)};
}

} // namespace quarvel
