#pragma once

#include <QTimer>

#include <chrono>

/// Beats in the event loop of the main thread, and so tells how long nothing was answered there,
/// whether it was busy or had to wait for a core.
class Heart {
  public:
    Heart();

    /// Forgets what was before.
    void restart();

    /// The longest time between two beats since then, in milliseconds.
    [[nodiscard]] double longestGap() const;

  private:
    using Clock = std::chrono::steady_clock;

    void beat();

    QTimer m_timer;
    Clock::time_point m_lastBeat;
    Clock::duration m_longestGap{};
};
