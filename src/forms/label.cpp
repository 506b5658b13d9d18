#include "forms/label.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPalette>

namespace quarvel {
namespace {

class MouseLabel : public QLabel {
public:
    Label* owner = nullptr;

protected:
    void mouseMoveEvent(QMouseEvent* event) override {
        owner->mouseMoved.raise();
        QLabel::mouseMoveEvent(event);
    }
    void mousePressEvent(QMouseEvent* event) override {
        event->setAccepted(event->button() == Qt::LeftButton);
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
            owner->clicked.raise();
    }
};

} // namespace

Label::Label(Container& container, const ControlSpec& spec) : WidgetControl(container, spec, new MouseLabel) {
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

} // namespace quarvel
