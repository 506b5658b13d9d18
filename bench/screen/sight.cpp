#include "sight.h"

#include "process.h"

#include <array>
#include <chrono>
#include <optional>
#include <thread>

using namespace std::chrono_literals;

namespace quarvel::bench {
namespace {

constexpr auto patience = 10s;
constexpr auto betweenLooks = 150us;

/// One pixel out of each of `across` x `down` cells of an area, where there is one among those that changed:
/// in the upper half the first of its cell, in the lower half the last, so that first and last rows are among
/// them.
std::vector<Pixel> spread(const std::vector<Pixel>& changed, Area area, int across, int down) {
    std::vector<std::optional<Pixel>> cells(static_cast<std::size_t>(across) *
                                            static_cast<std::size_t>(down));
    for (const Pixel& pixel : changed) {
        const int column = (pixel.x - area.x) * across / area.width;
        const int row = (pixel.y - area.y) * down / area.height;
        auto& cell = cells[static_cast<std::size_t>(row) * static_cast<std::size_t>(across) +
                           static_cast<std::size_t>(column)];
        if (!cell || row >= down / 2) cell = pixel;
    }
    std::vector<Pixel> some;
    for (const auto& cell : cells)
        if (cell) some.push_back(*cell);
    return some;
}

} // namespace

std::vector<Pixel> Watch::settled(Area area) const {
    const auto end = std::chrono::steady_clock::now() + patience;
    std::vector<Pixel> before = screen_.all(area);
    while (std::chrono::steady_clock::now() < end) {
        std::this_thread::sleep_for(300ms);
        std::vector<Pixel> now = screen_.all(area);
        std::size_t moved = 0;
        for (std::size_t i = 0; i < now.size(); ++i) moved += now[i] == before[i] ? 0 : 1;
        if (moved <= 64) return now; // no more than a caret
        before = std::move(now);
    }
    fail("the screen does not come to rest");
}

Sight Watch::learn(Area area, const std::function<void()>& action) const {
    const std::vector<Pixel> before = settled(area);
    action();
    const auto end = std::chrono::steady_clock::now() + patience;
    while (screen_.all(area) == before && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(10ms);
    const std::vector<Pixel> after = settled(area);
    const std::vector<Pixel> later = settled(area);
    std::vector<Pixel> changed;
    for (std::size_t i = 0; i < after.size(); ++i)
        if (after[i] != before[i] && after[i] == later[i]) changed.push_back(after[i]);
    Sight sight{spread(changed, area, 4, 6), spread(changed, area, 16, 24)};
    if (sight.few.size() < 6) fail("an action that was to be measured changes nothing on the screen");
    return sight;
}

double Watch::timeTo(const std::function<void()>& action, const Sight& picture) const {
    return timeUntil(
        action, [&] { return stands(picture.few); }, [&] { return stands(picture.many); });
}

double Watch::timeFrom(const std::function<void()>& action, const Sight& picture) const {
    const auto gone = [&] {
        const std::vector<Pixel> now = screen_.again(picture.few);
        std::size_t other = 0;
        for (std::size_t i = 0; i < now.size(); ++i) other += now[i] == picture.few[i] ? 0 : 1;
        return 2 * other > now.size();
    };
    return timeUntil(action, gone, [] { return true; });
}

double Watch::timeUntil(const std::function<void()>& action, const Look& look, const Look& confirm) const {
    const auto start = std::chrono::steady_clock::now();
    action();
    while (true) {
        const bool seen = look();
        const auto now = std::chrono::steady_clock::now();
        if (seen && confirm()) return std::chrono::duration<double, std::milli>(now - start).count();
        if (now - start > patience) fail("a picture does not look as it did before");
        std::this_thread::sleep_for(betweenLooks);
    }
}

} // namespace quarvel::bench
