#pragma once

#include <functional>

namespace drossbin::test {

/// Does `job` in a copy of this process, which leaves with what it returns; tells how that one
/// ended, as waitpid does: 0 where the job returned 0.
int endOfChild(const std::function<int()>& job);

} // namespace drossbin::test
