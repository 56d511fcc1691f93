#include "platform/FileManager.h"
#include "support/ScratchFolder.h"
#include "support/SystemCalls.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <string>

namespace drossbin {
namespace {

using test::ScratchFolder;
using test::SystemCallHook;
namespace fs = std::filesystem;

const std::error_code noError;

bool isThere(const std::string& path) {
    return FileManager::attributesOfItem(path).has_value();
}

/// Removes `item` while `change` strikes right before the first call of `function` about `name`.
std::error_code removeWithChange(const std::string& item, const std::string& function,
                                 const std::string& name, const std::function<void()>& change) {
    bool hasStruck = false;
    const SystemCallHook hook([&](const SystemCallHook::Call& call) {
        if (!hasStruck && call.function == function && call.name == name) {
            hasStruck = true;
            change();
        }
        return 0;
    });
    const std::error_code error = FileManager::removeItem(item);
    EXPECT_TRUE(hasStruck);
    return error;
}

class RemovalRace : public testing::Test {
  protected:
    RemovalRace() {
        m_scratch.file("canary/file", 1);
        m_scratch.file("item/folder/below", 1);
        m_scratch.file("item/file", 1);
    }

    std::error_code remove(const std::string& function, const std::string& name,
                           const std::function<void()>& change) {
        return removeWithChange(m_item, function, name, change);
    }

    /// Removes the item while someone removes "folder" right before it is read for the `nth` time.
    std::error_code removeWithChangeBeforeRead(int nth) {
        int reads = -1; // until the folder is open
        const SystemCallHook hook([&](const SystemCallHook::Call& call) {
            if (call.function == "openat" && call.name != ".") {
                reads = call.name == "folder" ? 0 : -1;
            } else if (call.function == test::readsFolder && reads >= 0 && ++reads == nth) {
                fs::remove_all(m_item + "/folder");
            }
            return 0;
        });
        return FileManager::removeItem(m_item);
    }

    void expectOnlyCanaryLeft() const {
        EXPECT_FALSE(isThere(m_item));
        EXPECT_TRUE(isThere(m_scratch / "canary/file"));
    }

    ScratchFolder m_scratch;
    std::string m_item = m_scratch / "item";
};

#ifndef __APPLE__ // where what says "a folder" also says "not allowed"
TEST_F(RemovalRace, goes_on_where_a_file_was_a_folder_for_a_moment) {
    const std::string file = m_item + "/file";
    int calls = 0;
    const SystemCallHook hook([&](const SystemCallHook::Call& call) {
        if (call.name == "file" && calls++ == 0) {
            fs::remove(file);
            fs::create_directory(file);
        } else if (call.name == "file" && calls == 2) {
            fs::remove(file);
            fs::create_symlink(m_scratch / "canary", file);
        }
        return 0;
    });
    EXPECT_EQ(FileManager::removeItem(m_item), noError);
    EXPECT_GT(calls, 2);
    expectOnlyCanaryLeft();
}
#endif

TEST_F(RemovalRace, with_one_who_removes_a_file_first_is_no_error) {
    EXPECT_EQ(remove("unlinkat", "file", [&] { fs::remove(m_item + "/file"); }), noError);
    expectOnlyCanaryLeft();
}

TEST_F(RemovalRace, with_one_who_removes_a_folder_first_is_no_error) {
    EXPECT_EQ(remove("openat", "folder", [&] { fs::remove_all(m_item + "/folder"); }), noError);
    expectOnlyCanaryLeft();
}

// On Linux the first read finds what is in the folder, the second one its end.
TEST_F(RemovalRace, with_one_who_removes_an_opened_folder_first_is_no_error) {
    for (const int nth : {1, 2}) {
        m_scratch.file("item/folder/below", 1);
        EXPECT_EQ(removeWithChangeBeforeRead(nth), noError) << nth;
        expectOnlyCanaryLeft();
    }
}

TEST_F(RemovalRace, with_one_who_removes_an_emptied_folder_first_is_no_error) {
    const auto change = [&] { fs::remove_all(m_item + "/folder"); };
    EXPECT_EQ(remove("unlinkat", "folder", change), noError);
    expectOnlyCanaryLeft();
}

TEST_F(RemovalRace, removes_a_folder_that_takes_the_place_of_a_file) {
    EXPECT_EQ(remove("unlinkat", "file",
                     [&] {
                         fs::remove(m_item + "/file");
                         m_scratch.file("item/file/below", 1);
                     }),
              noError);
    expectOnlyCanaryLeft();
}

TEST_F(RemovalRace, removes_a_file_that_takes_the_place_of_a_folder) {
    EXPECT_EQ(remove("openat", "folder",
                     [&] {
                         fs::remove_all(m_item + "/folder");
                         m_scratch.file("item/folder", 1);
                     }),
              noError);
    expectOnlyCanaryLeft();
}

TEST_F(RemovalRace, removes_a_link_that_takes_the_place_of_a_folder_and_not_its_target) {
    EXPECT_EQ(remove("openat", "folder",
                     [&] {
                         fs::remove_all(m_item + "/folder");
                         fs::create_symlink(m_scratch / "canary", m_item + "/folder");
                     }),
              noError);
    expectOnlyCanaryLeft();
}

TEST_F(RemovalRace, removes_a_link_that_takes_the_place_of_an_opened_folder) {
    const auto change = [&] {
        fs::rename(m_item + "/folder", m_scratch / "away");
        fs::create_symlink(m_scratch / "canary", m_item + "/folder");
    };
    EXPECT_EQ(remove("unlinkat", "below", change), noError);
    expectOnlyCanaryLeft();
    EXPECT_TRUE(isThere(m_scratch / "away")) << "it is outside by now";
}

TEST_F(RemovalRace, removes_a_link_that_takes_the_place_of_the_item_itself) {
    const auto change = [&] {
        fs::rename(m_item, m_scratch / "away");
        fs::create_symlink(m_scratch / "canary", m_item);
    };
    EXPECT_EQ(remove("openat", "item", change), noError);
    expectOnlyCanaryLeft();
    EXPECT_TRUE(isThere(m_scratch / "away/file"));
}

TEST_F(RemovalRace, removes_a_folder_that_takes_the_place_of_an_item_that_was_a_file) {
    const auto change = [&] {
        fs::remove(m_item + "/file");
        m_scratch.file("item/file/below", 1);
    };
    EXPECT_EQ(removeWithChange(m_item + "/file", "unlinkat", "file", change), noError);
    EXPECT_FALSE(isThere(m_item + "/file"));
}

TEST_F(RemovalRace, removes_what_is_added_after_a_folder_was_read) {
    EXPECT_EQ(remove("unlinkat", "item", [&] { m_scratch.file("item/late/file", 1); }), noError);
    expectOnlyCanaryLeft();
}

// On the way up a closed folder is opened again by "..", which leads elsewhere by now.
TEST_F(RemovalRace, stops_when_a_deep_folder_was_moved_out_of_the_item) {
    std::string deep;
    for (int depth = 0; depth < 30; ++depth) {
        deep += depth == 9 ? "/moved" : "/x";
    }
    m_scratch.file("item" + deep + "/last", 1);
    const std::string moved = m_item + deep.substr(0, deep.find("/moved")) + "/moved";
    const auto change = [&] { fs::rename(moved, m_scratch / "canary/moved"); };
    EXPECT_EQ(remove("unlinkat", "last", change), std::errc::device_or_resource_busy);
    EXPECT_TRUE(isThere(m_scratch / "canary/file"));
}

} // namespace
} // namespace drossbin
