#pragma once

#include "platform/MainThread.h"

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
        std::erase_if(m_listeners, [](const auto& listener) { return listener.expired(); });
        // A listener may subscribe another, which hears of the next change, or make one itself:
        // the list must not move under this walk.
        const auto listeners = m_listeners;
        for (const auto& listener : listeners) {
            if (const auto subscribed = listener.lock()) {
                (*subscribed)(change);
            }
        }
    }

  private:
    std::vector<std::weak_ptr<const Listener>> m_listeners;
};

} // namespace drossbin
