#include "forms/button.h"

#include "forms/command.h"
#include "forms/compiled_pictures.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QPalette>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcutEvent>
#include <QSignalBlocker>
#include <algorithm>

namespace quarvel {
namespace {

/// A button's own colours, whatever those of the frame it lies in.
ControlSpec coloured(ControlSpec spec) {
    if (!spec.look.text.isValid()) spec.look.text = colour::ink;
    return spec;
}

/// A push button drawn with its picture above its caption, in as much room as the caption leaves.
class GraphicButton : public QPushButton {
public:
    const char* pictureName = "";

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        paintFace(painter);
        const int flags = Qt::AlignHCenter | Qt::AlignBottom | Qt::TextWordWrap | Qt::TextShowMnemonic;
        const QRect inside = rect().adjusted(2, 3, -2, -3).translated(0, isDown() ? 1 : 0);
        const QRect text = painter.boundingRect(inside, flags, this->text());
        painter.setPen(
            palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
        painter.drawText(inside, flags, this->text());
        if (*pictureName == '\0') return;
        // Most buttons wait in hidden frames: a picture is read when its button is first seen.
        if (picture_.isNull()) picture_ = compiledPicture(pictureName);
        const QSize natural = picture_.deviceIndependentSize().toSize();
        const int room = std::min(natural.height(), text.top() - inside.top());
        if (room <= 0) return; // a long caption, or no such picture
        QRect place(0, 0, natural.width() * room / natural.height(), room);
        place.moveCenter({inside.center().x(), (inside.top() + text.top()) / 2});
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.setOpacity(isEnabled() ? 1.0 : 0.35);
        painter.drawPixmap(place, picture_);
    }

    bool event(QEvent* event) override {
        if (event->type() != QEvent::Shortcut) return QPushButton::event(event);
        // A mnemonic is a way to the button: the field that is left must know before the button acts. It acts
        // at once; the toolkit would have it stay down for a while, and much can come in between.
        setFocus(Qt::ShortcutFocusReason);
        if (!static_cast<QShortcutEvent*>(event)->isAmbiguous()) click();
        return true;
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            click();
        else
            QPushButton::keyPressEvent(event);
    }

private:
    QPixmap picture_;

    void paintFace(QPainter& painter) {
        const bool hovered = underMouse() && isEnabled();
        const QColor top = isDown()  ? QColor(196, 198, 226)
                           : hovered ? QColor(255, 255, 255)
                                     : QColor(248, 248, 253);
        const QColor bottom = isDown()  ? QColor(206, 208, 234)
                              : hovered ? QColor(232, 234, 252)
                                        : QColor(220, 221, 238);
        QLinearGradient face(0, 0, 0, height());
        face.setColorAt(0, top);
        face.setColorAt(1, bottom);
        painter.setBrush(face);
        painter.setPen(QColor(130, 134, 176));
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    }
};

} // namespace

Button::Button(Container& container, const ControlSpec& spec)
    : WidgetControl(container, coloured(spec), new GraphicButton) {
    auto& graphic = static_cast<GraphicButton&>(widget());
    graphic.pictureName = spec.picture;
    graphic.setAttribute(Qt::WA_Hover);
    QPalette palette = graphic.palette(); // its ink is that of a usable button; one that is not stays paler
    palette.setColor(QPalette::Disabled, QPalette::ButtonText,
                     QGuiApplication::palette().color(QPalette::Disabled, QPalette::ButtonText));
    graphic.setPalette(palette);
    QObject::connect(&graphic, &QAbstractButton::clicked, &graphic, [this] { command(widget(), clicked); });
    Button::setCaption(QString::fromUtf16(spec.caption));
}

QAbstractButton& Button::button() const { return static_cast<QAbstractButton&>(widget()); }

std::optional<QString> Button::caption() const { return button().text(); }

Setting Button::setCaption(const QString& text) {
    button().setText(text);
    return Setting::Done;
}

OptionButton::OptionButton(Container& container, const ControlSpec& spec)
    : WidgetControl(container, spec, new QRadioButton) {
    QObject::connect(&button(), &QAbstractButton::toggled, &button(), [this](bool on) {
        if (on) command(widget(), chosen);
    });
    OptionButton::setCaption(QString::fromUtf16(spec.caption));
}

QAbstractButton& OptionButton::button() const { return static_cast<QAbstractButton&>(widget()); }

std::optional<QString> OptionButton::caption() const { return button().text(); }

Setting OptionButton::setCaption(const QString& text) {
    button().setText(text);
    return Setting::Done;
}

void OptionButton::clear() {
    // A group that keeps one chosen refuses to let the last go.
    button().setAutoExclusive(false);
    button().setChecked(false);
    button().setAutoExclusive(true);
}

void OptionButton::choose() {
    const QSignalBlocker quiet(button());
    button().setChecked(true);
}

bool OptionButton::isChosen() const { return button().isChecked(); }

} // namespace quarvel
