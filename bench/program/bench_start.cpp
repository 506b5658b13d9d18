// The promise: the complete main window stands on the screen after at most 1.7 times what an empty Qt window
// takes, both started as processes. With an X server (DISPLAY) it is looked at from outside: the pixels of
// the settled window are learnt first, and a start lasts until all of them stand there. Without a screen, on
// the offscreen platform, the same programs end themselves once painted.

#include "measuring.h"
#include "screen_pixels.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace quarvel::bench;
using namespace std::chrono_literals;

namespace {

constexpr int rounds = 31;
constexpr double budget = 1.7;
constexpr double noBudget = 0;

[[noreturn]] void fail(const char* what) {
    std::fprintf(stderr, "bench_start: %s\n", what);
    std::exit(EXIT_FAILURE);
}

/// A program folder of its own: the programs that are started, with the shipped data beside them.
class ProgramFolder {
public:
    ProgramFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "bench_start.XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) fail("no temporary folder");
        path_ = name;
        constexpr auto recursive = std::filesystem::copy_options::recursive;
        std::filesystem::copy(QUARVEL_DATA_FOLDER, path_, recursive);
        for (const char* program :
             {QUARVEL_PROGRAM, EMPTY_PROGRAM, ENDING_QUARVEL_PROGRAM, ENDING_EMPTY_PROGRAM})
            std::filesystem::copy(program, path_);
    }
    ~ProgramFolder() { std::filesystem::remove_all(path_); }
    ProgramFolder(const ProgramFolder&) = delete;
    ProgramFolder& operator=(const ProgramFolder&) = delete;

    [[nodiscard]] std::string of(const char* program) const {
        return path_ / std::filesystem::path(program).filename();
    }

private:
    std::filesystem::path path_;
};

class Process {
public:
    explicit Process(std::string program) {
        char* arguments[] = {program.data(), nullptr};
        if (::posix_spawn(&id_, program.c_str(), nullptr, nullptr, arguments, environ) != 0)
            fail("a program cannot be started");
    }
    void waitForEnd() const {
        int status = 0;
        ::waitpid(id_, &status, 0);
        if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) fail("a program did not end by itself");
    }
    void end() const {
        ::kill(id_, SIGKILL);
        ::waitpid(id_, nullptr, 0);
    }

private:
    pid_t id_ = 0;
};

/// Waits until the pixels stand on the screen, and fails after ten seconds: half a figure is none.
void waitFor(const ScreenPixels& screen, const std::vector<Pixel>& pixels) {
    const auto same = [](const Pixel& one, const Pixel& other) { return one.colour == other.colour; };
    const auto patience = std::chrono::steady_clock::now() + 10s;
    for (auto seen = screen.again(pixels); !std::ranges::equal(seen, pixels, same);
         seen = screen.again(pixels)) {
        if (std::chrono::steady_clock::now() > patience) fail("the window does not look as it did before");
        std::this_thread::sleep_for(200us);
    }
}

/// About 100 pixels, spread over the window, that differ from the bare screen and have stood still for a
/// second and a half (a caret blinks).
std::vector<Pixel> settledPixels(const ScreenPixels& screen, const std::vector<Pixel>& bare,
                                 const Process& process) {
    std::this_thread::sleep_for(1500ms);
    std::vector<Pixel> settled = screen.again(bare);
    std::vector<bool> still(bare.size());
    for (std::size_t i = 0; i < bare.size(); ++i) still[i] = settled[i].colour != bare[i].colour;
    for (int look = 0; look < 15; ++look) {
        std::this_thread::sleep_for(100ms);
        const std::vector<Pixel> now = screen.again(bare);
        for (std::size_t i = 0; i < bare.size(); ++i)
            still[i] = still[i] && now[i].colour == settled[i].colour;
    }
    process.end();
    waitFor(screen, bare);
    std::vector<Pixel> chosen;
    for (std::size_t i = 0; i < bare.size(); ++i)
        if (still[i]) chosen.push_back(settled[i]);
    if (chosen.size() < 50) fail("no window came up");
    const std::size_t every = chosen.size() / 100 + 1;
    std::vector<Pixel> some;
    for (std::size_t i = 0; i < chosen.size(); i += every) some.push_back(chosen[i]);
    return some;
}

void benchOnScreen(const ProgramFolder& folder) {
    const ScreenPixels screen;
    if (!screen.isThere()) fail("no X server answers at DISPLAY");
    const std::vector<Pixel> bare = screen.grid(16);
    std::vector<std::vector<double>> times(2);
    const std::string programs[] = {folder.of(QUARVEL_PROGRAM), folder.of(EMPTY_PROGRAM)};
    std::vector<std::vector<Pixel>> shown;
    for (const std::string& program : programs)
        shown.push_back(settledPixels(screen, bare, Process(program)));
    for (int round = -2; round < roundsOf(rounds); ++round)
        for (const std::size_t i : {std::size_t{0}, std::size_t{1}}) {
            const std::size_t which = round % 2 == 0 ? i : 1 - i;
            std::unique_ptr<Process> process;
            const double time = milliseconds([&] {
                process = std::make_unique<Process>(programs[which]);
                waitFor(screen, shown[which]);
            });
            if (round >= 0) times[which].push_back(time);
            process->end();
            waitFor(screen, bare);
        }
    printRatio("Start to the complete main window, on an X screen", median(times[0]), "an empty Qt window",
               median(times[1]), budget);
}

void benchOffscreen(const ProgramFolder& folder) {
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1); // NOLINT(concurrency-mt-unsafe): one thread only
    const auto start = [&](const char* program) {
        return [path = folder.of(program)] { Process(path).waitForEnd(); };
    };
    const auto times = medians(rounds, {start(ENDING_QUARVEL_PROGRAM), start(ENDING_EMPTY_PROGRAM)});
    printRatio("Start to the complete main window, offscreen", times[0], "an empty Qt window", times[1],
               noBudget);
}

} // namespace

int main() {
    const ProgramFolder folder;
    if (std::getenv("DISPLAY") != nullptr) benchOnScreen(folder); // NOLINT(concurrency-mt-unsafe)
    benchOffscreen(folder);
    return 0;
}
