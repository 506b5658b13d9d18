#include "archive/paths.h"
#include "faults/odd_things.h"
#include "files/lookup.h"
#include "pictures/gif_maker.h"
#include "pictures/picture.h"
#include "prompts/own_messages.h"
#include "support/failing_calls.h"
#include "support/ordinary_user.h"
#include "support/test_program.h"

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTimer>
#include <memory>
#include <sys/resource.h>
#include <sys/wait.h>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool memoryCanBeLimited = false;
#elif defined(__has_feature)
constexpr bool memoryCanBeLimited = !__has_feature(address_sanitizer);
#else
constexpr bool memoryCanBeLimited = true;
#endif

/// Runs a test in a child process that may take so many bytes more than it has.
bool holdsWithLittleMemory(rlim_t bytes, const std::function<bool()>& test) {
    const pid_t child = ::fork();
    if (child == 0) {
        QFile statm(u"/proc/self/statm"_s);
        if (!statm.open(QIODevice::ReadOnly)) ::_exit(2);
        const rlim_t taken = statm.readAll().split(' ').first().toULong() * 4096;
        const rlimit limit{taken + bytes, taken + bytes};
        ::setrlimit(RLIMIT_AS, &limit);
        ::_exit(test() ? 0 : 1);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

std::unique_ptr<TestProgram> started() {
    auto test = std::make_unique<TestProgram>();
    test->addAirport(u"LIRF"_s);
    test->addChart(u"aeroporti/LIRF/Sid/KENN.gif"_s, {30, 40});
    test->start();
    return test;
}

QString lastTold(const TestProgram& test) {
    return test.boxes.shown.isEmpty() ? QString() : test.boxes.shown.last().text;
}

/// A name comes into the name box, by whatever way, and the list follows.
void enter(const TestProgram& test, const QString& name) {
    auto* box = TestProgram::control<QLineEdit>(test.mainWindow(), u"txtNomeAeroporto"_s);
    box->setText(name);
    QTest::keyClick(box, Qt::Key_End);
}

bool says(QWidget* window, const QString& control, const QString& words) {
    for (const QLabel* label : TestProgram::control(window, control)->findChildren<QLabel*>())
        if (label->isVisible() && label->text().remove(QChar(0x200B)).contains(words)) return true;
    return false;
}

} // namespace

/// Folders that are not there or may not be read, records that are none, names that lead elsewhere.
class FaultsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aFolderThatCannotBeReadIsTold() {
        const auto test = started();
        QWidget* window = test->mainWindow();
        const auto closed = [&](const QString& folder, const std::function<void()>& use, mode_t mode = 0311) {
            const QByteArray path = QFile::encodeName(test->path(folder));
            ::chmod(path.constData(), mode); // mostly it may be entered, but not listed
            {
                const OrdinaryUser user;
                use();
            }
            ::chmod(path.constData(), 0755);
        };
        closed(u"aeroporti"_s, [&] {
            test->type(u"LI"_s);
            QVERIFY(says(window, u"lstWords"_s, test->path(u"aeroporti"_s)));
        });
        for (const auto& folder : {u"aeroporti/LIRF"_s, u"aeroporti/LIRF/Aeroporto"_s}) {
            enter(*test, u"LIRF"_s);
            closed(
                folder, [&] { TestProgram::click(window, u"cmdElabora"_s); }, 0);
            QVERIFY(lastTold(*test).contains(builtInText(u"0132"_s).section(u'\n', 0, 0)));
            QCOMPARE(test->program().state().CurrentAirport,
                     QString()); // neither shown nor offered as a new one
            test->boxes.shown.clear();
        }
        enter(*test, {});
        test->openViewer(u"LIRF"_s);
        closed(u"aeroporti/LIRF/Sid"_s, [&] { TestProgram::click(test->viewWindow(), u"Option1(0)"_s); });
        QVERIFY(lastTold(*test).contains(test->path(u"aeroporti/LIRF/Sid"_s)));
        QVERIFY(lastTold(*test).contains(builtInText(u"0132"_s).section(u'\n', 0, 0)));
        TestProgram::click(test->viewWindow(), u"Option1(0)"_s);
        QCOMPARE(TestProgram::rows(test->viewWindow(), u"List1"_s), QStringList(u"KENN"_s));
    }

    void aFolderThatCannotBeReadForAMomentIsToldAndNotTakenForEmpty() {
        const auto test = started();
        test->write(u"aeroporti/LIRF/Sid/ROTTA_KENN.txt"_s, "\"VIA\"\r\n");
        const auto failing = [](const std::function<void()>& use, int call = 1) {
            failing_calls::Plan plan{call, EIO};
            plan.only = "opendir";
            QVERIFY(failing_calls::run(plan, use));
        };
        const auto toldOf = [&](const QString& task) {
            return lastTold(*test).contains(builtInText(task)) &&
                   lastTold(*test).contains(builtInText(u"0170"_s).section(u'\n', 0, 0));
        };
        bool told = false;
        for (int folder = 1; !told && folder < 9;
             ++folder) { // one of them is the program's, with the languages
            failing([&] { test->start(); }, folder);
            told = toldOf(u"0123"_s);
        }
        QVERIFY(told);
        test->start();
        failing([&] { test->type(u"L"_s); });
        QVERIFY(says(test->mainWindow(), u"lstWords"_s, test->path(u"aeroporti"_s)));
        enter(*test, u"LIRF"_s);
        failing([&] { TestProgram::click(test->mainWindow(), u"cmdElabora"_s); });
        QVERIFY(toldOf(u"0111"_s) && test->program().state().CurrentAirport.isEmpty());
        enter(*test, {});
        test->openViewer(u"LIRF"_s);
        failing([&] { TestProgram::click(test->viewWindow(), u"Option1(0)"_s); });
        QVERIFY(toldOf(u"0114"_s));
        TestProgram::click(test->viewWindow(), u"Option1(0)"_s);
        failing([&] { TestProgram::clickRow(test->viewWindow(), u"List1"_s, 0); });
        QVERIFY(toldOf(u"0117"_s));
        QCOMPARE(test->program().viewWindow().ChartName, QString());
    }

    void whatWasSavedInPartIsToldWithThePlaceOfTheOldFiles() {
        const auto test = started();
        const QString folder = test->path(u"aeroporti/LIRF/Sid/"_s);
        const QString route = folder + u"ROTTA_KENN.txt"_s;
        put(route, "\"OLD\"\r\n");
        put(folder + u"ALTITUDINE_KENN.txt"_s, "\"OLD\"\r\n");
        test->openViewer(u"LIRF"_s);
        TestProgram::click(test->viewWindow(), u"Option1(0)"_s);
        TestProgram::clickRow(test->viewWindow(), u"List1"_s, 0);
        failing_calls::Plan secondOn{2, EIO, failing_calls::How::AllOfItsKindFromThenOn};
        secondOn.only = "rename";
        failing_calls::run(secondOn, [&] { TestProgram::click(test->viewWindow(), u"cmdSave"_s); });
        const QStringList kept = QDir(folder).entryList({u".quarvel-new-*"_s}, QDir::Dirs | QDir::Hidden);
        QCOMPARE(kept.size(), 1); // where nothing can be moved into sight
        const QString old = folder + kept.first() + u"/.old"_s;
        QCOMPARE(lastTold(*test),
                 builtInText(u"0174"_s) + u"\n\n"_s + builtInText(u"0172"_s).arg(route, old));
        QCOMPARE(bytesOf(old + u"/ROTTA_KENN.txt"_s), "\"OLD\"\r\n");
    }

    void anotherNameOfASavedFileIsTold() {
        const auto test = started();
        const QString note = test->path(u"aeroporti/LIRF/Sid/ROTTA_KENN.txt"_s);
        put(note, "\"OLD\"\r\n");
        QCOMPARE(::link(QFile::encodeName(note).constData(), QFile::encodeName(note + u".bak"_s).constData()),
                 0);
        test->openViewer(u"LIRF"_s);
        TestProgram::click(test->viewWindow(), u"Option1(0)"_s);
        TestProgram::clickRow(test->viewWindow(), u"List1"_s, 0);
        for (int save = 0; save < 2; ++save) TestProgram::click(test->viewWindow(), u"cmdSave"_s);
        QCOMPARE(test->boxes.shown.size(), 3); // two questions, and once what there was to tell
        QCOMPARE(test->boxes.shown[1].text, builtInText(u"0175"_s).arg(note));
        QCOMPARE(bytesOf(note + u".bak"_s), "\"OLD\"\r\n");
    }

    void whatCannotBeWrittenIsToldAndNothingTypedIsLost_data() {
        QTest::addColumn<bool>("full");
        QTest::newRow("a disk that is full") << true;
        QTest::newRow("folders that belong to somebody else") << false;
    }
    void whatCannotBeWrittenIsToldAndNothingTypedIsLost() {
        QFETCH(bool, full);
        const auto test = started();
        const QString reason = builtInText(full ? u"0134"_s : u"0133"_s).section(u'\n', 0, 0);
        test->openViewer(u"LIRF"_s);
        TestProgram::click(test->viewWindow(), u"Option1(0)"_s);
        TestProgram::clickRow(test->viewWindow(), u"List1"_s, 0);
        auto* route = TestProgram::control<QPlainTextEdit>(test->viewWindow(), u"Text2"_s);
        QTest::keyClicks(route, u"via"_s);
        const auto before =
            QDir(test->path(u"aeroporti/LIRF/Sid"_s)).entryList(QDir::AllEntries | QDir::Hidden);
        {
            const auto limit = full ? std::make_unique<FileSizeLimit>(0) : nullptr;
            const auto user = full ? nullptr : std::make_unique<OrdinaryUser>();
            TestProgram::click(test->viewWindow(), u"cmdSave"_s);
            QVERIFY(lastTold(*test).contains(builtInText(u"0118"_s)) && lastTold(*test).contains(reason));
            QCOMPARE(route->toPlainText(), u"VIA"_s);
            TestProgram::click(test->viewWindow(), u"Command3"_s);
            QTRY_VERIFY(test->mainWindow() != nullptr);
            test->boxes.shown.clear();
            for (const int language : {0, 1, 0}) // chosen all the same, though not remembered; told once
                test->program().mainWindow().SelectLanguage(language);
            QCOMPARE(test->boxes.shown.size(), 1);
            QVERIFY(lastTold(*test).contains(u"cannot be remembered"_s) &&
                    lastTold(*test).contains(u".ini"_s));
            QCOMPARE(test->read(u"LangSetting.ini"_s).contains("Italiano"), true);
        }
        QCOMPARE(QDir(test->path(u"aeroporti/LIRF/Sid"_s)).entryList(QDir::AllEntries | QDir::Hidden),
                 before);
    }

    void anAirportThatIsDeletedWhileItIsShown() {
        const auto test = started();
        test->type(u"LIRF"_s);
        QVERIFY(QDir().rename(test->path(u"aeroporti/LIRF"_s), test->path(u"away"_s)));
        test->boxes.answers = {Answer::Cancel};
        TestProgram::clickRow(test->mainWindow(), u"lstWords"_s, 0); // listed, but gone: offered as a new one
        QCOMPARE(test->boxes.shown.size(), 1);
        QVERIFY(!QFile::exists(test->path(u"aeroporti/LIRF"_s)));
        QVERIFY(QDir().rename(test->path(u"away"_s), test->path(u"aeroporti/LIRF"_s)));

        test->openViewer(u"LIRF"_s);
        TestProgram::click(test->viewWindow(), u"Option1(0)"_s);
        TestProgram::clickRow(test->viewWindow(), u"List1"_s, 0);
        QVERIFY(QDir(test->path(u"aeroporti/LIRF"_s)).removeRecursively());
        test->boxes.shown.clear();
        for (const auto& command :
             {u"Option1(1)"_s, u"Option1(2)"_s, u"Command1"_s, u"Command2"_s, u"cmdStampa"_s, u"cmdSave"_s})
            TestProgram::click(test->viewWindow(), command);
        QCOMPARE(test->boxes.shown.size(), 4); // two lists, the question and the refusal of the save
        QVERIFY(lastTold(*test).contains(builtInText(u"0118"_s)));
        QCOMPARE(test->program().viewWindow().ChartName, u"KENN"_s);
        test->boxes.shown.clear();
        TestProgram::click(test->viewWindow(), u"Command4"_s);
        QTRY_VERIFY(lastTold(*test).contains(builtInText(u"0115"_s)));
        TestProgram::chooseItem(test->companionWindow(), u"mnuAeroporto"_s);
        QTRY_VERIFY(lastTold(*test).contains(builtInText(u"0113"_s)));
        QVERIFY(!QFile::exists(test->path(u"aeroporti/LIRF"_s))); // nobody brought it back
    }

    void aRecordThatIsNoneIsTold_data() {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason"); // empty when there are 39 values all the same
        QByteArray all;
        for (int value = 0; value < 256; ++value) all.append(static_cast<char>(value));
        QTest::newRow("38 values") << QByteArray("\"a\"\r\n").repeated(38) << u"0136"_s;
        QTest::newRow("one open quote") << QByteArray("\"a\",b") << u"0136"_s;
        QTest::newRow("10 MB") << QByteArray("\"a\"\r\n").repeated(2 << 20) << u"0135"_s;
        QTest::newRow("every byte there is") << all << u"0136"_s;
        QTest::newRow("every byte, often") << all.repeated(40) << QString();
        QTest::newRow("NUL bytes") << QByteArray("\"a\0b\"\r\n", 7).repeated(38) + "\"LIRF\"\r\n"
                                   << QString();
    }
    void aRecordThatIsNoneIsTold() {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        const auto test = started();
        test->write(u"aeroporti/LIRF/Aeroporto/LIRF.txt"_s, bytes);
        test->openAirport(u"LIRF"_s);
        const bool told = lastTold(*test).contains(builtInText(u"0111"_s)) &&
                          lastTold(*test).contains(builtInText(reason).section(u'\n', 0, 0));
        QCOMPARE(told, !reason.isEmpty());
        QCOMPARE(test->read(u"aeroporti/LIRF/Aeroporto/LIRF.txt"_s), bytes);
    }

    void aNameThatLeadsElsewhereIsRefused_data() {
        QTest::addColumn<QString>("name");
        for (const auto& name : {u".."_s, u"."_s, u"../LIRF"_s, u"LIRF/../LIRF"_s, u"..\\LIRF"_s, u"/etc"_s,
                                 u"C:LIRF"_s, u"LI*"_s})
            QTest::newRow(qPrintable(name)) << name;
    }
    void aNameThatLeadsElsewhereIsRefused() {
        QFETCH(QString, name);
        const auto test = started();
        const auto before = QDir(test->path({})).entryList(QDir::AllEntries | QDir::Hidden);
        enter(*test, name);
        TestProgram::click(test->mainWindow(), u"cmdElabora"_s);
        QVERIFY(lastTold(*test).contains(builtInText(u"0110"_s)));
        QCOMPARE(QDir(test->path({})).entryList(QDir::AllEntries | QDir::Hidden), before);
    }

    void aNameThatCannotBeAFolderIsRefusedWhenItIsMade_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("a dot at its beginning") << u".LIRX"_s;
        QTest::newRow("a dot at its end") << u"LIRX."_s;
        QTest::newRow("a blank at its end") << u"LIRX "_s;
        QTest::newRow("256 letters") << QString(256, u'X');
        QTest::newRow("252 bytes") << QString(126, u'È');
    }
    void aNameThatCannotBeAFolderIsRefusedWhenItIsMade() {
        QFETCH(QString, name);
        const auto test = started();
        enter(*test, name);
        TestProgram::click(test->mainWindow(), u"cmdElabora"_s); // the question is answered by OK
        QVERIFY(lastTold(*test).contains(builtInText(u"0110"_s)));
        QCOMPARE(QDir(test->path(u"aeroporti"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
                 QStringList(u"LIRF"_s));
    }

    void accentsAreTheSameHoweverTheyAreStored() {
        // The last is no UTF-8, but what an archive of an older system left.
        for (const auto& [stored, typed] : {std::pair(QByteArray("FORLI\xCC\x80"), u"forl\u00EC"_s),
                                            {QByteArray("FORL\xC3\x8C"), u"FORLI\u0300"_s},
                                            {QByteArray("FORL\xCC"), u"forl\u00EC"_s}}) {
            const auto test = started();
            test->addAirport(u"LIPK"_s);
            const QByteArray archive = test->path(u"aeroporti/"_s).toUtf8();
            const QByteArray folder = archive + stored;
            QCOMPARE(::rename((archive + "LIPK").constData(), folder.constData()), 0);
            QCOMPARE(::rename((folder + "/Aeroporto/LIPK.txt").constData(),
                              (folder + "/Aeroporto/" + stored + ".txt").constData()),
                     0);
            enter(*test, typed);
            TestProgram::clickRow(test->mainWindow(), u"lstWords"_s, 0);
            QVERIFY(TestProgram::control(test->mainWindow(), u"Frame4"_s)->isVisible());
            QVERIFY(test->boxes.shown.isEmpty());
            ::rename((folder + "/Aeroporto/" + stored + ".txt").constData(),
                     (archive + "LIPK.txt").constData());
            ::rename(folder.constData(), (archive + "LIPK").constData()); // what the toolkit could remove
        }
    }

    void noRecordSettingOrNameLeavesTheFolder() {
        const auto test = started();
        test->addChart(u"aeroporti/LIRF/OUT.gif"_s, {10, 10}); // outside of where it would be asked for
        test->write(u"aeroporti/OUT_Agent.txt"_s, "secret");
        const QByteArray record = QByteArray("\"a\"\r\n").repeated(38) + "\"../OUT\"\r\n";
        test->write(u"aeroporti/LIRF/Aeroporto/LIRF.txt"_s, record);
        test->openAirport(u"LIRF"_s);
        QVERIFY(test->end.ended && test->presenter.loaded.isEmpty()); // no picture, no text
        const ArchivePaths paths(test->path({}));
        QVERIFY(!paths.picture(u"LIRF"_s, u"../OUT"_s));
        QVERIFY(!paths.presenterText(u"LIRF"_s, u"../../OUT"_s));
        QVERIFY(!paths.dataFile(u"../OUT"_s));
        QVERIFY(!paths.familyFolder(u".."_s, u"Sid"_s));
        QVERIFY(!resolvePath({}, u"etc/passwd"_s));
        test->write(u"out.lng"_s, "[frmMain]\r\ncmdElabora.Caption=\"OUT\"\r\n");
        test->write(u"LangSetting.ini"_s, "[Language]\r\nCurrentLanguage=aeroporti/../out\r\n");
        test->start();
        QVERIFY(TestProgram::control<QAbstractButton>(test->mainWindow(), u"cmdElabora"_s)->text() !=
                u"OUT"_s);
    }

    void whatCannotBeRememberedIsTold() {
        const auto test = started();
        test->write(u"Stato/drafts"_s, "damaged");
        QVERIFY(test->program().store().read({u"drafts"_s}).isEmpty());
        QTRY_VERIFY(lastTold(*test).contains(u"Stato/drafts"_s)); // once the reader has done its own work
        QVERIFY(QDir(test->path(u"Stato"_s)).removeRecursively());
        test->write(u"Stato"_s, "no folder");
        test->program().store().write({u"drafts"_s}, "typed");
        QTRY_VERIFY(lastTold(*test).startsWith(builtInText(u"0181"_s)));
    }

    void whatASaveReplacesIsKept() {
        const auto test = started();
        const auto keptOf = [&test](const QString& file) {
            const QDir folder(test->path(u"Stato/versioni/testi/"_s + file));
            const QStringList names = folder.entryList(QDir::Files);
            return names.isEmpty() ? QByteArray() : bytesOf(folder.filePath(names.last()));
        };
        test->write(u"aeroporti/LIRF/Sid/ROTTA_KENN.txt"_s, "BY HAND\r\nTWO LINES\r\n");
        const QByteArray setting = test->read(u"LangSetting.ini"_s);
        test->click(u"ImgLingua(0)"_s);
        QCOMPARE(keptOf(u"LangSetting.ini"_s), setting);
        test->openViewer(u"LIRF"_s);
        test->click(u"Option1(0)"_s);
        test->clickRow(u"List1"_s, 0);
        test->click(u"cmdSave"_s);
        QCOMPARE(keptOf(u"aeroporti/LIRF/Sid/ROTTA_KENN.txt"_s), "BY HAND\r\nTWO LINES\r\n");

        QVERIFY(QDir(test->path(u"Stato"_s)).removeRecursively());
        test->write(u"Stato"_s, "no folder");
        test->write(u"aeroporti/LIRF/Sid/ROTTA_KENN.txt"_s, "AGAIN");
        test->click(u"cmdSave"_s);
        QCOMPARE(test->read(u"aeroporti/LIRF/Sid/ROTTA_KENN.txt"_s), "\"BY HAND\"\r\n"); // saved all the same
        QTRY_VERIFY(lastTold(*test).startsWith(u"The earlier version"_s));
    }

    void aWindowThatGoesTakesItsMessageAlong() {
        auto* window = new QWidget;
        QTimer::singleShot(0, window, [window] { delete window; });
        const MessageBox question{u"?"_s, {}, Buttons::YesNo, BoxIcon::None};
        QVERIFY(QtMessageBoxes().show(window, question, {}) != Answer::Yes);
    }

    void aPictureThatIsCutOffIsShownAndToldInEveryWindow() {
        const auto test = started();
        for (const auto& picture : {u"aeroporti/LIRF/Sid/KENN.gif"_s, u"aeroporti/LIRF/Aeroporto/LIRF.gif"_s})
            test->write(picture, test->read(picture).chopped(20));
        test->openViewer(u"LIRF"_s);
        test->openCompanion();
        QCOMPARE(TestProgram::control(test->companionWindow(), u"Image1"_s)->size(), QSize(30, 40));
        TestProgram::chooseItem(test->companionWindow(), u"mnuAeroporto"_s);
        const QStringList tasks = {u"0241"_s, u"0240"_s, u"0240"_s, u"0241"_s};
        QTRY_COMPARE(test->boxes.shown.size(), tasks.size());
        for (qsizetype i = 0; i < tasks.size(); ++i)
            QVERIFY(test->boxes.shown[i].text.startsWith(builtInText(tasks[i]) +
                                                         u"\n\nManca la parte in basso ("_s));
    }

    void whatMemoryDoesNotHoldIsToldAsTooLarge() {
        if (!memoryCanBeLimited) QSKIP("the sanitizer reserves more than any limit");
        const QTemporaryDir folder;
        const QString chart = folder.path() + u"/chart.gif"_s;
        GifRecipe recipe{
            .screen = {6000, 6000}, .place = {0, 0, 6000, 6000}, .pixels = {}, .colours = {0, 1}};
        recipe.pixels.assign(36'000'000, 0);
        put(chart, makeGif(recipe));
        QVERIFY(Picture::read(chart));
        putSparse(folder.path() + u"/large"_s, 100 << 20);
        QVERIFY(holdsWithLittleMemory(20 << 20, [&] {
            const auto picture = Picture::read(chart);
            const auto file = readWholeFile(folder.path() + u"/large"_s, qint64{1} << 30);
            return !picture && picture.failure().fault == Fault::TooLarge && !file &&
                   file.failure().fault == Fault::TooLarge;
        }));
    }
};

QTEST_MAIN(FaultsTest)
#include "tst_faults.moc"
