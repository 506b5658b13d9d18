#include "support/chart_driver.h"

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QScrollBar>
#include <QWindow>

using namespace quarvel;
using namespace Qt::StringLiterals;

/// The companion window, driven as its user and the notification area would.
class CompanionWindowTest : public QObject {
    Q_OBJECT

private:
    static constexpr QSize chart{800, 1100};
    static constexpr QSize photo{20, 30}; ///< of every airport of the tests

    static std::unique_ptr<TestProgram> companion() {
        auto test = std::make_unique<TestProgram>();
        test->addAirport(u"LIRF"_s);
        test->addChart(u"aeroporti/LIRF/Sid/Kenn1.GIF"_s, chart);
        test->start();
        test->openViewer(u"LIRF"_s);
        test->openCompanion();
        return test;
    }
    static QWidget* image(const TestProgram& test) {
        return TestProgram::control(test.companionWindow(), u"Image1"_s);
    }
    static bool enabled(const TestProgram& test, const QString& item) {
        return test.companionWindow()->findChild<QAction*>(item)->isEnabled();
    }
    static void choose(const TestProgram& test, const QString& item) {
        TestProgram::chooseItem(test.companionWindow(), item);
    }
    static void minimise(const TestProgram& test) {
        test.companionWindow()->showMinimized();
        QTRY_VERIFY(!test.companionWindow()->isVisible());
    }
    static QList<int> bar(const TestProgram& test, const QString& name) {
        const auto* found = TestProgram::control<QScrollBar>(test.companionWindow(), name);
        return {found->minimum(), found->maximum(), found->value(), found->isEnabled() ? 1 : 0};
    }

private Q_SLOTS:
    void opensOnTheChosenChartAboveOthers() {
        const auto test = companion();
        QWidget* window = test->companionWindow();
        QVERIFY(!test->viewWindow()->isVisible());
        QVERIFY(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QCOMPARE(image(*test)->parentWidget()->geometry(), QRect(-8, 0, 377, 433));
        QCOMPARE(image(*test)->parentWidget()->parentWidget()->size(), QSize(384, 431));
        QCOMPARE(image(*test)->geometry(), QRect(QPoint(-1, -1), chart));
        QCOMPARE(bar(*test, u"HScroll1"_s), QList<int>({1, 800 - 377, 1, 1}));
        QCOMPARE(bar(*test, u"VScroll1"_s), QList<int>({1, 1100 - 433, 1, 1}));
        QCOMPARE(test->program().state().TrayIconData.window, window->windowHandle()->winId());
        QCOMPARE(QByteArray(test->icons.icons.at(0).data() + 24),
                 QByteArray("Quarvel - cartine procedurali"));
        QVERIFY(enabled(*test, u"mnuAeroporto"_s) && !enabled(*test, u"mnuProcScelta"_s));
        QVERIFY(!enabled(*test, u"mnuRipris"_s));
        QVERIFY(window->close()); // as the system does
        QVERIFY(test->icons.icons.isEmpty() && test->companionWindow() == nullptr);
    }

    void menuSwitchesBetweenChartAndPhoto() {
        const auto test = companion();
        QTest::mouseClick(image(*test), Qt::LeftButton, {}, {200, 200});
        for (const auto& name : {u"HScroll1"_s, u"VScroll1"_s})
            TestProgram::control<QScrollBar>(test->companionWindow(), name)->setValue(77);
        QCOMPARE(image(*test)->pos(), QPoint(-77, -77));
        choose(*test, u"mnuAeroporto"_s);
        QCOMPARE(image(*test)->size(), photo);
        QVERIFY(!enabled(*test, u"mnuAeroporto"_s) && enabled(*test, u"mnuProcScelta"_s));
        choose(*test, u"mnuProcScelta"_s);
        QCOMPARE(image(*test)->geometry(), QRect(QPoint(-1, -1), chart));
        QVERIFY(enabled(*test, u"mnuAeroporto"_s) && !enabled(*test, u"mnuProcScelta"_s));
        test->program().state().CompanionMode = 3; // whatever is not 1 is the airport
        test->companionWindow()->findChild<QAction*>(u"mnuRipris"_s)->setEnabled(true);
        choose(*test, u"mnuRipris"_s);
        QCOMPARE(image(*test)->size(), photo);
    }

    void pictureThatCannotBeReadIsToldAndTheOldOneStays() {
        const auto test = companion();
        QVERIFY(QFile::remove(test->path(u"aeroporti/LIRF/Aeroporto/LIRF.gif"_s)));
        choose(*test, u"mnuAeroporto"_s);
        QTRY_COMPARE(test->boxes.shown.size(), 1);
        QVERIFY(test->boxes.shown[0].text.contains(u"LIRF.gif"_s));
        QCOMPARE(image(*test)->size(), chart);
        QVERIFY(enabled(*test, u"mnuAeroporto"_s) && !enabled(*test, u"mnuProcScelta"_s));
        choose(*test, u"mnuNuovaproc"_s);
        test->write(u"aeroporti/LIRF/Sid/Kenn1.GIF"_s, "GIF89a, and no more");
        test->addChart(u"aeroporti/LIRF/Aeroporto/LIRF.gif"_s, photo);
        TestProgram::click(test->viewWindow(), u"Command4"_s);
        QTRY_COMPARE(test->boxes.shown.size(), 2);
        choose(*test, u"mnuAeroporto"_s);
        QCOMPARE(image(*test)->size(), photo);
    }

    void resizingScalesFromTheFirstLayout() {
        const auto test = companion();
        QWidget* window = test->companionWindow();
        const QSize first = window->size();
        QTest::mouseClick(image(*test), Qt::LeftButton, {}, {200, 200});
        QCOMPARE(image(*test)->width(), 1000);
        window->resize(first + QSize(384, 0));
        QTRY_COMPARE(image(*test)->geometry(), QRect(-2, -1, 1600, 1100));
        QCOMPARE(image(*test)->parentWidget()->geometry(), QRect(-16, 0, 754, 433));
        QCOMPARE(bar(*test, u"HScroll1"_s)[1], 1000 - 377); // only a zoom or a picture computes it anew
        for (int zoom = 0; zoom < 9; ++zoom) QTest::mouseClick(image(*test), Qt::LeftButton);
        QCOMPARE(test->beeper.beeps, 0); // with the one before the resize these are ten
        QTest::mouseClick(image(*test), Qt::LeftButton);
        QCOMPARE(test->beeper.beeps, 1);
        window->resize(first);
        QTRY_COMPARE(image(*test)->geometry(), QRect(QPoint(-1, -1), chart));
    }

    void wheelDragAndKeysMoveTheChart() {
        const auto test = companion();
        QWidget* window = test->companionWindow();
        const ChartDriver driver(window);
        const QSize first = window->size();
        ChartDriver::wheel(driver.image, {50, 50}, {0, -240});
        QTest::keyClick(window, Qt::Key_Right);
        QCOMPARE(image(*test)->pos(), QPoint(-11, -61));
        QTest::keyClick(window, '+');
        QCOMPARE(image(*test)->size(), QSize(1000, 1375));
        // The layout puts the chart back; what is seen moves on from there.
        window->resize(first + QSize(384, 0));
        QTRY_COMPARE(image(*test)->geometry(), QRect(-2, -1, 1600, 1100));
        ChartDriver::wheel(driver.frame, {50, 50}, {0, -120});
        QCOMPARE(image(*test)->pos(), QPoint(-2, -31));
        driver.hold({300, 300});
        driver.moveTo({280, 290});
        QCOMPARE(image(*test)->pos(), QPoint(-22, -41));
        driver.release({280, 290});
    }

    void minimisedLivesOnAsTheIcon() {
        const auto test = companion();
        QWidget* window = test->companionWindow();
        minimise(*test);
        QVERIFY(enabled(*test, u"mnuRipris"_s));
        for (const int message : {iconMessage::mouseMove, iconMessage::rightDown, iconMessage::leftUp})
            test->icons.window->iconMouse(message);
        QVERIFY(!window->isVisible() && !window->findChild<QMenu*>()->isVisible());
        test->icons.window->iconMouse(iconMessage::rightUp);
        QVERIFY(window->findChild<QMenu*>()->isVisible());
        choose(*test, u"mnuAeroporto"_s);
        QVERIFY(window->isVisible() && !window->isMinimized());
        QCOMPARE(image(*test)->size(), photo);
        QVERIFY(enabled(*test, u"mnuRipris"_s)); // only its own command disables it
        minimise(*test);
        choose(*test, u"mnuRipris"_s);
        QVERIFY(window->isVisible() && !enabled(*test, u"mnuRipris"_s));
    }

    void withoutNotificationAreaItStaysInTheTaskBar() {
        const auto test = companion();
        QWidget* window = test->companionWindow();
        minimise(*test);
        test->icons.there = false;
        test->icons.window->iconLost();
        QVERIFY(window->isVisible() && window->isMinimized());
        window->showNormal();
        window->showMinimized();
        QCoreApplication::processEvents();
        QVERIFY(window->isVisible());
    }

    void newProcedureGoesBackToTheViewer() {
        const auto test = companion();
        choose(*test, u"mnuNuovaproc"_s);
        QVERIFY(test->icons.icons.isEmpty() && test->companionWindow() == nullptr);
        QVERIFY(QTest::qWaitForWindowActive(test->viewWindow()));
        QCOMPARE(TestProgram::rows(test->viewWindow(), u"List1"_s), QStringList(u"KENN1"_s));
        test->program().state().CompanionMode = 2;
        TestProgram::click(test->viewWindow(), u"Command4"_s);
        QCOMPARE(image(*test)->size(), chart);
        QCOMPARE(test->icons.icons.size(), 1);
    }

    void exitAsksFirst() {
        const auto test = companion();
        test->boxes.answers = {Answer::No};
        choose(*test, u"mPopExit"_s);
        QVERIFY(!test->end.ended && test->icons.icons.size() == 1);
        choose(*test, u"mPopExit"_s);
        QVERIFY(test->end.ended && test->icons.icons.isEmpty());
        QCOMPARE(test->boxes.shown.last().title, u"Uscita"_s);
    }
};

QTEST_MAIN(CompanionWindowTest)
#include "tst_companion_window.moc"
