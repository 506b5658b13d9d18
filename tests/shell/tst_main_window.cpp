#include "support/test_program.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>

using namespace quarvel;
using namespace Qt::StringLiterals;

/// The window as it stands and its plain commands.
class MainWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void startShowsTheSearchStateOnly() {
        TestProgram test;
        test.start();
        QWidget* window = test.mainWindow();
        QStringList shown;
        for (const QWidget* child : window->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            if (child->isVisible() && !child->objectName().startsWith(u"Image1"_s))
                shown.append(child->objectName());
        shown.sort();
        QCOMPARE(shown, QStringList({u"Frame1"_s, u"Frame2"_s, u"focusRing"_s}));
        QVERIFY(!test.control(u"cmdElabora"_s)->isEnabled());
        QVERIFY(test.control<QLineEdit>(u"txtRwy(0)"_s)->isReadOnly());
        // Twips / 15, inside the container; the first between two pixels, rounded once.
        for (const auto& [name, place] : {std::pair(u"txtNomeAeroporto"_s, QRect(0, 48, 357, 30)),
                                          {u"txtRwy(32)"_s, QRect(304, 328, 49, 27)}})
            QCOMPARE(test.control(name)->geometry(), place);
        QCOMPARE(window->size(), QSize(687, 595));
        QCOMPARE(window->frameGeometry().center(), QRect(0, 0, 1280, 1024).center()); // of the screen
    }

    void activationFocusesTheNameBoxWhileItIsEnabled() {
        TestProgram test;
        test.addAirport(u"LIRF"_s);
        test.start();
        const auto comesBackTo = [&](const QString& name) {
            QWidget* control = test.control(name);
            control->setFocus();
            for (const auto type : {QEvent::WindowDeactivate, QEvent::WindowActivate}) {
                QEvent event(type);
                QCoreApplication::sendEvent(test.mainWindow(), &event);
            }
            return control->hasFocus();
        };
        QWidget* box = test.control(u"txtNomeAeroporto"_s);
        QVERIFY(box->hasFocus());
        QVERIFY(!comesBackTo(u"lstWords"_s) && box->hasFocus());
        test.type(u"NEW"_s); // the program's own message box is no activation
        test.boxes.meanwhile = [&] { QVERIFY(comesBackTo(u"lstWords"_s)); };
        test.click(u"cmdElabora"_s);
        QCOMPARE(test.boxes.shown.size(), 1);
        // OK has created the airport: the focus that the handler set stays.
        QVERIFY(test.control(u"txtRwy(38)"_s)->hasFocus());
        test.start();
        test.openAirport(u"LIRF"_s); // now the box is disabled
        QVERIFY(comesBackTo(u"cmdEsci"_s));
    }

    void quitAsksAndOnlyYesEnds() {
        TestProgram test;
        test.startWith(u"LIRF"_s);
        test.boxes.answers = {Answer::No, Answer::Yes};
        test.click(u"cmdEsci"_s);
        QVERIFY(!test.end.ended);
        test.click(u"cmdEsci"_s);
        QVERIFY(test.end.ended);
        QCOMPARE(test.boxes.shown.first().buttons, Buttons::YesNo);
        QCOMPARE(test.boxes.captions.first().yes, u"&Sì"_s);
    }

    void printingAndMailReachTheSystem() {
        TestProgram test;
        test.startWith(u"LIRF"_s);
        test.click(u"cmdStampa"_s);
        QCOMPARE(test.printer.pages, 1);
        QVERIFY(test.boxes.shown.isEmpty());
        test.printer.outcome = PrintOutcome::NoPrinter;
        test.click(u"cmdStampa"_s);
        QVERIFY(test.boxes.shown.first().text.contains(u"stampante predefinita"_s));
        test.click(u"cmdInfo"_s);
        test.click(u"Label15"_s);
        const QString address = test.control<QLabel>(u"Label15"_s)->text();
        QCOMPARE(test.urls.opened, QStringList(u"mailto:"_s + address));
    }

    void theFocusIsSeenAroundWhateverHasIt() {
        TestProgram test;
        test.startWith(u"LIRF"_s);
        QWidget* window = test.mainWindow();
        QWidget* ring = TestProgram::control(window, u"focusRing"_s);
        const auto surrounds = [&](const QWidget* control) {
            const QRect place(control->mapTo(window, QPoint()), control->size());
            return ring->isVisible() && ring->geometry().contains(place & window->rect()) &&
                   !ring->mask().intersects(place.translated(-ring->pos()).adjusted(3, 3, -3, -3));
        };
        for (const auto& name : {u"cmdGrafica"_s, u"txtRwy(38)"_s, u"txtRwy(32)"_s}) {
            QWidget* control = TestProgram::control(window, name);
            control->setFocus(Qt::TabFocusReason);
            QVERIFY2(surrounds(control), qPrintable(name));
        }
        QWidget* last = QApplication::focusWidget();
        last->parentWidget()->hide();
        QVERIFY(!last->hasFocus() && surrounds(QApplication::focusWidget()));
    }

    void flagsAndSupportAddressAreCommandsForTheKeyboardToo() {
        TestProgram test;
        test.start();
        QTest::keyClick(test.control(u"ImgLingua(0)"_s), Qt::Key_Space);
        QCOMPARE(test.program().state().MLSCurrentLanguage, u"English"_s);
        QTest::keyClick(test.control(u"ImgLingua(1)"_s), Qt::Key_Return);
        QCOMPARE(test.program().state().MLSCurrentLanguage, u"Italiano"_s);
        QTest::keyClick(test.control(u"Label15"_s), Qt::Key_Return);
        QCOMPARE(test.urls.opened.size(), 1);
        auto* flag = QAccessible::queryAccessibleInterface(test.control(u"ImgLingua(0)"_s));
        QCOMPARE(flag->role(), QAccessible::Button);
        flag->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(test.program().state().MLSCurrentLanguage, u"English"_s);
    }

    void assistiveToolsMeetNothingNameless() {
        TestProgram test;
        test.addAirport(u"LIRF"_s);
        test.start();
        test.type(u"L"_s); // the results are on show, and the ring around the name box
        std::vector<QAccessibleInterface*> met = {QAccessible::queryAccessibleInterface(test.mainWindow())};
        for (std::size_t i = 0; i < met.size(); ++i) {
            QVERIFY2(!met[i]->text(QAccessible::Name).isEmpty() && met[i]->role() != QAccessible::Client,
                     qPrintable(met[i]->object()->objectName()));
            for (int child = 0; child < met[i]->childCount(); ++child)
                if (QAccessibleInterface* next = met[i]->child(child);
                    next->isValid() && next->object() && !next->state().invisible)
                    met.push_back(next);
        }
        QVERIFY(met.size() > 10);
    }

    void theInformationIsWalkedThroughAndLeavesTheFocusWhereItCameFrom() {
        TestProgram test;
        test.startWith(u"LIRF"_s);
        test.click(u"cmdInfo"_s);
        test.control(u"cmdEsci"_s)->setFocus();
        for (const QString& next : {u"Label15"_s, u"cmdEsciMail"_s}) {
            QTest::keyClick(test.mainWindow(), Qt::Key_Tab);
            QVERIFY2(test.control(next)->hasFocus(), qPrintable(next));
        }
        QTest::keyClick(test.control(u"cmdEsciMail"_s), Qt::Key_Escape); // as the button does
        QVERIFY(test.control(u"cmdInfo"_s)->hasFocus() && !test.control(u"fraMail"_s)->isVisible());
    }

    void chartsCommandPlaysUnloadsAndShowsTheViewer() {
        TestProgram test;
        test.addAirport(u"LIRF"_s);
        test.start();
        test.openViewer(u"LIRF"_s);
        QCOMPARE(test.sounds.played, QStringList(test.path(u"dallas9.wav"_s)));
        QCOMPARE(test.mainWindow(), nullptr);
        // The way back: loaded afresh, in its search state, with the airport still known.
        test.click(u"Option1(0)"_s);
        test.click(u"Command3"_s);
        QCOMPARE(test.viewWindow(), nullptr);
        QVERIFY(!test.control(u"Frame4"_s)->isVisible());
        QCOMPARE(test.program().state().CurrentAirport, u"LIRF"_s);
    }

    void resetReturnsToTheSearchState() {
        TestProgram test;
        test.startWith(u"LIRF"_s);
        test.click(u"cmdAzzera"_s);
        QVERIFY(test.control(u"txtNomeAeroporto"_s)->hasFocus());
        QVERIFY(!test.control(u"Frame4"_s)->isVisible());
        QCOMPARE(test.control<QLineEdit>(u"txtRwy(38)"_s)->text(), QString());
    }
};

QTEST_MAIN(MainWindowTest)
#include "tst_main_window.moc"
