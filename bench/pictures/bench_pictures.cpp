// A chart is decoded once and painted at every step of zooming and panning. This prints what both cost, as
// medians of runs that take turns in one process, so that a busy machine spoils all of them alike.

#include "pictures/gif_maker.h"
#include "pictures/painter.h"
#include "pictures/picture.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QRandomGenerator>
#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

using namespace quarvel;

namespace {

constexpr int rounds = 15;

class Chart {
public:
    Chart(QSize size, unsigned colours)
        : size_(size), colours_(colours), pixels_(std::size_t(size.width()) * std::size_t(size.height())) {
        drawLines();
        drawText();
    }
    [[nodiscard]] QByteArray gif() const {
        std::vector<std::uint32_t> palette{0xFFFFFF, 0x000000};
        while (palette.size() < colours_) palette.push_back(palette.size() * 0x0B1735 & 0xFFFFFF);
        return makeGif({size_, QRect(QPoint(0, 0), size_), pixels_, palette});
    }

private:
    void dot(int x, int y, std::uint8_t index) {
        if (QRect(QPoint(0, 0), size_).contains(x, y))
            pixels_[std::size_t(y) * std::size_t(size_.width()) + std::size_t(x)] = index;
    }
    std::uint8_t ink() { return std::uint8_t(1 + random_.bounded(colours_ - 1)); }
    void drawLines() {
        for (int i = 0; i < 150; ++i) {
            const std::uint8_t index = ink();
            double x = random_.bounded(size_.width()), y = random_.bounded(size_.height());
            const double angle = i % 3 ? random_.bounded(6.3) : (i % 2) * 1.5707963;
            for (int step = random_.bounded(size_.height() / 2); step > 0;
                 --step, x += std::cos(angle), y += std::sin(angle))
                for (int thick = 0; thick < 3; ++thick) dot(int(x) + thick, int(y), index);
        }
    }
    /// Words of marks of about a letter's size and density.
    void drawText() {
        for (int word = size_.width() * size_.height() / 12000; word > 0; --word) {
            const std::uint8_t index = ink();
            const QPoint at(random_.bounded(size_.width()), random_.bounded(size_.height()));
            for (int stroke = 0; stroke < 16; ++stroke) {
                const QPoint from = at + QPoint(stroke / 2 * 16 + random_.bounded(8), random_.bounded(16));
                const bool upright = random_.bounded(2);
                for (int i = 0; i < 12; ++i)
                    for (int thick = 0; thick < 3; ++thick)
                        dot(from.x() + (upright ? thick : i), from.y() + (upright ? i : thick), index);
            }
        }
    }

    QSize size_;
    unsigned colours_;
    std::vector<std::uint8_t> pixels_;
    QRandomGenerator random_{7};
};

double milliseconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

/// The median of each piece of work, in milliseconds; the pieces take turns.
std::vector<double> medians(const std::vector<std::function<void()>>& pieces) {
    std::vector<std::vector<double>> times(pieces.size());
    for (int round = 0; round < rounds; ++round)
        for (std::size_t i = 0; i < pieces.size(); ++i) times[i].push_back(milliseconds(pieces[i]));
    std::vector<double> middle;
    for (auto& all : times) {
        std::nth_element(all.begin(), all.begin() + rounds / 2, all.end());
        middle.push_back(all[rounds / 2]);
    }
    return middle;
}

void benchDecoding(QSize size, unsigned colours) {
    QByteArray gif = Chart(size, colours).gif();
    const auto ours = [&] {
        if (!Picture::decode(gif, {})) std::abort();
    };
    const auto qt = [&] {
        QBuffer buffer(&gif);
        if (QImageReader(&buffer, "gif").read().isNull()) std::abort();
    };
    const auto times = medians({ours, qt});
    std::printf("decode %d x %d, %3u colours, %4lld KB   %6.2f ms   Qt %7.2f ms   ratio %.3f\n", size.width(),
                size.height(), colours, static_cast<long long>(gif.size() / 1024), times[0], times[1],
                times[0] / times[1]);
}

void benchPainting(QSize target, unsigned colours) {
    const QSize size(3000, 4200);
    const auto picture = Picture::decode(Chart(size, colours).gif(), {});
    if (!picture) std::abort();
    constexpr std::array zooms{0.3, 0.56, 1.0, 1.25, 3.05, 9.3};
    QImage image(target, QImage::Format_RGB32);
    std::vector<std::function<void()>> pieces;
    for (const double zoom : zooms)
        pieces.emplace_back([&, zoom] {
            const QPoint corner(int(size.width() * zoom / 9), int(size.height() * zoom / 9));
            paintPicture(picture.value(), QSizeF(size) * zoom, QRect(corner, target), image);
        });
    const auto times = medians(pieces);
    std::printf("paint %d x %d of %d x %d, %u colours, at zoom", target.width(), target.height(),
                size.width(), size.height(), colours);
    for (std::size_t i = 0; i < zooms.size(); ++i) std::printf("   %g: %.2f ms", zooms[i], times[i]);
    std::printf("\n");
}

} // namespace

int main() {
    for (const unsigned colours : {2u, 200u})
        for (const QSize size : {QSize(1600, 2200), QSize(3000, 4200)}) benchDecoding(size, colours);
    for (const unsigned colours : {2u, 200u})
        for (const QSize target : {QSize(397, 611), QSize(794, 1222)}) benchPainting(target, colours);
    return 0;
}
