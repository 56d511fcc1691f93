#pragma once

#include <unicode/timezone.h>

#include <cstdlib>
#include <ctime>
#include <memory>
#include <optional>
#include <string>

namespace drossbin::test {

/// Makes a zone the local one of the process while it lives, for ICU and for the C library.
class ScopedTimeZone {
  public:
    explicit ScopedTimeZone(const char* identifier) {
        icu::TimeZone::adoptDefault(icu::TimeZone::createTimeZone(identifier));
        ::setenv("TZ", identifier, 1);
        ::tzset();
    }
    ~ScopedTimeZone() {
        icu::TimeZone::setDefault(*m_previous);
        if (m_variable) {
            ::setenv("TZ", m_variable->c_str(), 1);
        } else {
            ::unsetenv("TZ");
        }
        ::tzset();
    }
    ScopedTimeZone(const ScopedTimeZone&) = delete;
    ScopedTimeZone& operator=(const ScopedTimeZone&) = delete;
    ScopedTimeZone(ScopedTimeZone&&) = delete;
    ScopedTimeZone& operator=(ScopedTimeZone&&) = delete;

  private:
    static std::optional<std::string> variable() {
        const char* const zone = std::getenv("TZ");
        return zone != nullptr ? std::optional<std::string>(zone) : std::nullopt;
    }

    std::unique_ptr<icu::TimeZone> m_previous{icu::TimeZone::createDefault()};
    std::optional<std::string> m_variable = variable();
};

} // namespace drossbin::test
