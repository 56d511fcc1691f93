#include "faults/Losses.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace drossbin::test {

namespace {

bool isInAnItem(const SampleRun& run, const std::string& path) {
    return std::ranges::any_of(run.sizes, [&](const auto& item) { return isIn(item.first, path); });
}

bool isTemporary(const SampleHome& home, const std::string& path) {
    return path.starts_with(home.logFolder() + "/.drossbin-");
}

bool belongsToLog(const SampleHome& home, const std::string& path) {
    return path == home.logPath() || isIn(path, home.logFolder());
}

} // namespace

void expectNoLoss(const SampleHome& home, const Entries& before, const SampleRun& run,
                  bool mayLeaveTemporary) {
    const Entries after = home.entries();
    for (const auto& [path, identity] : before) {
        const bool isThere = after.contains(path);
        const bool isAsBefore = isThere && after.at(path) == identity;
        const bool mayGo = isInAnItem(run, path) && (!isThere || belongsToLog(home, path));
        // A log of the same second is replaced, and what a killed program left of one goes.
        const bool isOfLog = path == home.logPath() || isTemporary(home, path);
        EXPECT_TRUE(isAsBefore || mayGo || isOfLog) << path;
    }
    for (const auto& [path, identity] : after) {
        EXPECT_TRUE(before.contains(path) || belongsToLog(home, path) ||
                    (mayLeaveTemporary && isTemporary(home, path)))
            << path;
    }
}

void expectUntouched(const std::string& path, const Entries& before, const Entries& after) {
    for (const auto& [entry, identity] : before) {
        if (isIn(path, entry)) {
            EXPECT_TRUE(after.contains(entry) && after.at(entry) == identity) << entry;
        }
    }
}

} // namespace drossbin::test
