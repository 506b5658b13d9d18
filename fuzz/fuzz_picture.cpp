// A chart's file, and where and how large its picture is painted. The whole input is the file: what reads it
// stops at the trailer, so the last bytes can choose the painting, and a finding opens in the program as it
// is.

#include "pictures/painter.h"
#include "pictures/picture.h"

#include <QByteArray>
#include <QImage>
#include <QRect>
#include <QSizeF>
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <span>

using namespace quarvel;

namespace {

/// Sizes that are read, but only cost time: nothing in the reader depends on them below its limit.
constexpr qint64 dullPixels = 4'000'000;
constexpr std::size_t choiceBytes = 8;

qint64 word(std::span<const std::uint8_t> bytes, std::size_t at) { return bytes[at] | bytes[at + 1] << 8; }

/// From 1/256 to 248 times, evenly by ratio; 128 is natural size.
double times(std::uint8_t choice) { return std::exp2((choice - 128) / 16.0); }

/// Where a part of the stretched picture begins: from somewhat before it to somewhat behind it.
int corner(std::uint8_t choice, double stretched) {
    return static_cast<int>(stretched * (choice - 32) / 192) + (choice & 3);
}

/// Panning must not change a pixel: a part is the same as what it cuts out of a larger part.
void compare(const QImage& part, const QImage& larger, QPoint at) {
    const auto bytes = static_cast<std::size_t>(part.width()) * 4;
    for (int y = 0; y < part.height(); ++y)
        if (std::memcmp(part.constScanLine(y), larger.constScanLine(y + at.y()) + at.x() * 4, bytes) != 0)
            std::abort();
}

void paint(const Picture& picture, std::span<const std::uint8_t, choiceBytes> choice) {
    const QSizeF stretched(picture.size().width() * times(choice[0]),
                           picture.size().height() * times(choice[1]));
    const QRect place(corner(choice[2], stretched.width()), corner(choice[3], stretched.height()),
                      2 + choice[4] % 64, 2 + choice[5] % 64);
    QImage image(place.size(), QImage::Format_RGB32);
    image.fill(0);
    paintPicture(picture, stretched, place, image);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (qAlpha(image.pixel(x, y)) != 255) std::abort(); // a pixel left out

    const QPoint at(choice[6] % (place.width() - 1), choice[7] % (place.height() - 1));
    QImage part(place.width() - at.x() - 1, place.height() - at.y() - 1, QImage::Format_RGB32);
    paintPicture(picture, stretched, QRect(place.topLeft() + at, part.size()), part);
    compare(part, image, at);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span input(data, size);
    if (size < 16 || word(input, 6) * word(input, 8) > dullPixels) return 0;
    const QByteArray file(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const auto picture = Picture::decode(file, {});
    if (!picture) return 0;
    if (picture.value().isNull()) std::abort();
    paint(picture.value(), input.last<choiceBytes>());
    return 0;
}
