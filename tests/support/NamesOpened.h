#pragma once

#include <functional>
#include <string>
#include <vector>

namespace drossbin::test {

/// The names that `job` opens. Where `hidesKinds`, folders keep those of their entries back.
std::vector<std::string> namesOpenedBy(const std::function<void()>& job, bool hidesKinds);

} // namespace drossbin::test
