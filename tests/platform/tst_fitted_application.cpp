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
        QTest::addColumn<double>("part");
        QTest::newRow("large enough") << QRectF(0, 0, 1024, 768) << QRectF(0, 0, 1024, 728) << 1.0;
        QTest::newRow("too low") << QRectF(0, 0, 960, 540) << QRectF(0, 0, 960, 540) << 497.0 / 595;
        QTest::newRow("too narrow") << QRectF(1920, 0, 683, 700) << QRectF(1920, 0, 683, 700) << 673.0 / 752;
        QTest::newRow("panel below") << QRectF(0, 0, 960, 640) << QRectF(0, 0, 960, 600) << 517.0 / 595;
        QTest::newRow("panel at the left")
            << QRectF(0, 0, 800, 800) << QRectF(64, 0, 736, 800) << 662.0 / 752;
        QTest::newRow("no screen to speak of") << QRectF() << QRectF() << 0.1;
    }
    void windowInTheMiddleKeepsOffThePanels() {
        QFETCH(QRectF, screen);
        QFETCH(QRectF, work);
        QTEST(fittingPart(window, screen, work), "part");
    }

    void scaleIsLoweredAndOnlyForThisProgram() {
        const QScreen* screen = QGuiApplication::primaryScreen();
        QVERIFY(screen->devicePixelRatio() < 2); // what main() has asked for
        QCOMPARE(fittingPart(window, screen->geometry(), screen->availableGeometry()), 1.0);
        QVERIFY(fittingPart(window * 1.02, screen->geometry(), screen->availableGeometry()) < 1);
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
