#include "scanner/DiskScanner.h"
#include "scanner/Scans.h"
#include "support/Limits.h"
#include "support/ScratchFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace drossbin {
namespace {

using test::description;
using test::namesOf;
using test::ScratchFolder;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

std::vector<std::string> namesFoundIn(const ScratchFolder& home) {
    return namesOf(DiskScanner::scanProgramCaches(home.path()));
}

TEST(ProgramCacheScan, lists_entries_of_more_than_a_million_bytes) {
    const ScratchFolder home;
    home.file("Library/Caches/exactly", 1'000'000);
    home.file("Library/Caches/more", 1'000'001);
    EXPECT_THAT(namesFoundIn(home), ElementsAre("more"));
}

TEST(ProgramCacheScan, takes_a_folder_whole_with_all_that_lies_beneath) {
    const ScratchFolder home;
    home.file("Library/Caches/com.example/a", 600'000);
    home.file("Library/Caches/com.example/b", 600'000);
    const auto items = DiskScanner::scanProgramCaches(home.path());
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(description(items[0]),
              "com.example | " + home.path() +
                  "/Library/Caches/com.example | 1200000 | Program Caches | safe | trash | Cache "
                  "file — the app will rebuild this automatically.");
}

TEST(ProgramCacheScan, takes_the_modification_date_of_the_entry) {
    const ScratchFolder home;
    const std::string path = home.file("Library/Caches/cache", 2'000'000);
    const Date date =
        std::chrono::sys_days{std::chrono::year{2024} / 5 / 6} + std::chrono::microseconds(7);
    test::setModificationDate(path, date);
    EXPECT_EQ(DiskScanner::scanProgramCaches(home.path()).at(0).lastAccessed, date);
}

TEST(ProgramCacheScan, takes_the_date_of_a_link_and_not_of_what_it_leads_to) {
    const ScratchFolder home;
    home.file("elsewhere/file", 2'000'000);
    home.folder("Library/Caches");
    const std::string link = home / "Library/Caches/link";
    std::filesystem::create_symlink(home / "elsewhere", link);
    test::setModificationDate(link, test::linkDate);
    EXPECT_EQ(DiskScanner::scanProgramCaches(home.path()).at(0).lastAccessed, test::linkDate);
}

TEST(ProgramCacheScan, lists_protected_names_as_critical_without_a_note) {
    const ScratchFolder home;
    for (const std::string name : {"com.apple.Keychain", "Keychains", "Preferences"}) {
        home.file("Library/Caches/" + name, 5'000'000);
    }
    const auto items = DiskScanner::scanProgramCaches(home.path());
    EXPECT_THAT(namesOf(items),
                UnorderedElementsAre("com.apple.Keychain", "Keychains", "Preferences"));
    for (const DiskItem& item : items) {
        EXPECT_EQ(item.risk, RiskLevel::critical);
        EXPECT_EQ(item.safetyNote, std::nullopt);
        EXPECT_EQ(item.sfSymbol, "trash");
    }
}

TEST(ProgramCacheScan, compares_protected_names_whole_and_with_letter_case) {
    const ScratchFolder home;
    for (const std::string name : {"keychains", "Keychains Backup", "com.apple.Keychain.x"}) {
        home.file("Library/Caches/" + name, 5'000'000);
    }
    const auto items = DiskScanner::scanProgramCaches(home.path());
    ASSERT_EQ(items.size(), 3U);
    for (const DiskItem& item : items) {
        EXPECT_EQ(item.risk, RiskLevel::safe) << item.name;
        EXPECT_EQ(item.safetyNote, "Cache file — the app will rebuild this automatically.");
    }
}

TEST(ProgramCacheScan, treats_hidden_and_odd_names_like_any_other) {
    const ScratchFolder home;
    const std::vector<std::string> names{".hidden", "-rf", "line\nfeed", "no\xFFutf8",
                                         std::string(255, 'x')};
    for (const std::string& name : names) {
        home.file("Library/Caches/" + name, 2'000'000);
    }
    EXPECT_THAT(namesFoundIn(home), testing::UnorderedElementsAreArray(names));
}

TEST(ProgramCacheScan, leaves_small_folders_out) {
    const ScratchFolder home;
    home.file("Library/Caches/small/file", 10);
    home.folder("Library/Caches/empty");
    EXPECT_THAT(namesFoundIn(home), IsEmpty());
}

TEST(ProgramCacheScan, leaves_out_a_folder_that_lets_nobody_read_it) {
    EXPECT_TRUE(test::holdsForOrdinaryUser([] {
        const ScratchFolder home;
        home.file("Library/Caches/locked/file", 2'000'000);
        home.file("Library/Caches/open/file", 2'000'000);
        ::chmod((home / "Library/Caches/locked").c_str(), 0);
        const auto names = namesFoundIn(home);
        ::chmod((home / "Library/Caches/locked").c_str(), 0700);
        return names == std::vector<std::string>{"open"};
    }));
}

TEST(ProgramCacheScan, leaves_out_a_folder_whose_contents_are_listed_but_not_to_be_reached) {
    EXPECT_TRUE(test::holdsForOrdinaryUser([] {
        const ScratchFolder home;
        home.file("Library/Caches/locked/file", 2'000'000);
        home.file("Library/Caches/open/file", 2'000'000);
        const std::string locked = home / "Library/Caches/locked";
        ::chmod(locked.c_str(), 0444);
        const auto size = DiskScanner::directorySize(locked);
        const auto names = namesFoundIn(home);
        ::chmod(locked.c_str(), 0700);
        return size == 0 && names == std::vector<std::string>{"open"};
    }));
}

TEST(ProgramCacheScan, finds_nothing_where_the_cache_folder_may_not_be_listed) {
    EXPECT_TRUE(test::holdsForOrdinaryUser([] {
        const ScratchFolder home;
        home.file("Library/Caches/cache", 2'000'000);
        ::chmod((home / "Library/Caches").c_str(), 0);
        const auto names = namesFoundIn(home);
        ::chmod((home / "Library/Caches").c_str(), 0700);
        return names.empty();
    }));
}

TEST(ProgramCacheScan, finds_nothing_where_there_is_no_cache_folder) {
    const ScratchFolder home;
    EXPECT_THAT(namesFoundIn(home), IsEmpty());
    home.file("Library/Caches", 2'000'000);
    EXPECT_THAT(namesFoundIn(home), IsEmpty());
}

TEST(ProgramCacheScan, makes_every_item_unselected) {
    const ScratchFolder home;
    home.file("Library/Caches/cache", 2'000'000);
    EXPECT_FALSE(DiskScanner::scanProgramCaches(home.path()).at(0).isSelected);
}

} // namespace
} // namespace drossbin
