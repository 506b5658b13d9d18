#include "forms/text_box.h"

#include "forms/accessible_entry.h"
#include "forms/typing.h"

#include <QDropEvent>
#include <QFocusEvent>
#include <QFont>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QToolTip>
#include <QValidator>
#include <algorithm>
#include <functional>
#include <limits>

namespace quarvel {
namespace {

/// What a one-line box accepts from its user: text up to a limit, and nothing behind a line break in what is
/// pasted. A text that was there already is kept as it is: a longer one may only shrink.
class EntryLimit : public QValidator {
public:
    using QValidator::QValidator;

    std::function<void()> cut; ///< words of what was inserted did not fit

    void setLimit(int limit, const QString& present) {
        limit_ = limit;
        follow(present);
    }
    void follow(const QString& present) {
        allowed_ = std::max<qsizetype>(limit_, present.size());
        breaks_ = lineBreaks(present);
    }

    State validate(QString& text, int& cursor) const override {
        qsizetype place = cursor;
        const QString inserted = text;
        if (lineBreaks(text) > breaks_) keepFirstLine(text, place);
        if (limit_ > 0) keepToLength(text, place, allowed_);
        if (text != inserted && hasWordsFrom(inserted.mid(place, cursor - place), 0)) cut();
        cursor = static_cast<int>(place);
        return Acceptable;
    }

    /// Whether a text that something was inserted into stays as it is.
    [[nodiscard]] bool takesWhole(const QString& text) const {
        return lineBreaks(text) <= breaks_ && (limit_ == 0 || text.size() <= allowed_);
    }

private:
    qsizetype limit_ = 0;
    qsizetype allowed_ = 0;
    qsizetype breaks_ = 0; ///< line breaks that the text has already
};

class LineEdit : public QLineEdit {
public:
    /// Takes on its font when it is about to be seen: most boxes wait in hidden frames, and each size is
    /// loaded.
    LineEdit(TextBoxEvents& events, const QFont& font) : font_(font), events_(events) {
        tellLockedEntriesTruly();
        setValidator(&limit);
        setMaxLength(std::numeric_limits<int>::max()); // the box's own limit would cut what is stored
        limit.cut = [this] {
            if (!typing_) events_.cut.raise(); // typing just stops
        };
    }
    EntryLimit limit;

protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::Polish) setFont(font_);
        if (event->type() == QEvent::ToolTip && toolTip().isEmpty() && isCut()) {
            QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
            return true;
        }
        return QLineEdit::event(event);
    }
    void keyPressEvent(QKeyEvent* event) override {
        const OwnUndo undo = isUndoAvailable() ? OwnUndo::Something : OwnUndo::Nothing;
        if (!isReadOnly() && isUsedByOffer(events_, *event, undo)) return;
        QKeyEvent filtered = filteredKeyPress(events_, *event);
        {
            const QScopedValueRollback typing(typing_, !event->matches(QKeySequence::Paste));
            QLineEdit::keyPressEvent(&filtered);
        }
        event->setAccepted(filtered.isAccepted());
        const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (enters && !event->isAutoRepeat()) events_.entered.raise(); // last: the box may go meanwhile
    }
    void inputMethodEvent(QInputMethodEvent* event) override {
        // Dead keys, compose sequences and on-screen keyboards type this way.
        QInputMethodEvent filtered(event->preeditString(), event->attributes());
        filtered.setCommitString(filteredKeys(events_, event->commitString()), event->replacementStart(),
                                 event->replacementLength());
        const QScopedValueRollback typing(typing_, true);
        QLineEdit::inputMethodEvent(&filtered);
    }
    void dragEnterEvent(QDragEnterEvent* event) override {
        QLineEdit::dragEnterEvent(event);
        answerDrop(*event, kindOf(*event));
    }
    void dragMoveEvent(QDragMoveEvent* event) override {
        QLineEdit::dragMoveEvent(event);
        answerDrop(*event, kindOf(*event));
    }
    void dropEvent(QDropEvent* event) override {
        const DropKind kind = kindOf(*event);
        if (kind != DropKind::Refused) QLineEdit::dropEvent(event);
        answerDrop(*event, kind);
    }
    void keyReleaseEvent(QKeyEvent* event) override {
        QLineEdit::keyReleaseEvent(event);
        if (!event->isAutoRepeat()) events_.keyUp.raise(event->key());
    }
    void focusOutEvent(QFocusEvent* event) override {
        QLineEdit::focusOutEvent(event);
        const Qt::FocusReason reason = event->reason();
        // Another window or the box's own context menu in front takes no focus away inside this window.
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            events_.lostFocus.raise();
    }

private:
    [[nodiscard]] bool isCut() const {
        constexpr int margins = 5; // the toolkit's own, on both sides, and the cursor
        QStyleOptionFrame option;
        initStyleOption(&option);
        const QRect inside = style()->subElementRect(QStyle::SE_LineEditContents, &option, this);
        return fontMetrics().horizontalAdvance(text()) > inside.width() - margins;
    }
    [[nodiscard]] DropKind kindOf(const QDropEvent& event) {
        QString whole = text();
        whole.insert(cursorPositionAt(event.position().toPoint()), event.mimeData()->text());
        return dropKind(event, limit.takesWhole(whole));
    }

    bool typing_ = false;
    QFont font_;
    TextBoxEvents& events_;
};

ControlSpec inProgramFont(ControlSpec spec) {
    spec.look = {.text = spec.look.text, .background = spec.look.background};
    return spec;
}

} // namespace

TextBox::TextBox(Container& container, const ControlSpec& spec)
    : WidgetControl(container, inProgramFont(spec), new LineEdit(events, fontOf(spec.look))) {
    edit().setAlignment(Qt::AlignCenter);
    edit().setAutoFillBackground(
        false); // it fills its round frame itself; what lies below shows in the corners
    edit().setText(QString::fromUtf16(spec.caption));
    QObject::connect(&edit(), &QLineEdit::textChanged, &edit(),
                     [this](const QString& text) { static_cast<LineEdit&>(edit()).limit.follow(text); });
    QObject::connect(&edit(), &QLineEdit::textEdited, &edit(), [this] { events.edited.raise(); });
}

QLineEdit& TextBox::edit() const { return static_cast<QLineEdit&>(widget()); }

QString TextBox::text() const { return edit().text(); }

void TextBox::setText(const QString& text) {
    static_cast<LineEdit&>(edit()).limit.follow(text);
    edit().setText(text);
    edit().setCursorPosition(0);
}

void TextBox::setLongestTyped(int characters) {
    static_cast<LineEdit&>(edit()).limit.setLimit(characters, edit().text());
}

void TextBox::setEditing(Editing editing) {
    const QCursor pointer = edit().cursor();
    edit().setReadOnly(editing == Editing::Locked);
    edit().setCursor(pointer); // the toolkit has one of its own for either
}

bool TextBox::isLocked() const { return edit().isReadOnly(); }

int TextBox::cursor() const { return edit().cursorPosition(); }

void TextBox::placeCursor(int place) { edit().setCursorPosition(place); }

} // namespace quarvel
