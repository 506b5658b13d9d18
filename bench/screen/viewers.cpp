#include "viewers.h"

#include "measuring.h"

#include <X11/keysym.h>
#include <chrono>
#include <thread>
#include <utility>

namespace quarvel::bench {
namespace {

constexpr int turns = 4;                             ///< each time that a viewer is in front
constexpr auto rest = std::chrono::milliseconds(60); ///< for what a viewer does once its picture stands
constexpr Area quarvelPlace{0, 0, 752, 592};

void comeToFront(User& user, xcb_window_t window, Area place) {
    user.hand.place(window, place);
    (void)user.watch.settled(place);
}

void type(const Hand& hand, const Keys& keys) {
    for (const Stroke& stroke : keys) {
        if (stroke.held != 0) hand.press(stroke.held);
        hand.key(stroke.key);
        if (stroke.held != 0) hand.release(stroke.held);
    }
}

/// Types as a user does who looks at what each key has done.
void typeSlowly(User& user, Area seen, const Keys& keys) {
    for (const Stroke& stroke : keys) {
        type(user.hand, {stroke});
        (void)user.watch.settled(seen);
    }
}

} // namespace

Viewer startQuarvel(User& user, const std::string& program) {
    Process process({program});
    comeToFront(user, user.hand.newWindow(), {0, 0, 687, 595});
    typeSlowly(user, quarvelPlace, {{XK_l}, {XK_i}, {XK_p}, {XK_e}, {XK_Down}, {XK_Return}});
    type(user.hand, {{XK_p, XK_Alt_L}});
    const xcb_window_t window = user.hand.newWindow();
    comeToFront(user, window, quarvelPlace);
    typeSlowly(user, quarvelPlace, {{XK_space}, {XK_Tab}, {XK_Return}});
    return {std::move(process), window, quarvelPlace, chartArea};
}

Viewer startPeer(User& user, const std::vector<std::string>& command, Area place, Area chart,
                 const Keys& first) {
    Process process(command);
    const xcb_window_t window = user.hand.newWindow();
    comeToFront(user, window, place);
    typeSlowly(user, place, first);
    return {std::move(process), window, place, chart};
}

KeyStep::KeyStep(User& user, const Viewer& viewer, Keys keys, Keys back)
    : user_(user), viewer_(viewer), keys_(std::move(keys)), backKeys_(std::move(back)) {
    comeToFront(user, viewer.window, viewer.place);
    there_ = user.watch.learn(viewer.chart, [&] { type(user_.hand, keys_); });
    back_ = user.watch.learn(viewer.chart, [&] { type(user_.hand, backKeys_); });
}

void KeyStep::measure(Times& times, Until until) const {
    comeToFront(user_, viewer_.window, viewer_.place);
    for (int turn = -1; turn < roundsOf(turns); ++turn) {
        const auto go = [&] { type(user_.hand, keys_); };
        const double there =
            until == Until::Finished ? user_.watch.timeTo(go, there_) : user_.watch.timeFrom(go, back_);
        if (until == Until::Begun) (void)user_.watch.timeTo([] {}, there_);
        std::this_thread::sleep_for(rest);
        const double back = user_.watch.timeTo([&] { type(user_.hand, backKeys_); }, back_);
        std::this_thread::sleep_for(rest);
        if (turn < 0) continue;
        times.there.push_back(there);
        times.back.push_back(back);
    }
}

} // namespace quarvel::bench
