#pragma once

#include "hand.h"
#include "process.h"
#include "sight.h"

#include <functional>
#include <string>
#include <vector>

namespace quarvel::bench {

/// The part of the screen that every viewer shows a chart in: as large as the program's own, scroll bars
/// aside.
constexpr Area chartArea{360, 0, 376, 576};

/// Whoever looks at the screen and works with what is on it.
struct User {
    ScreenPixels screen;
    Watch watch{screen};
    Hand hand;
};

/// A viewer at work: its window, where that is placed, and the part of the screen that is all chart.
struct Viewer {
    Process process;
    xcb_window_t window;
    Area place;
    Area chart;
};

/// A key by its keysym, and the one that is held meanwhile, if any.
struct Stroke {
    std::uint32_t key;
    std::uint32_t held = 0;
};
using Keys = std::vector<Stroke>;

/// Starts the program and goes to its viewer with the first departure of LIPE, by keys.
[[nodiscard]] Viewer startQuarvel(User& user, const std::string& program);
/// Starts another viewer in its `place`, where it shows the `chart`, and types what it needs first.
[[nodiscard]] Viewer startPeer(User& user, const std::vector<std::string>& command, Area place = chartArea,
                               Area chart = chartArea, const Keys& first = {});

/// What ends the time of a way there: the finished picture, or any other one, be it coarse, that took the
/// place of the picture before.
enum class Until { Finished, Begun };

/// What some keys do, one right after the other, and what others take back, with the pictures that they lead
/// to.
class KeyStep {
public:
    KeyStep(User& user, const Viewer& viewer, Keys keys, Keys back);

    /// Brings the viewer's window to the front and goes there and back some times; all in milliseconds.
    struct Times {
        std::vector<double> there;
        std::vector<double> back;
    };
    void measure(Times& times, Until until = Until::Finished) const;

private:
    User& user_;
    const Viewer& viewer_;
    Keys keys_;
    Keys backKeys_;
    Sight there_;
    Sight back_;
};

} // namespace quarvel::bench
