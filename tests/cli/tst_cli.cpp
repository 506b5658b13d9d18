#include "support/disk.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

struct Outcome {
    int status;
    QString out, error;
};

} // namespace

/// The real program at a terminal, without a display.
class TestCommandLine : public QObject {
    Q_OBJECT

    QTemporaryDir temp_;
    const QString route_ = u"aeroporti/LIRF/Sid/ROTTA_K.txt"_s;

    [[nodiscard]] QString at(const QString& name) const { return temp_.path() + u'/' + name; }
    [[nodiscard]] Outcome run(const QStringList& words) const {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const auto& name : {u"DISPLAY"_s, u"WAYLAND_DISPLAY"_s, u"QT_QPA_PLATFORM"_s})
            environment.remove(name);
        process.setProcessEnvironment(environment);
        process.start(at(u"quarvel"_s), words);
        if (!process.waitForFinished()) return {-1, {}, process.errorString()};
        return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
                QString::fromUtf8(process.readAllStandardOutput()),
                QString::fromUtf8(process.readAllStandardError())};
    }

private Q_SLOTS:
    /// A portable program in English, with two versions of a note.
    void initTestCase() {
        QVERIFY(QFile::copy(QStringLiteral(QUARVEL_EXECUTABLE), at(u"quarvel"_s)));
        QVERIFY(QFile::copy(QStringLiteral(QUARVEL_DATA_FOLDER "/English.lng"), at(u"English.lng"_s)));
        put(at(u"LangSetting.ini"_s), "[Language]\r\nCurrentLanguage=English\r\n");
        const QString kept = at(u"Stato/versioni/testi/"_s + route_);
        QVERIFY(QDir().mkpath(at(u"aeroporti/LIRF/Sid"_s)) && QDir().mkpath(kept));
        put(at(route_), "\"now\"\r\n");
        put(kept + u"/2026-01-01 10.00.00.000Z.txt"_s, "\"citt\xE0 \x1B[31m\"\r\n");
        put(kept + u"/2026-02-01 10.00.00.000Z.txt"_s, "\"pi\xC3\xB9\"\r\n");
    }

    void theProgramTakesNoWordsButItsOwn() {
        for (const QStringList& words : {QStringList{u"-platform"_s, u"offscreen"_s},
                                         {u"-stylesheet"_s, u"x.qss"_s},
                                         {u"-style=fusion"_s},
                                         {u"--qwindowgeometry"_s, u"9x9"_s},
                                         {u"-session"_s, u"1_2"_s},
                                         {u"LIRF"_s},
                                         {u"--help"_s, u"-style"_s},
                                         {u"versions"_s, u"-style"_s},
                                         {u"versions"_s, u"LIRF"_s, u"LIML"_s},
                                         {u"bring-back"_s, route_},
                                         {u"bring-back"_s, route_, u"0"_s},
                                         {u"bring-back"_s, route_, u"1"_s, u"2"_s}}) {
            const Outcome refused = run(words);
            QCOMPARE(refused.status, 2);
            QVERIFY2(refused.out.isEmpty() && refused.error.contains(u"Unknown or incomplete"_s),
                     qPrintable(refused.error));
        }
        QVERIFY(run({u"--help"_s}).out.startsWith(u"Usage: quarvel"_s));
        QVERIFY(run({u"--version"_s}).out.startsWith(u"Quarvel 1"_s));
    }

    void versionsAreListedAndBroughtBack() {
        const Outcome list = run({u"versions"_s, u"lirf"_s});
        const QStringList lines = list.out.split(u'\n');
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines[0], route_);
        QVERIFY(lines[1].contains(u"1  2026-02-01"_s) && lines[1].endsWith(u"\"pi\u00F9\""_s));
        QVERIFY(lines[2].endsWith(u"\"citt\u00E0 .[31m\""_s)); // no control character reaches the terminal
        QCOMPARE(run({u"versions"_s}).out, list.out);
        QCOMPARE(run({u"versions"_s, u"LIML"_s}).status, 1);
        QCOMPARE(run({u"bring-back"_s, route_, u"3"_s}).status, 1);
        QCOMPARE(run({u"bring-back"_s, u"../x"_s, u"1"_s}).status, 1);

        QVERIFY(run({u"bring-back"_s, route_, u"1"_s}).out.contains(route_));
        QCOMPARE(bytesOf(at(route_)), "\"pi\xC3\xB9\"\r\n");
        QCOMPARE(run({u"bring-back"_s, route_, u"1"_s}).status, 0); // what was there before
        QCOMPARE(bytesOf(at(route_)), "\"now\"\r\n");
    }
};

QTEST_GUILESS_MAIN(TestCommandLine)

#include "tst_cli.moc"
