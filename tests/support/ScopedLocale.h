#pragma once

#include "platform/words/Locale.h"

namespace drossbin::test {

/// Makes a locale the user's while it lives.
class ScopedLocale {
  public:
    explicit ScopedLocale(const Locale& locale) { Locale::setCurrent(locale); }
    ~ScopedLocale() { Locale::setCurrent(m_previous); }
    ScopedLocale(const ScopedLocale&) = delete;
    ScopedLocale& operator=(const ScopedLocale&) = delete;
    ScopedLocale(ScopedLocale&&) = delete;
    ScopedLocale& operator=(ScopedLocale&&) = delete;

  private:
    Locale m_previous = Locale::current();
};

} // namespace drossbin::test
