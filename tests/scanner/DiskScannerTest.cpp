#include "scanner/DiskScanner.h"

#include "scanner/Scans.h"
#include "support/ImmenseFiles.h"
#include "support/ScratchFolder.h"
#include "support/UnknownHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <iterator>
#include <thread>
#include <tuple>

namespace drossbin {
namespace {

using test::checkWithSystemLogs;
using test::namesOf;
using test::ScratchHome;
using testing::ElementsAre;
using testing::IsEmpty;

using Report = std::tuple<double, std::string, std::int64_t>;

struct Scan {
    std::vector<Report> reports;
    std::vector<DiskItem> items;
};

Scan scan() {
    Scan result;
    result.items = DiskScanner::scan(
        [&result](double fraction, const std::string& text, std::int64_t bytesFound) {
            result.reports.emplace_back(fraction, text, bytesFound);
        });
    return result;
}

/// One item of each category, of sizes that tell them apart in a sum.
void fill(const ScratchHome& home) {
    home.file("Library/Caches/cache", 2'000'000);
    home.file(".npm/file", 30);
    home.file("Library/Application Support/Notes/file", 6'000'000);
    home.file("Library/Logs/file", 1'500'000);
    const std::string download = home.file("Downloads/old", 200'000);
    test::setModificationDate(download, now() - std::chrono::days(60));
}

TEST(DiskScanner, reports_six_times_even_when_it_finds_nothing) {
    checkWithSystemLogs(0, [] {
        const ScratchHome home;
        const Scan result = scan();
        EXPECT_THAT(result.items, IsEmpty());
        EXPECT_THAT(result.reports, ElementsAre(Report{0.2, "Scanning program caches...", 0},
                                                Report{0.4, "Scanning package caches...", 0},
                                                Report{0.6, "Scanning app data...", 0},
                                                Report{0.8, "Scanning logs...", 0},
                                                Report{1.0, "Scanning old downloads...", 0},
                                                Report{1.0, "Scan complete", 0}));
    });
}

TEST(DiskScanner, reports_before_each_step_the_bytes_of_the_steps_before) {
    checkWithSystemLogs(3'000'000, [] {
        const ScratchHome home;
        fill(home);
        const Scan result = scan();
        EXPECT_THAT(result.reports,
                    ElementsAre(Report{0.2, "Scanning program caches...", 0},
                                Report{0.4, "Scanning package caches...", 2'000'000},
                                Report{0.6, "Scanning app data...", 2'000'030},
                                Report{0.8, "Scanning logs...", 8'000'030},
                                Report{1.0, "Scanning old downloads...", 12'500'030},
                                Report{1.0, "Scan complete", 12'700'030}));
        EXPECT_THAT(namesOf(result.items),
                    ElementsAre("Notes", "System Logs", "cache", "User Logs", "old", "npm cache"));
    });
}

/// Makes something for the step that is reported to find, and for no other.
void fillForStep(const ScratchHome& home, const std::string& text) {
    if (text == "Scanning program caches...") {
        home.file("Library/Caches/cache", 2'000'000);
    } else if (text == "Scanning package caches...") {
        home.file(".npm/file", 30);
    } else if (text == "Scanning app data...") {
        home.file("Library/Application Support/Notes/file", 6'000'000);
    } else if (text == "Scanning logs...") {
        home.file("Library/Logs/file", 1'500'000);
    } else if (text == "Scanning old downloads...") {
        const std::string download = home.file("Downloads/old", 200'000);
        test::setModificationDate(download, now() - std::chrono::days(60));
    }
}

TEST(DiskScanner, begins_each_step_after_its_report) {
    checkWithSystemLogs(0, [] {
        const ScratchHome home;
        const auto items = DiskScanner::scan(
            [&home](double, const std::string& text, std::int64_t) { fillForStep(home, text); });
        EXPECT_THAT(namesOf(items), ElementsAre("Notes", "cache", "User Logs", "old", "npm cache"));
    });
}

// The root was once taken for it: "/.cache" and "/Downloads" were offered.
TEST(DiskScanner, looks_at_nothing_where_nobody_knows_the_home_folder) {
    checkWithSystemLogs(2'000'000, [] {
        const test::UnknownHome unknown;
        const Scan result = scan();
        EXPECT_THAT(unknown.refused(), IsEmpty());
        EXPECT_THAT(result.items, IsEmpty());
        EXPECT_THAT(result.reports, ElementsAre(Report{0.2, "Scanning program caches...", 0},
                                                Report{0.4, "Scanning package caches...", 0},
                                                Report{0.6, "Scanning app data...", 0},
                                                Report{0.8, "Scanning logs...", 0},
                                                Report{1.0, "Scanning old downloads...", 0},
                                                Report{1.0, "Scan complete", 0}));
    });
}

TEST(DiskScanner, sorts_largest_first) {
    checkWithSystemLogs(7'000'001, [] {
        const ScratchHome home;
        home.file("Library/Caches/file", 7'000'000);
        home.file(".yarn/file", 6'999'999);
        home.file("Library/Application Support/file", 7'000'002);
        EXPECT_THAT(namesOf(scan().items),
                    ElementsAre("file", "System Logs", "file", "Yarn cache"));
        EXPECT_EQ(scan().items[0].size, 7'000'002);
    });
}

/// What the category scans find, one after another.
std::vector<std::string> namesInTheOrderFound(const ScratchHome& home) {
    std::vector<std::string> names;
    for (const auto& found :
         {DiskScanner::scanProgramCaches(home.path()), DiskScanner::scanPackageCaches(home.path()),
          DiskScanner::scanAppData(home.path()), DiskScanner::scanLogs(home.path()),
          DiskScanner::scanOldDownloads(home / "Downloads")}) {
        std::ranges::copy(namesOf(found), std::back_inserter(names));
    }
    return names;
}

// So many that a sort that is free to swap equal ones does.
TEST(DiskScanner, keeps_60_equal_sizes_in_the_order_found) {
    checkWithSystemLogs(7'000'000, [] {
        const ScratchHome home;
        for (int number = 0; number < 19; ++number) {
            const std::string name = std::to_string(number);
            home.file("Library/Caches/cache " + name, 7'000'000);
            home.file("Library/Application Support/app " + name, 7'000'000);
            const std::string download = home.file("Downloads/file " + name, 7'000'000);
            test::setModificationDate(download, now() - std::chrono::days(60));
        }
        home.file("Library/Logs/log", 7'000'000);
        home.file(".npm/file", 7'000'000);
        const auto names = namesOf(scan().items);
        EXPECT_EQ(names.size(), 60U);
        EXPECT_EQ(names, namesInTheOrderFound(home));
    });
}

TEST(DiskScanner, lists_twice_what_two_scans_find) {
    checkWithSystemLogs(0, [] {
        const ScratchHome home;
        home.file("Library/Caches/pip/file", 2'000'000);
        EXPECT_THAT(namesOf(scan().items), ElementsAre("pip", "pip cache"));
    });
}

TEST(DiskScanner, makes_every_item_unselected_with_the_symbol_of_its_category) {
    checkWithSystemLogs(2'000'000, [] {
        const ScratchHome home;
        fill(home);
        const auto items = scan().items;
        EXPECT_EQ(items.size(), 6U);
        for (const DiskItem& item : items) {
            EXPECT_FALSE(item.isSelected) << item.name;
            EXPECT_EQ(item.sfSymbol, icon(item.category)) << item.name;
        }
    });
}

TEST(DiskScanner, may_scan_twice_at_once) {
    checkWithSystemLogs(2'000'000, [] {
        const ScratchHome home;
        fill(home);
        Scan other;
        std::thread thread([&other] { other = scan(); });
        const Scan own = scan();
        thread.join();
        EXPECT_EQ(namesOf(own.items), namesOf(other.items));
        EXPECT_EQ(own.reports, other.reports);
    });
}

// Each fits; what the driver adds up does not.
TEST(DiskScannerDeathTest, stops_the_program_when_the_sum_of_all_items_exceeds_64_bits) {
    checkWithSystemLogs(0, [] {
        const test::ImmenseFiles files("Library/Caches");
        if (!files.areMade()) {
            GTEST_SKIP() << "no file system here takes files of 8 exbibytes";
        }
        EXPECT_EXIT(
            {
                ::setenv("HOME", files.folder().c_str(), 1);
                scan();
            },
            testing::KilledBySignal(SIGABRT), "^drossbin: a sum of sizes exceeds 64 bits\n$");
    });
}

} // namespace
} // namespace drossbin
