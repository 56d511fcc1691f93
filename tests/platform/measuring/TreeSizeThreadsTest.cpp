#include "platform/FileManager.h"
#include "platform/measuring/MeasuringPool.h"
#include "support/HostileTrees.h"
#include "support/Limits.h"
#include "support/Meanwhile.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace drossbin {
namespace {

using test::ScratchFolder;

/// Plain and slow: what every walk must come to.
std::int64_t plainSize(const std::string& path) {
    std::int64_t total = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) {
        struct stat status {};
        EXPECT_EQ(::lstat(entry.path().c_str(), &status), 0);
        total += status.st_size;
    }
    return total;
}

/// Folders of all sizes and shapes, the same for the same seed.
void makeTree(const ScratchFolder& scratch, unsigned seed, int folders) {
    std::minstd_rand random(seed);
    std::vector<std::string> paths{"tree"};
    for (int number = 0; number < folders; ++number) {
        const std::string& parent = paths[random() % paths.size()];
        const std::string path = parent + "/" + std::to_string(number);
        scratch.folder(path);
        const auto files = random() % 20 == 0 ? random() % 1500 : random() % 30;
        for (std::uint_fast32_t file = 0; file < files; ++file) {
            scratch.file(path + "/file " + std::to_string(file),
                         static_cast<std::int64_t>(random() % 100'000));
        }
        if (paths.size() < 200) {
            paths.push_back(path);
        }
    }
}

std::optional<std::int64_t> measured(const ScratchFolder& scratch) {
    return FileManager::sizeOfFolderContents(scratch / "tree");
}

TEST(TreeSizeThreads, shared_walks_of_many_shapes_are_exact) {
    for (unsigned seed = 1; seed <= 3; ++seed) {
        const ScratchFolder scratch;
        makeTree(scratch, seed, 60);
        const std::int64_t size = plainSize(scratch / "tree");
        for (int round = 0; round < 40; ++round) {
            ASSERT_EQ(measured(scratch), size) << "seed " << seed << ", round " << round;
        }
    }
}

void expectExactOnThreads(int threads, const ScratchFolder& scratch, std::int64_t size) {
    test::onThreads(threads, [&] {
        for (int round = 0; round < 20; ++round) {
            EXPECT_EQ(measured(scratch), size);
        }
    });
}

TEST(TreeSizeThreads, walks_on_many_threads_at_once_are_exact) {
    const ScratchFolder scratch;
    makeTree(scratch, 99, 60);
    expectExactOnThreads(8, scratch, plainSize(scratch / "tree"));
}

TEST(TreeSizeThreads, walks_on_many_threads_with_few_descriptors_are_exact) {
    const ScratchFolder scratch;
    for (const char* comb : {"tree/a", "tree/b", "tree/c"}) {
        test::makeComb(scratch.folder(comb), 150, "spine", "sibling");
    }
    const std::int64_t size = plainSize(scratch / "tree");
    const test::FewDescriptors few;
    expectExactOnThreads(6, scratch, size);
}

TEST(TreeSizeThreads, a_forked_child_walks_alone_and_ends) {
    const ScratchFolder scratch;
    makeTree(scratch, 5, 40);
    const std::int64_t size = plainSize(scratch / "tree");
    EXPECT_EQ(measured(scratch), size);
    const pid_t child = ::fork();
    if (child == 0) {
        const bool isAlone = MeasuringPool::ofThisProcess() == nullptr;
        const bool holds = isAlone && measured(scratch) == size;
        std::exit(holds ? 0 : 1); // NOLINT(concurrency-mt-unsafe): with all that runs at an end
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
}

TEST(TreeSizeThreads, no_descriptor_stays_open) {
    const ScratchFolder scratch;
    makeTree(scratch, 7, 40);
    const auto openNow = [] {
        return std::distance(std::filesystem::directory_iterator("/dev/fd"),
                             std::filesystem::directory_iterator());
    };
    const auto before = openNow();
    for (int round = 0; round < 20; ++round) {
        ASSERT_TRUE(measured(scratch).has_value());
    }
    EXPECT_EQ(openNow(), before);
}

} // namespace
} // namespace drossbin
