// The promise: a resize step of the companion window with a chart of 3000 x 4200 in it stands on the screen
// after at most twice what a plain window of a lighter toolkit takes for as many controls without any
// picture. Both are resized from outside, as a window manager does it.

#include "drawn_chart.h"
#include "hand.h"
#include "measuring.h"
#include "scratch_program.h"
#include "sight.h"

#include <QGuiApplication>
#include <X11/keysym.h>
#include <array>
#include <fstream>

using namespace quarvel::bench;

namespace {

constexpr int rounds = 31;
constexpr int step = 8; ///< pixels each way
constexpr const char* claim = "A resize step of the companion window, on the screen";

/// Opens the airport LIPE, its first departure and the companion window; returns that window. The points are
/// those of the windows' controls, at the upper left corner of the screen.
xcb_window_t openCompanion(Hand& hand, const Watch& watch) {
    const auto clickAt = [&](int x, int y, Area area) {
        static_cast<void>(watch.settled(area));
        hand.movePointer(x, y);
        hand.click(1);
    };
    const auto placed = [&](std::uint16_t width, std::uint16_t height) {
        const xcb_window_t window = hand.newWindow();
        const Area area{0, 0, width, height};
        hand.place(window, area);
        static_cast<void>(watch.settled(area));
        hand.focus(window);
        return area;
    };
    const Area main = placed(687, 595);
    for (const std::uint32_t letter : {XK_l, XK_i, XK_p, XK_e}) hand.key(letter);
    clickAt(400, 42, main); // the airport in the list
    clickAt(40, 556, main); // the procedures
    const Area viewer = placed(752, 592);
    clickAt(30, 42, viewer);   // the departures
    clickAt(60, 74, viewer);   // the first of them
    clickAt(312, 560, viewer); // the companion window
    return hand.newWindow();
}

/// A window that is made larger by a step and smaller again.
struct Resized {
    Resized(const Hand& hand, const Watch& watch, xcb_window_t window, std::int16_t x)
        : hand_(hand), watch_(watch), window_(window), small_(hand.areaOf(window)) {
        small_.x = x;
        small_.y = 0;
        hand.place(window, small_);
        Area large = small_;
        large.width = static_cast<std::uint16_t>(large.width + step);
        large.height = static_cast<std::uint16_t>(large.height + step);
        large_ = large;
        sights_[0] = watch.learn(large, [&] { resize(large_); });
        sights_[1] = watch.learn(small_, [&] { resize(small_); });
    }
    void resize(Area area) const { hand_.resize(window_, area.width, area.height); }
    /// The time for both ways.
    [[nodiscard]] double measure() const {
        const double out = watch_.timeTo([&] { resize(large_); }, sights_[0]);
        return (out + watch_.timeTo([&] { resize(small_); }, sights_[1])) / 2;
    }

    const Hand& hand_;
    const Watch& watch_;
    xcb_window_t window_;
    Area small_;
    Area large_;
    std::array<Sight, 2> sights_;
};

void compare(const ScratchProgram& program) {
    Hand hand;
    const ScreenPixels screen;
    const Watch watch(screen);
    const Process ours({program.path()});
    const xcb_window_t companion = openCompanion(hand, watch);
    const Process peer({FLTK_WINDOW});
    const xcb_window_t plain = hand.newWindow();
    hand.movePointer(1270, 1010);
    const Resized own(hand, watch, companion, 0);
    const Resized other(hand, watch, plain, 600);
    std::vector<double> times;
    std::vector<double> plainTimes;
    for (int round = -2; round < roundsOf(rounds); ++round) {
        const double first = own.measure();
        const double second = other.measure();
        if (round < 0) continue;
        times.push_back(first);
        plainTimes.push_back(second);
    }
    printRatio(claim, median(times), "a plain FLTK window", median(plainTimes), 2);
}

} // namespace

int main(int argc, char** argv) {
#ifndef FLTK_WINDOW
#define FLTK_WINDOW ""
    printMissing(claim, "FLTK");
    return 0;
#endif
    qputenv("QT_QPA_PLATFORM", "offscreen"); // for the letters of the chart
    const QGuiApplication application(argc, argv);
    qputenv("QT_QPA_PLATFORM", "xcb");
    const ScratchProgram program(QUARVEL_PROGRAM);
    program.speakEnglish();
    const QByteArray chart = drawnChart({3000, 4200}, 16);
    std::filesystem::remove_all(program.of("aeroporti/LIPE/Sid"));
    std::filesystem::create_directory(program.of("aeroporti/LIPE/Sid"));
    std::ofstream(program.of("aeroporti/LIPE/Sid/KENN1.gif"), std::ios::binary)
        .write(chart.constData(), chart.size());
    compare(program);
    return 0;
}
