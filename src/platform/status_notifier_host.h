#pragma once

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QObject>
#include <functional>
#include <memory>

namespace quarvel {

/// Names of the StatusNotifier protocol (freedesktop.org, StatusNotifierItem 0.1; the names that hosts use).
namespace statusNotifier {
inline constexpr char16_t watcherService[] = u"org.kde.StatusNotifierWatcher";
inline constexpr char16_t watcherPath[] = u"/StatusNotifierWatcher";
inline constexpr char16_t itemPath[] = u"/StatusNotifierItem";
} // namespace statusNotifier

/// Watches whether somebody on the session bus shows StatusNotifier icons. Never waits for the bus: it asks,
/// and tells when the answer is there. Without a session bus the answer is no, at once.
class StatusNotifierHost : public QObject {
    Q_OBJECT
public:
    enum class Presence { Unknown, No, Yes };

    /// `changed` is called, from the event loop, whenever the presence has changed. A host's registrar that
    /// is replaced counts as gone in between, because it knows nothing of the icons that its forerunner had.
    explicit StatusNotifierHost(std::function<void()> changed);

    [[nodiscard]] Presence presence() const { return presence_; }

private Q_SLOTS:
    void ask();

private:
    void ownerChanged(const QString& newOwner);
    void settle(Presence presence);

    std::function<void()> changed_;
    Presence presence_ = Presence::Unknown;
    QDBusConnection bus_;
    QDBusServiceWatcher ownership_;
    std::unique_ptr<QDBusPendingCallWatcher> asking_;
};

} // namespace quarvel
