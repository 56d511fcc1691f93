#include "scanner/DiskScanner.h"
#include "scanner/Scans.h"
#include "support/Limits.h"
#include "support/ScratchFolder.h"
#include "support/SystemCalls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace drossbin {
namespace {

using test::checkWithSystemLogs;
using test::description;
using test::namesOf;
using test::ScratchFolder;
using testing::ElementsAre;
using testing::IsEmpty;

TEST(LogScan, lists_a_user_log_folder_of_more_than_a_million_bytes) {
    checkWithSystemLogs(0, [] {
        const ScratchFolder home;
        home.file("Library/Logs/file", 1'000'001);
        const auto items = DiskScanner::scanLogs(home.path());
        ASSERT_EQ(items.size(), 1U);
        EXPECT_EQ(description(items[0]),
                  "User Logs | " + home.path() +
                      "/Library/Logs | 1000001 | Log Files | safe | doc.text | Log files — safe to "
                      "clear. Apps create new logs automatically.");
    });
}

TEST(LogScan, lists_a_system_log_folder_of_more_than_a_million_bytes) {
    checkWithSystemLogs(1'000'001, [] {
        const ScratchFolder home;
        const auto items = DiskScanner::scanLogs(home.path());
        ASSERT_EQ(items.size(), 1U);
        EXPECT_EQ(description(items[0]),
                  "System Logs | /var/log | 1000001 | Log Files | safe | doc.text | Log files — "
                  "safe to clear. Apps create new logs automatically.");
        EXPECT_EQ(items[0].lastAccessed, test::systemLogDate);
    });
}

TEST(LogScan, lists_system_logs_that_the_user_may_not_remove) {
    const ScratchFolder logs;
    logs.file("syslog", 2'000'000);
    ASSERT_EQ(::chmod(logs.path().c_str(), 0555), 0);
    const test::StandInFolder systemLogs("/var/log", logs.path());
    EXPECT_TRUE(test::holdsForOrdinaryUser([&logs] {
        const ScratchFolder home;
        return ::access(logs.path().c_str(), W_OK) != 0 &&
               namesOf(DiskScanner::scanLogs(home.path())) ==
                   std::vector<std::string>{"System Logs"};
    }));
    ASSERT_EQ(::chmod(logs.path().c_str(), 0755), 0); // so that it can go
}

TEST(LogScan, leaves_out_log_folders_of_exactly_a_million_bytes) {
    checkWithSystemLogs(1'000'000, [] {
        const ScratchFolder home;
        home.file("Library/Logs/file", 1'000'000);
        EXPECT_THAT(DiskScanner::scanLogs(home.path()), IsEmpty());
    });
}

TEST(LogScan, lists_user_logs_before_system_logs) {
    checkWithSystemLogs(2'000'000, [] {
        const ScratchFolder home;
        home.file("Library/Logs/file", 1'500'000);
        EXPECT_THAT(namesOf(DiskScanner::scanLogs(home.path())),
                    ElementsAre("User Logs", "System Logs"));
    });
}

TEST(LogScan, finds_nothing_where_there_are_no_logs) {
    checkWithSystemLogs(0, [] {
        const ScratchFolder home;
        EXPECT_THAT(DiskScanner::scanLogs(home.path()), IsEmpty());
    });
}

TEST(LogScan, takes_the_modification_date_of_the_folder) {
    checkWithSystemLogs(0, [] {
        const ScratchFolder home;
        home.file("Library/Logs/file", 2'000'000);
        const Date date = std::chrono::sys_days{std::chrono::year{2024} / 5 / 6};
        test::setModificationDate(home / "Library/Logs", date);
        EXPECT_EQ(DiskScanner::scanLogs(home.path()).at(0).lastAccessed, date);
    });
}

TEST(LogScan, takes_the_date_of_a_link_and_not_of_what_it_leads_to) {
    checkWithSystemLogs(0, [] {
        const ScratchFolder home;
        home.file("elsewhere/file", 2'000'000);
        home.folder("Library");
        std::filesystem::create_symlink(home / "elsewhere", home / "Library/Logs");
        test::setModificationDate(home / "Library/Logs", test::linkDate);
        EXPECT_EQ(DiskScanner::scanLogs(home.path()).at(0).lastAccessed, test::linkDate);
    });
}

} // namespace
} // namespace drossbin
