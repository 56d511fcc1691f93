#pragma once

#include <functional>

namespace drossbin {

/// Threads for work that blocks. Each job has one of its own: in a pool that others use too, the
/// main thread may come to wait for a thread, and so for the job that keeps it.
class BackgroundThread {
  public:
    using Job = std::function<void()>;

    /// Runs `job` on a new thread and returns at once. Where no thread can be started the main
    /// thread runs it: it stands still meanwhile, but what was asked for is done.
    static void run(Job job);

    /// Whether a job has not come to its end.
    [[nodiscard]] static bool isAnyRunning();

    /// Waits for the end of all jobs, none of which may be waiting for the main thread.
    static void waitForAll();
};

} // namespace drossbin
