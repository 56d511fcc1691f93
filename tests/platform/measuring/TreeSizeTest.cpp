#include "platform/FileManager.h"
#include "support/Limits.h"
#include "support/NamesOpened.h"
#include "support/PipesAndDevices.h"
#include "support/ScratchFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace drossbin {
namespace {

using test::ScratchFolder;
using testing::ElementsAre;

std::int64_t ownSize(const std::string& path) {
    struct stat status {};
    EXPECT_EQ(::lstat(path.c_str(), &status), 0) << path;
    return status.st_size;
}

std::optional<std::int64_t> measured(const std::string& path) {
    return FileManager::sizeOfFolderContents(path);
}

void makeLink(const std::string& target, const std::string& link) {
    ASSERT_EQ(::symlink(target.c_str(), link.c_str()), 0) << link;
}

TEST(TreeSize, of_an_empty_folder_is_0) {
    const ScratchFolder scratch;
    EXPECT_EQ(measured(scratch.path()), 0);
}

TEST(TreeSize, of_what_is_no_folder_is_absent) {
    const ScratchFolder scratch;
    EXPECT_EQ(measured(scratch / "missing"), std::nullopt);
    EXPECT_EQ(measured(scratch.file("file", 3)), std::nullopt);
    EXPECT_EQ(measured(""), std::nullopt);
}

TEST(TreeSize, sums_files_at_every_depth_and_the_folders_themselves) {
    const ScratchFolder scratch;
    scratch.file("a", 1);
    scratch.file("b/c", 20);
    scratch.file("b/d/e", 300);
    scratch.folder("b/empty");
    const std::int64_t folders =
        ownSize(scratch / "b") + ownSize(scratch / "b/d") + ownSize(scratch / "b/empty");
    EXPECT_EQ(measured(scratch.path()), 321 + folders);
}

TEST(TreeSize, counts_hidden_entries) {
    const ScratchFolder scratch;
    scratch.file(".hidden", 5);
    scratch.file(".folder/.file", 70);
    scratch.file("...", 100);
    EXPECT_EQ(measured(scratch.path()), 175 + ownSize(scratch / ".folder"));
}

TEST(TreeSize, is_of_logical_sizes_not_of_blocks) {
    const ScratchFolder scratch;
    scratch.file("sparse", 4'000'000'000'000);
    EXPECT_EQ(measured(scratch.path()), 4'000'000'000'000);
}

TEST(TreeSize, counts_a_hard_link_each_time) {
    const ScratchFolder scratch;
    const std::string file = scratch.file("file", 1000);
    ASSERT_EQ(::link(file.c_str(), (scratch / "again").c_str()), 0);
    EXPECT_EQ(measured(scratch.path()), 2000);
}

TEST(TreeSize, counts_names_of_any_bytes) {
    const ScratchFolder scratch;
    scratch.file("\xff\xc0", 1);
    scratch.file("two\nlines", 20);
    scratch.file("-rf", 300);
    scratch.file(std::string(255, 'n'), 4000);
    scratch.file("\x80/\n/--/" + std::string(255, '\xfe') + "/file", 50000);
    const std::string odd = scratch / "\x80";
    const std::int64_t folders = ownSize(odd) + ownSize(odd + "/\n") + ownSize(odd + "/\n/--") +
                                 ownSize(odd + "/\n/--/" + std::string(255, '\xfe'));
    EXPECT_EQ(measured(scratch.path()), 54321 + folders);
}

TEST(TreeSize, counts_links_below_it_but_never_follows_one) {
    const ScratchFolder scratch;
    const ScratchFolder outside;
    outside.file("large", 1'000'000);
    scratch.file("file", 500);
    makeLink("nowhere", scratch / "dangling");              // 7 bytes
    makeLink("loop", scratch / "loop");                     // 4
    makeLink(".", scratch / "self");                        // 1
    makeLink("/", scratch / "root");                        // 1
    makeLink("file", scratch / "to file");                  // 4
    makeLink(outside.path(), scratch / "to folder");        // its length
    makeLink(outside / "large", scratch / "to file there"); // its length
    const auto outsideNames = std::ssize(outside.path()) + std::ssize(outside / "large");
    EXPECT_EQ(measured(scratch.path()), 500 + 7 + 4 + 1 + 1 + 4 + outsideNames);
}

TEST(TreeSize, of_a_link_to_a_folder_is_of_that_folder) {
    const ScratchFolder scratch;
    scratch.file("folder/file", 42);
    makeLink("folder", scratch / "link");
    EXPECT_EQ(measured(scratch / "link"), 42);
    EXPECT_EQ(measured(scratch / "link/"), 42);
}

/// Measures a folder of special files and expects that nothing but the folder was opened, whether
/// it tells of what kind its entries are or not.
void expectOnlyFolderOpened(const ScratchFolder& scratch) {
    const auto job = [&] { EXPECT_EQ(measured(scratch.path()), 8); };
    for (const bool hidesKinds : {false, true}) {
        EXPECT_THAT(test::namesOpenedBy(job, hidesKinds), ElementsAre(scratch.path()));
    }
}

TEST(TreeSize, opens_no_file_pipe_or_socket) {
    const ScratchFolder scratch;
    scratch.file("file", 8);
    test::makePipe(scratch / "pipe");
    test::makeSocket(scratch / "socket");
    expectOnlyFolderOpened(scratch);
}

TEST(TreeSize, opens_no_device) {
    const ScratchFolder scratch;
    scratch.file("file", 8);
    if (!test::makeDevice(scratch / "device")) {
        GTEST_SKIP() << "only the superuser can make a device";
    }
    expectOnlyFolderOpened(scratch);
}

TEST(TreeSize, of_a_pipe_is_absent_at_once) {
    const ScratchFolder scratch;
    test::makePipe(scratch / "pipe");
    EXPECT_EQ(measured(scratch / "pipe"), std::nullopt);
}

TEST(TreeSize, counts_an_unreadable_folder_as_itself_and_the_rest_exactly) {
    const ScratchFolder scratch;
    scratch.file("before", 1);
    scratch.file("locked/secret", 1'000'000);
    scratch.file("open/file", 20);
    scratch.file("z after", 300);
    const std::int64_t folders = ownSize(scratch / "locked") + ownSize(scratch / "open");
    ASSERT_EQ(::chmod(scratch.path().c_str(), 0755), 0);
    ASSERT_EQ(::chmod((scratch / "locked").c_str(), 0), 0);
    EXPECT_TRUE(
        test::holdsForOrdinaryUser([&] { return measured(scratch.path()) == 321 + folders; }));
    ASSERT_EQ(::chmod((scratch / "locked").c_str(), 0755), 0);
    EXPECT_EQ(measured(scratch.path()), 1'000'321 + folders);
}

TEST(TreeSize, leaves_out_what_a_folder_lists_but_does_not_let_reach) {
    const ScratchFolder scratch;
    scratch.file("listed/file", 1000);
    scratch.file("listed/folder/file", 1000);
    scratch.file("z", 20);
    const std::int64_t folder = ownSize(scratch / "listed");
    ASSERT_EQ(::chmod(scratch.path().c_str(), 0755), 0);
    ASSERT_EQ(::chmod((scratch / "listed").c_str(), 0444), 0);
    EXPECT_TRUE(
        test::holdsForOrdinaryUser([&] { return measured(scratch.path()) == 20 + folder; }));
    ASSERT_EQ(::chmod((scratch / "listed").c_str(), 0755), 0);
}

TEST(TreeSize, of_a_folder_that_cannot_be_opened_is_absent) {
    const ScratchFolder scratch;
    scratch.file("locked/file", 1);
    ASSERT_EQ(::chmod(scratch.path().c_str(), 0755), 0);
    ASSERT_EQ(::chmod((scratch / "locked").c_str(), 0), 0);
    EXPECT_TRUE(test::holdsForOrdinaryUser([&] { return !measured(scratch / "locked"); }));
    ASSERT_EQ(::chmod((scratch / "locked").c_str(), 0755), 0);
}

} // namespace
} // namespace drossbin
