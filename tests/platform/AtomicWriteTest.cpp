#include "platform/FileManager.h"
#include "support/ScratchFolder.h"
#include "support/TextFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace drossbin {
namespace {

using test::contentOf;
using test::ScratchFolder;
using testing::ElementsAre;
using testing::Optional;

const std::error_code noError;

TEST(WriteAtomically, writes_the_bytes_as_they_are_and_leaves_no_other_file) {
    const ScratchFolder scratch;
    const std::string text("one\ntwo \xFF and \0 zero", 20);
    EXPECT_EQ(FileManager::writeAtomically(text, scratch / "log"), noError);
    EXPECT_EQ(contentOf(scratch / "log"), text);
    EXPECT_THAT(FileManager::contentsOfDirectory(scratch.path()), Optional(ElementsAre("log")));
}

TEST(WriteAtomically, writes_an_empty_text) {
    const ScratchFolder scratch;
    EXPECT_EQ(FileManager::writeAtomically("", scratch / "log"), noError);
    EXPECT_EQ(FileManager::attributesOfItem(scratch / "log")->size, 0);
}

TEST(WriteAtomically, replaces_the_old_text_whole) {
    const ScratchFolder scratch;
    FileManager::writeAtomically("a long old text", scratch / "log");
    EXPECT_EQ(FileManager::writeAtomically("new", scratch / "log"), noError);
    EXPECT_EQ(contentOf(scratch / "log"), "new");
    EXPECT_THAT(FileManager::contentsOfDirectory(scratch.path()), Optional(ElementsAre("log")));
}

TEST(WriteAtomically, takes_the_place_of_a_link_and_leaves_its_target) {
    const ScratchFolder scratch;
    FileManager::writeAtomically("target", scratch / "target");
    std::filesystem::create_symlink("target", scratch / "log");
    EXPECT_EQ(FileManager::writeAtomically("new", scratch / "log"), noError);
    EXPECT_EQ(contentOf(scratch / "log"), "new");
    EXPECT_FALSE(std::filesystem::is_symlink(scratch / "log"));
    EXPECT_EQ(contentOf(scratch / "target"), "target");
}

TEST(WriteAtomically, lets_others_read_but_not_write_as_far_as_the_umask_allows) {
    const ScratchFolder scratch;
    const mode_t before = ::umask(0);
    FileManager::writeAtomically("open", scratch / "open");
    ::umask(077);
    FileManager::writeAtomically("closed", scratch / "closed");
    ::umask(before);
    struct stat open {};
    struct stat closed {};
    ASSERT_EQ(::stat((scratch / "open").c_str(), &open), 0);
    ASSERT_EQ(::stat((scratch / "closed").c_str(), &closed), 0);
    EXPECT_EQ(open.st_mode & 0777U, 0644U);
    EXPECT_EQ(closed.st_mode & 0777U, 0600U);
}

TEST(WriteAtomically, fails_without_its_folder) {
    const ScratchFolder scratch;
    EXPECT_EQ(FileManager::writeAtomically("text", scratch / "no/log"),
              std::errc::no_such_file_or_directory);
    scratch.file("file", 1);
    EXPECT_EQ(FileManager::writeAtomically("text", scratch / "file/log"),
              std::errc::not_a_directory);
}

TEST(WriteAtomically, fails_in_place_of_a_folder_and_leaves_nothing_else) {
    const ScratchFolder scratch;
    scratch.file("log/file", 1);
    EXPECT_EQ(FileManager::writeAtomically("text", scratch / "log"), std::errc::is_a_directory);
    EXPECT_THAT(FileManager::contentsOfDirectory(scratch.path()), Optional(ElementsAre("log")));
    EXPECT_EQ(FileManager::existence(scratch / "log/file"), FileManager::Existence::file);
}

} // namespace
} // namespace drossbin
