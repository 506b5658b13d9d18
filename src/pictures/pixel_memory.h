#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

namespace quarvel {

/// Gives memory of pixels back.
class PixelMemoryReturn {
public:
    PixelMemoryReturn() = default;
    explicit PixelMemoryReturn(std::size_t mapped) : mapped_(mapped) {}
    void operator()(std::uint8_t* pixels) const;

private:
    std::size_t mapped_ = 0; // bytes, or 0 for memory of the heap
};

using PixelMemory = std::unique_ptr<std::uint8_t[], PixelMemoryReturn>;

/// Memory for `bytes` pixels, not filled: every one is about to be written. That of a chart is asked from the
/// system in pages of 2 MB, since to be handed it in pages of 4 KB takes longer than to decode into it, and
/// it is the system's again as soon as it is given back. Throws std::bad_alloc.
[[nodiscard]] PixelMemory pixelMemory(std::size_t bytes);

} // namespace quarvel
