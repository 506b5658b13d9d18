#include "forms/hint.h"

#include "files/system_name.h"
#include "forms/widget_control.h"

#include <QEvent>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

constexpr int room = 6; // pixels kept free around the text

int pixels(double twips) { return static_cast<int>(twips / twipsPerPixel); }

class HintLabel : public QLabel {
public:
    explicit HintLabel(QWidget& in) : QLabel(&in) {
        setTextFormat(Qt::PlainText);
        setAlignment(Qt::AlignCenter);
        setWordWrap(true);
        setMargin(room);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

    void fillParent() {
        setGeometry(parentWidget()->rect());
        parentWidget()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == parent() && event->type() == QEvent::Resize) setGeometry(parentWidget()->rect());
        return QLabel::eventFilter(watched, event);
    }
};

} // namespace

Hint::Hint(Container& container, const Place& place, const Look& look)
    : label_(new HintLabel(container.inside())) {
    label_->setGeometry(pixels(place.left), pixels(place.top), pixels(place.width), pixels(place.height));
    applyLook(*label_, look);
}

Hint::Hint(QWidget& over) {
    auto* const label = new HintLabel(over);
    label->fillParent();
    QFont font = over.font();
    font.setBold(false);
    label->setFont(font);
    label_ = label;
}

void Hint::showText(const QString& text) {
    label_->setText(text);
    label_->setVisible(!text.isEmpty());
}

Strip::Strip(QWidget& in) : label_(new QLabel(&in)) {
    label_->setTextFormat(Qt::PlainText);
    label_->setAlignment(Qt::AlignCenter);
    label_->setAttribute(Qt::WA_TransparentForMouseEvents);
    applyLook(*label_, {.text = colour::ink, .background = colour::draft});
    label_->hide();
}

void Strip::showText(const QString& text) {
    label_->setText(text);
    label_->setVisible(!text.isEmpty());
}

int Strip::height() const { return label_->isHidden() ? 0 : label_->sizeHint().height(); }

void Strip::placeBelow(const QRect& part) {
    label_->setGeometry(part.left(), part.bottom() + 1, part.width(), height());
}

QString breakablePath(const QString& path) { return readableName(path).replace(u"/"_s, u"/\u200B"_s); }

} // namespace quarvel
