// The promise: a zoom in, a pan step and a zoom out stand on the screen in at most 0.7 times what eom takes,
// as long as feh, and 0.6 times feh's. eom first shows a coarse picture and makes it fine when the user
// pauses: the coarse one is told too.

#include "chart_folder.h"
#include "measuring.h"
#include "viewers.h"

#include <QGuiApplication>
#include <X11/keysym.h>

using namespace quarvel::bench;

namespace {

constexpr int rounds = 3; ///< of several turns

/// eom has its bars and properties around the chart, which then has as many pixels as in the others.
constexpr Area eomPlace{135, 0, 616, 679};
constexpr Area eomChart{364, 70, 366, 566};

/// Brings the keys to the chart, as a drag that goes nowhere does.
void takeHold(User& user, const Viewer& quarvel) {
    user.hand.place(quarvel.window, quarvel.place);
    (void)user.watch.settled(quarvel.place);
    user.hand.movePointer(chartArea.x + chartArea.width / 2, chartArea.y + chartArea.height / 2);
    user.hand.click(2);
    user.hand.movePointer(1279, 1023);
}

void compare(const char* claim, const KeyStep& ours, const char* peer, const KeyStep& theirs, double budget,
             Until until = Until::Finished) {
    KeyStep::Times own;
    KeyStep::Times other;
    for (int round = 0; round < roundsOf(rounds); ++round) {
        ours.measure(own);
        theirs.measure(other, until);
    }
    printRatio(claim, median(own.there), peer, median(other.there), budget);
}

void benchSteps() {
    const ChartFolder folder({3000, 4200}, 16);
    User user;
    user.hand.movePointer(1279, 1023);
    const Viewer quarvel = startQuarvel(user, folder.program());
    const Viewer feh = startPeer(user, {"feh", "--geometry", "376x576", folder.firstChart()});
    const Viewer eom = startPeer(user, {"eom", folder.firstChart()}, eomPlace, eomChart, {{XK_1}});

    const Keys natural{{XK_Return}}; // in the list: the chart once more
    const KeyStep zoomIn(user, quarvel, {{XK_KP_Add}}, natural);
    const KeyStep eomIn(user, eom, {{XK_KP_Add}}, {{XK_1}});
    compare("A zoom in, 3000 x 4200, on the screen", zoomIn, "eom", eomIn, 0.7);
    compare("A zoom in, 3000 x 4200, on the screen", zoomIn, "eom, coarse", eomIn, 0, Until::Begun);
    compare("A zoom in, 3000 x 4200, on the screen", zoomIn, "feh",
            {user, feh, {{XK_KP_Add}}, {{XK_KP_Multiply}}}, 0);
    compare("A zoom out, 3000 x 4200, on the screen", {user, quarvel, {{XK_KP_Subtract}}, natural}, "feh",
            {user, feh, {{XK_KP_Subtract}}, {{XK_KP_Multiply}}}, 0.6);
    takeHold(user, quarvel);
    compare("A pan step, 3000 x 4200, on the screen", {user, quarvel, {{XK_Down}}, {{XK_Up}}}, "feh",
            {user, feh, {{XK_Down, XK_Control_L}}, {{XK_Up, XK_Control_L}}}, 1.0);
    compare("A pan by a page, 3000 x 4200, on the screen", {user, quarvel, {{XK_Next}}, {{XK_Prior}}}, "feh",
            {user, feh, {{XK_Down, XK_Alt_L}}, {{XK_Up, XK_Alt_L}}}, 1.0);
}

} // namespace

int main(int argc, char** argv) {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1); // NOLINT(concurrency-mt-unsafe): one thread only
    const QGuiApplication application(argc, argv);
    ::setenv("QT_QPA_PLATFORM", "xcb", 1); // NOLINT(concurrency-mt-unsafe)
    for (const char* peer : {"eom", "feh"})
        if (!isInstalled(peer)) {
            printMissing("A zoom or pan step, on the screen", peer);
            return 0;
        }
    benchSteps();
    return 0;
}
