#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace quarvel {

/// Readable bytes, of any value, that must follow the packed bytes: codes are fetched eight bytes at a time.
constexpr std::size_t lzwInputSlack = 8;
/// Writable bytes that must follow the unpacked ones: runs are copied in whole chunks.
constexpr std::size_t lzwOutputSlack = 64;

/// When codes of a size of 1 become three bits wide. Their first entry does not fit in two bits, so that they
/// do at once by the definition; but most programs wait for the entry, and read and write codes so.
enum class Widening { AtOnce, WithTheEntry };

/// Unpacks the LZW codes of a GIF frame (variable width up to 12 bits, lowest bit first, with clear and end
/// codes and with deferred clearing, as appendix F of the GIF89a definition has it). `packed` excludes its
/// slack; `rootBits` is the frame's code size, 1 to 8; `values` has what is to be written for each pixel
/// value of the file, which costs nothing, as longer runs are copies of single pixels; `pixels` is the start
/// of `count` bytes (at most 4 G) plus slack and need not be initialised. Codes past the last pixel are not
/// looked at. Gives how many pixels there are before the codes end or name an entry that does not exist.
[[nodiscard]] std::size_t unpackLzw(std::span<const std::uint8_t> packed, unsigned rootBits,
                                    const std::array<std::uint8_t, 256>& values, std::uint8_t* pixels,
                                    std::size_t count, Widening widening = Widening::AtOnce);

} // namespace quarvel
