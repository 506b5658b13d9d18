#include "archive/entry_rules.h"
#include "files/folder_locks.h"
#include "saving/savings.h"
#include "support/disk.h"
#include "support/test_program.h"

#include <QElapsedTimer>
#include <QHash>
#include <QPlainTextEdit>
#include <QProcess>
#include <QRandomGenerator>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <utility>

using namespace quarvel;
using namespace Qt::StringLiterals;

/// What is derived while a record is typed, and what lies on the disk after it has been saved, or has not.
class SavingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void firstDesignatorsGiveTheSecond() {
        const QList<std::pair<QString, QString>> ends = {
            {u"09L"_s, u"27"_s},   {u" 1 8"_s, u"36"_s}, {u"---"_s, u"18"_s}, {u"1.5"_s, u"20"_s},
            {u"1.2.9"_s, u"19"_s}, {u"-20"_s, u"-2"_s},  {u"-18.2"_s, u"0"_s}};
        for (const auto& [typed, second] : ends) QCOMPARE(judgeDesignator(typed).reciprocal, second);
        QVERIFY(judgeDesignator(u"18.1"_s).kind == DesignatorKind::Refused);
        QVERIFY(judgeDesignator(QString()).kind == DesignatorKind::Empty);
    }

    void onlyTheCodeGivesPlaceholdersAndAnEmptyText() {
        const QTemporaryDir folder;
        QDir(folder.path()).mkdir(u"aeroporti"_s);
        AirportRecord record;
        record.values[IcaoCode] = u"LIRF"_s;
        QVERIFY(saveAirport(ArchivePaths(folder.path()), u"ROMA"_s, record));
        const QString airport = folder.path() + u"/aeroporti/ROMA/"_s;
        QCOMPARE(bytesOf(airport + u"Aeroporto/ROMA.txt"_s),
                 QByteArray("\"---\"\r\n").repeated(38) + "\"LIRF\"\r\n");
        QCOMPARE(bytesOf(airport + u"LIRF_Agent.txt"_s), QByteArray());
        QVERIFY(QDir(airport + u"Sid"_s).exists()); // made with the save, the name being new
    }

    void fiveHundredKillsLeaveWholeFilesAndAProgramThatStarts() {
        TestProgram test;
        const QString folder = test.path({});
        layOutForSaving(folder);
        test.addChart(u"aeroporti/KILL/Aeroporto/KILL.gif"_s, {20, 30});
        test.addChart(u"aeroporti/KILL/Sid/KENN.gif"_s, {20, 30});
        QHash<QString, QSet<QByteArray>> whole; // the old and the new self of every file
        QElapsedTimer saving;
        saving.start();
        for (int version = 1; version >= 0; --version) {
            for (const Saving what : allSavings) QVERIFY(save(what, folder, version));
            const auto files = filesBelow(folder);
            for (auto file = files.begin(); file != files.end(); ++file) whole[file.key()] += file.value();
        }
        // The kills fall into the first few saves, however slow the disk.
        const auto span = static_cast<int>(std::clamp<qint64>(saving.elapsed(), 8, 100));
        QRandomGenerator random(1); // any seed will do; this one makes a failure come back
        QHash<QString, QSet<QByteArray>> left;
        for (int kill = 0; kill < 500; ++kill) {
            killWhileSaving(allSavings.at(kill % 3), folder, static_cast<int>(random.bounded(span)));
            const auto files = filesBelow(folder);
            QCOMPARE(files.size(), whole.size());
            for (auto file = files.begin(); file != files.end(); ++file) {
                QVERIFY2(whole[file.key()].contains(file.value()), qPrintable(file.key()));
                left[file.key()] += file.value();
            }
            if (kill % 50 == 49) startsAndShows(test);
        }
        QVERIFY2(left == whole, "the kills came too early to say anything");
        for (const Saving what : allSavings) QVERIFY(save(what, folder, 0));
        QCOMPARE(filesBelow(folder, QDir::Hidden),
                 filesBelow(folder)); // nothing is left of all the killed saves
    }

    void ofTwoCopiesAtOnceTheLastSaveWinsWhole() {
        const QTemporaryDir folder;
        layOutForSaving(folder.path());
        const QString notes = folder.path() + u"/aeroporti/KILL/Sid"_s;
        QVERIFY(save(Saving::Notes, folder.path(), 0));
        QProcess copies[2];
        for (int copy = 0; copy < 2; ++copy)
            startSaving(copies[copy], Saving::Notes, folder.path(), {copy, copy + 2, copy + 4});
        QSet<QByteArray> seen;
        for (int look = 0; look < 300; ++look) {
            QTest::qWait(1);
            const FolderLocks nobodySaves({notes});
            QVERIFY(nobodySaves.held());
            const auto files = filesBelow(notes);
            QCOMPARE(files.size(), 3);
            for (const QByteArray& note : files) QCOMPARE(note, files.first());
            seen += files.first();
        }
        for (QProcess& copy : copies) QCOMPARE(copy.state(), QProcess::Running);
        for (QProcess& copy : copies) end(copy);
        QVERIFY(seen.size() > 2);
    }

private:
    static void startSaving(QProcess& process, Saving what, const QString& folder,
                            const QList<int>& versions) {
        QStringList arguments = {folder, QString::number(static_cast<int>(what))};
        for (const int version : versions) arguments.append(QString::number(version));
        process.start(QStringLiteral(SAVING_PROGRAM), arguments);
        QVERIFY(process.waitForReadyRead());
    }

    static void end(QProcess& process) {
        process.kill();
        QVERIFY(process.waitForFinished());
    }

    static void killWhileSaving(Saving what, const QString& folder, int afterMilliseconds) {
        QProcess process;
        startSaving(process, what, folder, {0, 1});
        process.waitForFinished(afterMilliseconds);
        end(process);
    }

    static void startsAndShows(TestProgram& test) {
        test.start();
        test.openViewer(u"KILL"_s);
        TestProgram::click(test.viewWindow(), u"Option1(0)"_s);
        QCOMPARE(TestProgram::rows(test.viewWindow(), u"List1"_s), QStringList(u"KENN"_s));
        TestProgram::clickRow(test.viewWindow(), u"List1"_s, 0);
        const auto* note = TestProgram::control<QPlainTextEdit>(test.viewWindow(), u"Text1"_s);
        QVERIFY(!note->toPlainText().isEmpty());
        QVERIFY(test.boxes.shown.isEmpty());
    }
};

QTEST_MAIN(SavingTest)
#include "tst_saving.moc"
