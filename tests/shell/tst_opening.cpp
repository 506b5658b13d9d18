#include "support/test_program.h"

#include <QAccessible>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <functional>

using namespace quarvel;
using namespace Qt::StringLiterals;

/// From a typed name to an airport on show, or to a new one.
class OpeningTest : public QObject {
    Q_OBJECT

private:
    static QString text(const TestProgram& test, const QString& name) {
        return test.control<QLineEdit>(name)->text();
    }
    static bool visible(const TestProgram& test, const QString& name) {
        return test.control(name)->isVisible();
    }

    static QAccessible::State stateOf(QWidget* control) {
        return QAccessible::queryAccessibleInterface(control)->state();
    }

private Q_SLOTS:
    void releasedKeysFillTheList() {
        TestProgram test;
        for (const auto& name : {u"LIRF"_s, u"limc"_s, u"EGLL"_s})
            QDir().mkdir(test.path(u"aeroporti/"_s + name));
        test.start();
        test.type(u"li"_s);
        QCOMPARE(text(test, u"txtNomeAeroporto"_s), u"LI"_s);
        QCOMPARE(test.rows(u"lstWords"_s), QStringList({u"[limc]"_s, u"[LIRF]"_s}));
        QVERIFY(visible(test, u"fraRicerca"_s));
        // A key that changes nothing reads the archive again; an empty box lists all of it.
        QDir().mkdir(test.path(u"aeroporti/LIZZ"_s));
        QWidget* box = test.control(u"txtNomeAeroporto"_s);
        QTest::keyClick(box, Qt::Key_End);
        QCOMPARE(test.rows(u"lstWords"_s).size(), 3);
        for (int i = 0; i < 2; ++i) QTest::keyClick(box, Qt::Key_Backspace);
        QCOMPARE(test.rows(u"lstWords"_s).size(), 4);
    }

    void whereThereIsNothingTheWindowSaysWhatToDo() {
        TestProgram test;
        test.start();
        const auto says = [&](const QString& control, const QString& words) {
            for (const QLabel* label : test.control(control)->findChildren<QLabel*>())
                if (label->isVisible() && label->text().contains(words)) return true;
            return false;
        };
        QVERIFY(says(u"Frame1"_s, u"primo aeroporto"_s));
        test.type(u"LI"_s);
        QVERIFY(says(u"lstWords"_s, u"primo aeroporto"_s));
        QDir().mkdir(test.path(u"aeroporti/LIRF"_s));
        test.type(u"X"_s);
        QVERIFY(says(u"lstWords"_s, u"Nessun aeroporto comincia"_s));
        QTest::keyClick(test.control(u"txtNomeAeroporto"_s), Qt::Key_Backspace);
        QVERIFY(!says(u"lstWords"_s, QString()));
        test.program().mainWindow().SelectLanguage(0);
        QVERIFY(QDir().rename(test.path(u"aeroporti"_s), test.path(u"away"_s)));
        test.type(u"Y"_s);
        QVERIFY(says(u"lstWords"_s, u"cannot be read"_s));
    }

    void theKeyboardAloneOpensAnAirport() {
        TestProgram test;
        test.addAirport(u"LIMC"_s);
        test.addAirport(u"LIRF"_s);
        test.start();
        test.type(u"li"_s);
        QWidget* list = test.control(u"lstWords"_s);
        QTest::keyClick(test.mainWindow()->focusWidget(), Qt::Key_Down);
        QCOMPARE(test.mainWindow()->focusWidget(), list);
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
        QCOMPARE(text(test, u"txtNomeAeroporto"_s), u"LIRF"_s);
        QVERIFY(visible(test, u"Frame4"_s));
    }

    void anAirportFromTheListIsShown() {
        TestProgram test;
        test.addAirport(u"LIRF"_s);
        test.start();
        test.openAirport(u"li"_s);
        QCOMPARE(text(test, u"txtNomeAeroporto"_s), u"LIRF"_s);
        QCOMPARE(text(test, u"txtRwy(37)"_s), u"V37"_s);
        auto* designator = test.control<QLineEdit>(u"txtRwy(3)"_s);
        QVERIFY(designator->isReadOnly() && stateOf(designator).readOnly && !stateOf(designator).editable);
        for (const auto& name : {u"Frame4"_s, u"Frame5"_s, u"imgAeroporto"_s, u"Label2"_s, u"txtRwy(37)"_s})
            QVERIFY2(visible(test, name), qPrintable(name));
        for (const auto& name : {u"Frame3"_s, u"fraRicerca"_s, u"Frame2"_s})
            QVERIFY2(!visible(test, name), qPrintable(name));
        QVERIFY(!test.control(u"txtNomeAeroporto"_s)->isEnabled());
        QVERIFY(test.control(u"txtRwy(38)"_s)->hasFocus());
        QCOMPARE(test.program().state().CurrentAirport, u"LIRF"_s);
        QCOMPARE(test.program().state().CurrentIcao, u"LIRF"_s);
        QCOMPARE(test.presenter.loaded, QStringList(test.path(u"aeroporti/LIRF/LIRF_Agent.txt"_s)));
        QCOMPARE(test.presenter.presented.size(), 1);
    }

    void exactChecks() {
        for (const auto& [name, onDisk, outcome] :
             {std::tuple(u"LIRF.txt"_s, u"lirf.txt"_s, u"new airport"_s), // data in another letter case
              {u"LIRF.gif"_s, u"lirf.gif"_s, u"shown"_s},                 // picture in lower case
              {u"LIRF.gif"_s, u"Lirf.gif"_s, u"end"_s}}) {
            TestProgram test;
            test.addAirport(u"LIRF"_s);
            const QString folder = test.path(u"aeroporti/LIRF/Aeroporto/"_s);
            QFile::rename(folder + name, folder + onDisk);
            QDir(test.path(u"aeroporti/LIRF"_s)).rmdir(u"Star"_s);
            test.write(u"LangSetting.ini"_s, "[Language]\r\nCurrentLanguage=English\r\n");
            test.start();
            test.openAirport(u"LIRF"_s);
            const bool made = !test.end.ended && visible(test, u"Frame3"_s);
            QCOMPARE(test.end.ended && test.boxes.shown.last().detail.contains(u"LIRF.gif"_s),
                     outcome == u"end");
            QCOMPARE(test.end.ended ? u"end"_s : made ? u"new airport"_s : u"shown"_s, outcome);
            QVERIFY(test.presenter.presented.isEmpty());                  // it speaks Italian only
            QVERIFY(!QDir(test.path(u"aeroporti/LIRF/Star"_s)).exists()); // an existing folder stays as it is
        }
    }

    void decliningEndsInTheSearchState() {
        TestProgram test;
        test.start();
        test.type(u"LI"_s);
        test.click(u"cmdElabora"_s); // OK makes it a new airport
        test.boxes.answers = {Answer::Cancel};
        auto* box = test.control<QLineEdit>(u"txtNomeAeroporto"_s);
        box->selectAll();
        test.type(u"ALTRO"_s);
        test.click(u"cmdElabora"_s);
        QCOMPARE(test.boxes.shown.last().icon, BoxIcon::Critical);
        for (const auto& name : {u"Frame3"_s, u"Frame4"_s, u"imgAeroporto"_s, u"txtRwy(38)"_s})
            QVERIFY2(!visible(test, name), qPrintable(name));
        QVERIFY(box->text().isEmpty() && box->hasFocus() && box->isEnabled());
        QVERIFY(!QDir(test.path(u"aeroporti/ALTRO"_s)).exists());
    }

    void aKeyThatRanACommandIsNoKeyOfTheNameBox() {
        struct Way {
            const char* what;
            std::function<void(TestProgram&)> press;
            Qt::Key key;
            bool counts;
        };
        const auto down = [](const QString& control, Qt::Key key) {
            return [control, key](TestProgram& test) { QTest::keyPress(test.control(control), key); };
        };
        const auto answer = [](Qt::Key key) {
            return [key](TestProgram& test) {
                test.boxes.answers = {Answer::Cancel};
                test.boxes.meanwhile = [&, key] {
                    QDialog box(test.mainWindow());
                    QTest::keyPress(&box, key);
                };
                test.type(u"X"_s);
                test.click(u"cmdElabora"_s);
            };
        };
        const auto mnemonic = [](TestProgram& test) {
            test.openAirport(u"LIRF"_s);
            QTest::keyPress(test.mainWindow(), Qt::Key_A, Qt::AltModifier); // presses Alt, too
            QTest::keyRelease(test.mainWindow(), Qt::Key_A);
        };
        const auto leaving = [](TestProgram& test) {
            test.openViewer(u"LIRF"_s);
            test.click(u"Option1(0)"_s);
            QTest::keyPress(test.control(u"Command3"_s), Qt::Key_Return);
        };
        for (const Way& way :
             {Way{"Escape on a message", answer(Qt::Key_Escape), Qt::Key_Escape, false},
              {"Return on a button", down(u"cmdAzzera"_s, Qt::Key_Return), Qt::Key_Return, false},
              {"Alt of a mnemonic", mnemonic, Qt::Key_Alt, false},
              {"Return in another window", leaving, Qt::Key_Return, false},
              {"Tab into the box", down(u"ImgLingua(0)"_s, Qt::Key_Tab), Qt::Key_Tab, true},
              {"pressed in another program", [](TestProgram&) {}, Qt::Key_A, true}}) {
            TestProgram test;
            test.addAirport(u"LIRF"_s);
            test.start();
            way.press(test);
            QTest::keyRelease(test.control(u"txtNomeAeroporto"_s), way.key);
            QVERIFY2(test.control(u"cmdElabora"_s)->isEnabled() == way.counts, way.what);
        }
    }

    void aHeldKeyAnswersNoMessageThatItBroughtUp() {
        TestProgram test;
        test.start();
        QWidget* name = test.control(u"txtNomeAeroporto"_s);
        QTest::keyClick(name, Qt::Key_X);
        test.boxes.meanwhile = [] {
            QMessageBox box(QMessageBox::NoIcon, {}, {}, QMessageBox::Ok);
            box.show();
            QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, {}, {}, true);
            qApp->notify(&box, &repeat);
            for (const quint64 time : {5U, 6U}) // X11's repeats may come as releases and presses of one time
                for (const auto type : {QEvent::KeyRelease, QEvent::ShortcutOverride, QEvent::KeyPress}) {
                    QKeyEvent untold(type, Qt::Key_Return, {});
                    untold.setTimestamp(time);
                    qApp->notify(&box, &untold);
                }
            QVERIFY(box.isVisible());
            QTest::keyClick(&box, Qt::Key_Enter); // a new press does
            QVERIFY(!box.isVisible());
        };
        QTest::keyPress(name, Qt::Key_Return);
        QCOMPARE(test.boxes.shown.size(), 1);
    }

    void returnInTheNameBoxOpensWhenTheButtonWould() {
        TestProgram test;
        test.addAirport(u"LIRF"_s);
        test.start();
        QWidget* box = test.control(u"txtNomeAeroporto"_s);
        for (int time = 0; time < 2; ++time) QTest::keyClick(box, Qt::Key_Return); // nothing to open
        QVERIFY(test.boxes.shown.isEmpty() && visible(test, u"fraRicerca"_s));
        QTest::keyClick(box, Qt::Key_Q, Qt::AltModifier); // no letter of the name
        test.type(u"lirf"_s);
        QTest::keyClick(box, Qt::Key_Return);
        QVERIFY(visible(test, u"Frame5"_s) && visible(test, u"fraRicerca"_s) && !box->isEnabled());
    }

    void escapeTakesAwayWhatLiesOnTop() {
        TestProgram test;
        test.addAirport(u"LIRF"_s);
        test.start();
        test.type(u"lirf"_s);
        test.click(u"cmdElabora"_s);
        test.click(u"cmdInfo"_s);
        for (const auto& next : {u"fraMail"_s, u"fraRicerca"_s}) {
            QVERIFY2(visible(test, next), qPrintable(next));
            if (next == u"fraRicerca") test.control(u"lstWords"_s)->setFocus();
            QTest::keyClick(test.mainWindow()->focusWidget(), Qt::Key_Escape);
            QVERIFY2(!visible(test, next) && visible(test, u"Frame5"_s), qPrintable(next));
        }
        QVERIFY(test.control(u"txtRwy(38)"_s)->hasFocus());
    }

    void escapeLeavesANewAirportAfterAQuestion() {
        TestProgram test;
        test.start();
        for (const auto& kept : {QString(), u"aeroporti/NUOVO/Sid/A.gif"_s}) {
            test.type(u"nuovo"_s);
            test.click(u"cmdElabora"_s);
            test.program().mainWindow().SelectLanguage(1); // which brings back no hint in the list
            QVERIFY(!test.control(u"lstWords"_s)->findChild<QLabel*>()->isVisible());
            auto* designator = test.control<QLineEdit>(u"txtRwy(3)"_s);
            designator->setFocus();
            QTest::keyClicks(designator, u"27"_s);
            if (!kept.isEmpty()) test.addChart(kept, {3, 3});
            test.boxes.shown.clear();
            test.boxes.answers = {Answer::No, Answer::Yes};
            for (int time = 0; time < 3; ++time) { // the list; the question, and again
                QTest::keyClick(designator, Qt::Key_Escape);
                QVERIFY(visible(test, u"Frame3"_s) == (time < 2) &&
                        designator->text().isEmpty() == (time == 2));
            }
            QCOMPARE(test.boxes.shown.size(), 2);
            QVERIFY(test.control(u"txtNomeAeroporto"_s)->hasFocus() && designator->isReadOnly());
            QCOMPARE(QFile::exists(test.path(u"aeroporti/NUOVO/Star"_s)), !kept.isEmpty());
            QVERIFY(kept.isEmpty() || QFile::exists(test.path(kept)));
        }
    }

    void confirmingMakesTheFoldersAndTheNewAirportState() {
        TestProgram test;
        test.start();
        test.type(u"Nuovo"_s);
        test.click(u"cmdElabora"_s);
        QVERIFY(QDir(test.path(u"aeroporti/NUOVO/Star"_s)).exists());
        for (const auto& name : {u"Frame3"_s, u"Frame4"_s, u"imgAeroporto"_s, u"Label5"_s, u"txtRwy(2)"_s})
            QVERIFY2(visible(test, name), qPrintable(name));
        auto* code = test.control<QLineEdit>(u"txtRwy(38)"_s);
        const auto* box = test.control(u"txtNomeAeroporto"_s);
        QVERIFY(code->hasFocus() && !code->isReadOnly());
        QCOMPARE(code->cursor().pixmap().toImage(),
                 box->cursor().pixmap().toImage()); // a pointer of their own
        QVERIFY(stateOf(code).editable && !stateOf(code).readOnly);
        QCOMPARE(test.program().state().CurrentAirport, u"NUOVO"_s);
    }
};

QTEST_MAIN(OpeningTest)
#include "tst_opening.moc"
