#pragma once

#include <QByteArray>
#include <QRect>
#include <QSize>
#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace quarvel {

/// How the codes of a frame come about.
enum class Packing {
    Clearing, ///< LZW that clears its table once it is full
    Deferred, ///< LZW that goes on with the full table to the end
    Restless, ///< LZW that clears its table, twice, after every seventh code
    Waiting,  ///< as Clearing, but with a code size of 1 wider codes begin one code later
};

/// A GIF file to be made: one frame on a logical screen.
struct GifRecipe {
    QSize screen;
    QRect place;                        ///< of the frame
    std::vector<std::uint8_t> pixels;   ///< of the frame, row 0 on top
    std::vector<std::uint32_t> colours; ///< 0xRRGGBB, 1 to 256 of them; the table is filled up with black
    Packing packing = Packing::Clearing;
    bool interlaced = false;
    /// A comment, an application's block and, behind the frame, a second one of other pixels, one of them
    /// clear.
    bool moreBlocks = false;
    std::optional<std::uint8_t> transparent = {};
    std::vector<std::uint32_t> ownColours = {}; ///< the frame's own table, if any
    int spareBits = 0;          ///< by so much the code size is larger than it need be; two colours allow -1
    qsizetype blockBytes = 255; ///< how large the blocks of codes are, 1 to 255
};

namespace gif_maker {

inline void word(QByteArray& out, int value) {
    out.append(static_cast<char>(value & 255));
    out.append(static_cast<char>(value >> 8 & 255));
}

/// Codes, lowest bit first.
class CodeWriter {
public:
    void put(unsigned code, unsigned width) {
        bits_ |= std::uint64_t{code} << held_;
        for (held_ += width; held_ >= 8; held_ -= 8, bits_ >>= 8)
            bytes_.append(static_cast<char>(bits_ & 255));
    }
    QByteArray finish() {
        if (held_ > 0) bytes_.append(static_cast<char>(bits_ & 255));
        return bytes_;
    }

private:
    QByteArray bytes_;
    std::uint64_t bits_ = 0;
    unsigned held_ = 0;
};

inline QByteArray lzw(const std::vector<std::uint8_t>& pixels, unsigned rootBits, Packing packing) {
    CodeWriter out;
    const unsigned clear = 1u << rootBits;
    std::vector<std::array<std::uint16_t, 256>> longer(
        4096); // [code][pixel]: the code of both together, or 0
    unsigned width = rootBits + 1;
    unsigned next = clear + 2;
    const auto startAnew = [&] {
        out.put(clear, width);
        for (unsigned code = 0; code < next; ++code) longer[code].fill(0);
        width = rootBits + 1;
        next = clear + 2;
    };
    startAnew();
    unsigned codes = 0;
    unsigned code = pixels.at(0);
    for (std::size_t i = 1; i < pixels.size(); ++i) {
        const std::uint8_t pixel = pixels[i];
        if (const unsigned both = longer[code][pixel]) {
            code = both;
            continue;
        }
        out.put(code, width);
        if (next < 4096) {
            const bool waits = packing == Packing::Waiting && next == clear + 2;
            if (!waits) longer[code][pixel] = static_cast<std::uint16_t>(next);
            if (next >= 1u << width && !waits) ++width;
            ++next;
        }
        if (next == 4096 && (packing == Packing::Clearing || packing == Packing::Waiting)) startAnew();
        if (packing == Packing::Restless && ++codes % 7 == 0) {
            startAnew();
            startAnew();
        }
        code = pixel;
    }
    out.put(code, width);
    if (next == 1u << width && width < 12) ++width;
    out.put(clear + 1, width);
    return out.finish();
}

inline void subBlocks(QByteArray& out, const QByteArray& bytes, qsizetype most = 255) {
    for (qsizetype at = 0; at < bytes.size(); at += most) {
        const QByteArray block = bytes.mid(at, most);
        out.append(static_cast<char>(block.size()));
        out.append(block);
    }
    out.append('\0');
}

inline std::vector<std::uint8_t> interlacedRows(const std::vector<std::uint8_t>& pixels, QSize size) {
    std::vector<std::uint8_t> stored;
    for (const auto& [start, step] : {std::pair(0, 8), {4, 8}, {2, 4}, {1, 2}})
        for (int y = start; y < size.height(); y += step) {
            const auto row = pixels.begin() + std::ptrdiff_t{y} * size.width();
            stored.insert(stored.end(), row, row + size.width());
        }
    return stored;
}

using Colours = std::vector<std::uint32_t>;

inline int tableBits(const Colours& colours) {
    int bits = 1;
    while ((std::size_t{1} << bits) < colours.size()) ++bits;
    return bits;
}

inline void table(QByteArray& out, const Colours& colours) {
    for (std::size_t i = 0; i < std::size_t{1} << tableBits(colours); ++i) {
        const std::uint32_t colour = i < colours.size() ? colours[i] : 0;
        for (const int shift : {16, 8, 0}) out.append(static_cast<char>(colour >> shift & 255));
    }
}

inline void frame(QByteArray& out, const GifRecipe& recipe) {
    out.append(',');
    for (const int value : {recipe.place.x(), recipe.place.y(), recipe.place.width(), recipe.place.height()})
        word(out, value);
    const bool hasTable = !recipe.ownColours.empty();
    out.append(static_cast<char>((recipe.interlaced ? 0x40 : 0) |
                                 (hasTable ? 0x80 | (tableBits(recipe.ownColours) - 1) : 0)));
    if (hasTable) table(out, recipe.ownColours);
    const auto rootBits = static_cast<unsigned>(std::max(2, tableBits(recipe.colours)) + recipe.spareBits);
    out.append(static_cast<char>(rootBits));
    const auto& rows = recipe.interlaced ? interlacedRows(recipe.pixels, recipe.place.size()) : recipe.pixels;
    subBlocks(out, lzw(rows, rootBits, recipe.packing), recipe.blockBytes);
}

inline void graphicControl(QByteArray& out, std::uint8_t transparent) {
    out.append("!\xF9\x04\x01");
    word(out, 0);
    out.append(static_cast<char>(transparent));
    out.append('\0');
}

} // namespace gif_maker

inline QByteArray makeGif(const GifRecipe& recipe) {
    using namespace gif_maker;
    QByteArray out("GIF89a");
    word(out, recipe.screen.width());
    word(out, recipe.screen.height());
    out.append(static_cast<char>(0x80 | (tableBits(recipe.colours) - 1)));
    out.append(QByteArray(2, '\0'));
    table(out, recipe.colours);
    if (recipe.moreBlocks) {
        out.append("!\xFE");
        subBlocks(out, QByteArray("a comment, not so short: ").repeated(15));
        out.append("!\xFF");
        subBlocks(out, "NETSCAPE2.0");
    }
    if (recipe.transparent) graphicControl(out, *recipe.transparent);
    frame(out, recipe);
    if (recipe.moreBlocks) {
        GifRecipe second = recipe;
        std::reverse(second.pixels.begin(), second.pixels.end());
        graphicControl(out, second.pixels.front());
        frame(out, second);
    }
    out.append(';');
    return out;
}

} // namespace quarvel
