#pragma once

#include "platform/measuring/Subtree.h"

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <mutex>

namespace drossbin {

/// The threads that help to measure a tree once it proves large. They start when first wanted and
/// then sleep until they are wanted again: to start threads for each folder costs more than most
/// folders.
///
/// Who may touch what: one measurement has the pool at a time, from `begin` until the lock that it
/// returned goes. Its walks, on the thread that called `begin` and on the pool's own, look at the
/// atomic fields without a lock; all others are guarded by `m_mutex`. A walk touches nothing but
/// what it was given, so a subtree belongs to one thread at a time.
///
/// Why giving up ends: where the process may open no more files, walks that wait for each other to
/// close some would wait for ever, and one that stops waiting would leave a part of its tree out.
/// So none waits: each walk looks at `isGivenUp` before every folder and ends, a subtree that is
/// taken after that ends at once, and `finish` returns when none is left. The measurement is then
/// made again alone, with all descriptors that the rest of the program leaves.
class MeasuringPool {
  public:
    /// The one pool: the cores that it is to keep busy are the process's. Absent in a child that
    /// was forked, where the threads are not; a walk goes alone then.
    static MeasuringPool* ofThisProcess();

    /// For a machine of so many cores.
    explicit MeasuringPool(std::size_t cores);

    /// Waits until no other measurement has the pool, and starts one.
    [[nodiscard]] std::unique_lock<std::mutex> begin();

    /// Whether a walk should give something away.
    [[nodiscard]] bool wantsWork() const {
        return m_waiting.load(std::memory_order_relaxed) <
               m_strength.load(std::memory_order_relaxed);
    }

    /// Lets more threads walk while they wait for the disk, and no more than there are cores when
    /// they do not.
    void adjust(bool hasWaited);

    void give(Subtree subtree);

    /// Takes part in what was given away until all of it is measured; returns the size of it.
    std::int64_t finish();

    /// Ends all walks of this measurement, for lack of descriptors.
    void giveUp() { m_isGivenUp.store(true, std::memory_order_relaxed); }
    [[nodiscard]] bool isGivenUp() const { return m_isGivenUp.load(std::memory_order_relaxed); }

  private:
    using Lock = std::unique_lock<std::mutex>;

    void startThread();
    void work();
    void measureNext(Lock& lock);

    const std::size_t m_fullStrength;
    const std::size_t m_usualStrength;
    std::atomic<std::size_t> m_strength;    ///< helpers that may walk at a time
    std::atomic<std::size_t> m_waiting = 0; ///< subtrees that nobody has taken yet
    std::atomic<bool> m_isGivenUp = false;
    std::mutex m_turn; ///< held by the measurement that has the pool

    std::mutex m_mutex;
    std::condition_variable m_arrival;    ///< of a subtree, for the helpers
    std::condition_variable m_ownersTurn; ///< there is a subtree, or none is out any more
    std::deque<Subtree> m_subtrees;
    std::size_t m_out = 0; ///< subtrees given away and not measured yet
    std::int64_t m_size = 0;
    std::size_t m_threads = 0;
    std::size_t m_walking = 0; ///< helpers that have a subtree
    bool m_isOwnerWaiting = false;
};

} // namespace drossbin
