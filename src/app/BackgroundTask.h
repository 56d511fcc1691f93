#pragma once

#include "platform/BackgroundThread.h"
#include "platform/MainThread.h"

#include <coroutine>
#include <optional>
#include <type_traits>
#include <utility>

namespace drossbin {

/// Work for a background thread that a flow on the main thread awaits. The flow goes on after
/// every job that the work posted to the main thread. Name it before awaiting it: GCC 12 destroys
/// twice what a temporary in an await expression holds.
template <class Work>
class BackgroundTask {
  public:
    explicit BackgroundTask(Work work)
        : m_work(std::move(work)) {}

    [[nodiscard]] bool await_ready() const { return false; }

    void await_suspend(std::coroutine_handle<> flow) {
        BackgroundThread::run([this, flow] {
            m_result = m_work();
            MainThread::post([flow] { flow.resume(); });
        });
    }

    std::invoke_result_t<Work> await_resume() { return std::move(*m_result); }

  private:
    Work m_work;
    std::optional<std::invoke_result_t<Work>> m_result;
};

} // namespace drossbin
