#include "model/DiskCategory.h"

#include <gtest/gtest.h>

#include <string>

namespace drossbin {
namespace {

TEST(DiskCategory, is_found_by_its_exact_raw_value) {
    EXPECT_EQ(diskCategoryFrom("Program Caches"), DiskCategory::programCaches);
    EXPECT_EQ(diskCategoryFrom("Old Downloads"), DiskCategory::oldDownloads);
}

TEST(DiskCategory, is_not_found_by_a_raw_value_in_other_letter_case) {
    EXPECT_EQ(diskCategoryFrom("program caches"), std::nullopt);
    EXPECT_EQ(diskCategoryFrom(""), std::nullopt);
}

TEST(DiskCategory, lists_all_cases_in_their_declared_order) {
    std::string names;
    for (const DiskCategory category : allDiskCategories) {
        names.append(rawValue(category)).append("|");
    }
    EXPECT_EQ(names, "Program Caches|Package Caches|App Data|Log Files|Old Downloads|");
}

TEST(DiskCategory, has_one_symbol_and_one_subtitle_for_all_screens) {
    std::string lines;
    for (const DiskCategory category : allDiskCategories) {
        lines.append(icon(category)).append(": ").append(subtitle(category)).append("\n");
    }
    EXPECT_EQ(lines, "trash: App and system caches\n"
                     "shippingbox: npm, Homebrew, pip, yarn\n"
                     "square.stack.3d.up: Application support data\n"
                     "doc.text: System and application logs\n"
                     "arrow.down.circle: Downloads older than 30 days\n");
}

TEST(DiskCategory, comes_back_from_each_of_its_raw_values) {
    for (const DiskCategory category : allDiskCategories) {
        EXPECT_EQ(diskCategoryFrom(rawValue(category)), category);
    }
}

} // namespace
} // namespace drossbin
