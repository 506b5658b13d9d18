#include "text/code_page.h"
#include "text/decoding.h"
#include "text/rounding.h"

#include <QTest>
#include <utility>

using namespace quarvel;
using namespace Qt::StringLiterals;

class TestText : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void everyByteSurvives() {
        QByteArray all;
        for (int byte = 0; byte < 256; ++byte) all.append(static_cast<char>(byte));
        QCOMPARE(encodeCodePage(decodeCodePage(all)).bytes, all);
        QCOMPARE(decodeCodePage("\x41\x7F\xA0\xE8\xFF"), u"A\u007F\u00A0èÿ"_s);
        // As Python's codec "cp1252" gives them, which leaves five bytes open.
        const QByteArray typographic = all.sliced(128, 32);
        QCOMPARE(decodeCodePage(typographic), u"€\u0081‚ƒ„…†‡ˆ‰Š‹Œ\u008DŽ\u008F\u0090‘’“”•–—˜™š›œ\u009DžŸ"_s);
    }

    void whatIsMissingIsToldWhole() {
        QCOMPARE(encodeCodePage(u"Forli\u0300"_s).bytes, "Forl\xEC"); // the accent is composed
        QCOMPARE(encodeCodePage(u"\u0080"_s).refused, u"\u0080"_s);   // the euro has its byte
        QCOMPARE(encodeCodePage(u"aŁb→"_s).refused, u"Ł"_s);
        QCOMPARE(encodeCodePage(u"x😀"_s).refused, u"😀"_s);
    }

    void textsAreReadInTheirEncoding() {
        for (const auto& [file, text] : {std::pair("Cos\xEC \xE8 Roma"_ba, u"Così è Roma"_s),
                                         {"Cos\xC3\xAC \xC3\xA8 Roma"_ba, u"Così è Roma"_s},
                                         {"\xEF\xBB\xBFRoma"_ba, u"Roma"_s},
                                         {"\xC3\xA8 \xE8"_ba, u"Ã¨ è"_s}, // not throughout
                                         {"\xFF\xFE"
                                          "R\0\xEC\0"_ba,
                                          u"Rì"_s},
                                         {"\xFE\xFF\0R\0\xEC"_ba, u"Rì"_s},
                                         {"\xFF\xFE"
                                          "R"_ba,
                                          u"ÿþR"_s}, // half a character
                                         {"\xFF\xFE\0\xD8"_ba, u"ÿþ\0Ø"_s}})
            QCOMPARE(decodeText(file), text);
        QCOMPARE(readOtherwise("PERCH\xC8\x85 NO"), u"È…"_s);
        QCOMPARE(readOtherwise("PERCH\xC8\x85 S\xCC"), QString());
    }

    void halvesRoundToEven() {
        for (const auto& [value, rounded] : {std::pair(12.5, 12.0),
                                             {13.5, 14.0},
                                             {-0.5, 0.0},
                                             {-2.5, -2.0},
                                             {0.49999999999999994, 0.0},
                                             {4503599627370495.5, 4503599627370496.0}})
            QVERIFY2(roundHalfEven(value) == rounded, qPrintable(QString::number(value)));
    }
};

QTEST_GUILESS_MAIN(TestText)
#include "tst_text.moc"
