#include "platform/measuring/DescriptorBudget.h"

#include <algorithm>
#include <sys/resource.h>

namespace drossbin {

DescriptorBudget DescriptorBudget::ofThisProcess() {
    // A disk answers that many requests at a time, and the trees that people have are no deeper.
    constexpr std::size_t mostHelpers = 15;
    constexpr std::size_t mostLevels = 16;
    rlimit limit{};
    const std::size_t most = ::getrlimit(RLIMIT_NOFILE, &limit) == 0 ? limit.rlim_cur : 0;
    return {std::clamp<std::size_t>(most / 16, 1, mostHelpers),
            std::clamp<std::size_t>(most / 64, 3, mostLevels)};
}

} // namespace drossbin
