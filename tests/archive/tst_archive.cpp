#include "archive/airport_folders.h"
#include "archive/name_rules.h"
#include "archive/opening.h"
#include "archive/record_file.h"
#include "support/disk.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

AirportRecord recordOf(const QString& value) {
    AirportRecord record;
    record.values.fill(value);
    return record;
}

} // namespace

class TestArchive : public QObject {
    Q_OBJECT

    [[nodiscard]] QString at(const QString& name) const { return temp_->path() + u'/' + name; }

    std::unique_ptr<QTemporaryDir> temp_;
    std::unique_ptr<ArchivePaths> paths_;

private Q_SLOTS:
    void init() {
        temp_ = std::make_unique<QTemporaryDir>();
        paths_ = std::make_unique<ArchivePaths>(temp_->path());
        QVERIFY(QDir(temp_->path()).mkdir(u"Aeroporti"_s));
    }

    void valuesAreWrittenInQuotes() {
        const QList<std::tuple<QString, QByteArray, QString>> values = {
            {u""_s, "---", u"---"_s}, // the placeholder of an empty value
            {u"5\" \""_s, "5\x94 \x94", u"5” ”"_s},
            {u"Forl\u00EC €"_s, "Forl\xEC \x80", u"Forlì €"_s}};
        for (const auto& [value, stored, readBack] : values) {
            const QByteArray bytes = recordBytes(recordOf(value), u"x"_s).value();
            QCOMPARE(bytes, ("\"" + stored + "\"\r\n").repeated(recordSize));
            QVERIFY(parseRecord(bytes, u"x"_s).value() == recordOf(readBack));
        }
        // It would be read back as another letter.
        QCOMPARE(recordBytes(recordOf(u"PERCHÈ…"_s), u"x"_s).failure().detail, u"È…"_s);
    }

    void readValues() {
        const QList<std::pair<QByteArray, QStringList>> texts = {
            {"\"a\",b\r\nc\nd\re,", {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s}},
            {"  a b \t, c  \r\n", {u"a b"_s, u"c"_s}},
            {" \t\"a \" \r\nb\n", {u"a "_s, u"b"_s}},
            {"\"a\"bc\"d\",e\n\"f\" g\r\nh\n", {u"a"_s, u"e"_s, u"f"_s, u"h"_s}},
            {"\"a,\r\nb\"\r\nc\n", {u"a,\r\nb"_s, u"c"_s}}, // separators inside quotes
            {",\"\"\r\n\r\nd\n", {u""_s, u""_s, u""_s, u"d"_s}},
            {QByteArray("\"\0\x81\xFF\"\n", 6), {u"\0\u0081ÿ"_s}},
            {"\xEF\xBB\xBF\"a\"\r\n5\xE2\x80\x9D, \"\xC3\xAC\"\n", {u"a"_s, u"5”"_s, u"ì"_s}}};
        for (const auto& [text, first] : texts) {
            const QByteArray filled = text + QByteArray("\"-\"\n").repeated(recordSize - first.size());
            const Result<AirportRecord> record = parseRecord(filled, u"x"_s);
            QVERIFY(record.ok());
            const auto& values = record.value().values;
            QCOMPARE(QStringList(values.cbegin(), values.cbegin() + first.size()), first);
            QCOMPARE(values.back(), u"-"_s);
            // One value fewer is too short, one more or a missing last quote is not.
            QCOMPARE(parseRecord(filled.chopped(4), u"x"_s).failure().detail, u"38"_s);
            QVERIFY(parseRecord(filled + "more\n", u"x"_s).value() == record.value());
            QVERIFY(parseRecord(filled.chopped(2), u"x"_s).value() == record.value());
        }
    }

    void namesToOpenAndNamesToMake() {
        const auto judged = [](const QString& name) {
            return u"%1%2%3"_s.arg(checkAirportName(name, NameUse::Existing).ok())
                .arg(checkAirportName(name, NameUse::New).ok())
                .arg(staysInFolder(name));
        };
        for (const QString& plain : {u"FORL\u00CC 2"_s, u"A.B"_s, u" A"_s, QString(251, u'A')})
            QCOMPARE(judged(plain), u"111"_s);
        for (const QString& onlyOpened :
             {u".LIRF"_s, u"LIRF."_s, u"LIRF "_s, QString(252, u'A'), QString(126, u'È')})
            QCOMPARE(judged(onlyOpened), u"101"_s);
        for (const QString& refused : {u""_s, u"."_s, u".."_s, u"A*"_s, u"A?"_s, u"A\""_s, u"<A"_s, u"C:"_s})
            QCOMPARE(judged(refused), u"001"_s);
        for (const QString& leaving : {u"../LIRF"_s, u"A\\B"_s, u"A\0B"_s, u"A\n"_s, u"A\u0081"_s})
            QCOMPARE(judged(leaving), u"000"_s);
    }

    void newAirportGetsItsFolders() {
        const QString name(251, u'A'); // the longest name must still be savable
        const QString likeALeftOver = at(u"Aeroporti/.QUARVEL-NEW-ABCDEF"_s); // but the user's
        QVERIFY(QDir().mkdir(likeALeftOver));
        QVERIFY(createAirportFolders(*paths_, name).ok());
        QVERIFY(QFileInfo::exists(likeALeftOver));
        QCOMPARE(QDir(at(u"Aeroporti/"_s + name)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 (QStringList{u"Aeroporto"_s, u"Approach"_s, u"Sid"_s, u"Star"_s}));
        QVERIFY(writeRecord(paths_->dataFile(name).value(), recordOf(u"x"_s)).ok());
        QVERIFY(QFileInfo::exists(at(u"Aeroporti/"_s + name + u"/Aeroporto/"_s + name + u".txt"_s)));
        QVERIFY(readRecord(paths_->dataFile(name.toLower()).value()).ok());
        QCOMPARE(paths_->familyFolder(name.toLower(), u"STAR"_s).value(),
                 at(u"Aeroporti/"_s + name + u"/Star/"_s));
        for (const QString& byHand : {u".A"_s, u"A."_s, u"A "_s}) { // not made, but taken as they are
            QVERIFY(!createAirportFolders(*paths_, byHand).ok());
            QVERIFY(QDir().mkdir(at(u"Aeroporti/"_s + byHand)));
            QVERIFY(createAirportFolders(*paths_, byHand).valueOr(AirportFolders::Made) ==
                    AirportFolders::WereThere);
        }
    }

    void openingLooksForExactNames() {
        QVERIFY(createAirportFolders(*paths_, u"LIRF"_s).ok());
        const QString folder = at(u"Aeroporti/LIRF/Aeroporto/"_s);
        for (const QString& file : {u"lirf.txt"_s, u"LIrf.gif"_s}) put(folder + file);
        QVERIFY(!hasDataFile(*paths_, u"LIRF"_s).value() &&
                !hasPicture(*paths_, u"LIRF"_s, u"LIRF"_s).value());
        put(folder + u"lirf.gif"_s);
        QVERIFY(hasPicture(*paths_, u"LIRF"_s, u" LIRF "_s).value()); // the code's blanks do not count
        QCOMPARE(paths_->picture(u"lirf"_s, u"LIRF"_s).value(),
                 folder + u"lirf.gif"_s); // the one found is shown
        QVERIFY(!hasPicture(*paths_, u"LIRF"_s, u"../Aeroporto/lirf"_s).value());
    }
};

QTEST_GUILESS_MAIN(TestArchive)
#include "tst_archive.moc"
