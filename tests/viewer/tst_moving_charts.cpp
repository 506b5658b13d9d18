#include "support/chart_driver.h"

#include <QPlainTextEdit>
#include <QScrollBar>

using namespace quarvel;
using namespace Qt::StringLiterals;

/// The chart viewer's chart moved by wheel, middle button and keys.
class MovingChartsTest : public QObject {
    Q_OBJECT

private:
    static constexpr QPoint paper{30, 400}; ///< of the frame, beside a small chart
    static QWidget* control(const TestProgram& test, const QString& name) {
        return TestProgram::control(test.viewWindow(), name);
    }
    /// The viewer with a chart of 800 x 1100 scrolled to (300, 200).
    static std::unique_ptr<TestProgram> viewer() {
        auto test = withoutChart();
        TestProgram::click(test->viewWindow(), u"Option1(0)"_s);
        TestProgram::clickRow(test->viewWindow(), u"List1"_s, 0);
        TestProgram::control<QScrollBar>(test->viewWindow(), u"HScroll1"_s)->setValue(300);
        TestProgram::control<QScrollBar>(test->viewWindow(), u"VScroll1"_s)->setValue(200);
        return test;
    }
    static std::unique_ptr<TestProgram> withoutChart() {
        auto test = std::make_unique<TestProgram>();
        test->addAirport(u"LIRF"_s);
        test->addChart(u"aeroporti/LIRF/Sid/Kenn1.GIF"_s, {800, 1100});
        test->start();
        test->openViewer(u"LIRF"_s);
        return test;
    }
    /// Where chart and bars stand; they have to agree.
    static QPoint values(const TestProgram& test) {
        const QPoint bars(TestProgram::control<QScrollBar>(test.viewWindow(), u"HScroll1"_s)->value(),
                          TestProgram::control<QScrollBar>(test.viewWindow(), u"VScroll1"_s)->value());
        return -control(test, u"Image1"_s)->pos() == bars ? bars : QPoint(-1, -1);
    }

private Q_SLOTS:
    void theWheelScrolls() {
        const auto test = viewer();
        const ChartDriver chart(test->viewWindow());
        ChartDriver::wheel(chart.image, {400, 400}, {0, -120});
        QCOMPARE(values(*test), QPoint(300, 230));
        ChartDriver::wheel(chart.image, {400, 400}, {0, 120}, Qt::ShiftModifier);
        QCOMPARE(values(*test), QPoint(270, 230));
        ChartDriver::wheel(chart.frame, {100, 100}, {-240, 2400});
        QCOMPARE(values(*test), QPoint(330, 1));
        // Over a bar the wheel is the bar's, also where the bar has come to its end.
        auto* across = control(*test, u"HScroll1"_s);
        for (int i = 0; i < 40; ++i) ChartDriver::wheel(across, {100, 5}, {0, -120});
        QCOMPARE(values(*test), QPoint(794, 1));
    }

    void theWheelZoomsAsAClickThere() {
        for (const int notches : {2, -1}) {
            const auto wheeled = viewer();
            const auto clicked = viewer();
            const ChartDriver one(wheeled->viewWindow());
            const ChartDriver other(clicked->viewWindow());
            ChartDriver::wheel(one.image, {420, 500}, {0, 120 * notches}, Qt::ControlModifier);
            const QPoint pointer = other.image->mapTo(other.frame, QPoint(420, 500));
            for (int i = 0; i < std::abs(notches); ++i)
                QTest::mouseClick(other.image, notches > 0 ? Qt::LeftButton : Qt::RightButton, {},
                                  other.image->mapFrom(other.frame, pointer));
            QVERIFY(one.image->width() != 800);
            QCOMPARE(one.image->geometry(), other.image->geometry());
            QCOMPARE(values(*wheeled), values(*clicked));
        }
    }

    void aRefusedZoomBeepsOnce() {
        const auto test = viewer();
        const ChartDriver chart(test->viewWindow());
        for (int i = 0; i < 12; ++i)
            ChartDriver::wheel(chart.frame, {100, 100}, {0, 120}, Qt::ControlModifier);
        QCOMPARE(test->beeper.beeps, 2); // a beep a notch
        for (int i = 0; i < 80; ++i)
            ChartDriver::wheel(chart.frame, {100, 100}, {0, 15}, Qt::ControlModifier);
        QCOMPARE(test->beeper.beeps, 2); // fine turns are one sweep with the last notch
    }

    void theMiddleButtonDragsTheChart() {
        const auto test = viewer();
        const ChartDriver chart(test->viewWindow());
        chart.hold({100, 100});
        QCOMPARE(chart.image->cursor().shape(), Qt::ClosedHandCursor);
        for (const auto& [to, expected] : {std::pair(QPoint(63, 155), QPoint(337, 145)),
                                           {{100, 500}, {300, 1}}, // 400 down, of which it can follow 199
                                           {{100, 101}, {300, 199}}}) {
            chart.moveTo(to);
            QCOMPARE(values(*test), expected);
        }
        chart.release({100, 101});
        chart.moveTo({200, 200});
        QCOMPARE(values(*test), QPoint(300, 199));
        QCOMPARE(chart.image->size(), QSize(800, 1100));
    }

    void losingThePointerEndsADrag() {
        const auto test = viewer();
        const ChartDriver chart(test->viewWindow());
        chart.hold({100, 100});
        QEvent leave(QEvent::WindowDeactivate);
        QCoreApplication::sendEvent(test->viewWindow(), &leave);
        QCOMPARE(chart.image->cursor().shape(), Qt::ArrowCursor);
        chart.moveTo({50, 50});
        QCOMPARE(values(*test), QPoint(300, 200));
    }

    void keysMoveTheFocusedChart() {
        const auto test = viewer();
        const ChartDriver chart(test->viewWindow());
        QTest::mouseClick(chart.image, Qt::MiddleButton);
        QVERIFY(chart.frame->hasFocus());
        for (const auto& [key, held, expected] :
             {std::tuple(Qt::Key_Right, Qt::NoModifier, QPoint(310, 200)),
              std::tuple(Qt::Key_Up, Qt::NoModifier, QPoint(310, 190)),
              std::tuple(Qt::Key_PageDown, Qt::NoModifier, QPoint(310, 290)),
              std::tuple(Qt::Key_PageUp, Qt::ShiftModifier, QPoint(210, 290)),
              std::tuple(Qt::Key_End, Qt::NoModifier, QPoint(210, 1085)),
              std::tuple(Qt::Key_Home, Qt::NoModifier, QPoint(210, 1))}) {
            QTest::keyClick(chart.frame, key, held);
            QCOMPARE(values(*test), expected);
        }
        QTest::keyClick(chart.frame, '+');
        QCOMPARE(chart.image->width(), 1000);
    }

    void otherControlsLeaveTheirKeysToTheChart() {
        const auto test = viewer();
        const ChartDriver chart(test->viewWindow());
        auto* list = control(*test, u"List1"_s);
        list->setFocus();
        QTest::keyClick(list, '+');
        QTest::keyClick(list, '-');
        QCOMPARE(chart.image->width(), 750);
        QTest::keyClick(list, Qt::Key_End);
        QCOMPARE(values(*test), QPoint(300, 200));
        for (const auto& name : {u"Option1(0)"_s, u"Command3"_s}) {
            control(*test, name)->setFocus();
            QTest::keyClick(control(*test, name), Qt::Key_PageDown);
        }
        QCOMPARE(values(*test), QPoint(300, 400));
    }

    void notesKeepTheirKeys() {
        const auto test = viewer();
        const ChartDriver chart(test->viewWindow());
        auto* notes = TestProgram::control<QPlainTextEdit>(test->viewWindow(), u"Text2"_s);
        for (const bool locked : {false, true}) {
            notes->setReadOnly(locked);
            notes->setFocus();
            QTest::keyClicks(notes, u"+-="_s);
            for (const auto key : {Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Home, Qt::Key_End, Qt::Key_Down})
                QTest::keyClick(notes, key);
            QCOMPARE(notes->toPlainText(), u"+-="_s);
        }
        QCOMPARE(values(*test), QPoint(300, 200));
        QCOMPARE(chart.image->size(), QSize(800, 1100));
    }

    void withoutAChartNothingMoves() {
        const auto test = withoutChart();
        const ChartDriver chart(test->viewWindow());
        const QRect before = chart.image->geometry();
        ChartDriver::wheel(chart.frame, paper, {0, -120});
        ChartDriver::wheel(chart.frame, {20, 60}, {0, 120}, Qt::ControlModifier);
        chart.hold(paper);
        chart.moveTo({10, 10});
        chart.release({10, 10});
        chart.frame->setFocus();
        for (const auto key : {Qt::Key_Down, Qt::Key_End, Qt::Key_Plus, Qt::Key_Minus})
            QTest::keyClick(chart.frame, key);
        QCOMPARE(chart.image->geometry(), before);
        QCOMPARE(test->program().viewWindow().ZoomLevel, 0);
    }
};

QTEST_MAIN(MovingChartsTest)
#include "tst_moving_charts.moc"
