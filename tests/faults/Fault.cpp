#include "faults/Fault.h"

#include "cleaner/DeletionLog.h"
#include "support/March.h"
#include "support/ScopedLocale.h"
#include "support/TextFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <sys/wait.h>
#include <system_error>

namespace drossbin::test {

Fault::Fault(const Disturbance& fault, bool isLarge)
    : m_fault(fault)
    , m_home(isLarge)
    , m_before(m_home.entries())
    , m_run(m_home, fault)
    , m_after(m_home.entries()) {}

void Fault::expectNoLoss() {
    test::expectNoLoss(m_home, m_before, m_run, false);
    if (m_run.hasFinished) {
        expectOrderlyEnd();
    } else {
        expectEndForLackOfMemory();
    }
}

void Fault::expectEndForLackOfMemory() {
    EXPECT_EQ(m_fault.function, "malloc");
    EXPECT_TRUE(WIFSIGNALED(m_run.status) && WTERMSIG(m_run.status) == SIGABRT);
    EXPECT_EQ(contentOf(m_home.errors()), "drossbin: out of memory\n");
    EXPECT_FALSE(m_after.contains(m_home.logPath()));
}

void Fault::expectOrderlyEnd() {
    EXPECT_EQ(m_run.status, 0);
    EXPECT_EQ(m_run.descriptorsLeft, 0);
    for (const auto& [path, name] : m_run.names) {
        expectFate(path, name);
    }
    EXPECT_LE(m_troubles, 1);
    EXPECT_EQ(m_run.log.size() + static_cast<std::size_t>(m_unmentioned), m_run.sizes.size());
    EXPECT_EQ(m_run.bytesFreed, m_freed);
    expectLog();
}

// One call fails: so at most one item does, with the words of that error. One that could not
// be looked at is left alone, and not mentioned.
void Fault::expectFate(const std::string& path, const std::string& name) {
    const std::string success = "✅ Deleted: " + name + " (";
    const std::string failure =
        "❌ Failed: " + name + " — " + std::generic_category().message(m_fault.error);
    const auto line = std::ranges::find_if(m_run.log, [&](const std::string& candidate) {
        return candidate.starts_with(success) || candidate == failure;
    });
    if (line == m_run.log.end()) {
        ++m_troubles;
        ++m_unmentioned;
        expectUntouched(path, m_before, m_after);
    } else if (*line == failure) {
        ++m_troubles;
    } else {
        m_freed += m_run.sizes.at(path);
        const bool isReplaced = isIn(path, m_home.logFolder());
        EXPECT_TRUE(isReplaced || !m_after.contains(path)) << *line;
    }
}

// Only a call for the log itself can have kept it from being written: never one for an item.
void Fault::expectLog() {
    if (!m_after.contains(m_home.logPath())) {
        EXPECT_TRUE(m_run.hasHappened);
        EXPECT_EQ(m_troubles, 0);
        return;
    }
    const ScopedLocale english({"en_US"});
    EXPECT_EQ(contentOf(m_home.logPath()), deletionlog::text(march, m_run.log, m_run.bytesFreed));
}

} // namespace drossbin::test
