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
    void clicked() { ++clicks; }
    void capital(char16_t& key) { key = UpperCaseKey(key); }
};

/// A text box that takes four characters.
struct Short : Inside {
    TextBox box{*this, {.name = "box", .place = {0, 0, 1500, 450}}};
    QLineEdit& edit = static_cast<QLineEdit&>(box.widget());
    Short() { box.setLongestTyped(4); }
};

} // namespace

/// The window kit, where the toolkit's own behaviour would differ from what the windows need.
class FormsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void longerStoredTextStaysWholeAndMayOnlyShrink() {
        Short window;
        window.box.setText(u"09 LEFT"_s);
        window.edit.end(false);
        QTest::keyClicks(&window.edit, u"X"_s);
        QCOMPARE(window.box.text(), u"09 LEFT"_s);
        QTest::keyClick(&window.edit, Qt::Key_Backspace);
        QTest::keyClicks(&window.edit, u"XY"_s);
        QCOMPARE(window.box.text(), u"09 LEF"_s);
    }

    void pastedTextEndsAtTheLengthOrALineBreak() {
        Short window;
        QTest::keyClicks(&window.edit, u"AB"_s);
        window.edit.setCursorPosition(1);
        QGuiApplication::clipboard()->setText(u"N4567\r\nE9"_s);
        window.edit.paste();
        QTest::keyClicks(&window.edit, u"X"_s);
        QCOMPARE(window.box.text(), u"AN4B"_s);
    }

    void notesStopAtTheirLength() {
        Inside window;
        MultiLineTextBox box(window, {.name = "box", .place = {0, 0, 3000, 1500}});
        box.setLongestTyped(10);
        auto& edit = static_cast<QPlainTextEdit&>(box.widget());
        QTest::keyClicks(&edit, u"12345678"_s);
        QGuiApplication::clipboard()->setText(u"abcdef"_s);
        edit.paste();
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(box.text(), u"12345678ab"_s);
        edit.selectAll();
        QTest::keyClicks(&edit, u"x"_s);
        QCOMPARE(box.text(), u"x"_s);
        box.setText(QString(20, u'y')); // a stored note is shown whole
        QCOMPARE(box.text().size(), 20);
    }

    void typedLettersAreFilteredAndPastedOnesAreNot() {
        Short window;
        Handlers handlers;
        window.box.setLongestTyped(10);
        window.box.events.keyPress.calls(&handlers, &Handlers::capital);
        QTest::keyClicks(&window.edit, u"aZ{"_s);
        QGuiApplication::clipboard()->setText(u"abc"_s);
        window.edit.paste();
        QInputMethodEvent committed;
        committed.setCommitString(u"k\u00E8"_s); // an on-screen keyboard or a dead key
        QCoreApplication::sendEvent(&window.edit, &committed);
        QCOMPARE(window.box.text(), u"AZ{abcK\u00E8"_s);
    }

    void aSelectedRowCanBeClickedAgain() {
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
};

QTEST_MAIN(FormsTest)
#include "tst_forms.moc"
