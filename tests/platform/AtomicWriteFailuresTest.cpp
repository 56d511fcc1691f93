#include "platform/FileManager.h"
#include "support/ChildProcess.h"
#include "support/ScratchFolder.h"
#include "support/SystemCalls.h"
#include "support/TextFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <string>
#include <vector>

namespace drossbin {
namespace {

using test::contentOf;
using test::ScratchFolder;
using test::SystemCallHook;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

const std::error_code noError;
const std::string text = "the whole new text";

/// A hook that halves the first write, so that something can happen in the middle of the text.
SystemCallHook::Hook halvingFirstWrite(const SystemCallHook::Hook& then) {
    return [then, isFirst = true](const SystemCallHook::Call& call) mutable {
        if (call.size != nullptr && isFirst) {
            *call.size /= 2;
            isFirst = false;
        }
        return then(call);
    };
}

class AtomicWriteFailures : public testing::TestWithParam<std::string> {
  protected:
    /// Writes while the last call of the function named by the parameter fails.
    std::error_code write(const std::string& path) {
        const int lastWrite = GetParam() == "write" ? 2 : 1; // the second half of the text
        int calls = 0;
        const SystemCallHook hook(halvingFirstWrite([&](const SystemCallHook::Call& call) {
            calls += call.function == GetParam() ? 1 : 0;
            return call.function == GetParam() && calls == lastWrite ? ENOSPC : 0;
        }));
        return FileManager::writeAtomically(text, path);
    }
};

TEST_P(AtomicWriteFailures, come_back_as_they_are_and_leave_nothing) {
    const ScratchFolder scratch;
    EXPECT_EQ(write(scratch / "log"), std::errc::no_space_on_device);
    EXPECT_THAT(FileManager::contentsOfDirectory(scratch.path()), Optional(IsEmpty()));
}

TEST_P(AtomicWriteFailures, leave_the_old_text_whole) {
    const ScratchFolder scratch;
    ASSERT_EQ(FileManager::writeAtomically("old", scratch / "log"), noError);
    EXPECT_EQ(write(scratch / "log"), std::errc::no_space_on_device);
    EXPECT_EQ(contentOf(scratch / "log"), "old");
    EXPECT_THAT(FileManager::contentsOfDirectory(scratch.path()), Optional(ElementsAre("log")));
}

INSTANTIATE_TEST_SUITE_P(OfEachCall, AtomicWriteFailures,
                         testing::Values("openat", "write", "fsync", "renameat"),
                         [](const auto& parameter) { return parameter.param; });

TEST(AtomicWrite, goes_on_after_a_write_that_took_only_a_part) {
    const ScratchFolder scratch;
    const SystemCallHook hook([](const SystemCallHook::Call& call) {
        if (call.size != nullptr) {
            *call.size = std::min<std::size_t>(*call.size, 1);
        }
        return 0;
    });
    EXPECT_EQ(FileManager::writeAtomically(text, scratch / "log"), noError);
    EXPECT_EQ(contentOf(scratch / "log"), text);
}

/// Writes while a signal interrupts the `nth` call to the file system; returns the call's name,
/// or nothing when there were fewer.
std::string writeWithSignalAtCall(int nth) {
    const ScratchFolder scratch;
    std::string interrupted;
    {
        int calls = 0;
        const SystemCallHook hook([&](const SystemCallHook::Call& call) {
            interrupted = ++calls == nth ? call.function : interrupted;
            const bool mayBeInterrupted = call.function != "renameat";
            return calls == nth && mayBeInterrupted ? EINTR : 0;
        });
        EXPECT_EQ(FileManager::writeAtomically(text, scratch / "log"), noError) << interrupted;
    }
    EXPECT_EQ(contentOf(scratch / "log"), text) << interrupted;
    EXPECT_THAT(FileManager::contentsOfDirectory(scratch.path()), Optional(ElementsAre("log")));
    return interrupted;
}

TEST(AtomicWrite, goes_on_after_a_signal_at_each_call) {
    std::vector<std::string> interrupted;
    do {
        interrupted.push_back(writeWithSignalAtCall(static_cast<int>(interrupted.size()) + 1));
    } while (!interrupted.back().empty());
    EXPECT_THAT(interrupted, ElementsAre("openat", "write", "fsync", "renameat", "fsync", ""));
}

// By then the new text is in its place: the name must not be lost on the way out.
TEST(AtomicWrite, keeps_the_new_text_when_only_the_flush_of_its_folder_fails) {
    const ScratchFolder scratch;
    int flushes = 0;
    const SystemCallHook hook([&](const SystemCallHook::Call& call) {
        return call.function == "fsync" && ++flushes == 2 ? EIO : 0;
    });
    EXPECT_EQ(FileManager::writeAtomically(text, scratch / "log"), std::errc::io_error);
    EXPECT_EQ(contentOf(scratch / "log"), text);
    EXPECT_THAT(FileManager::contentsOfDirectory(scratch.path()), Optional(ElementsAre("log")));
}

/// Writes in a process that is killed right before its `nth` call to the file system; returns
/// whether it was.
bool isKilledAtCall(int nth, const std::string& path) {
    return test::endOfChild([&] {
               int calls = 0;
               const SystemCallHook hook(halvingFirstWrite([&](const SystemCallHook::Call&) {
                   return ++calls == nth ? ::raise(SIGKILL) : 0;
               }));
               return FileManager::writeAtomically(text, path).value();
           }) == SIGKILL;
}

std::vector<std::string> logsOfKilledPrograms(const std::string& oldText) {
    std::vector<std::string> logs;
    for (int nth = 1;; ++nth) {
        const ScratchFolder scratch;
        if (!oldText.empty()) {
            FileManager::writeAtomically(oldText, scratch / "log");
        }
        const bool isKilled = isKilledAtCall(nth, scratch / "log");
        logs.push_back(FileManager::attributesOfItem(scratch / "log") ? contentOf(scratch / "log")
                                                                      : "absent");
        if (!isKilled) {
            return logs;
        }
    }
}

// Killed before: open, first half, second half, flush, rename, flush of the folder; not killed.
TEST(AtomicWrite, leaves_the_text_whole_or_absent_wherever_the_program_is_killed) {
    EXPECT_THAT(logsOfKilledPrograms(""),
                ElementsAre("absent", "absent", "absent", "absent", "absent", text, text));
}

TEST(AtomicWrite, leaves_the_old_text_or_the_new_one_wherever_the_program_is_killed) {
    EXPECT_THAT(logsOfKilledPrograms("old"),
                ElementsAre("old", "old", "old", "old", "old", text, text));
}

} // namespace
} // namespace drossbin
