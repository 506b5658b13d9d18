#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

namespace quarvel::bench {

using Pieces = std::vector<std::function<void()>>;

/// How often a measure is repeated: `full` times, or once in the short form of scripts/bench, which only sees
/// to it that every benchmark still runs.
inline int roundsOf(int full) {
    return std::getenv("QUARVEL_BENCH_SHORT") != nullptr ? 1 : full; // NOLINT(concurrency-mt-unsafe)
}

/// How long a piece of work takes, in milliseconds.
inline double milliseconds(const std::function<void()>& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

inline double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The median of each piece of work, in milliseconds. The pieces take turns, forwards and backwards, so that
/// a busy machine spoils all of them alike; two rounds go before that are not counted. `rounds` are those of
/// the full form.
inline std::vector<double> medians(int rounds, const Pieces& pieces) {
    std::vector<std::vector<double>> times(pieces.size());
    for (int round = -2; round < roundsOf(rounds); ++round)
        for (std::size_t i = 0; i < pieces.size(); ++i) {
            const std::size_t piece = round % 2 == 0 ? i : pieces.size() - 1 - i;
            const double time = milliseconds(pieces[piece]);
            if (round >= 0) times[piece].push_back(time);
        }
    std::vector<double> middles;
    for (const auto& all : times) middles.push_back(median(all));
    return middles;
}

// The rows that scripts/bench gathers: claim, measured, against what, ratio, budget and whether it is kept,
// between tabs.

/// A row for `measured` against `base` (both in milliseconds), whose ratio is to be at most `budget`; a
/// budget of 0 is none.
inline void printRatio(const char* claim, double measured, const char* baseName, double base, double budget,
                       const char* unit = "ms") {
    const double ratio = measured / base;
    const int places = ratio < 0.1 ? 4 : 2;
    std::printf("%s\t%.*f %s\t%s: %.2f %s\t%.*f\t", claim, places, measured, unit, baseName, base, unit,
                places, ratio);
    if (budget > 0)
        std::printf("at most %g times\t%s\n", budget, ratio <= budget ? "within" : "OVER");
    else
        std::printf("none\t\n");
    std::fflush(stdout);
}

/// A row for a figure that is to be at most `budget`, both in `unit`; `against` may say what it is over.
inline void printFigure(const char* claim, double figure, const char* against, double budget,
                        const char* unit) {
    std::printf("%s\t%.2f %s\t%s\t\tat most %g %s\t%s\n", claim, figure, unit, against, budget, unit,
                figure <= budget ? "within" : "OVER");
    std::fflush(stdout);
}

/// A row for a claim that cannot be measured here, since the program it is held against is not installed.
inline void printMissing(const char* claim, const char* peer) {
    std::printf("%s\tnot measured\t%s is not installed\t\t\t\n", claim, peer);
    std::fflush(stdout);
}

} // namespace quarvel::bench
