#include "platform/pulse_stream.h"

#include <QLibrary>
#include <algorithm>
#include <cstdint>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

// The few declarations of the library's simple interface that are used here, as its documentation gives them
// (PulseAudio 16, pulse/simple.h, pulse/sample.h, pulse/def.h).
constexpr int unsigned8 = 0;      // PA_SAMPLE_U8
constexpr int signed16Little = 3; // PA_SAMPLE_S16LE
constexpr int playback = 1;       // PA_STREAM_PLAYBACK
constexpr std::uint32_t serverChooses = UINT32_MAX;

struct SampleSpec {
    int format;
    std::uint32_t rate;
    std::uint8_t channels;
};

struct BufferAttributes {
    std::uint32_t maxLength;
    std::uint32_t targetLength;
    std::uint32_t prebuffering;
    std::uint32_t minimumRequest;
    std::uint32_t fragmentSize;
};

using New = void* (*)(const char* server, const char* name, int direction, const char* device,
                      const char* streamName, const SampleSpec*, const void* channelMap,
                      const BufferAttributes*, int* error);
using Write = int (*)(void*, const void* bytes, std::size_t length, int* error);
using Free = void (*)(void*);

struct Library {
    New open;
    Write write;
    Free free;
};

const Library& library() {
    static const Library loaded = [] {
        QLibrary file(u"pulse-simple"_s, 0);
        return Library{reinterpret_cast<New>(file.resolve("pa_simple_new")),
                       reinterpret_cast<Write>(file.resolve("pa_simple_write")),
                       reinterpret_cast<Free>(file.resolve("pa_simple_free"))};
    }();
    return loaded;
}

constexpr qsizetype serverBufferBytes = qsizetype{2} * 1024 * 1024; // the server keeps twice as much at most
constexpr int feedEveryMilliseconds = 200;

} // namespace

std::unique_ptr<PulseStream> PulseStream::start(const WaveSound& sound) {
    const Library& pulse = library();
    if (pulse.open == nullptr || pulse.write == nullptr || pulse.free == nullptr) return nullptr;
    const SampleSpec spec{sound.bitsPerSample == 8 ? unsigned8 : signed16Little,
                          static_cast<std::uint32_t>(sound.sampleRate),
                          static_cast<std::uint8_t>(sound.channels)};
    // Room for a whole chime, so that handing it over never waits for it to be played.
    const BufferAttributes buffer{serverChooses, serverBufferBytes, 0, serverChooses, serverChooses};
    void* connection =
        pulse.open(nullptr, "Quarvel", playback, nullptr, "Quarvel", &spec, nullptr, &buffer, nullptr);
    if (connection == nullptr) return nullptr;
    return std::unique_ptr<PulseStream>(new PulseStream(connection, sound));
}

PulseStream::PulseStream(void* connection, const WaveSound& sound)
    : connection_(connection), samples_(sound.samples) {
    const qsizetype bytesPerSecond = qsizetype{sound.sampleRate} * sound.channels * sound.bitsPerSample / 8;
    feed(serverBufferBytes / 2);
    // The rest of a long sound follows at the pace at which it is played.
    QObject::connect(&feeding_, &QTimer::timeout, &feeding_,
                     [this, portion = bytesPerSecond * feedEveryMilliseconds / 1000] { feed(portion); });
    if (sent_ < samples_.size()) feeding_.start(feedEveryMilliseconds);
}

PulseStream::~PulseStream() { library().free(connection_); }

void PulseStream::feed(qsizetype bytes) {
    const qsizetype length = std::min(bytes, samples_.size() - sent_);
    const bool failed = library().write(connection_, samples_.constData() + sent_,
                                        static_cast<std::size_t>(length), nullptr) < 0;
    sent_ += length;
    if (failed || sent_ >= samples_.size()) feeding_.stop();
}

} // namespace quarvel
