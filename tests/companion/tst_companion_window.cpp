#include "support/chart_driver.h"

#include <QAction>
#include <QFile>
#include <QMenu>
#include <QScrollBar>
#include <QWindow>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

constexpr QSize chart{800, 1100};
constexpr QSize photo{20, 30}; ///< of every airport of the tests

/// The companion window on its chart.
struct Companion : TestProgram {
    Companion() {
        addAirport(u"LIRF"_s);
        addChart(u"aeroporti/LIRF/Sid/Kenn1.GIF"_s, chart);
        start();
        openViewer(u"LIRF"_s);
        openCompanion();
    }
    [[nodiscard]] QWidget* image() const { return control(u"Image1"_s); }
    [[nodiscard]] QAction* item(const QString& name) const {
        return companionWindow()->findChild<QAction*>(name);
    }
    void choose(const QString& name) const { chooseItem(companionWindow(), name); }
    void minimise() const {
        companionWindow()->showMinimized();
        QTRY_VERIFY(!companionWindow()->isVisible());
    }
    [[nodiscard]] QList<int> bar(const QString& name) const {
        const auto* found = control<QScrollBar>(name);
        return {found->minimum(), found->maximum(), found->value(), found->isEnabled() ? 1 : 0};
    }
    /// Whether the menu offers the photo, and else the chart.
    [[nodiscard]] bool offersPhoto() const {
        if (item(u"mnuAeroporto"_s)->isEnabled() == item(u"mnuProcScelta"_s)->isEnabled())
            qFatal("the menu offers both pictures, or none");
        return item(u"mnuAeroporto"_s)->isEnabled();
    }
};

} // namespace

/// The companion window, driven as its user and the notification area would.
class CompanionWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void opensOnTheChosenChartAboveOthers() {
        Companion test;
        QWidget* window = test.companionWindow();
        QVERIFY(!test.viewWindow()->isVisible());
        QVERIFY(window->windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        QVERIFY(window->windowFlags().testFlag(Qt::WindowMaximizeButtonHint));
        const Qt::WindowFlags fixed = test.viewWindow()->windowFlags(); // which cannot grow
        QVERIFY(!fixed.testFlag(Qt::WindowMaximizeButtonHint) &&
                fixed.testFlag(Qt::WindowMinimizeButtonHint));
        QCOMPARE(test.image()->parentWidget()->geometry(), QRect(-8, 0, 377, 433));
        QCOMPARE(test.image()->parentWidget()->parentWidget()->size(), QSize(384, 431));
        QCOMPARE(test.image()->geometry(), QRect(QPoint(-1, -1), chart));
        QCOMPARE(test.bar(u"HScroll1"_s), QList<int>({1, 800 - 377, 1, 1}));
        QCOMPARE(test.bar(u"VScroll1"_s), QList<int>({1, 1100 - 433, 1, 1}));
        QCOMPARE(test.program().state().TrayIconData.window, window->windowHandle()->winId());
        QCOMPARE(QByteArray(test.icons.icons.at(0).data() + 24), QByteArray("Quarvel - cartine procedurali"));
        QVERIFY(test.offersPhoto() && !test.item(u"mnuRipris"_s)->isEnabled());
        QVERIFY(window->close()); // as the system does
        QVERIFY(test.icons.icons.isEmpty() && test.companionWindow() == nullptr);
    }

    void menuSwitchesBetweenChartAndPhoto() {
        Companion test;
        QTest::mouseClick(test.image(), Qt::LeftButton, {}, {200, 200});
        for (const auto& name : {u"HScroll1"_s, u"VScroll1"_s}) test.control<QScrollBar>(name)->setValue(77);
        QCOMPARE(test.image()->pos(), QPoint(-77, -77));
        test.choose(u"mnuAeroporto"_s);
        QCOMPARE(test.image()->size(), photo);
        QVERIFY(!test.offersPhoto());
        test.choose(u"mnuProcScelta"_s);
        QCOMPARE(test.image()->geometry(), QRect(QPoint(-1, -1), chart));
        QVERIFY(test.offersPhoto());
        test.program().state().CompanionMode = 3; // whatever is not 1 is the airport
        test.item(u"mnuRipris"_s)->setEnabled(true);
        test.choose(u"mnuRipris"_s);
        QCOMPARE(test.image()->size(), photo);
    }

    void pictureThatCannotBeReadIsToldAndTheOldOneStays() {
        Companion test;
        QVERIFY(QFile::remove(test.path(u"aeroporti/LIRF/Aeroporto/LIRF.gif"_s)));
        test.choose(u"mnuAeroporto"_s);
        QTRY_COMPARE(test.boxes.shown.size(), 1);
        QVERIFY(test.boxes.shown[0].text.contains(u"LIRF.gif"_s));
        QCOMPARE(test.image()->size(), chart);
        QVERIFY(test.offersPhoto());
        test.choose(u"mnuNuovaproc"_s);
        test.write(u"aeroporti/LIRF/Sid/Kenn1.GIF"_s, "GIF89a, and no more");
        test.addChart(u"aeroporti/LIRF/Aeroporto/LIRF.gif"_s, photo);
        test.click(u"Command4"_s);
        QTRY_COMPARE(test.boxes.shown.size(), 2);
        test.companionWindow()->showMaximized();
        QTRY_VERIFY(test.companionWindow()->width() > 384);
        test.choose(u"mnuAeroporto"_s); // the first picture, from which sizes are in proportion
        QTRY_COMPARE(test.companionWindow()->width(), 384);
        QTRY_COMPARE(test.image()->size(), photo);
        test.companionWindow()->resize(test.companionWindow()->size() + QSize(384, 0));
        QTRY_COMPARE(test.image()->size(), QSize(40, 30));
        test.choose(u"mnuNuovaproc"_s);
        test.click(u"Command4"_s); // once more nothing to show, and then a chart that is there
        QTRY_COMPARE(test.boxes.shown.size(), 3);
        test.choose(u"mnuNuovaproc"_s);
        test.addChart(u"aeroporti/LIRF/Sid/Kenn1.GIF"_s, chart);
        test.click(u"Command4"_s);
        QCOMPARE(test.image()->geometry(), QRect(QPoint(-1, -1), chart));
        QCOMPARE(test.image()->parentWidget()->geometry(), QRect(-8, 0, 377, 433));
    }

    void resizingScalesFromTheFirstLayout() {
        Companion test;
        QWidget* window = test.companionWindow();
        QTest::mouseClick(test.image(), Qt::LeftButton, {}, {200, 200});
        QCOMPARE(test.image()->width(), 1000);
        window->resize(window->size() + QSize(384, 0));
        QTRY_COMPARE(test.image()->geometry(), QRect(-2, -1, 1600, 1100));
        QCOMPARE(test.image()->parentWidget()->geometry(), QRect(-16, 0, 754, 433));
        QCOMPARE(test.bar(u"HScroll1"_s)[1], 1000 - 377); // only a zoom or a picture computes it anew
        for (int zoom = 0; zoom < 9; ++zoom) QTest::mouseClick(test.image(), Qt::LeftButton);
        QCOMPARE(test.beeper.beeps, 0); // with the one before the resize these are ten
        QTest::mouseClick(test.image(), Qt::LeftButton);
        QCOMPARE(test.beeper.beeps, 1);
    }

    void wheelDragAndKeysMoveTheChart() {
        Companion test;
        QWidget* window = test.companionWindow();
        const ChartDriver driver(window);
        ChartDriver::wheel(driver.image, {50, 50}, {0, -240});
        QTest::keyClick(window, Qt::Key_Right);
        QCOMPARE(test.image()->pos(), QPoint(-11, -61));
        QTest::keyClick(window, '+');
        QCOMPARE(test.image()->size(), QSize(1000, 1375));
        // The layout puts the chart back; what is seen moves on from there.
        window->resize(window->size() + QSize(384, 0));
        QTRY_COMPARE(test.image()->geometry(), QRect(-2, -1, 1600, 1100));
        ChartDriver::wheel(driver.frame, {50, 50}, {0, -120});
        QCOMPARE(test.image()->pos(), QPoint(-2, -31));
        driver.hold({300, 300});
        driver.moveTo({280, 290});
        QCOMPARE(test.image()->pos(), QPoint(-22, -41));
        driver.release({280, 290});
    }

    void pointerOverTheBareSurfaceCallsItToItsNormalState() {
        Companion test;
        QWidget* window = test.companionWindow();
        window->showMaximized();
        QTest::mouseMove(window->windowHandle(), {100, 200}); // on the chart
        QVERIFY(window->isMaximized());
        test.image()->parentWidget()->hide();
        QTest::mouseMove(window->windowHandle(), {101, 200});
        QVERIFY(!window->isMaximized());
    }

    void minimisedLivesOnAsTheIcon() {
        Companion test;
        QWidget* window = test.companionWindow();
        test.minimise();
        QVERIFY(test.item(u"mnuRipris"_s)->isEnabled());
        for (const int message : {iconMessage::mouseMove, iconMessage::rightDown, iconMessage::leftUp})
            test.icons.window->iconMouse(message);
        QVERIFY(!window->isVisible() && !window->findChild<QMenu*>()->isVisible());
        test.icons.window->iconMouse(iconMessage::rightUp);
        QVERIFY(window->findChild<QMenu*>()->isVisible());
        test.choose(u"mnuAeroporto"_s);
        QVERIFY(window->isVisible() && !window->isMinimized());
        QCOMPARE(test.image()->size(), photo);
        QVERIFY(test.item(u"mnuRipris"_s)->isEnabled()); // only its own command disables it
        test.minimise();
        test.choose(u"mnuRipris"_s);
        QVERIFY(window->isVisible() && !test.item(u"mnuRipris"_s)->isEnabled());
        test.minimise(); // and without notification area in the task bar
        test.icons.there = false;
        test.icons.window->iconLost();
        QVERIFY(window->isVisible() && window->isMinimized());
        window->showNormal();
        window->showMinimized();
        QCoreApplication::processEvents();
        QVERIFY(window->isVisible());
    }

    void newProcedureGoesBackToTheViewer() {
        Companion test;
        const QRect place = test.viewWindow()->geometry();
        // As window managers do that take away the frame of what is hidden.
        test.viewWindow()->move(place.topLeft() - QPoint(0, 37));
        test.choose(u"mnuNuovaproc"_s);
        QCOMPARE(test.viewWindow()->geometry(), place);
        QVERIFY(test.icons.icons.isEmpty() && test.companionWindow() == nullptr);
        QVERIFY(QTest::qWaitForWindowActive(test.viewWindow()));
        QCOMPARE(test.rows(u"List1"_s), QStringList(u"KENN1"_s));
        test.program().state().CompanionMode = 2;
        test.click(u"Command4"_s);
        QCOMPARE(test.image()->size(), chart);
        QCOMPARE(test.icons.icons.size(), 1);
    }

    void exitAsksFirst() {
        Companion test;
        test.boxes.answers = {Answer::No};
        test.choose(u"mPopExit"_s);
        QVERIFY(!test.end.ended && test.icons.icons.size() == 1);
        test.choose(u"mPopExit"_s);
        QVERIFY(test.end.ended && test.icons.icons.isEmpty());
        QCOMPARE(test.boxes.shown.last().title, u"Uscita"_s);
    }
};

QTEST_MAIN(CompanionWindowTest)
#include "tst_companion_window.moc"
