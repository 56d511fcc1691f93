#include "CleanerFixture.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <limits>
#include <thread>

namespace drossbin {
namespace {

using test::makeItem;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using DiskCleanerTest = test::CleanerTest;

TEST_F(DiskCleanerTest, removes_files_and_folders_and_counts_their_recorded_sizes) {
    m_home.file("cache/deep/file", 10);
    const auto outcome = run({makeItem(m_home / "cache", "cache", 1'500'000),
                              makeItem(m_home.file("file", 1), "file", 2'000)});
    EXPECT_FALSE(isThere(m_home / "cache"));
    EXPECT_FALSE(isThere(m_home / "file"));
    EXPECT_EQ(outcome.bytesFreed, 1'502'000);
    EXPECT_THAT(outcome.log, ElementsAre("✅ Deleted: cache (1.5 MB)", "✅ Deleted: file (2 KB)"));
}

TEST_F(DiskCleanerTest, counts_the_recorded_size_of_what_has_grown_or_shrunk_since) {
    const auto outcome = run({makeItem(m_home.file("grown", 5'000'000), "grown", 1'000),
                              makeItem(m_home.file("shrunk", 1), "shrunk", 2'000)});
    EXPECT_EQ(outcome.bytesFreed, 3'000);
    EXPECT_THAT(outcome.log, ElementsAre("✅ Deleted: grown (1 KB)", "✅ Deleted: shrunk (2 KB)"));
}

TEST_F(DiskCleanerTest, removes_what_the_path_says_whatever_the_risk_or_the_name) {
    DiskItem item = makeItem(m_home.file("Keychains/login", 7), "anything", 7);
    item.risk = RiskLevel::critical;
    item.isSelected = false;
    EXPECT_EQ(run({item}).bytesFreed, 7);
    EXPECT_FALSE(isThere(m_home / "Keychains/login"));
    EXPECT_TRUE(isThere(m_home / "Keychains"));
}

TEST_F(DiskCleanerTest, skips_a_missing_item_without_a_word_but_counts_its_index) {
    const auto outcome = run(
        {makeItem(m_home / "nothing", "nothing", 9), makeItem(m_home.file("file", 1), "file", 1)});
    EXPECT_EQ(outcome.bytesFreed, 1);
    EXPECT_THAT(outcome.log, ElementsAre("✅ Deleted: file (1 byte)"));
    m_mainThread.turn();
    EXPECT_THAT(m_reports, ElementsAre(Pair(0.0, "Deleting nothing..."),
                                       Pair(0.5, "Deleting file..."), Pair(1.0, testing::_)));
}

TEST_F(DiskCleanerTest, removes_a_path_given_twice_once) {
    const DiskItem item = makeItem(m_home.file("file", 1), "file", 1'000);
    const auto outcome = run({item, item});
    EXPECT_EQ(outcome.bytesFreed, 1'000);
    EXPECT_THAT(outcome.log, ElementsAre("✅ Deleted: file (1 KB)"));
}

TEST_F(DiskCleanerTest, skips_a_dangling_link_as_missing) {
    std::filesystem::create_symlink("nowhere", m_home / "dangling");
    const auto outcome = run({makeItem(m_home / "dangling", "dangling", 9)});
    EXPECT_TRUE(isThere(m_home / "dangling"));
    EXPECT_EQ(outcome.bytesFreed, 0);
    EXPECT_THAT(outcome.log, IsEmpty());
}

TEST_F(DiskCleanerTest, removes_a_link_and_leaves_its_target) {
    m_home.file("target/file", 1);
    std::filesystem::create_symlink("target", m_home / "link");
    const auto outcome = run({makeItem(m_home / "link", "link", 6)});
    EXPECT_FALSE(isThere(m_home / "link"));
    EXPECT_TRUE(isThere(m_home / "target/file"));
    EXPECT_THAT(outcome.log, ElementsAre("✅ Deleted: link (6 bytes)"));
}

TEST_F(DiskCleanerTest, frees_nothing_without_items) {
    const auto outcome = run({});
    EXPECT_EQ(outcome.bytesFreed, 0);
    EXPECT_THAT(outcome.log, IsEmpty());
    m_mainThread.turn();
    EXPECT_THAT(m_reports, ElementsAre(Pair(1.0, "Cleanup complete")));
}

TEST_F(DiskCleanerTest, reports_before_each_item_and_once_at_the_end) {
    std::vector<DiskItem> items;
    for (const char* name : {"a", "b", "c"}) {
        items.push_back(makeItem(m_home.file(name, 1), name, 1));
    }
    run(items);
    m_mainThread.turn();
    EXPECT_THAT(m_reports,
                ElementsAre(Pair(0.0, "Deleting a..."), Pair(1.0 / 3.0, "Deleting b..."),
                            Pair(2.0 / 3.0, "Deleting c..."), Pair(1.0, "Cleanup complete")));
}

// Each report is made here as soon as it is posted, and looks at the disk.
TEST_F(DiskCleanerTest, makes_the_logs_folder_then_reports_and_removes_and_writes_the_log_last) {
    const std::string a = m_home.file("a", 1);
    const std::string b = m_home.file("b", 1);
    std::vector<std::string> steps;
    const auto note = [&](const std::string& step) {
        steps.push_back(step + (isThere(logFolder()) ? " folder" : "") + (isThere(a) ? " a" : "") +
                        (isThere(b) ? " b" : "") + (isThere(logPath()) ? " log" : ""));
    };
    MainThread::connect([](const MainThread::Job& job) { job(); });
    DiskCleaner::deleteItems(
        {makeItem(a, "A", 1), makeItem(b, "B", 1)},
        [&](double, const std::string& text) { note(text); },
        [&] {
            note("clock:");
            return test::march;
        });
    EXPECT_THAT(steps,
                ElementsAre("clock: folder a b", "clock: folder a b", "Deleting A... folder a b",
                            "Deleting B... folder b", "Cleanup complete folder"));
    EXPECT_TRUE(isThere(logPath()));
}

TEST_F(DiskCleanerTest, reports_a_name_as_it_is) {
    const std::string name = "a\nb\xFF\u202E";
    run({makeItem(m_home.file("file", 1), name, 1)});
    m_mainThread.turn();
    EXPECT_THAT(m_reports,
                ElementsAre(Pair(0.0, "Deleting " + name + "..."), Pair(1.0, "Cleanup complete")));
}

// The whole run ends while nobody turns the queue; the reports then come on the main thread.
TEST_F(DiskCleanerTest, never_waits_for_a_report_nor_makes_one_on_its_own_thread) {
    const std::vector<DiskItem> items{makeItem(m_home.file("file", 1), "file", 1)};
    std::vector<std::thread::id> threads;
    DiskCleaner::Outcome outcome;
    std::thread([&] {
        outcome = DiskCleaner::deleteItems(items, [&](double, const std::string&) {
            threads.push_back(std::this_thread::get_id());
        });
    }).join();
    EXPECT_EQ(outcome.bytesFreed, 1);
    EXPECT_THAT(threads, IsEmpty());
    m_mainThread.turn();
    EXPECT_THAT(threads, ElementsAre(std::this_thread::get_id(), std::this_thread::get_id()));
}

TEST_F(DiskCleanerTest, removes_names_that_are_not_text) {
    for (const std::string& name :
         {std::string("\xFF"), std::string("a\nb"), std::string("-rf"), std::string(255, 'x')}) {
        m_home.file("odd/" + name + "/file", 1);
        EXPECT_EQ(run({makeItem(m_home / "odd/" + name, name, 1)}).bytesFreed, 1) << name;
        EXPECT_FALSE(isThere(m_home / "odd/" + name)) << name;
    }
}

using DiskCleanerDeathTest = DiskCleanerTest;

TEST_F(DiskCleanerDeathTest, stops_the_program_when_the_freed_total_overflows) {
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    const std::vector<DiskItem> items{makeItem(m_home.file("a", 1), "a", most),
                                      makeItem(m_home.file("b", 1), "b", 1)};
    EXPECT_DEATH(run(items), "^drossbin: a sum of sizes exceeds 64 bits\n$");
}

TEST_F(DiskCleanerTest, frees_the_largest_total_that_fits) {
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    const auto outcome =
        run({makeItem(m_home.file("a", 1), "a", most - 1), makeItem(m_home.file("b", 1), "b", 1)});
    EXPECT_EQ(outcome.bytesFreed, most);
}

} // namespace
} // namespace drossbin
