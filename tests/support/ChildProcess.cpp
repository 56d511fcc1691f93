#include "support/ChildProcess.h"

#include <cerrno>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace drossbin::test {

namespace {

void check(bool holds, const char* what) {
    if (!holds) {
        throw std::system_error(errno, std::generic_category(), what);
    }
}

// Nothing that is thrown may reach the tests, of which the child is a copy.
[[noreturn]] void leaveWithResultOf(const std::function<int()>& job) noexcept {
    ::_exit(job());
}

} // namespace

int endOfChild(const std::function<int()>& job) {
    const pid_t child = ::fork();
    check(child >= 0, "fork");
    if (child == 0) {
        leaveWithResultOf(job);
    }
    int status = 0;
    check(::waitpid(child, &status, 0) == child, "waitpid");
    return status;
}

} // namespace drossbin::test
