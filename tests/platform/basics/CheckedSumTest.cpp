#include "platform/basics/CheckedSum.h"

#include <gtest/gtest.h>

#include <csignal>
#include <tuple>

namespace drossbin {
namespace {

constexpr std::int64_t most = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();

TEST(CheckedSum, adds_what_fits) {
    EXPECT_EQ(checkedSum(2, 3), 5);
    EXPECT_EQ(checkedSum(most - 1, 1), most);
    EXPECT_EQ(checkedSum(least + 1, -1), least);
    EXPECT_EQ(checkedSum(most, least), -1);
    EXPECT_EQ(checkedSum(most, 0), most);
}

TEST(CheckedSumDeathTest, stops_the_program_with_one_line_when_a_sum_does_not_fit) {
    const testing::KilledBySignal aborted(SIGABRT);
    const char* const line = "^drossbin: a sum of sizes exceeds 64 bits\n$";
    EXPECT_EXIT(std::ignore = checkedSum(most, 1), aborted, line);
    EXPECT_EXIT(std::ignore = checkedSum(1, most), aborted, line);
    EXPECT_EXIT(std::ignore = checkedSum(least, -1), aborted, line);
}

} // namespace
} // namespace drossbin
