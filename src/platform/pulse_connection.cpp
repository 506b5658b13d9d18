#include "platform/pulse_connection.h"

#include <cstdint>
#include <dlfcn.h>
#include <optional>

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

struct BufferAttributes { // bytes
    std::uint32_t maxLength;
    std::uint32_t targetLength;
    std::uint32_t prebuffering;
    std::uint32_t minimumRequest;
    std::uint32_t fragmentSize;
};

} // namespace

struct PulseLibrary {
    void* (*open)(const char* server, const char* name, int direction, const char* device,
                  const char* streamName, const SampleSpec*, const void* channelMap, const BufferAttributes*,
                  int* error);
    int (*write)(void*, const void* bytes, std::size_t length, int* error);
    std::uint64_t (*latency)(void*, int* error); // microseconds, all bits set on failure
    int (*flush)(void*, int* error);
    int (*drain)(void*, int* error);
    void (*free)(void*);
};

namespace {

template <typename Function>
bool resolve(void* file, const char* name, Function& function) {
    function = reinterpret_cast<Function>(::dlsym(file, name));
    return function != nullptr;
}

std::optional<PulseLibrary> load() {
    // It stays to the end of the process, for a thread may be inside it at any time.
    void* file = ::dlopen("libpulse-simple.so.0", RTLD_NOW | RTLD_NODELETE);
    PulseLibrary pulse{};
    const bool complete = file != nullptr && resolve(file, "pa_simple_new", pulse.open) &&
                          resolve(file, "pa_simple_write", pulse.write) &&
                          resolve(file, "pa_simple_get_latency", pulse.latency) &&
                          resolve(file, "pa_simple_flush", pulse.flush) &&
                          resolve(file, "pa_simple_drain", pulse.drain) &&
                          resolve(file, "pa_simple_free", pulse.free);
    return complete ? std::optional(pulse) : std::nullopt;
}

constexpr std::chrono::milliseconds request{20}; // the least that the server asks for at a time

std::uint32_t bytesOf(std::chrono::milliseconds time, const PcmFormat& format) {
    return static_cast<std::uint32_t>(time.count() * format.sampleRate / 1000 * format.bytesPerFrame());
}

} // namespace

std::unique_ptr<PulseConnection> PulseConnection::open(const PcmFormat& format) {
    static const std::optional<PulseLibrary> pulse = load();
    if (!pulse) return nullptr;
    const SampleSpec spec{format.bitsPerSample == 8 ? unsigned8 : signed16Little,
                          static_cast<std::uint32_t>(format.sampleRate),
                          static_cast<std::uint8_t>(format.channels)};
    // It starts with the first frame and waits for more when it has run dry, so that nothing of a sound is
    // lost.
    const BufferAttributes attributes{serverChooses, bytesOf(buffer, format),
                                      static_cast<std::uint32_t>(format.bytesPerFrame()),
                                      bytesOf(request, format), serverChooses};
    void* stream =
        pulse->open(nullptr, "Quarvel", playback, nullptr, "Quarvel", &spec, nullptr, &attributes, nullptr);
    if (stream == nullptr) return nullptr;
    return std::unique_ptr<PulseConnection>(new PulseConnection(*pulse, stream));
}

PulseConnection::~PulseConnection() { pulse_.free(stream_); }

bool PulseConnection::write(const QByteArray& frames) {
    return pulse_.write(stream_, frames.constData(), static_cast<std::size_t>(frames.size()), nullptr) >= 0;
}

std::chrono::microseconds PulseConnection::latency() {
    const std::uint64_t time = pulse_.latency(stream_, nullptr);
    return std::chrono::microseconds(time == UINT64_MAX ? 0 : static_cast<std::int64_t>(time));
}

void PulseConnection::flush() { pulse_.flush(stream_, nullptr); }

void PulseConnection::drain() { pulse_.drain(stream_, nullptr); }

} // namespace quarvel
