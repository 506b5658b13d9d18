#include "support/test_program.h"

#include <QCloseEvent>
#include <QDir>
#include <QFile>
#include <QLineEdit>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

/// The new airport NEW in the main window.
struct NewAirport : TestProgram {
    NewAirport() {
        start();
        type(u"new"_s);
        click(u"cmdElabora"_s);
        boxes.shown.clear();
    }
    [[nodiscard]] QLineEdit* field(int position) const {
        return control<QLineEdit>(u"txtRwy(%1)"_s.arg(position));
    }
    void enter(int position, const QString& text) const {
        field(position)->setFocus();
        QTest::keyClicks(field(position), text);
        QTest::keyClick(field(position), Qt::Key_Tab);
    }
};

} // namespace

/// A new airport typed and saved through the real window, by keys.
class EntryTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void leavingAFirstEndFillsTheSecond() {
        NewAirport test;
        test.enter(3, u"09l"_s);
        QCOMPARE(test.field(8)->text(), u"27"_s);
        test.field(28)->setText(u"X"_s);
        test.enter(23, QString()); // an empty designator changes nothing
        QCOMPARE(test.field(28)->text(), u"X"_s);
        test.enter(4, u"03500"_s);
        QCOMPARE(test.field(9)->text(), u"03500"_s);
    }

    void noCommandBeginsUnderARefusedDesignator_data() {
        QTest::addColumn<QString>("control");
        QTest::addColumn<int>("key");
        for (const auto& [name, key] : {std::pair("cmdSave", Qt::Key_S), {"cmdElabora", Qt::Key_C}})
            QTest::addRow("mnemonic of %s", name) << QString() << int(key);
        for (const char* name : {"cmdElabora", "cmdReset", "lstWords"})
            QTest::addRow("click on %s", name) << QString::fromLatin1(name) << 0;
        for (const char* name : {"cmdReset", "txtNomeAeroporto", "ImgLingua(0)"})
            QTest::addRow("Return on %s", name) << QString::fromLatin1(name) << int(Qt::Key_Return);
        QTest::newRow("Escape") << u"txtRwy(4)"_s << int(Qt::Key_Escape);
        QTest::newRow("the close box") << QString() << 0;
    }
    void noCommandBeginsUnderARefusedDesignator() {
        QFETCH(QString, control);
        QFETCH(int, key);
        NewAirport test;
        test.addAirport(u"LIRF"_s);
        test.control<QLineEdit>(u"txtNomeAeroporto"_s)->selectAll();
        test.type(u"lirf"_s); // another airport is listed, and "CREA" would open it
        test.field(IcaoCode)->setText(u"LIRF"_s);
        test.field(8)->setText(u"X"_s);
        test.field(3)->setFocus();
        QTest::keyClicks(test.field(3), u"27"_s);
        if (key != 0 && control.isEmpty()) {
            QTest::keyClick(test.mainWindow(), Qt::Key(key), Qt::AltModifier);
        } else if (key != 0) {
            test.control(control)->setFocus();
            QTest::keyClick(test.control(control), Qt::Key(key));
        } else if (control == u"lstWords") {
            test.clickRow(control, 0);
        } else if (!control.isEmpty()) {
            test.click(control);
        } else {
            test.field(4)->setFocus();
            QCloseEvent closeBox;
            QSpontaneKeyEvent::setSpontaneous(&closeBox);
            qApp->notify(test.mainWindow(), &closeBox);
        }
        QTRY_COMPARE(test.boxes.shown.size(), 1);
        QVERIFY(test.boxes.shown.first().text.contains(u"18"_s));
        QTRY_VERIFY(test.field(3)->hasFocus());
        QCOMPARE(test.field(3)->text() + test.field(8)->text() + test.field(20)->text(), u"X"_s);
        QVERIFY(!test.end.ended && test.control(u"cmdElabora"_s)->isEnabled());
        QCOMPARE(test.program().state().MLSCurrentLanguage, u"Italiano"_s);
    }

    void savingWithoutCodeOrConsentWritesNothing() {
        NewAirport test;
        test.enter(20, u"ILS"_s);
        test.click(u"cmdSave"_s);
        QCOMPARE(test.boxes.shown.size(), 1);
        QVERIFY(!test.field(20)->isReadOnly() && test.field(IcaoCode)->hasFocus());
        test.enter(IcaoCode, u"LIRF"_s);
        test.boxes.answers = {Answer::Cancel};
        test.boxes.meanwhile = [&] { QVERIFY(test.field(20)->isReadOnly()); };
        test.click(u"cmdSave"_s);
        QVERIFY(!test.field(20)->isReadOnly() && test.field(IcaoCode)->hasFocus());
        QVERIFY(!test.end.ended && QDir(test.path(u"aeroporti/NEW/Aeroporto"_s)).isEmpty());
    }

    void aSavedAirportIsFoundAtTheNextStart() {
        NewAirport test;
        test.enter(IcaoCode, u"li\"rx"_s); // four letters can be typed
        test.enter(Latitude, u"n45,30"_s);
        test.click(u"cmdSave"_s);
        QCOMPARE(test.boxes.shown.size(), 2); // the question, and that it is done
        QVERIFY(test.end.ended);
        QCOMPARE(test.program().state().CurrentIcao, u"LI”R"_s); // as the record holds it
        test.addChart(u"aeroporti/NEW/Aeroporto/LI”R.gif"_s, {10, 10});
        test.start();
        test.type(u"ne"_s);
        QCOMPARE(test.rows(u"lstWords"_s), QStringList(u"[NEW]"_s));
        test.clickRow(u"lstWords"_s, 0);
        QCOMPARE(test.field(Latitude)->text(), u"N45,30"_s);
        QVERIFY(QFile::exists(test.presenter.loaded.last())); // the text that the save made
    }

    void whatASaveWouldReplaceUnseenIsAskedAboutOnce() {
        NewAirport test;
        const QString text = u"aeroporti/NEW/lirx_Agent.txt"_s; // letter case does not count
        const auto save = [&test](Answer unseen) {
            test.boxes.shown.clear();
            test.boxes.answers = {Answer::Ok, unseen};
            test.click(u"cmdSave"_s);
        };
        test.write(text, "\"Benvenuti\""); // by hand, before the record
        test.enter(IcaoCode, u"LIRX"_s);
        save(Answer::Cancel);
        QVERIFY(test.boxes.shown.last().text.contains(test.path(text)));
        QVERIFY(!test.end.ended && !test.field(20)->isReadOnly());
        QCOMPARE(test.read(text), "\"Benvenuti\"");
        test.addAirport(u"NEW"_s); // by somebody else, meanwhile
        const QByteArray record = test.read(u"aeroporti/NEW/Aeroporto/NEW.txt"_s);
        save(Answer::Again);
        QCOMPARE(test.field(IcaoCode)->text(), u"NEW"_s);            // what the disk holds
        QVERIFY(!test.field(20)->accessibleDescription().isEmpty()); // what was typed is offered
        QVERIFY(!test.field(20)->isReadOnly());
        QCOMPARE(test.read(u"aeroporti/NEW/Aeroporto/NEW.txt"_s), record);
        save(Answer::Ok);
        QVERIFY(test.end.ended && test.boxes.shown.size() == 2); // it has been seen
    }

    void aHalfTypedAirportIsOfferedWhenItsNameIsConfirmedAgain() {
        NewAirport test;
        test.enter(IcaoCode, u"lirx"_s);
        test.enter(3, u"09"_s);
        QTest::keyClick(test.field(4), Qt::Key_Escape); // leaves it, after a question
        const auto begin = [&](const QString& name) {
            test.type(name);
            test.click(u"cmdElabora"_s);
            return test.field(20)->accessibleDescription();
        };
        QVERIFY(begin(u"other"_s).isEmpty());
        test.stop();
        test.start();
        test.field(20)->setText(u"9"_s); // as an airport leaves it that was open
        QVERIFY(begin(u"New"_s).contains(u"NEW"_s));
        QCOMPARE(test.field(IcaoCode)->text(), QString());
        QTest::keyClick(test.field(20), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(test.field(IcaoCode)->text() + test.field(3)->text() + test.field(8)->text(), u"LIRX0927"_s);
        QVERIFY(test.field(20)->accessibleDescription().isEmpty());
        test.click(u"cmdReset"_s); // is a draft again
        QVERIFY(!test.field(20)->accessibleDescription().isEmpty());
        test.boxes.shown.clear();
        QTest::keyClick(test.field(20), Qt::Key_Escape);
        QVERIFY(test.field(20)->accessibleDescription().isEmpty());
        QVERIFY(test.boxes.shown.isEmpty() && test.control(u"Frame3"_s)->isVisible());
    }

    void aFailedSaveCanBeTriedAgain() {
        NewAirport test;
        test.enter(IcaoCode, u"LIRF"_s);
        QDir(test.path(u"aeroporti/NEW"_s)).rmdir(u"Aeroporto"_s);
        test.click(u"cmdSave"_s);
        QVERIFY(test.boxes.shown.last().text.contains(u"non è stato salvato"_s));
        QVERIFY(!test.end.ended && test.control(u"Frame3"_s)->isVisible());
        QVERIFY(!test.field(20)->isReadOnly());
        // As a save leaves it that stopped after its first file: no question about it.
        test.write(u"aeroporti/NEW/Aeroporto/NEW.txt"_s,
                   QByteArray("\"---\"\r\n").repeated(38) + "\"LIRF\"\r\n");
        test.boxes.shown.clear();
        test.click(u"cmdSave"_s);
        QCOMPARE(test.boxes.shown.size(), 2);
        QVERIFY(test.end.ended && QFile::exists(test.path(u"aeroporti/NEW/Aeroporto/NEW.txt"_s)));
    }
};

QTEST_MAIN(EntryTest)
#include "tst_entry.moc"
