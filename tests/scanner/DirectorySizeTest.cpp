#include "scanner/DiskScanner.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace drossbin {
namespace {

using test::ScratchFolder;

std::int64_t ownSize(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(::lstat(path.c_str(), &status), 0);
    return status.st_size;
}

TEST(DirectorySize, is_absent_for_a_missing_path) {
    const ScratchFolder scratch;
    EXPECT_EQ(DiskScanner::directorySize(scratch / "missing"), std::nullopt);
    EXPECT_EQ(DiskScanner::directorySize(""), std::nullopt);
}

TEST(DirectorySize, is_zero_for_an_empty_folder) {
    const ScratchFolder scratch;
    EXPECT_EQ(DiskScanner::directorySize(scratch.path()), 0);
}

TEST(DirectorySize, of_a_file_is_its_logical_size) {
    const ScratchFolder scratch;
    EXPECT_EQ(DiskScanner::directorySize(scratch.file("sparse", 5'000'000'000)), 5'000'000'000);
    EXPECT_EQ(DiskScanner::directorySize(scratch.file("empty", 0)), 0);
}

TEST(DirectorySize, sums_all_depths_folders_with_their_own_entry) {
    const ScratchFolder scratch;
    scratch.file("a", 10);
    scratch.file(".hidden", 200);
    scratch.file("folder/inner/b", 3'000);
    EXPECT_EQ(DiskScanner::directorySize(scratch.path()),
              3'210 + ownSize(scratch / "folder") + ownSize(scratch / "folder/inner"));
}

TEST(DirectorySize, counts_a_link_below_as_itself) {
    const ScratchFolder scratch;
    const ScratchFolder outside;
    outside.file("file", 1'000'000);
    std::filesystem::create_directory_symlink(outside.path(), scratch / "link");
    EXPECT_EQ(DiskScanner::directorySize(scratch.path()), ownSize(scratch / "link"));
}

TEST(DirectorySize, follows_a_link_to_a_folder_that_is_itself_the_location) {
    const ScratchFolder scratch;
    const ScratchFolder outside;
    outside.file("file", 1'000'000);
    std::filesystem::create_directory_symlink(outside.path(), scratch / "link");
    EXPECT_EQ(DiskScanner::directorySize(scratch / "link"), 1'000'000);
}

TEST(DirectorySize, of_a_link_to_a_file_is_that_of_the_link) {
    const ScratchFolder scratch;
    std::filesystem::create_symlink(scratch.file("file", 1'000'000), scratch / "link");
    EXPECT_EQ(DiskScanner::directorySize(scratch / "link"), ownSize(scratch / "link"));
}

TEST(DirectorySize, is_absent_for_a_dangling_link) {
    const ScratchFolder scratch;
    std::filesystem::create_symlink("missing", scratch / "link");
    EXPECT_EQ(DiskScanner::directorySize(scratch / "link"), std::nullopt);
}

TEST(DirectorySize, reads_no_pipe) {
    const ScratchFolder scratch;
    ASSERT_EQ(::mkfifo((scratch / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(DiskScanner::directorySize(scratch / "pipe"), 0);
    EXPECT_EQ(DiskScanner::directorySize(scratch.path()), 0);
}

TEST(DirectorySize, of_a_device_is_zero) {
    EXPECT_EQ(DiskScanner::directorySize("/dev/null"), 0);
}

} // namespace
} // namespace drossbin
