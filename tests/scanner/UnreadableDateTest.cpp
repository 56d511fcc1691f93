#include "scanner/DiskScanner.h"
#include "scanner/Scans.h"
#include "support/ScratchFolder.h"
#include "support/SystemCalls.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>

namespace drossbin {
namespace {

// An entry that can be measured has attributes that can be read, unless the disk fails between the
// two.
class UnreadableDate : public testing::Test {
  protected:
    test::ScratchFolder home;
    std::string pathThatFails;

  private:
    test::SystemCallHook m_failure{[this](const test::SystemCallHook::Call& call) {
        return call.function == "lstat" && call.name == pathThatFails ? EIO : 0;
    }};
};

TEST_F(UnreadableDate, is_absent_from_a_program_cache_that_is_listed_all_the_same) {
    home.file("Library/Caches/cache/file", 2'000'000);
    pathThatFails = home / "Library/Caches/cache";
    const auto items = DiskScanner::scanProgramCaches(home.path());
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].lastAccessed, std::nullopt);
    EXPECT_EQ(items[0].formattedDate(), "—");
}

TEST_F(UnreadableDate, is_absent_from_a_package_cache_that_is_listed_all_the_same) {
    home.file(".npm/file", 10);
    pathThatFails = home / ".npm";
    const auto items = DiskScanner::scanPackageCaches(home.path());
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].lastAccessed, std::nullopt);
}

TEST_F(UnreadableDate, is_absent_from_app_data_that_is_listed_all_the_same) {
    home.file("Library/Application Support/Notes/file", 6'000'000);
    pathThatFails = home / "Library/Application Support/Notes";
    const auto items = DiskScanner::scanAppData(home.path());
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].lastAccessed, std::nullopt);
}

TEST_F(UnreadableDate, is_absent_from_logs_that_are_listed_all_the_same) {
    test::checkWithSystemLogs(2'000'000, [this] {
        const test::ScratchFolder otherHome;
        pathThatFails = "/var/log";
        const auto items = DiskScanner::scanLogs(otherHome.path());
        ASSERT_EQ(items.size(), 1U);
        EXPECT_EQ(items[0].lastAccessed, std::nullopt);
    });
}

TEST_F(UnreadableDate, leaves_a_download_out) {
    const std::string path = home.file("old", 200'000);
    test::setModificationDate(path, Date{});
    EXPECT_EQ(DiskScanner::scanOldDownloads(home.path()).size(), 1U);
    pathThatFails = path;
    EXPECT_TRUE(DiskScanner::scanOldDownloads(home.path()).empty());
}

TEST_F(UnreadableDate, leaves_out_a_plain_file_that_cannot_be_measured) {
    const std::string path = home.file("Library/Caches/cache", 2'000'000);
    EXPECT_EQ(DiskScanner::scanProgramCaches(home.path()).size(), 1U);
    pathThatFails = path;
    EXPECT_TRUE(DiskScanner::scanProgramCaches(home.path()).empty());
}

} // namespace
} // namespace drossbin
