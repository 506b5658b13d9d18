#include "archive/airport_folders.h"
#include "archive/name_rules.h"
#include "archive/opening.h"
#include "archive/record_file.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <climits>
#include <memory>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

constexpr int noFault = -1;

template <class T>
int faultOf(const Result<T>& result) {
    return result ? noFault : static_cast<int>(result.failure().fault);
}

AirportRecord recordOf(const QString& value) {
    AirportRecord record;
    record.values.fill(value);
    return record;
}

void put(const QString& path, const QByteArray& bytes = {}) {
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), qPrintable(path));
}

/// Everything below a folder, sorted.
QStringList below(const QString& folder) {
    QStringList found;
    for (const QString& name :
         QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)) {
        found.append(name);
        for (const QString& inner : below(folder + u'/' + name)) found.append(name + u'/' + inner);
    }
    return found;
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

    void writtenValues_data() {
        QTest::addColumn<QString>("value");
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("readBack");
        QTest::newRow("an empty value comes back as its placeholder")
            << u""_s << QByteArray(R"("---")") << u"---"_s;
        QTest::newRow("a comma") << u"N45,30"_s << QByteArray(R"("N45,30")") << u"N45,30"_s;
        QTest::newRow("only blanks") << u"  "_s << QByteArray(R"("  ")") << u"  "_s;
        QTest::newRow("a double quote") << u"5\" \""_s << QByteArray("\"5\x94 \x94\"") << u"5” ”"_s;
        QTest::newRow("single-byte letters")
            << u"Forl\u00EC €"_s << QByteArray("\"Forl\xEC \x80\"") << u"Forlì €"_s;
    }

    void writtenValues() {
        QFETCH(QString, value);
        QFETCH(QByteArray, line);
        QFETCH(QString, readBack);
        const Result<QByteArray> bytes = recordBytes(recordOf(value), u"x"_s);
        QVERIFY(bytes.ok());
        QCOMPARE(bytes.value(), (line + "\r\n").repeated(recordSize));
        QVERIFY(parseRecord(bytes.value(), u"x"_s).value() == recordOf(readBack));
    }

    void readValues_data() {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("first");
        const auto row = [](const char* claim, const QByteArray& text, const QStringList& first) {
            QTest::newRow(claim) << text << first;
        };
        row("commas and line ends separate", "\"a\",b\r\nc\nd\re,", {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s});
        row("blanks around an unquoted value", "  a b \t, c  \r\n", {u"a b"_s, u"c"_s});
        row("blanks before a quote", " \t\"a \" \r\nb\n", {u"a "_s, u"b"_s});
        row("what follows a closing quote", "\"a\"bc\"d\",e\n\"f\" g\r\nh\n",
            {u"a"_s, u"e"_s, u"f"_s, u"h"_s});
        row("separators inside quotes", "\"a,\r\nb\"\r\nc\n", {u"a,\r\nb"_s, u"c"_s});
        row("empty values", ",\"\"\r\n\r\nd\n", {u""_s, u""_s, u""_s, u"d"_s});
        row("every byte is a letter", QByteArray("\"\0\x81\xFF\"\n", 6), {u"\0\u0081ÿ"_s});
    }

    void readValues() {
        QFETCH(QByteArray, text);
        QFETCH(QStringList, first);
        const int missing = recordSize - static_cast<int>(first.size());
        const QByteArray filled = text + QByteArray("\"-\"\n").repeated(missing);
        const Result<AirportRecord> record = parseRecord(filled, u"x"_s);
        QVERIFY(record.ok());
        QCOMPARE(QStringList(record.value().values.cbegin(), record.value().values.cbegin() + first.size()),
                 first);
        QCOMPARE(record.value().values.back(), u"-"_s);
        // One value fewer is too short, one more or a missing last quote is not.
        QCOMPARE(parseRecord(filled.chopped(4), u"x"_s).failure().detail, u"38"_s);
        QVERIFY(parseRecord(filled + "more\n", u"x"_s).value() == record.value());
        QVERIFY(parseRecord(filled.chopped(2), u"x"_s).value() == record.value());
    }

    void recordsThatAreNoneAreTold() {
        QCOMPARE(faultOf(parseRecord({}, u"x"_s)), int(Fault::TooShort));
        QCOMPARE(parseRecord(" \r\n ", u"x"_s).failure().detail, u"1"_s);
        QCOMPARE(faultOf(readRecord(at(u"missing.txt"_s))), int(Fault::NotFound));
        put(at(u"large.txt"_s), QByteArray("\"a\"\r\n").repeated(400'000));
        QCOMPARE(faultOf(readRecord(at(u"large.txt"_s))), int(Fault::TooLarge));
    }

    void savingReplacesTheFile() {
        const QString path = at(u"LIRF.txt"_s);
        QVERIFY(writeRecord(path, recordOf(u"a long first value"_s)).ok());
        QVERIFY(writeRecord(path, recordOf(u"b"_s)).ok());
        QCOMPARE(QFileInfo(path).size(), recordSize * 5);
        QVERIFY(readRecord(path).value() == recordOf(u"b"_s));

        AirportRecord foreign = recordOf(u"c"_s);
        foreign.values[38] = u"LIŁ→"_s;
        const Result<void> refused = writeRecord(path, foreign);
        QCOMPARE(faultOf(refused), int(Fault::NotInCodePage));
        QCOMPARE(refused.failure().detail, u"Ł"_s);
        QVERIFY(readRecord(path).value() == recordOf(u"b"_s));
    }

    void names_data() {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("existing");
        QTest::addColumn<bool>("fresh");
        QTest::addColumn<bool>("inFolder");
        const auto row = [](const QString& name, bool existing, bool fresh, bool inFolder) {
            QTest::newRow(qPrintable(u"\"%1\""_s.arg(name))) << name << existing << fresh << inFolder;
        };
        for (const QString& plain : {u"LIRF"_s, u"FORL\u00CC 2"_s, u"A.B"_s, u" A"_s, u"A...B"_s})
            row(plain, true, true, true);
        for (const QString& ends : {u"LIRF."_s, u"LIRF "_s, u"..."_s, QString(245, u'A'), QString(123, u'È')})
            row(ends, true, false, true);
        for (const QString& refused :
             {u""_s, u"."_s, u".."_s, u"A*"_s, u"A?"_s, u"A\""_s, u"<A"_s, u"A>"_s, u"|"_s, u"C:"_s})
            row(refused, false, false, true);
        for (const QString& leaving :
             {u"../LIRF"_s, u"A/B"_s, u"A\\B"_s, u"A\0B"_s, u"A\n"_s, u"A\u007F"_s, u"A\u0081"_s})
            row(leaving, false, false, false);
        row(QString(244, u'A'), true, true, true);
    }

    void names() {
        QFETCH(QString, name);
        QTEST(checkAirportName(name, NameUse::Existing).ok(), "existing");
        QTEST(checkAirportName(name, NameUse::New).ok(), "fresh");
        QTEST(staysInFolder(name), "inFolder");
    }

    void newAirportGetsItsFolders() {
        const QString longest(244, u'A'); // the longest name must still be savable
        for (const QString& name : {u"LIRF"_s, longest}) {
            QVERIFY(createAirportFolders(*paths_, name).ok());
            QCOMPARE(below(at(u"Aeroporti/"_s + name)),
                     (QStringList{u"Aeroporto"_s, u"Approach"_s, u"Sid"_s, u"Star"_s}));
            QVERIFY(writeRecord(paths_->dataFileForWriting(name), recordOf(u"x"_s)).ok());
            QVERIFY(QFileInfo::exists(at(u"Aeroporti/"_s + name + u"/Aeroporto/"_s + name + u".txt"_s)));
            QVERIFY(readRecord(paths_->dataFile(name.toLower())).ok());
            QCOMPARE(paths_->dataFileForWriting(name.toLower()),
                     paths_->generalFolder(name) + u'/' + name.toLower() + u".txt"_s);
        }
        QCOMPARE(paths_->familyFolder(u"lirf"_s, u"STAR"_s), at(u"Aeroporti/LIRF/Star/"_s));
    }

    void existingAirportIsLeftAlone_data() {
        QTest::addColumn<QString>("name");
        QTest::newRow("other letters") << u"lirf"_s;
        QTest::newRow("a plain file counts as well") << u"Note"_s;
    }

    void existingAirportIsLeftAlone() {
        QVERIFY(QDir(temp_->path()).mkpath(u"Aeroporti/LIRF/Sid"_s));
        put(at(u"Aeroporti/note"_s));
        const QStringList before = below(temp_->path());
        QFETCH(QString, name);
        QVERIFY(createAirportFolders(*paths_, name).ok());
        QCOMPARE(below(temp_->path()), before);
    }

    void refusedCreationLeavesNothing_data() {
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("fault");
        QTest::newRow("a name out of the archive") << u"."_s << u"../LIRF"_s << int(Fault::BadName);
        QTest::newRow("no archive folder") << u"Empty"_s << u"LIRF"_s << int(Fault::NotFound);
        QTest::newRow("a file in the archive's place") << u"Odd"_s << u"LIRF"_s << int(Fault::NotFound);
    }

    void refusedCreationLeavesNothing() {
        QVERIFY(QDir(temp_->path()).mkdir(u"Empty"_s) && QDir(temp_->path()).mkdir(u"Odd"_s));
        put(at(u"Odd/aeroporti"_s));
        const QStringList before = below(temp_->path());
        QFETCH(QString, program);
        QFETCH(QString, name);
        QTEST(faultOf(createAirportFolders(ArchivePaths(at(program)), name)), "fault");
        QCOMPARE(below(temp_->path()), before);
    }

    // The archive lies so deep that the paths of Sid and Star just fit the system's limit and that of
    // Approach does not.
    void halfMadeAirportIsTakenBack() {
        constexpr qsizetype airportPath =
            PATH_MAX - 1 - 8; // without its ending zero, and room for "/Sid" and "/Star"
        QString program = temp_->path();
        const qsizetype programPath = airportPath - QStringView(u"/aeroporti/LIRF").size();
        while (program.size() < programPath) {
            const qsizetype left = programPath - program.size() - 1;
            program += u'/' + QString(left > 201 ? std::min<qsizetype>(left - 2, 200) : left, u'd');
        }
        QVERIFY(QDir().mkpath(program + u"/aeroporti"_s));
        const ArchivePaths deep(program);
        QCOMPARE(faultOf(createAirportFolders(deep, u"LIRF"_s)), int(Fault::BadName));
        QCOMPARE(below(program), QStringList{u"aeroporti"_s});
    }

    void openingChecks_data() {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<QString>("icao");
        QTest::addColumn<bool>("data");
        QTest::addColumn<QString>("picture"); // empty: none
        const auto row = [](const char* claim, const QStringList& files, const QString& icao, bool data,
                            const QString& picture) {
            QTest::newRow(claim) << files << icao << data << picture;
        };
        row("both exact", {u"LIRF.txt"_s, u"LIRF.gif"_s}, u"LIRF"_s, true, u"LIRF.gif"_s);
        row("data in other letters is missing", {u"lirf.txt"_s, u"LIRF.gif"_s}, u"LIRF"_s, false,
            u"LIRF.gif"_s);
        row("picture in lower case", {u"LIRF.txt"_s, u"lirf.gif"_s}, u"LIRF"_s, true, u"lirf.gif"_s);
        row("picture in mixed case is missing", {u"LIRF.txt"_s, u"Lirf.gif"_s}, u"LIRF"_s, true, u""_s);
        row("the picture found is the one shown", {u"LIrf.gif"_s, u"lirf.gif"_s}, u"LIRF"_s, false,
            u"lirf.gif"_s);
        row("the exact picture goes first", {u"LIRF.gif"_s, u"lirf.gif"_s}, u"LIRF"_s, false, u"LIRF.gif"_s);
        row("the code's blanks do not count", {u"LIRF.gif"_s}, u" LIRF "_s, false, u"LIRF.gif"_s);
        row("a code that leaves the folder", {u"LIRF.gif"_s}, u"../Aeroporto/LIRF"_s, false, u""_s);
    }

    void openingChecks() {
        QVERIFY(createAirportFolders(*paths_, u"LIRF"_s).ok());
        QFETCH(QStringList, files);
        QFETCH(QString, icao);
        QFETCH(QString, picture);
        const QString folder = at(u"Aeroporti/LIRF/Aeroporto/"_s);
        for (const QString& file : files) put(folder + file);
        QTEST(hasDataFile(*paths_, u"LIRF"_s), "data");
        QCOMPARE(hasPicture(*paths_, u"LIRF"_s, icao), !picture.isEmpty());
        if (!picture.isEmpty()) QCOMPARE(paths_->picture(u"lirf"_s, icao), folder + picture);
    }

    void presenterTextLiesInTheAirportFolder() {
        QVERIFY(createAirportFolders(*paths_, u"LIRF"_s).ok());
        put(at(u"Aeroporti/LIRF/lirf_agent.txt"_s));
        QCOMPARE(paths_->presenterText(u"LIRF"_s, u"LIRF"_s), at(u"Aeroporti/LIRF/lirf_agent.txt"_s));
        QCOMPARE(paths_->presenterTextForWriting(u"lirf"_s, u"LIRF"_s),
                 at(u"Aeroporti/LIRF/LIRF_Agent.txt"_s));
    }
};

QTEST_GUILESS_MAIN(TestArchive)
#include "tst_archive.moc"
