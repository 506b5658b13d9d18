#pragma once

#include <cstdint>
#include <vector>
#include <xcb/xcb.h>

namespace quarvel::bench {

struct Pixel {
    std::int16_t x; ///< of the screen, pixels
    std::int16_t y;
    std::uint32_t colour; ///< 0xRRGGBB

    friend bool operator==(const Pixel&, const Pixel&) = default;
};

/// A part of the screen, in its pixels.
struct Area {
    std::int16_t x = 0;
    std::int16_t y = 0;
    std::uint16_t width = 0;
    std::uint16_t height = 0;
};

/// What stands on the X screen, as anyone before it would see it: the root window with all windows on it.
class ScreenPixels {
public:
    ScreenPixels() : connection_(xcb_connect(nullptr, nullptr)) {
        if (xcb_connection_has_error(connection_) == 0)
            screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
    }
    ~ScreenPixels() { xcb_disconnect(connection_); }
    ScreenPixels(const ScreenPixels&) = delete;
    ScreenPixels& operator=(const ScreenPixels&) = delete;

    [[nodiscard]] bool isThere() const { return screen_ != nullptr; }

    /// One pixel every `step` pixels across and down.
    [[nodiscard]] std::vector<Pixel> grid(int step) const;
    /// The pixels at the same places, as they are now.
    [[nodiscard]] std::vector<Pixel> again(const std::vector<Pixel>& pixels) const;
    /// All pixels of an area, row by row.
    [[nodiscard]] std::vector<Pixel> all(Area area) const;

private:
    xcb_connection_t* connection_;
    xcb_screen_t* screen_ = nullptr;
};

} // namespace quarvel::bench
