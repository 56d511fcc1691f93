#include "platform/folders/DirectoryReader.h"

#include "platform/folders/FileDescriptor.h"
#include "support/ScratchFolder.h"
#include "support/SystemCalls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <fcntl.h>
#include <map>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace drossbin {
namespace {

using test::ScratchFolder;
using testing::ElementsAre;
using testing::Key;
using testing::UnorderedElementsAre;

FileDescriptor open(const std::string& path) {
    return FileDescriptor(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
}

using Entries = std::map<std::string, DirectoryBlock::Entry>;

Entries entriesLeft(DirectoryReader& reader, std::size_t capacity = DirectoryBlock::capacity) {
    Entries entries;
    DirectoryBlock block;
    while (reader.read(block, capacity)) {
        while (const auto entry = block.next()) {
            EXPECT_TRUE(entries.emplace(entry->name, *entry).second)
                << entry->name << " came twice";
        }
    }
    return entries;
}

Entries entriesOf(const std::string& path) {
    const FileDescriptor folder = open(path);
    DirectoryReader reader(folder.get());
    return entriesLeft(reader);
}

void makeFiles(const ScratchFolder& scratch, int count) {
    for (int number = 0; number < count; ++number) {
        scratch.file("file " + std::to_string(number), 0);
    }
}

TEST(DirectoryReader, gives_every_entry_but_the_folder_itself_and_its_parent) {
    const ScratchFolder scratch;
    scratch.file("..a", 0);
    scratch.file(".hidden", 0);
    scratch.folder("...");
    scratch.file("-rf", 0);
    EXPECT_THAT(entriesOf(scratch.path()),
                UnorderedElementsAre(Key("..a"), Key(".hidden"), Key("..."), Key("-rf")));
}

TEST(DirectoryReader, gives_nothing_for_an_empty_folder) {
    const ScratchFolder scratch;
    EXPECT_TRUE(entriesOf(scratch.path()).empty());
}

TEST(DirectoryReader, gives_names_as_the_bytes_that_they_are) {
    const ScratchFolder scratch;
    const std::string longest(255, 'n');
    scratch.file("\xff\xfe", 0);
    scratch.file("two\nlines", 0);
    scratch.file(longest, 0);
    EXPECT_THAT(entriesOf(scratch.path()),
                UnorderedElementsAre(Key("\xff\xfe"), Key("two\nlines"), Key(longest)));
}

TEST(DirectoryReader, tells_folders_from_links_to_folders) {
    const ScratchFolder scratch;
    scratch.folder("folder");
    ASSERT_EQ(::symlink("folder", (scratch / "link").c_str()), 0);
    scratch.file("file", 0);
    const Entries entries = entriesOf(scratch.path());
    using Kind = DirectoryBlock::Kind;
    EXPECT_EQ(entries.at("folder").kind, Kind::folder);
    EXPECT_EQ(entries.at("link").kind, Kind::other);
    EXPECT_EQ(entries.at("file").kind, Kind::other);
}

TEST(DirectoryReader, gives_the_inode_of_each_entry) {
    const ScratchFolder scratch;
    struct stat status {};
    ASSERT_EQ(::stat(scratch.file("file", 0).c_str(), &status), 0);
    EXPECT_EQ(entriesOf(scratch.path()).at("file").inode, status.st_ino);
}

TEST(DirectoryReader, reads_a_folder_of_many_blocks_to_its_end) {
    const ScratchFolder scratch;
    makeFiles(scratch, 5000);
    const FileDescriptor folder = open(scratch.path());
    DirectoryReader reader(folder.get());
    DirectoryBlock block;
    ASSERT_TRUE(reader.read(block));
    EXPECT_LE(block.bytesLeft(), DirectoryBlock::capacity);
    reader.rewind();
    EXPECT_EQ(entriesLeft(reader).size(), 5000U);
    EXPECT_FALSE(reader.read(block));
    EXPECT_EQ(block.bytesLeft(), 0U);
    EXPECT_FALSE(block.next().has_value());
    EXPECT_EQ(reader.error(), std::error_code());
}

TEST(DirectoryReader, reads_no_more_at_a_time_than_it_is_told) {
    const ScratchFolder scratch;
    makeFiles(scratch, 500);
    const FileDescriptor folder = open(scratch.path());
    DirectoryReader reader(folder.get());
    DirectoryBlock block;
    ASSERT_TRUE(reader.read(block, 2048));
    EXPECT_LE(block.bytesLeft(), 2048U);
    reader.rewind();
    EXPECT_EQ(entriesLeft(reader, 2048).size(), 500U);
}

TEST(DirectoryReader, sees_after_a_rewind_what_the_folder_holds_by_then) {
    const ScratchFolder scratch;
    scratch.file("early", 0);
    const FileDescriptor folder = open(scratch.path());
    DirectoryReader reader(folder.get());
    EXPECT_THAT(entriesLeft(reader), ElementsAre(Key("early")));
    EXPECT_TRUE(entriesLeft(reader).empty());
    scratch.file("late", 0);
    reader.rewind();
    EXPECT_THAT(entriesLeft(reader), ElementsAre(Key("early"), Key("late")));
}

TEST(DirectoryReader, goes_on_from_a_position_in_a_later_opening) {
    const ScratchFolder scratch;
    makeFiles(scratch, 500);
    Entries early;
    DirectoryReader::Position position = 0;
    {
        const FileDescriptor folder = open(scratch.path());
        DirectoryReader reader(folder.get());
        DirectoryBlock block;
        ASSERT_TRUE(reader.read(block, 2048));
        while (const auto entry = block.next()) {
            early.emplace(entry->name, *entry);
        }
        position = reader.position();
    }
    const FileDescriptor folder = open(scratch.path());
    DirectoryReader reader(folder.get(), position);
    Entries all = entriesLeft(reader);
    EXPECT_EQ(all.size() + early.size(), 500U);
    all.merge(early);
    EXPECT_EQ(all.size(), 500U);
}

TEST(DirectoryReader, is_at_the_end_of_a_folder_that_was_removed_meanwhile) {
    const ScratchFolder scratch;
    const std::string path = scratch.folder("folder");
    const FileDescriptor folder = open(path);
    ASSERT_EQ(::rmdir(path.c_str()), 0);
    DirectoryReader reader(folder.get());
    EXPECT_TRUE(entriesLeft(reader).empty());
    EXPECT_EQ(reader.error(), std::error_code());
}

TEST(DirectoryReader, gives_nothing_but_the_error_where_there_is_no_folder_to_read) {
    const ScratchFolder scratch;
    const FileDescriptor file(::open(scratch.file("file", 10).c_str(), O_RDONLY | O_CLOEXEC));
    DirectoryReader reader(file.get());
    EXPECT_TRUE(entriesLeft(reader).empty());
    EXPECT_EQ(reader.error(), std::errc::not_a_directory);
}

TEST(DirectoryReader, forgets_an_error_when_it_can_read_again) {
    const ScratchFolder scratch;
    scratch.file("file", 0);
    const FileDescriptor folder = open(scratch.path());
    DirectoryReader reader(folder.get());
    DirectoryBlock block;
    {
        const test::SystemCallHook failure([](const test::SystemCallHook::Call&) { return EIO; });
        EXPECT_FALSE(reader.read(block));
    }
    EXPECT_EQ(reader.error(), std::errc::io_error);
    EXPECT_TRUE(reader.read(block));
    EXPECT_EQ(reader.error(), std::error_code());
}

TEST(DirectoryReader, gives_what_it_read_before_an_error_and_then_the_error) {
    const ScratchFolder scratch;
    makeFiles(scratch, 500);
    const FileDescriptor folder = open(scratch.path());
    DirectoryReader reader(folder.get());
    int reads = 0;
    const test::SystemCallHook failure([&](const test::SystemCallHook::Call& call) {
        return call.function == test::readsFolder && ++reads == 5 ? EIO : 0;
    });
    const std::size_t given = entriesLeft(reader, 2048).size();
    EXPECT_GT(given, 0U);
    EXPECT_LT(given, 500U);
    EXPECT_EQ(reader.error(), std::errc::io_error);
    reader.rewind();
    EXPECT_EQ(entriesLeft(reader).size(), 500U);
    EXPECT_EQ(reader.error(), std::error_code());
}

} // namespace
} // namespace drossbin
