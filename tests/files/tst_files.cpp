#include "files/lookup.h"
#include "files/whole_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

void put(const QString& path, const QByteArray& bytes = {}) {
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), qPrintable(path));
}

QByteArray get(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
}

void makePipe(const QString& path) { QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0); }

/// While it lives, files cannot grow beyond a size: a write fails in its middle, as on a full disk.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) : oldHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &old_);
        const rlimit limit{bytes, old_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        ::setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, oldHandler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit old_{};
    void (*oldHandler_)(int);
};

} // namespace

class TestFiles : public QObject {
    Q_OBJECT

    [[nodiscard]] QString at(const QString& name) const { return root_ + u'/' + name; }

    std::unique_ptr<QTemporaryDir> temp_;
    QString root_;

private Q_SLOTS:
    void init() {
        temp_ = std::make_unique<QTemporaryDir>();
        root_ = temp_->path();
    }

    void resolving_data() {
        QTest::addColumn<QString>("asked");
        QTest::addColumn<QString>("found");
        QTest::addColumn<QString>("toWrite");
        const auto row = [](const char* claim, const QString& asked, const QString& found,
                            const QString& toWrite) { QTest::newRow(claim) << asked << found << toWrite; };
        row("every part in other letters", u"Aeroporti/lirf/aeroporto/lirf.TXT"_s,
            u"aeroporti/LIRF/Aeroporto/Lirf.txt"_s, u"aeroporti/LIRF/Aeroporto/lirf.TXT"_s);
        row("an exact twin goes first", u"aeroporti/LIRF/Sid"_s, u"aeroporti/LIRF/Sid"_s,
            u"aeroporti/LIRF/Sid"_s);
        row("else the first twin by name", u"aeroporti/LIRF/sid"_s, u"aeroporti/LIRF/SID"_s,
            u"aeroporti/LIRF/sid"_s);
        row("accents in either form", u"aeroporti/FORL\u00CC"_s, u"aeroporti/Forli\u0300"_s,
            u"aeroporti/FORL\u00CC"_s);
        row("what is missing stays as written", u"AEROPORTI/Nuovo/sid"_s, u"aeroporti/Nuovo/sid"_s,
            u"aeroporti/Nuovo/sid"_s);
    }

    void resolving() {
        for (const QString& path : {u"aeroporti/LIRF/Aeroporto"_s, u"aeroporti/LIRF/Sid"_s,
                                    u"aeroporti/LIRF/SID"_s, u"aeroporti/Forli\u0300"_s})
            QVERIFY(QDir(root_).mkpath(path));
        put(at(u"aeroporti/LIRF/Aeroporto/Lirf.txt"_s));
        QFETCH(QString, asked);
        QFETCH(QString, found);
        QFETCH(QString, toWrite);
        QCOMPARE(resolvePath(root_, asked), at(found));
        QCOMPARE(resolveForWriting(root_, asked), at(toWrite));
    }

    void exactNames_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("held");
        QTest::newRow("the file itself") << u"LIRF.txt"_s << true;
        QTest::newRow("other letters") << u"lirf.txt"_s << false;
        QTest::newRow("a folder") << u"Folder"_s << false;
        QTest::newRow("a link to a file") << u"link"_s << true;
        QTest::newRow("a link to nothing") << u"dangling"_s << false;
    }

    void exactNames() {
        put(at(u"LIRF.txt"_s));
        QVERIFY(QDir(root_).mkdir(u"Folder"_s));
        QVERIFY(QFile::link(at(u"LIRF.txt"_s), at(u"link"_s)) &&
                QFile::link(at(u"nothing"_s), at(u"dangling"_s)));
        QFETCH(QString, name);
        QTEST(holdsExactly(root_, name), "held");
    }

    void filesOfFolder() {
        for (const QString& name : {u"b.gif"_s, u"A.GIF"_s, u"È.gif"_s, u"a.gif"_s, u".hidden"_s})
            put(at(name));
        QVERIFY(QDir(root_).mkdir(u"Folder"_s));
        makePipe(at(u"pipe"_s));
        QCOMPARE(listFiles(root_).value(), (QStringList{u"A.GIF"_s, u"a.gif"_s, u"b.gif"_s, u"È.gif"_s}));
        QCOMPARE(listFiles(at(u"missing"_s)).failure().fault, Fault::NotFound);
        QCOMPARE(listFiles(at(u"b.gif"_s)).failure().fault, Fault::NotFound);
    }

    void reading_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("limit");
        QTest::addColumn<int>("fault"); // -1: none
        QTest::newRow("as large as allowed") << u"file"_s << 6 << -1;
        QTest::newRow("one byte too large") << u"file"_s << 5 << int(Fault::TooLarge);
        QTest::newRow("missing") << u"missing"_s << 6 << int(Fault::NotFound);
        QTest::newRow("a file where a folder is expected") << u"file/inner"_s << 6 << int(Fault::NotFound);
        QTest::newRow("a folder") << u"."_s << 6 << int(Fault::NotRegular);
        QTest::newRow("a pipe without a writer") << u"pipe"_s << 6 << int(Fault::NotRegular);
    }

    void reading() {
        const QByteArray bytes("a\0\r\n\xFF\x1A", 6);
        put(at(u"file"_s), bytes);
        makePipe(at(u"pipe"_s));
        QFETCH(QString, name);
        QFETCH(int, limit);
        const Result<QByteArray> result = readWholeFile(at(name), limit);
        QTEST(result ? -1 : static_cast<int>(result.failure().fault), "fault");
        if (result) QCOMPARE(result.value(), bytes);
    }

    void writingReplacesInOneStep() {
        const QByteArray bytes("new\0\r\n", 6);
        const mode_t mask = ::umask(027);
        const bool created = writeWholeFile(at(u"fresh"_s), bytes).ok();
        ::umask(mask);
        QVERIFY(created);
        QCOMPARE(get(at(u"fresh"_s)), bytes);
        struct stat info {};
        QCOMPARE(::stat(QFile::encodeName(at(u"fresh"_s)).constData(), &info), 0);
        QCOMPARE(info.st_mode & 0777U, 0640U); // the user's usual mode

        put(at(u"old"_s), "a longer old content");
        QVERIFY(QFile::link(at(u"old"_s), at(u"link"_s)));
        QVERIFY(writeWholeFile(at(u"link"_s), bytes).ok());
        QCOMPARE(get(at(u"old"_s)), bytes);
        QVERIFY(QFileInfo(at(u"link"_s)).isSymLink());
    }

    void failedWriteKeepsTheOldFile_data() {
        QTest::addColumn<int>("size");
        QTest::newRow("in the middle of the bytes") << 200'000;
        QTest::newRow("when the buffer is flushed") << 5'000;
    }

    void failedWriteKeepsTheOldFile() {
        put(at(u"file"_s), "old");
        QFETCH(int, size);
        Result<void> result;
        {
            const FileSizeLimit limit(4096);
            result = writeWholeFile(at(u"file"_s), QByteArray(size, 'x'));
        }
        QVERIFY(!result.ok());
        QCOMPARE(result.failure().fault, Fault::DiskFull);
        QCOMPARE(get(at(u"file"_s)), "old");
        QCOMPARE(QDir(root_).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList{u"file"_s});
    }

    void writingIsRefused_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("fault");
        QTest::newRow("missing folder") << u"missing/file"_s << int(Fault::Unwritable);
        QTest::newRow("a file where a folder is expected") << u"file/inner"_s << int(Fault::Unwritable);
        QTest::newRow("a folder under the file's name") << u"Folder"_s << int(Fault::NotRegular);
        QTest::newRow("a pipe under the file's name") << u"pipe"_s << int(Fault::NotRegular);
    }

    void writingIsRefused() {
        put(at(u"file"_s));
        QVERIFY(QDir(root_).mkdir(u"Folder"_s));
        makePipe(at(u"pipe"_s));
        QFETCH(QString, path);
        const Result<void> result = writeWholeFile(at(path), "new");
        QVERIFY(!result.ok());
        QTEST(static_cast<int>(result.failure().fault), "fault");
    }
};

QTEST_GUILESS_MAIN(TestFiles)
#include "tst_files.moc"
