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
        QStringList shown;
        for (const QWidget* child : test.mainWindow()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
            if (child->isVisible() && !child->objectName().startsWith(u"Image1"_s))
                shown.append(child->objectName());
        shown.sort();
        QCOMPARE(shown, QStringList({u"Frame1"_s, u"Frame2"_s, u"focusRing"_s}));
        QVERIFY(!TestProgram::control(test.mainWindow(), u"cmdElabora"_s)->isEnabled());
        QVERIFY(TestProgram::control<QLineEdit>(test.mainWindow(), u"txtRwy(0)"_s)->isReadOnly());
        // Twips / 15, inside the container.
        const auto placeOf = [&test](const QString& name) {
            return TestProgram::control(test.mainWindow(), name)->geometry();
        };
        QCOMPARE(test.mainWindow()->size(), QSize(687, 595));
        QCOMPARE(placeOf(u"lstWords"_s), QRect(8, 32, 313, 148));
        QCOMPARE(placeOf(u"txtNomeAeroporto"_s), QRect(0, 48, 357, 30)); // between two pixels, rounded once
        QCOMPARE(placeOf(u"txtRwy(32)"_s), QRect(304, 328, 49, 27));
        // The window stands in the middle of the whole screen.
        QCOMPARE(test.mainWindow()->frameGeometry().center(), QRect(0, 0, 1280, 1024).center());
    }

    void activationFocusesTheNameBoxWhileItIsEnabled() {
        TestProgram test;
        test.addAirport(u"LIRF"_s);
        test.start();
        QWidget* box = TestProgram::control(test.mainWindow(), u"txtNomeAeroporto"_s);
        QVERIFY(box->hasFocus());
        TestProgram::control(test.mainWindow(), u"lstWords"_s)->setFocus();
        QEvent comeBack(QEvent::WindowActivate);
        QCoreApplication::sendEvent(test.mainWindow(), &comeBack);
        QVERIFY(box->hasFocus());

        test.openAirport(u"LIRF"_s);
        QWidget* quit = TestProgram::control(test.mainWindow(), u"cmdEsci"_s);
        quit->setFocus();
        QCoreApplication::sendEvent(test.mainWindow(), &comeBack);
        QVERIFY(quit->hasFocus());
    }

    void ownMessageBoxIsNoActivation() {
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

    void quitAsksAndOnlyYesEnds() {
        TestProgram test;
        test.startWith(u"LIRF"_s);
        test.boxes.answers = {Answer::No, Answer::Yes};
        TestProgram::click(test.mainWindow(), u"cmdEsci"_s);
        QVERIFY(!test.end.ended);
        TestProgram::click(test.mainWindow(), u"cmdEsci"_s);
        QVERIFY(test.end.ended);
        QCOMPARE(test.boxes.shown.first().buttons, Buttons::YesNo);
        QCOMPARE(test.boxes.captions.first().yes, u"&Sì"_s);
    }

    void printingAndMailReachTheSystem() {
        TestProgram test;
        test.startWith(u"LIRF"_s);
        TestProgram::click(test.mainWindow(), u"cmdStampa"_s);
        QCOMPARE(test.printer.pages, 1);
        QVERIFY(test.boxes.shown.isEmpty());
        test.printer.outcome = PrintOutcome::NoPrinter;
        TestProgram::click(test.mainWindow(), u"cmdStampa"_s);
        QVERIFY(test.boxes.shown.first().text.contains(u"stampante predefinita"_s));
        TestProgram::click(test.mainWindow(), u"cmdInfo"_s);
        auto* address = TestProgram::control<QLabel>(test.mainWindow(), u"Label15"_s);
        QTest::mouseMove(address, QPoint(5, 5));
        QTest::mouseMove(address, QPoint(9, 9));
        QTRY_COMPARE(address->palette().color(QPalette::WindowText), QColor(255, 0, 0));
        TestProgram::click(test.mainWindow(), u"Label15"_s);
        QCOMPARE(test.urls.opened, QStringList(u"mailto:"_s + address->text()));
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
        QWidget* window = test.mainWindow();
        const auto roleOf = [&](const QString& name) {
            return QAccessible::queryAccessibleInterface(TestProgram::control(window, name))->role();
        };
        QTest::keyClick(TestProgram::control(window, u"ImgLingua(0)"_s), Qt::Key_Space);
        QCOMPARE(test.program().state().MLSCurrentLanguage, u"English"_s);
        QTest::keyClick(TestProgram::control(window, u"ImgLingua(1)"_s), Qt::Key_Return);
        QCOMPARE(test.program().state().MLSCurrentLanguage, u"Italiano"_s);
        QTest::keyClick(TestProgram::control(window, u"Label15"_s), Qt::Key_Return);
        QCOMPARE(test.urls.opened.size(), 1);
        QCOMPARE(roleOf(u"ImgLingua(0)"_s), QAccessible::Button);
        QCOMPARE(roleOf(u"Image1(3)"_s), QAccessible::Graphic);
        QCOMPARE(roleOf(u"Label15"_s), QAccessible::Link);
        QCOMPARE(QAccessible::queryAccessibleInterface(window)->role(), QAccessible::Window);
        QAccessible::queryAccessibleInterface(TestProgram::control(window, u"ImgLingua(0)"_s))
            ->actionInterface()
            ->doAction(QAccessibleActionInterface::pressAction());
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
        TestProgram::click(test.mainWindow(), u"cmdInfo"_s);
        TestProgram::control(test.mainWindow(), u"cmdEsci"_s)->setFocus();
        for (const QString& next : {u"Label15"_s, u"cmdEsciMail"_s}) {
            QTest::keyClick(test.mainWindow(), Qt::Key_Tab);
            QVERIFY2(TestProgram::control(test.mainWindow(), next)->hasFocus(), qPrintable(next));
        }
        TestProgram::click(test.mainWindow(), u"cmdEsciMail"_s);
        QVERIFY(TestProgram::control(test.mainWindow(), u"cmdInfo"_s)->hasFocus());
    }

    void chartsCommandPlaysUnloadsAndShowsTheViewer() {
        TestProgram test;
        test.addAirport(u"LIRF"_s);
        test.start();
        test.openViewer(u"LIRF"_s);
        QCOMPARE(test.sounds.played, QStringList(test.path(u"dallas9.wav"_s)));
        QCOMPARE(test.mainWindow(), nullptr);
        // The way back: loaded afresh, in its search state, with the airport still known.
        TestProgram::click(test.viewWindow(), u"Option1(0)"_s);
        TestProgram::click(test.viewWindow(), u"Command3"_s);
        QCOMPARE(test.viewWindow(), nullptr);
        QVERIFY(!TestProgram::control(test.mainWindow(), u"Frame4"_s)->isVisible());
        QCOMPARE(test.program().state().CurrentAirport, u"LIRF"_s);
    }

    void resetReturnsToTheSearchState() {
        TestProgram test;
        test.addAirport(u"LIRF"_s);
        test.start();
        test.type(u"LIRF"_s);
        TestProgram::click(test.mainWindow(), u"cmdElabora"_s);
        TestProgram::click(test.mainWindow(), u"cmdAzzera"_s);
        QWidget* window = test.mainWindow();
        QVERIFY(TestProgram::control(window, u"txtNomeAeroporto"_s)->hasFocus());
        QVERIFY(TestProgram::control(window, u"fraRicerca"_s)->isVisible()); // keeps its visibility
        QCOMPARE(TestProgram::control<QLineEdit>(window, u"txtRwy(38)"_s)->text(), QString());
    }
};

QTEST_MAIN(MainWindowTest)
#include "tst_main_window.moc"
