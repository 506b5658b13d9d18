// The promise: the next chart of a folder stands on the screen in at most half of the time that nsxiv takes,
// and a fifth of feh's, in windows that show as much of it.

#include "chart_folder.h"
#include "measuring.h"
#include "viewers.h"

#include <QGuiApplication>
#include <X11/keysym.h>

using namespace quarvel::bench;

namespace {
constexpr int rounds = 6; ///< of several turns
/// nsxiv has a bar with the file's name below, which is no chart.
constexpr Area aboveBar{chartArea.x, chartArea.y, chartArea.width, chartArea.height - 30};

void benchCharts(QSize size) {
    const ChartFolder folder(size, 16);
    User user;
    user.hand.movePointer(1279, 1023);
    const Viewer viewers[] = {
        startQuarvel(user, folder.program()),
        startPeer(user, folder.with({"nsxiv", "-g", "376x576"}), chartArea, aboveBar),
        startPeer(user, folder.with({"feh", "--geometry", "376x576"})),
    };
    const KeyStep steps[] = {{user, viewers[0], {{XK_Down}, {XK_Return}}, {{XK_Up}, {XK_Return}}},
                             {user, viewers[1], {{XK_n}}, {{XK_p}}},
                             {user, viewers[2], {{XK_Right}}, {{XK_Left}}}};
    KeyStep::Times times[3];
    for (int round = 0; round < roundsOf(rounds); ++round)
        for (std::size_t i = 0; i < 3; ++i) steps[i].measure(times[i]);
    for (KeyStep::Times& one : times) one.there.insert(one.there.end(), one.back.begin(), one.back.end());
    const std::string claim = "The next chart, " + std::to_string(size.width()) + " x " +
                              std::to_string(size.height()) + ", on the screen";
    const double ours = median(times[0].there);
    printRatio(claim.c_str(), ours, "nsxiv", median(times[1].there), 0.5);
    printRatio(claim.c_str(), ours, "feh", median(times[2].there), 0.2);
}

} // namespace

int main(int argc, char** argv) {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1); // NOLINT(concurrency-mt-unsafe): one thread only
    const QGuiApplication application(argc, argv);
    ::setenv("QT_QPA_PLATFORM", "xcb", 1); // NOLINT(concurrency-mt-unsafe)
    for (const char* peer : {"nsxiv", "feh"})
        if (!isInstalled(peer)) {
            printMissing("The next chart, on the screen", peer);
            return 0;
        }
    benchCharts({1600, 2200});
    benchCharts({3000, 4200});
    return 0;
}
