#include "support/test_program.h"

#include <QDir>
#include <QFile>
#include <QLineEdit>

using namespace quarvel;
using namespace Qt::StringLiterals;

/// From a typed name to an airport on show, or to a new one.
class OpeningTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void releasedKeysFillTheList_data();
    void releasedKeysFillTheList();
    void anAirportFromTheListIsShown();
    void anAirportByCommandKeepsTheListOnShow();
    void longerStoredValuesAreShownWhole();
    void exactChecks_data();
    void exactChecks();
    void missingPictureEndsTheProgram();
    void pictureInLowerCaseIsAccepted();
    void presenterSpeaksItalianOnly_data();
    void presenterSpeaksItalianOnly();
    void decliningEndsInTheSearchState();
    void confirmingMakesTheFoldersAndTheNewAirportState();
    void refusedNamesTouchNothing_data();
    void refusedNamesTouchNothing();
    void failuresLeaveTheWindowAsItWas_data();
    void failuresLeaveTheWindowAsItWas();

private:
    static QString text(QWidget* window, const QString& name) {
        return TestProgram::control<QLineEdit>(window, name)->text();
    }
    static bool visible(QWidget* window, const QString& name) {
        return TestProgram::control(window, name)->isVisible();
    }
};

void OpeningTest::releasedKeysFillTheList_data() {
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QStringList>("listed");
    QTest::newRow("beginning, case ignored")
        << u"li"_s << QStringList{u"[limc]"_s, u"[LIRF]"_s, u"listino.txt"_s};
    QTest::newRow("no match: an empty list") << u"ZZ"_s << QStringList{};
    QTest::newRow("wildcards") << u"?i*F"_s << QStringList{u"[LIRF]"_s};
}

void OpeningTest::releasedKeysFillTheList() {
    QFETCH(QString, typed);
    QFETCH(QStringList, listed);
    TestProgram test;
    for (const auto& name : {u"LIRF"_s, u"limc"_s, u"EGLL"_s})
        QDir().mkdir(test.path(u"aeroporti/"_s + name));
    test.write(u"aeroporti/listino.txt"_s, "x");
    test.start();
    test.type(typed);
    QCOMPARE(text(test.mainWindow(), u"txtNomeAeroporto"_s), typed.toUpper());
    QCOMPARE(TestProgram::rows(test.mainWindow(), u"lstWords"_s), listed);
    QVERIFY(visible(test.mainWindow(), u"fraRicerca"_s) && !visible(test.mainWindow(), u"Image1(1)"_s));
    QVERIFY(TestProgram::control(test.mainWindow(), u"cmdElabora"_s)->isEnabled());

    // A key that changes nothing reads the archive again; an empty box lists all of it.
    QDir().mkdir(test.path(u"aeroporti/ZZTOP"_s));
    QWidget* box = TestProgram::control(test.mainWindow(), u"txtNomeAeroporto"_s);
    QTest::keyClick(box, Qt::Key_Left);
    QCOMPARE(TestProgram::rows(test.mainWindow(), u"lstWords"_s).size(),
             listed.size() + (typed == u"ZZ"_s ? 1 : 0));
    QTest::keyClick(box, Qt::Key_End);
    for (qsizetype i = 0; i < typed.size(); ++i) QTest::keyClick(box, Qt::Key_Backspace);
    QCOMPARE(TestProgram::rows(test.mainWindow(), u"lstWords"_s).size(), 5);
}

void OpeningTest::anAirportFromTheListIsShown() {
    TestProgram test;
    test.addAirport(u"LIRF"_s);
    test.start();
    test.type(u"li"_s);
    TestProgram::clickRow(test.mainWindow(), u"lstWords"_s, 0);
    QWidget* window = test.mainWindow();
    QCOMPARE(text(window, u"txtNomeAeroporto"_s), u"LIRF"_s);
    QCOMPARE(text(window, u"txtRwy(0)"_s), u"V0"_s);
    QCOMPARE(text(window, u"txtRwy(37)"_s), u"V37"_s);
    QCOMPARE(text(window, u"txtRwy(38)"_s), u"LIRF"_s);
    QVERIFY(TestProgram::control<QLineEdit>(window, u"txtRwy(3)"_s)->isReadOnly());
    for (const auto& name : {u"Frame4"_s, u"Frame5"_s, u"imgAeroporto"_s, u"Label2"_s, u"txtRwy(37)"_s})
        QVERIFY2(visible(window, name), qPrintable(name));
    for (const auto& name : {u"Frame3"_s, u"fraRicerca"_s, u"Frame2"_s, u"Image1(0)"_s, u"Image1(1)"_s})
        QVERIFY2(!visible(window, name), qPrintable(name));
    QVERIFY(!TestProgram::control(window, u"txtNomeAeroporto"_s)->isEnabled());
    QVERIFY(!TestProgram::control(window, u"cmdElabora"_s)->isEnabled());
    QCOMPARE(test.program().state().CurrentAirport, u"LIRF"_s);
    QCOMPARE(test.program().state().CurrentIcao, u"LIRF"_s);
    QCOMPARE(test.presenter.loaded, QStringList(test.path(u"aeroporti/LIRF/LIRF_Agent.txt"_s)));
    QVERIFY(test.boxes.shown.isEmpty());
}

void OpeningTest::anAirportByCommandKeepsTheListOnShow() {
    TestProgram test;
    test.addAirport(u"LIMC"_s);
    test.addAirport(u"LIRF"_s);
    test.start();
    test.type(u"LI"_s);
    test.type(u"RF"_s);
    QTest::keyClick(TestProgram::control(test.mainWindow(), u"txtNomeAeroporto"_s), Qt::Key_Shift);
    TestProgram::click(test.mainWindow(), u"cmdElabora"_s);
    QVERIFY(visible(test.mainWindow(), u"fraRicerca"_s));
    // Its entries still open an airport.
    TestProgram::clickRow(test.mainWindow(), u"lstWords"_s, 0);
    QVERIFY(!visible(test.mainWindow(), u"fraRicerca"_s));
    QCOMPARE(text(test.mainWindow(), u"txtRwy(38)"_s), u"LIRF"_s);
}

void OpeningTest::longerStoredValuesAreShownWhole() {
    TestProgram test;
    AirportRecord record;
    record.values[IcaoCode] = u"LIRF"_s;
    record.values[FirstRunwayRow] = u"09 LEFT"_s; // three characters can be typed
    test.addAirport(u"LIRF"_s, record);
    test.start();
    test.type(u"LIRF"_s);
    TestProgram::clickRow(test.mainWindow(), u"lstWords"_s, 0);
    QCOMPARE(text(test.mainWindow(), u"txtRwy(3)"_s), u"09 LEFT"_s);
    QCOMPARE(text(test.mainWindow(), u"txtRwy(4)"_s), u"---"_s);
}

void OpeningTest::exactChecks_data() {
    QTest::addColumn<QString>("dataFile");
    QTest::addColumn<bool>("found");
    QTest::newRow("exact name") << u"LIRF.txt"_s << true;
    QTest::newRow("another letter case counts as missing") << u"lirf.txt"_s << false;
}

void OpeningTest::exactChecks() {
    QFETCH(QString, dataFile);
    QFETCH(bool, found);
    TestProgram test;
    test.addAirport(u"LIRF"_s);
    QFile::rename(test.path(u"aeroporti/LIRF/Aeroporto/LIRF.txt"_s),
                  test.path(u"aeroporti/LIRF/Aeroporto/"_s + dataFile));
    QDir(test.path(u"aeroporti/LIRF"_s)).rmdir(u"Star"_s);
    test.start();
    test.type(u"LIRF"_s);
    TestProgram::clickRow(test.mainWindow(), u"lstWords"_s, 0);
    QCOMPARE(test.boxes.shown.isEmpty(), found);
    QCOMPARE(visible(test.mainWindow(), u"Frame3"_s), !found);
    QVERIFY(!QDir(test.path(u"aeroporti/LIRF/Star"_s)).exists()); // an existing folder gets nothing added
}

void OpeningTest::missingPictureEndsTheProgram() {
    TestProgram test;
    test.addAirport(u"LIRF"_s);
    QFile::rename(test.path(u"aeroporti/LIRF/Aeroporto/LIRF.gif"_s),
                  test.path(u"aeroporti/LIRF/Aeroporto/Lirf.gif"_s));
    test.start();
    test.type(u"LIRF"_s);
    TestProgram::clickRow(test.mainWindow(), u"lstWords"_s, 0);
    QCOMPARE(test.boxes.shown.size(), 1);
    QCOMPARE(test.boxes.shown.first().icon, BoxIcon::Information);
    QVERIFY(test.end.ended);
}

void OpeningTest::pictureInLowerCaseIsAccepted() {
    TestProgram test;
    test.addAirport(u"LIRF"_s);
    QFile::rename(test.path(u"aeroporti/LIRF/Aeroporto/LIRF.gif"_s),
                  test.path(u"aeroporti/LIRF/Aeroporto/lirf.gif"_s));
    test.start();
    test.type(u"LIRF"_s);
    TestProgram::clickRow(test.mainWindow(), u"lstWords"_s, 0);
    QVERIFY(visible(test.mainWindow(), u"imgAeroporto"_s));
    QVERIFY(test.boxes.shown.isEmpty() && !test.end.ended);
}

void OpeningTest::presenterSpeaksItalianOnly_data() {
    QTest::addColumn<QByteArray>("language");
    QTest::addColumn<int>("presentations");
    QTest::newRow("Italiano") << QByteArray("Italiano") << 1;
    QTest::newRow("lower-case initial") << QByteArray("italiano") << 0;
    QTest::newRow("English") << QByteArray("English") << 0;
}

void OpeningTest::presenterSpeaksItalianOnly() {
    QFETCH(QByteArray, language);
    TestProgram test;
    test.write(u"LangSetting.ini"_s, "[Language]\r\nCurrentLanguage=" + language + "\r\n");
    test.addAirport(u"LIRF"_s);
    test.start();
    test.type(u"LIRF"_s);
    TestProgram::clickRow(test.mainWindow(), u"lstWords"_s, 0);
    QTEST(test.presenter.presentations, "presentations");
}

void OpeningTest::decliningEndsInTheSearchState() {
    TestProgram test;
    test.addAirport(u"LIRF"_s);
    test.start();
    test.type(u"LI"_s);
    TestProgram::click(test.mainWindow(), u"cmdElabora"_s); // LI is unknown: OK makes it a new airport
    test.boxes.answers = {Answer::Cancel};
    auto* box = TestProgram::control<QLineEdit>(test.mainWindow(), u"txtNomeAeroporto"_s);
    box->selectAll();
    test.type(u"ALTRO"_s);
    TestProgram::click(test.mainWindow(), u"cmdElabora"_s);
    QWidget* window = test.mainWindow();
    QCOMPARE(test.boxes.shown.last().icon, BoxIcon::Critical);
    for (const auto& name :
         {u"Frame3"_s, u"Frame4"_s, u"Frame5"_s, u"imgAeroporto"_s, u"txtRwy(0)"_s, u"txtRwy(38)"_s})
        QVERIFY2(!visible(window, name), qPrintable(name));
    QVERIFY(box->text().isEmpty() && box->hasFocus() && box->isEnabled());
    QVERIFY(!TestProgram::control(window, u"cmdElabora"_s)->isEnabled());
    QVERIFY(!TestProgram::control<QLineEdit>(window, u"txtRwy(1)"_s)->isReadOnly()); // left unlocked
    QVERIFY(!QDir(test.path(u"aeroporti/ALTRO"_s)).exists());
}

void OpeningTest::confirmingMakesTheFoldersAndTheNewAirportState() {
    TestProgram test;
    test.start();
    test.type(u"Nuovo"_s);
    TestProgram::click(test.mainWindow(), u"cmdElabora"_s);
    QWidget* window = test.mainWindow();
    QCOMPARE(QDir(test.path(u"aeroporti/NUOVO"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name),
             QStringList({u"Aeroporto"_s, u"Approach"_s, u"Sid"_s, u"Star"_s}));
    for (const auto& name :
         {u"Frame3"_s, u"Frame4"_s, u"imgAeroporto"_s, u"Label5"_s, u"txtRwy(2)"_s, u"Image1(0)"_s})
        QVERIFY2(visible(window, name), qPrintable(name));
    QVERIFY(!visible(window, u"Frame5"_s));
    QVERIFY(TestProgram::control(window, u"txtRwy(38)"_s)->hasFocus());
    QVERIFY(!TestProgram::control<QLineEdit>(window, u"txtRwy(38)"_s)->isReadOnly());
    QVERIFY(TestProgram::control(window, u"txtNomeAeroporto"_s)->isEnabled());
    QVERIFY(!TestProgram::control(window, u"cmdElabora"_s)->isEnabled());
    QCOMPARE(test.program().state().CurrentAirport, u"NUOVO"_s);
}

void OpeningTest::refusedNamesTouchNothing_data() {
    QTest::addColumn<QString>("name");
    QTest::newRow("empty") << QString();
    QTest::newRow("up") << u".."_s;
    QTest::newRow("separator") << u"../FUORI"_s;
    QTest::newRow("wildcard") << u"LI*"_s;
    QTest::newRow("a blank at the end of a new name") << u"ROMA "_s;
}

void OpeningTest::refusedNamesTouchNothing() {
    QFETCH(QString, name);
    TestProgram test;
    test.start();
    test.program().state().CurrentAirport = u"PRIMA"_s;
    test.type(u"X"_s);
    QTest::keyClick(TestProgram::control(test.mainWindow(), u"txtNomeAeroporto"_s), Qt::Key_Backspace);
    test.type(name);
    TestProgram::click(test.mainWindow(), u"cmdElabora"_s);
    QVERIFY(test.boxes.shown.last().text.contains(u"Il nome scelto non può"_s));
    QCOMPARE(test.program().state().CurrentAirport, u"PRIMA"_s);
    QCOMPARE(text(test.mainWindow(), u"txtNomeAeroporto"_s), name);
    QVERIFY(TestProgram::control<QLineEdit>(test.mainWindow(), u"txtRwy(0)"_s)->isReadOnly());
    QVERIFY(QDir(test.path(u"aeroporti"_s)).isEmpty());
}

void OpeningTest::failuresLeaveTheWindowAsItWas_data() {
    QTest::addColumn<QString>("file");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("told");
    QTest::newRow("short record") << u"LIRF.txt"_s << QByteArray("\"a\"\r\n\"b\"\r\n") << u"incompleto"_s;
    QTest::newRow("damaged picture") << u"LIRF.gif"_s << QByteArray("not a GIF at all") << u"danneggiato"_s;
}

void OpeningTest::failuresLeaveTheWindowAsItWas() {
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QFETCH(QString, told);
    TestProgram test;
    test.addAirport(u"LIRF"_s);
    test.write(u"aeroporti/LIRF/Aeroporto/"_s + file, content);
    test.start();
    test.type(u"L"_s);
    TestProgram::clickRow(test.mainWindow(), u"lstWords"_s, 0);
    QWidget* window = test.mainWindow();
    QCOMPARE(test.boxes.shown.size(), 1);
    QVERIFY2(test.boxes.shown.first().text.contains(told), qPrintable(test.boxes.shown.first().text));
    QVERIFY(test.boxes.shown.first().text.contains(file));
    QCOMPARE(text(window, u"txtNomeAeroporto"_s), u"L"_s);
    QVERIFY(visible(window, u"fraRicerca"_s) && !visible(window, u"Image1(1)"_s) &&
            !visible(window, u"Frame4"_s));
    QCOMPARE(test.program().state().CurrentAirport, QString());
    QCOMPARE(test.presenter.presentations, 0);
    QCOMPARE(test.read(u"aeroporti/LIRF/Aeroporto/"_s + file), content);
}

QTEST_MAIN(OpeningTest)
#include "tst_opening.moc"
