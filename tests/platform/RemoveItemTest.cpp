#include "platform/FileManager.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace drossbin {
namespace {

using test::ScratchFolder;

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

// Opening a FIFO that nobody writes to would wait for ever.
TEST(RemoveItem, removes_fifos_and_sockets_without_opening_them) {
    const ScratchFolder scratch;
    scratch.folder("item");
    ASSERT_EQ(::mkfifo((scratch / "fifo").c_str(), 0600), 0);
    ASSERT_EQ(::mkfifo((scratch / "item/fifo").c_str(), 0600), 0);
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    (scratch / "item/socket").copy(address.sun_path, sizeof(address.sun_path) - 1);
    const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
    ASSERT_EQ(::bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
    EXPECT_EQ(FileManager::removeItem(scratch / "fifo"), noError);
    EXPECT_EQ(FileManager::removeItem(scratch / "item"), noError);
    EXPECT_FALSE(isThere(scratch / "fifo"));
    EXPECT_FALSE(isThere(scratch / "item"));
    ::close(socket);
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
