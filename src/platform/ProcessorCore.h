#pragma once

#include <optional>

namespace drossbin {

/// The core that the calling thread runs on at this moment; absent where the system does not tell.
[[nodiscard]] std::optional<int> currentCore();

/// Moves the calling thread to another core if it runs on `core` and there is another that it may
/// run on. It may run on all of them again afterwards.
void leaveCore(std::optional<int> core);

} // namespace drossbin
