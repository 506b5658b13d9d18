#include "viewer/viewport/wheel_steps.h"

#include <cstdlib>

namespace quarvel {
namespace {

constexpr int notch = 120;             // eighths of a degree
constexpr quint64 betweenSweeps = 500; // milliseconds

/// The way that a turn goes most, whichever axis the desktop told it on.
int longer(QPoint way) { return std::abs(way.x()) > std::abs(way.y()) ? way.x() : way.y(); }

} // namespace

int WheelSteps::Parts::add(int parts) {
    if (parts == 0) return 0;
    if ((parts < 0) != (rest_ < 0)) rest_ = 0;
    rest_ += parts;
    const int wholes = rest_ / notch;
    rest_ -= wholes * notch;
    return wholes;
}

WheelMove WheelSteps::take(const WheelTurn& turn, NotchWay way) {
    if (turn.modifiers != modifiers_) {
        for (Parts* parts : {&across_, &down_, &zoom_}) parts->drop();
        sweep_.refused = false;
        modifiers_ = turn.modifiers;
    }
    if (turn.modifiers.testFlag(Qt::ControlModifier)) return {.zoom = zoomSteps(turn)};
    const bool sideways = turn.modifiers.testFlag(Qt::ShiftModifier);
    const auto turned = [sideways](QPoint told) { return sideways ? QPoint(longer(told), 0) : told; };
    if (!turn.pixels.isNull()) {
        const QPoint pixels = turned(turn.pixels);
        return {.across = -pixels.x(), .down = -pixels.y()};
    }
    const QPoint eighths = turned(turn.eighths);
    return {.across = -across_.add(eighths.x() * way.across), .down = -down_.add(eighths.y() * way.down)};
}

int WheelSteps::zoomSteps(const WheelTurn& turn) {
    const int eighths = turn.eighths.y();
    if (eighths == 0) return 0;
    const bool inwards = eighths > 0;
    const bool goesOn = inwards == sweep_.inwards && turn.milliseconds - sweep_.last <= betweenSweeps;
    const bool refused = sweep_.refused && goesOn && eighths % notch != 0;
    sweep_ = {inwards, refused, turn.milliseconds};
    return refused ? 0 : zoom_.add(eighths);
}

void WheelSteps::zoomRefused() {
    zoom_.drop();
    sweep_.refused = true;
}

} // namespace quarvel
