#include "scanner/DiskScanner.h"
#include "scanner/Scans.h"
#include "support/ScratchFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <filesystem>

namespace drossbin {
namespace {

using test::description;
using test::namesOf;
using test::ScratchFolder;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::array locations{"/.npm",
                               "/.cache",
                               "/.yarn",
                               "/Library/pnpm",
                               "/Library/Caches/Homebrew",
                               "/Library/Caches/pip",
                               "/.cargo/registry",
                               "/.gradle/caches",
                               "/.cocoapods",
                               "/Library/Caches/com.docker.docker",
                               "/Library/Developer/Xcode/DerivedData",
                               "/Library/Developer/CoreSimulator/Caches"};

TEST(PackageCacheScan, lists_all_locations_in_their_order_with_their_own_words) {
    const ScratchFolder home;
    std::int64_t size = 0;
    for (const std::string location : locations) {
        home.file(location.substr(1) + "/file", ++size);
    }
    std::vector<std::string> lines;
    for (const DiskItem& item : DiskScanner::scanPackageCaches(home.path())) {
        lines.push_back(description(item));
    }
    const auto line = [&](const std::string& name, std::size_t number, const std::string& note) {
        return name + " | " + home.path() + locations.at(number - 1) + " | " +
               std::to_string(number) + " | Package Caches | safe | shippingbox | " + note;
    };
    EXPECT_THAT(
        lines,
        ElementsAre(line("npm cache", 1, "npm cache — safe to clear with `npm cache clean`."),
                    line("User cache (~/.cache)", 2, "General user cache — usually safe."),
                    line("Yarn cache", 3, "Yarn cache — safe to clear."),
                    line("pnpm cache", 4, "pnpm store — safe to clear."),
                    line("Homebrew cache", 5, "Downloaded bottles — safe to clear."),
                    line("pip cache", 6, "pip download cache — safe to clear."),
                    line("Cargo/Rust cache", 7, "Rust crate cache — safe to clear."),
                    line("Gradle cache", 8, "Gradle build cache — safe to clear."),
                    line("CocoaPods cache", 9, "CocoaPods spec cache — safe to clear."),
                    line("Docker cache", 10, "Docker image layer cache."),
                    line("Xcode DerivedData", 11,
                         "Xcode build cache — safe to clear. Will rebuild on next build."),
                    line("Simulator cache", 12, "iOS Simulator cache — safe to clear.")));
}

TEST(PackageCacheScan, lists_a_single_location_of_ten_bytes) {
    const ScratchFolder home;
    home.file(".npm/file", 10);
    const auto items = DiskScanner::scanPackageCaches(home.path());
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].name, "npm cache");
    EXPECT_EQ(items[0].size, 10);
    EXPECT_EQ(items[0].risk, RiskLevel::safe);
    EXPECT_EQ(items[0].sfSymbol, "shippingbox");
    EXPECT_FALSE(items[0].isSelected);
}

TEST(PackageCacheScan, leaves_out_what_is_missing_or_holds_no_byte) {
    const ScratchFolder home;
    EXPECT_THAT(namesOf(DiskScanner::scanPackageCaches(home.path())), IsEmpty());
    home.folder(".npm");
    home.file(".yarn/empty", 0);
    home.file(".cache", 0);
    EXPECT_THAT(namesOf(DiskScanner::scanPackageCaches(home.path())), IsEmpty());
}

TEST(PackageCacheScan, lists_a_single_byte) {
    const ScratchFolder home;
    home.file(".yarn/file", 1);
    EXPECT_THAT(namesOf(DiskScanner::scanPackageCaches(home.path())), ElementsAre("Yarn cache"));
}

TEST(PackageCacheScan, measures_a_location_that_is_a_plain_file) {
    const ScratchFolder home;
    home.file(".cocoapods", 1);
    const auto items = DiskScanner::scanPackageCaches(home.path());
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].name, "CocoaPods cache");
    EXPECT_EQ(items[0].size, 1);
}

TEST(PackageCacheScan, takes_the_modification_date_of_the_location) {
    const ScratchFolder home;
    home.file(".npm/file", 10);
    const Date date = std::chrono::sys_days{std::chrono::year{2024} / 5 / 6};
    test::setModificationDate(home / ".npm", date);
    EXPECT_EQ(DiskScanner::scanPackageCaches(home.path()).at(0).lastAccessed, date);
}

TEST(PackageCacheScan, takes_the_date_of_a_link_and_not_of_what_it_leads_to) {
    const ScratchFolder home;
    home.file("elsewhere/file", 10);
    const std::string link = home / ".npm";
    std::filesystem::create_symlink(home / "elsewhere", link);
    test::setModificationDate(link, test::linkDate);
    EXPECT_EQ(DiskScanner::scanPackageCaches(home.path()).at(0).lastAccessed, test::linkDate);
}

TEST(PackageCacheScan, lists_again_what_the_program_cache_scan_lists_too) {
    const ScratchFolder home;
    home.file("Library/Caches/pip/file", 2'000'000);
    EXPECT_THAT(namesOf(DiskScanner::scanPackageCaches(home.path())), ElementsAre("pip cache"));
    EXPECT_THAT(namesOf(DiskScanner::scanProgramCaches(home.path())), ElementsAre("pip"));
}

} // namespace
} // namespace drossbin
