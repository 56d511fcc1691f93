#include "platform/words/IntegerFormatter.h"

#include <gtest/gtest.h>

#include <limits>

namespace drossbin {
namespace {

TEST(IntegerFormatter, groups_digits_as_the_locale_does) {
    EXPECT_EQ(IntegerFormatter::string(100'000, {"en_US"}), "100,000");
    EXPECT_EQ(IntegerFormatter::string(100'000, {"de_DE"}), "100.000");
    EXPECT_EQ(IntegerFormatter::string(100'000, {"fr_FR"}), "100\u202F000");
    EXPECT_EQ(IntegerFormatter::string(100'000, {"ja_JP"}), "100,000");
    EXPECT_EQ(IntegerFormatter::string(100'000, {"hi_IN"}), "1,00,000");
}

TEST(IntegerFormatter, uses_the_digits_of_the_locale) {
    EXPECT_EQ(IntegerFormatter::string(100'000, {"ar_EG"}), "١٠٠٬٠٠٠");
}

TEST(IntegerFormatter, leaves_small_numbers_without_separators) {
    EXPECT_EQ(IntegerFormatter::string(0, {"en_US"}), "0");
    EXPECT_EQ(IntegerFormatter::string(999, {"en_US"}), "999");
}

TEST(IntegerFormatter, writes_the_extremes) {
    using Limits = std::numeric_limits<std::int64_t>;
    EXPECT_EQ(IntegerFormatter::string(Limits::max(), {"en_US"}), "9,223,372,036,854,775,807");
    EXPECT_EQ(IntegerFormatter::string(Limits::min(), {"en_US"}), "-9,223,372,036,854,775,808");
}

} // namespace
} // namespace drossbin
