#pragma once

#include "ByteSource.h"
#include "MadeUpTree.h"

#include <cstddef>
#include <vector>

namespace drossbin::fuzz {

/// What somebody else does to a tree while the program works on it: made of bytes too.
class Disturbance {
  public:
    explicit Disturbance(ByteSource& bytes);

    /// To be called before each call of the program; changes something before some of them.
    void strike(MadeUpTree& tree);

  private:
    struct Change {
        int pause; ///< calls that go undisturbed before it
        std::uint8_t kind;
        std::size_t target;
    };

    static void apply(const Change& change, MadeUpTree& tree);

    std::vector<Change> m_changes; ///< the next one last
};

} // namespace drossbin::fuzz
