// Linked beside a program's own main(), this ends the process as soon as its first window is painted, so that
// its start can be timed on a platform that has no screen to look at.

#include <QCoreApplication>
#include <QEvent>
#include <QObject>
#include <QTimer>
#include <QWidget>
#include <cstdlib>

namespace {

class EndWhenShown : public QObject {
public:
    EndWhenShown() {
        qApp->installEventFilter(this);
        // Painting is followed by more painting where a window changes as it becomes active: the end comes
        // when nothing more waits.
        quiet_.setSingleShot(true);
        quiet_.callOnTimeout([] { std::_Exit(EXIT_SUCCESS); });
    }

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint && object->isWidgetType()) quiet_.start(0);
        return false;
    }

private:
    QTimer quiet_;
};

void endWhenShown() { static EndWhenShown ending; }

} // namespace

Q_COREAPP_STARTUP_FUNCTION(endWhenShown)
