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
#include <QtMath>
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

    static constexpr qsizetype frameAt = 13 + 3 * 4; // in a file of four colours

    /// How many rows of a picture a file lacks: the whole height where it is refused, -1 where a row is
    /// neither what it should be nor striped, or where what is told is not true.
    static int missingRows(const QByteArray& gif, const QImage& whole, bool interlaced) {
        const auto picture = Picture::decode(gif, u"x"_s);
        if (!picture) return picture.failure().fault == Fault::Damaged ? whole.height() : -1;
        const QImage shown = asImage(picture.value());
        const QList<QRgb> stripes = {qRgb(0xC8, 0xC8, 0xC8), qRgb(0x90, 0x90, 0x90)};
        int missing = 0;
        for (int y = 0; y < whole.height(); ++y) {
            const bool isThere = shown.copy(0, y, whole.width(), 1) == whole.copy(0, y, whole.width(), 1);
            if (isThere && missing > 0 && !interlaced) return -1; // below, there is nothing more
            missing += isThere ? 0 : 1;
            for (int x = 0; !isThere && x < whole.width(); ++x)
                if (shown.pixel(x, y) != stripes[(x + y % 16) / 8 % 2]) return -1;
        }
        const auto& told = picture.value().shortfall();
        if (missing == 0 || !told) return told || missing > 0 ? -1 : 0;
        const bool isTrue = told->detail == QString::number(qCeil(100.0 * missing / whole.height())) &&
                            told->fault == (interlaced ? Fault::RowsMissing : Fault::CutOff);
        return isTrue ? missing : -1;
    }

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
        GifRecipe narrow = recipe({500, 700}, 2, Packing::Waiting);
        narrow.spareBits = -1;
        QTest::newRow("codes of two bits") << makeGif(narrow);
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

    void refusesWhatHasNoFirstFrame() {
        const QByteArray good = makeGif(recipe({20, 10}, 4, Packing::Clearing));
        const auto changed = [&](qsizetype at, const QByteArray& bytes) {
            return QByteArray(good).replace(at, bytes.size(), bytes);
        };
        const auto faultOf = [](const QByteArray& gif) {
            const auto picture = Picture::decode(gif, {});
            return picture ? -1 : int(picture.failure().fault);
        };
        for (const QByteArray& gif :
             {QByteArray(), QByteArray("\x89PNG\r\n\x1A\n not a GIF at all"), good.first(frameAt) + ';',
              changed(frameAt + 5, QByteArray(2, '\0')), // a frame without pixels
              changed(frameAt + 10, QByteArray(1, '\0')), changed(frameAt + 10, "\x09"), // code sizes
              changed(frameAt + 12, "\x3C"),             // a code that is not there yet: 4 clears, then 7
              changed(frameAt + 5, "\x30\x2A\x30\x2A")}) // a large frame with few codes
            QCOMPARE(faultOf(gif), int(Fault::Damaged));
        QCOMPARE(faultOf(changed(6, "\x01\x80")), int(Fault::TooLarge)); // wider than 32767
        QCOMPARE(faultOf(changed(6, "\xFF\x7F\xFF\x7F")), int(Fault::TooLarge));
        QCOMPARE(faultOf(changed(frameAt + 5, "\xFF\x7F\xFF\x7F")), int(Fault::TooLarge));
    }

    void whatIsWrongBesideTheFirstFrameDoesNotMatter() {
        const GifRecipe made = recipe({20, 10}, 4, Packing::Clearing);
        const QByteArray good = makeGif(made);
        for (const QByteArray& gif :
             {good.chopped(1), good.chopped(2), good.chopped(1) + "\x01;", good.chopped(1) + "!\xFE\x09ends",
              good.chopped(1) + good.sliced(frameAt, 5),
              good.chopped(1) + good.sliced(frameAt).replace(12, 9, "#"),
              QByteArray(good).insert(frameAt, 2, '\0'),
              QByteArray(good).insert(frameAt, "!\xF9\x02\x01\x01"_ba + '\0')}) {
            const auto picture = Picture::decode(gif, {});
            QVERIFY(picture.ok() && !picture.value().shortfall());
            QCOMPARE(asImage(picture.value()), asImage(decoded(made)));
        }
        GifRecipe narrow = recipe({61, 47}, 2, Packing::Clearing); // codes that grow at once, which Qt
        const QImage wide = asImage(decoded(narrow));              // reads only with a code size above 1
        narrow.spareBits = -1;
        QCOMPARE(asImage(decoded(narrow)), wide);
    }

    void aFirstFrameThatEndsIsShownAsFarAsItGoes() {
        for (const bool interlaced : {false, true}) {
            GifRecipe made = recipe({40, 30}, 16, Packing::Clearing);
            made.interlaced = interlaced;
            const QByteArray good = makeGif(made);
            const QImage whole = asImage(decoded(made));
            int before = whole.height();
            for (qsizetype size = 0; size < good.size(); ++size) {
                const int missing = missingRows(good.first(size), whole, interlaced);
                QVERIFY2(missing >= 0 && missing <= before, qPrintable(QString::number(size)));
                before = missing;
            }
            QCOMPARE(before, 0);
            // A code that is not there yet, in the middle.
            const QByteArray broken = good.first(good.size() / 2) + QByteArray(9, '\xFF') + good.last(99);
            QVERIFY(missingRows(broken, whole, interlaced) > 3);
        }
        GifRecipe placed = recipe({40, 30}, 16, Packing::Clearing); // does not reach down
        placed.screen = QSize(50, 60);
        const auto picture = Picture::decode(makeGif(placed).chopped(40), u"x"_s);
        QVERIFY(picture.value().shortfall()->fault == Fault::RowsMissing);
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
            const QImage shown = asImage(picture.value());
            const QImage byQt = readByQt(gif);
            const QRect part = comparablePart(gif);
            if (byQt.isNull() || part.isEmpty() || picture.value().shortfall()) continue;
            QCOMPARE(onPaper(shown, part), onPaper(byQt, part));
            ++compared;
        }
        QVERIFY2(compared > 1500, qPrintable(QString::number(compared)));
    }
};

QTEST_GUILESS_MAIN(GifReaderTest)
#include "tst_gif_reader.moc"
