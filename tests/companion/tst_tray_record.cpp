#include "companion/core/tray_record.h"

#include <QTest>

using namespace quarvel;
using namespace Qt::StringLiterals;

/// The icon's record in its 88 bytes, and what its mouse messages ask for.
class TrayRecordTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void recordIsEncodedFieldByField() {
        const auto fields = QByteArray::fromHex("58000000 0b0a0080 01000000 07000000 00020000 03000000");
        for (const auto& [text, tip] :
             {std::pair(u"Caffè €日"_s, "Caff\xE8 \x80?\0"_ba), // no byte for the last
              {QString(), "\0"_ba},
              {QString(63, u'x'), QByteArray(63, 'x') + '\0'},
              {QString(70, u'x'), QByteArray(64, 'x')}}) {
            const auto record = encodeTrayIcon(trayIcon(0x1'8000'0A0Bu, 0x7'0000'0003u, text));
            QCOMPARE(QByteArray(record.data(), qsizetype{record.size()}),
                     fields + tip.leftJustified(64, ' '));
        }
    }

    void onlyTheRightReleaseOpensTheMenu() {
        for (const float message : {512.F, 513.F, 514.F, 515.F, 516.F, 518.F, 0.F, -517.F, 516.5F})
            QCOMPARE(decodeMouseMove(message, HorizontalUnit::Pixels, 15), IconCommand::ComeBack);
        for (const float message : {517.F, 516.6F, 517.4F})
            QCOMPARE(decodeMouseMove(message, HorizontalUnit::Pixels, 15), IconCommand::OpenMenu);
        QCOMPARE(decodeMouseMove(517 * 15, HorizontalUnit::Twips, 15), IconCommand::OpenMenu);
        QCOMPARE(decodeMouseMove(517, HorizontalUnit::Twips, 15), IconCommand::ComeBack);
    }
};

QTEST_GUILESS_MAIN(TrayRecordTest)
#include "tst_tray_record.moc"
