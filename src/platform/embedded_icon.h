#pragma once

#include "platform/shown_icon.h"

#include <QAbstractNativeEventFilter>
#include <QIcon>
#include <QWidget>

namespace quarvel {

class EmbeddingHost;

/// An icon in a notification area that takes windows: a window of its own, which the area makes part of
/// itself.
class EmbeddedIcon : public QWidget, public QAbstractNativeEventFilter {
public:
    /// Offers itself to the host at once; shows itself when it has been taken.
    EmbeddedIcon(const EmbeddingHost& host, const QIcon& picture, const QString& tip,
                 ShownIconEvents& events);

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    [[nodiscard]] QPixmap backgroundOfHost() const;
    void taken();

    QIcon picture_;
    ShownIconEvents& events_;
    WId window_ = 0; // the X server's
};

} // namespace quarvel
