// The promise: a key typed into the name box over an archive of 50,000 airports, until the list stands on the
// screen, costs at most twice what it costs in dmenu, which finds among the same names. Started as
// `dmenu -l 20`, it shows 20 lines over the width of the screen; it takes all keys while it is there, so that
// the two are measured in blocks that take turns.

#include "hand.h"
#include "measuring.h"
#include "scratch_program.h"
#include "sight.h"

#include <X11/keysym.h>
#include <array>
#include <chrono>
#include <fstream>
#include <thread>

using namespace quarvel::bench;

namespace {

constexpr int folderCount = 50'000;
constexpr int blocks = 3;
constexpr int rounds = 11; ///< a block
constexpr const char* claim = "A key typed over 50,000 airports, on the screen";

/// The place of the list in the main window, which stands in the lower part of the screen where dmenu does
/// not cover it; pixels.
constexpr Area mainWindow{0, 420, 687, 595};
constexpr Area list{368, 420 + 32, 313, 148};

/// The i-th of 456,976 codes of four small letters, spread over the alphabet; different for different i.
/// dmenu takes letters as they are, the program makes capitals of them.
std::string code(int i) {
    std::string text(4, 'a');
    for (long long rest = i * 99'991LL % 456'976, k = 3; k >= 0; --k, rest /= 26)
        text[static_cast<std::size_t>(k)] = static_cast<char>('a' + rest % 26);
    return text;
}

/// One who shows a list that follows the typing: how long "l" takes, and "li" after it.
class Searcher {
public:
    Searcher(const Hand& hand, const Watch& watch, Area area) : hand_(hand), watch_(watch) {
        sights_[0] = watch.learn(area, [&] { hand.key(XK_l); });
        sights_[1] = watch.learn(area, [&] { hand.key(XK_i); });
        sights_[2] = watch.learn(area, [&] { hand.key(XK_BackSpace); });
        hand.key(XK_BackSpace);
        static_cast<void>(watch.settled(area));
    }

    /// Types and takes back what it typed; the first times are not counted.
    void measure(std::array<std::vector<double>, 2>& times) const {
        for (int round = -2; round < roundsOf(rounds); ++round) {
            const double first = watch_.timeTo([&] { hand_.key(XK_l); }, sights_[0]);
            const double second = watch_.timeTo([&] { hand_.key(XK_i); }, sights_[1]);
            static_cast<void>(watch_.timeTo([&] { hand_.key(XK_BackSpace); }, sights_[2]));
            hand_.key(XK_BackSpace);
            std::this_thread::sleep_for(
                std::chrono::milliseconds(100)); // the whole list, of which no sight is kept
            if (round < 0) continue;
            times[0].push_back(first);
            times[1].push_back(second);
        }
    }

private:
    const Hand& hand_;
    const Watch& watch_;
    std::array<Sight, 3> sights_;
};

void compare(const ScratchProgram& program) {
    Hand hand;
    const ScreenPixels screen;
    const Watch watch(screen);
    hand.movePointer(1270, 1010);
    const Process ours({program.path()});
    const xcb_window_t window = hand.newWindow();
    hand.place(window, mainWindow);
    static_cast<void>(watch.settled(mainWindow));
    hand.focus(window);
    // The frame of the list comes with the first key; only then is there a list to be seen.
    hand.key(XK_BackSpace);
    static_cast<void>(watch.settled(list));
    const Searcher own(hand, watch, list);
    std::array<std::vector<double>, 2> times;
    std::array<std::vector<double>, 2> dmenu;
    for (int block = 0; block < roundsOf(blocks); ++block) {
        hand.focus(window);
        own.measure(times);
        Hand peerHand; // knows the windows of this moment: each dmenu's has the number of the one before
        const Process peer({"sh", "-c", "exec dmenu -l 20 < " + program.of("names").string()});
        const Area area = peerHand.areaOf(peerHand.newWindow());
        static_cast<void>(watch.settled(area));
        Searcher(peerHand, watch, area).measure(dmenu);
    }
    printRatio((std::string(claim) + ", \"L\"").c_str(), median(times[0]), "dmenu", median(dmenu[0]), 2);
    printRatio((std::string(claim) + ", \"LI\"").c_str(), median(times[1]), "dmenu", median(dmenu[1]), 2);
}

} // namespace

int main() {
    if (!isInstalled("dmenu")) {
        printMissing(claim, "dmenu");
        return 0;
    }
    const ScratchProgram program(QUARVEL_PROGRAM);
    std::filesystem::remove_all(program.of("aeroporti"));
    std::filesystem::create_directory(program.of("aeroporti"));
    std::ofstream names(program.of("names"));
    for (int i = 0; i < folderCount; ++i) {
        std::filesystem::create_directory(program.of("aeroporti") / code(i));
        names << code(i) << '\n';
    }
    names.close();
    compare(program);
    return 0;
}
