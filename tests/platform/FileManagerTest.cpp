#include "platform/FileManager.h"

#include "support/ScratchFolder.h"
#include "support/SystemCalls.h"
#include "support/UnknownHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <limits>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace drossbin {
namespace {

using test::ScratchFolder;
using test::ScratchHome;
using test::SystemCallHook;
using testing::Optional;
using testing::UnorderedElementsAre;
using Existence = FileManager::Existence;

void setModificationDate(const std::string& path, time_t seconds, long nanoseconds) {
    const timespec date{seconds, nanoseconds};
    const timespec both[]{date, date};
    ASSERT_EQ(::utimensat(AT_FDCWD, path.c_str(), both, AT_SYMLINK_NOFOLLOW), 0);
}

Date dateAt(std::int64_t microseconds) {
    return Date(std::chrono::microseconds(microseconds));
}

TEST(HomeDirectory, is_what_HOME_says_without_a_trailing_slash) {
    const ScratchHome home;
    EXPECT_EQ(FileManager::homeDirectoryForCurrentUser(), home.path());
    ::setenv("HOME", (home.path() + "//").c_str(), 1);
    EXPECT_EQ(FileManager::homeDirectoryForCurrentUser(), home.path());
}

TEST(HomeDirectory, is_empty_for_a_home_at_the_root) {
    const ScratchHome home;
    ::setenv("HOME", "/", 1);
    EXPECT_EQ(FileManager::homeDirectoryForCurrentUser(), "");
}

TEST(HomeDirectory, comes_from_the_user_database_when_HOME_is_missing_or_not_absolute) {
    const ScratchHome home;
    const passwd* const user = ::getpwuid(::getuid());
    const auto expected = user != nullptr ? std::optional<std::string>(user->pw_dir) : std::nullopt;
    ::setenv("HOME", "relative/home", 1);
    EXPECT_EQ(FileManager::homeDirectoryForCurrentUser(), expected);
    ::unsetenv("HOME");
    EXPECT_EQ(FileManager::homeDirectoryForCurrentUser(), expected);
}

// It was once the same as a home at the root.
TEST(HomeDirectory, is_absent_where_neither_HOME_nor_the_user_database_holds_an_absolute_path) {
    const test::UnknownHome unknown;
    EXPECT_EQ(FileManager::homeDirectoryForCurrentUser(), std::nullopt);
    for (const char* home : {"", "relative/home", " /home"}) {
        ::setenv("HOME", home, 1);
        EXPECT_EQ(FileManager::homeDirectoryForCurrentUser(), std::nullopt) << home;
    }
}

TEST(HomeDirectory, comes_from_HOME_alone_where_the_user_database_has_no_entry) {
    const test::UnknownHome unknown;
    ::setenv("HOME", "/home/somebody", 1);
    EXPECT_EQ(FileManager::homeDirectoryForCurrentUser(), "/home/somebody");
}

TEST(Existence, tells_files_folders_and_nothing_apart) {
    const ScratchFolder scratch;
    EXPECT_EQ(FileManager::existence(scratch.folder("folder")), Existence::folder);
    EXPECT_EQ(FileManager::existence(scratch.file("file", 0)), Existence::file);
    EXPECT_EQ(FileManager::existence(scratch / "nothing"), Existence::missing);
    EXPECT_EQ(FileManager::existence(""), Existence::missing);
}

TEST(Existence, follows_links) {
    const ScratchFolder scratch;
    std::filesystem::create_symlink(scratch.folder("folder"), scratch / "to-folder");
    std::filesystem::create_symlink(scratch.file("file", 0), scratch / "to-file");
    std::filesystem::create_symlink(scratch / "nothing", scratch / "dangling");
    std::filesystem::create_symlink(scratch / "loop", scratch / "loop");
    EXPECT_EQ(FileManager::existence(scratch / "to-folder"), Existence::folder);
    EXPECT_EQ(FileManager::existence(scratch / "to-file"), Existence::file);
    EXPECT_EQ(FileManager::existence(scratch / "dangling"), Existence::missing);
    EXPECT_EQ(FileManager::existence(scratch / "loop"), Existence::missing);
}

TEST(ContentsOfDirectory, are_the_direct_entries_hidden_ones_included) {
    const ScratchFolder scratch;
    scratch.file("file", 1);
    scratch.file(".hidden", 1);
    scratch.file("folder/below", 1);
    scratch.file("\xFF\n-", 1);
    std::filesystem::create_symlink("/nowhere", scratch / "dangling");
    EXPECT_THAT(FileManager::contentsOfDirectory(scratch.path()),
                Optional(UnorderedElementsAre("file", ".hidden", "folder", "\xFF\n-", "dangling")));
}

TEST(ContentsOfDirectory, of_an_empty_folder_are_none) {
    const ScratchFolder scratch;
    EXPECT_THAT(FileManager::contentsOfDirectory(scratch.path()), Optional(UnorderedElementsAre()));
}

TEST(ContentsOfDirectory, are_absent_where_there_is_no_folder) {
    const ScratchFolder scratch;
    EXPECT_EQ(FileManager::contentsOfDirectory(scratch / "nothing"), std::nullopt);
    EXPECT_EQ(FileManager::contentsOfDirectory(scratch.file("file", 1)), std::nullopt);
}

TEST(ContentsOfDirectory, are_absent_where_they_cannot_be_read_to_the_end) {
    const ScratchFolder scratch;
    scratch.file("file", 1);
    for (const int nth : {1, 2}) {
        int reads = 0;
        const SystemCallHook failure([&](const SystemCallHook::Call& call) {
            return call.function == test::readsFolder && ++reads == nth ? EIO : 0;
        });
        EXPECT_EQ(FileManager::contentsOfDirectory(scratch.path()), std::nullopt) << nth;
    }
}

TEST(AttributesOfItem, hold_size_and_date_to_the_microsecond) {
    const ScratchFolder scratch;
    const std::string path = scratch.file("file", 5'000'000'001);
    setModificationDate(path, 1'700'000'000, 123'456'789);
    const auto attributes = FileManager::attributesOfItem(path);
    ASSERT_TRUE(attributes);
    EXPECT_EQ(attributes->size, 5'000'000'001);
    EXPECT_EQ(attributes->modificationDate, dateAt(1'700'000'000'123'456));
}

TEST(AttributesOfItem, of_a_link_are_its_own) {
    const ScratchFolder scratch;
    std::filesystem::create_symlink(scratch.file("file", 1'000), scratch / "link");
    setModificationDate(scratch / "link", -1, 500'000'000);
    const auto attributes = FileManager::attributesOfItem(scratch / "link");
    ASSERT_TRUE(attributes);
    EXPECT_EQ(attributes->size, static_cast<std::int64_t>((scratch / "file").size()));
    EXPECT_EQ(attributes->modificationDate, dateAt(-500'000));
}

TEST(AttributesOfItem, are_absent_where_there_is_nothing) {
    const ScratchFolder scratch;
    EXPECT_FALSE(FileManager::attributesOfItem(scratch / "nothing"));
}

TEST(AttributesOfItem, hold_the_nearest_date_for_one_that_no_microsecond_count_can_hold) {
    std::string path = "/dev/shm/drossbin-date-XXXXXX";
    const int file = ::mkstemp(path.data());
    if (file < 0) {
        GTEST_SKIP() << "no file system in memory, the only one known to keep such dates";
    }
    ::close(file);
    setModificationDate(path, std::numeric_limits<time_t>::max() / 1'000, 0);
    const auto future = FileManager::attributesOfItem(path);
    setModificationDate(path, std::numeric_limits<time_t>::min() / 1'000, 0);
    const auto past = FileManager::attributesOfItem(path);
    ::unlink(path.c_str());
    EXPECT_EQ(future->modificationDate, Date::max());
    EXPECT_EQ(past->modificationDate, Date::min());
}

TEST(SystemSize, is_the_capacity_of_the_volume) {
    struct statvfs volume {};
    ASSERT_EQ(::statvfs("/", &volume), 0);
    EXPECT_EQ(FileManager::systemSize("/"), static_cast<std::int64_t>(volume.f_blocks) *
                                                static_cast<std::int64_t>(volume.f_frsize));
}

TEST(SystemSize, is_absent_where_there_is_nothing) {
    const ScratchFolder scratch;
    EXPECT_EQ(FileManager::systemSize(scratch / "nothing"), std::nullopt);
}

TEST(CreateDirectory, creates_the_folders_above_too) {
    const ScratchFolder scratch;
    EXPECT_EQ(FileManager::createDirectory(scratch / "a/b//c/"), std::error_code());
    EXPECT_EQ(FileManager::existence(scratch / "a/b/c"), Existence::folder);
}

TEST(CreateDirectory, is_content_with_a_folder_that_exists) {
    const ScratchFolder scratch;
    scratch.file("folder/file", 1);
    EXPECT_EQ(FileManager::createDirectory(scratch / "folder"), std::error_code());
    EXPECT_EQ(FileManager::existence(scratch / "folder/file"), Existence::file);
}

TEST(CreateDirectory, fails_below_a_file_and_in_place_of_one) {
    const ScratchFolder scratch;
    scratch.file("file", 1);
    EXPECT_EQ(FileManager::createDirectory(scratch / "file"), std::errc::file_exists);
    EXPECT_EQ(FileManager::createDirectory(scratch / "file/a"), std::errc::file_exists);
    EXPECT_EQ(FileManager::createDirectory(""), std::errc::no_such_file_or_directory);
}

} // namespace
} // namespace drossbin
