#include "text/code_page.h"
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
