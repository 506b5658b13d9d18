#include "files/lookup.h"
#include "files/whole_file.h"
#include "viewer/core/catalogue.h"
#include "viewer/core/notes.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

const QString chart = u"KENNEDY1"_s;
constexpr qint64 anySize = 1 << 20;

const NoteKind& routeNote() { return notesOf(Family::Sid)[0]; }

/// A family folder with files in it, on the disk.
class FamilyFolder {
public:
    [[nodiscard]] QString path() const { return dir_.path(); }
    [[nodiscard]] QString pathOf(const QString& name) const { return dir_.filePath(name); }
    void write(const QString& name, const QByteArray& bytes) const {
        QVERIFY(writeWholeFile(pathOf(name), bytes));
    }
    [[nodiscard]] QByteArray read(const QString& name) const {
        const auto bytes = readWholeFile(pathOf(name), anySize);
        return bytes ? bytes.value() : QByteArray("(no file)");
    }
    [[nodiscard]] QStringList names() const { return QDir(path()).entryList(QDir::Files, QDir::Name); }

private:
    QTemporaryDir dir_;
};

std::vector<NoteText> boxes(const QString& text1, const QString& text2, const QString& text3) {
    return {{NotesBox::Text1, text1}, {NotesBox::Text2, text2}, {NotesBox::Text3, text3}};
}

} // namespace

class ViewerCoreTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void optionChoosesFamily();
    void capitals_data();
    void capitals();
    void chartNames_data();
    void chartNames();
    void listedNameFindsItsPicture();
    void parsesFirstField_data();
    void parsesFirstField();
    void writesBytes_data();
    void writesBytes();
    void savesEachBoxToItsFile();
    void savedNotesComeBack();
    void arrivalsHaveNoNotes();
    void refusedCharacterChangesNoFile();
    void onlyTheExactNameIsRead_data();
    void onlyTheExactNameIsRead();
    void unusableFilesAreReported();
};

void ViewerCoreTest::optionChoosesFamily() {
    const QStringList folders = {u"Sid"_s, u"Star"_s, u"Approach"_s};
    for (int index = 0; index < 3; ++index) {
        QCOMPARE(static_cast<int>(familyOfOption(index)), index + 1);
        QCOMPARE(familyFolderName(familyOfOption(index)), folders[index]);
    }
    QCOMPARE(familyOfOption(3), Family::None);
    QCOMPARE(familyOfOption(-1), Family::None);
    QCOMPARE(familyFolderName(Family::None), QString());
}

void ViewerCoreTest::capitals_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("accented letters") << u"città perché"_s << u"CITTÀ PERCHÉ"_s;
    QTest::newRow("capital among the upper controls") << u"ÿ š ž œ"_s << u"Ÿ Š Ž Œ"_s;
    QTest::newRow("sharp s is not doubled") << u"straße"_s << u"STRAßE"_s;
    QTest::newRow("capital outside the code page") << u"ƒ µ"_s << u"ƒ µ"_s;
    QTest::newRow("letter outside, capital inside") << u"ı"_s << u"ı"_s;
    QTest::newRow("both outside") << u"ж"_s << u"Ж"_s;
    QTest::newRow("neither letters nor line breaks") << u"1 \"a\"\n-"_s << u"1 \"A\"\n-"_s;
}

void ViewerCoreTest::capitals() {
    QFETCH(QString, text);
    QTEST(inCapitals(text), "expected");
}

void ViewerCoreTest::chartNames_data() {
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("no charts") << QStringList{u"ROTTA_A.txt"_s, u"a.gif.bak"_s, u"gifs"_s} << QStringList{};
    QTest::newRow("any case") << QStringList{u"Kennedy1.gif"_s, u"b.GIF"_s, u"c.Gif"_s}
                              << QStringList{u"KENNEDY1"_s, u"B"_s, u"C"_s};
    QTest::newRow("three letters without a dot") << QStringList{u"ABCGIF"_s} << QStringList{u"AB"_s};
    QTest::newRow("nothing before the ending")
        << QStringList{u".gif"_s, u"gif"_s} << QStringList{u""_s, u""_s};
    QTest::newRow("order and doubles kept")
        << QStringList{u"z.gif"_s, u"a.gif"_s, u"Z.GIF"_s} << QStringList{u"Z"_s, u"A"_s, u"Z"_s};
    QTest::newRow("blanks and dots kept") << QStringList{u" a.b .gif"_s} << QStringList{u" A.B "_s};
}

void ViewerCoreTest::chartNames() {
    QFETCH(QStringList, files);
    QTEST(quarvel::chartNames(files), "expected");
}

void ViewerCoreTest::listedNameFindsItsPicture() {
    const FamilyFolder folder;
    const QStringList onDisk = {u"Kennedy1.gif"_s, u"Malpensà.Gif"_s, u"straße.gif"_s, u"ısparta.gif"_s,
                                u"ƒ.gif"_s};
    for (const QString& name : onDisk) folder.write(name, "picture");
    const auto files = listFiles(folder.path());
    QVERIFY(files);
    const QStringList listed = quarvel::chartNames(files.value());
    QCOMPARE(listed.size(), onDisk.size());
    for (qsizetype i = 0; i < listed.size(); ++i)
        QCOMPARE(nameOnDisk(folder.path(), chartFileName(listed[i])), files.value()[i]);
    QCOMPARE(chartFileName(u"  KENNEDY 1 "_s), u"KENNEDY 1.gif"_s);
}

void ViewerCoreTest::parsesFirstField_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("expected");
    QTest::newRow("quoted") << "\"RWY 13L, THEN 5000\"\r\n"_ba << u"RWY 13L, THEN 5000"_s;
    QTest::newRow("empty") << "\"\"\r\n"_ba << QString();
    QTest::newRow("second quote ends it") << "\"A \"B\" C\"\r\n"_ba << u"A "_s;
    QTest::newRow("several lines") << "\"A\r\n\r\nB\"\r\n"_ba << u"A\n\nB"_s;
    QTest::newRow("bare line feeds and returns") << "\"A\nB\rC\""_ba << u"A\nB\nC"_s;
    QTest::newRow("no closing quote") << "\"A\r\nB"_ba << u"A\nB"_s;
    QTest::newRow("only an opening quote") << "\""_ba << QString();
    QTest::newRow("blanks before, not within") << "  \" A \"\r\n"_ba << u" A "_s;
    QTest::newRow("unquoted up to the comma") << " A \"B,C\r\n"_ba << u"A \"B"_s;
    QTest::newRow("unquoted up to the line end") << "A B\r\nC"_ba << u"A B"_s;
    QTest::newRow("unquoted up to a bare line feed") << "A\nC"_ba << u"A"_s;
    QTest::newRow("unquoted up to the file's end") << "A"_ba << u"A"_s;
    QTest::newRow("an empty line is an empty field") << "\r\n"_ba << QString();
    QTest::newRow("code page") << "\"\x80 \xE0 \x94 \x81\"\r\n"_ba << u"€ à \u201D \u0081"_s;
}

void ViewerCoreTest::parsesFirstField() {
    QFETCH(QByteArray, bytes);
    const auto note = parseNote(bytes, u"note.txt"_s);
    QVERIFY(note);
    QTEST(note.value(), "expected");
}

void ViewerCoreTest::writesBytes_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("plain") << u"Rwy 13L, 5000"_s << "\"Rwy 13L, 5000\"\r\n"_ba;
    QTest::newRow("empty") << QString() << "\"\"\r\n"_ba;
    QTest::newRow("every kind of line break") << u"A\nB\rC\r\nD\n"_s << "\"A\r\nB\r\nC\r\nD\r\n\"\r\n"_ba;
    QTest::newRow("straight quotes") << u"\"A\""_s << "\"\x94"_ba + "A\x94\"\r\n"_ba;
    QTest::newRow("accent typed as a mark of its own") << u"a\u0300"_s << "\"\xE0\"\r\n"_ba;
}

void ViewerCoreTest::writesBytes() {
    QFETCH(QString, text);
    const auto bytes = noteBytes(text, u"note.txt"_s);
    QVERIFY(bytes);
    QTEST(bytes.value(), "expected");
}

void ViewerCoreTest::savesEachBoxToItsFile() {
    const FamilyFolder folder;
    QVERIFY(
        saveNotes(folder.path() + u'/', Family::Sid, u" KENNEDY 1"_s, boxes(u"via à"_s, u"via à ß"_s, {})));
    QCOMPARE(folder.read(u"ROTTA_ KENNEDY 1.txt"_s), "\"VIA \xC0 \xDF\"\r\n"_ba);
    QCOMPARE(folder.read(u"ALTITUDINE_ KENNEDY 1.txt"_s), "\"\"\r\n"_ba);
    QCOMPARE(folder.read(u"DECOLLO_ KENNEDY 1.txt"_s), "\"via \xE0\"\r\n"_ba);
    QCOMPARE(folder.names().size(), 3);

    // A box that is not given leaves its file alone.
    QVERIFY(saveNotes(folder.path(), Family::Sid, u" KENNEDY 1"_s, {{NotesBox::Text3, u"new"_s}}));
    QCOMPARE(folder.read(u"ALTITUDINE_ KENNEDY 1.txt"_s), "\"new\"\r\n"_ba);
    QCOMPARE(folder.read(u"DECOLLO_ KENNEDY 1.txt"_s), "\"via \xE0\"\r\n"_ba);

    QVERIFY(saveNotes(folder.path(), Family::Approach, chart, boxes(u"one"_s, u"two"_s, u"three"_s)));
    QCOMPARE(folder.read(u"MISSED_KENNEDY1.txt"_s), "\"two\"\r\n"_ba);
    QCOMPARE(folder.names().size(), 4);
}

void ViewerCoreTest::savedNotesComeBack() {
    const FamilyFolder folder;
    folder.write(u"ROTTA_KENNEDY1.txt"_s, "\"A MUCH LONGER OLD NOTE THAN THE NEW ONE\"\r\n");
    QVERIFY(
        saveNotes(folder.path(), Family::Sid, chart, boxes(u"one\ntwo\n"_s, u"via \"A\""_s, u" x, y "_s)));
    const QStringList expected = {u"VIA \u201DA\u201D"_s, u" x, y "_s, u"one\ntwo\n"_s};
    QStringList read;
    for (const NoteKind& kind : notesOf(Family::Sid)) {
        const auto note = loadNote(folder.path() + u'/', kind, chart);
        QVERIFY(note);
        read.append(note.value());
    }
    QCOMPARE(read, expected);
}

void ViewerCoreTest::arrivalsHaveNoNotes() {
    const FamilyFolder folder;
    QVERIFY(notesOf(Family::Star).empty());
    for (const Family family : {Family::Star, Family::None})
        QVERIFY(saveNotes(folder.path(), family, chart, boxes(u"a"_s, u"b"_s, u"c"_s)));
    QCOMPARE(folder.names(), QStringList());
}

void ViewerCoreTest::refusedCharacterChangesNoFile() {
    const FamilyFolder folder;
    folder.write(u"ROTTA_KENNEDY1.txt"_s, "\"OLD\"\r\n");
    // Text1 is written last: the route and the altitudes must not have been written by then.
    const auto saved = saveNotes(folder.path(), Family::Sid, chart, boxes(u"fly 😀"_s, u"new"_s, u"new"_s));
    QVERIFY(!saved);
    QCOMPARE(saved.failure().fault, Fault::NotInCodePage);
    QCOMPARE(saved.failure().detail, u"😀"_s);
    QCOMPARE(saved.failure().path, folder.pathOf(u"DECOLLO_KENNEDY1.txt"_s));
    QCOMPARE(folder.read(u"ROTTA_KENNEDY1.txt"_s), "\"OLD\"\r\n"_ba);
    QCOMPARE(folder.names().size(), 1);
}

void ViewerCoreTest::onlyTheExactNameIsRead_data() {
    QTest::addColumn<QString>("onDisk");
    QTest::addColumn<QString>("expected");
    QTest::newRow("exact name") << u"ROTTA_KENNEDY1.txt"_s << u"A"_s;
    QTest::newRow("prefix in small letters") << u"rotta_KENNEDY1.txt"_s << QString();
    QTest::newRow("ending in capitals") << u"ROTTA_KENNEDY1.TXT"_s << QString();
    QTest::newRow("another chart") << u"ROTTA_KENNEDY2.txt"_s << QString();
}

void ViewerCoreTest::onlyTheExactNameIsRead() {
    QFETCH(QString, onDisk);
    const FamilyFolder folder;
    folder.write(onDisk, "\"A\"\r\n");
    const auto note = loadNote(folder.path(), routeNote(), chart);
    QVERIFY(note);
    QTEST(note.value(), "expected");
}

void ViewerCoreTest::unusableFilesAreReported() {
    const FamilyFolder folder;
    const auto faultOfLoading = [&folder](const QByteArray& bytes) {
        folder.write(u"ROTTA_KENNEDY1.txt"_s, bytes);
        const auto note = loadNote(folder.path(), routeNote(), chart);
        return note ? std::nullopt : std::optional(note.failure().fault);
    };
    QCOMPARE(faultOfLoading({}), std::optional(Fault::TooShort));
    QCOMPARE(faultOfLoading("   "), std::optional(Fault::TooShort));
    QCOMPARE(faultOfLoading(QByteArray(2 << 20, 'A')), std::optional(Fault::TooLarge));

    const auto saved = saveNotes(folder.pathOf(u"missing"_s), Family::Approach, chart, boxes({}, {}, {}));
    QVERIFY(!saved);
    QCOMPARE(saved.failure().fault, Fault::Unwritable);
}

QTEST_GUILESS_MAIN(ViewerCoreTest)
#include "tst_viewer_core.moc"
