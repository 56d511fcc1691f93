#include "platform/words/Locale.h"

#include "platform/words/IntegerFormatter.h"
#include "support/ScopedLocale.h"

#include <gtest/gtest.h>

namespace drossbin {
namespace {

TEST(Locale, becomes_the_users_under_either_spelling) {
    const test::ScopedLocale scope({"de-DE"});
    EXPECT_EQ(Locale::current().identifier, "de_DE");
    Locale::setCurrent({"fr_FR"});
    EXPECT_EQ(Locale::current().identifier, "fr_FR");
}

TEST(Locale, of_the_user_is_what_formatters_take_by_default) {
    const test::ScopedLocale scope({"de_DE"});
    EXPECT_EQ(IntegerFormatter::string(1'000), "1.000");
    Locale::setCurrent({"en_US"});
    EXPECT_EQ(IntegerFormatter::string(1'000), "1,000");
}

} // namespace
} // namespace drossbin
