#include "files/staging_folder.h"
#include "install/program_folder.h"
#include "install/starter.h"
#include "support/disk.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <future>
#include <memory>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

constexpr int chartBytes = 100'000;

mode_t modeOf(const QString& path) {
    struct stat info {};
    return ::lstat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_mode & 0777U : 0;
}

/// Everything below a folder, hidden things and links to nothing included.
QStringList treeOf(const QString& folder) {
    QStringList found;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) found.append(QDir(folder).relativeFilePath(entries.next()));
    found.sort();
    return found;
}

/// Lays out in a process that the system kills as soon as it writes more than 4096 bytes to a file.
bool isKilledLayingOut(const ProgramFolder& folder) {
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit limit{4096, 4096};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        std::signal(SIGXFSZ, SIG_DFL);
        ::_exit(layOutProgramFolder(folder) ? 0 : 1);
    }
    int status = 0;
    return ::waitpid(child, &status, 0) == child && WIFSIGNALED(status) && WTERMSIG(status) == SIGXFSZ;
}

} // namespace

/// Where the program folder is, and laying it out on real folders.
class TestProgramFolder : public QObject {
    Q_OBJECT

    [[nodiscard]] QString at(const QString& name) const { return temp_->path() + u'/' + name; }
    [[nodiscard]] QString laid(const QString& name) const { return folder_.path + u'/' + name; }

    std::unique_ptr<QTemporaryDir> temp_;
    ProgramFolder folder_;
    const QStringList starterTree_ = {
        u"English.lng"_s,    u"Italiano.lng"_s,   u"LangSetting.ini"_s,    u"aeroporti"_s,
        u"aeroporti/LIML"_s, u"aeroporti/LIRF"_s, u"aeroporti/LIRF/Sid"_s, u"aeroporti/LIRF/Sid/kenn1.gif"_s};

private Q_SLOTS:
    /// An installed program whose user has no folder for data yet.
    void init() {
        temp_ = std::make_unique<QTemporaryDir>();
        folder_ = {at(u"home/share/quarvel"_s), at(u"usr/share/quarvel/starter"_s)};
        QVERIFY(QDir().mkpath(folder_.starter + u"/aeroporti/LIRF/Sid"_s));
        QVERIFY(QDir().mkpath(folder_.starter + u"/aeroporti/LIML"_s));
        for (const QString& name : {u"English.lng"_s, u"Italiano.lng"_s, u"LangSetting.ini"_s})
            put(folder_.starter + u'/' + name, "shipped " + name.toLatin1());
        put(folder_.starter + u"/aeroporti/LIRF/Sid/kenn1.gif"_s, QByteArray(chartBytes, 'c'));
    }

    void chosen() {
        struct Case {
            bool archiveBeside, starterInstalled, writable, ownFolder;
        };
        for (const auto& [beside, installed, writable, own] : {
                 Case{true, false, false, true}, // an archive beside it: portable, also on a read-only disk
                 {true, true, true, true},
                 {false, true, false, false}, // installed
                 {false, true, true, false},  // and started by the administrator
                 {false, false, false, false},
                 {false, false, true, true} // neither, but its own folder can be written
             }) {
            const auto chosen =
                chooseProgramFolder({u"/opt/q/bin"_s, u"/h/share"_s, beside, installed, writable});
            QCOMPARE(chosen.path, own ? u"/opt/q/bin"_s : u"/h/share/quarvel"_s);
            QCOMPARE(chosen.starter, own ? QString() : u"/opt/q/share/quarvel/starter"_s);
        }
    }

    void surroundingsAreLookedAt() {
        const QString bin = at(u"usr/bin"_s);
        QVERIFY(QDir().mkpath(bin));
        qputenv("XDG_DATA_HOME", {});
        qputenv("HOME", "relative");
        QVERIFY(findProgramFolder(bin).path.startsWith(QFile::decodeName(::getpwuid(::getuid())->pw_dir)));
        qputenv("HOME", QFile::encodeName(at(u"home"_s)));
        for (const char* unusable : {"", "relative/share"}) {
            qputenv("XDG_DATA_HOME", unusable);
            QCOMPARE(findProgramFolder(bin).path, at(u"home/.local/share/quarvel"_s));
        }
        qputenv("XDG_DATA_HOME", QFile::encodeName(at(u"home/share"_s)));
        QCOMPARE(findProgramFolder(bin).path, folder_.path);
        QCOMPARE(findProgramFolder(bin).starter, folder_.starter);
        put(bin + u"/Aeroporti"_s);
        QCOMPARE(findProgramFolder(bin).path, folder_.path); // no folder
        QVERIFY(QFile::remove(bin + u"/Aeroporti"_s) && QDir().mkdir(bin + u"/Aeroporti"_s));
        QCOMPARE(findProgramFolder(bin).path, bin);
    }

    void firstStartLaysOutEverythingForTheUserToWrite() {
        const auto starterMode = [this](mode_t mode) {
            for (const QString& name : starterTree_)
                ::chmod(QFile::encodeName(folder_.starter + u'/' + name).constData(), mode);
        };
        starterMode(0555);
        const mode_t mask = ::umask(027);
        const Result<void> result = layOutProgramFolder(folder_);
        ::umask(mask);
        starterMode(0755); // so that it can be removed
        QVERIFY(result);
        QCOMPARE(treeOf(folder_.path), starterTree_);
        QCOMPARE(bytesOf(laid(u"English.lng"_s)), "shipped English.lng");
        QCOMPARE(bytesOf(laid(u"aeroporti/LIRF/Sid/kenn1.gif"_s)), QByteArray(chartBytes, 'c'));
        QCOMPARE(modeOf(laid(u"Italiano.lng"_s)), 0640U);
        QCOMPARE(modeOf(laid(u"aeroporti/LIRF/Sid"_s)), 0750U);
        QCOMPARE(modeOf(laid(u"aeroporti/LIRF/Sid/kenn1.gif"_s)), 0640U);
        QCOMPARE(modeOf(folder_.path), 0750U);
        QCOMPARE(modeOf(at(u"home/share"_s)), 0700U);
    }

    void laterStartBringsBackAFileButNoAirport() {
        QVERIFY(layOutProgramFolder(folder_));
        QVERIFY(QFile::remove(laid(u"Italiano.lng"_s)));
        QVERIFY(QDir(laid(u"aeroporti/LIRF"_s)).removeRecursively());
        QVERIFY(QDir(laid(u"aeroporti"_s)).rename(u"LIML"_s, u"LIMC"_s));
        put(laid(u"English.lng"_s), "edited");
        QVERIFY(layOutProgramFolder(folder_));
        QCOMPARE(bytesOf(laid(u"Italiano.lng"_s)), "shipped Italiano.lng");
        QCOMPARE(bytesOf(laid(u"English.lng"_s)), "edited");
        QVERIFY(QDir(folder_.starter).removeRecursively()); // an archive is complete without it
        QVERIFY(layOutProgramFolder(folder_));
        QCOMPARE(treeOf(laid(u"aeroporti"_s)), QStringList{u"LIMC"_s});
    }

    void neverTouchesWhatHasTheName_data() {
        QTest::addColumn<QString>("name");
        for (const char* name : {"English.lng", "aeroporti", "AEROPORTI"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void neverTouchesWhatHasTheName() {
        QFETCH(QString, name);
        for (const QString& target : {u"file"_s, u"folder"_s, u"nothing"_s}) {
            QVERIFY(QDir(folder_.path).removeRecursively() && QDir().mkpath(folder_.path));
            put(at(u"file"_s), "mine");
            QVERIFY(QDir().mkpath(at(u"folder"_s)) && QFile::link(at(target), laid(name)));
            QVERIFY(layOutProgramFolder(folder_));
            QCOMPARE(QFile::symLinkTarget(laid(name)), at(target));
            QCOMPARE(bytesOf(at(u"file"_s)), "mine");
            QVERIFY(treeOf(at(u"folder"_s)).isEmpty() && !QFileInfo::exists(at(u"nothing"_s)));
            QCOMPARE(treeOf(folder_.path).filter(name, Qt::CaseInsensitive), QStringList{name});
            QVERIFY(QFileInfo(laid(u"Italiano.lng"_s)).isFile()); // and the rest comes
        }
    }

    void fullDiskLeavesWholeFilesAndNoArchive() {
        Result<void> result;
        {
            const FileSizeLimit limit(4096);
            result = layOutProgramFolder(folder_);
        }
        QVERIFY(!result && result.failure().fault == Fault::DiskFull);
        QCOMPARE(result.failure().path, laid(u"aeroporti/LIRF/Sid/kenn1.gif"_s));
        QCOMPARE(treeOf(folder_.path), starterTree_.mid(0, 3));
        QVERIFY(layOutProgramFolder(folder_));
        QCOMPARE(treeOf(folder_.path), starterTree_);
    }

    void whatAKilledStartLeavesIsClearedByTheNext() {
        QVERIFY(isKilledLayingOut(folder_));
        const QStringList left = treeOf(folder_.path);
        QVERIFY(left.size() > 3 && !left.contains(u"aeroporti"_s)); // the test did kill it halfway
        QVERIFY(layOutProgramFolder(folder_));
        QCOMPARE(treeOf(folder_.path), starterTree_);

        QVERIFY(QDir(laid(u"aeroporti"_s)).removeRecursively());
        QVERIFY(isKilledLayingOut(folder_));
        QVERIFY(QDir().mkdir(laid(u"aeroporti"_s))); // by the user: nothing is to be laid out any more
        QVERIFY(layOutProgramFolder(folder_));
        QCOMPARE(treeOf(folder_.path), starterTree_.mid(0, 4));
    }

    void startsAtOnceDoNoHarm() {
        for (int round = 0; round < 10; ++round) {
            std::vector<std::future<bool>> starts;
            for (int k = 0; k < 3; ++k)
                starts.push_back(
                    std::async(std::launch::async, [this] { return layOutProgramFolder(folder_).ok(); }));
            for (std::future<bool>& start : starts) QVERIFY(start.get());
            QCOMPARE(treeOf(folder_.path), starterTree_);
            QCOMPARE(bytesOf(laid(u"aeroporti/LIRF/Sid/kenn1.gif"_s)).size(), chartBytes);
            QVERIFY(QDir(folder_.path).removeRecursively());
        }
    }
};

QTEST_GUILESS_MAIN(TestProgramFolder)
#include "tst_program_folder.moc"
