#include "platform/FileManager.h"
#include "support/ScratchFolder.h"
#include "support/SystemCalls.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace drossbin {
namespace {

using test::SystemCallHook;
using testing::ElementsAre;

const std::string text = "the whole text";

using Logs = std::set<std::string>;

/// What a disk may hold under a log's name when it loses power: for sure what was flushed, perhaps
/// what was not, and the new name perhaps before what it stands for.
class Disk {
  public:
    /// Follows a call that has just been made.
    void follow(const SystemCallHook::Call& call) {
        if (call.function == "write") {
            m_written += *call.size;
        } else if (call.function == "renameat") {
            m_isRenamed = true;
        } else if (call.function == "fsync") {
            flush(call.file);
        }
    }

    [[nodiscard]] Logs possibleLogs() const {
        Logs logs;
        if (!m_isRenameFlushed) {
            logs.insert("absent");
        }
        for (std::size_t size = m_flushed; m_isRenamed && size <= m_written; ++size) {
            logs.insert(text.substr(0, size));
        }
        return logs;
    }

  private:
    void flush(int file) {
        struct stat status {};
        ::fstat(file, &status);
        if (S_ISDIR(status.st_mode)) {
            m_isRenameFlushed = m_isRenamed;
        } else {
            m_flushed = m_written;
        }
    }

    std::size_t m_written = 0;
    std::size_t m_flushed = 0;
    bool m_isRenamed = false;
    bool m_isRenameFlushed = false;
};

/// The logs that may be found after a loss of power right after each call of an atomic write.
std::vector<Logs> logsAfterPowerLoss() {
    const test::ScratchFolder scratch;
    Disk disk;
    std::vector<Logs> logs;
    const SystemCallHook hook([&](const SystemCallHook::Call& call) {
        if (call.size != nullptr) {
            *call.size = std::min<std::size_t>(*call.size, 8); // the text comes in two parts
        }
        disk.follow(call);
        logs.push_back(disk.possibleLogs());
        return 0;
    });
    FileManager::writeAtomically(text, scratch / "log");
    return logs;
}

// After: open, first part, second part, flush, rename, flush of the folder.
TEST(AtomicWrite, leaves_the_text_whole_or_absent_wherever_the_power_goes) {
    const Logs absent{"absent"};
    EXPECT_THAT(logsAfterPowerLoss(),
                ElementsAre(absent, absent, absent, absent, Logs{"absent", text}, Logs{text}));
}

} // namespace
} // namespace drossbin
