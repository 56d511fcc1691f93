#pragma once

#include <chrono>
#include <optional>
#include <thread>

/// How long the event loop of the main thread was kept from looking for new events: the time in
/// which nothing could be answered. There can be one.
class LoopWatch {
  public:
    LoopWatch();

    /// Runs the event loop for a while; the longest stretch of it without a rest, in milliseconds.
    double longestStretch(int milliseconds);

    /// Called around every wait for events of any thread.
    static void beginRest();
    static void endRest();

  private:
    using Clock = std::chrono::steady_clock;

    const std::thread::id m_thread = std::this_thread::get_id();
    Clock::time_point m_stretchStart;
    Clock::duration m_longest{};
};
