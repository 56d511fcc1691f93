#pragma once

#include "Require.h"

#include <unicode/unistr.h>

#include <cstdint>
#include <string>

namespace drossbin::fuzz {

/// Requires that a text is UTF-8, and that none of its characters `isForbidden`.
template <class IsForbidden>
void requireCharacters(const std::string& text, IsForbidden isForbidden, const char* property) {
    const auto characters = icu::UnicodeString::fromUTF8(text);
    std::string again;
    require(characters.toUTF8String(again) == text, "a text is UTF-8");
    for (std::int32_t place = 0; place < characters.length();
         place = characters.moveIndex32(place, 1)) {
        require(!isForbidden(characters.char32At(place)), property);
    }
}

} // namespace drossbin::fuzz
