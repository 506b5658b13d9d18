// The promise: an airport chosen in the list stands complete in the main window, record and picture, in at
// most 0.3 times what it takes to read the same record and to have the same picture read by Qt and drawn at
// the same size, without any window.

#include "archive/record_file.h"
#include "drawn_chart.h"
#include "forms/look.h"
#include "measuring.h"
#include "painted.h"
#include "support/test_program.h"

#include <QApplication>
#include <QImageReader>
#include <QPainter>
#include <QPixmap>

using namespace quarvel;
using namespace quarvel::bench;
using namespace Qt::StringLiterals;

namespace {

constexpr int rounds = 31;
constexpr double budget = 0.3;

QString fileOf(const QString& suffix) { return u"aeroporti/LIRF/Aeroporto/LIRF"_s + suffix; }

void byQt(const TestProgram& test, QSize place) {
    if (!readRecord(test.path(fileOf(u".txt"_s)))) qFatal("no record");
    const QImage image = QImageReader(test.path(fileOf(u".gif"_s)), "gif").read();
    if (image.isNull()) qFatal("no picture");
    QPixmap shown(place);
    QPainter painter(&shown);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(shown.rect(), image);
}

void benchOpening(QSize size) {
    TestProgram test;
    test.addAirport(u"LIRF"_s);
    test.write(fileOf(u".gif"_s), drawnChart(size, 16));
    test.start();
    auto* picture = TestProgram::control(test.mainWindow(), u"imgAeroporto"_s);
    Painted painted(picture);
    std::vector<double> opening, qt;
    for (int round = -2; round < roundsOf(rounds); ++round) {
        TestProgram::click(test.mainWindow(), u"cmdAzzera"_s);
        test.type(u"LIRF"_s);
        QCoreApplication::processEvents();
        const double ours = milliseconds([&] {
            TestProgram::clickRow(test.mainWindow(), u"lstWords"_s, 0);
            painted.wait();
        });
        const double theirs = milliseconds([&] { byQt(test, picture->size()); });
        if (round < 0) continue;
        opening.push_back(ours);
        qt.push_back(theirs);
    }
    const QString claim =
        u"Opening an airport with a picture of %1 x %2"_s.arg(size.width()).arg(size.height());
    printRatio(qPrintable(claim), median(opening), "record, and Qt's reader", median(qt), budget);
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    applyProgramLook(application);
    for (const QSize size : {QSize(658, 1186), QSize(1600, 2200)}) benchOpening(size);
    return 0;
}
