#pragma once

#include "support/ScratchFolder.h"

#include <map>
#include <string>

namespace drossbin::test {

/// A home with something in every category, with links to what lies outside of the items, and with
/// things that no scan may find or no deletion may touch.
class SampleHome {
  public:
    /// With a folder of more files than one thread measures alone, if it `isLarge`.
    explicit SampleHome(bool isLarge);

    [[nodiscard]] std::string path() const { return m_scratch / "home"; }
    [[nodiscard]] std::string logPath() const { return logFolder() + "/" + logName; }
    [[nodiscard]] std::string logFolder() const { return path() + "/Library/Logs/Drossbin"; }

    /// Beside the home: what stands in for the folder of the system's logs, and errors go.
    [[nodiscard]] std::string systemLogs() const { return m_scratch / "system logs"; }
    [[nodiscard]] std::string errors() const { return m_scratch / "errors"; }

    /// What tells each entry from any other, by its path: in the home and beside it.
    [[nodiscard]] std::map<std::string, std::string> entries() const;

  private:
    static constexpr const char* logName = "deletion-2026-03-01T14:05:09Z.log";

    ScratchFolder m_scratch;
};

} // namespace drossbin::test
