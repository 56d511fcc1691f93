#pragma once

#include <array>
#include <string_view>

namespace drossbin {

/// Words that hint at a browser's data. The match is broad on purpose: a warning too many costs
/// less than a lost password.
inline constexpr std::array<std::string_view, 10> browserWords{
    "chrome", "safari", "firefox", "brave", "opera", "edge", "arc", "vivaldi", "browser", "webkit"};

/// Whether the lower-cased `name` followed directly by the lower-cased `path` contains one of the
/// words, anywhere, inside other words too.
[[nodiscard]] bool containsBrowserWord(std::string_view name, std::string_view path);

} // namespace drossbin
