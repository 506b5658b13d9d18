#pragma once

#include "screen_pixels.h"

#include <cstdint>
#include <map>
#include <set>
#include <xcb/xcb.h>

namespace quarvel::bench {

/// The hand of a user before a bare X screen without a window manager: it puts windows in their places, and
/// what it does with keys, buttons and wheel reaches the programs as if a keyboard and a mouse had sent it.
class Hand {
public:
    Hand();
    ~Hand() { xcb_disconnect(connection_); }
    Hand(const Hand&) = delete;
    Hand& operator=(const Hand&) = delete;

    /// Waits for a window on the screen that was not there when this was last asked, or at the beginning;
    /// fails after half a minute.
    [[nodiscard]] xcb_window_t newWindow();
    /// Puts a window before all others at a place of the screen, and gives it the keys. It counts as placed
    /// once the X server has done so; the program learns it in its own time.
    void place(xcb_window_t window, Area area) const;
    void resize(xcb_window_t window, std::uint16_t width, std::uint16_t height) const;
    void focus(xcb_window_t window) const;
    /// Where a window is on the screen.
    [[nodiscard]] Area areaOf(xcb_window_t window) const;

    /// A key is pressed and released; `keysym` as X11/keysym.h names it, one that needs no Shift.
    void key(std::uint32_t keysym) const;
    void press(std::uint32_t keysym) const;
    void release(std::uint32_t keysym) const;
    void movePointer(int x, int y) const;
    /// Button 1 left, 2 middle, 3 right, 4 and 5 the wheel; where the pointer is.
    void click(std::uint8_t button) const;

private:
    [[nodiscard]] std::set<xcb_window_t> windows() const;
    [[nodiscard]] bool isShown(xcb_window_t window) const;
    void learnKeys();
    [[nodiscard]] xcb_keycode_t keyOf(std::uint32_t keysym) const;
    void send(std::uint8_t kind, std::uint8_t detail, int x = 0, int y = 0) const;

    xcb_connection_t* connection_;
    xcb_screen_t* screen_ = nullptr;
    std::set<xcb_window_t> known_;
    std::map<std::uint32_t, xcb_keycode_t> keys_; ///< by what they send without Shift
};

} // namespace quarvel::bench
