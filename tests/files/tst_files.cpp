#include "files/lookup.h"
#include "files/whole_file.h"
#include "support/disk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <memory>
#include <sys/stat.h>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

void makePipe(const QString& path) { QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0); }

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

    void everyPartOfAPathIsFoundInAnyCase() {
        for (const QString& path : {u"aeroporti/LIRF/Aeroporto"_s, u"aeroporti/LIRF/Sid"_s,
                                    u"aeroporti/LIRF/SID"_s, u"aeroporti/Forli\u0300"_s})
            QVERIFY(QDir(root_).mkpath(path));
        put(at(u"aeroporti/LIRF/Aeroporto/Lirf.txt"_s));
        const auto resolves = [this](const QString& asked, const QString& found) {
            QCOMPARE(resolvePath(root_, asked).value(), at(found));
        };
        resolves(u"Aeroporti/lirf/aeroporto/lirf.TXT"_s, u"aeroporti/LIRF/Aeroporto/Lirf.txt"_s);
        // An exact twin goes first, else the first by name.
        resolves(u"aeroporti/LIRF/Sid"_s, u"aeroporti/LIRF/Sid"_s);
        resolves(u"aeroporti/LIRF/sid"_s, u"aeroporti/LIRF/SID"_s);
        resolves(u"aeroporti/FORL\u00CC"_s, u"aeroporti/Forli\u0300"_s);
        resolves(u"AEROPORTI/Nuovo/sid"_s, u"aeroporti/Nuovo/sid"_s);
    }

    void filesOfFolder() {
        const QStringList names = {u"A.GIF"_s,     u"a.gif"_s,    u"b.gif"_s,     u"b2.gif"_s, u"B2a.gif"_s,
                                   u"b002b.gif"_s, u"b010.gif"_s, u"b10 1.gif"_s, u"zgif"_s,   u"È.gif"_s};
        for (auto name = names.crbegin(); name != names.crend(); ++name) put(at(*name));
        put(at(u".hidden"_s));
        QVERIFY(QDir(root_).mkdir(u"Folder"_s));
        makePipe(at(u"pipe"_s));
        QCOMPARE(listFiles(root_).value(), names);
        QCOMPARE(listFiles(at(u"missing"_s)).failure().fault, Fault::NotFound);
    }

    void onlyRegularFilesUpToALimit() {
        const QByteArray bytes("a\0\r\n\xFF\x1A", 6);
        put(at(u"file"_s), bytes);
        makePipe(at(u"pipe"_s));
        QCOMPARE(readWholeFile(at(u"file"_s), 6).value(), bytes);
        QCOMPARE(readWholeFile(at(u"file"_s), 5).failure().fault, Fault::TooLarge);
        QCOMPARE(readWholeFile(at(u"missing"_s), 6).failure().fault, Fault::NotFound);
        QCOMPARE(readWholeFile(at(u"."_s), 6).failure().fault, Fault::NotRegular);
        QCOMPARE(readWholeFile(at(u"pipe"_s), 6).failure().fault, Fault::NotRegular); // does not block
        QCOMPARE(writeWholeFile(at(u"pipe"_s), bytes).failure().fault, Fault::NotRegular);
    }

    void oldSelvesCanBeKeptBeforeAnyIsReplaced() {
        put(at(u"a"_s), "old");
        put(at(u"b"_s), "old");
        QVERIFY(QFile::link(at(u"b"_s), at(u"link"_s)));
        QStringList told;
        const BeforeReplacing keep = [&](const FileContent& next) {
            told += QFileInfo(next.path).fileName() + u':' + QString::fromLatin1(bytesOf(next.path));
        };
        QVERIFY(writeWholeFiles({{at(u"a"_s), "new"}, {at(u"new"_s), "new"}, {at(u"link"_s), "new"}}, keep));
        QCOMPARE(told, (QStringList{u"a:old"_s, u"link:old"_s}));
        QCOMPARE(bytesOf(at(u"b"_s)), "new");
    }
};

QTEST_GUILESS_MAIN(TestFiles)
#include "tst_files.moc"
