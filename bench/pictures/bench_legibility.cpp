// The promise: what is painted smaller is what the eye would make of the whole chart. Each painted pixel is
// held against the mean colour of the area that it covers, worked out in double precision from all of the
// chart's pixels; 30 dB are the least. Qt's smooth scaling is told beside it.

#include "measuring.h"
#include "pictures/gif_maker.h"
#include "pictures/painter.h"
#include "pictures/picture.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QString>
#include <array>
#include <cmath>

using namespace quarvel;
using namespace quarvel::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr double budget = 30; // dB
constexpr QSize chartSize(1600, 2200);

/// Lines of one and two pixels in all directions and print of 11 to 20 pixels, in eight inks on white.
QImage chart(bool coloured) {
    QImage page(chartSize, QImage::Format_Indexed8);
    page.setColorCount(8);
    for (int i = 0; i < 8; ++i)
        page.setColor(i, coloured ? 0xFF000000 | i * 0x123456 : qRgb(i * 30, i * 30, i * 30));
    page.setColor(7, 0xFFFFFFFF);
    page.fill(7);
    QImage ink(chartSize, QImage::Format_Mono);
    for (int colour = 0; colour < 7; ++colour) {
        ink.fill(1);
        QPainter painter(&ink);
        painter.setPen(QPen(Qt::black, 1 + colour % 2));
        for (int i = colour; i < 120; i += 7)
            painter.drawLine(QLineF::fromPolar(4000, i * 3.0).translated(800 + i * 2, 1100 - i));
        QFont font(u"Arial"_s);
        font.setPixelSize(11 + colour * 3 / 2);
        painter.setFont(font);
        for (int i = 0; i < 60; ++i)
            painter.drawText(i * 397 % 1500, 20 + (i * 7 + colour) * 653 % 2150,
                             u"FL%1 D%2"_s.arg(60 + i).arg(i));
        painter.end();
        for (int y = 0; y < chartSize.height(); ++y)
            for (int x = 0; x < chartSize.width(); ++x)
                if (ink.pixelIndex(x, y) == 0) page.setPixel(x, y, static_cast<uint>(colour));
    }
    return page;
}

Picture asPicture(const QImage& page) {
    GifRecipe recipe{.screen = page.size(), .place = page.rect(), .pixels = {}, .colours = {}};
    for (int i = 0; i < page.colorCount(); ++i) recipe.colours.push_back(page.color(i) & 0xFFFFFF);
    for (int y = 0; y < page.height(); ++y)
        recipe.pixels.insert(recipe.pixels.end(), page.constScanLine(y),
                             page.constScanLine(y) + page.width());
    auto picture = Picture::decode(makeGif(recipe), {});
    if (!picture) qFatal("no chart");
    return picture.take();
}

using Light = std::array<double, 3>;

/// The mean of red, green and blue over a rectangle of the page, cut off at its edges.
Light mean(const QImage& page, QRectF area) {
    area &= QRectF(page.rect());
    Light sum{};
    for (int y = static_cast<int>(area.top()); y < area.bottom(); ++y) {
        const double high = std::min(area.bottom(), y + 1.0) - std::max(area.top(), double(y));
        for (int x = static_cast<int>(area.left()); x < area.right(); ++x) {
            const double part = high * (std::min(area.right(), x + 1.0) - std::max(area.left(), double(x)));
            const QRgb colour = page.pixel(x, y);
            sum[0] += part * qRed(colour);
            sum[1] += part * qGreen(colour);
            sum[2] += part * qBlue(colour);
        }
    }
    for (double& channel : sum) channel /= area.width() * area.height();
    return sum;
}

/// The ratio of the full range to the mean error, in dB.
double likeness(const QImage& shown, const std::vector<Light>& exact) {
    double squares = 0;
    for (int y = 0, i = 0; y < shown.height(); ++y)
        for (int x = 0; x < shown.width(); ++x, ++i) {
            const QRgb colour = shown.pixel(x, y);
            const Light& light = exact[static_cast<std::size_t>(i)];
            squares += std::pow(qRed(colour) - light[0], 2) + std::pow(qGreen(colour) - light[1], 2) +
                       std::pow(qBlue(colour) - light[2], 2);
        }
    return 10 * std::log10(255 * 255 / (squares / 3 / static_cast<double>(exact.size())));
}

void benchZoom(const QImage& page, const Picture& picture, const char* kind, double zoom) {
    const QSizeF stretched = QSizeF(page.size()) * zoom;
    const QSize size(static_cast<int>(stretched.width()), static_cast<int>(stretched.height()));
    std::vector<Light> exact;
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            exact.push_back(mean(page, QRectF(x / zoom, y / zoom, 1 / zoom, 1 / zoom)));
    QImage shown(size, QImage::Format_RGB32);
    paintPicture(picture, stretched, shown.rect(), shown);
    const QImage byQt = page.convertToFormat(QImage::Format_RGB32)
                            .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const double ours = likeness(shown, exact);
    std::printf("Legibility at %g times, %s\t%.1f dB\tQt's smooth scaling: %.1f dB\t\tat least %g dB\t%s\n",
                zoom, kind, ours, likeness(byQt, exact), budget, ours >= budget ? "within" : "OVER");
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    for (const bool coloured : {false, true}) {
        const QImage page = chart(coloured);
        const Picture picture = asPicture(page);
        for (const double zoom : {0.1, 0.3, 0.75})
            benchZoom(page, picture, coloured ? "in colours" : "in greys", zoom);
    }
    return 0;
}
