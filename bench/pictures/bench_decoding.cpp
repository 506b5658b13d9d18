// The promise: a chart is decoded in at most a tenth of the time that Qt's own reader takes, and a fifth of
// what the library for GIF files takes that most programs read them with.

#include "drawn_chart.h"
#include "measuring.h"
#include "pictures/picture.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImageReader>
#include <QString>
#ifdef QUARVEL_BENCH_GIFLIB
#include <gif_lib.h>
#endif

using namespace quarvel;
using namespace quarvel::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 21;
constexpr const char* library = "giflib";

void byUs(const QByteArray& gif) {
    if (!Picture::decode(gif, {})) qFatal("not decoded");
}

void byQt(QByteArray& gif) {
    QBuffer buffer(&gif);
    if (QImageReader(&buffer, "gif").read().isNull()) qFatal("not decoded by Qt");
}

#ifdef QUARVEL_BENCH_GIFLIB
constexpr bool haveLibrary = true;

int readBytes(GifFileType* file, GifByteType* to, int count) {
    return static_cast<int>(static_cast<QBuffer*>(file->UserData)->read(reinterpret_cast<char*>(to), count));
}

void byLibrary(QByteArray& gif) {
    QBuffer buffer(&gif);
    buffer.open(QIODevice::ReadOnly);
    int error = 0;
    GifFileType* const file = DGifOpen(&buffer, readBytes, &error);
    if (file == nullptr || DGifSlurp(file) != GIF_OK) qFatal("not decoded by giflib");
    DGifCloseFile(file, &error);
}
#else
constexpr bool haveLibrary = false;
void byLibrary(QByteArray& /*gif*/) {}
#endif

void benchDecoding(QSize size, int shades) {
    QByteArray gif = drawnChart(size, shades);
    const QString claim =
        u"Decoding a chart of %1 x %2, %3 shades"_s.arg(size.width()).arg(size.height()).arg(shades);
    const auto times = medians(rounds, {[&] { byUs(gif); }, [&] { byQt(gif); }, [&] { byLibrary(gif); }});
    printRatio(qPrintable(claim), times[0], "Qt's reader", times[1], 0.1);
    if (haveLibrary)
        printRatio(qPrintable(claim), times[0], library, times[2], 0.2);
    else
        printMissing(qPrintable(claim), library);
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    for (const int shades : {2, 16})
        for (const QSize size : {QSize(1600, 2200), QSize(3000, 4200)}) benchDecoding(size, shades);
    return 0;
}
