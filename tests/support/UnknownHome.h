#pragma once

#include "support/ScratchFolder.h"
#include "support/SystemCalls.h"

#include <cerrno>
#include <cstdlib>
#include <string>
#include <vector>

namespace drossbin::test {

/// While it lives, nobody knows where the home folder is: `HOME` is not set, and the user database
/// has no entry. Every folder or file that this thread opens or makes meanwhile is refused to it.
class UnknownHome {
  public:
    UnknownHome() { ::unsetenv("HOME"); }

    /// What was refused.
    [[nodiscard]] const std::vector<std::string>& refused() const { return m_refused; }

  private:
    ScratchHome m_restoresHome;
    std::vector<std::string> m_refused;
    SystemCallHook m_hook{[this](const SystemCallHook::Call& call) {
        if (call.function == "openat" || call.function == "mkdir") {
            m_refused.emplace_back(call.name);
            return EACCES;
        }
        return call.function == "getpwuid_r" ? ENOENT : 0;
    }};
};

} // namespace drossbin::test
