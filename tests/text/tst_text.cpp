#include "text/code_page.h"
#include "text/key_filter.h"
#include "text/rounding.h"
#include "text/strings.h"

#include <QTest>

using namespace quarvel;
using namespace Qt::StringLiterals;

class TestText : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyByteSurvives() {
        QByteArray all;
        for (int byte = 0; byte < 256; ++byte) all.append(static_cast<char>(byte));
        const QString text = decodeCodePage(all);
        QCOMPARE(text.size(), 256);
        const EncodedText back = encodeCodePage(text);
        QCOMPARE(back.refused, QString());
        QCOMPARE(back.bytes, all);
        QCOMPARE(decodeCodePage("\x41\x7F\xA0\xE8\xFF"), u"A\u007F\u00A0èÿ"_s);
    }

    // The characters as Python's codec "cp1252" gives them, which leaves five bytes open.
    void typographicBytes() {
        const QByteArray assigned(
            "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E\x91\x92\x93\x94\x95\x96\x97\x98"
            "\x99\x9A\x9B\x9C\x9E\x9F");
        QCOMPARE(decodeCodePage(assigned), u"€‚ƒ„…†‡ˆ‰Š‹ŒŽ‘’“”•–—˜™š›œžŸ"_s);
        QCOMPARE(decodeCodePage("\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D"_s);
    }

    void encoding_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("refused");
        QTest::newRow("empty") << u""_s << QByteArray() << u""_s;
        QTest::newRow("separate accents are composed") << u"Forli\u0300"_s << QByteArray("Forl\xEC") << u""_s;
        QTest::newRow("the euro's byte is not the control of its number")
            << u"\u0080"_s << QByteArray() << u"\u0080"_s;
        QTest::newRow("the first missing letter is told") << u"aŁb→"_s << QByteArray("a") << u"Ł"_s;
        QTest::newRow("a pair is told whole") << u"x😀"_s << QByteArray("x") << u"😀"_s;
    }

    void encoding() {
        QFETCH(QString, text);
        const EncodedText encoded = encodeCodePage(text);
        QTEST(encoded.bytes, "bytes");
        QTEST(encoded.refused, "refused");
    }

    void keyFilter() {
        QString keys = u"@az`{AZ\u00E8\u00FF\u0131\u017F"_s;
        for (QChar& key : keys) key = UpperCaseKey(key.unicode());
        QCOMPARE(keys, u"@AZ`{AZ\u00E8\u00FF\u0131\u017F"_s);
    }

    void rounding_data() {
        QTest::addColumn<double>("value");
        QTest::addColumn<double>("rounded");
        QTest::newRow("half to even below") << 12.5 << 12.0;
        QTest::newRow("half to even above") << 13.5 << 14.0;
        QTest::newRow("half to zero") << 0.5 << 0.0;
        QTest::newRow("negative half to zero") << -0.5 << 0.0;
        QTest::newRow("negative half to even below") << -1.5 << -2.0;
        QTest::newRow("negative half to even above") << -2.5 << -2.0;
        QTest::newRow("just under a half") << 0.49999999999999994 << 0.0;
        QTest::newRow("just over a negative half") << -0.49999999999999994 << 0.0;
        QTest::newRow("just beyond a negative half") << -0.5000000000000001 << -1.0;
        QTest::newRow("largest half") << 4503599627370495.5 << 4503599627370496.0;
    }

    void rounding() {
        QFETCH(double, value);
        QFETCH(double, rounded);
        QVERIFY(roundHalfEven(value) == rounded);
    }

    void stringFunctions_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("reversed");
        QTest::addColumn<QString>("stripped");
        QTest::addColumn<QString>("extension");
        QTest::newRow("a chart's name") << u"KENN1.GIF"_s << u"FIG.1NNEK"_s << u"KENN1"_s << u"GIF"_s;
        QTest::newRow("without a dot") << u"ABCGIF"_s << u"FIGCBA"_s << u"AB"_s << u"GIF"_s;
        QTest::newRow("only an extension") << u".gif"_s << u"fig."_s << u""_s << u"gif"_s;
        QTest::newRow("three characters") << u"abc"_s << u"cba"_s << u""_s << u"abc"_s;
        QTest::newRow("two characters") << u"ab"_s << u"ba"_s << u""_s << u"ab"_s;
        QTest::newRow("empty") << u""_s << u""_s << u""_s << u""_s;
    }

    void stringFunctions() {
        QFETCH(QString, text);
        QTEST(ReverseString(text), "reversed");
        QTEST(StripExtension(text), "stripped");
        QTEST(GetExtension(text), "extension");
    }

    void blanksAtTheEnds() {
        QCOMPARE(trimBlanks(u"  L I  "_s), u"L I"_s);
        QCOMPARE(trimBlanks(u"   "_s), u""_s);
        QCOMPARE(trimBlanks(u"\t\u00A0"_s), u"\t\u00A0"_s);
    }
};

QTEST_GUILESS_MAIN(TestText)
#include "tst_text.moc"
