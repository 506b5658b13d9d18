#include "user.h"

#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace breaking {
namespace {

constexpr int lookMilliseconds = 1;
constexpr int draftMilliseconds = 1500; // until what was typed is on the disk as a draft

QWidget* window(const QString& name) {
    for (QWidget* each : QApplication::topLevelWidgets())
        if (each->objectName() == name && each->isVisible()) return each;
    qFatal("no window %s", qPrintable(name));
}

void waitFor(const QString& name) {
    if (!QTest::qWaitForWindowExposed(window(name))) qFatal("%s does not open", qPrintable(name));
}

template <class Widget = QWidget>
Widget* control(const QString& in, const QString& name) {
    auto* found = window(in)->findChild<Widget*>(name);
    if (found == nullptr) qFatal("no control %s", qPrintable(name));
    return found;
}

void click(const QString& in, const QString& name) { QTest::mouseClick(control(in, name), Qt::LeftButton); }

void clickRow(const QString& in, const QString& list, int row) {
    auto* view = control<QListView>(in, list);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      view->visualRect(view->model()->index(row, 0)).center());
}

/// Answers each box that opens while it lives: yes, whatever is asked.
class Answering : public QTimer {
public:
    explicit Answering(QStringList& boxes) : boxes_(boxes) {
        callOnTimeout([this] { look(); });
        start(lookMilliseconds);
    }

private:
    void look() {
        auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) return;
        boxes_.append(box->text() + u'\n' + box->informativeText());
        QAbstractButton* yes = box->button(QMessageBox::Ok);
        if (yes == nullptr) yes = box->button(QMessageBox::Yes);
        yes->click();
    }
    QStringList& boxes_;
};

void typeName(const QString& name) {
    waitFor(u"frmMain"_s);
    QTest::keyClicks(control(u"frmMain"_s, u"txtNomeAeroporto"_s), name);
}

void prepareRecord() {
    QStringList boxes;
    const Answering answering(boxes);
    typeName(u"LIRN"_s);
    click(u"frmMain"_s, u"cmdElabora"_s);
    for (int field = 0; field < 39; ++field)
        control<QLineEdit>(u"frmMain"_s, u"txtRwy(%1)"_s.arg(field))->setText(u"%1"_s.arg(field % 36 + 1));
    control<QLineEdit>(u"frmMain"_s, u"txtRwy(38)"_s)->setText(u"LIRN"_s);
}

void prepareNotes(int chart) {
    typeName(u"LIRF"_s);
    clickRow(u"frmMain"_s, u"lstWords"_s, 0);
    click(u"frmMain"_s, u"cmdGrafica"_s);
    waitFor(u"frmView"_s);
    click(u"frmView"_s, u"Option1(0)"_s);
    clickRow(u"frmView"_s, u"List1"_s, chart);
    for (const auto& box : {u"Text1"_s, u"Text2"_s, u"Text3"_s}) {
        auto* text = control<QPlainTextEdit>(u"frmView"_s, box);
        text->selectAll();
        QTest::keyClicks(text, u"NUOVA NOTA "_s + box);
    }
}

} // namespace

void prepare(Saving what) {
    constexpr int allNotes = 1, twoNotes = 2; // the rows of charts with so many of their files
    waitFor(u"frmMain"_s);
    switch (what) {
    case Saving::NewRecord:
    case Saving::Record: prepareRecord(); break;
    case Saving::Notes: prepareNotes(allNotes); break;
    case Saving::NewNotes: prepareNotes(twoNotes); break;
    case Saving::Language: return;
    }
    QTest::qWait(draftMilliseconds); // the thread that writes it would not come along into a child
}

void save(Saving what, QStringList& boxes) {
    const Answering answering(boxes);
    for (QWidget* each : QApplication::topLevelWidgets()) each->setUpdatesEnabled(false); // nobody looks
    switch (what) {
    case Saving::NewRecord:
    case Saving::Record: click(u"frmMain"_s, u"cmdSave"_s); break;
    case Saving::Notes:
    case Saving::NewNotes: click(u"frmView"_s, u"cmdSave"_s); break;
    case Saving::Language: click(u"frmMain"_s, u"ImgLingua(1)"_s); break;
    }
    QApplication::processEvents();
}

} // namespace breaking
