#include "support/test_program.h"

#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QSet>
#include <QSignalSpy>
#include <QTimer>

using namespace quarvel;
using namespace Qt::StringLiterals;

/// The window as it stands and its plain commands.
class MainWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void controlsStandWhereTheTableSays_data();
    void controlsStandWhereTheTableSays();
    void controlListKeepsTheStoredOrder();
    void startShowsTheSearchStateOnly();
    void activationFocusesTheNameBoxWhileItIsEnabled();
    void ownMessageBoxIsNoActivation();
    void tabOrderGoesThroughTheRecord();
    void quitAsksAndOnlyYesEnds();
    void supportAddressStaysRedAndOpensMail();
    void printTellsWhenThereIsNoPrinter();
    void chartsCommandPlaysUnloadsAndShowsTheViewer();
    void closeBoxEndsTheProgramWithoutAQuestion();
    void resetReturnsToTheSearchState();
};

void MainWindowTest::controlsStandWhereTheTableSays_data() {
    QTest::addColumn<QString>("name");
    QTest::addColumn<QRect>("pixels"); // twips / 15, inside the container
    QTest::newRow("results frame") << u"fraRicerca"_s << QRect(360, 0, 329, 185);
    QTest::newRow("list inside its frame") << u"lstWords"_s << QRect(8, 32, 313, 148);
    QTest::newRow("a width between two pixels rounds once") << u"txtNomeAeroporto"_s << QRect(0, 48, 357, 30);
    QTest::newRow("first navigation field") << u"txtRwy(33)"_s << QRect(16, 56, 57, 27);
    QTest::newRow("first runway field") << u"txtRwy(3)"_s << QRect(16, 128, 41, 27);
    QTest::newRow("last runway field") << u"txtRwy(32)"_s << QRect(304, 328, 49, 27);
    QTest::newRow("ICAO code") << u"txtRwy(38)"_s << QRect(0, 112, 57, 27);
    QTest::newRow("elevation") << u"txtRwy(2)"_s << QRect(256, 112, 49, 27);
    QTest::newRow("airport picture") << u"imgAeroporto"_s << QRect(360, 0, 329, 593);
    QTest::newRow("tall decoration") << u"Image1(0)"_s << QRect(0, 152, 358, 441);
}

void MainWindowTest::controlsStandWhereTheTableSays() {
    QFETCH(QString, name);
    QFETCH(QRect, pixels);
    TestProgram test;
    test.start();
    QCOMPARE(test.mainWindow()->size(), QSize(687, 595));
    QCOMPARE(TestProgram::control(test.mainWindow(), name)->geometry(), pixels);
}

void MainWindowTest::controlListKeepsTheStoredOrder() {
    TestProgram test;
    test.start();
    QStringList keys;
    for (const Control* control : test.program().mainWindow().controls()) keys.append(controlKey(*control));
    QCOMPARE(keys.first(), u"fraRicerca"_s);
    const QStringList inOrder = {
        u"lstWords"_s,  u"Label16"_s, u"TxtFile"_s,    u"fraMail"_s,    u"cmdEsciMail"_s, u"Label6(4)"_s,
        u"Label6(3)"_s, u"Frame4"_s,  u"txtRwy(33)"_s, u"txtRwy(36)"_s, u"txtRwy(3)"_s,   u"txtRwy(32)"_s,
        u"Frame2"_s,    u"Frame1"_s,  u"cmdElabora"_s, u"txtRwy(38)"_s, u"txtRwy(37)"_s,  u"txtRwy(0)"_s,
        u"txtRwy(2)"_s, u"Frame3"_s,  u"Frame5"_s,     u"Agent"_s,      u"Image1(0)"_s,   u"imgAeroporto"_s};
    qsizetype before = 0;
    for (const QString& key : inOrder) {
        QVERIFY2(keys.indexOf(key) > before, qPrintable(key));
        before = keys.indexOf(key);
    }
    QCOMPARE(QSet<QString>(keys.begin(), keys.end()).size(), keys.size());
}

void MainWindowTest::startShowsTheSearchStateOnly() {
    TestProgram test;
    test.start();
    QStringList shown;
    for (const QWidget* child : test.mainWindow()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (child->isVisible() && !child->objectName().startsWith(u"Image1"_s))
            shown.append(child->objectName());
    shown.sort();
    QCOMPARE(shown, QStringList({u"Frame1"_s, u"Frame2"_s}));
    QVERIFY(!TestProgram::control(test.mainWindow(), u"cmdElabora"_s)->isEnabled());
    QVERIFY(TestProgram::control<QLineEdit>(test.mainWindow(), u"txtRwy(0)"_s)->isReadOnly());
    // The window stands in the middle of the whole screen.
    QCOMPARE(test.mainWindow()->frameGeometry().center(), QRect(0, 0, 1280, 1024).center());
}

void MainWindowTest::activationFocusesTheNameBoxWhileItIsEnabled() {
    TestProgram test;
    test.addAirport(u"LIRF"_s);
    test.start();
    QWidget* box = TestProgram::control(test.mainWindow(), u"txtNomeAeroporto"_s);
    QVERIFY(box->hasFocus());
    TestProgram::control(test.mainWindow(), u"lstWords"_s)->setFocus();
    QEvent comeBack(QEvent::WindowActivate);
    QCoreApplication::sendEvent(test.mainWindow(), &comeBack);
    QVERIFY(box->hasFocus());

    test.type(u"LIRF"_s);
    TestProgram::clickRow(test.mainWindow(), u"lstWords"_s, 0);
    QWidget* quit = TestProgram::control(test.mainWindow(), u"cmdEsci"_s);
    quit->setFocus();
    QCoreApplication::sendEvent(test.mainWindow(), &comeBack);
    QVERIFY(quit->hasFocus());
}

void MainWindowTest::ownMessageBoxIsNoActivation() {
    TestProgram test;
    test.start();
    test.type(u"NEW"_s);
    QWidget* list = TestProgram::control(test.mainWindow(), u"lstWords"_s);
    test.boxes.meanwhile = [&] {
        list->setFocus();
        for (const auto type : {QEvent::WindowDeactivate, QEvent::WindowActivate}) {
            QEvent event(type);
            QCoreApplication::sendEvent(test.mainWindow(), &event);
        }
        QVERIFY(list->hasFocus());
    };
    TestProgram::click(test.mainWindow(), u"cmdElabora"_s);
    QCOMPARE(test.boxes.shown.size(), 1);
    // OK has created the airport: the focus that the handler set stays.
    QVERIFY(TestProgram::control(test.mainWindow(), u"txtRwy(38)"_s)->hasFocus());
}

void MainWindowTest::tabOrderGoesThroughTheRecord() {
    TestProgram test;
    test.start();
    test.type(u"NEW"_s);
    TestProgram::click(test.mainWindow(), u"cmdElabora"_s);
    QStringList visited;
    for (int step = 0; step < 12; ++step) {
        visited.append(QApplication::focusWidget()->objectName());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    QCOMPARE(visited.join(u' '),
             u"txtRwy(38) txtRwy(37) txtRwy(0) txtRwy(1) txtRwy(2) txtRwy(33) txtRwy(34) txtRwy(35) "
             "txtRwy(36) txtRwy(3) txtRwy(4) txtRwy(5)"_s);
}

void MainWindowTest::quitAsksAndOnlyYesEnds() {
    TestProgram test;
    test.addAirport(u"LIRF"_s);
    test.start();
    test.type(u"LIRF"_s);
    TestProgram::clickRow(test.mainWindow(), u"lstWords"_s, 0);
    test.boxes.answers = {Answer::No, Answer::Yes};
    TestProgram::click(test.mainWindow(), u"cmdEsci"_s);
    QVERIFY(!test.end.ended);
    QVERIFY(TestProgram::control(test.mainWindow(), u"Frame5"_s)->isVisible());
    TestProgram::click(test.mainWindow(), u"cmdEsci"_s);
    QVERIFY(test.end.ended);
    QCOMPARE(test.boxes.shown.first().buttons, Buttons::YesNo);
    QCOMPARE(test.boxes.shown.first().icon, BoxIcon::Question);
    QCOMPARE(test.boxes.captions.first().yes, u"&Sì"_s);
}

void MainWindowTest::supportAddressStaysRedAndOpensMail() {
    TestProgram test;
    test.addAirport(u"LIRF"_s);
    test.start();
    test.type(u"LIRF"_s);
    TestProgram::clickRow(test.mainWindow(), u"lstWords"_s, 0);
    TestProgram::click(test.mainWindow(), u"cmdInfo"_s);
    auto* address = TestProgram::control<QLabel>(test.mainWindow(), u"Label15"_s);
    QVERIFY(address->isVisible());
    QCOMPARE(address->palette().color(QPalette::WindowText), QColor(0, 0, 255));
    QTest::mouseMove(address, QPoint(5, 5));
    QTest::mouseMove(address, QPoint(9, 9));
    QTRY_COMPARE(address->palette().color(QPalette::WindowText), QColor(255, 0, 0));
    TestProgram::click(test.mainWindow(), u"Label15"_s);
    QCOMPARE(test.urls.opened, QStringList(u"mailto:"_s + address->text()));
    TestProgram::click(test.mainWindow(), u"cmdEsciMail"_s);
    TestProgram::click(test.mainWindow(), u"cmdInfo"_s);
    QCOMPARE(address->palette().color(QPalette::WindowText), QColor(255, 0, 0));
}

void MainWindowTest::printTellsWhenThereIsNoPrinter() {
    TestProgram test;
    test.addAirport(u"LIRF"_s);
    test.start();
    test.type(u"LIRF"_s);
    TestProgram::clickRow(test.mainWindow(), u"lstWords"_s, 0);
    TestProgram::click(test.mainWindow(), u"cmdStampa"_s);
    QCOMPARE(test.printer.pages, 1);
    QVERIFY(test.boxes.shown.isEmpty());
    test.printer.outcome = PrintOutcome::NoPrinter;
    TestProgram::click(test.mainWindow(), u"cmdStampa"_s);
    QCOMPARE(test.boxes.shown.size(), 1);
    QVERIFY(test.boxes.shown.first().text.contains(u"stampante predefinita"_s));
}

void MainWindowTest::chartsCommandPlaysUnloadsAndShowsTheViewer() {
    TestProgram test;
    test.addAirport(u"LIRF"_s);
    test.start();
    test.openViewer(u"LIRF"_s);
    QCOMPARE(test.sounds.played, QStringList(test.path(u"dallas9.wav"_s)));
    QCOMPARE(test.mainWindow(), nullptr);
    // The way back: loaded afresh, in its search state, with the airport still known.
    TestProgram::click(test.viewWindow(), u"Command3"_s); // disabled until a family is chosen
    QVERIFY(test.viewWindow() != nullptr);
    TestProgram::click(test.viewWindow(), u"Option1(0)"_s);
    TestProgram::click(test.viewWindow(), u"Command3"_s);
    QCOMPARE(test.viewWindow(), nullptr);
    QVERIFY(!TestProgram::control(test.mainWindow(), u"Frame4"_s)->isVisible());
    QCOMPARE(TestProgram::control<QLineEdit>(test.mainWindow(), u"txtNomeAeroporto"_s)->text(), QString());
    QCOMPARE(test.program().state().CurrentAirport, u"LIRF"_s);
}

void MainWindowTest::closeBoxEndsTheProgramWithoutAQuestion() {
    TestProgram test;
    test.start();
    QSignalSpy quit(qApp, &QCoreApplication::aboutToQuit);
    QTimer::singleShot(0, test.mainWindow(), &QWidget::close);
    QCoreApplication::exec();
    QCOMPARE(quit.size(), 1);
    QCOMPARE(test.mainWindow(), nullptr);
    QVERIFY(test.boxes.shown.isEmpty());
}

void MainWindowTest::resetReturnsToTheSearchState() {
    TestProgram test;
    test.addAirport(u"LIRF"_s);
    test.start();
    test.type(u"LIRF"_s);
    TestProgram::click(test.mainWindow(), u"cmdElabora"_s);
    TestProgram::click(test.mainWindow(), u"cmdAzzera"_s);
    QWidget* window = test.mainWindow();
    QVERIFY(TestProgram::control(window, u"txtNomeAeroporto"_s)->isEnabled());
    QVERIFY(!TestProgram::control(window, u"cmdElabora"_s)->isEnabled());
    QVERIFY(!TestProgram::control(window, u"imgAeroporto"_s)->isVisible());
    QVERIFY(TestProgram::control(window, u"Image1(1)"_s)->isVisible());
    QVERIFY(TestProgram::control(window, u"fraRicerca"_s)->isVisible()); // keeps its visibility
    QCOMPARE(TestProgram::control<QLineEdit>(window, u"txtRwy(38)"_s)->text(), QString());
    QCOMPARE(test.program().state().CurrentIcao, u"LIRF"_s);
}

QTEST_MAIN(MainWindowTest)
#include "tst_main_window.moc"
