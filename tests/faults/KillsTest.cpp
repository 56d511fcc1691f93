#include "faults/Losses.h"
#include "faults/SampleRun.h"
#include "platform/FileManager.h"
#include "support/TextFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <iostream>
#include <sys/wait.h>

namespace drossbin {
namespace {

using test::Entries;
using test::SampleHome;
using test::SampleRun;

class SignalledRun : public testing::TestWithParam<int> {};

std::string logOfUndisturbedRun() {
    const SampleHome home(false);
    const SampleRun run(home, {});
    return test::contentOf(home.logPath());
}

// A polite signal waits for the end of the deletion; the other leaves what was not reached yet.
void expectEndBy(int signal, const SampleHome& home, const Entries& before, const SampleRun& run,
                 const std::string& wholeLog) {
    EXPECT_TRUE(WIFSIGNALED(run.status) && WTERMSIG(run.status) == signal);
    test::expectNoLoss(home, before, run, signal == SIGKILL);
    const Entries after = home.entries();
    if (signal == SIGKILL) {
        EXPECT_TRUE(!after.contains(home.logPath()) || test::contentOf(home.logPath()) == wholeLog);
        return;
    }
    EXPECT_EQ(test::contentOf(home.logPath()), wholeLog);
    for (const auto& [path, name] : run.names) {
        EXPECT_TRUE(test::isIn(path, home.logFolder()) || !after.contains(path)) << path;
    }
}

/// What was not reached is found and deleted, and no file is left that was to become a log.
void expectNextRunToFinish(const SampleHome& home) {
    const Entries before = home.entries();
    const SampleRun next(home, {});
    EXPECT_TRUE(next.hasFinished);
    EXPECT_EQ(next.log.size(), next.sizes.size());
    test::expectNoLoss(home, before, next, false);
    EXPECT_THAT(FileManager::contentsOfDirectory(home.logFolder()),
                testing::Optional(testing::SizeIs(1)));
}

TEST_P(SignalledRun, loses_nothing_at_whichever_call_the_signal_comes) {
    const std::string wholeLog = logOfUndisturbedRun();
    int kills = 0;
    for (int nth = 1;; nth += test::isWhole() ? 1 : 12) {
        SCOPED_TRACE("call " + std::to_string(nth));
        const SampleHome home(false);
        const Entries before = home.entries();
        const SampleRun run(home, {.nth = nth, .signal = GetParam()});
        if (!run.hasHappened) {
            break;
        }
        expectEndBy(GetParam(), home, before, run, wholeLog);
        expectNextRunToFinish(home);
        ++kills;
    }
    EXPECT_GT(kills, 0);
    std::cout << kills << " signals came\n";
}

TEST(KilledRun, has_its_unfinished_log_cleared_away_by_the_next) {
    const SampleHome home(false);
    const SampleRun run(home, {.function = "renameat", .nth = 1, .signal = SIGKILL});
    EXPECT_THAT(FileManager::contentsOfDirectory(home.logFolder()),
                testing::Optional(testing::ElementsAre(testing::StartsWith(".drossbin-"))));
    expectNextRunToFinish(home);
}

INSTANTIATE_TEST_SUITE_P(OfEachSignal, SignalledRun, testing::Values(SIGKILL, SIGTERM, SIGHUP),
                         [](const auto& parameter) {
                             const int signal = parameter.param;
                             return signal == SIGKILL   ? "SIGKILL"
                                    : signal == SIGTERM ? "SIGTERM"
                                                        : "SIGHUP";
                         });

} // namespace
} // namespace drossbin
