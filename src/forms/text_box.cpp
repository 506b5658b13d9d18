#include "forms/text_box.h"

#include "forms/typing.h"

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QValidator>
#include <algorithm>

namespace quarvel {
namespace {

/// Lets a text grow up to a limit by typing and pasting. A longer text that was there already may only
/// shrink.
class LengthLimit : public QValidator {
public:
    using QValidator::QValidator;

    void setLimit(int limit, qsizetype present) {
        limit_ = limit;
        follow(present);
    }
    void follow(qsizetype present) { allowed_ = std::max<qsizetype>(limit_, present); }

    State validate(QString& text, int& cursor) const override {
        if (limit_ == 0) return Acceptable;
        qsizetype place = cursor;
        keepToLength(text, place, allowed_);
        cursor = static_cast<int>(place);
        return Acceptable;
    }

private:
    qsizetype limit_ = 0;
    qsizetype allowed_ = 0;
};

class LineEdit : public QLineEdit {
public:
    explicit LineEdit(TextBoxEvents& events) : events_(events) { setValidator(&limit); }
    LengthLimit limit;

protected:
    void keyPressEvent(QKeyEvent* event) override {
        QKeyEvent filtered = filteredKeyPress(events_, *event);
        QLineEdit::keyPressEvent(&filtered);
        event->setAccepted(filtered.isAccepted());
    }
    void inputMethodEvent(QInputMethodEvent* event) override {
        // Dead keys, compose sequences and on-screen keyboards type this way.
        QInputMethodEvent filtered(event->preeditString(), event->attributes());
        filtered.setCommitString(filteredKeys(events_, event->commitString()), event->replacementStart(),
                                 event->replacementLength());
        QLineEdit::inputMethodEvent(&filtered);
    }
    void keyReleaseEvent(QKeyEvent* event) override {
        QLineEdit::keyReleaseEvent(event);
        if (!event->isAutoRepeat()) events_.keyUp.raise();
    }
    void focusOutEvent(QFocusEvent* event) override {
        QLineEdit::focusOutEvent(event);
        const Qt::FocusReason reason = event->reason();
        // Another window or the box's own context menu in front takes no focus away inside this window.
        if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
            events_.lostFocus.raise();
    }

private:
    TextBoxEvents& events_;
};

} // namespace

TextBox::TextBox(Container& container, const ControlSpec& spec)
    : WidgetControl(container, spec, new LineEdit(events)) {
    edit().setAlignment(Qt::AlignCenter);
    edit().setText(QString::fromUtf16(spec.caption));
    QObject::connect(&edit(), &QLineEdit::textChanged, &edit(), [this](const QString& text) {
        static_cast<LineEdit&>(edit()).limit.follow(text.size());
    });
}

QLineEdit& TextBox::edit() const { return static_cast<QLineEdit&>(widget()); }

QString TextBox::text() const { return edit().text(); }

void TextBox::setText(const QString& text) {
    static_cast<LineEdit&>(edit()).limit.follow(text.size());
    edit().setText(text);
    edit().setCursorPosition(0);
}

void TextBox::setLongestTyped(int characters) {
    static_cast<LineEdit&>(edit()).limit.setLimit(characters, edit().text().size());
}

void TextBox::setEditing(Editing editing) { edit().setReadOnly(editing == Editing::Locked); }

bool TextBox::isLocked() const { return edit().isReadOnly(); }

void TextBox::selectAll() { edit().selectAll(); }

} // namespace quarvel
