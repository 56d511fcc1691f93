#include "platform/FileManager.h"
#include "support/NamesOpened.h"
#include "support/PipesAndDevices.h"
#include "support/ScratchFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace drossbin {
namespace {

using test::ScratchFolder;
using testing::ElementsAre;
using testing::IsEmpty;

const std::error_code noError;

/// Whether an entry of that name is there, a link not followed.
bool isThere(const std::string& path) {
    return FileManager::attributesOfItem(path).has_value();
}

TEST(RemoveItem, removes_a_file_and_nothing_beside_it) {
    const ScratchFolder scratch;
    scratch.file("beside", 1);
    EXPECT_EQ(FileManager::removeItem(scratch.file("file", 1)), noError);
    EXPECT_FALSE(isThere(scratch / "file"));
    EXPECT_TRUE(isThere(scratch / "beside"));
}

TEST(RemoveItem, removes_a_folder_with_all_that_is_in_it) {
    const ScratchFolder scratch;
    scratch.file("item/a/b/file", 1);
    scratch.file("item/.hidden", 1);
    scratch.folder("item/empty");
    scratch.file("item2/file", 1);
    EXPECT_EQ(FileManager::removeItem(scratch / "item"), noError);
    EXPECT_FALSE(isThere(scratch / "item"));
    EXPECT_TRUE(isThere(scratch / "item2/file"));
}

TEST(RemoveItem, finds_a_relative_path_in_the_working_folder) {
    const ScratchFolder scratch;
    scratch.file("item/file", 1);
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(scratch.path());
    EXPECT_EQ(FileManager::removeItem("item"), noError);
    std::filesystem::current_path(before);
    EXPECT_FALSE(isThere(scratch / "item"));
}

TEST(RemoveItem, fails_where_there_is_nothing) {
    const ScratchFolder scratch;
    EXPECT_EQ(FileManager::removeItem(scratch / "nothing"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(FileManager::removeItem(scratch / "no/thing"), std::errc::no_such_file_or_directory);
    EXPECT_EQ(FileManager::removeItem(scratch.file("file", 1) + "/below"),
              std::errc::not_a_directory);
}

TEST(RemoveItem, refuses_a_path_that_names_no_entry) {
    const ScratchFolder scratch;
    scratch.file("folder/file", 1);
    for (const std::string& path :
         {std::string(), std::string("/"), std::string("///"), scratch / "folder/.",
          scratch / "folder/..", scratch / "folder/./"}) {
        EXPECT_EQ(FileManager::removeItem(path), std::errc::invalid_argument) << path;
    }
    EXPECT_TRUE(isThere(scratch / "folder/file"));
}

TEST(RemoveItem, removes_a_link_without_following_it) {
    const ScratchFolder scratch;
    scratch.file("target/file", 1);
    for (const char* target : {"target", "target/file", "nothing", "link", "/"}) {
        std::filesystem::create_symlink(target, scratch / "link");
        EXPECT_EQ(FileManager::removeItem(scratch / "link"), noError) << target;
        EXPECT_FALSE(isThere(scratch / "link")) << target;
    }
    EXPECT_TRUE(isThere(scratch / "target/file"));
}

TEST(RemoveItem, removes_a_link_even_when_its_path_ends_in_slashes) {
    const ScratchFolder scratch;
    scratch.file("target/file", 1);
    std::filesystem::create_symlink("target", scratch / "link");
    EXPECT_EQ(FileManager::removeItem(scratch / "link//"), noError);
    EXPECT_FALSE(isThere(scratch / "link"));
    EXPECT_TRUE(isThere(scratch / "target/file"));
}

TEST(RemoveItem, removes_a_folder_even_when_its_path_ends_in_a_slash) {
    const ScratchFolder scratch;
    scratch.file("item/file", 1);
    EXPECT_EQ(FileManager::removeItem(scratch / "item/"), noError);
    EXPECT_FALSE(isThere(scratch / "item"));
}

TEST(RemoveItem, follows_links_above_the_item_as_every_path_does) {
    const ScratchFolder scratch;
    scratch.file("real/item", 1);
    std::filesystem::create_symlink("real", scratch / "link");
    EXPECT_EQ(FileManager::removeItem(scratch / "link/item"), noError);
    EXPECT_FALSE(isThere(scratch / "real/item"));
    EXPECT_TRUE(isThere(scratch / "link"));
}

TEST(RemoveItem, never_follows_a_link_inside) {
    const ScratchFolder scratch;
    scratch.file("outside/file", 1);
    scratch.folder("item/folder");
    const std::string links = scratch / "item/folder/";
    std::filesystem::create_symlink("/", links + "root");
    std::filesystem::create_symlink("loop", links + "loop");
    std::filesystem::create_symlink("nothing", links + "dangling");
    std::filesystem::create_symlink(scratch / "outside", links + "to-folder");
    std::filesystem::create_symlink(scratch / "outside/file", links + "to-file");
    std::filesystem::create_symlink("..", links + "up");
    EXPECT_EQ(FileManager::removeItem(scratch / "item"), noError);
    EXPECT_FALSE(isThere(scratch / "item"));
    EXPECT_TRUE(isThere(scratch / "outside/file"));
}

TEST(RemoveItem, removes_one_name_of_a_file_with_two) {
    const ScratchFolder scratch;
    scratch.folder("item");
    std::filesystem::create_hard_link(scratch.file("kept", 5), scratch / "item/other-name");
    EXPECT_EQ(FileManager::removeItem(scratch / "item"), noError);
    EXPECT_EQ(FileManager::attributesOfItem(scratch / "kept")->size, 5);
}

std::vector<std::string> namesOpenedByRemoving(const std::string& item, bool hidesKinds) {
    const auto job = [&] { EXPECT_EQ(FileManager::removeItem(item), noError) << item; };
    std::vector<std::string> names = test::namesOpenedBy(job, hidesKinds);
    EXPECT_FALSE(isThere(item)) << item;
    return names;
}

// Opening a FIFO that nobody writes to would wait for ever.
TEST(RemoveItem, removes_fifos_and_sockets_without_opening_them) {
    for (const bool hidesKinds : {false, true}) {
        const ScratchFolder scratch;
        scratch.file("item/file", 1);
        test::makePipe(scratch / "fifo");
        test::makePipe(scratch / "item/fifo");
        test::makeSocket(scratch / "socket");
        test::makeSocket(scratch / "item/socket");
        EXPECT_THAT(namesOpenedByRemoving(scratch / "fifo", hidesKinds), IsEmpty());
        EXPECT_THAT(namesOpenedByRemoving(scratch / "socket", hidesKinds), IsEmpty());
        EXPECT_THAT(namesOpenedByRemoving(scratch / "item", hidesKinds), ElementsAre("item"));
    }
}

TEST(RemoveItem, removes_devices_without_opening_them) {
    for (const bool hidesKinds : {false, true}) {
        const ScratchFolder scratch;
        scratch.folder("item");
        if (!test::makeDevice(scratch / "device") || !test::makeDevice(scratch / "item/device")) {
            GTEST_SKIP() << "only the superuser can make a device";
        }
        EXPECT_THAT(namesOpenedByRemoving(scratch / "device", hidesKinds), IsEmpty());
        EXPECT_THAT(namesOpenedByRemoving(scratch / "item", hidesKinds), ElementsAre("item"));
    }
}

TEST(RemoveItem, takes_names_as_raw_bytes) {
    const ScratchFolder scratch;
    for (const std::string& name :
         {std::string("\xFF\xFE not UTF-8"), std::string("line\nfeed"), std::string("-rf"),
          std::string(" "), std::string("..."), std::string("\\"), std::string(255, 'x')}) {
        scratch.file(name + "/" + name, 1);
        EXPECT_EQ(FileManager::removeItem(scratch / name), noError) << name;
        EXPECT_FALSE(isThere(scratch / name)) << name;
    }
}

} // namespace
} // namespace drossbin
