// A sound. What is played has a format that the sound server takes, and nothing but what the file holds.

#include "input.h"
#include "platform/wave_file.h"

using namespace quarvel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray file = inputBytes(data, size);
    const auto sound = readWave(file);
    if (!sound) return 0;
    mustHold(sound->format.bytesPerFrame() >= 1 && sound->format.bytesPerFrame() <= 16);
    mustHold(sound->format.sampleRate >= 1000 && sound->format.sampleRate <= 192000);
    mustHold(!sound->samples.isEmpty() && file.contains(sound->samples));
    return 0;
}
