#include "forms/label.h"

#include "forms/accessible_role.h"
#include "forms/command.h"
#include "forms/press_key.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <QToolTip>

namespace quarvel {

/// A text for which its place is too small is its own tip; a single line of it ends in an ellipsis.
class MouseLabel : public QLabel {
public:
    Label* owner = nullptr;

protected:
    bool event(QEvent* event) override {
        if (event->type() != QEvent::ToolTip || !toolTip().isEmpty() || !isCut()) return QLabel::event(event);
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
        return true;
    }
    void paintEvent(QPaintEvent* event) override {
        const bool oneLine = place().height() < 2 * fontMetrics().lineSpacing();
        if (!oneLine || !isCut()) return QLabel::paintEvent(event);
        QPainter painter(this);
        style()->drawItemText(&painter, place(), static_cast<int>(alignment()), palette(), isEnabled(),
                              fontMetrics().elidedText(text(), Qt::ElideRight, place().width()),
                              foregroundRole());
    }
    void mouseMoveEvent(QMouseEvent* event) override {
        owner->mouseMoved.raise();
        QLabel::mouseMoveEvent(event);
    }
    void mousePressEvent(QMouseEvent* event) override {
        event->setAccepted(event->button() == Qt::LeftButton);
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
            command(*this, owner->clicked);
    }

private:
    [[nodiscard]] QRect place() const {
        return contentsRect().adjusted(margin(), margin(), -margin(), -margin());
    }
    [[nodiscard]] bool isCut() const {
        const QRect needed = fontMetrics().boundingRect(place(), Qt::TextWordWrap, text());
        // The edges of letters may be missing, a line may not.
        return needed.width() > place().width() ||
               needed.height() > place().height() + fontMetrics().lineSpacing() / 2;
    }
};

namespace {

class LinkLabel : public MouseLabel, public WithAccessibleRole {
public:
    [[nodiscard]] QAccessible::Role accessibleRole() const override { return QAccessible::Link; }
    [[nodiscard]] bool isPressable() const override { return isEnabled(); }
    void press() override { command(*this, owner->clicked); }

protected:
    /// For a label that takes the focus the toolkit lays out a document; no link is focused before it is
    /// seen.
    void showEvent(QShowEvent* event) override {
        setFocusPolicy(Qt::TabFocus);
        MouseLabel::showEvent(event);
    }
    void keyPressEvent(QKeyEvent* event) override {
        if (isPressKey(*event))
            press();
        else
            MouseLabel::keyPressEvent(event);
    }
};

} // namespace

Label::Label(Container& container, const ControlSpec& spec) : Label(container, spec, new MouseLabel) {}

Label::Label(Container& container, const ControlSpec& spec, MouseLabel* widget)
    : WidgetControl(container, spec, widget) {
    static_cast<MouseLabel&>(label()).owner = this;
    label().setTextFormat(Qt::PlainText);
    label().setAlignment(spec.align);
    label().setWordWrap(true);
    label().setMargin(2);
    label().setMouseTracking(true);
    Label::setCaption(QString::fromUtf16(spec.caption));
}

QLabel& Label::label() const { return static_cast<QLabel&>(widget()); }

std::optional<QString> Label::caption() const { return label().text(); }

Setting Label::setCaption(const QString& text) {
    label().setText(text);
    return Setting::Done;
}

void Label::setTextColour(const QColor& colour) {
    QPalette palette = label().palette();
    palette.setColor(QPalette::WindowText, colour);
    label().setPalette(palette);
}

Link::Link(Container& container, const ControlSpec& spec) : Label(container, spec, new LinkLabel) {
    setSpokenName(*caption());
}

Setting Link::setCaption(const QString& text) {
    setSpokenName(text);
    return Label::setCaption(text);
}

} // namespace quarvel
