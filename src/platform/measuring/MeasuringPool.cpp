#include "platform/measuring/MeasuringPool.h"

#include "platform/basics/CheckedSum.h"
#include "platform/measuring/DescriptorBudget.h"
#include "platform/measuring/TreeWalk.h"
#include "platform/threads/ThreadPriority.h"

#include <algorithm>
#include <memory>
#include <pthread.h>
#include <system_error>
#include <thread>
#include <utility>

#ifdef DROSSBIN_LINUX
#include <sched.h>
#endif

namespace drossbin {

namespace {

/// The core that the calling thread runs on; negative where the system does not tell.
int currentCore() {
#ifdef DROSSBIN_LINUX
    return ::sched_getcpu();
#else
    return -1;
#endif
}

/// Moves the calling thread away from `core` if it runs there and may run on another; it may run
/// on all of them again afterwards. A system may start a thread on the core of its maker, and take
/// as long to see that another is idle as 10,000 files take to be measured.
void leaveCore([[maybe_unused]] int core) {
#ifdef DROSSBIN_LINUX
    cpu_set_t all;
    if (core < 0 || currentCore() != core || ::sched_getaffinity(0, sizeof(all), &all) != 0) {
        return;
    }
    cpu_set_t others = all;
    CPU_CLR(static_cast<std::size_t>(core), &others);
    // Refused where there is no other core: the thread then stays where it is.
    if (::sched_setaffinity(0, sizeof(others), &others) == 0) {
        ::sched_setaffinity(0, sizeof(all), &all);
    }
#endif
}

} // namespace

MeasuringPool* MeasuringPool::ofThisProcess() {
    // Asking the system each time would cost a small folder more than its sum.
    static std::atomic<bool> isForked = false;
    static const int watch = ::pthread_atfork(nullptr, nullptr, [] { isForked = true; });
    // Never destroyed: a walk that still runs must not hold up the end of the process, and the
    // sleeping threads end with it.
    static MeasuringPool* const pool =
        std::make_unique<MeasuringPool>(std::thread::hardware_concurrency()).release();
    return isForked || watch != 0 ? nullptr : pool;
}

MeasuringPool::MeasuringPool(std::size_t cores)
    : m_fullStrength(DescriptorBudget::ofThisProcess().helpers)
    , m_usualStrength(std::min(std::max<std::size_t>(cores, 1) - 1, m_fullStrength))
    , m_strength(m_usualStrength) {}

std::unique_lock<std::mutex> MeasuringPool::begin() {
    Lock turn(m_turn);
    const Lock lock(m_mutex);
    m_size = 0;
    m_isGivenUp = false;
    return turn;
}

void MeasuringPool::adjust(bool hasWaited) {
    const std::size_t strength = m_strength.load(std::memory_order_relaxed);
    const std::size_t wanted =
        hasWaited ? m_fullStrength : std::max(strength, m_usualStrength + 1) - 1;
    if (wanted != strength) {
        m_strength.store(wanted, std::memory_order_relaxed);
    }
}

void MeasuringPool::give(Subtree subtree) {
    const Lock lock(m_mutex);
    m_subtrees.push_back(std::move(subtree));
    m_waiting.store(m_subtrees.size(), std::memory_order_relaxed);
    ++m_out;
    if (std::exchange(m_isOwnerWaiting, false)) {
        m_ownersTurn.notify_one();
        return;
    }
    if (m_walking + m_subtrees.size() > m_threads && m_threads < m_strength) {
        startThread();
    }
    m_arrival.notify_one();
}

void MeasuringPool::startThread() {
    try {
        std::thread([this, makers = currentCore()] {
            leaveCore(makers);
            goAfterOthers();
            work();
        }).detach();
        ++m_threads;
    } catch (const std::system_error&) {
        // No thread to be had: whoever finishes the measurement walks the subtree.
    }
}

void MeasuringPool::work() {
    Lock lock(m_mutex);
    while (true) {
        m_arrival.wait(lock, [this] { return !m_subtrees.empty() && m_walking < m_strength; });
        ++m_walking;
        measureNext(lock);
        --m_walking;
    }
}

void MeasuringPool::measureNext(Lock& lock) {
    Subtree subtree = std::move(m_subtrees.front());
    m_subtrees.pop_front();
    m_waiting.store(m_subtrees.size(), std::memory_order_relaxed);
    lock.unlock();
    const std::int64_t size = TreeWalk(this).sizeOf(std::move(subtree));
    lock.lock();
    m_size = checkedSum(m_size, size);
    if (--m_out == 0) {
        m_ownersTurn.notify_one();
    }
}

std::int64_t MeasuringPool::finish() {
    Lock lock(m_mutex);
    while (m_out > 0) {
        if (m_subtrees.empty()) {
            m_isOwnerWaiting = true;
            m_ownersTurn.wait(lock);
        } else {
            measureNext(lock);
        }
    }
    m_isOwnerWaiting = false;
    return m_size;
}

} // namespace drossbin
