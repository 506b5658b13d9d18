#include "pictures/painter.h"
#include "pictures/picture.h"
#include "samples.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QRandomGenerator>
#include <QTest>
#include <algorithm>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

QImage asImage(const Picture& picture) {
    QImage image(picture.size(), QImage::Format_RGB32);
    paintPicture(picture, picture.size(), image.rect(), image);
    return image;
}

QImage readByQt(QByteArray gif) {
    QBuffer buffer(&gif);
    QImageReader reader(&buffer, "gif");
    return reader.read().convertToFormat(QImage::Format_ARGB32);
}

} // namespace

class GifReaderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsTheSamePixelsAsQt_data() {
        QTest::addColumn<QByteArray>("gif");
        for (const unsigned count : {2u, 9u, 16u, 256u}) {
            QTest::addRow("%u colours", count) << makeGif(recipe({61, 47}, count, Packing::Clearing));
            QTest::addRow("%u colours, full table", count)
                << makeGif(recipe({500, 700}, count, Packing::Clearing));
            QTest::addRow("%u colours, full table kept", count)
                << makeGif(recipe({500, 700}, count, Packing::Deferred));
        }
        GifRecipe blank = recipe({3000, 1100}, 2, Packing::Deferred);
        std::fill(blank.pixels.begin(), blank.pixels.end(), std::uint8_t{1});
        QTest::newRow("one colour, the longest runs") << makeGif(blank);
        for (const int height : {5, 8, 9, 64}) { // Qt misplaces rows of lower ones
            GifRecipe made = recipe({30, height}, 7, Packing::Clearing);
            made.interlaced = true;
            QTest::addRow("interlaced, %d rows", height) << makeGif(made);
        }
        GifRecipe more = recipe({33, 21}, 20, Packing::Clearing);
        more.moreBlocks = true;
        QTest::newRow("comment, application block, second frame, GIF87a")
            << makeGif(more).replace(0, 6, "GIF87a");
    }

    void readsTheSamePixelsAsQt() {
        QFETCH(QByteArray, gif);
        const auto picture = Picture::decode(gif, {});
        QVERIFY(picture.ok());
        QCOMPARE(asImage(picture.value()).convertToFormat(QImage::Format_ARGB32), readByQt(gif));
    }

    void putsTheFrameOnWhitePaper_data() {
        QTest::addColumn<QSize>("screen");
        QTest::addColumn<QRect>("place");
        QTest::addColumn<int>("transparent");
        QTest::addColumn<bool>("interlaced");
        const QSize screen(40, 30);
        const QRect whole(0, 0, 40, 30), inner(5, 7, 20, 11);
        for (const int height : {1, 2, 3, 4}) {
            const QRect low(0, 0, 30, height);
            QTest::addRow("interlaced, %d rows", height) << low.size() << low << -1 << true;
        }
        QTest::newRow("transparent pixels") << screen << whole << 3 << false;
        QTest::newRow("a frame inside the screen") << screen << inner << -1 << false;
        QTest::newRow("a frame inside, interlaced, transparent") << screen << inner << 0 << true;
        QTest::newRow("a frame that reaches out is cut off") << screen << QRect(30, 20, 25, 37) << -1 << true;
        QTest::newRow("a frame outside") << screen << QRect(40, 30, 5, 5) << -1 << false;
        QTest::newRow("no screen: the frame is the picture")
            << QSize(0, 0) << QRect(9, 9, 12, 8) << -1 << false;
    }

    void putsTheFrameOnWhitePaper() {
        QFETCH(QSize, screen);
        QFETCH(QRect, place);
        QFETCH(int, transparent);
        QFETCH(bool, interlaced);
        GifRecipe made = recipe(place.size(), 9, Packing::Clearing);
        made.screen = screen;
        made.place = place;
        made.interlaced = interlaced;
        if (transparent >= 0) made.transparent = std::uint8_t(transparent);

        const QPoint origin = screen.isEmpty() ? QPoint(0, 0) : place.topLeft();
        QImage expected(screen.isEmpty() ? place.size() : screen, QImage::Format_RGB32);
        expected.fill(Qt::white);
        for (int y = 0; y < place.height(); ++y)
            for (int x = 0; x < place.width(); ++x) {
                const int index = made.pixels[std::size_t(y * place.width() + x)];
                const QPoint at = origin + QPoint(x, y);
                if (expected.rect().contains(at) && index != transparent)
                    expected.setPixel(at, 0xFF000000 | made.colours[std::size_t(index)]);
            }
        QCOMPARE(asImage(decoded(made)), expected);
    }

    void refusesWhatIsNoWholeGif_data() {
        QTest::addColumn<QByteArray>("gif");
        QTest::addColumn<int>("fault");
        const GifRecipe made = recipe({20, 10}, 4, Packing::Clearing);
        const QByteArray good = makeGif(made);
        const qsizetype frameAt = 13 + 3 * 4;
        const auto changed = [&](qsizetype at, const char* bytes) {
            return QByteArray(good).replace(at, qsizetype(qstrlen(bytes)), bytes);
        };
        const int damaged = int(Fault::Damaged), tooLarge = int(Fault::TooLarge);
        QTest::newRow("nothing") << QByteArray() << damaged;
        QTest::newRow("another kind of file") << QByteArray("\x89PNG\r\n\x1A\n not a GIF at all") << damaged;
        QTest::newRow("a frame without pixels")
            << QByteArray(good).replace(frameAt + 5, 2, QByteArray(2, '\0')) << damaged;
        QTest::newRow("a code size of 1") << changed(frameAt + 10, "\x01") << damaged;
        QTest::newRow("a frame of more rows than pixels") << changed(frameAt + 7, "\x0B") << damaged;
        QTest::newRow("codes that stop halfway")
            << good.first(frameAt + 11) + QByteArray("\x03\x44\x00\x40\x00;", 6) << damaged;
        QTest::newRow("a code that is not there yet")
            << changed(frameAt + 12, "\x3C") << damaged; // 4 clears, then 7
        QTest::newRow("a screen wider than 32767") << changed(6, "\x01\x80") << tooLarge;
        QTest::newRow("a frame of 1 G pixels") << changed(frameAt + 5, "\xFF\x7F\xFF\x7F") << tooLarge;
        QTest::newRow("a large frame with few codes") << changed(frameAt + 5, "\x30\x2A\x30\x2A") << damaged;
    }

    void refusesWhatIsNoWholeGif() {
        QFETCH(QByteArray, gif);
        QFETCH(int, fault);
        const auto picture = Picture::decode(gif, u"LIRF.gif"_s);
        QVERIFY(!picture.ok());
        QCOMPARE(int(picture.failure().fault), fault);
        QCOMPARE(picture.failure().path, u"LIRF.gif"_s);
    }

    void refusesAFileCutOffAnywhere() {
        GifRecipe made = recipe({40, 30}, 16, Packing::Clearing);
        made.moreBlocks = true;
        made.transparent = std::uint8_t{1};
        const QByteArray good = makeGif(made);
        QVERIFY(Picture::decode(good, {}).ok());
        for (qsizetype size = 0; size < good.size(); ++size) {
            const auto picture = Picture::decode(good.first(size), {});
            QVERIFY2(!picture.ok() && picture.failure().fault == Fault::Damaged,
                     qPrintable(QString::number(size)));
        }
    }

    // What is read in spite of the damage must be whole in itself; a sanitizer watches that nothing else is
    // touched.
    void survivesDamage() {
        QRandomGenerator random(20);
        for (int round = 0; round < 6000; ++round) {
            GifRecipe made = recipe({24, 18}, round % 2 ? 5 : 200, Packing(round % 2));
            made.place.moveTo(round % 5, round % 7);
            made.interlaced = made.moreBlocks = round % 4 == 0;
            QByteArray gif = makeGif(made);
            for (int change = random.bounded(1, 5); change > 0; --change)
                gif[random.bounded(gif.size())] = static_cast<char>(random.bounded(256));
            const auto picture = Picture::decode(gif, {});
            if (!picture) continue;
            const QSize size = picture.value().size();
            QVERIFY(!size.isEmpty() && qint64{size.width()} * size.height() <= 128'000'000);
            QImage shown(9, 9, QImage::Format_RGB32);
            paintPicture(picture.value(), QSizeF(9.4, 8.6), shown.rect(), shown);
            QCOMPARE(qAlpha(shown.pixel(8, 8)), 255);
        }
    }
};

QTEST_GUILESS_MAIN(GifReaderTest)
#include "tst_gif_reader.moc"
