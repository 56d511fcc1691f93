#pragma once

#include <functional>
#include <string_view>

namespace drossbin {

/// The thread that owns the session's state. The application connects it to its event loop, a
/// test to a queue that it turns by hand.
class MainThread {
  public:
    using Job = std::function<void()>;
    using Poster = std::function<void(Job)>;

    /// Makes the calling thread the main thread. `poster` must queue a job for it, keep the order
    /// of jobs, and may be called from any thread. A later call replaces an earlier one.
    static void connect(Poster poster);

    /// Queues `job` and returns at once. Callable from any thread; jobs run in the order posted.
    static void post(Job job);

    /// Whether the caller runs on the main thread.
    [[nodiscard]] static bool isCurrent();

    /// Stops the program when the caller is on another thread; `what` names what was touched.
    static void require(std::string_view what);
};

} // namespace drossbin
