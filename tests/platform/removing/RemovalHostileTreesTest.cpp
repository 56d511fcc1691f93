#include "platform/FileManager.h"
#include "support/HostileTrees.h"
#include "support/Limits.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <unistd.h>

namespace drossbin {
namespace {

using test::ScratchFolder;

const std::error_code noError;

bool isThere(const std::string& path) {
    return FileManager::attributesOfItem(path).has_value();
}

/// Removes the item on a stack of 256 KiB with some 30 descriptors left.
void expectRemovedWithLittle(const ScratchFolder& scratch) {
    const test::FewDescriptors limit;
    std::error_code error = std::make_error_code(std::errc::interrupted);
    test::runOnSmallStack([&] { error = FileManager::removeItem(scratch / "item"); });
    EXPECT_EQ(error, noError);
    EXPECT_FALSE(isThere(scratch / "item"));
    EXPECT_TRUE(isThere(scratch / "beside"));
}

class RemovalOfAHostileTree : public testing::Test {
  protected:
    RemovalOfAHostileTree() {
        m_scratch.folder("item");
        m_scratch.file("beside", 1);
    }

    ScratchFolder m_scratch;
};

TEST_F(RemovalOfAHostileTree, copes_with_20000_folders_in_each_other) {
    test::makeChain(m_scratch / "item", 20'000, "d");
    expectRemovedWithLittle(m_scratch);
}

TEST_F(RemovalOfAHostileTree, copes_with_a_path_a_hundred_times_longer_than_any_call_takes) {
    test::makeChain(m_scratch / "item", 1'700, std::string(255, 'x'));
    expectRemovedWithLittle(m_scratch);
}

TEST_F(RemovalOfAHostileTree, copes_with_a_comb_of_3000_folders_and_their_siblings) {
    test::makeComb(m_scratch / "item", 3'000, "a", "b");
    expectRemovedWithLittle(m_scratch);
}

TEST_F(RemovalOfAHostileTree, copes_with_a_comb_whose_siblings_are_listed_first) {
    test::makeComb(m_scratch / "item", 3'000, "b", "a");
    expectRemovedWithLittle(m_scratch);
}

// More folders than wait in memory at once, each deep enough for the wide one to be closed.
TEST_F(RemovalOfAHostileTree, copes_with_a_wide_folder_of_deep_ones) {
    for (int index = 0; index < 40; ++index) {
        test::makeChain(m_scratch.folder("item/" + std::to_string(index)), 20, "d");
    }
    for (int index = 0; index < 4'000; ++index) {
        m_scratch.folder("item/empty-" + std::to_string(index));
    }
    expectRemovedWithLittle(m_scratch);
}

// A second name for a file costs less than another file; there can be some 65,000 of them.
TEST_F(RemovalOfAHostileTree, copes_with_300000_entries_in_one_folder) {
    for (int group = 0; group < 10; ++group) {
        const std::string name = m_scratch / "item/" + std::to_string(group);
        const std::string first = m_scratch.file("item/" + std::to_string(group), 0);
        for (int index = 1; index < 30'000; ++index) {
            ASSERT_EQ(::link(first.c_str(), (name + "-" + std::to_string(index)).c_str()), 0);
        }
    }
    expectRemovedWithLittle(m_scratch);
}

} // namespace
} // namespace drossbin
