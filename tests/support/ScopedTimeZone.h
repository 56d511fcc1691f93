#pragma once

#include <unicode/timezone.h>

#include <memory>

namespace drossbin::test {

/// Makes a zone the local one of the process while it lives.
class ScopedTimeZone {
  public:
    explicit ScopedTimeZone(const char* identifier) {
        icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(identifier));
    }
    ~ScopedTimeZone() { icu::TimeZone::setDefault(*m_previous); }
    ScopedTimeZone(const ScopedTimeZone&) = delete;
    ScopedTimeZone& operator=(const ScopedTimeZone&) = delete;
    ScopedTimeZone(ScopedTimeZone&&) = delete;
    ScopedTimeZone& operator=(ScopedTimeZone&&) = delete;

  private:
    std::unique_ptr<icu::TimeZone> m_previous{icu::TimeZone::createDefault()};
};

} // namespace drossbin::test
