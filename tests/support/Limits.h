#pragma once

#include "platform/folders/FileDescriptor.h"

#include <functional>
#include <sys/resource.h>
#include <sys/types.h>
#include <vector>

namespace drossbin::test {

/// While it lives, the process may have `most` files open, and some 30 are open already: what
/// `ulimit -n` leaves a program with a window.
class FewDescriptors {
  public:
    explicit FewDescriptors(rlim_t most = 64);
    ~FewDescriptors();
    FewDescriptors(const FewDescriptors&) = delete;
    FewDescriptors& operator=(const FewDescriptors&) = delete;
    FewDescriptors(FewDescriptors&&) = delete;
    FewDescriptors& operator=(FewDescriptors&&) = delete;

  private:
    rlimit m_before{};
    std::vector<FileDescriptor> m_inUse;
};

/// Runs `job` on a thread with a stack of 256 KiB and waits for its end.
void runOnSmallStack(const std::function<void()>& job);

/// Whom the job below runs as where the superuser runs the tests: somebody without an account.
inline constexpr uid_t ordinaryUser = 54321;

/// Runs `job` in a child process as a user without privileges, whoever runs the tests; returns
/// what `job` returned. What it touches must be within that user's reach.
bool holdsForOrdinaryUser(const std::function<bool()>& job);

} // namespace drossbin::test
