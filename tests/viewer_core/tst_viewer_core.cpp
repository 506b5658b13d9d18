#include "files/lookup.h"
#include "support/disk.h"
#include "viewer/core/catalogue.h"
#include "viewer/core/notes.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>
#include <utility>

using namespace quarvel;
using namespace Qt::StringLiterals;

class ViewerCoreTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void capitalsStayInTheCodePage() {
        QCOMPARE(inCapitals(u"città ÿ š ž œ"_s), u"CITTÀ Ÿ Š Ž Œ"_s);
        QCOMPARE(inCapitals(u"straße ƒ µ"_s), u"STRAßE ƒ µ"_s); // no capital in the code page
        QCOMPARE(inCapitals(u"1 \"a\"\n-"_s), u"1 \"A\"\n-"_s);
    }

    void chartNamesLoseTheirLastFourCharacters() {
        QCOMPARE(quarvel::chartNames({u"a.gif.bak"_s, u"b.GIF"_s, u"c.Gif"_s, u"if"_s}),
                 QStringList({u"B"_s, u"C"_s}));
        QCOMPARE(quarvel::chartNames({u"ABCGIF"_s, u".gif"_s, u"gif"_s}),
                 QStringList({u"AB"_s, u""_s, u""_s}));
    }

    void listedNameFindsItsPicture() {
        const QTemporaryDir folder;
        const QStringList onDisk = {u"Kennedy1.gif"_s, u"Malpensà.Gif"_s, u"straße.gif"_s, u"ısparta.gif"_s};
        for (const QString& name : onDisk) put(folder.filePath(name));
        const QStringList files = listFiles(folder.path()).take();
        const QStringList listed = quarvel::chartNames(files);
        QCOMPARE(listed.size(), onDisk.size());
        for (qsizetype i = 0; i < listed.size(); ++i)
            QCOMPARE(nameOnDisk(folder.path(), chartFileName(listed[i])).value(), files[i]);
        QCOMPARE(chartFileName(u"  KENNEDY 1 "_s), u"KENNEDY 1.gif"_s);
    }

    void aNoteIsTheFirstFieldOfItsFile() {
        const QList<std::pair<QByteArray, QString>> files = {{"\"A \"B\" C\"\r\n", u"A "_s},
                                                             {"\"A\nB\rC\"", u"A\nB\nC"_s},
                                                             {"\"A\r\nB", u"A\nB"_s},
                                                             {"  \" A \"\r\n", u" A "_s},
                                                             {" A \"B,C\r\n", u"A \"B"_s},
                                                             {"A B\r\nC", u"A B"_s},
                                                             {"\xEF\xBB\xBF\"\xC3\xA8\"\r\n", u"è"_s},
                                                             {"\r\n", QString()}};
        for (const auto& [bytes, note] : files) QCOMPARE(parseNote(bytes, u"note.txt"_s).value(), note);
    }

    void whatASaveWouldTakeAwayUnseen() {
        const QList<std::pair<QByteArray, bool>> files = {
            {"\"A\"\r\n", false}, {"\"A\r\nB", false}, {"A\r\n \n", false},   {"\r\n", false},
            {"A\r\nB\r\n", true}, {"A, B", true},      {"\"A\" B\r\n", true}, {"\"A\"\r\n\"B\"", true}};
        for (const auto& [bytes, more] : files) QCOMPARE(holdsMoreThanNote(bytes), more);
        const auto unseen = [](std::optional<QByteArray> read, std::optional<QByteArray> now) {
            return holdsUnseen({NotesBox::Text1, {}, std::move(read)}, {NotesBox::Text1, {}, std::move(now)});
        };
        QVERIFY(!unseen("\"A\"", "\"A\"") && !unseen("\"A\"", {}) && !unseen({}, {}));
        QVERIFY(unseen("\"A\"", "\"B\"") && unseen({}, "\"B\"") && unseen("A,B", "A,B"));
    }

    void notesAreWrittenToTheByte() {
        const auto written = [](const QString& text) { return noteBytes(text, u"note.txt"_s).value(); };
        QCOMPARE(written(u"A\nB\rC\r\nD\n"_s), "\"A\r\nB\r\nC\r\nD\r\n\"\r\n"_ba);
        QCOMPARE(written(u"\"A\""_s), "\"\x94"_ba + "A\x94\"\r\n"_ba);
        QVERIFY(noteBytes(u"PERCHÈ…"_s, {}).failure().fault == Fault::Ambiguous);
        // A box that is not given leaves its file alone; an arrival has none.
        const QTemporaryDir dir;
        for (const Family family : {Family::Approach, Family::Star})
            QVERIFY(saveNotes(dir.path(), family, u" ILS 1"_s,
                              {{NotesBox::Text2, u"à"_s}, {NotesBox::Text3, u"x"_s}}));
        QVERIFY(saveNotes(dir.path(), Family::Sid, u"A"_s, {{NotesBox::Text3, u"new"_s}}));
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files),
                 QStringList({u"ALTITUDINE_A.txt"_s, u"MISSED_ ILS 1.txt"_s}));
        QCOMPARE(bytesOf(dir.filePath(u"MISSED_ ILS 1.txt"_s)), "\"\xE0\"\r\n"_ba);
    }
};

QTEST_GUILESS_MAIN(ViewerCoreTest)
#include "tst_viewer_core.moc"
