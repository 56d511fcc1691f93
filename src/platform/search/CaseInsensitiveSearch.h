#pragma once

#include "platform/words/Locale.h"

#include <memory>
#include <string_view>

namespace drossbin {

/// A text to look for in many others, prepared once. Case does not count, by the rules of the
/// locale; spellings that are canonically equivalent match; diacritics count; a match begins and
/// ends between whole characters. Immutable, so any number of threads may share one.
class CaseInsensitiveSearch {
  public:
    explicit CaseInsensitiveSearch(std::string_view pattern,
                                   const Locale& locale = Locale::current());

    /// Whether `text` contains the pattern. Bytes that are no UTF-8 count as U+FFFD. An empty
    /// pattern is found in nothing.
    [[nodiscard]] bool isFoundIn(std::string_view text) const;

  private:
    struct Pattern;
    std::shared_ptr<const Pattern> m_pattern;
};

} // namespace drossbin
