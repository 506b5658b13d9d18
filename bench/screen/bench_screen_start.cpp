// The promise: the complete main window stands on the screen after at most 1.5 times what an empty window of
// the same toolkit takes, and after at most 0.85 times what feh takes to show a picture of 1600 x 2200; at
// its peak it has taken at most 1.4 times feh's memory. All are started as processes, with their files in the
// system's cache.

#include "drawn_chart.h"
#include "measuring.h"
#include "process.h"
#include "scratch_program.h"
#include "sight.h"

#include <QGuiApplication>
#include <fstream>
#include <optional>

using namespace quarvel::bench;

namespace {

constexpr int rounds = 31;
constexpr double noBudget = 0;
constexpr Area wholeScreen{0, 0, 1280, 1024};
constexpr const char* claim = "Start to the complete main window";
constexpr const char* memoryClaim = "Peak memory of a start";

/// A program that is started again and again.
class Started {
public:
    Started(const Watch& watch, std::vector<std::string> command)
        : watch_(watch), command_(std::move(command)) {
        shown_ = watch_.learn(wholeScreen, [this] { process_.emplace(command_); });
        gone_ = watch_.learn(wholeScreen, [this] { process_.reset(); });
    }

    /// Starts it, waits for its picture, and ends it.
    void measure() {
        times_.push_back(watch_.timeTo([this] { process_.emplace(command_); }, shown_));
        peaks_.push_back(peakMegabytesOf(process_->id()));
        static_cast<void>(watch_.timeTo([this] { process_.reset(); }, gone_));
    }
    void forget() {
        times_.clear();
        peaks_.clear();
    }
    [[nodiscard]] double time() const { return median(times_); }
    [[nodiscard]] double peak() const { return median(peaks_); }

private:
    /// The most memory that was resident so far (VmHWM of proc(5)).
    static double peakMegabytesOf(pid_t process) {
        std::ifstream status("/proc/" + std::to_string(process) + "/status");
        for (std::string line; std::getline(status, line);)
            if (line.starts_with("VmHWM:")) return std::stod(line.substr(6)) / 1024;
        fail("a program has no peak of memory");
    }

    const Watch& watch_;
    std::vector<std::string> command_;
    std::optional<Process> process_;
    Sight shown_;
    Sight gone_;
    std::vector<double> times_;
    std::vector<double> peaks_;
};

void compare(const ScratchProgram& program, bool withFeh) {
    const ScreenPixels screen;
    const Watch watch(screen);
    Started own(watch, {program.path()});
    Started empty(watch, {EMPTY_WINDOW});
    Started word(watch, {EMPTY_WINDOW, "with a word"});
    std::optional<Started> feh;
    if (withFeh) feh.emplace(watch, std::vector<std::string>{"feh", program.of("chart.gif")});
    for (int round = -2; round < roundsOf(rounds); ++round) {
        if (round == 0)
            for (Started* each : {&own, &empty, &word, feh ? &*feh : nullptr})
                if (each != nullptr) each->forget();
        own.measure();
        empty.measure();
        word.measure();
        if (feh) feh->measure();
    }
    printRatio(claim, own.time(), "an empty Qt window", empty.time(), 1.5);
    printRatio(claim, own.time(), "a Qt window with one word", word.time(), noBudget);
    if (!feh) {
        printMissing(claim, "feh");
        printMissing(memoryClaim, "feh");
        return;
    }
    printRatio(claim, own.time(), "feh, 1600 x 2200", feh->time(), 0.85);
    printRatio(memoryClaim, own.peak(), "feh, 1600 x 2200", feh->peak(), 1.4, "MB");
}

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen"); // for the letters of the chart
    const QGuiApplication application(argc, argv);
    qputenv("QT_QPA_PLATFORM", "xcb");
    const ScratchProgram program(QUARVEL_PROGRAM);
    const QByteArray chart = drawnChart({1600, 2200}, 16);
    std::ofstream(program.of("chart.gif"), std::ios::binary).write(chart.constData(), chart.size());
    compare(program, isInstalled("feh"));
    return 0;
}
