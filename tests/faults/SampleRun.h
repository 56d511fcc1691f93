#pragma once

#include "faults/SampleHome.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace drossbin::test {

/// Whether every error at every call is wanted, which takes minutes, and not a few of them: where
/// DROSSBIN_WHOLE is set.
bool isWhole();

/// What happens to a run right before one of its calls of the system.
struct Disturbance {
    std::string_view function{}; ///< whose calls are counted; of all that is about files when empty
    int nth = 0;                 ///< of these; none where it is 0
    int error = 0;               ///< that the call fails with, or
    int signal = 0;              ///< that comes, during the deletion only
};

/// What a run of the program in a process of its own has left behind: a scan of the sample home,
/// and the deletion of all that may be selected.
struct SampleRun {
    SampleRun(const SampleHome& home, const Disturbance& disturbance);

    bool hasHappened = false;
    int status = 0; ///< as of waitpid
    int descriptorsLeft = 0;
    std::map<std::string, std::int64_t> sizes; ///< of the items, by their paths
    std::map<std::string, std::string> names;  ///< likewise
    bool hasFinished = false;                  ///< the rest is known only then
    std::int64_t bytesFreed = 0;
    std::vector<std::string> log;
};

} // namespace drossbin::test
