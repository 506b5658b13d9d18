#include "archive/listing.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <sys/stat.h>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

QStringList rows(const ArchiveListing& listing) {
    QStringList texts;
    for (int row = 0; row < listing.size(); ++row) texts.append(listing.text(row));
    return texts;
}

} // namespace

class TestListing : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void matching_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("listed"); // separated by blanks
        QTest::newRow("nothing typed lists all")
            << u""_s << u"A.B A_B AXB FORLI Forl\u00EC LILIM liml LIMZ LIRF"_s;
        QTest::newRow("a beginning in whatever case") << u"LI"_s << u"LILIM liml LIMZ LIRF"_s;
        QTest::newRow("a question mark is one character") << u"A?B"_s << u"A.B A_B AXB"_s;
        QTest::newRow("a question mark is one accented letter") << u"FORL??"_s << u""_s;
        QTest::newRow("a star is any number") << u"*I*M"_s << u"LILIM liml LIMZ"_s;
        QTest::newRow("a star gives back what it took too much") << u"*LIM"_s << u"LILIM liml LIMZ"_s;
        QTest::newRow("accents in the other case") << u"FORL\u00CC"_s << u"Forl\u00EC"_s;
        QTest::newRow("hidden entries never") << u".H"_s << u""_s;
        QTest::newRow("a separator matches nothing") << u"LIRF/"_s << u""_s;
        QTest::newRow("longer than any name") << u"L"_s.repeated(5000) << u""_s;
        QTest::newRow("many stars and no match") << u"*L*I"_s.repeated(2000) << u""_s;
    }

    void matching() {
        const QTemporaryDir temp;
        // The accented name lies on the disk as a letter and its accent apart, as some systems store it.
        for (const QString& name : {u"LIRF"_s, u"liml"_s, u"LIMZ"_s, u"LILIM"_s, u"A.B"_s, u"A_B"_s, u"AXB"_s,
                                    u"FORLI"_s, u"Forli\u0300"_s, u".hidden"_s})
            QVERIFY(QDir(temp.path()).mkdir(name));
        QFETCH(QString, typed);
        QFETCH(QString, listed);
        QStringList expected;
        for (const QString& name : listed.split(u' ', Qt::SkipEmptyParts))
            expected.append(u'[' + name + u']');
        QStringList found = rows(ArchiveListing(temp.path(), typed));
        for (QString& text : found) text = text.normalized(QString::NormalizationForm_C);
        QCOMPARE(found, expected);
    }

    void kinds() {
        const QTemporaryDir temp;
        const QDir dir(temp.path());
        QVERIFY(dir.mkdir(u"Folder"_s) && dir.mkdir(u"[x]"_s));
        QFile file(dir.filePath(u"File.txt"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(QFile::link(dir.filePath(u"Folder"_s), dir.filePath(u"LinkToFolder"_s)));
        QVERIFY(QFile::link(file.fileName(), dir.filePath(u"LinkToFile"_s)));
        QVERIFY(QFile::link(dir.filePath(u"nothing"_s), dir.filePath(u"LinkToNothing"_s)));
        QCOMPARE(::mkfifo(QFile::encodeName(dir.filePath(u"Pipe"_s)).constData(), 0600), 0);
        QCOMPARE(rows(ArchiveListing(temp.path(), {})), (QStringList{u"[[x]]"_s, u"File.txt"_s, u"[Folder]"_s,
                                                                     u"LinkToFile"_s, u"[LinkToFolder]"_s}));
    }
};

QTEST_GUILESS_MAIN(TestListing)
#include "tst_listing.moc"
