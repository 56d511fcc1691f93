#include "CleanerFixture.h"
#include "support/Limits.h"
#include "support/MountNamespace.h"
#include "support/SystemCalls.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <sys/stat.h>

namespace drossbin {
namespace {

using test::contentOf;
using test::makeItem;
using test::ScratchHome;
using test::SystemCallHook;
using testing::ElementsAre;
using DiskCleanerFailuresTest = test::CleanerTest;

DiskCleaner::Outcome deleteItems(const std::vector<DiskItem>& items) {
    return DiskCleaner::deleteItems(
        items, [](double, const std::string&) {}, [] { return test::march; });
}

// Permissions bind an ordinary user only, so the run is a process of its own.
TEST_F(DiskCleanerFailuresTest, give_one_line_with_the_systems_words_and_the_next_item_its_turn) {
    EXPECT_TRUE(test::holdsForOrdinaryUser([] {
        const ScratchHome home;
        home.file("locked/one", 1);
        home.file("locked/two", 1);
        ::chmod((home / "locked").c_str(), 0500);
        const auto outcome = deleteItems({makeItem(home / "locked", "locked", 4'000),
                                          makeItem(home.file("file", 1), "file", 2'000)});
        ::chmod((home / "locked").c_str(), 0700);
        const std::vector<std::string> lines{"❌ Failed: locked — Permission denied",
                                             "✅ Deleted: file (2 KB)"};
        const std::string log =
            contentOf(home / "Library/Logs/Drossbin/deletion-2026-03-01T14:05:09Z.log");
        return outcome.bytesFreed == 2'000 && outcome.log == lines &&
               log == "Drossbin Deletion Log — 2026-03-01 14:05:09 +0000\n"
                      "\n"
                      "❌ Failed: locked — Permission denied\n"
                      "✅ Deleted: file (2 KB)\n"
                      "\n"
                      "Total freed: 2 KB";
    }));
}

TEST_F(DiskCleanerFailuresTest, count_nothing_for_an_item_that_went_in_part) {
    m_home.file("item/kept", 1);
    m_home.file("item/removed", 1);
    const SystemCallHook hook([](const SystemCallHook::Call& call) {
        return call.function == "unlinkat" && call.name == "kept" ? EIO : 0;
    });
    const auto outcome = run({makeItem(m_home / "item", "item", 1'000)});
    EXPECT_EQ(outcome.bytesFreed, 0);
    EXPECT_THAT(outcome.log, ElementsAre("❌ Failed: item — Input/output error"));
    EXPECT_TRUE(isThere(m_home / "item/kept"));
}

TEST_F(DiskCleanerFailuresTest, keep_one_line_for_a_name_with_control_characters) {
    m_home.file("file", 1);
    const SystemCallHook hook([](const SystemCallHook::Call& call) {
        return call.function == "unlinkat" && call.name == "file" ? EIO : 0;
    });
    const auto outcome = run({makeItem(m_home / "file", "\xFF\r\n", 1)});
    EXPECT_THAT(outcome.log, ElementsAre("❌ Failed: \uFFFD\\r\\n — Input/output error"));
}

TEST_F(DiskCleanerFailuresTest, to_make_the_logs_folder_are_ignored) {
    m_home.file("Library", 3);
    const auto outcome = run({makeItem(m_home.file("file", 1), "file", 1)});
    EXPECT_THAT(outcome.log, ElementsAre("✅ Deleted: file (1 byte)"));
    EXPECT_EQ(FileManager::attributesOfItem(m_home / "Library")->size, 3);
}

TEST_F(DiskCleanerFailuresTest, to_write_the_log_are_ignored_and_leave_no_file) {
    const std::vector<DiskItem> items{makeItem(m_home.file("file", 1), "file", 1)};
    const SystemCallHook hook(
        [](const SystemCallHook::Call& call) { return call.function == "write" ? ENOSPC : 0; });
    const auto outcome = run(items);
    EXPECT_EQ(outcome.bytesFreed, 1);
    EXPECT_THAT(outcome.log, ElementsAre("✅ Deleted: file (1 byte)"));
    EXPECT_TRUE(FileManager::contentsOfDirectory(logFolder())->empty());
}

TEST_F(DiskCleanerFailuresTest, for_a_mount_inside_an_item_leave_it_alone_and_go_on) {
    m_home.folder("item/mount");
    const std::vector<DiskItem> items{makeItem(m_home / "item", "item", 4'000),
                                      makeItem(m_home.file("file", 1), "file", 2'000)};
    const auto holds = test::holdsInMountNamespace([&] {
        if (!test::mountMemory(m_home / "item/mount", "64k")) {
            return false;
        }
        m_home.file("item/mount/folder/file", 1);
        const auto outcome = run(items);
        const std::vector<std::string> lines{"❌ Failed: item — Device or resource busy",
                                             "✅ Deleted: file (2 KB)"};
        return outcome.log == lines && outcome.bytesFreed == 2'000 && !isThere(m_home / "file") &&
               isThere(m_home / "item/mount/folder/file");
    });
    if (!holds) {
        GTEST_SKIP() << "this system lets the tests make no mounts of their own";
    }
    EXPECT_TRUE(*holds);
}

// Without space for a byte more, it is the removal that makes the space for its own record.
TEST_F(DiskCleanerFailuresTest, do_not_keep_a_full_disk_from_being_cleaned_and_logged) {
    const auto holds = test::holdsInMountNamespace([this] {
        if (!test::mountMemory(m_home.path(), "1m")) {
            return false;
        }
        const bool isFull =
            FileManager::writeAtomically(std::string(1'000'000, 'x'), m_home / "file") ==
                std::error_code() &&
            FileManager::writeAtomically(std::string(100'000, 'x'), m_home / "more") ==
                std::errc::no_space_on_device;
        const auto outcome = run({makeItem(m_home / "file", "file", 1'000'000)});
        return isFull && outcome.bytesFreed == 1'000'000 &&
               log() == "Drossbin Deletion Log — 2026-03-01 14:05:09 +0000\n"
                        "\n"
                        "✅ Deleted: file (1 MB)\n"
                        "\n"
                        "Total freed: 1 MB";
    });
    if (!holds) {
        GTEST_SKIP() << "this system lets the tests make no mounts of their own";
    }
    EXPECT_TRUE(*holds);
}

} // namespace
} // namespace drossbin
