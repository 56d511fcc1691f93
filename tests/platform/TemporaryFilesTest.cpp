#include "platform/FileManager.h"
#include "platform/folders/FileDescriptor.h"
#include "support/ChildProcess.h"
#include "support/ScratchFolder.h"
#include "support/SystemCalls.h"
#include "support/TextFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <limits>
#include <string>
#include <sys/file.h>
#include <sys/types.h>
#include <utility>
#include <vector>

namespace drossbin {
namespace {

using test::contentOf;
using test::ScratchFolder;
using test::SystemCallHook;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

/// Writes in a process that is killed when the whole text has only its temporary name.
void killBeforeRename(const std::string& path) {
    ASSERT_EQ(test::endOfChild([&] {
                  const SystemCallHook hook([](const SystemCallHook::Call& call) {
                      return call.function == "renameat" ? ::raise(SIGKILL) : 0;
                  });
                  return FileManager::writeAtomically("text", path).value();
              }),
              SIGKILL);
}

TEST(RemoveTemporaryFiles, clears_away_what_a_killed_program_left) {
    const ScratchFolder scratch;
    killBeforeRename(scratch / "log");
    ASSERT_THAT(FileManager::contentsOfDirectory(scratch.path()),
                Optional(ElementsAre(testing::StartsWith(".drossbin-"))));
    FileManager::removeTemporaryFiles(scratch.path());
    EXPECT_THAT(FileManager::contentsOfDirectory(scratch.path()), Optional(IsEmpty()));
}

TEST(RemoveTemporaryFiles, leaves_what_a_running_program_writes) {
    const ScratchFolder scratch;
    const SystemCallHook hook([&](const SystemCallHook::Call& call) {
        if (call.function == "renameat") {
            FileManager::removeTemporaryFiles(scratch.path());
        }
        return 0;
    });
    EXPECT_EQ(FileManager::writeAtomically("text", scratch / "log"), std::error_code());
    EXPECT_EQ(contentOf(scratch / "log"), "text");
}

FileDescriptor lockedForWriting(const std::string& path) {
    FileDescriptor file(::open(path.c_str(), O_WRONLY | O_CLOEXEC));
    return ::flock(file.get(), LOCK_EX | LOCK_NB) == 0 ? std::move(file) : FileDescriptor();
}

// In another container with the same home folder the number of a running program says nothing.
TEST(RemoveTemporaryFiles, leaves_what_is_locked_whoever_has_it) {
    const ScratchFolder scratch;
    const std::string name =
        ".drossbin-" + std::to_string(std::numeric_limits<pid_t>::max()) + "-1";
    scratch.file(name, 1);
    {
        const FileDescriptor writer = lockedForWriting(scratch / name);
        ASSERT_TRUE(writer.isOpen());
        FileManager::removeTemporaryFiles(scratch.path());
        EXPECT_THAT(FileManager::contentsOfDirectory(scratch.path()), Optional(ElementsAre(name)));
    }
    FileManager::removeTemporaryFiles(scratch.path());
    EXPECT_THAT(FileManager::contentsOfDirectory(scratch.path()), Optional(IsEmpty()));
}

TEST(AtomicWrite, holds_a_lock_until_the_text_has_its_name) {
    const ScratchFolder scratch;
    int renames = 0;
    const SystemCallHook hook([&](const SystemCallHook::Call& call) {
        if (call.function == "renameat") {
            ++renames;
            const auto names = FileManager::contentsOfDirectory(scratch.path());
            EXPECT_FALSE(lockedForWriting(scratch / names.value().at(0)).isOpen());
        }
        return 0;
    });
    EXPECT_EQ(FileManager::writeAtomically("text", scratch / "log"), std::error_code());
    EXPECT_EQ(renames, 1);
    EXPECT_TRUE(lockedForWriting(scratch / "log").isOpen());
}

TEST(RemoveTemporaryFiles, leaves_all_that_has_another_name) {
    const ScratchFolder scratch;
    const std::string ended = std::to_string(std::numeric_limits<pid_t>::max());
    const std::vector<std::string> others{".drossbin-",
                                          ".drossbin--1",
                                          ".drossbin-" + ended,
                                          ".drossbin-" + ended + "-",
                                          ".drossbin-" + ended + "-1x",
                                          "drossbin-" + ended + "-1",
                                          ".drossbin--" + ended + "-1",
                                          ".drossbin-0-1"};
    for (const std::string& name : others) {
        scratch.file(name, 1);
    }
    scratch.file(".drossbin-" + ended + "-2/file", 1);
    scratch.file(".drossbin-" + ended + "-1", 1);
    FileManager::removeTemporaryFiles(scratch.path());
    std::vector<std::string> left = others;
    left.push_back(".drossbin-" + ended + "-2");
    EXPECT_THAT(FileManager::contentsOfDirectory(scratch.path()),
                Optional(testing::UnorderedElementsAreArray(left)));
}

} // namespace
} // namespace drossbin
