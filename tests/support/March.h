#pragma once

#include "platform/basics/Date.h"

namespace drossbin::test {

/// The moment at which whatever looks at the clock does so: 2026-03-01 14:05:09 UTC.
inline constexpr Date march{std::chrono::seconds{1'772'373'909}};

} // namespace drossbin::test
