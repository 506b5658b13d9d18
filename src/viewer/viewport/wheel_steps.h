#pragma once

#include "forms/core/wheel_turn.h"

namespace quarvel {

/// How far one notch of the wheel scrolls, in frame pixels.
struct NotchWay {
    int across;
    int down;
};

/// What a turn of the wheel asks for.
struct WheelMove {
    int across = 0; ///< frame pixels to scroll, above 0 to the right
    int down = 0;   ///< frame pixels to scroll, above 0 downwards
    int zoom = 0;   ///< zoom steps, above 0 in, below 0 out

    bool operator==(const WheelMove&) const = default;
};

/// Adds up what wheels and touchpads tell, which may be less than a notch or a pixel at a time. The wheel
/// scrolls; with Shift it scrolls sideways, with Control it zooms, a step a notch. Turning back, or other
/// keys, drop what is left over of the turns before.
class WheelSteps {
public:
    /// What is to be done now.
    [[nodiscard]] WheelMove take(const WheelTurn& turn, NotchWay notch);

    /// The zoom just asked for was refused. In one sweep of a touchpad, or of a wheel finer than its notches,
    /// it is not asked for again; each whole notch asks anew.
    void zoomRefused();

private:
    /// Adds parts of a whole, 120 to each, and gives the wholes that have come together.
    class Parts {
    public:
        int add(int parts);
        void drop() { rest_ = 0; }

    private:
        int rest_ = 0;
    };

    /// Turns in one direction without a pause between them.
    struct Sweep {
        bool inwards = false;
        bool refused = false;
        quint64 last = 0; ///< milliseconds
    };

    [[nodiscard]] int zoomSteps(const WheelTurn& turn);

    Qt::KeyboardModifiers modifiers_;
    Parts across_;
    Parts down_;
    Parts zoom_;
    Sweep sweep_; ///< of zooming
};

} // namespace quarvel
