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

const std::string support = "Library/Application Support/";

TEST(AppDataScan, lists_entries_of_more_than_five_million_bytes) {
    const ScratchFolder home;
    home.file(support + "exactly", 5'000'000);
    home.file(support + "more", 5'000'001);
    home.file(support + "folder/file", 5'000'001);
    home.file(support + "small folder/file", 5'000'000);
    EXPECT_THAT(namesOf(DiskScanner::scanAppData(home.path())),
                UnorderedElementsAre("more", "folder"));
}

TEST(AppDataScan, notes_only_what_is_safe) {
    const ScratchFolder home;
    for (const std::string name : {"Slack", "Notes", "Claude"}) {
        home.file(support + name + "/file", 6'000'000);
    }
    std::vector<std::string> lines;
    for (const DiskItem& item : DiskScanner::scanAppData(home.path())) {
        lines.push_back(description(item));
    }
    const std::string path = home.path() + "/Library/Application Support/";
    const std::string middle = " | 6000000 | App Data | ";
    EXPECT_THAT(
        lines,
        UnorderedElementsAre(
            "Slack | " + path + "Slack" + middle +
                "safe | square.stack.3d.up | App support data — safe to clear; the "
                "app will recreate it.",
            "Notes | " + path + "Notes" + middle + "caution | square.stack.3d.up | no note",
            "Claude | " + path + "Claude" + middle + "critical | square.stack.3d.up | no note"));
}

TEST(AppDataScan, never_lists_protected_names) {
    const ScratchFolder home;
    for (const std::string name : {"com.apple.Keychain", "Keychains", "Preferences"}) {
        home.file(support + name + "/file", 60'000'000);
    }
    EXPECT_THAT(namesOf(DiskScanner::scanAppData(home.path())), IsEmpty());
}

TEST(AppDataScan, compares_protected_names_whole) {
    const ScratchFolder home;
    home.file(support + "Keychains Backup", 6'000'000);
    home.file(support + "preferences", 6'000'000);
    const auto items = DiskScanner::scanAppData(home.path());
    EXPECT_THAT(namesOf(items), UnorderedElementsAre("Keychains Backup", "preferences"));
    for (const DiskItem& item : items) {
        EXPECT_EQ(item.risk, item.name == "preferences" ? RiskLevel::caution : RiskLevel::critical);
    }
}

TEST(AppDataScan, takes_the_modification_date_of_the_entry) {
    const ScratchFolder home;
    home.file(support + "Notes/file", 6'000'000);
    const Date date = std::chrono::sys_days{std::chrono::year{2024} / 5 / 6};
    test::setModificationDate(home / (support + "Notes"), date);
    EXPECT_EQ(DiskScanner::scanAppData(home.path()).at(0).lastAccessed, date);
}

TEST(AppDataScan, takes_the_date_of_a_link_and_not_of_what_it_leads_to) {
    const ScratchFolder home;
    home.file("elsewhere/file", 6'000'000);
    home.folder(support);
    const std::string link = home / (support + "link");
    std::filesystem::create_symlink(home / "elsewhere", link);
    test::setModificationDate(link, test::linkDate);
    EXPECT_EQ(DiskScanner::scanAppData(home.path()).at(0).lastAccessed, test::linkDate);
}

TEST(AppDataScan, lists_hidden_entries) {
    const ScratchFolder home;
    home.file(support + ".hidden", 6'000'000);
    EXPECT_THAT(namesOf(DiskScanner::scanAppData(home.path())), ElementsAre(".hidden"));
}

TEST(AppDataScan, finds_nothing_where_the_support_folder_may_not_be_listed) {
    EXPECT_TRUE(test::holdsForOrdinaryUser([] {
        const ScratchFolder home;
        home.file(support + "Notes", 6'000'000);
        ::chmod((home / support).c_str(), 0);
        const auto names = namesOf(DiskScanner::scanAppData(home.path()));
        ::chmod((home / support).c_str(), 0700);
        return names.empty();
    }));
}

TEST(AppDataScan, leaves_out_a_folder_that_lets_nobody_read_it) {
    EXPECT_TRUE(test::holdsForOrdinaryUser([] {
        const ScratchFolder home;
        home.file(support + "locked/file", 6'000'000);
        home.file(support + "open/file", 6'000'000);
        ::chmod((home / (support + "locked")).c_str(), 0);
        const auto names = namesOf(DiskScanner::scanAppData(home.path()));
        ::chmod((home / (support + "locked")).c_str(), 0700);
        return names == std::vector<std::string>{"open"};
    }));
}

TEST(AppDataScan, finds_nothing_where_there_is_no_support_folder) {
    const ScratchFolder home;
    EXPECT_THAT(namesOf(DiskScanner::scanAppData(home.path())), IsEmpty());
}

TEST(AppDataRisk, is_critical_for_each_critical_fragment) {
    for (const char* name : {"Claude", "1Password", "Keychain", "Bitwarden", "My Claude Data",
                             "Keychains Backup", "Bitwarden2"}) {
        EXPECT_EQ(DiskScanner::classifyAppDataRisk(name), RiskLevel::critical) << name;
    }
}

TEST(AppDataRisk, is_safe_for_each_safe_fragment) {
    for (const char* name : {"Homebrew", "Yarn", "pip", "ms-playwright", "go-build", "electron",
                             "Spotify", "Slack", "pipeline", "my-electron-app", "Slack2"}) {
        EXPECT_EQ(DiskScanner::classifyAppDataRisk(name), RiskLevel::safe) << name;
    }
}

TEST(AppDataRisk, is_critical_where_both_match) {
    EXPECT_EQ(DiskScanner::classifyAppDataRisk("Slack 1Password Sync"), RiskLevel::critical);
    EXPECT_EQ(DiskScanner::classifyAppDataRisk("pip Keychain"), RiskLevel::critical);
}

TEST(AppDataRisk, asks_for_a_review_of_every_other_name) {
    for (const char* name : {"", "Notes", "yarn", "Pipeline", "Electron", "claude", "1password",
                             "keychain", "slack", "go build", "Pip", "SPOTIFY"}) {
        EXPECT_EQ(DiskScanner::classifyAppDataRisk(name), RiskLevel::caution) << name;
    }
}

} // namespace
} // namespace drossbin
