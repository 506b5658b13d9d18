#include "forms/form_widget.h"
#include "support/disk.h"
#include "support/test_program.h"

#include <QAbstractButton>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QHelpEvent>
#include <QLabel>
#include <QListView>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QToolTip>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

/// LIRF open in the viewer, with three departures, one arrival and one approach.
struct Viewer : TestProgram {
    Viewer() {
        addAirport(u"LIRF"_s);
        addChart(u"aeroporti/LIRF/Sid/Kenn1.GIF"_s, {800, 1100});
        for (const auto& chart : {u"Sid/zeta.gif"_s, u"Star/arrivo.gif"_s, u"Approach/ils16.gif"_s})
            addChart(u"aeroporti/LIRF/"_s + chart, {300, 200});
        write(u"aeroporti/LIRF/Sid/ABCGIF"_s, "x");
        write(u"aeroporti/LIRF/Sid/ROTTA_KENN1.txt"_s, "\"VIA OST\r\nDRITTO\"\r\n");
        write(u"aeroporti/LIRF/Sid/altitudine_KENN1.txt"_s, "\"not read: another case\"\r\n");
        write(u"aeroporti/LIRF/Approach/MISSED_ILS16.txt"_s, "SALITA 3000, poi\r\n");
        start();
        openViewer(u"LIRF"_s);
    }
    void choose(const QString& option, int row) const {
        click(option);
        clickRow(u"List1"_s, row);
    }
    [[nodiscard]] QPlainTextEdit* box(const QString& name) const { return control<QPlainTextEdit>(name); }
    [[nodiscard]] QString notes(const QString& name) const { return box(name)->toPlainText(); }
    [[nodiscard]] QString said() const { return boxes.shown.last().text; }
    [[nodiscard]] QString title(const QString& frame) const {
        for (const Control* control : static_cast<const FormWidget*>(viewWindow())->controls())
            if (controlKey(*control) == frame) return control->caption().value_or(QString());
        return u"no such frame"_s;
    }
};

} // namespace

/// The chart viewer, driven as its user would.
class ViewWindowTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void whereThereIsNothingTheViewerSaysWhatToDo() {
        Viewer test;
        const auto hint = [&](const QString& control) {
            for (const QLabel* label : test.control(control)->findChildren<QLabel*>())
                if (label->isVisible()) return label->text().remove(QChar(0x200B));
            return QString();
        };
        QVERIFY(hint(u"List1"_s).contains(u"SID, STAR"_s) && hint(u"Picture1"_s).contains(u"elenco"_s));
        const QString folder = test.path(u"aeroporti/LIRF/Star"_s);
        QVERIFY(QFile::rename(folder + u"/arrivo.gif"_s, folder + u"/arrivo.png"_s));
        test.click(u"Option1(1)"_s);
        QVERIFY(hint(u"List1"_s).contains(folder) && hint(u"List1"_s).contains(u"non mostra: 1."_s));
        test.choose(u"Option1(0)"_s, 1);
        QCOMPARE(hint(u"List1"_s) + hint(u"Picture1"_s), QString());
        QCOMPARE(test.control(u"Picture1"_s)->accessibleName(), u"KENN1"_s);
    }

    void familiesFillListCountAndFramesUnlessMissing() {
        Viewer test;
        QVERIFY(!test.control(u"frame6"_s)->isEnabled());
        const auto shown = [&](const QString& option) {
            test.click(option);
            const QString count = test.control<QLabel>(u"lblTotProc"_s)->text();
            return (test.rows(u"List1"_s) +
                    QStringList{count, test.title(u"Frame1"_s), test.title(u"Frame3"_s)})
                .join(u'|');
        };
        QCOMPARE(shown(u"Option1(0)"_s),
                 u"AB|KENN1|ZETA|PARTENZE IN ARCHIVIO: 3|ROTTA|ISTRUZIONI DI DECOLLO"_s);
        QCOMPARE(shown(u"Option1(1)"_s), u"ARRIVO|ARRIVI IN ARCHIVIO: 1|GLI ARRIVI NON HANNO NOTE|"_s);
        QCOMPARE(shown(u"Option1(2)"_s), u"ILS16|AVVICINAMENTI IN ARCHIVIO: 1|MANCATO AVVICINAMENTO|"_s);
        QVERIFY(test.control(u"frame6"_s)->isEnabled());
        QVERIFY(!test.control(u"Command4"_s)->isEnabled());
        QDir(test.path(u"aeroporti/LIRF/Star"_s)).removeRecursively();
        test.click(u"Option1(1)"_s);
        QVERIFY(test.said().contains(u"/Star"_s));
        QCOMPARE(test.rows(u"List1"_s), QStringList(u"ILS16"_s));
    }

    void choosingAChartShowsItAndItsNotes() {
        Viewer test;
        test.choose(u"Option1(0)"_s, 1);
        QCOMPARE(test.control(u"Image1"_s)->geometry(), QRect(-1, -1, 800, 1100));
        QCOMPARE(test.notes(u"Text2"_s), u"VIA OST\nDRITTO"_s);
        QCOMPARE(test.notes(u"Text3"_s), QString());
        QVERIFY(!test.box(u"Text1"_s)->isReadOnly());
        QVERIFY(test.control(u"Command4"_s)->isEnabled());

        test.choose(u"Option1(2)"_s, 0);
        QCOMPARE(test.notes(u"Text2"_s), u"SALITA 3000"_s);
        test.choose(u"Option1(1)"_s, 0);
        QCOMPARE(test.notes(u"Text2"_s), QString());
    }

    void notesAreSavedAsTheyAreRead() {
        Viewer test;
        test.choose(u"Option1(0)"_s, 2);
        auto* route = test.box(u"Text2"_s);
        QTest::keyClicks(route, u"via "_s);
        QCOMPARE(route->toPlainText(), u"VIA "_s);
        route->insertPlainText(u"città \"x\""_s); // pasted
        test.box(u"Text1"_s)->insertPlainText(u"prima\nseconda"_s);
        test.boxes.answers = {Answer::Cancel};
        test.click(u"cmdSave"_s);
        QVERIFY(!QFile::exists(test.path(u"aeroporti/LIRF/Sid/ROTTA_ZETA.txt"_s)));

        test.click(u"cmdSave"_s);
        QCOMPARE(test.read(u"aeroporti/LIRF/Sid/ROTTA_ZETA.txt"_s), "\"VIA CITT\xC0 \x94X\x94\"\r\n");
        QCOMPARE(test.read(u"aeroporti/LIRF/Sid/ALTITUDINE_ZETA.txt"_s), "\"\"\r\n");
        QCOMPARE(test.read(u"aeroporti/LIRF/Sid/DECOLLO_ZETA.txt"_s), "\"prima\r\nseconda\"\r\n");
        test.clickRow(u"List1"_s, 1);
        test.clickRow(u"List1"_s, 2);
        QCOMPARE(test.notes(u"Text1"_s), u"prima\nseconda"_s);
    }

    void aPasteThatIsCutIsToldOnceItIsOver() {
        Viewer test;
        test.choose(u"Option1(0)"_s, 1);
        QGuiApplication::clipboard()->setText(QString(15001, u'x'));
        test.box(u"Text1"_s)->paste();
        QVERIFY(test.boxes.shown.isEmpty()); // a drop would still be waiting for its answer
        QTRY_VERIFY(!test.boxes.shown.isEmpty() && test.said().contains(u"quello che ci stava"_s));
        QCOMPARE(test.notes(u"Text1"_s).size(), 15000);
    }

    void namesOfAnOlderSystemAreReadAsWindowsLetters() {
        Viewer test;
        const QByteArray folder = test.path(u"aeroporti/LIRF/Sid/"_s).toUtf8();
        const auto rename = [&](const char* from, const char* to) {
            QCOMPARE(::rename((folder + from).constData(), (folder + to).constData()), 0);
        };
        rename("zeta.gif", "zet\xE0 \x80.gif");
        rename("ROTTA_KENN1.txt", "ROTTA_ZET\xC0 \x80.txt");
        test.choose(u"Option1(0)"_s, 2);
        QCOMPARE(test.rows(u"List1"_s).last(), u"ZET\u00C0 \u20AC"_s);
        QCOMPARE(test.control(u"Image1"_s)->size(), QSize(300, 200));
        QCOMPARE(test.notes(u"Text2"_s), u"VIA OST\nDRITTO"_s);
        test.box(u"Text2"_s)->setPlainText(u"VIA ELB"_s);
        test.click(u"cmdSave"_s);
        test.clickRow(u"List1"_s, 1);
        test.clickRow(u"List1"_s, 2);
        QCOMPARE(test.notes(u"Text2"_s), u"VIA ELB"_s);
        rename("zet\xE0 \x80.gif", "zeta.gif"); // what the toolkit could not remove
        rename("ROTTA_ZET\xC0 \x80.txt", "ROTTA_KENN1.txt");
    }

    void whatTheDiskHoldsUnseenIsAskedAboutOnce() {
        Viewer test;
        const QString note = u"aeroporti/LIRF/Approach/MISSED_ILS16.txt"_s; // cut by a save: there is a comma
        const QByteArray byHand = test.read(note);
        test.choose(u"Option1(2)"_s, 0);
        test.box(u"Text2"_s)->setPlainText(u"TYPED"_s);
        const auto save = [&](Answer unseen) {
            test.boxes.shown.clear();
            test.boxes.answers = {Answer::Ok, unseen};
            test.click(u"cmdSave"_s);
            return test.boxes.shown.size() > 1;
        };
        QVERIFY(save(Answer::Cancel) && test.said().contains(test.path(note)));
        QCOMPARE(test.boxes.captions.last().again, u"&Rileggi"_s);
        QCOMPARE(test.read(note), byHand);
        test.write(note, "\"EDITOR\"\r\n"); // meanwhile
        QVERIFY(save(Answer::Again));
        QCOMPARE(test.notes(u"Text2"_s), u"EDITOR"_s);
        QTest::keyClick(test.box(u"Text2"_s), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(test.notes(u"Text2"_s), u"TYPED"_s);
        test.box(u"Text2"_s)->setPlainText(u"TYPED AGAIN"_s);
        QVERIFY(!save(Answer::Ok)); // it has been seen
        QCOMPARE(test.read(note), "\"TYPED AGAIN\"\r\n");
        QVERIFY(!save(Answer::Ok)); // and is the program's own
        test.write(note, byHand);
        QVERIFY(!save(Answer::Ok)); // asked about before
        test.write(note, "LATER");
        QVERIFY(save(Answer::Ok));
        QCOMPARE(test.read(note), "\"TYPED AGAIN\"\r\n");
    }

    void whatIsTypedAndNotSavedIsOfferedAgain() {
        Viewer test;
        const auto sign = [&](int row) {
            const auto* rows = test.control<QListView>(u"List1"_s)->model();
            return !rows->index(row, 0).data(Qt::AccessibleDescriptionRole).toString().isEmpty();
        };
        const auto offered = [&](const QString& box) { return test.box(box)->accessibleDescription(); };
        const auto press = [&](const QString& box, Qt::Key key, Qt::KeyboardModifiers with = {}) {
            QTest::keyClick(test.box(box), key, with);
        };
        test.choose(u"Option1(0)"_s, 1);
        QTest::keyClicks(test.box(u"Text1"_s), u"prua"_s); // empty
        QTest::keyClicks(test.box(u"Text2"_s), u"x"_s);    // before what is saved
        QVERIFY(sign(1) && !sign(2) && offered(u"Text1"_s).isEmpty());
        QTRY_VERIFY(test.read(u"Stato/drafts"_s).contains("PRUA") &&
                    test.read(u"Stato/drafts"_s).contains("XVIA"));

        test.stop(); // and what was typed last
        test.start();
        test.openViewer(u"LIRF"_s);
        test.choose(u"Option1(0)"_s, 2);
        QVERIFY(sign(1) && offered(u"Text1"_s).isEmpty());
        test.clickRow(u"List1"_s, 1);
        QCOMPARE(test.notes(u"Text1"_s) + test.notes(u"Text2"_s), u"VIA OST\nDRITTO"_s);
        QVERIFY(offered(u"Text1"_s).contains(u"«PRUA»"_s) && offered(u"Text2"_s).contains(u"XVIA OST"_s));
        press(u"Text1"_s, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(test.notes(u"Text1"_s), u"PRUA"_s);
        press(u"Text1"_s, Qt::Key_Z, Qt::ControlModifier); // takes it back out
        QCOMPARE(test.notes(u"Text1"_s), QString());
        QVERIFY(offered(u"Text1"_s).contains(u"«PRUA»"_s));
        press(u"Text2"_s, Qt::Key_Escape);
        QVERIFY(sign(1) && offered(u"Text2"_s).isEmpty());
        press(u"Text1"_s, Qt::Key_Z, Qt::ControlModifier);
        test.click(u"cmdSave"_s);
        QVERIFY(!sign(1));
        test.clickRow(u"List1"_s, 1);
        QVERIFY(offered(u"Text1"_s).isEmpty());
        QCOMPARE(test.notes(u"Text1"_s), u"PRUA"_s);
    }

    void savingNeedsAChartOfTheListAndWhatCanBeStored() {
        Viewer test;
        test.choose(u"Option1(0)"_s, 1);
        test.box(u"Text1"_s)->insertPlainText(u"\u2192 OST"_s);
        test.click(u"cmdSave"_s);
        QVERIFY(test.said().contains(u"«\u2192»"_s));
        QVERIFY(!QFile::exists(test.path(u"aeroporti/LIRF/Sid/ALTITUDINE_KENN1.txt"_s)));
        QCOMPARE(test.notes(u"Text1"_s), u"\u2192 OST"_s);
        test.click(u"Option1(2)"_s);
        test.click(u"cmdSave"_s);
        QVERIFY(test.said().contains(u"Scegli prima una cartina"_s));
        QVERIFY(!QFile::exists(test.path(u"aeroporti/LIRF/Approach/MISSED_KENN1.txt"_s)));
    }

    void zoomAndScrollMoveTheChart() {
        Viewer test;
        test.choose(u"Option1(0)"_s, 1);
        QWidget* chart = test.control(u"Image1"_s);
        auto* across = test.control<QScrollBar>(u"HScroll1"_s);
        QTest::mousePress(across, Qt::LeftButton, {}, {24, 8});
        QTest::mouseMove(across, {120, 8}); // the thumb, still held
        QVERIFY(chart->x() < -50 && chart->x() == -across->value());
        QTest::mouseRelease(across, Qt::LeftButton, {}, {120, 8});
        across->setValue(300);
        // 600 / 15 / 4 = 10 further, 300 / 60 = 5.
        QTest::mouseClick(chart, Qt::LeftButton, {}, QPoint(600, 300));
        QCOMPARE(chart->geometry(), QRect(-310, -6, 1000, 1375));
        QTest::mouseClick(chart, Qt::RightButton, {}, QPoint(600, 300));
        QCOMPARE(chart->geometry(), QRect(-300, -1, 750, 1031));
        for (int step = 0; step < 10; ++step) test.click(u"Command1"_s);
        QCOMPARE(test.beeper.beeps, 0);
        test.click(u"Command1"_s);
        QCOMPARE(test.beeper.beeps, 1);
    }

    void everySelectedRowIsTheChosenChart() {
        Viewer test;
        test.choose(u"Option1(0)"_s, 1);
        auto* list = test.control<QListView>(u"List1"_s);
        const auto placeOf = [list](int row) {
            return list->visualRect(list->model()->index(row, 0)).center();
        };
        const auto marked = [list] {
            return list->selectionModel()->selectedIndexes().value(0).data().toString();
        };
        const auto chosen = [&test] { return test.program().viewWindow().ChartName; };
        QTest::mouseClick(list->viewport(), Qt::RightButton, {}, placeOf(2));
        QCOMPARE(marked(), u"KENN1"_s);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::ControlModifier, placeOf(2));
        QCOMPARE(chosen(), u"ZETA"_s);
        // Keys only look around, and so does a drag from where there is no row.
        list->setFocus();
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Home, Qt::Key_K}) {
            QTest::keyClick(list, key);
            QCOMPARE(marked(), u"ZETA"_s);
        }
        const QPoint below(20, list->viewport()->height() - 5);
        QTest::mousePress(list->viewport(), Qt::LeftButton, {}, below);
        QTest::mouseMove(list->viewport(), placeOf(0));
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, placeOf(0));
        QCOMPARE(marked(), u"ZETA"_s);
        QTest::keyClick(list, Qt::Key_Return);
        QVERIFY(QFile::remove(test.path(u"aeroporti/LIRF/Sid/zeta.gif"_s)));
        QTest::keyClick(list, Qt::Key_Down);
        QTest::keyClick(list, Qt::Key_Return);
        QVERIFY(test.said().contains(u"ZETA.gif"_s));
        QCOMPARE(chosen() + marked(), u"KENN1KENN1"_s);
        QCOMPARE(list->currentIndex().row(), 2); // from where the keys go on
        // Until a chart of the new list is chosen none of it is marked, be it found by the Tab key.
        test.click(u"Option1(2)"_s);
        list->setFocus(Qt::TabFocusReason);
        QCOMPARE(marked(), QString());
        QTest::keyClick(list, Qt::Key_Space);
        QCOMPARE(marked(), u"ILS16"_s);
    }

    void namesTooLongForTheListAreTheirTips() {
        Viewer test;
        const QString name = u"PARTENZA "_s.repeated(9) + u"<B>1"_s;
        test.addChart(u"aeroporti/LIRF/Star/%1.gif"_s.arg(name), {20, 20});
        test.click(u"Option1(1)"_s);
        auto* list = test.control<QListView>(u"List1"_s);
        const auto tip = [&](int row) {
            QToolTip::hideText();
            const QPoint place = list->visualRect(list->model()->index(row, 0)).center();
            QHelpEvent help(QEvent::ToolTip, place, list->viewport()->mapToGlobal(place));
            QCoreApplication::sendEvent(list->viewport(), &help);
            return help.isAccepted() ? QToolTip::text() : QString();
        };
        QCOMPARE(tip(1), name);
        QCOMPARE(tip(0), QString());
        // What the list passes over is told where its user looks.
        for (const auto& file : {u"A.PDF"_s, u"b.jpeg"_s, u"note.txt"_s})
            test.write(u"aeroporti/LIRF/Star/"_s + file, "x");
        test.click(u"Option1(2)"_s);
        test.click(u"Option1(1)"_s);
        QVERIFY(tip(0).contains(u"non mostra: 2."_s) && list->accessibleDescription() == tip(0));
        QCOMPARE(tip(1), name);
    }

    void activationClearsTheFamilyOnly() {
        Viewer test;
        test.choose(u"Option1(0)"_s, 1);
        test.program().state().CurrentAirport = u"  LIRF "_s;
        QEvent comeBack(QEvent::WindowActivate);
        QCoreApplication::sendEvent(test.viewWindow(), &comeBack);
        QVERIFY(!test.control<QAbstractButton>(u"Option1(0)"_s)->isChecked());
        QVERIFY(test.viewWindow()->windowTitle().startsWith(u"Quarvel - CARTINE DI LIRF  "_s));
        QCOMPARE(test.notes(u"Text2"_s), u"VIA OST\nDRITTO"_s);
        // The same family is a new choice now, and reads the folder afresh.
        test.program().state().CurrentAirport = u"LIRF"_s;
        test.addChart(u"aeroporti/LIRF/Sid/nuova.gif"_s, {20, 20});
        test.click(u"Option1(0)"_s);
        QCOMPARE(test.rows(u"List1"_s).size(), 4);
    }
};

QTEST_MAIN(ViewWindowTest)
#include "tst_view_window.moc"
