#include "archive/record_file.h"
#include "saving/savings.h"
#include "support/disk.h"
#include "support/own_mounts.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <functional>
#include <sys/stat.h>

using namespace quarvel;
using namespace Qt::StringLiterals;

/// Saves that fail: all files are their old selves, and nothing else is left behind.
class WriteFaultsTest : public QObject {
    Q_OBJECT

    /// Saves version 0, then version 1 under some fault. Returns what is wrong with the files, if anything.
    static QString saveUnder(Saving what, const QString& folder, const std::function<bool()>& trySaving) {
        const auto before = filesBelow(folder, QDir::Hidden);
        const bool saved = trySaving();
        auto after = filesBelow(folder, QDir::Hidden);
        if (!saved) return before == after ? QString() : u"a failed save left something"_s;
        if (!save(what, folder, 1)) return u"what was saved once cannot be saved again"_s;
        return filesBelow(folder, QDir::Hidden) == after ? QString() : u"saved, but not whole"_s;
    }

    static bool prepare(const QString& folder) {
        layOutForSaving(folder);
        bool saved = true;
        for (const Saving what : allSavings) saved = save(what, folder, 0).ok() && saved;
        return saved;
    }

    /// Runs a test with each kind of saving in a prepared file system in memory.
    static void
    inMemory(const std::function<QString(Saving, const QString& folder, const QString& disk)>& test) {
        const QTemporaryDir folder;
        const InOwnMounts result = inOwnMounts([&] {
            for (const Saving what : allSavings) {
                const QString program = folder.path() + u"/program"_s;
                if (!mountInMemory(folder.path(), 1 << 20) || !prepare(program))
                    return u"no file system to test with"_s;
                const QString wrong = test(what, program, folder.path());
                if (!wrong.isEmpty()) return u"saving %1: %2"_s.arg(static_cast<int>(what)).arg(wrong);
            }
            return QString();
        });
        if (result == InOwnMounts::NotAllowed) QSKIP("this machine lets nobody mount a file system");
        QVERIFY(result == InOwnMounts::Passed);
    }

private Q_SLOTS:
    void aDiskThatIsFullStopsEveryWriteAnywhere() {
        inMemory([](Saving what, const QString& folder, const QString& disk) {
            // From no room at all, a page more each time, until the save succeeds.
            for (int pages = 0; pages < 60; ++pages) {
                static_cast<void>(save(what, folder, 0));
                put(disk + u"/room"_s, QByteArray(pages * 4096, 'x'));
                QFile filling(disk + u"/filling"_s);
                if (!filling.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return u"not filled"_s;
                while (filling.write(QByteArray(4096, 'x')) == 4096) {}
                QFile::remove(disk + u"/room"_s);
                bool saved = false;
                const QString wrong = saveUnder(what, folder, [&] {
                    saved = save(what, folder, 1).ok();
                    filling.remove();
                    return saved;
                });
                if (!wrong.isEmpty()) return wrong;
                if (saved) return pages > 0 ? QString() : u"the disk was never full"_s;
            }
            return u"never saved"_s;
        });
    }

    void filesKeepTheirModeAndNewOnesHaveTheUsual() {
        const QTemporaryDir folder;
        const mode_t mask = ::umask(027);
        const bool prepared = prepare(folder.path());
        ::umask(mask);
        QVERIFY(prepared);
        const QString note = folder.path() + u"/aeroporti/KILL/Sid/ROTTA_KENN.txt"_s;
        const auto modeOf = [](const QString& path) {
            struct stat info {};
            return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_mode & 07777U : 0U;
        };
        for (const QString& path : filesBelow(folder.path()).keys())
            QCOMPARE(modeOf(path), QFileInfo(path).isDir() ? modeOf(path) : 0640U);
        ::chmod(QFile::encodeName(note).constData(), 0604);
        QVERIFY(save(Saving::Notes, folder.path(), 1));
        QCOMPARE(modeOf(note), 0604U);
        if (::geteuid() != 0) return; // only root may give files away
        constexpr uid_t someone = 1234;
        QCOMPARE(::chown(QFile::encodeName(note).constData(), someone, someone), 0);
        QVERIFY(save(Saving::Notes, folder.path(), 0));
        QCOMPARE(QFileInfo(note).ownerId(), someone);
        QCOMPARE(QFileInfo(note).groupId(), someone);
        QCOMPARE(modeOf(note), 0604U);
    }

    void whatCouldNotBeReadAgainIsNotSaved() {
        const QTemporaryDir folder;
        QVERIFY(prepare(folder.path()));
        const QString setting = folder.path() + u"/LangSetting.ini"_s;
        put(setting, "[Other]\r\n" + QByteArray(largestProfileBytes, 'x')); // from there on read line by line
        const auto before = filesBelow(folder.path(), QDir::Hidden);
        const QString large(largestRecordBytes, u'X');
        AirportRecord record;
        const auto saves = [&](const QString& name) {
            return saveAirport(ArchivePaths(folder.path()), name, record);
        };
        record.values[Latitude] = large;
        QCOMPARE(saves(u"KILL"_s).failure().fault, Fault::TooLarge);
        QCOMPARE(saves(u"NEW"_s).failure().fault, Fault::TooLarge);
        record.values[Latitude] = u"\u4E00"_s;
        QCOMPARE(saves(u"NEW"_s).failure().fault, Fault::NotInCodePage);
        QVERIFY(!save(Saving::Language, folder.path(), 1));
        const FileSizeLimit limited(0);
        record.values[Latitude].clear();
        QCOMPARE(saves(u"NEW"_s).failure().fault, Fault::DiskFull);
        QCOMPARE(saveNotes(folder.path() + u"/aeroporti/KILL/Sid"_s, Family::Approach, u"KENN"_s,
                           {{NotesBox::Text2, large}})
                     .failure()
                     .fault,
                 Fault::TooLarge);
        QCOMPARE(filesBelow(folder.path(), QDir::Hidden), before); // nor is a new name's folder left
    }

    void aLinkStaysAndOneToNothingIsRefused() {
        const QTemporaryDir folder;
        QVERIFY(prepare(folder.path()));
        const QString setting = folder.path() + u"/LangSetting.ini"_s;
        const QString elsewhere = folder.path() + u"/aeroporti/moved.ini"_s;
        QVERIFY(QFile::rename(setting, elsewhere) && QFile::link(elsewhere, setting));
        QVERIFY(save(Saving::Language, folder.path(), 1));
        QVERIFY(QFileInfo(setting).isSymLink() && bytesOf(elsewhere).contains("Italiano"));
        QVERIFY(QFile::remove(elsewhere));
        QVERIFY(!save(Saving::Language, folder.path(), 1));
        QVERIFY(QFileInfo(setting).isSymLink() && !QFile::exists(elsewhere));
    }
};

QTEST_GUILESS_MAIN(WriteFaultsTest)
#include "tst_write_faults.moc"
