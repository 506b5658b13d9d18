#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QWidget>

class QKeyEvent;

namespace quarvel {

/// The keys that are down, and whether their presses have been used for a command. A key that pressed a
/// button or answered a message is let go some time later, over whatever has the focus by then: a text box
/// must not take that for a key of its own. Watches the application's events, and belongs to it.
class HeldKeys : public QObject {
public:
    /// Those of the application; from the first call on they are watched.
    static HeldKeys& watched();

    /// A command begins. When a key brought it about, all keys that are down have been used for it.
    void commandBegins();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Press {
        QPointer<const QWidget> window; ///< where it was pressed; null once that window has gone
        bool used;
        bool down = true;
        quint64 letGo = 0; ///< when its release came, in milliseconds of the window system's clock
    };

    HeldKeys();
    void pressed(const QWidget& at, const QKeyEvent& event);
    [[nodiscard]] bool isUntoldRepeat(const QKeyEvent& event);
    [[nodiscard]] bool isRepeatFromElsewhere(const QWidget& at, const QKeyEvent& event) const;
    [[nodiscard]] bool letGo(const QWidget& at, const QKeyEvent& event);

    QHash<quint32, Press> presses_; ///< of keys that are down, or were the last time
    bool keyWasLast_ = false;       ///< the newest thing that the user did was to press a key
};

} // namespace quarvel
