#pragma once

namespace quarvel {

/// What becomes of an icon that was handed to the desktop, told by whichever kind of notification area has
/// it.
class ShownIconEvents {
public:
    ShownIconEvents() = default;
    ShownIconEvents(const ShownIconEvents&) = delete;
    ShownIconEvents& operator=(const ShownIconEvents&) = delete;

    /// The notification area has taken the icon.
    virtual void iconTaken() = 0;
    /// It has refused the icon or let go of it. The shown icon may be deleted from in here.
    virtual void iconDropped() = 0;
    /// One of the mouse messages of notification_area.h; the desktop is not to be kept waiting.
    virtual void iconMouse(int message) = 0;

protected:
    ~ShownIconEvents() = default;
};

} // namespace quarvel
