#pragma once

#include "platform/MainThread.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace drossbin {

/// Tells its subscribers that a change is about to happen, in the order in which they subscribed.
/// Main thread only; a subscriber must not write the fields that it hears about.
template <class Change>
class ChangePublisher {
  public:
    using Listener = std::function<void(Change)>;

    /// Keeps a listener subscribed for as long as it lives; may outlive the publisher.
    using Subscription = std::shared_ptr<const Listener>;

    [[nodiscard]] Subscription subscribe(Listener listener) {
        MainThread::require("the session state");
        auto subscription = std::make_shared<const Listener>(std::move(listener));
        m_listeners.emplace_back(subscription);
        return subscription;
    }

    void send(Change change) {
        // A listener may make another change: the list must then not move under this walk.
        const bool isNested = std::exchange(m_isSending, true);
        if (!isNested) {
            std::erase_if(m_listeners, [](const auto& listener) { return listener.expired(); });
        }
        // A listener may subscribe another, which hears of the next change.
        const std::size_t count = m_listeners.size();
        for (std::size_t index = 0; index < count; ++index) {
            if (const auto subscribed = m_listeners[index].lock()) {
                (*subscribed)(change);
            }
        }
        m_isSending = isNested;
    }

  private:
    std::vector<std::weak_ptr<const Listener>> m_listeners;
    bool m_isSending = false;
};

} // namespace drossbin
