#pragma once

#include "platform/wave_file.h"

#include <chrono>
#include <memory>

namespace quarvel {

struct PulseLibrary;

/// A stream to the PulseAudio-compatible sound server. Every one of its functions waits for the server,
/// without end when the server is stopped: none of them is for the user-interface thread.
class PulseConnection {
public:
    /// How much sound the server keeps ahead of what is heard. A write waits while it has more.
    static constexpr std::chrono::milliseconds buffer{200};

    /// Nothing when there is no sound server or no library for it. The library is looked for at the first
    /// call and nothing is linked for it: a program that is silent most of the time need not load it at every
    /// start.
    [[nodiscard]] static std::unique_ptr<PulseConnection> open(const PcmFormat& format);
    /// Cuts off what has not been heard.
    ~PulseConnection();
    PulseConnection(const PulseConnection&) = delete;
    PulseConnection& operator=(const PulseConnection&) = delete;

    /// Hands over whole frames; false when the server is gone.
    [[nodiscard]] bool write(const QByteArray& frames);
    /// The time until the last frame written is heard, 0 when nobody knows.
    [[nodiscard]] std::chrono::microseconds latency();
    /// Makes the server forget what it has not played yet.
    void flush();
    /// Waits until all has been played.
    void drain();

private:
    PulseConnection(const PulseLibrary& pulse, void* stream) : pulse_(pulse), stream_(stream) {}

    const PulseLibrary& pulse_;
    void* stream_;
};

} // namespace quarvel
