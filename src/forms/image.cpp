#include "forms/image.h"

#include "forms/accessible_role.h"
#include "forms/command.h"
#include "forms/compiled_pictures.h"
#include "forms/press_key.h"
#include "pictures/painter.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <vector>

namespace quarvel {
namespace {

int buttonCode(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton: return 1;
    case Qt::RightButton: return 2;
    default: return 4;
    }
}

constexpr int stripPixels = 32768;

/// A picture of `size` in memory that is used for every strip of every image.
QImage stripFor(QSize size) {
    static std::vector<QRgb> pixels;
    const auto needed = static_cast<std::size_t>(size.width()) * static_cast<std::size_t>(size.height());
    if (pixels.size() < needed) pixels.resize(needed);
    return {reinterpret_cast<uchar*>(pixels.data()), size.width(), size.height(), qsizetype{4} * size.width(),
            QImage::Format_RGB32};
}

class ImageArea : public QWidget, public WithAccessibleRole {
public:
    Image* owner = nullptr;
    Picture picture;
    QPixmap compiled;

    [[nodiscard]] QAccessible::Role accessibleRole() const override {
        return focusPolicy() == Qt::NoFocus ? QAccessible::Graphic : QAccessible::Button;
    }
    [[nodiscard]] bool isPressable() const override { return focusPolicy() != Qt::NoFocus && isEnabled(); }
    void press() override { command(*this, owner->clicked); }

protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        if (!picture.isNull()) {
            paintVisible(painter, event->rect() & visibleRegion().boundingRect());
        } else if (!compiled.isNull()) {
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            painter.setOpacity(isEnabled() ? 1.0 : 0.35);
            painter.drawPixmap(rect(), compiled);
        }
    }

    void mousePressEvent(QMouseEvent* event) override {
        command(*this, owner->mouseDown, buttonCode(event->button()),
                static_cast<float>(event->position().x()), static_cast<float>(event->position().y()));
        leaveToBox(*event);
    }

    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) press();
        leaveToBox(*event);
    }

    void keyPressEvent(QKeyEvent* event) override {
        if (isPressable() && isPressKey(*event))
            press();
        else
            QWidget::keyPressEvent(event);
    }

private:
    /// The middle button drags what lies in a picture box, and that is the box's own.
    static void leaveToBox(QMouseEvent& event) {
        if (event.button() == Qt::MiddleButton) event.ignore();
    }

    /// Paints `part` (logical pixels of this widget) from the picture, at the screen's own pixels. Where the
    /// widget begins or ends inside one of those, the picture takes the whole of it: no seam to the next
    /// widget.
    void paintVisible(QPainter& painter, QRect part) {
        if (part.isEmpty()) return;
        const QTransform toScreen = painter.deviceTransform();
        const double ratio = toScreen.m11();
        const QPoint corner = toScreen.map(QPointF(0, 0)).toPoint();
        const QSize stretched(static_cast<int>(std::ceil(width() * ratio)),
                              static_cast<int>(std::ceil(height() * ratio)));
        const QRect shown = toScreen.mapRect(QRectF(part)).toAlignedRect() & QRect(corner, stretched);
        // In strips that stay in the processor's cache and in memory already touched: fresh memory for a
        // whole window would cost more than the painting.
        const int rows = std::max(1, stripPixels / std::max(1, shown.width()));
        for (int top = shown.top(); top <= shown.bottom(); top += rows) {
            const QRect strip = shown & QRect(shown.left(), top, shown.width(), rows);
            QImage target = stripFor(strip.size());
            paintPicture(picture, stretched, strip.translated(-corner), target);
            target.setDevicePixelRatio(ratio);
            painter.drawImage(toScreen.inverted().map(QPointF(strip.topLeft())), target);
        }
    }
};

ImageArea& areaOf(const Image& image) { return static_cast<ImageArea&>(image.widget()); }

} // namespace

Image::Image(Container& container, const ControlSpec& spec) : WidgetControl(container, spec, new ImageArea) {
    ImageArea& area = areaOf(*this);
    area.owner = this;
    area.setAttribute(Qt::WA_OpaquePaintEvent, false);
    if (*spec.picture == '\0') return;
    setPicture(compiledDecoration(spec.picture));
    if (area.picture.isNull()) area.compiled = compiledPicture(spec.picture);
}

void Image::makeCommand() { widget().setFocusPolicy(Qt::TabFocus); }

void Image::setPicture(const Picture& picture) {
    ImageArea& area = areaOf(*this);
    area.picture = picture;
    // An opaque widget is scrolled by moving its pixels, not by painting it again.
    area.setAttribute(Qt::WA_OpaquePaintEvent, !picture.isNull());
    area.update();
}

} // namespace quarvel
