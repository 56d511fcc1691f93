#include "views/motion/Spring.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace drossbin {
namespace {

constexpr double response = 0.3;

TEST(Spring, starts_at_rest_and_comes_to_rest_where_it_belongs) {
    EXPECT_DOUBLE_EQ(Spring::position(0), 0);
    EXPECT_NEAR(Spring::position(0.001), 0.000217, 0.000001);
    EXPECT_NEAR(Spring::position(5), 1, 1e-12);
}

TEST(Spring, follows_the_damped_oscillator) {
    EXPECT_NEAR(Spring::position(response / 4), 0.5174, 0.0005);
    EXPECT_NEAR(Spring::position(response / 2), 0.9082, 0.0005);
    EXPECT_NEAR(Spring::position(response), 1.0084, 0.0005);
}

TEST(Spring, overshoots_once_by_one_percent) {
    double highest = 0;
    for (int milliseconds = 0; milliseconds < 1000; ++milliseconds) {
        highest = std::max(highest, Spring::position(milliseconds / 1000.0));
    }
    EXPECT_NEAR(highest, 1.0102, 0.0001);
}

TEST(Spring, curve_is_the_spring_up_to_its_duration) {
    const QEasingCurve curve = Spring::curve();
    EXPECT_EQ(Spring::duration(), 433);
    EXPECT_DOUBLE_EQ(curve.valueForProgress(0), 0);
    EXPECT_NEAR(curve.valueForProgress(0.5), Spring::position(0.2165), 1e-4);
    EXPECT_DOUBLE_EQ(curve.valueForProgress(1), 1);
}

} // namespace
} // namespace drossbin
