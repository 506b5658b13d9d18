#include "companion/core/tray_record.h"

#include <QTest>

using namespace quarvel;
using namespace Qt::StringLiterals;

/// The icon's record in its 88 bytes, and what its mouse messages ask for.
class TrayRecordTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void recordIsEncodedFieldByField_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QByteArray>("tip");
        QTest::newRow("a NUL ends the text, blanks follow")
            << u"Caffè €"_s << QByteArray("Caff\xE8 \x80\0", 8) + QByteArray(56, ' ');
        QTest::newRow("no text is a tip all the same")
            << QString() << QByteArray(1, '\0') + QByteArray(63, ' ');
        QTest::newRow("a long text is cut, its NUL with it") << QString(70, u'x') << QByteArray(64, 'x');
        QTest::newRow("63 characters leave room for the NUL alone")
            << QString(63, u'x') << QByteArray(63, 'x') + QByteArray(1, '\0');
        QTest::newRow("what the code page lacks") << u"日"_s << QByteArray("?\0", 2) + QByteArray(62, ' ');
    }
    void recordIsEncodedFieldByField() {
        QFETCH(QString, text);
        QFETCH(QByteArray, tip);
        const TrayIconData icon = trayIcon(0x1'8000'0A0Bu, 0x7'0000'0003u, text);
        const auto record = encodeTrayIcon(icon);
        const QByteArray fields =
            QByteArray::fromHex("58000000 0b0a0080 01000000 07000000 00020000 03000000");
        QCOMPARE(QByteArray(record.data(), qsizetype{record.size()}), fields + tip);
        QCOMPARE(icon.window, quintptr{0x1'8000'0A0Bu}); // the record itself keeps what it was given
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
