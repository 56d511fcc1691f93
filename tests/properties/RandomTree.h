#pragma once

#include <cstdint>
#include <iosfwd>
#include <rapidcheck.h>
#include <string>
#include <vector>

namespace drossbin::test {

/// How to make an entry of a tree: by numbers alone, so that any will do and smaller ones are
/// simpler.
struct TreeStep {
    enum class Kind { folder, file, sparseFile, link, hardLink, pipe };

    Kind kind;
    std::size_t parent; ///< among the folders made so far
    std::size_t name;   ///< among odd names
    std::size_t target; ///< of links, among all that was made so far
    std::uint32_t mode;
};

std::ostream& operator<<(std::ostream& stream, const TreeStep& step);

/// Makes a tree in the folder `root`. What cannot be made, as a second entry of a name, is left
/// out.
void makeTree(const std::string& root, const std::vector<TreeStep>& steps);

} // namespace drossbin::test

namespace rc {

template <>
struct Arbitrary<drossbin::test::TreeStep> {
    static Gen<drossbin::test::TreeStep> arbitrary();
};

} // namespace rc
