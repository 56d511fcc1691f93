#pragma once

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

namespace drossbin::test {

/// Does `job` again and again on a thread of its own for as long as this lives.
class Meanwhile {
  public:
    explicit Meanwhile(std::function<void()> job)
        : m_thread([this, todo = std::move(job)] {
            while (!m_isOver) {
                todo();
            }
        }) {}
    ~Meanwhile() {
        m_isOver = true;
        m_thread.join();
    }
    Meanwhile(const Meanwhile&) = delete;
    Meanwhile& operator=(const Meanwhile&) = delete;
    Meanwhile(Meanwhile&&) = delete;
    Meanwhile& operator=(Meanwhile&&) = delete;

  private:
    std::atomic<bool> m_isOver = false;
    std::thread m_thread;
};

/// Does `job` on `count` threads at once and waits for all.
inline void onThreads(int count, const std::function<void()>& job) {
    std::vector<std::thread> threads(static_cast<std::size_t>(count));
    for (std::thread& thread : threads) {
        thread = std::thread(job);
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
}

} // namespace drossbin::test
