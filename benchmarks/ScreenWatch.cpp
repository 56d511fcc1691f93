#include "ScreenWatch.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <poll.h>
#include <stdexcept>

namespace {

template <class Value>
struct Freed {
    void operator()(Value* value) const { std::free(value); }
};
template <class Value>
using Reply = std::unique_ptr<Value, Freed<Value>>;

int milliseconds(ScreenWatch::Clock::duration duration) {
    using std::chrono::milliseconds;
    return static_cast<int>(std::chrono::ceil<milliseconds>(duration).count());
}

} // namespace

ScreenWatch::ScreenWatch()
    : m_connection(xcb_connect(nullptr, nullptr)) {
    const auto* extension = xcb_get_extension_data(m_connection, &xcb_damage_id);
    if (extension == nullptr || extension->present == 0) {
        throw std::runtime_error("no screen here that tells of its changes");
    }
    m_damageEvent = extension->first_event + XCB_DAMAGE_NOTIFY;
    Reply<xcb_damage_query_version_reply_t>(xcb_damage_query_version_reply(
        m_connection, xcb_damage_query_version(m_connection, 1, 1), nullptr));
    m_screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    m_tilesAcross = m_screen->width_in_pixels / tileSize + 1;
    m_pixels.resize(std::size_t{m_screen->width_in_pixels} * m_screen->height_in_pixels);
    m_tiles.resize(static_cast<std::size_t>(m_tilesAcross) *
                   (m_screen->height_in_pixels / tileSize + 1));
    m_damage = xcb_generate_id(m_connection);
    // On the root window it tells of what happens in all windows on it.
    xcb_damage_create(m_connection, m_damage, m_screen->root,
                      XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
    xcb_flush(m_connection);
}

ScreenWatch::~ScreenWatch() {
    xcb_disconnect(m_connection);
}

bool ScreenWatch::waitForChange(Clock::time_point end) {
    while (true) {
        const Reply<xcb_generic_event_t> event(xcb_poll_for_event(m_connection));
        if (event == nullptr) {
            if (!waitForEvent(end)) {
                return false;
            }
        } else if ((event->response_type & 0x7f) == m_damageEvent &&
                   look(reinterpret_cast<const xcb_damage_notify_event_t&>(*event))) {
            return true;
        }
    }
}

bool ScreenWatch::waitForEvent(Clock::time_point end) const {
    if (xcb_connection_has_error(m_connection) != 0) {
        throw std::runtime_error("the screen is gone");
    }
    const auto left = end - Clock::now();
    pollfd connection{xcb_get_file_descriptor(m_connection), POLLIN, 0};
    return left > Clock::duration::zero() && ::poll(&connection, 1, milliseconds(left)) > 0;
}

bool ScreenWatch::look(const xcb_damage_notify_event_t& event) {
    const auto time = Clock::now();
    Area area{event.area.x, event.area.y, event.area.x + event.area.width,
              event.area.y + event.area.height};
    includeQueued(area);
    area.left = std::max(area.left, 0);
    area.top = std::max(area.top, 0);
    area.right = std::min<int>(area.right, m_screen->width_in_pixels);
    area.bottom = std::min<int>(area.bottom, m_screen->height_in_pixels);
    if (area.left >= area.right || area.top >= area.bottom) {
        return false;
    }
    const Reply<xcb_get_image_reply_t> image(xcb_get_image_reply(
        m_connection,
        xcb_get_image(m_connection, XCB_IMAGE_FORMAT_Z_PIXMAP, m_screen->root,
                      static_cast<std::int16_t>(area.left), static_cast<std::int16_t>(area.top),
                      static_cast<std::uint16_t>(area.right - area.left),
                      static_cast<std::uint16_t>(area.bottom - area.top), ~0U),
        nullptr));
    if (image == nullptr) {
        return false;
    }
    const auto* pixels = reinterpret_cast<const std::uint32_t*>(xcb_get_image_data(image.get()));
    return takeIn(area, pixels, time);
}

// A frame may come as many rectangles; one look serves them all.
void ScreenWatch::includeQueued(Area& area) {
    while (const Reply<xcb_generic_event_t> event{xcb_poll_for_queued_event(m_connection)}) {
        if ((event->response_type & 0x7f) == m_damageEvent) {
            const auto& more = reinterpret_cast<const xcb_damage_notify_event_t&>(*event).area;
            area.left = std::min<int>(area.left, more.x);
            area.top = std::min<int>(area.top, more.y);
            area.right = std::max(area.right, more.x + more.width);
            area.bottom = std::max(area.bottom, more.y + more.height);
        }
    }
}

bool ScreenWatch::takeIn(const Area& area, const std::uint32_t* pixels, Clock::time_point time) {
    constexpr std::uint32_t color = 0xff'ff'ff;
    bool hasChanged = false;
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            const std::uint32_t pixel = *pixels++ & color;
            const int place = y * m_screen->width_in_pixels + x;
            auto& last = m_pixels[static_cast<std::size_t>(place)];
            if (last != pixel) {
                last = pixel;
                const int tile = y / tileSize * m_tilesAcross + x / tileSize;
                m_tiles[static_cast<std::size_t>(tile)] = time;
                hasChanged = true;
            }
        }
    }
    if (hasChanged && m_firstChange == Clock::time_point()) {
        m_firstChange = time;
    }
    return hasChanged;
}

ScreenWatch::Clock::time_point ScreenWatch::lastChangeBefore(Clock::time_point quiet) const {
    Clock::time_point last = m_firstChange;
    for (const Clock::time_point tile : m_tiles) {
        last = tile < quiet ? std::max(last, tile) : last;
    }
    return last;
}
