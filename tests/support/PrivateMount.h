#pragma once

#include <functional>
#include <string>

namespace drossbin::test {

/// Runs `check` with `folder` lying over `place`, which nobody but this test sees: the running
/// test is started again as a process of its own, in a mount namespace of its own, and `check`
/// runs there. Skips the test where the system grants no such namespace. Call it last in a test.
void checkWithFolderOver(const std::string& place, const std::string& folder,
                         const std::function<void()>& check);

} // namespace drossbin::test
