#pragma once

#include "screen_pixels.h"

#include <functional>
#include <vector>

namespace quarvel::bench {

/// By what a finished picture is known: some of its pixels that were otherwise before, spread over all of it
/// up to its first and last rows.
struct Sight {
    std::vector<Pixel> few; ///< that are looked at again and again, some 24
    std::vector<Pixel>
        many; ///< that are asked for once these stand, in case a coarse picture came before the fine
};

/// Watches a part of the screen while something is done.
class Watch {
public:
    explicit Watch(const ScreenPixels& screen) : screen_(screen) {}

    /// Does something and waits until the screen has been quiet for 300 ms: what stands then in `area` is the
    /// picture that it leads to. Fails when nothing has changed there.
    [[nodiscard]] Sight learn(Area area, const std::function<void()>& action) const;
    /// From the action to the moment that the picture stands on the screen, in milliseconds; fails after ten
    /// seconds.
    [[nodiscard]] double timeTo(const std::function<void()>& action, const Sight& picture) const;
    /// From the action to the moment that most of a picture's pixels are no longer what they were, whatever
    /// they are: a coarse picture counts.
    [[nodiscard]] double timeFrom(const std::function<void()>& action, const Sight& picture) const;
    /// Waits until an area has been quiet for 300 ms, but for a caret that blinks, and tells what stands
    /// there.
    [[nodiscard]] std::vector<Pixel> settled(Area area) const;

private:
    using Look = std::function<bool()>;
    /// From the action to the first look that is confirmed, milliseconds.
    [[nodiscard]] double timeUntil(const std::function<void()>& action, const Look& look,
                                   const Look& confirm) const;
    [[nodiscard]] bool stands(const std::vector<Pixel>& pixels) const {
        return screen_.again(pixels) == pixels;
    }

    const ScreenPixels& screen_;
};

} // namespace quarvel::bench
