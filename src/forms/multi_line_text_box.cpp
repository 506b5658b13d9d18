#include "forms/hint.h"
#include "forms/text_box.h"
#include "forms/typing.h"

#include <QDropEvent>
#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QTextDocument>
#include <QTextOption>
#include <algorithm>
#include <limits>
#include <memory>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

/// A document's text with every character it has: the toolkit's plain text turns no-break blanks into blanks.
QString withLineFeeds(QString raw) {
    return raw.replace(QChar::ParagraphSeparator, u'\n').replace(QChar::LineSeparator, u'\n');
}

/// A text as it will stand in the document: a line break is one character there.
QString pastedText(const QMimeData& source) { return source.text().replace("\r\n"_L1, "\n"_L1); }

class NotesEdit : public QPlainTextEdit {
public:
    explicit NotesEdit(TextBoxEvents& events) : events_(events) {}
    int longest = 0;
    bool settingText = false; ///< the program changes the text, not the user

    void showOffer(const MultiLineTextBox::Offer& offer) {
        if (offer.hint.isEmpty() && events_.offered == Offered::No) return;
        const bool empty = document()->isEmpty();
        hint_.showText(empty ? offer.hint : QString());
        strip_.showText(empty ? QString() : offer.strip);
        setAccessibleDescription(offer.hint);
        // The text ends above the strip, so that its last line can still be seen.
        setViewportMargins(0, 0, 0, strip_.height());
        events_.offered = offer.hint.isEmpty() ? Offered::No : Offered::Yes;
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        const OwnUndo undo = document()->isUndoAvailable() ? OwnUndo::Something : OwnUndo::Nothing;
        if (!isReadOnly() && isUsedByOffer(events_, *event, undo)) return;
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
    void resizeEvent(QResizeEvent* event) override {
        QPlainTextEdit::resizeEvent(event);
        strip_.placeBelow(viewport()->geometry());
    }
    void focusOutEvent(QFocusEvent* event) override {
        QPlainTextEdit::focusOutEvent(event);
        if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
            events_.lostFocus.raise();
    }
    QMimeData* createMimeDataFromSelection() const override {
        auto selection = std::make_unique<QMimeData>();
        selection->setText(withLineFeeds(textCursor().selectedText()));
        return selection.release();
    }
    void insertFromMimeData(const QMimeData* source) override {
        if (!source->hasText()) return;
        const QString text = pastedText(*source);
        const qsizetype taken = movesInside_ ? text.size() : std::min(text.size(), room());
        insertPlainText(text.left(taken));
        if (hasWordsFrom(text, taken)) events_.cut.raise();
    }
    void dragEnterEvent(QDragEnterEvent* event) override {
        QPlainTextEdit::dragEnterEvent(event);
        answerDrop(*event, kindOf(*event));
    }
    void dragMoveEvent(QDragMoveEvent* event) override {
        QPlainTextEdit::dragMoveEvent(event);
        answerDrop(*event, kindOf(*event));
    }
    void dropEvent(QDropEvent* event) override {
        const DropKind kind = kindOf(*event);
        const QScopedValueRollback inside(movesInside_, comesFromInside(*event));
        if (kind != DropKind::Refused) QPlainTextEdit::dropEvent(event);
        answerDrop(*event, kind);
    }

private:
    /// How many characters can still be typed or pasted over the selection.
    [[nodiscard]] qsizetype room() const { return roomBeside(textCursor().selectedText().size()); }

    /// The same where something else than the selection goes.
    [[nodiscard]] qsizetype roomBeside(qsizetype going) const {
        if (longest == 0) return std::numeric_limits<qsizetype>::max();
        const qsizetype kept = document()->characterCount() - 1 - going;
        return std::max<qsizetype>(0, longest - kept);
    }

    /// A text that is moved inside the box makes the room that it needs, be the box fuller than it may be.
    [[nodiscard]] bool comesFromInside(const QDropEvent& event) const {
        return event.source() == viewport() && event.proposedAction() == Qt::MoveAction;
    }
    [[nodiscard]] DropKind kindOf(const QDropEvent& event) const {
        return dropKind(event,
                        comesFromInside(event) || pastedText(*event.mimeData()).size() <= roomBeside(0));
    }

    bool movesInside_ = false;
    TextBoxEvents& events_;
    Hint hint_{*viewport()};
    Strip strip_{*this};
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
    QObject::connect(&edit(), &QPlainTextEdit::textChanged, &edit(), [this] {
        if (!static_cast<NotesEdit&>(edit()).settingText) events.edited.raise();
    });
}

QPlainTextEdit& MultiLineTextBox::edit() const { return static_cast<QPlainTextEdit&>(widget()); }

QString MultiLineTextBox::text() const { return withLineFeeds(edit().document()->toRawText()); }

void MultiLineTextBox::setText(const QString& text) {
    const QScopedValueRollback setting(static_cast<NotesEdit&>(edit()).settingText, true);
    edit().setPlainText(text);
}

void MultiLineTextBox::replaceText(const QString& text) {
    QTextCursor all(edit().document());
    all.select(QTextCursor::Document);
    all.insertText(text);
}

bool MultiLineTextBox::hasOwnUndo() const { return edit().document()->isUndoAvailable(); }

void MultiLineTextBox::showOffer(const Offer& offer) { static_cast<NotesEdit&>(edit()).showOffer(offer); }

void MultiLineTextBox::setLongestTyped(int characters) {
    static_cast<NotesEdit&>(edit()).longest = characters;
}

void MultiLineTextBox::setEditing(Editing editing) { edit().setReadOnly(editing == Editing::Locked); }

bool MultiLineTextBox::isLocked() const { return edit().isReadOnly(); }

} // namespace quarvel
