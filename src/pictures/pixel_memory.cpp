#include "pictures/pixel_memory.h"

#include <new>
#include <sys/mman.h>

namespace quarvel {
namespace {

constexpr std::size_t hugePage = std::size_t{2} << 20;
constexpr std::size_t smallPage = std::size_t{4} << 10;

std::size_t roundedUp(std::size_t bytes, std::size_t unit) { return (bytes + unit - 1) / unit * unit; }

/// Maps fresh memory that begins on a huge page and ends with the last small page that is needed.
std::uint8_t* mapAligned(std::size_t bytes) {
    const std::size_t reserved = bytes + hugePage;
    void* const all = ::mmap(nullptr, reserved, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (all == MAP_FAILED) throw std::bad_alloc();
    auto* const first = static_cast<std::uint8_t*>(all);
    const auto address = reinterpret_cast<std::uintptr_t>(all);
    const std::size_t before = roundedUp(address, hugePage) - address;
    if (before > 0) ::munmap(first, before);
    std::uint8_t* const aligned = first + before;
    if (before < hugePage) ::munmap(aligned + bytes, hugePage - before);
    return aligned;
}

} // namespace

void PixelMemoryReturn::operator()(std::uint8_t* pixels) const {
    if (mapped_ > 0)
        ::munmap(pixels, mapped_);
    else
        delete[] pixels;
}

PixelMemory pixelMemory(std::size_t bytes) {
    if (bytes < hugePage) return PixelMemory(new std::uint8_t[bytes], PixelMemoryReturn());
    const bool nearlyWhole = roundedUp(bytes, hugePage) - bytes <= hugePage / 2;
    const std::size_t mapped = roundedUp(bytes, nearlyWhole ? hugePage : smallPage);
    PixelMemory memory(mapAligned(mapped), PixelMemoryReturn(mapped));
    ::madvise(memory.get(), mapped, MADV_HUGEPAGE); // a system that has none hands out small pages
    return memory;
}

} // namespace quarvel
