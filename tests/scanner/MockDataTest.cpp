#include "scanner/MockData.h"

#include "scanner/Scans.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace drossbin {
namespace {

using namespace std::chrono_literals;
using test::description;
using test::namesOf;
using testing::ElementsAre;

std::vector<std::string> descriptions(const std::vector<DiskItem>& items) {
    std::vector<std::string> all;
    std::ranges::transform(items, std::back_inserter(all), description);
    return all;
}

TEST(MockData, is_the_same_each_time_but_for_ids_and_dates) {
    const auto first = MockData::generate();
    const auto second = MockData::generate();
    EXPECT_EQ(descriptions(first), descriptions(second));
    int equalDates = 0;
    for (std::size_t index = 0; index < first.size(); ++index) {
        EXPECT_NE(first[index].id, second[index].id);
        equalDates += first[index].lastAccessed == second[index].lastAccessed ? 1 : 0;
    }
    EXPECT_LT(equalDates, 5);
}

TEST(MockData, has_the_samples_largest_first_and_ties_as_they_were_made) {
    EXPECT_THAT(namesOf(MockData::generate()),
                ElementsAre("Adobe Premiere Pro", "Adobe After Effects", "Docker Desktop",
                            "DaVinci Resolve", "Final Cut Pro", "Xcode DerivedData", "Logic Pro",
                            "iCloud Drive cache", "Adobe Photoshop", "macOS Sequoia Installer.app",
                            "Adobe Lightroom", "Figma", "Google Chrome", "npm cache", "Notion",
                            "Visual Studio Code", "Arc Browser", "User Logs", "Spotify", "Homebrew",
                            "Safari", "1Password", "Apple Music", "System Logs", "WhatsApp",
                            "Final Cut Pro Trial.dmg", "Slack", "CocoaPods",
                            "project-assets-v3.zip", "Discord", "Keynote presentation.key",
                            "pip cache", "screen-recording-2024.mov"));
}

TEST(MockData, says_of_each_sample_what_its_group_says) {
    const auto all = descriptions(MockData::generate());
    const auto group = [&all](const std::string& category) {
        std::vector<std::string> lines;
        std::ranges::copy_if(all, std::back_inserter(lines), [&category](const std::string& line) {
            return line.find(" | " + category + " | ") != std::string::npos;
        });
        return lines;
    };
    const std::string caches = "/Users/you/Library/Caches/";
    const std::string cacheNote = " | Program Caches | safe | trash | Cache file — the app will "
                                  "rebuild this automatically.";
    EXPECT_THAT(
        group("Program Caches"),
        ElementsAre(
            "Adobe Premiere Pro | " + caches + "Adobe.Premiere.Pro | 38200000000" + cacheNote,
            "Adobe After Effects | " + caches + "Adobe.After.Effects | 24600000000" + cacheNote,
            "DaVinci Resolve | " + caches + "DaVinci.Resolve | 18400000000" + cacheNote,
            "Final Cut Pro | " + caches + "Final.Cut.Pro | 14800000000" + cacheNote,
            "Logic Pro | " + caches + "Logic.Pro | 11200000000" + cacheNote,
            "Adobe Photoshop | " + caches + "Adobe.Photoshop | 7400000000" + cacheNote,
            "Adobe Lightroom | " + caches + "Adobe.Lightroom | 4600000000" + cacheNote,
            "Google Chrome | " + caches + "Google.Chrome | 3200000000" + cacheNote,
            "Spotify | " + caches + "Spotify | 1800000000" + cacheNote,
            "Safari | " + caches + "Safari | 1400000000" + cacheNote,
            "Slack | " + caches + "Slack | 940000000" + cacheNote,
            "Discord | " + caches + "Discord | 620000000" + cacheNote));
    const std::string developer = "/Users/you/Library/Developer/";
    const std::string developerNote =
        " | Package Caches | safe | shippingbox | Developer cache — safe to clear.";
    EXPECT_THAT(group("Package Caches"),
                ElementsAre("Xcode DerivedData | " + developer + "Xcode DerivedData | 12400000000" +
                                developerNote,
                            "npm cache | " + developer + "npm cache | 3200000000" + developerNote,
                            "Homebrew | " + developer + "Homebrew | 1800000000" + developerNote,
                            "CocoaPods | " + developer + "CocoaPods | 640000000" + developerNote,
                            "pip cache | " + developer + "pip cache | 380000000" + developerNote));
    const std::string support = "/Users/you/Library/Application Support/";
    const auto appData = [&support](const std::string& name, const char* size, const char* risk) {
        return name + " | " + support + name + " | " + size + " | App Data | " + risk +
               " | square.stack.3d.up | no note";
    };
    EXPECT_THAT(group("App Data"),
                ElementsAre(appData("Docker Desktop", "18600000000", "caution"),
                            appData("iCloud Drive cache", "8400000000", "caution"),
                            appData("Figma", "4200000000", "caution"),
                            appData("Notion", "3100000000", "safe"),
                            appData("Visual Studio Code", "2800000000", "safe"),
                            appData("Arc Browser", "2400000000", "safe"),
                            appData("1Password", "1200000000", "critical"),
                            appData("Apple Music", "1100000000", "safe"),
                            appData("WhatsApp", "1000000000", "caution")));
    const std::string logNote = " | Log Files | safe | doc.text | Log files — safe to clear.";
    EXPECT_THAT(group("Log Files"),
                ElementsAre("User Logs | /var/log/User Logs | 2100000000" + logNote,
                            "System Logs | /var/log/System Logs | 1100000000" + logNote));
    const auto download = [](const std::string& name, const char* size) {
        return name + " | /Users/you/Downloads/" + name + " | " + size +
               " | Old Downloads | caution | arrow.down.circle | Downloaded over 30 days ago.";
    };
    EXPECT_THAT(group("Old Downloads"),
                ElementsAre(download("macOS Sequoia Installer.app", "6200000000"),
                            download("Final Cut Pro Trial.dmg", "980000000"),
                            download("project-assets-v3.zip", "640000000"),
                            download("Keynote presentation.key", "420000000"),
                            download("screen-recording-2024.mov", "360000000")));
}

TEST(MockData, adds_up_to_its_known_totals) {
    std::map<DiskCategory, std::int64_t> totals;
    std::int64_t total = 0;
    for (const DiskItem& item : MockData::generate()) {
        totals[item.category] += item.size;
        total += item.size;
    }
    EXPECT_EQ(total, 200'180'000'000);
    EXPECT_EQ(totals[DiskCategory::programCaches], 127'160'000'000);
    EXPECT_EQ(totals[DiskCategory::packageCaches], 18'420'000'000);
    EXPECT_EQ(totals[DiskCategory::appData], 42'800'000'000);
    EXPECT_EQ(totals[DiskCategory::logFiles], 3'200'000'000);
    EXPECT_EQ(totals[DiskCategory::oldDownloads], 8'600'000'000);
}

TEST(MockData, holds_one_critical_nine_caution_and_23_safe_items) {
    std::map<RiskLevel, int> counts;
    for (const DiskItem& item : MockData::generate()) {
        ++counts[item.risk];
    }
    EXPECT_EQ(counts[RiskLevel::critical], 1);
    EXPECT_EQ(counts[RiskLevel::caution], 9);
    EXPECT_EQ(counts[RiskLevel::safe], 23);
}

TEST(MockData, dates_each_group_within_its_range_and_near_both_ends_of_it) {
    struct Range {
        std::chrono::seconds youngest;
        std::chrono::seconds oldest;
    };
    const std::map<DiskCategory, Range> ranges{
        {DiskCategory::programCaches, {3'600s, 2'592'000s}},
        {DiskCategory::packageCaches, {86'400s, 604'800s}},
        {DiskCategory::appData, {3'600s, 1'209'600s}},
        {DiskCategory::logFiles, {3'600s, 3'600s}},
        {DiskCategory::oldDownloads, {2'592'000s, 7'776'000s}}};
    std::map<DiskCategory, Range> drawn;
    for (int round = 0; round < 500; ++round) {
        const Date before = now();
        const auto items = MockData::generate();
        const Date after = now();
        for (const DiskItem& item : items) {
            const Range& range = ranges.at(item.category);
            ASSERT_TRUE(item.lastAccessed);
            EXPECT_LE(*item.lastAccessed, after - range.youngest) << item.name;
            EXPECT_GE(*item.lastAccessed, before - range.oldest) << item.name;
            const auto age = std::chrono::floor<std::chrono::seconds>(after - *item.lastAccessed);
            Range& ages = drawn.try_emplace(item.category, Range{age, age}).first->second;
            ages = {std::min(ages.youngest, age), std::max(ages.oldest, age)};
        }
    }
    // Of a thousand and more draws, none in the outer twentieth is out of the question.
    for (const auto& [category, range] : ranges) {
        const auto twentieth = (range.oldest - range.youngest) / 20 + 1s;
        EXPECT_LT(drawn.at(category).youngest, range.youngest + twentieth) << icon(category);
        EXPECT_GT(drawn.at(category).oldest, range.oldest - twentieth) << icon(category);
    }
}

TEST(MockData, draws_a_date_for_each_item_anew) {
    std::set<Date> dates;
    for (const DiskItem& item : MockData::generate()) {
        dates.insert(*item.lastAccessed);
    }
    EXPECT_GT(dates.size(), 20U);
}

} // namespace
} // namespace drossbin
