#include "forms/text_box.h"
#include "forms/typing.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTextDocument>
#include <QTextOption>
#include <algorithm>
#include <limits>

namespace quarvel {
namespace {

class NotesEdit : public QPlainTextEdit {
public:
    explicit NotesEdit(TextBoxEvents& events) : events_(events) {}
    int longest = 0;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        const bool inserts =
            !event->text().isEmpty() && (event->text().front().isPrint() || event->key() == Qt::Key_Return ||
                                         event->key() == Qt::Key_Enter || event->key() == Qt::Key_Tab);
        if (inserts && !(event->modifiers() & Qt::ControlModifier) && room() < 1) return;
        QKeyEvent filtered = filteredKeyPress(events_, *event);
        QPlainTextEdit::keyPressEvent(&filtered);
        event->setAccepted(filtered.isAccepted());
    }
    void inputMethodEvent(QInputMethodEvent* event) override {
        QInputMethodEvent filtered(event->preeditString(), event->attributes());
        filtered.setCommitString(filteredKeys(events_, event->commitString()).left(room()),
                                 event->replacementStart(), event->replacementLength());
        QPlainTextEdit::inputMethodEvent(&filtered);
    }
    void keyReleaseEvent(QKeyEvent* event) override {
        QPlainTextEdit::keyReleaseEvent(event);
        if (!event->isAutoRepeat()) events_.keyUp.raise(event->key());
    }
    void focusOutEvent(QFocusEvent* event) override {
        QPlainTextEdit::focusOutEvent(event);
        if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
            events_.lostFocus.raise();
    }
    void insertFromMimeData(const QMimeData* source) override {
        if (source->hasText()) insertPlainText(source->text().left(room()));
    }

private:
    /// How many characters can still be typed or pasted over the selection.
    [[nodiscard]] qsizetype room() const {
        if (longest == 0) return std::numeric_limits<qsizetype>::max();
        const qsizetype kept = document()->characterCount() - 1 - textCursor().selectedText().size();
        return std::max<qsizetype>(0, longest - kept);
    }

    TextBoxEvents& events_;
};

} // namespace

MultiLineTextBox::MultiLineTextBox(Container& container, const ControlSpec& spec)
    : WidgetControl(container, spec, new NotesEdit(events)) {
    edit().setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    edit().setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    edit().setTabChangesFocus(true);
    QTextOption option = edit().document()->defaultTextOption();
    option.setAlignment(spec.align & Qt::AlignHorizontal_Mask);
    edit().document()->setDefaultTextOption(option);
}

QPlainTextEdit& MultiLineTextBox::edit() const { return static_cast<QPlainTextEdit&>(widget()); }

QString MultiLineTextBox::text() const {
    // The plain text would turn no-break blanks into blanks; a note keeps every character it has.
    QString text = edit().document()->toRawText();
    return text.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

void MultiLineTextBox::setText(const QString& text) { edit().setPlainText(text); }

void MultiLineTextBox::setLongestTyped(int characters) {
    static_cast<NotesEdit&>(edit()).longest = characters;
}

void MultiLineTextBox::setEditing(Editing editing) { edit().setReadOnly(editing == Editing::Locked); }

bool MultiLineTextBox::isLocked() const { return edit().isReadOnly(); }

} // namespace quarvel
