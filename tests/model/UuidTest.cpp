#include "model/Uuid.h"

#include <gtest/gtest.h>

#include <set>
#include <thread>

namespace drossbin {
namespace {

TEST(Uuid, differs_each_time) {
    std::set<std::array<std::uint64_t, 2>> seen;
    for (int count = 0; count < 1'000; ++count) {
        seen.insert(Uuid::random().words);
    }
    EXPECT_EQ(seen.size(), 1'000U);
}

TEST(Uuid, differs_between_threads) {
    Uuid other;
    std::thread([&other] { other = Uuid::random(); }).join();
    EXPECT_NE(Uuid::random(), other);
}

TEST(Uuid, is_of_version_4_and_variant_1) {
    for (int count = 0; count < 100; ++count) {
        const Uuid uuid = Uuid::random();
        EXPECT_EQ(uuid.words[0] >> 12U & 0xFU, 4U);
        EXPECT_EQ(uuid.words[1] >> 62U, 2U);
    }
}

} // namespace
} // namespace drossbin
