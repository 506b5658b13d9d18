#include "forms/list_box.h"
#include "forms/look.h"
#include "forms/text_box.h"
#include "text/key_filter.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFile>
#include <QHelpEvent>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <QUrl>
#include <sys/stat.h>
#include <tuple>

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
    int cuts = 0;
    void clicked() { ++clicks; }
    void cut() { ++cuts; }
    void capital(char16_t& key) { key = UpperCaseKey(key); }
};

/// A text box that takes four characters.
struct Short : Inside {
    TextBox box{*this, {.name = "box", .place = {0, 0, 1500, 450}}};
    QLineEdit& edit = static_cast<QLineEdit&>(box.widget());
    Handlers handlers;
    Short() {
        box.setLongestTyped(4);
        box.events.cut.calls(&handlers, &Handlers::cut);
    }
};

/// Two boxes of ten characters to drag between, and one line of four.
struct Dragging : Inside {
    MultiLineTextBox from{*this, {.name = "from", .place = {0, 0, 3000, 1500}, .align = Qt::AlignLeft}};
    MultiLineTextBox to{*this, {.name = "to", .place = {0, 1600, 3000, 1500}, .align = Qt::AlignLeft}};
    TextBox line{*this, {.name = "line", .place = {0, 3200, 3000, 450}}};
    Handlers handlers;

    Dragging() {
        line.setLongestTyped(4);
        line.events.cut.calls(&handlers, &Handlers::cut);
        for (MultiLineTextBox* box : {&from, &to}) {
            box->setLongestTyped(10);
            box->events.cut.calls(&handlers, &Handlers::cut);
        }
        show();
    }

    /// Drags the first characters of a box to the end of another control's text. The source does what the
    /// toolkit's own does: what was moved leaves it.
    static void drag(const MultiLineTextBox& source, int characters, QWidget& target) {
        auto& edit = static_cast<QPlainTextEdit&>(source.widget());
        QTextCursor selected(edit.document());
        selected.setPosition(characters, QTextCursor::KeepAnchor);
        edit.setTextCursor(selected);
        edit.copy();
        const QMimeData* const text = QGuiApplication::clipboard()->mimeData();
        if (drop(*text, target) == Qt::MoveAction) selected.removeSelectedText();
    }

    /// What becomes of a drop that its source lets be moved or copied, and would move.
    static Qt::DropAction drop(const QMimeData& dropped, QWidget& target) {
        auto* const notes = qobject_cast<QPlainTextEdit*>(&target);
        QWidget& over = notes != nullptr ? *notes->viewport() : target;
        const QPoint end(over.width() - 25, over.height() / 2);
        constexpr auto actions = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter(end, actions, &dropped, Qt::LeftButton, Qt::ShiftModifier);
        QCoreApplication::sendEvent(&over, &enter);
        QDropEvent event(end, actions, &dropped, Qt::LeftButton, Qt::ShiftModifier);
        QCoreApplication::sendEvent(&over, &event);
        return event.isAccepted() && event.dropAction() == enter.dropAction() ? event.dropAction()
                                                                              : Qt::IgnoreAction;
    }
};

} // namespace

/// The window kit, where the toolkit's own behaviour would differ from what the windows need.
class FormsTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aTextIsNeverAPageThatNamesFiles() {
        applyProgramLook(*qApp);
        QTemporaryDir folder;
        const QString pipe = folder.filePath(u"pipe"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        Inside window;
        window.show();
        for (const QString& source : {u":/pictures/box_error.png"_s, pipe, u"/dev/zero"_s}) {
            const QString text = u"<img src='%1' height=500>"_s.arg(source);
            ListBox list(window, {.name = "list", .place = {0, 0, 1500, 1500}});
            list.setToolTip(text);
            list.setHint(text);
            QHelpEvent help(QEvent::ToolTip, {5, 5}, window.mapToGlobal(QPoint(5, 5)));
            QCoreApplication::sendEvent(&list.widget(), &help);
            QMessageBox box(&window);
            box.setText(text);
            box.setInformativeText(text);
            box.show();
            for (const QWidget* shown : QApplication::topLevelWidgets())
                QVERIFY2(!shown->isVisible() || shown->height() < 400, shown->metaObject()->className());
            QCOMPARE(QToolTip::text(), text);
        }
    }

    void scrollBarsHaveNoMenuOfTheToolkit() {
        applyProgramLook(*qApp);
        Inside window;
        MultiLineTextBox box(window, {.name = "box", .place = {0, 0, 3000, 1500}});
        QScrollBar* const bar = static_cast<QPlainTextEdit&>(box.widget()).verticalScrollBar();
        bool opened = false;
        QTimer::singleShot(0, bar, [&opened] {
            QWidget* const menu = QApplication::activePopupWidget();
            opened = menu != nullptr && menu->close();
        });
        QContextMenuEvent request(QContextMenuEvent::Mouse, {5, 5}, bar->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(bar, &request);
        QVERIFY(!opened);
    }

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
        window.edit.clear();
        QGuiApplication::clipboard()->setText(u"N4\r\n"_s); // a cell of a table: no word of it is lost
        window.edit.paste();
        QCOMPARE(window.handlers.cuts, 1);
    }

    void nothingLeavesADraggedTextsSourceUnlessAllArrives_data() {
        QTest::addColumn<QStringList>("texts"); // from and to before, from and the target afterwards
        QTest::addColumn<int>("characters");
        QTest::addColumn<QString>("target");
        QTest::addColumn<int>("told");
        const QList<std::tuple<const char*, QStringList, int, QString, int>> rows = {
            {"what fits moves", {u"abc"_s, u"123"_s, u"c"_s, u"123ab"_s}, 2, u"to"_s, 0},
            {"what does not fit stays", {u"abc"_s, u"123456789"_s, u"abc"_s, u"123456789a"_s}, 3, u"to"_s, 1},
            {"to a box that is full", {u"abc"_s, u"1234567890"_s, u"abc"_s, u"1234567890"_s}, 3, u"to"_s, 1},
            {"no-break blanks too", {u"a\u00A0b"_s, {}, {}, u"a\u00A0b"_s}, 3, u"to"_s, 0},
            {"to a shorter line", {u"abcdef"_s, {}, u"abcdef"_s, u"abcd"_s}, 6, u"line"_s, 1},
            {"lines to one line", {u"a\nb"_s, {}, u"a\nb"_s, u"a"_s}, 3, u"line"_s, 1},
        };
        for (const auto& [name, texts, characters, target, told] : rows)
            QTest::newRow(name) << texts << characters << target << told;
    }
    void nothingLeavesADraggedTextsSourceUnlessAllArrives() {
        QFETCH(QStringList, texts);
        QFETCH(int, characters);
        QFETCH(QString, target);
        Dragging window;
        window.from.setText(texts[0]);
        window.to.setText(texts[1]);
        Dragging::drag(window.from, characters, *window.findChild<QWidget*>(target));
        QCOMPARE(window.from.text(), texts[2]);
        QCOMPARE(target == u"to"_s ? window.to.text() : window.line.text(), texts[3]);
        QTEST(window.handlers.cuts, "told");
    }

    void aLockedBoxTakesNothing() {
        Dragging window;
        window.from.setText(u"abc"_s);
        window.to.setEditing(Editing::Locked);
        Dragging::drag(window.from, 2, window.to.widget());
        QCOMPARE(window.from.text() + window.to.text(), u"abc"_s);
    }

    void aDraggedFileStaysWhereItIs() {
        Dragging window;
        QMimeData file;
        file.setUrls({QUrl(u"file:///tmp/a"_s)});
        window.to.setLongestTyped(0);
        QCOMPARE(Dragging::drop(file, window.to.widget()), Qt::CopyAction);
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
