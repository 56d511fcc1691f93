#pragma once

#include <cstdint>
#include <string>

namespace drossbin::test {

// Trees that undo a walk which recurses, keeps every folder open or builds paths. Each function
// returns the sum of the sizes of all that it made.

/// In the folder `root` a folder `name`, in that one another, and so on, `depth` in all; the last
/// holds a file of 7 bytes.
std::int64_t makeChain(const std::string& root, int depth, const std::string& name);

/// The same with a file of 3 bytes and a folder `sibling`, itself with a file of 5 bytes, beside
/// each folder of the chain. Which of the two a folder lists first depends on their names.
std::int64_t makeComb(const std::string& root, int depth, const std::string& name,
                      const std::string& sibling);

} // namespace drossbin::test
