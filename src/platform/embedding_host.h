#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QtGui/qwindowdefs.h>
#include <functional>

struct xcb_connection_t;

namespace quarvel {

/// The notification area of an X11 screen, which takes windows of other programs into its own: whoever owns
/// the screen's tray selection (freedesktop.org, System Tray Protocol 0.3). On other window systems it never
/// is there.
class EmbeddingHost : public QAbstractNativeEventFilter {
public:
    /// `started` is called, from the event loop, whenever a notification area has started.
    explicit EmbeddingHost(std::function<void()> started);

    [[nodiscard]] bool isThere() const;
    /// Whether its windows have an alpha channel, and so let an icon's background show through.
    [[nodiscard]] bool isTranslucent() const;
    /// Asks it to take a window that is not mapped yet.
    void take(WId window) const;

    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

private:
    using Id = quint32; // of a window, an atom or a visual

    [[nodiscard]] Id owner() const;
    void watchRootWindow() const;

    std::function<void()> started_;
    QObject context_; // of calls that wait in the event loop
    xcb_connection_t* connection_;
    Id selection_ = 0;
    Id manager_ = 0;
};

} // namespace quarvel
