#include "archive/listing.h"
#include "support/disk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <functional>
#include <sys/stat.h>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

QStringList rows(const ArchiveListing& listing) {
    QStringList texts;
    for (int row = 0; row < listing.size(); ++row) texts.append(listing.text(row));
    return texts;
}

qint64 changedAt(const QString& path) {
    struct stat info {};
    ::stat(QFile::encodeName(path).constData(), &info);
    return qint64{info.st_ctim.tv_sec} * 1'000'000'000 + info.st_ctim.tv_nsec;
}

/// Waits until a change of `folder` would get another time than its last one.
void waitForTick(const QString& folder) {
    const QTemporaryDir probe;
    QTRY_VERIFY((put(probe.filePath(u"x"_s)), changedAt(probe.filePath(u"x"_s)) > changedAt(folder)));
}

} // namespace

class TestListing : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void matching() {
        const QTemporaryDir temp;
        // The accented name lies on the disk as a letter and its accent apart, as some systems store it.
        for (const QString& name : {u"LIRF"_s, u"liml"_s, u"LIMZ"_s, u"LILIM"_s, u"A.B"_s, u"A_B"_s, u"AXB"_s,
                                    u"FORLI"_s, u"Forli\u0300"_s, u".hidden"_s})
            QVERIFY(QDir(temp.path()).mkdir(name));
        for (const auto& [typed, listed] :
             {std::pair(u""_s, u"[A.B] [A_B] [AXB] [FORLI] [Forl\u00EC] [LILIM] [liml] [LIMZ] [LIRF]"_s),
              {u"LI"_s, u"[LILIM] [liml] [LIMZ] [LIRF]"_s},
              {u"A?B"_s, u"[A.B] [A_B] [AXB]"_s},
              {u"FORL??"_s, u""_s}, // the accented letter is one
              {u"*I*M"_s, u"[LILIM] [liml] [LIMZ]"_s},
              {u"*LIM"_s, u"[LILIM] [liml] [LIMZ]"_s}, // the star gives back what it took too much
              {u"FORL\u00CC"_s, u"[Forl\u00EC]"_s},
              {u".H"_s, u""_s},
              {u"LIRF/"_s, u""_s},
              {u"L"_s.repeated(5000), u""_s},
              {u"*L*I"_s.repeated(2000), u""_s}}) {
            const QString found = rows(ArchiveSearch().list(temp.path(), typed)).join(u' ');
            QCOMPARE(found.normalized(QString::NormalizationForm_C), listed);
        }
    }

    void kinds() {
        const QTemporaryDir temp;
        const QDir dir(temp.path());
        QVERIFY(dir.mkdir(u"Folder"_s) && dir.mkdir(u"[x]"_s));
        put(dir.filePath(u"File.txt"_s));
        QVERIFY(QFile::link(dir.filePath(u"Folder"_s), dir.filePath(u"LinkToFolder"_s)));
        QVERIFY(QFile::link(u"File.txt"_s, dir.filePath(u"LinkToFile"_s)));
        QVERIFY(QFile::link(dir.filePath(u"nothing"_s), dir.filePath(u"LinkToNothing"_s)));
        QCOMPARE(::mkfifo(QFile::encodeName(dir.filePath(u"Pipe"_s)).constData(), 0600), 0);
        QCOMPARE(
            rows(ArchiveSearch().list(temp.path(), {})),
            (QStringList{u"[[x]]"_s, u"File.txt"_s, u"[Folder]"_s, u"LinkToFile"_s, u"[LinkToFolder]"_s}));
    }

    void keptUntilChanged_data() {
        using Change = std::function<bool(QDir)>;
        QTest::addColumn<Change>("change");
        QTest::addColumn<bool>("keeps"); // what was read
        QTest::addColumn<QString>("listed");
        QTest::newRow("unchanged") << Change([](const QDir&) { return true; }) << true << u"[A] [B] F [L]"_s;
        QTest::newRow("an entry renamed")
            << Change([](QDir dir) { return dir.rename(u"A"_s, u"Z"_s); }) << false << u"[B] F [L] [Z]"_s;
        QTest::newRow("a link's target vanishes")
            << Change([](const QDir& dir) { return dir.rmdir(u"../target"_s); }) << true << u"[A] [B] F"_s;
        QTest::newRow("another folder takes the place") << Change([](const QDir& dir) {
            QDir parent = QFileInfo(dir.path()).dir();
            return parent.mkpath(u"other/X"_s) && parent.rename(u"archive"_s, u"old"_s) &&
                   parent.rename(u"other"_s, u"archive"_s);
        }) << false << u"[X]"_s;
        QTest::newRow("the folder vanishes")
            << Change([](QDir dir) { return dir.removeRecursively(); }) << false << u""_s;
    }

    void keptUntilChanged() {
        const QTemporaryDir temp;
        const QDir dir(temp.filePath(u"archive"_s));
        QVERIFY(dir.mkpath(u"A"_s) && dir.mkpath(u"B"_s) && dir.mkdir(u"../target"_s));
        put(dir.filePath(u"F"_s));
        QVERIFY(QFile::link(u"../target"_s, dir.filePath(u"L"_s)));
        ArchiveSearch search(std::chrono::nanoseconds(0));
        QCOMPARE(rows(search.list(dir.path(), {})), (QStringList{u"[A]"_s, u"[B]"_s, u"F"_s, u"[L]"_s}));
        if (!search.keeps(dir.path())) QSKIP("this file system does not tell when a folder changes");
        waitForTick(dir.path());
        QFETCH(std::function<bool(QDir)>, change);
        QVERIFY(change(dir));
        QFETCH(QString, listed);
        QTEST(search.keeps(dir.path()), "keeps");
        QCOMPARE(rows(search.list(dir.path(), {})), listed.split(u' ', Qt::SkipEmptyParts));
    }

    void aFolderJustChangedIsReadEachTime() {
        const QTemporaryDir temp;
        QVERIFY(QDir(temp.path()).mkdir(u"A"_s));
        ArchiveSearch search;
        QCOMPARE(rows(search.list(temp.path(), {})), QStringList{u"[A]"_s});
        QVERIFY(!search.keeps(temp.path()));
    }

    void orderOfManyNames() {
        const QTemporaryDir temp;
        const QDir dir(temp.path());
        QStringList names;
        // Enough for every way of sorting, alike in their first eight letters and beyond, or one in another.
        for (int i = 0; i < 3000; ++i) names.append(u"Aeroporto di "_s + QString::number(i * 7919 % 3000, 7));
        names += {u"Aer"_s, u"AER"_s, u"AEROPORT"_s, u"Aeroport"_s, u"aeroporto di"_s, u"Z"_s};
        for (const QString& name : names) QVERIFY(dir.mkdir(name));
        std::ranges::sort(names, [](const QString& left, const QString& right) {
            const int order = QString::compare(left.toLower(), right.toLower());
            return order != 0 ? order < 0 : left < right;
        });
        for (QString& name : names) name = u'[' + name + u']';
        QCOMPARE(rows(ArchiveSearch().list(temp.path(), {})), names);
    }
};

QTEST_GUILESS_MAIN(TestListing)
#include "tst_listing.moc"
