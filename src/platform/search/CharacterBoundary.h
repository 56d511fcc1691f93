#pragma once

#include <unicode/unistr.h>

namespace drossbin {

/// Whether `place` is where one character of `text`, as people see characters, ends and the next
/// begins; its two ends are too.
[[nodiscard]] bool isBetweenCharacters(const icu::UnicodeString& text, int32_t place);

} // namespace drossbin
