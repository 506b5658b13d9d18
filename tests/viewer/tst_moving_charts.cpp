#include "support/chart_driver.h"

#include <QPlainTextEdit>
#include <QScrollBar>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

/// The viewer on an airport with a chart of 800 x 1100.
struct Viewer : TestProgram {
    ChartDriver chart;

    Viewer() : chart(opened()) {}
    /// The chart chosen and scrolled to (300, 200).
    static std::unique_ptr<Viewer> withChart() {
        auto test = std::make_unique<Viewer>();
        test->click(u"Option1(0)"_s);
        test->clickRow(u"List1"_s, 0);
        test->control<QScrollBar>(u"HScroll1"_s)->setValue(300);
        test->control<QScrollBar>(u"VScroll1"_s)->setValue(200);
        return test;
    }
    /// Where chart and bars stand; they have to agree.
    [[nodiscard]] QPoint values() const {
        const QPoint bars(control<QScrollBar>(u"HScroll1"_s)->value(),
                          control<QScrollBar>(u"VScroll1"_s)->value());
        return -chart.image->pos() == bars ? bars : QPoint(-1, -1);
    }

private:
    QWidget* opened() {
        addAirport(u"LIRF"_s);
        addChart(u"aeroporti/LIRF/Sid/Kenn1.GIF"_s, {800, 1100});
        start();
        openViewer(u"LIRF"_s);
        return viewWindow();
    }
};

} // namespace

/// The chart viewer's chart moved by wheel, middle button and keys.
class MovingChartsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theWheelScrolls() {
        const auto test = Viewer::withChart();
        const ChartDriver& chart = test->chart;
        ChartDriver::wheel(chart.image, {400, 400}, {0, -120});
        QCOMPARE(test->values(), QPoint(300, 230));
        ChartDriver::wheel(chart.frame, {100, 100}, {-240, 2400});
        QCOMPARE(test->values(), QPoint(360, 1));
        // Over a bar the wheel is the bar's, also where the bar has come to its end.
        for (int i = 0; i < 40; ++i) ChartDriver::wheel(test->control(u"HScroll1"_s), {100, 5}, {0, -120});
        QCOMPARE(test->values(), QPoint(794, 1));
    }

    void theWheelZoomsAsAClickThere() {
        for (const int notches : {2, -1}) {
            const auto wheeled = Viewer::withChart();
            const auto clicked = Viewer::withChart();
            const ChartDriver& other = clicked->chart;
            ChartDriver::wheel(wheeled->chart.image, {420, 500}, {0, 120 * notches}, Qt::ControlModifier);
            const QPoint pointer = other.image->mapTo(other.frame, QPoint(420, 500));
            for (int i = 0; i < std::abs(notches); ++i)
                QTest::mouseClick(other.image, notches > 0 ? Qt::LeftButton : Qt::RightButton, {},
                                  other.image->mapFrom(other.frame, pointer));
            QVERIFY(wheeled->chart.image->width() != 800);
            QCOMPARE(wheeled->chart.image->geometry(), other.image->geometry());
            QCOMPARE(wheeled->values(), clicked->values());
        }
    }

    void theMiddleButtonDragsTheChart() {
        const auto test = Viewer::withChart();
        const ChartDriver& chart = test->chart;
        chart.hold({100, 100});
        QCOMPARE(chart.image->cursor().shape(), Qt::ClosedHandCursor);
        for (const auto& [to, expected] : {std::pair(QPoint(63, 155), QPoint(337, 145)),
                                           {{100, 500}, {300, 1}}, // 400 down, of which it can follow 199
                                           {{100, 101}, {300, 199}}}) {
            chart.moveTo(to);
            QCOMPARE(test->values(), expected);
        }
        chart.release({100, 101});
        chart.moveTo({200, 200});
        QCOMPARE(test->values(), QPoint(300, 199));
        QCOMPARE(chart.image->size(), QSize(800, 1100));
    }

    void losingThePointerEndsADrag() {
        const auto test = Viewer::withChart();
        const ChartDriver& chart = test->chart;
        chart.hold({100, 100});
        QEvent leave(QEvent::WindowDeactivate);
        QCoreApplication::sendEvent(test->viewWindow(), &leave);
        QCOMPARE(chart.image->cursor().shape(), Qt::ArrowCursor);
        chart.moveTo({50, 50});
        QCOMPARE(test->values(), QPoint(300, 200));
    }

    void otherControlsLeaveTheirKeysToTheChart() {
        const auto test = Viewer::withChart();
        const ChartDriver& chart = test->chart;
        auto* list = test->control(u"List1"_s);
        list->setFocus();
        QTest::keyClick(list, '+');
        QTest::keyClick(list, '-');
        QCOMPARE(chart.image->width(), 750);
        QTest::keyClick(list, Qt::Key_End);
        QCOMPARE(test->values(), QPoint(300, 200));
        for (const auto& name : {u"Option1(0)"_s, u"Command3"_s}) {
            test->control(name)->setFocus();
            QTest::keyClick(test->control(name), Qt::Key_PageDown);
        }
        QCOMPARE(test->values(), QPoint(300, 400));
    }

    void notesKeepTheirKeys() {
        const auto test = Viewer::withChart();
        const ChartDriver& chart = test->chart;
        auto* notes = test->control<QPlainTextEdit>(u"Text2"_s);
        for (const bool locked : {false, true}) {
            notes->setReadOnly(locked);
            notes->setFocus();
            QTest::keyClicks(notes, u"+-="_s);
            for (const auto key : {Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Home, Qt::Key_End, Qt::Key_Down})
                QTest::keyClick(notes, key);
            QCOMPARE(notes->toPlainText(), u"+-="_s);
        }
        QCOMPARE(test->values(), QPoint(300, 200));
        QCOMPARE(chart.image->size(), QSize(800, 1100));
    }
};

QTEST_MAIN(MovingChartsTest)
#include "tst_moving_charts.moc"
