#include "platform/fitted_application.h"

#include <QScreen>
#include <QTest>

using namespace quarvel;

namespace {

constexpr QSizeF window{752, 595};

} // namespace

/// Windows of a fixed size on screens that may be too small for them.
class FittedApplicationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void windowInTheMiddleKeepsOffThePanels_data() {
        QTest::addColumn<QRectF>("screen");
        QTest::addColumn<QRectF>("work");
        QTest::addColumn<double>("scale");
        QTest::addColumn<double>("part");
        const auto row = [](const char* name, QRectF screen, QRectF work, double scale, double part) {
            QTest::newRow(name) << screen << work << scale << part;
        };
        row("large enough", {0, 0, 1024, 768}, {0, 0, 1024, 728}, 2, 1);
        row("too low", {0, 0, 960, 540}, {0, 0, 960, 540}, 2, 497.0 / 595);
        row("too narrow", {1920, 0, 683, 700}, {1920, 0, 683, 700}, 2, 673.0 / 752);
        row("panel below", {0, 0, 960, 640}, {0, 0, 960, 600}, 2, 517.0 / 595);
        row("panel at the left", {0, 0, 800, 800}, {64, 0, 736, 800}, 2, 662.0 / 752);
        row("never below 100 %", {0, 0, 640, 400}, {0, 0, 640, 400}, 1.25, 0.8);
        row("at 100 %", {0, 0, 1024, 600}, {0, 0, 1024, 600}, 1, 1);
        row("below it already", {0, 0, 1024, 600}, {0, 0, 1024, 600}, 0.5, 1);
        row("no screen to speak of", {}, {}, 2, 0.5);
    }
    void windowInTheMiddleKeepsOffThePanels() {
        QFETCH(QRectF, screen);
        QFETCH(QRectF, work);
        QFETCH(double, scale);
        QTEST(fittingPart(window, screen, work, scale), "part");
    }

    void scaleIsLoweredAndOnlyForThisProgram() {
        const QScreen* screen = QGuiApplication::primaryScreen();
        QVERIFY(screen->devicePixelRatio() < 2); // what main() has asked for
        const auto part = [screen](QSizeF size) {
            return fittingPart(size, screen->geometry(), screen->availableGeometry(), 2);
        };
        QVERIFY(part(window) > 0.999999);
        QVERIFY(part(window * 1.02) < 1);
        QCOMPARE(qgetenv("QT_SCALE_FACTOR"), QByteArray("2"));
    }
};

int main(int argc, char** argv) {
    qputenv("QT_SCALE_FACTOR", "2");
    FittedApplication application(argc, argv);
    application.fit(window);
    FittedApplicationTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_fitted_application.moc"
