#include "support/PrivateMount.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>
#ifdef __linux__
#include <sched.h>
#include <sys/mount.h>
#endif

namespace drossbin::test {

namespace {

constexpr const char* insideMarker = "DROSSBIN_TEST_IN_PRIVATE_MOUNT";
constexpr int unavailable = 99;

// Between fork and exec only plain calls to the system are safe: other threads may hold locks.
[[noreturn]] void runMounted([[maybe_unused]] const char* place,
                             [[maybe_unused]] const char* folder, char* const* arguments) {
#ifdef __linux__
    const bool isMounted =
        (::unshare(CLONE_NEWNS) == 0 || ::unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0) &&
        ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
        ::mount(folder, place, nullptr, MS_BIND, nullptr) == 0;
    if (isMounted) {
        ::execv("/proc/self/exe", arguments);
    }
#endif
    ::_exit(unavailable);
}

} // namespace

void checkWithFolderOver(const std::string& place, const std::string& folder,
                         const std::function<void()>& check) {
    if (std::getenv(insideMarker) != nullptr) {
        check();
        return;
    }
    const auto* const running = testing::UnitTest::GetInstance()->current_test_info();
    std::string program = "test";
    std::string filter =
        std::string("--gtest_filter=") + running->test_suite_name() + "." + running->name();
    const std::array<char*, 3> arguments{program.data(), filter.data(), nullptr};
    ::setenv(insideMarker, "1", 1);
    const pid_t child = ::fork();
    if (child == 0) {
        runMounted(place.c_str(), folder.c_str(), arguments.data());
    }
    ::unsetenv(insideMarker);
    int status = 0;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    if (WIFEXITED(status) && WEXITSTATUS(status) == unavailable) {
        GTEST_SKIP() << "no private mount namespace can be made here";
    }
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
        << "failed with " << folder << " over " << place;
}

} // namespace drossbin::test
