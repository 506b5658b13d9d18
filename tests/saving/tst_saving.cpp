#include "archive/entry_rules.h"
#include "archive/opening.h"
#include "archive/record_file.h"
#include "archive/saving.h"
#include "saving/two_records.h"
#include "support/disk.h"

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
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

    void aSaveThatFailsChangesNothing() {
        const QTemporaryDir folder;
        const QString archive = folder.path() + u"/aeroporti/"_s;
        QDir().mkpath(archive + u"ROMA/Aeroporto"_s);
        QDir().mkpath(archive + u"ROMA/DIR_Agent.txt"_s); // a folder in the presenter text's place
        QDir().mkpath(archive + u"VUOTO"_s);              // without its general-data folder
        put(archive + u"ROMA/Aeroporto/ROMA.txt"_s, "old");
        AirportRecord record;
        for (const auto& [name, code] : {std::pair(u"../ROMA"_s, u"LIRF"_s),
                                         {u"ROMA"_s, u"../X"_s},
                                         {u"VUOTO"_s, u"LIRF"_s},
                                         {u"ROMA"_s, u"DIR"_s}}) {
            record.values[IcaoCode] = code;
            QVERIFY2(!saveAirport(ArchivePaths(folder.path()), name, record), qPrintable(name + code));
        }
        QCOMPARE(bytesOf(archive + u"ROMA/Aeroporto/ROMA.txt"_s), QByteArray("old"));
        QCOMPARE(QDir(archive).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList({u"ROMA"_s, u"VUOTO"_s}));
        QCOMPARE(QDir(archive + u"ROMA/Aeroporto"_s).entryList(QDir::Files), QStringList(u"ROMA.txt"_s));
    }

    void aFullDiskChangesNeitherFile() {
        const QTemporaryDir folder;
        const QString airport = folder.path() + u"/aeroporti/KILL/"_s;
        QDir().mkpath(airport + u"Aeroporto"_s);
        put(airport + u"Aeroporto/KILL.txt"_s, "old");
        put(airport + u"KILL_Agent.txt"_s, "spoken");
        Result<void> saved;
        {
            const FileSizeLimit limit(1000);
            saved = saveAirport(ArchivePaths(folder.path()), u"KILL"_s, recordOf(1));
        }
        QVERIFY(!saved);
        QVERIFY(saved.failure().fault == Fault::DiskFull);
        QCOMPARE(bytesOf(airport + u"Aeroporto/KILL.txt"_s), QByteArray("old"));
        QCOMPARE(bytesOf(airport + u"KILL_Agent.txt"_s), QByteArray("spoken"));
        QCOMPARE(QDir(airport + u"Aeroporto"_s).entryList(QDir::Files).size(), 1);
    }

    void twoHundredKillsLeaveWholeRecords() {
        const QTemporaryDir folder;
        QDir(folder.path()).mkdir(u"aeroporti"_s);
        const ArchivePaths paths(folder.path());
        QElapsedTimer first;
        first.start();
        QVERIFY(saveAirport(paths, u"KILL"_s, recordOf(0)));
        // The kills fall into the first few saves, however slow the disk.
        const auto span = static_cast<int>(std::clamp<qint64>(4 * first.elapsed(), 8, 100));
        QRandomGenerator random(1); // any seed will do; this one makes a failure come back
        int found[2] = {0, 0};
        for (int kill = 0; kill < 200; ++kill) {
            QProcess saving;
            saving.start(QStringLiteral(SAVING_PROGRAM), {folder.path()});
            QVERIFY(saving.waitForReadyRead());
            // From here on it is somewhere in a save; where, is left to chance.
            saving.waitForFinished(static_cast<int>(random.bounded(span)));
            saving.kill();
            QVERIFY(saving.waitForFinished());
            QVERIFY(hasDataFile(paths, u"KILL"_s));
            const Result<AirportRecord> record = readRecord(paths.dataFile(u"KILL"_s));
            QVERIFY2(record, qPrintable(u"kill %1"_s.arg(kill)));
            const int which = record.value() == recordOf(0) ? 0 : 1;
            QVERIFY2(record.value() == recordOf(which), qPrintable(u"kill %1"_s.arg(kill)));
            ++found[which];
            QCOMPARE(bytesOf(paths.presenterText(u"KILL"_s, u"KILL"_s)), QByteArray());
        }
        QVERIFY2(found[0] > 0 && found[1] > 0, "the kills came too early to say anything");
    }
};

QTEST_GUILESS_MAIN(SavingTest)
#include "tst_saving.moc"
