#include "forms/button.h"
#include "forms/frame.h"
#include "forms/list_box.h"
#include "forms/text_box.h"
#include "text/key_filter.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QTest>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

/// A plain window to lay controls in.
struct Inside : QWidget, Container {
    std::vector<Control*> all;
    Inside() : Container(*this, scaleTwips, all) { resize(400, 300); }
};

struct Handlers {
    int clicks = 0;
    int losses = 0;
    void clicked() { ++clicks; }
    void lost() { ++losses; }
    void capital(char16_t& key) { key = UpperCaseKey(key); }
};

} // namespace

/// The window kit, where the toolkit's own behaviour would differ from what the windows need.
class FormsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void lengthLimitsTypingAndPasting_data();
    void lengthLimitsTypingAndPasting();
    void longerStoredTextStaysWholeAndMayOnlyShrink();
    void pastedTextEndsAtItsFirstLineBreak();
    void notesStopAtTheirLength();
    void typedLettersAreFilteredAndPastedOnesAreNot();
    void aSelectedRowCanBeClickedAgain();
    void rowsAreMadeOnlyWhenShown();
    void earlierControlsStandInFront();
    void measuresAreKeptUnrounded();
};

void FormsTest::lengthLimitsTypingAndPasting_data() {
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<QString>("after");
    QTest::newRow("room for all") << u"A"_s << u"BC"_s << u"ABC"_s;
    QTest::newRow("the end of what is pasted goes") << u"AB"_s << u"XYZ"_s << u"ABXY"_s;
    QTest::newRow("full") << u"ABCD"_s << u"X"_s << u"ABCD"_s;
}

void FormsTest::lengthLimitsTypingAndPasting() {
    QFETCH(QString, before);
    QFETCH(QString, pasted);
    Inside window;
    TextBox box(window, {.name = "box", .place = {0, 0, 1500, 450}});
    box.setLongestTyped(4);
    auto& edit = static_cast<QLineEdit&>(box.widget());
    QTest::keyClicks(&edit, before);
    QGuiApplication::clipboard()->setText(pasted);
    edit.paste();
    QTEST(box.text(), "after");
}

void FormsTest::longerStoredTextStaysWholeAndMayOnlyShrink() {
    Inside window;
    TextBox box(window, {.name = "box", .place = {0, 0, 1500, 450}});
    box.setLongestTyped(3);
    box.setText(u"09 LEFT"_s);
    auto& edit = static_cast<QLineEdit&>(box.widget());
    edit.end(false);
    QTest::keyClicks(&edit, u"X"_s);
    QCOMPARE(box.text(), u"09 LEFT"_s);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClicks(&edit, u"XY"_s);
    QCOMPARE(box.text(), u"09 LEF"_s);
}

void FormsTest::pastedTextEndsAtItsFirstLineBreak() {
    Inside window;
    TextBox box(window, {.name = "box", .place = {0, 0, 1500, 450}});
    auto& edit = static_cast<QLineEdit&>(box.widget());
    QGuiApplication::clipboard()->setText(u"N45\r\nE9"_s);
    QTest::keyClicks(&edit, u"AB"_s);
    edit.setCursorPosition(1);
    edit.paste();
    QCOMPARE(box.text(), u"AN45B"_s);
    box.setText(QString(40000, u'x') + u"\n"_s); // what is stored is shown whole
    QCOMPARE(box.text().size(), 40001);
}

void FormsTest::notesStopAtTheirLength() {
    Inside window;
    MultiLineTextBox box(window, {.name = "box", .place = {0, 0, 3000, 1500}});
    box.setLongestTyped(10);
    auto& edit = static_cast<QPlainTextEdit&>(box.widget());
    edit.setPlainText(u"12345678"_s);
    edit.moveCursor(QTextCursor::End);
    QGuiApplication::clipboard()->setText(u"abcdef"_s);
    edit.paste();
    QCOMPARE(box.text(), u"12345678ab"_s);
    QTest::keyClicks(&edit, u"x"_s);
    QTest::keyClick(&edit, Qt::Key_Return);
    QCOMPARE(box.text(), u"12345678ab"_s);
    edit.selectAll();
    QTest::keyClicks(&edit, u"x"_s);
    QCOMPARE(box.text(), u"x"_s);
    box.setText(QString(20, u'y')); // a stored note is shown whole
    QCOMPARE(box.text().size(), 20);
}

void FormsTest::typedLettersAreFilteredAndPastedOnesAreNot() {
    Inside window;
    Handlers handlers;
    TextBox box(window, {.name = "box", .place = {0, 0, 1500, 450}});
    box.events.keyPress.calls(&handlers, &Handlers::capital);
    auto& edit = static_cast<QLineEdit&>(box.widget());
    QTest::keyClicks(&edit, u"aZ{"_s);
    QGuiApplication::clipboard()->setText(u"abc"_s);
    edit.paste();
    QInputMethodEvent committed;
    committed.setCommitString(u"k\u00E8"_s); // an on-screen keyboard or a dead key
    QCoreApplication::sendEvent(&edit, &committed);
    QCOMPARE(box.text(), u"AZ{abcK\u00E8"_s);
}

void FormsTest::aSelectedRowCanBeClickedAgain() {
    Inside window;
    Handlers handlers;
    ListBox list(window, {.name = "list", .place = {0, 0, 3000, 3000}});
    list.clicked.calls(&handlers, &Handlers::clicked);
    list.setItems({u"A"_s, u"B"_s});
    window.show();
    auto& view = static_cast<QListView&>(list.widget());
    const QPoint second = view.visualRect(view.model()->index(1, 0)).center();
    for (int time = 0; time < 2; ++time) QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, second);
    QTest::keyClick(&view, Qt::Key_Return);
    QCOMPARE(handlers.clicks, 3);
    QCOMPARE(list.selectedText(), u"B"_s);
    list.setItems({u"C"_s});
    QCOMPARE(list.selectedText(), QString());
}

void FormsTest::rowsAreMadeOnlyWhenShown() {
    Inside window;
    int made = 0;
    ListBox list(window, {.name = "list", .place = {0, 0, 3000, 3000}});
    list.setRows(50000, [&made](int row) { return ++made, QString::number(row); });
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCoreApplication::processEvents();
    QVERIFY2(made < 500, qPrintable(QString::number(made)));
}

void FormsTest::earlierControlsStandInFront() {
    Inside window;
    Frame first(window, {.name = "first", .place = {0, 0, 1500, 1500}});
    Frame second(window, {.name = "second", .place = {0, 0, 1500, 1500}});
    window.show();
    QCOMPARE(window.childAt(50, 50), &first.widget());
}

void FormsTest::measuresAreKeptUnrounded() {
    Inside window;
    PictureBox box(window, {.name = "box", .place = {0, 0, 3000, 3000}}, scalePixels);
    Frame inner(box, {.name = "inner", .place = {120, 0, 1260, 1410}});
    QCOMPARE(*inner.measure(Measure::Width), 84.0); // pixels, the box's inner unit
    QCOMPARE(inner.setMeasure(Measure::Left, 10.4), Setting::Done);
    QCOMPARE(*inner.measure(Measure::Left), 10.4);
    QCOMPARE(inner.widget().x(), 10);
    QCOMPARE(inner.setMeasure(Measure::Width, -1), Setting::Failed);
    QCOMPARE(*inner.measure(Measure::Width), 84.0);
}

QTEST_MAIN(FormsTest)
#include "tst_forms.moc"
