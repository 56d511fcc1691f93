#pragma once

#include <cstddef>

namespace drossbin {

/// How many of the files that the process may have open measuring takes. A walk needs its open
/// levels and up to 2 more for a moment; each part of a tree that waits for a thread holds one.
struct DescriptorBudget {
    std::size_t helpers;    ///< threads that help a walk, at most
    std::size_t openLevels; ///< folders on the way down that a walk keeps open, at most

    /// By the limit of the process at this moment.
    static DescriptorBudget ofThisProcess();
};

} // namespace drossbin
