#include "platform/search/CaseInsensitiveSearch.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace drossbin {
namespace {

const Locale english{"en_US"};
const Locale turkish{"tr_TR"};

// Texts made of letters that fold, join and expand; and the same search in texts with a letter
// appended that is not ASCII, which changes nothing about what is found but takes the other way.
class SearchInGeneratedTexts : public testing::TestWithParam<Locale> {
  protected:
    std::string text(std::size_t maximum, const std::vector<std::string>& parts) {
        std::string made;
        for (std::size_t count = m_random() % (maximum + 1); count > 0; --count) {
            made += parts[m_random() % parts.size()];
        }
        return made;
    }

  private:
    std::minstd_rand m_random{20260301};
};

TEST_P(SearchInGeneratedTexts, finds_the_same_on_the_short_way_for_ascii_and_on_the_long_way) {
    const std::vector<std::string> parts{"a", "A", "i", "I", "k", "s", "ss", "\r", "\n", "/", "z"};
    int found = 0;
    for (int round = 0; round < 20'000; ++round) {
        const std::string pattern = text(3, parts);
        const std::string hay = text(12, parts);
        const bool finds = CaseInsensitiveSearch(pattern, GetParam()).isFoundIn(hay);
        ASSERT_EQ(CaseInsensitiveSearch(pattern, GetParam()).isFoundIn(hay + "無"), finds)
            << testing::PrintToString(pattern) << " in " << testing::PrintToString(hay);
        found += finds ? 1 : 0;
    }
    EXPECT_GT(found, 1'000);
}

TEST_P(SearchInGeneratedTexts, finds_the_same_where_a_letter_beside_it_expands) {
    const std::vector<std::string> parts{"a",      "Ä",  "i",  "I",      "ı",  "İ", "K",     "k",
                                         "\u0308", "か", "が", "\u3099", "한", "👩", "\u200D"};
    int found = 0;
    for (int round = 0; round < 20'000; ++round) {
        const std::string pattern = text(3, parts);
        const std::string hay = text(8, parts);
        const bool finds = CaseInsensitiveSearch(pattern, GetParam()).isFoundIn(hay);
        ASSERT_EQ(CaseInsensitiveSearch(pattern, GetParam()).isFoundIn(hay + "/ß"), finds)
            << testing::PrintToString(pattern) << " in " << testing::PrintToString(hay);
        found += finds ? 1 : 0;
    }
    EXPECT_GT(found, 1'000);
}

INSTANTIATE_TEST_SUITE_P(Locales, SearchInGeneratedTexts, testing::Values(english, turkish),
                         [](const auto& instance) {
                             return instance.param.identifier == "tr_TR" ? "turkish" : "english";
                         });

} // namespace
} // namespace drossbin
