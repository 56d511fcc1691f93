#include "platform/words/ByteCountFormatter.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

namespace drossbin {
namespace {

struct Row {
    std::int64_t bytes;
    std::string text;
};

void expectRows(const Locale& locale, const std::vector<Row>& rows) {
    for (const Row& row : rows) {
        EXPECT_EQ(ByteCountFormatter::string(row.bytes, locale), row.text) << row.bytes;
    }
}

constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();

TEST(ByteCountFormatter, counts_bytes_below_a_thousand_one_by_one) {
    expectRows({"en_US"}, {{0, "Zero KB"}, {1, "1 byte"}, {2, "2 bytes"}, {999, "999 bytes"}});
}

TEST(ByteCountFormatter, shows_kilobytes_without_decimals_rounding_halves_to_even) {
    expectRows({"en_US"}, {{1'000, "1 KB"},
                           {1'499, "1 KB"},
                           {1'500, "2 KB"},
                           {2'499, "2 KB"},
                           {2'500, "2 KB"},
                           {2'501, "3 KB"},
                           {3'500, "4 KB"},
                           {999'499, "999 KB"}});
}

TEST(ByteCountFormatter, shows_megabytes_with_at_most_one_decimal) {
    expectRows({"en_US"}, {{1'000'000, "1 MB"},
                           {1'049'999, "1 MB"},
                           {1'050'000, "1 MB"},
                           {1'050'001, "1.1 MB"},
                           {1'150'000, "1.2 MB"},
                           {1'250'000, "1.2 MB"},
                           {940'000'000, "940 MB"},
                           {999'949'999, "999.9 MB"}});
}

TEST(ByteCountFormatter, shows_gigabytes_and_above_with_at_most_two_decimals) {
    expectRows({"en_US"}, {{1'000'000'000, "1 GB"},
                           {3'200'000'000, "3.2 GB"},
                           {1'005'000'000, "1 GB"},
                           {1'015'000'000, "1.02 GB"},
                           {1'015'000'001, "1.02 GB"},
                           {1'014'999'999, "1.01 GB"},
                           {200'180'000'000, "200.18 GB"},
                           {12'345'678'901'234, "12.35 TB"},
                           {1'500'000'000'000'000, "1.5 PB"},
                           {largest, "9.22 EB"}});
}

TEST(ByteCountFormatter, moves_to_the_next_unit_when_a_value_rounds_up_to_a_thousand) {
    expectRows({"en_US"}, {{999'499, "999 KB"},
                           {999'500, "1 MB"},
                           {999'999, "1 MB"},
                           {999'949'999, "999.9 MB"},
                           {999'950'000, "1 GB"},
                           {999'994'999'999, "999.99 GB"},
                           {999'995'000'000, "1 TB"},
                           {999'995'000'000'000, "1 PB"},
                           {999'995'000'000'000'000, "1 EB"}});
}

TEST(ByteCountFormatter, shows_negative_sizes_like_positive_ones_with_a_sign) {
    expectRows({"en_US"}, {{-1, "-1 byte"},
                           {-2, "-2 bytes"},
                           {-1'234'567, "-1.2 MB"},
                           {-999'999, "-1 MB"},
                           {smallest, "-9.22 EB"}});
}

TEST(ByteCountFormatter, spells_the_units_alike_in_every_english) {
    expectRows({"en"}, {{5'000, "5 KB"}});
    expectRows({"en-GB"}, {{0, "Zero KB"}, {1, "1 byte"}, {5'000, "5 KB"}});
    expectRows({"en_US_POSIX"}, {{1'300'000, "1.3 MB"}, {5'000, "5 KB"}});
    expectRows({"en_ZA"}, {{1'300'000, "1,3 MB"}});
}

// What no rule above foretells: the words, digits and spaces of each language in each unit.
TEST(ByteCountFormatter, speaks_english_german_french_arabic_and_japanese) {
    const std::vector<std::string> locales{"en_US", "de_DE", "fr_FR", "ar_EG", "ja_JP"};
    const std::vector<std::pair<std::int64_t, std::vector<std::string>>> table{
        {0, {"Zero KB", "0 kB", "0\u202Fko", "٠ كيلوبايت", "0 KB"}},
        {1, {"1 byte", "1\u00A0Byte", "1\u202Fo", "١ بايت", "1 byte"}},
        {2, {"2 bytes", "2 Byte", "2\u202Fo", "٢ بايت", "2 byte"}},
        {11, {"11 bytes", "11 Byte", "11\u202Fo", "١١ بايت", "11 byte"}},
        {999, {"999 bytes", "999 Byte", "999\u202Fo", "٩٩٩ بايت", "999 byte"}},
        {1'000, {"1 KB", "1 kB", "1\u202Fko", "١ كيلوبايت", "1 KB"}},
        {1'500, {"2 KB", "2 kB", "2\u202Fko", "٢ كيلوبايت", "2 KB"}},
        {2'500, {"2 KB", "2 kB", "2\u202Fko", "٢ كيلوبايت", "2 KB"}},
        {999'499, {"999 KB", "999 kB", "999\u202Fko", "٩٩٩ كيلوبايت", "999 KB"}},
        {999'500, {"1 MB", "1 MB", "1\u202FMo", "١ م.ب", "1 MB"}},
        {999'999, {"1 MB", "1 MB", "1\u202FMo", "١ م.ب", "1 MB"}},
        {1'500'000, {"1.5 MB", "1,5 MB", "1,5\u202FMo", "١٫٥ م.ب", "1.5 MB"}},
        {999'949'999, {"999.9 MB", "999,9 MB", "999,9\u202FMo", "٩٩٩٫٩ م.ب", "999.9 MB"}},
        {999'950'000, {"1 GB", "1\u00A0GB", "1\u202FGo", "١ غ.ب", "1 GB"}},
        {1'500'000'000, {"1.5 GB", "1,5\u00A0GB", "1,5\u202FGo", "١٫٥ غ.ب", "1.5 GB"}},
        {3'250'000'000, {"3.25 GB", "3,25\u00A0GB", "3,25\u202FGo", "٣٫٢٥ غ.ب", "3.25 GB"}},
        {999'994'999'999,
         {"999.99 GB", "999,99\u00A0GB", "999,99\u202FGo", "٩٩٩٫٩٩ غ.ب", "999.99 GB"}},
        {999'995'000'000, {"1 TB", "1 TB", "1\u202FTo", "١ تيرابايت", "1 TB"}},
        {1'500'000'000'000, {"1.5 TB", "1,5 TB", "1,5\u202FTo", "١٫٥ تيرابايت", "1.5 TB"}},
        {999'995'000'000'000, {"1 PB", "1 PB", "1\u202FPo", "١ بيتابايت", "1 PB"}},
        {1'500'000'000'000'000, {"1.5 PB", "1,5 PB", "1,5\u202FPo", "١٫٥ بيتابايت", "1.5 PB"}},
        {999'995'000'000'000'000, {"1 EB", "1 EB", "1\u202FEo", "١ إ.بايت", "1 EB"}},
        {1'500'000'000'000'000'000, {"1.5 EB", "1,5 EB", "1,5\u202FEo", "١٫٥ إ.بايت", "1.5 EB"}},
        {largest, {"9.22 EB", "9,22 EB", "9,22\u202FEo", "٩٫٢٢ إ.بايت", "9.22 EB"}},
    };
    for (const auto& [bytes, texts] : table) {
        for (std::size_t column = 0; column < locales.size(); ++column) {
            EXPECT_EQ(ByteCountFormatter::string(bytes, {locales[column]}), texts[column]) << bytes;
        }
    }
}

} // namespace
} // namespace drossbin
