#include "platform/MainThread.h"

#include <gtest/gtest.h>

#include <csignal>

namespace drossbin {
namespace {

TEST(MainThreadDeathTest, stops_the_program_when_a_job_has_nowhere_to_go) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(MainThread::post([] {}), testing::KilledBySignal(SIGABRT),
                "^drossbin: a job was posted before the main thread was connected\n$");
}

} // namespace
} // namespace drossbin
