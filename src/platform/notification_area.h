#pragma once

#include <QIcon>
#include <array>

namespace quarvel {

/// What is to be done with an icon of the notification area.
enum class NotifyAction : quint32 { Add = 0, Delete = 2 };

/// The mouse messages of an icon, as the window behind it receives them.
namespace iconMessage {
inline constexpr int mouseMove = 512;
inline constexpr int leftDown = 513;
inline constexpr int leftUp = 514;
inline constexpr int leftDoubleClick = 515;
inline constexpr int rightDown = 516;
inline constexpr int rightUp = 517;
inline constexpr int rightDoubleClick = 518;
inline constexpr int middleDown = 519;
inline constexpr int middleUp = 520;
inline constexpr int middleDoubleClick = 521;
inline constexpr int wheel = 522;
} // namespace iconMessage

/// The window behind an icon.
class IconWindow {
public:
    IconWindow() = default;
    IconWindow(const IconWindow&) = delete;
    IconWindow& operator=(const IconWindow&) = delete;

    [[nodiscard]] virtual QIcon icon() const = 0;
    /// One of the mouse messages reached the icon.
    virtual void iconMouse(int message) = 0;
    /// The icon was to be seen and no longer is: the desktop's notification area has gone.
    virtual void iconLost() = 0;

protected:
    ~IconWindow() = default;
};

/// The desktop's notification area. An icon that has been added is shown whenever there is a notification
/// area to show it, be it one that starts later or starts again, until it is deleted.
class NotificationArea {
public:
    /// The icon's record in its 88-byte form: six little-endian 32-bit fields (size, window, identifier,
    /// flags, callback message, icon) and 64 bytes of tip text in Windows-1252, ended by a NUL.
    using Record = std::array<char, 88>;

    NotificationArea() = default;
    NotificationArea(const NotificationArea&) = delete;
    NotificationArea& operator=(const NotificationArea&) = delete;
    virtual ~NotificationArea() = default;

    /// Shows the icon that a record describes, or takes the one of the same window and identifier away.
    /// `window` outlives the icon. Nobody examines whether it worked.
    virtual void notifyIcon(NotifyAction action, const Record& record, IconWindow& window) = 0;
    /// Whether somebody shows the icons that are added, now.
    [[nodiscard]] virtual bool isThere() const = 0;
};

} // namespace quarvel
