#include "platform/FileManager.h"
#include "scanner/DiskScanner.h"
#include "scanner/Scans.h"
#include "support/Limits.h"
#include "support/ScopedLocale.h"
#include "support/ScopedTimeZone.h"
#include "support/ScratchFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace drossbin {
namespace {

using namespace std::chrono_literals;
using std::chrono::sys_days;
using test::description;
using test::namesOf;
using test::setModificationDate;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr Date present = sys_days{2026y / 4 / 10} + 10h;

// Clocks went forward on the 29th of March, so thirty calendar days are an hour short.
constexpr Date cutoff = sys_days{2026y / 3 / 11} + 11h;

class OldDownloadScan : public testing::Test {
  protected:
    test::ScratchFolder downloads;

    std::string download(const std::string& name, std::int64_t size, Date date) {
        std::string path = downloads.file(name, size);
        setModificationDate(path, date);
        return path;
    }

    [[nodiscard]] std::vector<DiskItem> scan() const {
        return DiskScanner::scanOldDownloads(downloads.path(), present);
    }

  private:
    test::ScopedTimeZone m_zone{"Europe/Berlin"};
    test::ScopedLocale m_locale{{"en_US"}};
};

TEST_F(OldDownloadScan, lists_what_is_older_than_thirty_calendar_days) {
    download("at the cutoff", 200'000, cutoff);
    download("a second before it", 200'000, cutoff - 1s);
    EXPECT_THAT(namesOf(scan()), ElementsAre("a second before it"));
}

TEST_F(OldDownloadScan, leaves_out_what_is_newer) {
    download("after the cutoff", 200'000, cutoff + 1s);
    download("today", 200'000, present);
    download("from the future", 200'000, present + 24h);
    EXPECT_THAT(scan(), IsEmpty());
}

TEST_F(OldDownloadScan, lists_files_of_more_than_a_hundred_thousand_bytes) {
    download("exactly", 100'000, cutoff - 24h);
    download("more", 100'001, cutoff - 24h);
    EXPECT_THAT(namesOf(scan()), ElementsAre("more"));
}

TEST_F(OldDownloadScan, says_how_old_a_download_is_and_asks_for_a_review) {
    const Date date = sys_days{2026y / 2 / 1} + 8h;
    download("movie.mov", 300'000, date);
    const auto items = scan();
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(description(items[0]),
              "movie.mov | " + downloads.path() +
                  "/movie.mov | 300000 | Old Downloads | caution | arrow.down.circle | Downloaded "
                  "2 months ago. Review before deleting.");
    EXPECT_EQ(items[0].lastAccessed, date);
}

TEST_F(OldDownloadScan, says_weeks_where_no_month_has_passed) {
    download("paper.pdf", 300'000, cutoff - 1s);
    EXPECT_EQ(scan().at(0).safetyNote, "Downloaded 4 weeks ago. Review before deleting.");
}

TEST_F(OldDownloadScan, judges_a_folder_by_its_own_entry) {
    downloads.file("folder/file", 5'000'000);
    setModificationDate(downloads / "folder", cutoff - 24h);
    EXPECT_THAT(scan(), IsEmpty());
}

// How many names that takes, each file system decides: 400 long ones on most, 5,100 in memory.
TEST_F(OldDownloadScan, lists_a_folder_whose_own_entry_is_large) {
    const std::string folder = downloads.folder("folder");
    const auto ownSize = [&] { return FileManager::attributesOfItem(folder)->size; };
    for (int number = 1'000; number < 7'000 && ownSize() <= 100'000; ++number) {
        downloads.file("folder/" + std::string(250, 'x') + std::to_string(number), 0);
    }
    if (ownSize() <= 100'000) {
        GTEST_SKIP() << "the entry of a folder does not grow here with the names in it";
    }
    setModificationDate(folder, cutoff - 24h);
    const auto items = scan();
    ASSERT_THAT(namesOf(items), ElementsAre("folder"));
    EXPECT_EQ(items[0].size, ownSize());
}

TEST_F(OldDownloadScan, judges_a_link_by_its_own_date) {
    const std::string target = download("recent", 5'000'000, present);
    std::filesystem::create_symlink(target, downloads / "link");
    setModificationDate(downloads / "link", cutoff - 24h);
    EXPECT_THAT(scan(), IsEmpty());
}

TEST_F(OldDownloadScan, judges_a_link_by_its_own_size) {
    const test::ScratchFolder elsewhere;
    const std::string target = elsewhere.file("old", 5'000'000);
    setModificationDate(target, cutoff - 24h);
    std::filesystem::create_symlink(target, downloads / "link");
    setModificationDate(downloads / "link", cutoff - 24h);
    EXPECT_THAT(scan(), IsEmpty());
}

TEST_F(OldDownloadScan, examines_hidden_entries) {
    download(".hidden", 200'000, cutoff - 24h);
    EXPECT_THAT(namesOf(scan()), ElementsAre(".hidden"));
}

TEST_F(OldDownloadScan, examines_only_direct_entries) {
    download("folder/file", 200'000, cutoff - 24h);
    EXPECT_THAT(scan(), IsEmpty());
}

TEST_F(OldDownloadScan, survives_dates_far_from_the_present) {
    download("ancient", 200'000, sys_days{1902y / 1 / 1});
    EXPECT_EQ(scan().at(0).safetyNote, "Downloaded 124 years ago. Review before deleting.");
}

TEST_F(OldDownloadScan, takes_the_present_for_the_cutoff_where_no_earlier_date_exists) {
    download("file", 200'000, cutoff);
    EXPECT_THAT(DiskScanner::scanOldDownloads(downloads.path(), Date::min()), IsEmpty());
}

TEST_F(OldDownloadScan, finds_nothing_where_the_downloads_folder_may_not_be_listed) {
    EXPECT_TRUE(test::holdsForOrdinaryUser([] {
        const test::ScratchFolder locked;
        setModificationDate(locked.file("old", 200'000), cutoff - 24h);
        ::chmod(locked.path().c_str(), 0);
        const auto items = DiskScanner::scanOldDownloads(locked.path(), present);
        ::chmod(locked.path().c_str(), 0700);
        return items.empty() && DiskScanner::scanOldDownloads(locked.path(), present).size() == 1;
    }));
}

TEST_F(OldDownloadScan, finds_nothing_where_there_is_no_downloads_folder) {
    EXPECT_THAT(DiskScanner::scanOldDownloads(downloads / "missing", present), IsEmpty());
}

} // namespace
} // namespace drossbin
