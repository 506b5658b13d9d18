#include "support/test_program.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>

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
        QVERIFY(test.control<QLineEdit>(u"txtRwy(3)"_s)->isReadOnly());
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

    void confirmingMakesTheFoldersAndTheNewAirportState() {
        TestProgram test;
        test.start();
        test.type(u"Nuovo"_s);
        test.click(u"cmdElabora"_s);
        QVERIFY(QDir(test.path(u"aeroporti/NUOVO/Star"_s)).exists());
        for (const auto& name : {u"Frame3"_s, u"Frame4"_s, u"imgAeroporto"_s, u"Label5"_s, u"txtRwy(2)"_s})
            QVERIFY2(visible(test, name), qPrintable(name));
        const auto* code = test.control<QLineEdit>(u"txtRwy(38)"_s);
        QVERIFY(code->hasFocus() && !code->isReadOnly());
        QCOMPARE(test.program().state().CurrentAirport, u"NUOVO"_s);
    }
};

QTEST_MAIN(OpeningTest)
#include "tst_opening.moc"
