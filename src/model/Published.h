#pragma once

#include "model/ChangePublisher.h"
#include "platform/MainThread.h"

#include <utility>

namespace drossbin {

/// A field whose every write is announced right before it happens, and that only the main thread
/// may read or write.
template <class Value, class Field>
class Published {
  public:
    Published(ChangePublisher<Field>& publisher, Field field, Value initial)
        : m_publisher(publisher)
        , m_field(field)
        , m_value(std::move(initial)) {}

    [[nodiscard]] const Value& get() const {
        MainThread::require("the session state");
        return m_value;
    }
    operator const Value&() const { return get(); }

    Published& operator=(Value value) {
        MainThread::require("the session state");
        m_publisher.send(m_field);
        m_value = std::move(value);
        return *this;
    }

    /// Announces one write and makes it in place, where a copy of the whole value would cost more.
    template <class Change>
    void modify(Change change) {
        MainThread::require("the session state");
        m_publisher.send(m_field);
        change(m_value);
    }

    Published(const Published&) = delete;
    Published& operator=(const Published&) = delete;
    Published(Published&&) = delete;
    Published& operator=(Published&&) = delete;
    ~Published() = default;

  private:
    ChangePublisher<Field>& m_publisher;
    Field m_field;
    Value m_value;
};

} // namespace drossbin
