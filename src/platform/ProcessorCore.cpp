#include "platform/ProcessorCore.h"

#ifdef __linux__
#include <sched.h>
#endif

namespace drossbin {

#ifdef __linux__

std::optional<int> currentCore() {
    const int core = ::sched_getcpu();
    return core >= 0 ? std::optional(core) : std::nullopt;
}

void leaveCore(std::optional<int> core) {
    cpu_set_t all;
    if (!core || currentCore() != core || ::sched_getaffinity(0, sizeof(all), &all) != 0) {
        return;
    }
    cpu_set_t others = all;
    CPU_CLR(static_cast<std::size_t>(*core), &others);
    // Refused where there is no other core: the thread then stays where it is.
    if (::sched_setaffinity(0, sizeof(others), &others) == 0) {
        ::sched_setaffinity(0, sizeof(all), &all);
    }
}

#else

std::optional<int> currentCore() {
    return std::nullopt;
}

void leaveCore(std::optional<int> /*core*/) {}

#endif

} // namespace drossbin
