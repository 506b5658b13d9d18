#pragma once

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QObject>
#include <QWidget>

namespace quarvel::bench {

/// Watches a widget being painted.
class Painted : public QObject {
public:
    explicit Painted(QWidget* widget) { widget->installEventFilter(this); }

    /// Handles events until the widget has been painted and nothing more waits. Painting and handing the
    /// picture over to the screen are one event, so that both are done when this returns. Ends the process
    /// when nothing is painted for ten seconds: a figure of something else would be worse than none.
    void wait() {
        QElapsedTimer patience;
        patience.start();
        for (seen_ = false; !seen_; QCoreApplication::processEvents())
            if (patience.elapsed() > 10'000) qFatal("the widget is not painted");
        QCoreApplication::processEvents();
    }

protected:
    bool eventFilter(QObject* /*widget*/, QEvent* event) override {
        seen_ = seen_ || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool seen_ = false;
};

} // namespace quarvel::bench
