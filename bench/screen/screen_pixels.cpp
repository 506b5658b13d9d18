#include "screen_pixels.h"

#include <cstdlib>
#include <cstring>

namespace quarvel::bench {
namespace {

/// The colour of a pixel as the X server sends it; the byte above red is what a client happened to leave
/// there.
std::uint32_t colourAt(const std::uint8_t* sent) {
    std::uint32_t colour = 0;
    std::memcpy(&colour, sent, sizeof colour);
    return colour & 0xFFFFFF;
}

} // namespace

std::vector<Pixel> ScreenPixels::grid(int step) const {
    std::vector<Pixel> pixels;
    for (int y = step / 2; y < screen_->height_in_pixels; y += step)
        for (int x = step / 2; x < screen_->width_in_pixels; x += step)
            pixels.push_back({static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0});
    return again(pixels);
}

std::vector<Pixel> ScreenPixels::again(const std::vector<Pixel>& pixels) const {
    // All are asked for before the first answer is waited for, so that looking costs the server one turn.
    std::vector<xcb_get_image_cookie_t> asked;
    for (const Pixel& pixel : pixels)
        asked.push_back(xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, screen_->root, pixel.x, pixel.y,
                                      1, 1, ~std::uint32_t{0}));
    std::vector<Pixel> seen = pixels;
    for (std::size_t i = 0; i < seen.size(); ++i)
        if (xcb_get_image_reply_t* reply = xcb_get_image_reply(connection_, asked[i], nullptr)) {
            seen[i].colour = colourAt(xcb_get_image_data(reply));
            std::free(reply); // the library hands it over
        }
    return seen;
}

std::vector<Pixel> ScreenPixels::all(Area area) const {
    std::vector<Pixel> pixels;
    const auto asked = xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, screen_->root, area.x, area.y,
                                     area.width, area.height, ~std::uint32_t{0});
    xcb_get_image_reply_t* reply = xcb_get_image_reply(connection_, asked, nullptr);
    if (reply == nullptr) return pixels; // a part outside the screen
    const std::uint8_t* at = xcb_get_image_data(reply);
    for (int y = area.y; y < area.y + area.height; ++y)
        for (int x = area.x; x < area.x + area.width; ++x, at += sizeof(std::uint32_t))
            pixels.push_back({static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), colourAt(at)});
    std::free(reply);
    return pixels;
}

} // namespace quarvel::bench
