#include "faults/odd_things.h"
#include "prompts/own_messages.h"
#include "support/test_program.h"

#include <QAbstractButton>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <memory>
#include <tuple>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

/// What can be seen of a thing without opening it.
struct Seen {
    mode_t mode = 0;
    ino_t number = 0;
    off_t size = 0;
    explicit Seen(const QString& path) {
        struct stat info {};
        if (::lstat(QFile::encodeName(path).constData(), &info) != 0) return;
        std::tie(mode, number, size) = std::tuple(info.st_mode, info.st_ino, info.st_size);
    }
    bool operator==(const Seen&) const = default;
};

/// Whether the boxes told exactly one thing, with this message's text and this file's name.
bool toldOnce(const TestProgram& test, const QString& message, const QString& file) {
    return test.boxes.shown.size() == 1 && test.boxes.shown.first().text.contains(builtInText(message)) &&
           test.boxes.shown.first().text.contains(file, Qt::CaseInsensitive);
}

} // namespace

/// Anything at all under the name of each file that the program reads: it is told or passed over, it stays as
/// it is, and the program goes on.
class OddFilesTest : public QObject {
    Q_OBJECT

    static constexpr auto airport = "aeroporti/LIRF/";

    static QString in(const QString& relative) { return QString::fromLatin1(airport) + relative; }

    /// A program with LIRF and its departures ALFA and KENN, not started.
    static std::unique_ptr<TestProgram> program() {
        auto test = std::make_unique<TestProgram>();
        test->addAirport(u"LIRF"_s);
        for (const auto& chart : {u"Sid/alfa.gif"_s, u"Sid/kenn.gif"_s}) test->addChart(in(chart), {30, 40});
        return test;
    }
    static std::unique_ptr<TestProgram> viewer() {
        auto test = program();
        test->start();
        test->openViewer(u"LIRF"_s);
        TestProgram::click(test->viewWindow(), u"Option1(0)"_s);
        return test;
    }
    static void chooseChart(const TestProgram& test, int row = 1) {
        TestProgram::clickRow(test.viewWindow(), u"List1"_s, row);
    }
    static bool shown(const TestProgram& test, const QString& control) {
        return TestProgram::control(test.mainWindow(), control)->isVisible();
    }

private Q_SLOTS:
    void initTestCase() {
        qputenv("PULSE_SERVER", "unix:/nonexistent"); // nobody is to start a sound server for this
        qputenv("CANBERRA_DRIVER", "null");
    }

    void asAChart_data() { addOddThings(); }
    void asAChart() {
        QFETCH(int, thing);
        const auto test = viewer();
        replaceBy(thing, test->path(in(u"Sid/kenn.gif"_s)));
        chooseChart(*test, 0);
        chooseChart(*test);
        QVERIFY(toldOnce(*test, u"0115"_s, u"kenn.gif"_s));
        QCOMPARE(test->program().viewWindow().ChartName, u"ALFA"_s);
        const auto* list = TestProgram::control<QListView>(test->viewWindow(), u"List1"_s);
        QCOMPARE(list->selectionModel()->selectedIndexes().first().row(), 0);
        // With a new choice of the family only what may be a chart is listed, and a good one is shown again.
        TestProgram::click(test->viewWindow(), u"Option1(2)"_s);
        TestProgram::click(test->viewWindow(), u"Option1(0)"_s);
        QCOMPARE(TestProgram::rows(test->viewWindow(), u"List1"_s).size(), isRegular(thing) ? 2 : 1);
        QDir(test->path(in(u"Sid"_s))).removeRecursively();
        test->addChart(in(u"Sid/kenn.gif"_s), {30, 40});
        TestProgram::click(test->viewWindow(), u"Option1(1)"_s);
        TestProgram::click(test->viewWindow(), u"Option1(0)"_s);
        chooseChart(*test, 0);
        QCOMPARE(test->program().viewWindow().ChartName, u"KENN"_s);
    }

    void asAnAirportsPicture_data() { addOddThings(); }
    void asAnAirportsPicture() {
        QFETCH(int, thing);
        const auto test = program();
        replaceBy(thing, test->path(in(u"Aeroporto/LIRF.gif"_s)));
        test->start();
        test->openAirport(u"LI"_s);
        QVERIFY(test->boxes.shown.size() == 1);
        QVERIFY(isRegular(thing) ? toldOnce(*test, u"0113"_s, u"LIRF.gif"_s) : test->end.ended);
        if (!isRegular(thing)) return;
        QVERIFY(shown(*test, u"fraRicerca"_s) && !shown(*test, u"Frame4"_s)); // as it was
        QCOMPARE(TestProgram::control<QLineEdit>(test->mainWindow(), u"txtNomeAeroporto"_s)->text(), u"LI"_s);
        QCOMPARE(test->program().state().CurrentAirport, QString());
    }

    void asTheCompanionsPicture_data() { addOddThings(); }
    void asTheCompanionsPicture() {
        QFETCH(int, thing);
        const auto test = viewer();
        test->openCompanion();
        replaceBy(thing, test->path(in(u"Aeroporto/LIRF.gif"_s)));
        TestProgram::chooseItem(test->companionWindow(), u"mnuAeroporto"_s);
        QTRY_COMPARE(test->boxes.shown.size(), 1);
        QVERIFY(toldOnce(*test, u"0113"_s, u"LIRF.gif"_s));
        QCOMPARE(TestProgram::control(test->companionWindow(), u"Image1"_s)->size(), QSize(30, 40));
    }

    void asARecord_data() { addOddThings(); }
    void asARecord() {
        QFETCH(int, thing);
        const auto test = program();
        const QString file = test->path(in(u"Aeroporto/LIRF.txt"_s));
        replaceBy(thing, file);
        const Seen before(file);
        test->start();
        test->openAirport(u"LIRF"_s); // what is no file is as if it were not there: OK makes the airport anew
        QCOMPARE(shown(*test, u"Frame3"_s), !isRegular(thing));
        if (isRegular(thing)) {
            QVERIFY(toldOnce(*test, u"0111"_s, u"LIRF.txt"_s));
        } else {
            TestProgram::control<QLineEdit>(test->mainWindow(), u"txtRwy(38)"_s)->setText(u"LIRF"_s);
            TestProgram::click(test->mainWindow(), u"cmdSave"_s);
            QCOMPARE(test->end.ended, before.mode == 0); // only where there was nothing
        }
        QVERIFY(before.mode == 0 || Seen(file) == before);
    }

    void asANote_data() { addOddThings(); }
    void asANote() {
        QFETCH(int, thing);
        const auto test = viewer();
        const QString file = test->path(in(u"Sid/ROTTA_KENN.txt"_s));
        replaceBy(thing, file);
        const Seen before(file);
        chooseChart(*test);
        const bool chosen = test->program().viewWindow().ChartName == u"KENN"_s;
        QVERIFY(chosen ? test->boxes.shown.isEmpty() : toldOnce(*test, u"0117"_s, u"ROTTA_KENN.txt"_s));
        if (isRegular(thing)) return;
        QVERIFY(chosen);
        QTest::keyClicks(TestProgram::control(test->viewWindow(), u"Text2"_s), u"via"_s);
        TestProgram::click(test->viewWindow(), u"cmdSave"_s);
        const bool refused = test->boxes.shown.last().text.contains(builtInText(u"0118"_s));
        QCOMPARE(refused, before.mode != 0);
        QVERIFY(!refused || Seen(file) == before);
        QCOMPARE(QFile::exists(test->path(in(u"Sid/ALTITUDINE_KENN.txt"_s))), !refused); // all or none
    }

    void asALanguageFile_data() { addOddThings(); }
    void asALanguageFile() {
        QFETCH(int, thing);
        const auto test = program();
        test->write(u"LangSetting.ini"_s, "[Language]\r\nCurrentLanguage=English\r\n");
        replaceBy(thing, test->path(u"English.lng"_s));
        const bool missing = !QFile::exists(test->path(u"English.lng"_s)) &&
                             QByteArray(QTest::currentDataTag()) != "a link to itself";
        const bool readable = isRegular(thing) && QFile(test->path(u"English.lng"_s)).size() < 2000;
        test->start();
        QCOMPARE(toldOnce(*test, u"0123"_s, u"English.lng"_s), !missing && !readable);
        const auto* create = TestProgram::control<QAbstractButton>(test->mainWindow(), u"cmdElabora"_s);
        QCOMPARE(create->text(), u"&CREA"_s); // as designed
        test->boxes.shown.clear();
        test->openAirport(u"LIRF"_s);
        QVERIFY(shown(*test, u"Frame4"_s) && test->boxes.shown.isEmpty());
    }

    void asTheSettingFile_data() { addOddThings(); }
    void asTheSettingFile() {
        QFETCH(int, thing);
        const auto test = program();
        const QString file = test->path(u"LangSetting.ini"_s);
        replaceBy(thing, file);
        const Seen before(file);
        test->start();
        QVERIFY(test->mainWindow()->isVisible() && test->boxes.shown.isEmpty());
        test->program().mainWindow().SelectLanguage(0);
        QVERIFY(test->mainWindow()->windowTitle().contains(u"CHARTS"_s));
        const bool kept = before.mode != 0 && (!isRegular(thing) || before.size > 2000);
        QVERIFY(kept ? Seen(file) == before : bytesOf(file).contains("CurrentLanguage=English"));
    }
};

QTEST_MAIN(OddFilesTest)
#include "tst_odd_files.moc"
