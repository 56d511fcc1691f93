#include "platform/FileManager.h"
#include "platform/folders/FileDescriptor.h"
#include "support/HostileTrees.h"
#include "support/ImmenseFiles.h"
#include "support/Limits.h"
#include "support/Meanwhile.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace drossbin {
namespace {

using test::FewDescriptors;
using test::ScratchFolder;

void require(int result) {
    if (result != 0) {
        throw std::system_error(errno, std::generic_category());
    }
}

std::int64_t ownSize(const std::string& path) {
    struct stat status {};
    require(::lstat(path.c_str(), &status));
    return status.st_size;
}

/// Makes files of `size` bytes in the folder, as links to few files: ten times as quick to make,
/// and each counts.
void makeFiles(const std::string& path, int count, std::int64_t size) {
    constexpr int linksPerFile = 60'000; // ext4 allows 65,000
    const FileDescriptor folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    std::string file;
    for (int number = 0; number < count; ++number) {
        const std::string name = std::to_string(number);
        if (number % linksPerFile == 0) {
            file = name;
            const FileDescriptor made(
                ::openat(folder.get(), file.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644));
            require(::ftruncate(made.get(), size));
        } else {
            require(::linkat(folder.get(), file.c_str(), folder.get(), name.c_str(), 0));
        }
    }
}

/// Measured with as little as a thread and a process may have.
std::optional<std::int64_t> measuredInNeed(const std::string& path) {
    const FewDescriptors few;
    std::optional<std::int64_t> size;
    test::runOnSmallStack([&] { size = FileManager::sizeOfFolderContents(path); });
    return size;
}

TEST(TreeSizeHostile, chain_of_20000_folders_is_exact) {
    const ScratchFolder scratch;
    const std::int64_t size = test::makeChain(scratch.path(), 20'000, "d");
    EXPECT_EQ(measuredInNeed(scratch.path()), size);
}

TEST(TreeSizeHostile, path_far_longer_than_the_system_takes_is_exact) {
    const ScratchFolder scratch;
    const std::int64_t size = test::makeChain(scratch.path(), 300, std::string(255, 'n'));
    EXPECT_EQ(measuredInNeed(scratch.path()), size);
}

std::optional<std::int64_t> combInNeed(const char* name, const char* sibling,
                                       std::int64_t& expected) {
    const ScratchFolder scratch;
    expected = test::makeComb(scratch.path(), 3000, name, sibling);
    return measuredInNeed(scratch.path());
}

TEST(TreeSizeHostile, comb_of_3000_levels_is_exact_whichever_side_is_listed_first) {
    std::int64_t size = 0;
    EXPECT_EQ(combInNeed("a", "b", size), size);
    EXPECT_EQ(combInNeed("b", "a", size), size);
}

TEST(TreeSizeHostile, work_is_found_again_far_above_a_chain) {
    // Beside each long chain more waits above than may stay open, whichever is listed first.
    const ScratchFolder scratch;
    std::int64_t size = 0;
    std::string folder = scratch.path();
    for (const char* names : {"ab", "ba", "ab", "ba", "ab", "ba", "ab", "ba"}) {
        size += test::makeChain(folder, 1100, {names[0]});
        folder.append("/").push_back(names[1]);
        require(::mkdir(folder.c_str(), 0755));
    }
    for (; folder != scratch.path(); folder.resize(folder.size() - 2)) {
        size += ownSize(folder);
    }
    EXPECT_EQ(measuredInNeed(scratch.path()), size);
}

TEST(TreeSizeHostile, folder_of_300000_entries_is_exact) {
    const ScratchFolder scratch;
    makeFiles(scratch.path(), 300'000, 11);
    EXPECT_EQ(measuredInNeed(scratch.path()), 300'000 * 11);
}

TEST(TreeSizeHostile, folder_of_many_folders_is_exact) {
    const ScratchFolder scratch;
    std::int64_t size = 0;
    for (int number = 0; number < 20'000; ++number) {
        const std::string path = scratch / ("a rather long folder name " + std::to_string(number));
        require(::mkdir(path.c_str(), 0755));
        size += ownSize(path);
    }
    EXPECT_EQ(measuredInNeed(scratch.path()), size);
}

void makeSmallFolders(const ScratchFolder& scratch, const std::string& parent) {
    for (int number = 0; number < 40; ++number) {
        scratch.file(parent + "/folder " + std::to_string(number) + "/file", 1);
    }
}

TEST(TreeSizeHostile, folder_that_keeps_turning_into_a_link_never_leads_outside) {
    const ScratchFolder scratch;
    const ScratchFolder outside;
    constexpr std::int64_t canary = 1'000'000'000'000;
    outside.file("canary", canary);
    scratch.file("tree/swapped/file", 1);
    makeSmallFolders(scratch, "tree");
    const std::string link = scratch / "link";
    require(::symlink(outside.path().c_str(), link.c_str()));
    const auto quiet = FileManager::sizeOfFolderContents(scratch / "tree");
    {
        const test::Meanwhile swapping([&, folder = scratch / "tree/swapped"] {
            std::rename(folder.c_str(), (scratch / "aside").c_str());
            std::rename(link.c_str(), folder.c_str());
            std::rename(folder.c_str(), link.c_str());
            std::rename((scratch / "aside").c_str(), folder.c_str());
        });
        for (int round = 0; round < 2000; ++round) {
            EXPECT_LT(FileManager::sizeOfFolderContents(scratch / "tree").value(), canary);
        }
    }
    EXPECT_EQ(FileManager::sizeOfFolderContents(scratch / "tree"), quiet);
}

TEST(TreeSizeHostile, entries_that_come_and_go_leave_the_others_exact) {
    const ScratchFolder scratch;
    scratch.folder("lasting");
    makeFiles(scratch / "lasting", 200, 1000);
    const std::int64_t passing = 2 * ownSize(scratch / "lasting") + 8192;
    const test::Meanwhile changing([&, folder = scratch / "lasting/passing"] {
        ::mkdir(folder.c_str(), 0755);
        ::mkdir((folder + "/below").c_str(), 0755);
        ::rmdir((folder + "/below").c_str());
        ::rmdir(folder.c_str());
    });
    for (int round = 0; round < 1000; ++round) {
        const auto size = FileManager::sizeOfFolderContents(scratch / "lasting").value();
        EXPECT_GE(size, 200'000);
        EXPECT_LE(size, 200'000 + passing);
    }
}

TEST(TreeSizeHostileDeathTest, sum_beyond_64_bits_stops_the_program) {
    const test::ImmenseFiles files;
    if (!files.areMade()) {
        GTEST_SKIP() << "no file system here takes files of 8 exbibytes";
    }
    EXPECT_DEATH((void)FileManager::sizeOfFolderContents(files.folder()),
                 "^drossbin: a sum of sizes exceeds 64 bits\n$");
}

} // namespace
} // namespace drossbin
