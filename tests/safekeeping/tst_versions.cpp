#include "files/system_name.h"
#include "safekeeping/earlier_versions.h"
#include "safekeeping/version_limits.h"
#include "safekeeping/version_name.h"
#include "support/disk.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <filesystem>
#include <memory>

using namespace quarvel;
using namespace Qt::StringLiterals;

/// Earlier versions of the user's files, on real folders.
class TestVersions : public QObject {
    Q_OBJECT

    QString file_;
    std::unique_ptr<QTemporaryDir> temp_;

    [[nodiscard]] QString at(const QString& name) const { return temp_->path() + u'/' + name; }
    [[nodiscard]] EarlierVersions versions() const {
        return {at(u"program"_s), {at(u"state"_s), FolderAccess::Usual}};
    }
    Result<Written> save(const QByteArray& bytes) const {
        return writeWholeFile(at(u"program/"_s + file_), bytes, [this](const FileContent& next) {
            if (!versions().keep(next)) qFatal("not kept");
        });
    }
    [[nodiscard]] QByteArray kept() const {
        QByteArray all;
        for (const EarlierVersion& version : versions().versionsOf(file_))
            all += readWholeFile(version.path, 1 << 20).valueOr({}) + '|';
        return all;
    }

private Q_SLOTS:
    void init() {
        temp_ = std::make_unique<QTemporaryDir>();
        file_ = u"aeroporti/LIRF/Sid/ROTTA_K.txt"_s;
        QVERIFY(QDir().mkpath(at(u"program/aeroporti/LIRF/Sid"_s)));
    }

    void whatIsReplacedIsKeptNewestFirst() {
        for (const char* bytes : {"one", "two", "two", "three"}) QVERIFY(save(bytes));
        QCOMPARE(kept(), "two|one|");          // not what was not there, nor what stayed the same
        put(at(u"program/"_s + file_), "two"); // by an editor
        QVERIFY(save("four"));
        QCOMPARE(kept(), "two|one|");
        QCOMPARE(versions().files(), QStringList(file_));
    }

    void aClockSetBackKeepsTheOrder() {
        const QString folder = at(u"state/versioni/testi/"_s + file_);
        QVERIFY(QDir().mkpath(folder));
        put(folder + u"/2999-01-01 00.00.00.999Z.txt"_s, "future");
        put(folder + u"/copied by hand.txt"_s, "no version");
        QVERIFY(save("one") && save("two") && save("three"));
        QCOMPARE(kept(), "two|one|future|");
        QVERIFY(QFile::exists(folder + u"/2999-01-01 00.00.01.000Z.txt"_s));
    }

    void theLastTwentyOfAFile() {
        // Of any name: this one an old archive left in a code page.
        file_ = u"aeroporti/LIRF/Sid/ROTTA_FORL"_s + nameFromSystem("\xCC") + u".txt"_s;
        for (char byte = 'a'; byte <= 'z'; ++byte) QVERIFY(save(QByteArray(1, byte)));
        QCOMPARE(kept(), "y|x|w|v|u|t|s|r|q|p|o|n|m|l|k|j|i|h|g|f|");
        QCOMPARE(versions().files(), QStringList(file_));
        std::filesystem::remove_all(temp_->path().toStdString()); // Qt could not
    }

    void theOldestOfAllGoFirst() {
        const VersionLimits limits{{}, 2, 3 * 4096};
        const std::vector<StoredVersion> stored{{u"a"_s, u"1"_s, 1},
                                                {u"b"_s, u"2"_s, 4097},
                                                {u"a"_s, u"3"_s, 1},
                                                {u"c"_s, u"4"_s, 4096},
                                                {u"a"_s, u"5"_s, 1}};
        QString gone;
        for (const StoredVersion& version : beyondLimits(stored, limits)) gone += version.name;
        QCOMPARE(gone, u"12"_s); // the third of a; and 2, which takes two blocks where none is left
        QCOMPARE(limitsFor(u"x/K.GIF"_s).maxBytes, 100 << 20);
        QCOMPARE(limitsFor(u"LangSetting.ini"_s).maxBytes, 20 << 20);
    }

    void whatCannotBeKeptIsSaid() {
        QVERIFY(save("one"));
        put(at(u"state"_s), "no folder");
        QVERIFY(!versions().keep({at(u"program/"_s + file_), "two"}));
        put(at(u"version"_s), "two"); // and is not replaced when a version is brought back
        QVERIFY(!versions().bringBack(file_, {{}, at(u"version"_s)}));
        QCOMPARE(bytesOf(at(u"program/"_s + file_)), "one");
    }

    void namesSayWhen() {
        const QDateTime time({2026, 11, 24}, {8, 17, 3, 123}, Qt::UTC);
        QCOMPARE(versionName(time, u"a/LangSetting.ini"_s), u"2026-11-24 08.17.03.123Z.ini"_s);
        QCOMPARE(versionTime(u"2026-11-24 08.17.03.123Z.txt"_s), time);
        QVERIFY(!versionTime(u"2026-11-24 08.17.03.123.txt"_s).isValid());
    }
};

QTEST_GUILESS_MAIN(TestVersions)

#include "tst_versions.moc"
