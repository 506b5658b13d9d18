#include "pictures/painter.h"
#include "pictures/picture.h"
#include "platform/painting_thread.h"
#include "samples.h"

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRandomGenerator>
#include <QTest>
#include <algorithm>
#include <cmath>
#include <sys/resource.h>
#include <tuple>
#include <unistd.h>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

/// How much of each source pixel target pixel `x` shows, worked out pixel by pixel.
std::vector<double> shares(int source, double stretched, int x) {
    std::vector<double> made(static_cast<std::size_t>(source));
    const double step = source / stretched;
    const double times = stretched / source;
    if (times < 2 || times == std::floor(times)) {
        const double right = std::min((x + 1) * step, double(source));
        for (int i = 0; i < source; ++i)
            made[size_t(i)] =
                std::max(0.0, std::min(right, i + 1.0) - std::max(x * step, double(i))) / (right - x * step);
    } else {
        const double at = std::clamp((x + 0.5) * step - 0.5, 0.0, source - 1.0);
        for (int i = 0; i < source; ++i) made[size_t(i)] = std::max(0.0, 1 - std::abs(at - i));
    }
    return made;
}

/// The largest distance of a channel from the weighted mean over all of the picture's pixels, for one target
/// pixel.
double errorAt(const Picture& picture, QSizeF stretched, int x, int y, QRgb shown) {
    const auto across = shares(picture.size().width(), stretched.width(), x);
    const auto down = shares(picture.size().height(), stretched.height(), y);
    double red = 0, green = 0, blue = 0;
    for (std::size_t j = 0; j < down.size(); ++j)
        for (std::size_t i = 0; i < across.size() && down[j] > 0; ++i) {
            const QRgb colour = picture.palette()[picture.row(int(j))[i]];
            red += across[i] * down[j] * qRed(colour);
            green += across[i] * down[j] * qGreen(colour);
            blue += across[i] * down[j] * qBlue(colour);
        }
    return std::max(
        {std::abs(red - qRed(shown)), std::abs(green - qGreen(shown)), std::abs(blue - qBlue(shown))});
}

} // namespace

class PicturesTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void filtersExactly() {
        // Greys have coarse shares, the coarser the smaller the picture.
        for (const auto& [size, stretched, greyError] : {std::tuple(QSize(260, 170), QSizeF(86.7, 51.3), 1.1),
                                                         {{60, 50}, {59.6, 49.9}, 1.1},  // hardly smaller
                                                         {{90, 1200}, {7.3, 2.2}, 3.0},  // a few pixels left
                                                         {{40, 30}, {122, 69.7}, 0.51},  // larger
                                                         {{50, 90}, {131.2, 33.3}, 1.1}, // wider and lower
                                                         {{50, 40}, {50, 13.37}, 1.1},   // only lower
                                                         {{40, 30}, {60, 45}, 0.51},     // every dot 1.5
                                                         {{40, 30}, {80, 90}, 0.001},    // whole dots
                                                         {{1, 1}, {5, 0.7}, 0.51}}) {
            GifRecipe made = recipe(size, 256, Packing::Clearing);
            filtersWithin(0.51, decoded(made), stretched); // rounded once, at the end
            made.colours = greys(256);
            filtersWithin(greyError, decoded(made), stretched);
        }
    }

    void paintsPartsAsCropsOfTheWhole() {
        GifRecipe made = recipe({300, 200}, 30, Packing::Clearing);
        for (std::size_t i = 0; i < made.pixels.size(); ++i) // mostly paper, as a chart is
            if (i / 40 % 3) made.pixels[i] = 4;
        paintsPartsAsCropsOfTheWhole(decoded(made));
        made.colours = greys(30);
        paintsPartsAsCropsOfTheWhole(decoded(made));
    }

    void paintingEndsWhereNoThreadCanBeStarted() {
#if defined(__SANITIZE_ADDRESS__)
        QSKIP("the sanitizer reserves more than any limit");
#endif
        QVERIFY(keepPaintingThread());
        QImage source(500, 500, QImage::Format_RGB32);
        source.fill(Qt::blue);
        QImage target(700, 700, QImage::Format_RGB32);
        QFile statm(u"/proc/self/statm"_s);
        QVERIFY(statm.open(QIODevice::ReadOnly));
        const rlim_t taken = statm.readAll().split(' ').first().toULong() * 4096;
        const rlimit limit{taken + (4 << 20), RLIM_INFINITY}; // less than the stack of a usual thread
        QCOMPARE(::setrlimit(RLIMIT_AS, &limit), 0);
        ::alarm(20); // what waits for ever is ended
        QPainter painter(&target);
        painter.rotate(3);
        painter.drawImage(QRectF(50, 10, 611.5, 611.5), source);
        ::alarm(0);
        const rlimit none{RLIM_INFINITY, RLIM_INFINITY};
        ::setrlimit(RLIMIT_AS, &none);
        QCOMPARE(target.pixel(300, 300), source.pixel(200, 200));
    }

private:
    static void filtersWithin(double error, const Picture& picture, QSizeF stretched) {
        const QSize shownSize(qRound(stretched.width()), qRound(stretched.height()));
        QImage image(shownSize + QSize(1, 1), QImage::Format_RGB32);
        paintPicture(picture, stretched, image.rect(), image);
        double worst = 0;
        for (int y = 0; y < shownSize.height(); ++y)
            for (int x = 0; x < shownSize.width(); ++x)
                worst = std::max(worst, errorAt(picture, stretched, x, y, image.pixel(x, y)));
        QVERIFY2(worst < error,
                 qPrintable(QStringLiteral("%1 at width %2").arg(worst).arg(stretched.width())));
        QCOMPARE(image.pixel(shownSize.width(), 0), qRgb(255, 255, 255));
        QCOMPARE(image.pixel(0, shownSize.height()), qRgb(255, 255, 255));
    }

    static void paintsPartsAsCropsOfTheWhole(const Picture& picture) {
        QRandomGenerator random(3);
        for (const QSizeF stretched :
             {QSizeF(90.1, 66.6), {300, 200}, {600, 600}, {555.5, 640.2}, {120.4, 300.3}}) {
            const QRect everything = QRect(QPoint(0, 0), stretched.toSize()).adjusted(-10, -10, 10, 10);
            QImage whole(everything.size(), QImage::Format_RGB32);
            paintPicture(picture, stretched, everything, whole);
            QCOMPARE(whole.pixel(9, 15), qRgb(255, 255, 255)); // all round
            for (int round = 0; round < 60; ++round) {
                const QPoint corner(random.bounded(whole.width() - 1), random.bounded(whole.height() - 1));
                const QRect crop(corner, QSize(1 + random.bounded(whole.width() - corner.x()),
                                               1 + random.bounded(whole.height() - corner.y())));
                QImage part(crop.size(), QImage::Format_RGB32);
                paintPicture(picture, stretched, crop.translated(everything.topLeft()), part);
                QCOMPARE(part, whole.copy(crop));
            }
        }
    }
};

QTEST_GUILESS_MAIN(PicturesTest)
#include "tst_pictures.moc"
