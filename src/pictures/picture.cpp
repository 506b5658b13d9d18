#include "pictures/picture.h"

#include "files/whole_file.h"
#include "pictures/gif_reader.h"

#include <algorithm>
#include <cstddef>
#include <new>
#include <utility>

namespace quarvel {
namespace {

/// More than the largest picture that is accepted can take, even when its codes save nothing.
constexpr qint64 largestFileBytes = 256'000'000;

/// The index found most often on a grid of points over the picture.
std::uint8_t commonest(const GifPicture& gif) {
    constexpr qint64 points = 24; // a side
    std::array<int, 256> found{};
    for (qint64 j = 0; j < points; ++j) {
        const qint64 y = gif.size.height() * (2 * j + 1) / (2 * points);
        for (qint64 i = 0; i < points; ++i) {
            const qint64 x = gif.size.width() * (2 * i + 1) / (2 * points);
            ++found[gif.pixels[y * gif.size.width() + x]];
        }
    }
    return static_cast<std::uint8_t>(std::max_element(found.begin(), found.end()) - found.begin());
}

/// Whether every index is its own shade.
bool isGreyScale(const std::array<std::uint32_t, 256>& palette) {
    for (std::uint32_t i = 0; i < palette.size(); ++i)
        if (palette[i] != (0xFF000000 | i * 0x010101)) return false;
    return true;
}

std::optional<Failure> shortfallOf(const MissingRows& missing, const QString& path) {
    if (missing.where == MissingRows::Where::Nowhere) return {};
    const bool below = missing.where == MissingRows::Where::Below;
    return Failure{below ? Fault::CutOff : Fault::RowsMissing, path, QString::number(missing.percent)};
}

} // namespace

Result<Picture> Picture::read(const QString& path) {
    const auto bytes = readWholeFile(path, largestFileBytes);
    if (!bytes) return bytes.failure();
    try {
        return decode(bytes.value(), path);
    } catch (const std::bad_alloc&) {
        return Failure{Fault::TooLarge, path, {}}; // for what memory is left
    }
}

Result<Picture> Picture::decode(const QByteArray& gif, const QString& path) {
    auto decoded = readGif(gif, path);
    if (!decoded) return decoded.failure();
    GifPicture content = decoded.take();
    Picture picture;
    picture.size_ = content.size;
    picture.ground_ = commonest(content);
    picture.grey_ = isGreyScale(content.palette);
    picture.shortfall_ = shortfallOf(content.missing, path);
    picture.pixels_ = std::move(content.pixels);
    picture.palette_ = std::make_shared<const std::array<std::uint32_t, 256>>(content.palette);
    return picture;
}

const std::uint8_t* Picture::row(int y) const {
    return pixels_.get() + static_cast<std::size_t>(y) * static_cast<std::size_t>(size_.width());
}

} // namespace quarvel
