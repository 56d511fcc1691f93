#pragma once

#include "platform/Measurement.h"
#include "platform/TreeWalk.h"

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <mutex>
#include <shared_mutex>

namespace drossbin {

/// The threads that help any walk that proves large. They start when first wanted and then sleep
/// until they are wanted again: to start threads for each folder costs more than most folders.
class WalkCrew {
  public:
    /// The one crew: the cores that it is to keep busy are the process's. Absent in a child that
    /// was forked, where the threads are not; a walk goes alone then.
    static WalkCrew* ofThisProcess();

    /// For a machine of so many cores.
    explicit WalkCrew(std::size_t cores);

    /// Whether a walk should give something away. A look, without a lock.
    [[nodiscard]] bool wantsWork() const {
        return m_waitingParcels.load(std::memory_order_relaxed) <
               m_strength.load(std::memory_order_relaxed);
    }

    /// More threads walk while they wait for the disk, and no more than there are cores when not.
    void suit(bool hasWaited);

    /// Held shared by each walk with the crew, and alone by one that needs every descriptor.
    [[nodiscard]] std::shared_mutex& descriptors() { return m_descriptors; }

    void give(Parcel parcel, Measurement& measurement);

    /// Takes part in what was given away until all of it is measured; returns the size of it.
    std::int64_t finish(Measurement& measurement);

  private:
    struct Task {
        Parcel parcel;
        Measurement* measurement;
    };

    using TaskQueue = std::deque<Task>;
    using Lock = std::unique_lock<std::mutex>;

    void work();
    void perform(const TaskQueue::iterator& next, Lock& lock);
    void startThread();

    const std::size_t m_fullStrength;
    const std::size_t m_usualStrength;
    std::atomic<std::size_t> m_strength; ///< threads that may walk at a time
    std::atomic<std::size_t> m_waitingParcels = 0;
    std::shared_mutex m_descriptors;

    // Guarded by m_mutex, as is what is given away in every Measurement.
    std::mutex m_mutex;
    std::condition_variable m_arrival;
    TaskQueue m_tasks;
    std::size_t m_threads = 0;
    std::size_t m_walking = 0;
};

} // namespace drossbin
