#include "CleanerFixture.h"
#include "support/ScopedTimeZone.h"
#include "support/UnknownHome.h"

#include <gmock/gmock.h>

#include <limits>
#include <string>
#include <sys/types.h>

namespace drossbin {
namespace {

using test::contentOf;
using test::makeItem;
using testing::ElementsAre;
using testing::Optional;
using DeletionLogTest = test::CleanerTest;

TEST_F(DeletionLogTest, holds_a_header_a_line_for_each_item_and_the_total) {
    run({makeItem(m_home.file("one", 1), "one", 1'234'567),
         makeItem(m_home / "missing", "missing", 5),
         makeItem(m_home.file("two", 1), "Zwei 二", 0)});
    EXPECT_EQ(log(), "Drossbin Deletion Log — 2026-03-01 14:05:09 +0000\n"
                     "\n"
                     "✅ Deleted: one (1.2 MB)\n"
                     "✅ Deleted: Zwei 二 (Zero KB)\n"
                     "\n"
                     "Total freed: 1.2 MB");
}

TEST_F(DeletionLogTest, of_no_items_holds_the_header_two_empty_lines_and_a_total_of_nothing) {
    run({});
    EXPECT_EQ(log(), "Drossbin Deletion Log — 2026-03-01 14:05:09 +0000\n"
                     "\n"
                     "\n"
                     "Total freed: Zero KB");
}

TEST_F(DeletionLogTest, is_the_only_file_that_a_run_leaves) {
    run({});
    EXPECT_THAT(FileManager::contentsOfDirectory(logFolder()),
                Optional(ElementsAre("deletion-2026-03-01T14:05:09Z.log")));
}

TEST_F(DeletionLogTest, is_named_after_the_clock_and_headed_after_another_look_at_it) {
    int looks = 0;
    DiskCleaner::deleteItems(
        {}, [](double, const std::string&) {},
        [&] { return test::march + std::chrono::seconds(looks++); });
    EXPECT_EQ(looks, 2);
    EXPECT_EQ(log(), "Drossbin Deletion Log — 2026-03-01 14:05:10 +0000\n\n\nTotal freed: Zero KB");
}

TEST_F(DeletionLogTest, is_named_and_headed_in_utc_wherever_the_machine_is) {
    const test::ScopedTimeZone zone("Asia/Kolkata");
    run({});
    EXPECT_EQ(log(), "Drossbin Deletion Log — 2026-03-01 14:05:09 +0000\n\n\nTotal freed: Zero KB");
}

// The root was once taken for the home folder.
TEST_F(DeletionLogTest, is_written_nowhere_where_nobody_knows_the_home_folder) {
    const std::string path = m_home.file("file", 1);
    const test::UnknownHome unknown;
    EXPECT_THAT(run({makeItem(path, "file", 1)}).log, ElementsAre("✅ Deleted: file (1 byte)"));
    EXPECT_FALSE(isThere(path));
    EXPECT_THAT(unknown.refused(), testing::IsEmpty());
}

TEST_F(DeletionLogTest, of_a_second_run_in_the_same_second_takes_the_place_of_the_first) {
    run({makeItem(m_home.file("first", 1), "first", 1)});
    run({makeItem(m_home.file("second", 1), "second", 2)});
    EXPECT_EQ(log(), "Drossbin Deletion Log — 2026-03-01 14:05:09 +0000\n"
                     "\n"
                     "✅ Deleted: second (2 bytes)\n"
                     "\n"
                     "Total freed: 2 bytes");
    EXPECT_EQ(FileManager::contentsOfDirectory(logFolder())->size(), 1U);
}

TEST_F(DeletionLogTest, stays_beside_the_logs_of_earlier_runs) {
    m_home.file("Library/Logs/Drossbin/deletion-2026-02-01T14:05:09Z.log", 3);
    run({});
    EXPECT_EQ(FileManager::contentsOfDirectory(logFolder())->size(), 2U);
}

TEST_F(DeletionLogTest, takes_the_place_of_what_a_killed_run_left_of_one) {
    const std::string ended = std::to_string(std::numeric_limits<pid_t>::max()); // no process
    m_home.file("Library/Logs/Drossbin/.drossbin-" + ended + "-1", 3);
    run({});
    EXPECT_THAT(FileManager::contentsOfDirectory(logFolder()),
                Optional(ElementsAre("deletion-2026-03-01T14:05:09Z.log")));
}

TEST_F(DeletionLogTest, is_left_even_when_the_run_removes_the_folder_of_all_logs) {
    m_home.file("Library/Logs/Drossbin/deletion-2026-02-01T14:05:09Z.log", 3);
    m_home.file("Library/Logs/other.log", 3);
    const auto outcome = run({makeItem(m_home / "Library/Logs", "User Logs", 2'000'000)});
    EXPECT_EQ(outcome.bytesFreed, 2'000'000);
    EXPECT_THAT(FileManager::contentsOfDirectory(m_home / "Library/Logs"),
                Optional(ElementsAre("Drossbin")));
    EXPECT_THAT(FileManager::contentsOfDirectory(logFolder()),
                Optional(ElementsAre("deletion-2026-03-01T14:05:09Z.log")));
    EXPECT_EQ(log(), "Drossbin Deletion Log — 2026-03-01 14:05:09 +0000\n"
                     "\n"
                     "✅ Deleted: User Logs (2 MB)\n"
                     "\n"
                     "Total freed: 2 MB");
}

TEST_F(DeletionLogTest, keeps_one_line_for_an_item_whose_name_holds_control_characters) {
    const auto outcome = run({makeItem(m_home.file("a\nb", 1), "a\n✅ Deleted: b", 1)});
    EXPECT_THAT(outcome.log, ElementsAre("✅ Deleted: a\\n✅ Deleted: b (1 byte)"));
    EXPECT_EQ(log(), "Drossbin Deletion Log — 2026-03-01 14:05:09 +0000\n"
                     "\n"
                     "✅ Deleted: a\\n✅ Deleted: b (1 byte)\n"
                     "\n"
                     "Total freed: 1 byte");
}

TEST_F(DeletionLogTest, keeps_one_line_for_every_character_that_ends_one) {
    const std::string name = "a\v\f\r\u0085\u2028\u2029b";
    const auto outcome = run({makeItem(m_home.file("file", 1), name, 1)});
    EXPECT_THAT(outcome.log, ElementsAre(R"(✅ Deleted: a\x0B\x0C\r\x85\u2028\u2029b (1 byte))"));
}

TEST_F(DeletionLogTest, keeps_the_marks_of_direction_that_right_to_left_names_carry) {
    const std::string name = "\u200Fתמונה\u200E \u061C1";
    const auto outcome = run({makeItem(m_home.file("file", 1), name, 1)});
    EXPECT_THAT(outcome.log, ElementsAre("✅ Deleted: " + name + " (1 byte)"));
}

TEST_F(DeletionLogTest, shows_bytes_that_are_no_text_as_replacement_characters) {
    const auto outcome = run({makeItem(m_home.file("\xFFz", 1), "\xFFz", 1)});
    EXPECT_THAT(outcome.log, ElementsAre("✅ Deleted: \uFFFDz (1 byte)"));
}

TEST_F(DeletionLogTest, says_sizes_in_the_users_locale) {
    const test::ScopedLocale german({"de_DE"});
    const auto outcome = run({makeItem(m_home.file("a", 1), "a", 1'500'000)});
    EXPECT_THAT(outcome.log, ElementsAre("✅ Deleted: a (1,5 MB)"));
}

} // namespace
} // namespace drossbin
