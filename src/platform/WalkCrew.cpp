#include "platform/WalkCrew.h"

#include "platform/CheckedSum.h"
#include "platform/ProcessorCore.h"
#include "platform/ThreadPriority.h"

#include <algorithm>
#include <memory>
#include <pthread.h>
#include <sys/resource.h>
#include <system_error>
#include <thread>
#include <utility>

namespace drossbin {

namespace {

/// A disk answers that many requests at a time; each thread needs up to 4 descriptors and more,
/// and each parcel that waits for one holds another.
std::size_t mostThreads() {
    rlimit limit{};
    const bool known = ::getrlimit(RLIMIT_NOFILE, &limit) == 0;
    return std::clamp<std::size_t>(known ? limit.rlim_cur / 16 : 0, 1, 15);
}

} // namespace

WalkCrew* WalkCrew::ofThisProcess() {
    // Asking the system each time would cost a small folder more than its sum.
    static std::atomic<bool> isForked = false;
    static const int watch = ::pthread_atfork(nullptr, nullptr, [] { isForked = true; });
    // Never destroyed: a walk that still runs must not hold up the end of the process, and the
    // sleeping threads end with it.
    static WalkCrew* const crew =
        std::make_unique<WalkCrew>(std::thread::hardware_concurrency()).release();
    return isForked || watch != 0 ? nullptr : crew;
}

WalkCrew::WalkCrew(std::size_t cores)
    : m_fullStrength(mostThreads())
    , m_usualStrength(std::min(std::max<std::size_t>(cores, 1) - 1, m_fullStrength))
    , m_strength(m_usualStrength) {}

void WalkCrew::suit(bool hasWaited) {
    const std::size_t strength = m_strength.load(std::memory_order_relaxed);
    const std::size_t wanted =
        hasWaited ? m_fullStrength : std::max(strength, m_usualStrength + 1) - 1;
    if (wanted != strength) {
        m_strength.store(wanted, std::memory_order_relaxed);
    }
}

void WalkCrew::give(Parcel parcel, Measurement& measurement) {
    const Lock lock(m_mutex);
    m_tasks.push_back({std::move(parcel), &measurement});
    m_waitingParcels.store(m_tasks.size(), std::memory_order_relaxed);
    ++measurement.parcelsOut;
    if (std::exchange(measurement.isOwnerWaiting, false)) {
        measurement.comeBack.notify_one();
        return;
    }
    if (m_walking + m_tasks.size() > m_threads && m_threads < m_strength) {
        startThread();
    }
    m_arrival.notify_one();
}

void WalkCrew::startThread() {
    try {
        // A system may start a thread on the core of its maker, and take as long to see that
        // another core is idle as 10,000 files take to be measured.
        std::thread([this, makers = currentCore()] {
            leaveCore(makers);
            goAfterOthers();
            work();
        }).detach();
        ++m_threads;
    } catch (const std::system_error&) {
        // No thread to be had: the parcel's owner walks it in the end.
    }
}

void WalkCrew::work() {
    Lock lock(m_mutex);
    while (true) {
        m_arrival.wait(lock, [this] { return !m_tasks.empty() && m_walking < m_strength; });
        ++m_walking;
        perform(m_tasks.begin(), lock);
        --m_walking;
    }
}

void WalkCrew::perform(const TaskQueue::iterator& next, Lock& lock) {
    Task task = std::move(*next);
    m_tasks.erase(next);
    m_waitingParcels.store(m_tasks.size(), std::memory_order_relaxed);
    lock.unlock();
    const std::int64_t size = TreeWalk(*task.measurement).sizeOf(std::move(task.parcel));
    lock.lock();
    task.measurement->size = checkedSum(task.measurement->size, size);
    if (--task.measurement->parcelsOut == 0) {
        task.measurement->comeBack.notify_one();
    }
}

std::int64_t WalkCrew::finish(Measurement& measurement) {
    Lock lock(m_mutex);
    while (measurement.parcelsOut > 0) {
        const auto own = std::find_if(m_tasks.begin(), m_tasks.end(), [&](const Task& task) {
            return task.measurement == &measurement;
        });
        if (own != m_tasks.end()) {
            perform(own, lock);
        } else {
            measurement.isOwnerWaiting = true;
            measurement.comeBack.wait(lock);
        }
    }
    return measurement.size;
}

} // namespace drossbin
