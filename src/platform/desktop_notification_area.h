#pragma once

#include "platform/notification_area.h"

#include <memory>
#include <vector>

namespace quarvel {

class EmbeddingHost;
class StatusNotifierHost;

/// The notification area of the desktop that the program runs on. Two kinds are in use and a desktop may have
/// either, or both: one that shows icons told over the session bus (StatusNotifier), and one that takes
/// windows on X11. The first is used where it is there, for it also works without X11; the second otherwise;
/// never both. The toolkit's own icon is not used: it settles on one kind for good at its first use, and
/// waits for the bus then.
///
/// Nothing is looked for before the first icon is added. Mouse messages come from the event loop, so that a
/// menu may be opened from in there; while a modal box is open a click brings that forward instead; none come
/// after the icon has been deleted.
class DesktopNotificationArea : public NotificationArea {
public:
    DesktopNotificationArea();
    ~DesktopNotificationArea() override;

    void notifyIcon(NotifyAction action, const Record& record, IconWindow& window) override;
    /// Known from watching; false until the desktop has taken the icon, some milliseconds after it was added.
    [[nodiscard]] bool isThere() const override;

private:
    class Icon;

    void watchHosts();
    void showIcons();
    void offerIconsAgain();

    std::unique_ptr<StatusNotifierHost> notifierHost_;
    std::unique_ptr<EmbeddingHost> embeddingHost_;
    std::vector<std::unique_ptr<Icon>> icons_;
};

} // namespace quarvel
