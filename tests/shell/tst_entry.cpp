#include "support/test_program.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>

using namespace quarvel;
using namespace Qt::StringLiterals;

/// A new airport typed and saved through the real window, by keys.
class EntryTest : public QObject {
    Q_OBJECT

private:
    static QLineEdit* field(const TestProgram& test, int position) {
        return test.control<QLineEdit>(u"txtRwy(%1)"_s.arg(position));
    }
    /// A program with the new airport NEW in its window.
    static std::unique_ptr<TestProgram> newAirport() {
        auto test = std::make_unique<TestProgram>();
        test->start();
        test->type(u"new"_s);
        test->click(u"cmdElabora"_s);
        test->boxes.shown.clear();
        return test;
    }
    static void enter(const TestProgram& test, int position, const QString& text) {
        field(test, position)->setFocus();
        QTest::keyClicks(field(test, position), text);
        QTest::keyClick(field(test, position), Qt::Key_Tab);
    }

private Q_SLOTS:
    void leavingAFirstEndFillsTheSecond() {
        const auto test = newAirport();
        enter(*test, 3, u"09l"_s);
        QCOMPARE(field(*test, 8)->text(), u"27"_s);
        field(*test, 28)->setText(u"X"_s);
        enter(*test, 23, QString()); // an empty designator changes nothing
        QCOMPARE(field(*test, 28)->text(), u"X"_s);
        enter(*test, 4, u"03500"_s);
        QCOMPARE(field(*test, 9)->text(), u"03500"_s);
    }

    void aRefusedDesignatorIsNotSavedByAMnemonic() {
        const auto test = newAirport();
        enter(*test, IcaoCode, u"LIRF"_s);
        field(*test, 8)->setText(u"X"_s);
        field(*test, 3)->setFocus();
        QTest::keyClicks(field(*test, 3), u"27"_s);
        QTest::keyClick(test->mainWindow(), Qt::Key_S, Qt::AltModifier);
        QTRY_COMPARE(test->boxes.shown.size(), 1);
        QVERIFY(test->boxes.shown.first().text.contains(u"18"_s));
        QVERIFY(!test->end.ended);
        QTRY_VERIFY(field(*test, 3)->hasFocus());
        QCOMPARE(field(*test, 3)->text() + field(*test, 8)->text(), u"X"_s);
    }

    void savingWithoutCodeOrConsentWritesNothing() {
        const auto test = newAirport();
        enter(*test, 20, u"ILS"_s);
        test->click(u"cmdSave"_s);
        QCOMPARE(test->boxes.shown.size(), 1);
        QVERIFY(!field(*test, 20)->isReadOnly() && field(*test, IcaoCode)->hasFocus());
        enter(*test, IcaoCode, u"LIRF"_s);
        test->boxes.answers = {Answer::Cancel};
        test->boxes.meanwhile = [&] { QVERIFY(field(*test, 20)->isReadOnly()); };
        test->click(u"cmdSave"_s);
        QVERIFY(!field(*test, 20)->isReadOnly() && field(*test, IcaoCode)->hasFocus());
        QVERIFY(!test->end.ended && QDir(test->path(u"aeroporti/NEW/Aeroporto"_s)).isEmpty());
    }

    void aSavedAirportIsFoundAtTheNextStart() {
        const auto test = newAirport();
        enter(*test, IcaoCode, u"lirfx"_s); // four letters can be typed
        enter(*test, Latitude, u"n45,30"_s);
        test->click(u"cmdSave"_s);
        QCOMPARE(test->boxes.shown.size(), 2); // the question, and that it is done
        QVERIFY(test->end.ended);
        QCOMPARE(test->program().state().CurrentIcao, u"LIRF"_s);
        test->addChart(u"aeroporti/NEW/Aeroporto/LIRF.gif"_s, {10, 10});
        test->start();
        test->type(u"ne"_s);
        QCOMPARE(test->rows(u"lstWords"_s), QStringList(u"[NEW]"_s));
        test->clickRow(u"lstWords"_s, 0);
        QCOMPARE(field(*test, Latitude)->text(), u"N45,30"_s);
    }

    void aFailedSaveCanBeTriedAgain() {
        const auto test = newAirport();
        enter(*test, IcaoCode, u"LIRF"_s);
        QDir(test->path(u"aeroporti/NEW"_s)).rmdir(u"Aeroporto"_s);
        test->click(u"cmdSave"_s);
        QVERIFY(test->boxes.shown.last().text.contains(u"non è stato salvato"_s));
        QVERIFY(!test->end.ended && test->control(u"Frame3"_s)->isVisible());
        QVERIFY(!field(*test, 20)->isReadOnly());
        QDir(test->path(u"aeroporti/NEW"_s)).mkdir(u"Aeroporto"_s);
        test->click(u"cmdSave"_s);
        QVERIFY(test->end.ended && QFile::exists(test->path(u"aeroporti/NEW/Aeroporto/NEW.txt"_s)));
    }
};

QTEST_MAIN(EntryTest)
#include "tst_entry.moc"
