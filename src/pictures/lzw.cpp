#include "pictures/lzw.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <cstring>

namespace quarvel {
namespace {

constexpr unsigned widestCode = 12;
constexpr unsigned tableSize = 1u << widestCode;

/// The codes one after the other, each of the width that is asked for.
class CodeStream {
public:
    explicit CodeStream(std::span<const std::uint8_t> packed)
        : bytes_(packed.data()), endBit_(packed.size() * 8) {}

    [[nodiscard]] bool has(unsigned width) const { return bit_ + width <= endBit_; }
    [[nodiscard]] unsigned take(unsigned width) {
        const auto window = qFromLittleEndian<quint64>(bytes_ + bit_ / 8) >> (bit_ % 8);
        bit_ += width;
        return static_cast<unsigned>(window) & ((1u << width) - 1);
    }

private:
    const std::uint8_t* bytes_;
    std::size_t bit_ = 0;
    std::size_t endBit_;
};

template <std::size_t size>
void copyChunk(std::uint8_t* to, const std::uint8_t* from) {
    std::array<std::uint8_t, size> chunk;
    std::memcpy(chunk.data(), from, size);
    std::memcpy(to, chunk.data(), size);
}

/// Copies forward in whole chunks, past the end of the run. The byte just before `to` may be the last but one
/// of the run, whose last byte is then the first one written here.
void copyRun(std::uint8_t* to, const std::uint8_t* from, std::size_t length) {
    copyChunk<16>(to, from);
    for (std::size_t done = 16; done < length; done += 32) copyChunk<32>(to + done, from + done);
    if (from + length > to) to[length - 1] = to[0];
}

} // namespace

// An entry of the code table is what a code stood for plus the first pixel of what the following code stands
// for. In the pixels both lie side by side, so no table of strings is kept: the entry made by the n-th code
// since the last clear code is the run of pixels that begins where that code's pixels begin and ends with the
// next code's first one.
std::size_t unpackLzw(std::span<const std::uint8_t> packed, unsigned rootBits,
                      const std::array<std::uint8_t, 256>& values, std::uint8_t* pixels, std::size_t count,
                      Widening widening) {
    const unsigned clearCode = 1u << rootBits;
    const unsigned firstEntry = clearCode + 2;
    const unsigned mostEntries = tableSize - firstEntry;
    std::array<std::uint32_t, tableSize> starts; // of each code's pixels since the last clear code
    unsigned codes = 0;                          // as many of them; counted no further than the table holds
    unsigned width = rootBits + 1;
    CodeStream stream(packed);
    std::size_t done = 0;
    while (done < count) {
        if (!stream.has(width)) break;
        const unsigned code = stream.take(width);
        if (code == clearCode) {
            codes = 0;
            width = rootBits + 1;
            continue;
        }
        if (codes <= mostEntries) starts[codes] = static_cast<std::uint32_t>(done);
        if (code < clearCode) {
            pixels[done++] = values[code];
        } else {
            const unsigned entry = code - firstEntry; // the end code wraps round and is no entry either
            if (entry >= std::min(codes, mostEntries)) break;
            const std::size_t length = starts[entry + 1] - starts[entry] + std::size_t{1};
            const std::size_t wanted = std::min(length, count - done);
            copyRun(pixels + done, pixels + starts[entry], wanted);
            done += wanted;
        }
        if (codes > mostEntries) continue;
        const bool waits = codes == 0 && widening == Widening::WithTheEntry;
        if (firstEntry + codes >= 1u << width && width < widestCode && !waits) ++width;
        ++codes;
    }
    return done;
}

} // namespace quarvel
