#include "archive/entry_rules.h"
#include "files/folder_locks.h"
#include "saving/savings.h"
#include "support/disk.h"

#include <QProcess>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>
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
};

QTEST_GUILESS_MAIN(SavingTest)
#include "tst_saving.moc"
