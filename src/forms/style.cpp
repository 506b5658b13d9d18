#include "forms/style.h"

#include "forms/compiled_pictures.h"
#include "forms/look.h"

#include <QGuiApplication>
#include <QIcon>
#include <QLabel>
#include <QPainter>
#include <QPolygonF>
#include <QStyleOption>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

// A thumb and an outline stand out from what they lie on by 3 to 1 and more.
constexpr QColor groove{222, 223, 238};
constexpr QColor thumb{108, 112, 166};
constexpr QColor thumbHovered{86, 90, 150};
constexpr QColor outline{96, 100, 150};
constexpr QColor faded{170, 172, 196};

constexpr int boxPictureSide = 32; // logical pixels, as drawn: the same on every screen
constexpr double thumbMargin = 3;  // logical pixels between a thumb and the long edges of its bar

const char* boxPicture(QStyle::StandardPixmap which) {
    switch (which) {
    case QStyle::SP_MessageBoxQuestion: return "box_question";
    case QStyle::SP_MessageBoxInformation: return "box_information";
    case QStyle::SP_MessageBoxWarning: return "box_warning";
    case QStyle::SP_MessageBoxCritical: return "box_error";
    default: return nullptr;
    }
}

QColor thumbColour(const QStyleOptionSlider& bar) {
    if (!bar.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider)) return thumb;
    return bar.state.testFlag(QStyle::State_Sunken) ? colour::mark : thumbHovered;
}

/// A triangle in the middle of a place, which points towards the beginning or the end of its bar.
void drawArrow(QPainter& painter, const QRectF& place, Qt::Orientation orientation, int direction) {
    QPolygonF arrow({{-4.0, -2.0 * direction}, {4.0, -2.0 * direction}, {0.0, 2.0 * direction}});
    if (orientation == Qt::Horizontal)
        for (QPointF& point : arrow) point = point.transposed();
    painter.drawPolygon(arrow.translated(place.center()));
}

void drawOptionMark(const QStyleOption& option, QPainter& painter) {
    const bool usable = option.state.testFlag(QStyle::State_Enabled);
    const bool hovered = usable && option.state.testFlag(QStyle::State_MouseOver);
    const double side = std::min(option.rect.width(), option.rect.height());
    QRectF ring(0, 0, side - 1.5, side - 1.5);
    ring.moveCenter(QRectF(option.rect).center());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(usable ? outline : faded, 1.5));
    painter.setBrush(hovered ? QColor(236, 237, 255) : QColor(Qt::white));
    painter.drawEllipse(ring);
    if (!option.state.testFlag(QStyle::State_On)) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(usable ? colour::title : faded);
    painter.drawEllipse(ring.center(), side / 4, side / 4);
}

} // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(u"Fusion"_s) {}

/// No label guesses what its text is, and no tip, which is a label too: the toolkit would take a tag in a
/// text that came from a file for a page, and read whatever file or device the page names.
void ProgramStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (auto* const label = qobject_cast<QLabel*>(widget)) label->setTextFormat(Qt::PlainText);
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || bar == nullptr) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    painter->save();
    drawScrollBar(*bar, *painter, widget);
    painter->restore();
}

void ProgramStyle::drawScrollBar(const QStyleOptionSlider& bar, QPainter& painter,
                                 const QWidget* widget) const {
    painter.fillRect(bar.rect, groove);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const bool moves = bar.maximum > bar.minimum && bar.state.testFlag(State_Enabled);
    painter.setBrush(moves ? colour::ink : faded);
    drawArrow(painter, subControlRect(CC_ScrollBar, &bar, SC_ScrollBarSubLine, widget), bar.orientation, -1);
    drawArrow(painter, subControlRect(CC_ScrollBar, &bar, SC_ScrollBarAddLine, widget), bar.orientation, 1);
    if (!moves) return; // all there is to see is in view
    const bool across = bar.orientation == Qt::Horizontal;
    const QRectF place = QRectF(subControlRect(CC_ScrollBar, &bar, SC_ScrollBarSlider, widget))
                             .adjusted(across ? 1 : thumbMargin, across ? thumbMargin : 1,
                                       across ? -1 : -thumbMargin, across ? -thumbMargin : -1);
    painter.setBrush(thumbColour(bar));
    painter.drawRoundedRect(place, 3, 3);
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    if (element != PE_IndicatorRadioButton) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    painter->save();
    drawOptionMark(*option, *painter);
    painter->restore();
}

int ProgramStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    return metric == PM_MessageBoxIconSize ? boxPictureSide
                                           : QProxyStyle::pixelMetric(metric, option, widget);
}

QIcon ProgramStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                 const QWidget* widget) const {
    const char* picture = boxPicture(which);
    if (picture == nullptr) return QProxyStyle::standardIcon(which, option, widget);
    // The toolkit keeps what it has drawn of every icon: a new one for each box would go on filling that.
    QIcon& icon = boxIcons_[which];
    if (icon.isNull()) icon = QIcon(compiledPicture(picture));
    return icon;
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* answer) const {
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;                                   // none of the program's buttons in words has one
    if (hint == SH_ScrollBar_ContextMenu) return 0; // it would be the toolkit's, in the toolkit's language
    return QProxyStyle::styleHint(hint, option, widget, answer);
}

} // namespace quarvel
