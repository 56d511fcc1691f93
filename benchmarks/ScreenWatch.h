#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <vector>
#include <xcb/damage.h>
#include <xcb/xcb.h>

/// Sees every change of a screen's pixels at the moment when the server tells of it; waits at no
/// cost while nothing changes. The screen is remembered in tiles.
class ScreenWatch {
  public:
    using Clock = std::chrono::steady_clock;

    ScreenWatch();
    ~ScreenWatch();
    ScreenWatch(const ScreenWatch&) = delete;
    ScreenWatch& operator=(const ScreenWatch&) = delete;
    ScreenWatch(ScreenWatch&&) = delete;
    ScreenWatch& operator=(ScreenWatch&&) = delete;

    /// Waits for the next change until then; false when there was none.
    bool waitForChange(Clock::time_point end);

    /// When the first pixel changed.
    [[nodiscard]] Clock::time_point firstChange() const { return m_firstChange; }

    /// The last change before `quiet`, not counting the tiles that went on changing after it: what
    /// moves for ever is never complete, and does not keep the rest from being so.
    [[nodiscard]] Clock::time_point lastChangeBefore(Clock::time_point quiet) const;

  private:
    struct Area {
        int left = 0;
        int top = 0;
        int right = 0;
        int bottom = 0;
    };

    bool look(const xcb_damage_notify_event_t& event);
    bool takeIn(const Area& area, const std::uint32_t* pixels, Clock::time_point time);
    void includeQueued(Area& area);
    [[nodiscard]] bool waitForEvent(Clock::time_point end) const;

    static constexpr int tileSize = 8;

    xcb_connection_t* m_connection;
    xcb_screen_t* m_screen = nullptr;
    std::uint8_t m_damageEvent = 0;
    xcb_damage_damage_t m_damage = 0;
    int m_tilesAcross = 0;
    std::vector<std::uint32_t> m_pixels;
    std::vector<Clock::time_point> m_tiles; ///< when each last changed
    Clock::time_point m_firstChange;
};
