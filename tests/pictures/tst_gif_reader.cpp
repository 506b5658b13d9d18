#include "pictures/gif_blocks.h"
#include "pictures/painter.h"
#include "pictures/picture.h"
#include "samples.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QPainter>
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

/// The frame's part of the screen where Qt knows its place: the rows of an interlaced frame that is low or
/// cut off Qt puts elsewhere. What a frame leaves bare is a matter of taste.
QRect comparablePart(const QByteArray& gif) {
    const auto frame = readFirstFrame(gif, {});
    const QRect place = frame.value().place;
    const QRect shown = place & QRect({0, 0}, frame.value().screen);
    return frame.value().interlaced && (place.height() < 5 || shown.height() < place.height()) ? QRect()
                                                                                               : shown;
}

/// The part of a picture on white paper.
QImage onPaper(const QImage& picture, QRect part) {
    QImage paper(part.size(), QImage::Format_RGB32);
    paper.fill(Qt::white);
    QPainter(&paper).drawImage(QPoint(0, 0), picture, part);
    return paper;
}

} // namespace

class GifReaderTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsTheSamePixelsAsQt_data() {
        QTest::addColumn<QByteArray>("gif");
        for (const unsigned count : {2u, 8u, 9u, 16u, 32u, 60u, 128u, 256u}) {
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
        QTest::newRow("table cleared early and twice") << makeGif(recipe({61, 47}, 9, Packing::Restless));
        GifRecipe spare = recipe({61, 47}, 5, Packing::Clearing);
        spare.spareBits = 4;
        spare.blockBytes = 3;
        QTest::newRow("codes wider than need be, small blocks") << makeGif(spare);
        GifRecipe own = recipe({33, 21}, 20, Packing::Clearing);
        own.ownColours.assign(own.colours.rbegin(), own.colours.rend());
        QTest::newRow("the frame's own colours") << makeGif(own);
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

    void putsTheFrameOnWhitePaper() {
        struct Case {
            QSize screen;
            QRect place;
            int transparent;
            bool interlaced;
        };
        const QSize screen(40, 30);
        const QRect inside(5, 7, 20, 11);
        QList<Case> cases = {{screen, QRect(QPoint(0, 0), screen), 3, false},
                             {screen, inside, -1, false},
                             {screen, inside, 0, true},
                             {screen, QRect(30, 20, 25, 37), -1, true}, // reaches out
                             {screen, QRect(40, 30, 5, 5), -1, false},
                             {QSize(0, 0), QRect(9, 9, 12, 8), -1, false}}; // the frame is the picture
        for (int height = 1; height < 5; ++height) cases.append({{30, height}, {0, 0, 30, height}, -1, true});
        for (const Case& the : cases) {
            GifRecipe made = recipe(the.place.size(), 9, Packing::Clearing);
            made.screen = the.screen;
            made.place = the.place;
            made.interlaced = the.interlaced;
            if (the.transparent >= 0) made.transparent = std::uint8_t(the.transparent);
            const QPoint origin = the.screen.isEmpty() ? QPoint(0, 0) : the.place.topLeft();
            QImage expected(the.screen.isEmpty() ? the.place.size() : the.screen, QImage::Format_RGB32);
            expected.fill(Qt::white);
            for (std::size_t i = 0; i < made.pixels.size(); ++i) {
                const int width = the.place.width();
                const QPoint at = origin + QPoint(int(i) % width, int(i) / width);
                if (expected.rect().contains(at) && made.pixels[i] != the.transparent)
                    expected.setPixel(at, 0xFF000000 | made.colours[made.pixels[i]]);
            }
            QCOMPARE(asImage(decoded(made)), expected);
        }
    }

    void refusesWhatIsNoWholeGif() {
        const QByteArray good = makeGif(recipe({20, 10}, 4, Packing::Clearing));
        const qsizetype frameAt = 13 + 3 * 4;
        const auto changed = [&](qsizetype at, const QByteArray& bytes) {
            return QByteArray(good).replace(at, bytes.size(), bytes);
        };
        const auto faultOf = [](const QByteArray& gif) {
            const auto picture = Picture::decode(gif, {});
            return picture ? -1 : int(picture.failure().fault);
        };
        for (const QByteArray& gif :
             {QByteArray(), QByteArray("\x89PNG\r\n\x1A\n not a GIF at all"),
              changed(frameAt + 5, QByteArray(2, '\0')),                         // a frame without pixels
              changed(frameAt + 10, "\x01"),                                     // a code size of 1
              changed(frameAt + 7, "\x0B"),                                      // more rows than pixels
              good.first(frameAt + 11) + QByteArray("\x03\x44\x00\x40\x00;", 6), // codes stop halfway
              changed(frameAt + 12, "\x3C"),             // a code that is not there yet: 4 clears, then 7
              changed(frameAt + 5, "\x30\x2A\x30\x2A")}) // a large frame with few codes
            QCOMPARE(faultOf(gif), int(Fault::Damaged));
        QCOMPARE(faultOf(changed(6, "\x01\x80")), int(Fault::TooLarge)); // wider than 32767
        QCOMPARE(faultOf(changed(6, "\xFF\x7F\xFF\x7F")), int(Fault::TooLarge));
        QCOMPARE(faultOf(changed(frameAt + 5, "\xFF\x7F\xFF\x7F")), int(Fault::TooLarge));
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

    // What is read in spite of the damage must be whole in itself, and what Qt makes of it; a sanitizer
    // watches that nothing else is touched.
    void survivesDamage() {
        QRandomGenerator random(20);
        int compared = 0;
        for (int round = 0; round < 6000; ++round) {
            GifRecipe made = recipe({24, 18}, round % 2 ? 5 : 200, Packing(round % 2));
            made.place.moveTo(round % 5, round % 7);
            made.interlaced = made.moreBlocks = round % 4 == 0;
            if (round % 3 == 0) made.transparent = std::uint8_t{1};
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
            const QImage byQt = readByQt(gif);
            const QRect part = comparablePart(gif);
            if (byQt.isNull() || part.isEmpty()) continue;
            QCOMPARE(onPaper(asImage(picture.value()), part), onPaper(byQt, part));
            ++compared;
        }
        QVERIFY2(compared > 1500, qPrintable(QString::number(compared)));
    }
};

QTEST_GUILESS_MAIN(GifReaderTest)
#include "tst_gif_reader.moc"
