#include "platform/ByteCountFormatter.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

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

TEST(ByteCountFormatter, speaks_german) {
    expectRows({"de_DE"}, {{0, "0 kB"},
                           {1, "1\u00A0"
                               "Byte"},
                           {999, "999 Byte"},
                           {2'500, "2 kB"},
                           {1'200'000, "1,2 MB"},
                           {3'250'000'000, "3,25\u00A0GB"},
                           {999'999, "1 MB"},
                           {largest, "9,22 EB"}});
}

TEST(ByteCountFormatter, speaks_french) {
    expectRows({"fr_FR"}, {{0, "0\u202Fko"},
                           {1, "1\u202Fo"},
                           {1'200'000, "1,2\u202FMo"},
                           {3'250'000'000, "3,25\u202FGo"},
                           {largest, "9,22\u202FEo"}});
}

TEST(ByteCountFormatter, speaks_arabic_with_its_own_digits) {
    expectRows({"ar_EG"}, {{0, "٠ كيلوبايت"},
                           {1, "١ بايت"},
                           {1'200'000, "١٫٢ م.ب"},
                           {3'250'000'000, "٣٫٢٥ غ.ب"},
                           {largest, "٩٫٢٢ إ.بايت"}});
}

TEST(ByteCountFormatter, speaks_japanese) {
    expectRows({"ja_JP"}, {{0, "0 KB"},
                           {1, "1 byte"},
                           {1'200'000, "1.2 MB"},
                           {3'250'000'000, "3.25 GB"},
                           {largest, "9.22 EB"}});
}

} // namespace
} // namespace drossbin
