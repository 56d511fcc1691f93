#pragma once

#include "faults/SampleRun.h"

#include <map>
#include <string>

namespace drossbin::test {

using Entries = std::map<std::string, std::string>;

/// Whether `path` is `folder` or lies in it.
inline bool isIn(const std::string& folder, const std::string& path) {
    return path == folder || path.starts_with(folder + "/");
}

/// Expects that everything outside of the items is as it was, and that nothing came but the log,
/// its folders and, where `mayLeaveTemporary`, the file that was to become the log.
void expectNoLoss(const SampleHome& home, const Entries& before, const SampleRun& run,
                  bool mayLeaveTemporary);

/// Expects that the entries at `path` and below are as they were.
void expectUntouched(const std::string& path, const Entries& before, const Entries& after);

} // namespace drossbin::test
