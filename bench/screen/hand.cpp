#include "hand.h"

#include "process.h"

#include <chrono>
#include <cstdlib>
#include <memory>
#include <string>
#include <thread>
#include <xcb/xtest.h>

using namespace std::chrono_literals;

namespace quarvel::bench {
namespace {

constexpr std::uint16_t smallest = 240; // pixels across, of a window that is worked in

struct Freed {
    void operator()(void* reply) const { std::free(reply); } // the library hands replies over
};
template <class Reply>
using Answer = std::unique_ptr<Reply, Freed>;

} // namespace

Hand::Hand() : connection_(xcb_connect(nullptr, nullptr)) {
    if (xcb_connection_has_error(connection_) != 0) fail("no X server answers at DISPLAY");
    screen_ = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
    known_ = windows();
    learnKeys();
}

std::set<xcb_window_t> Hand::windows() const {
    const Answer<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection_, xcb_query_tree(connection_, screen_->root), nullptr));
    const xcb_window_t* children = xcb_query_tree_children(tree.get());
    std::set<xcb_window_t> shown;
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i)
        if (isShown(children[i])) shown.insert(children[i]);
    return shown;
}

bool Hand::isShown(xcb_window_t window) const {
    const Answer<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
        connection_, xcb_get_window_attributes(connection_, window), nullptr));
    if (attributes == nullptr || attributes->map_state != XCB_MAP_STATE_VIEWABLE) return false;
    return areaOf(window).width >= smallest; // others are tool tips, helpers and the like
}

xcb_window_t Hand::newWindow() {
    const auto patience = std::chrono::steady_clock::now() + 30s;
    while (std::chrono::steady_clock::now() < patience) {
        const std::set<xcb_window_t> now = windows();
        for (const xcb_window_t window : now)
            if (!known_.contains(window)) {
                known_ = now;
                return window;
            }
        std::this_thread::sleep_for(1ms);
    }
    fail("no window came up");
}

void Hand::place(xcb_window_t window, Area area) const {
    const std::uint32_t values[] = {static_cast<std::uint32_t>(area.x), static_cast<std::uint32_t>(area.y),
                                    area.width, area.height, XCB_STACK_MODE_ABOVE};
    xcb_configure_window(connection_, window,
                         XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                             XCB_CONFIG_WINDOW_HEIGHT | XCB_CONFIG_WINDOW_STACK_MODE,
                         values);
    focus(window);
}

void Hand::resize(xcb_window_t window, std::uint16_t width, std::uint16_t height) const {
    const std::uint32_t values[] = {width, height};
    xcb_configure_window(connection_, window, XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, values);
    xcb_flush(connection_);
}

void Hand::focus(xcb_window_t window) const {
    xcb_set_input_focus(connection_, XCB_INPUT_FOCUS_PARENT, window, XCB_CURRENT_TIME);
    (void)areaOf(window); // an answer tells that the server has come so far
}

Area Hand::areaOf(xcb_window_t window) const {
    const auto asked = xcb_get_geometry(connection_, window);
    const Answer<xcb_get_geometry_reply_t> size(xcb_get_geometry_reply(connection_, asked, nullptr));
    if (size == nullptr) fail("a window has gone");
    return {size->x, size->y, size->width, size->height};
}

void Hand::learnKeys() {
    const xcb_setup_t* setup = xcb_get_setup(connection_);
    const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const Answer<xcb_get_keyboard_mapping_reply_t> keys(xcb_get_keyboard_mapping_reply(
        connection_, xcb_get_keyboard_mapping(connection_, setup->min_keycode, count), nullptr));
    const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(keys.get());
    for (int key = 0; key < count; ++key)
        keys_.emplace(symbols[key * keys->keysyms_per_keycode],
                      static_cast<xcb_keycode_t>(setup->min_keycode + key));
}

xcb_keycode_t Hand::keyOf(std::uint32_t keysym) const {
    const auto key = keys_.find(keysym);
    if (key == keys_.end()) fail("no key for keysym " + std::to_string(keysym));
    return key->second;
}

void Hand::send(std::uint8_t kind, std::uint8_t detail, int x, int y) const {
    xcb_test_fake_input(connection_, kind, detail, XCB_CURRENT_TIME, screen_->root,
                        static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0);
}

void Hand::press(std::uint32_t keysym) const {
    send(XCB_KEY_PRESS, keyOf(keysym));
    xcb_flush(connection_);
}

void Hand::release(std::uint32_t keysym) const {
    send(XCB_KEY_RELEASE, keyOf(keysym));
    xcb_flush(connection_);
}

void Hand::key(std::uint32_t keysym) const {
    const xcb_keycode_t key = keyOf(keysym);
    send(XCB_KEY_PRESS, key);
    send(XCB_KEY_RELEASE, key);
    xcb_flush(connection_);
}

void Hand::movePointer(int x, int y) const {
    send(XCB_MOTION_NOTIFY, 0, x, y);
    xcb_flush(connection_);
}

void Hand::click(std::uint8_t button) const {
    send(XCB_BUTTON_PRESS, button);
    send(XCB_BUTTON_RELEASE, button);
    xcb_flush(connection_);
}

} // namespace quarvel::bench
