#include "pictures/gif_blocks.h"

#include "pictures/lzw.h"

#include <QByteArrayView>
#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

namespace quarvel {
namespace {

constexpr int longestSide = 32767;
constexpr qint64 mostPixels = 128'000'000;
constexpr std::uint32_t black = 0xFF000000;
constexpr std::uint32_t white = 0xFFFFFFFF;

enum Introducer : std::uint8_t { extensionBlock = 0x21, imageBlock = 0x2C, trailer = 0x3B };
constexpr std::uint8_t graphicControl = 0xF9;
constexpr std::size_t graphicControlBytes = 4;
constexpr std::uint8_t hasTable = 0x80; // in the flags of the screen and of a frame
constexpr std::uint8_t isInterlaced = 0x40;

bool tooLarge(QSize size) {
    return size.width() > longestSide || size.height() > longestSide ||
           qint64{size.width()} * size.height() > mostPixels;
}

/// The bytes of the file from front to back. Past the end it gives zeros and remembers that it did.
class Bytes {
public:
    explicit Bytes(std::span<const std::uint8_t> left) : left_(left) {}

    [[nodiscard]] bool ranOut() const { return ranOut_; }
    [[nodiscard]] std::size_t left() const { return left_.size(); }

    /// The next `count` bytes, or as many as are left.
    std::span<const std::uint8_t> take(std::size_t count) {
        ranOut_ = ranOut_ || count > left_.size();
        const auto taken = left_.first(std::min(count, left_.size()));
        left_ = left_.subspan(taken.size());
        return taken;
    }
    std::uint8_t byte() {
        const auto one = take(1);
        return one.empty() ? std::uint8_t{0} : one[0];
    }
    int word() {
        const int low = byte();
        return low | byte() << 8;
    }

private:
    std::span<const std::uint8_t> left_;
    bool ranOut_ = false;
};

/// One pass over the blocks of a file. A step that can find something wrong answers with that.
class BlockWalk {
public:
    explicit BlockWalk(const QByteArray& gif)
        : bytes_({reinterpret_cast<const std::uint8_t*>(gif.constData()),
                  static_cast<std::size_t>(gif.size())}) {}

    [[nodiscard]] std::optional<Fault> toFirstFrame();
    [[nodiscard]] GifFrame takeFrame() { return std::move(frame_); }

private:
    std::optional<Fault> header();
    void extension();
    std::optional<Fault> frame();
    void table(std::uint8_t flags);
    void orderColours();
    void joinSubBlocks();

    Bytes bytes_;
    GifFrame frame_;
};

std::optional<Fault> BlockWalk::toFirstFrame() {
    if (const auto fault = header()) return fault;
    while (!bytes_.ranOut()) {
        switch (bytes_.byte()) {
        case extensionBlock: extension(); break;
        case imageBlock: return frame();
        case trailer: return Fault::Damaged;
        default: break; // a stray byte
        }
    }
    return Fault::Damaged;
}

std::optional<Fault> BlockWalk::header() {
    const auto signature = bytes_.take(6);
    const QByteArrayView name(signature.data(), static_cast<qsizetype>(signature.size()));
    if (name != QByteArrayView("GIF87a") && name != QByteArrayView("GIF89a")) return Fault::Damaged;
    const int width = bytes_.word();
    frame_.screen = QSize(width, bytes_.word());
    if (tooLarge(frame_.screen)) return Fault::TooLarge;
    const std::uint8_t flags = bytes_.byte();
    bytes_.take(2); // background colour and pixel aspect: bare paper is white here, and pixels are square
    frame_.palette.fill(black);
    // A file without any table leaves the colours to its reader, who should begin them with black and white.
    frame_.palette[1] = white;
    table(flags);
    return {};
}

void BlockWalk::table(std::uint8_t flags) {
    if (!(flags & hasTable)) return;
    frame_.palette.fill(black);
    const auto colours = bytes_.take(std::size_t{6} << (flags & 7));
    for (std::size_t i = 0; i + 2 < colours.size(); i += 3) {
        const auto red = std::uint32_t{colours[i]} << 16;
        const auto green = std::uint32_t{colours[i + 1]} << 8;
        frame_.palette[i / 3] = black | red | green | colours[i + 2];
    }
}

/// Painting needs no palette where an index is a shade.
void BlockWalk::orderColours() {
    auto& palette = frame_.palette;
    auto& values = frame_.values;
    std::iota(values.begin(), values.end(), std::uint8_t{0});
    const auto isGrey = [](std::uint32_t colour) { return colour == (black | (colour & 255) * 0x010101); };
    if (!std::all_of(palette.begin(), palette.end(), isGrey)) return;
    for (std::size_t i = 0; i < palette.size(); ++i) {
        values[i] = static_cast<std::uint8_t>(palette[i] & 255);
        palette[i] = black | static_cast<std::uint32_t>(i) * 0x010101;
    }
}

void BlockWalk::extension() {
    const bool control = bytes_.byte() == graphicControl;
    while (const std::uint8_t size = bytes_.byte()) {
        const auto block = bytes_.take(size); // flags, how long the frame stands (two bytes), index
        if (control && block.size() == graphicControlBytes)
            frame_.transparent = block[0] & 1 ? std::optional(block[3]) : std::nullopt;
    }
}

std::optional<Fault> BlockWalk::frame() {
    const int left = bytes_.word();
    const int top = bytes_.word();
    const int width = bytes_.word();
    const QSize size(width, bytes_.word());
    if (size.isEmpty()) return Fault::Damaged;
    if (tooLarge(size)) return Fault::TooLarge;
    frame_.place = QRect(QPoint(left, top), size);
    if (frame_.screen.isEmpty()) {
        frame_.screen = size;
        frame_.place.moveTo(0, 0);
    }
    const std::uint8_t flags = bytes_.byte();
    frame_.interlaced = flags & isInterlaced;
    table(flags);
    if (frame_.transparent) frame_.palette[*frame_.transparent] = white;
    orderColours();
    frame_.rootBits = bytes_.byte();
    if (frame_.rootBits < 1 || frame_.rootBits > 8) return Fault::Damaged;
    joinSubBlocks();
    return {};
}

void BlockWalk::joinSubBlocks() {
    frame_.packed.reserve(bytes_.left() + lzwInputSlack);
    while (const std::uint8_t size = bytes_.byte()) {
        const auto block = bytes_.take(size);
        frame_.packed.insert(frame_.packed.end(), block.begin(), block.end());
    }
    frame_.packed.insert(frame_.packed.end(), lzwInputSlack, 0);
}

} // namespace

std::span<const std::uint8_t> GifFrame::codes() const {
    return std::span(packed).first(packed.size() - lzwInputSlack);
}

Result<GifFrame> readFirstFrame(const QByteArray& gif, const QString& path) {
    BlockWalk walk(gif);
    if (const auto fault = walk.toFirstFrame()) return Failure{*fault, path, {}};
    return walk.takeFrame();
}

} // namespace quarvel
