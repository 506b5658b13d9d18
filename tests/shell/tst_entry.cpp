#include "support/test_program.h"

#include <QDir>
#include <QLineEdit>

using namespace quarvel;
using namespace Qt::StringLiterals;

/// A new airport typed and saved through the real window, by keys.
class EntryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void typedLettersBecomeCapitalsUpToTheLength();
    void leavingAFirstEndFillsTheSecond_data();
    void leavingAFirstEndFillsTheSecond();
    void aDesignatorAbove18IsRefused();
    void aRefusedDesignatorIsNotSavedByAMnemonic();
    void lockedFieldsFollowTheRulesOnScreen();
    void clearingKeepsNameStateAndFolders();
    void savingWithoutACodeWritesNothing();
    void decliningTheSaveLeavesTheFieldsEditable();
    void aSavedAirportIsFoundAtTheNextStart();
    void aFailedSaveCanBeTriedAgain();
    void openingAnotherAirportMeanwhileSavesOverIt();

private:
    static QLineEdit* field(const TestProgram& test, int position) {
        return TestProgram::control<QLineEdit>(test.mainWindow(), u"txtRwy(%1)"_s.arg(position));
    }
    /// A program with the new airport NEW in its window.
    static std::unique_ptr<TestProgram> newAirport() {
        auto test = std::make_unique<TestProgram>();
        test->start();
        test->type(u"new"_s);
        TestProgram::click(test->mainWindow(), u"cmdElabora"_s);
        test->boxes.shown.clear();
        return test;
    }
    static void enter(const TestProgram& test, int position, const QString& text) {
        field(test, position)->setFocus();
        QTest::keyClicks(field(test, position), text);
        QTest::keyClick(field(test, position), Qt::Key_Tab);
    }
};

void EntryTest::typedLettersBecomeCapitalsUpToTheLength() {
    const auto test = newAirport();
    enter(*test, IcaoCode, u"lirfx"_s);
    QCOMPARE(field(*test, IcaoCode)->text(), u"LIRF"_s);
    enter(*test, Longitude, u"e012 14.3, a long text without limit"_s);
    QCOMPARE(field(*test, Longitude)->text(), u"E012 14.3, A LONG TEXT WITHOUT LIMIT"_s);
}

void EntryTest::leavingAFirstEndFillsTheSecond_data() {
    QTest::addColumn<int>("source");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after"); // in the second end
    QTest::newRow("designator") << 3 << u"09l"_s << u"X"_s << u"27"_s;
    QTest::newRow("empty designator changes nothing") << 23 << QString() << u"X"_s << u"X"_s;
    QTest::newRow("length is copied") << 4 << u"03500"_s << u"1"_s << u"03500"_s;
    QTest::newRow("empty length is copied too") << 14 << QString() << u"1"_s << QString();
    QTest::newRow("a second end fills nothing") << 8 << u"27"_s << u"X"_s << u"X"_s;
}

void EntryTest::leavingAFirstEndFillsTheSecond() {
    QFETCH(int, source);
    QFETCH(QString, typed);
    QFETCH(QString, before);
    const auto test = newAirport();
    QLineEdit* second = field(*test, source + 5);
    second->setText(before);
    enter(*test, source, typed);
    QTEST(second->text(), "after");
}

void EntryTest::aDesignatorAbove18IsRefused() {
    const auto test = newAirport();
    field(*test, 18)->setText(u"X"_s);
    enter(*test, 13, u"27"_s);
    QTRY_COMPARE(test->boxes.shown.size(), 1);
    QCOMPARE(test->boxes.shown.first().icon, BoxIcon::Information);
    QVERIFY(test->boxes.shown.first().text.contains(u"18"_s));
    QTRY_VERIFY(field(*test, 13)->hasFocus());
    QCOMPARE(field(*test, 13)->text(), QString());
    QCOMPARE(field(*test, 18)->text(), u"X"_s);
}

void EntryTest::aRefusedDesignatorIsNotSavedByAMnemonic() {
    const auto test = newAirport();
    enter(*test, IcaoCode, u"LIRF"_s);
    field(*test, 3)->setFocus();
    QTest::keyClicks(field(*test, 3), u"27"_s);
    QTest::keyClick(test->mainWindow(), Qt::Key_S, Qt::AltModifier);
    QTRY_COMPARE(test->boxes.shown.size(), 1);
    QVERIFY(test->boxes.shown.first().text.contains(u"18"_s));
    QVERIFY(!test->end.ended);
    QTRY_VERIFY(field(*test, 3)->hasFocus());
}

void EntryTest::lockedFieldsFollowTheRulesOnScreen() {
    TestProgram test;
    AirportRecord record;
    record.values[IcaoCode] = u"LIRF"_s;
    test.addAirport(u"LIRF"_s, record);
    const QByteArray onDisk = test.read(u"aeroporti/LIRF/Aeroporto/LIRF.txt"_s);
    test.start();
    test.type(u"LIRF"_s);
    TestProgram::clickRow(test.mainWindow(), u"lstWords"_s, 0);
    field(test, 3)->setFocus();
    QTest::keyClick(field(test, 3), Qt::Key_Tab);
    QCOMPARE(field(test, 8)->text(), u"18"_s); // from the placeholder
    QCOMPARE(test.read(u"aeroporti/LIRF/Aeroporto/LIRF.txt"_s), onDisk);
}

void EntryTest::clearingKeepsNameStateAndFolders() {
    const auto test = newAirport();
    enter(*test, IcaoCode, u"LIRF"_s);
    enter(*test, 20, u"ILS"_s);
    TestProgram::click(test->mainWindow(), u"cmdReset"_s);
    QCOMPARE(field(*test, IcaoCode)->text() + field(*test, 20)->text(), QString());
    QVERIFY(field(*test, IcaoCode)->hasFocus() && !field(*test, 20)->isReadOnly());
    QCOMPARE(TestProgram::control<QLineEdit>(test->mainWindow(), u"txtNomeAeroporto"_s)->text(), u"NEW"_s);
    QVERIFY(QDir(test->path(u"aeroporti/NEW/Star"_s)).exists());
    QVERIFY(TestProgram::control(test->mainWindow(), u"Frame3"_s)->isVisible());
}

void EntryTest::savingWithoutACodeWritesNothing() {
    const auto test = newAirport();
    enter(*test, 20, u"ILS"_s);
    TestProgram::click(test->mainWindow(), u"cmdSave"_s);
    QCOMPARE(test->boxes.shown.size(), 1);
    QCOMPARE(test->boxes.shown.first().icon, BoxIcon::Exclamation);
    QVERIFY(!field(*test, 20)->isReadOnly() && field(*test, IcaoCode)->hasFocus());
    QVERIFY(QDir(test->path(u"aeroporti/NEW/Aeroporto"_s)).isEmpty());
}

void EntryTest::decliningTheSaveLeavesTheFieldsEditable() {
    const auto test = newAirport();
    enter(*test, IcaoCode, u"LIRF"_s);
    test->boxes.answers = {Answer::Cancel};
    test->boxes.meanwhile = [&] { QVERIFY(field(*test, 20)->isReadOnly()); };
    TestProgram::click(test->mainWindow(), u"cmdSave"_s);
    QVERIFY(!field(*test, 20)->isReadOnly() && field(*test, IcaoCode)->hasFocus());
    QVERIFY(!test->end.ended && QDir(test->path(u"aeroporti/NEW/Aeroporto"_s)).isEmpty());
}

void EntryTest::aSavedAirportIsFoundAtTheNextStart() {
    const auto test = newAirport();
    enter(*test, IcaoCode, u"lirf"_s);
    enter(*test, Latitude, u"n45,30"_s);
    TestProgram::click(test->mainWindow(), u"cmdSave"_s);
    QCOMPARE(test->boxes.shown.size(), 2); // the question, and that it is done
    QVERIFY(test->end.ended);
    QCOMPARE(test->program().state().CurrentIcao, u"LIRF"_s);
    QCOMPARE(test->read(u"aeroporti/NEW/LIRF_Agent.txt"_s), QByteArray());
    test->addChart(u"aeroporti/NEW/Aeroporto/LIRF.gif"_s, {10, 10});
    test->start();
    test->type(u"ne"_s);
    QCOMPARE(TestProgram::rows(test->mainWindow(), u"lstWords"_s), QStringList(u"[NEW]"_s));
    TestProgram::clickRow(test->mainWindow(), u"lstWords"_s, 0);
    QCOMPARE(field(*test, Latitude)->text(), u"N45,30"_s);
    QCOMPARE(field(*test, Longitude)->text(), u"---"_s);
}

void EntryTest::aFailedSaveCanBeTriedAgain() {
    const auto test = newAirport();
    enter(*test, IcaoCode, u"LIRF"_s);
    QDir(test->path(u"aeroporti/NEW"_s)).rmdir(u"Aeroporto"_s);
    TestProgram::click(test->mainWindow(), u"cmdSave"_s);
    QVERIFY(test->boxes.shown.last().text.contains(u"non è stato salvato"_s));
    QVERIFY(!test->end.ended && TestProgram::control(test->mainWindow(), u"Frame3"_s)->isVisible());
    QVERIFY(!field(*test, 20)->isReadOnly());
    QCOMPARE(field(*test, IcaoCode)->text(), u"LIRF"_s);
    QCOMPARE(test->program().state().CurrentIcao, QString());
    QDir(test->path(u"aeroporti/NEW"_s)).mkdir(u"Aeroporto"_s);
    TestProgram::click(test->mainWindow(), u"cmdSave"_s);
    QVERIFY(test->end.ended && QFile::exists(test->path(u"aeroporti/NEW/Aeroporto/NEW.txt"_s)));
}

void EntryTest::openingAnotherAirportMeanwhileSavesOverIt() {
    const auto test = newAirport();
    test->addAirport(u"LIRF"_s);
    test->write(u"aeroporti/LIRF/LIRF_Agent.txt"_s, "testo");
    auto* name = TestProgram::control<QLineEdit>(test->mainWindow(), u"txtNomeAeroporto"_s);
    name->selectAll();
    test->type(u"LI"_s);
    TestProgram::clickRow(test->mainWindow(), u"lstWords"_s, 0);
    QVERIFY(TestProgram::control(test->mainWindow(), u"Frame3"_s)->isVisible());
    field(*test, Longitude)->setText(u"E009"_s);
    TestProgram::click(test->mainWindow(), u"cmdSave"_s);
    QVERIFY(test->read(u"aeroporti/LIRF/Aeroporto/LIRF.txt"_s).startsWith("\"E009\"\r\n\"V1\"\r\n"));
    QCOMPARE(test->read(u"aeroporti/LIRF/LIRF_Agent.txt"_s), QByteArray());
}

QTEST_MAIN(EntryTest)
#include "tst_entry.moc"
