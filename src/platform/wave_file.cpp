#include "platform/wave_file.h"

#include <QtEndian>
#include <algorithm>

namespace quarvel {
namespace {

constexpr quint16 uncompressed = 1;
constexpr qsizetype chunkHeader = 8; // four letters and a 32-bit length

quint16 word(const QByteArray& file, qsizetype at) {
    return qFromLittleEndian<quint16>(file.constData() + at);
}

bool usable(const PcmFormat& format) {
    return format.sampleRate >= 1000 && format.sampleRate <= 192000 && format.channels >= 1 &&
           format.channels <= 8 && (format.bitsPerSample == 8 || format.bitsPerSample == 16);
}

} // namespace

std::optional<WaveSound> readWave(const QByteArray& file) {
    if (!file.startsWith("RIFF") || file.mid(8, 4) != "WAVE") return std::nullopt;
    WaveSound sound;
    for (qsizetype at = 12; at + chunkHeader <= file.size();) {
        const QByteArray kind = file.mid(at, 4);
        const qsizetype length = qFromLittleEndian<quint32>(file.constData() + at + 4);
        const qsizetype begin = at + chunkHeader;
        const qsizetype present = std::min(length, file.size() - begin);
        if (kind == "fmt " && present >= 16) {
            if (word(file, begin) != uncompressed) return std::nullopt;
            sound.format.channels = word(file, begin + 2);
            sound.format.sampleRate = static_cast<int>(
                std::min<quint32>(qFromLittleEndian<quint32>(file.constData() + begin + 4), 1000000));
            sound.format.bitsPerSample = word(file, begin + 14);
        } else if (kind == "data") {
            sound.samples = file.mid(begin, present);
            break;
        }
        at = begin + length + length % 2; // chunks begin at even places
    }
    if (!usable(sound.format) || sound.samples.isEmpty()) return std::nullopt;
    return sound;
}

} // namespace quarvel
