#include "faults/Fault.h"
#include "support/SystemCalls.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdint>
#include <iostream>
#include <map>
#include <string>
#include <system_error>
#include <vector>

namespace drossbin {
namespace {

using test::Fault;

std::vector<int> errorsOfFiles() {
    if (!test::isWhole()) {
        return {EIO};
    }
    return {EACCES, EPERM, EIO,   EMFILE, ENFILE, ENOMEM, ENOSPC,
            EDQUOT, EROFS, EINTR, ELOOP,  ESTALE, EBUSY,  ENOENT};
}

class WholeRun : public testing::TestWithParam<std::string> {
  protected:
    WholeRun() {
        Fault none({}, isLarge());
        none.expectNoLoss();
        m_sizes = sizesIn(none);
    }

    static bool isLarge() { return GetParam() == "pthread_create"; }
    static bool isMemory() { return GetParam() == "malloc"; }

    static std::vector<int> errors() {
        return isLarge() ? std::vector{EAGAIN} : isMemory() ? std::vector{ENOMEM} : errorsOfFiles();
    }

    /// Has the first call fail, then the second, and so on until there is none; returns how many.
    int failEach(int error) {
        const int step = test::isWhole() || isLarge() ? 1 : isMemory() ? 40 : 5;
        int injected = 0;
        for (int nth = 1; !HasFailure(); nth += step) {
            SCOPED_TRACE("call " + std::to_string(nth) + ", " +
                         std::generic_category().message(error));
            Fault fault({.function = GetParam(), .nth = nth, .error = error}, isLarge());
            if (!fault.hasHappened()) {
                break;
            }
            fault.expectNoLoss();
            expectNoLargerSizes(fault);
            ++injected;
        }
        return injected;
    }

    std::map<std::string, std::int64_t> m_sizes; ///< of the items when nothing fails

  private:
    static std::map<std::string, std::int64_t> sizesIn(const Fault& fault) {
        std::map<std::string, std::int64_t> sizes;
        for (const auto& [path, size] : fault.run().sizes) {
            sizes[path.substr(fault.home().size())] = size;
        }
        return sizes;
    }

    void expectNoLargerSizes(const Fault& fault) {
        for (const auto& [path, size] : sizesIn(fault)) {
            ASSERT_TRUE(m_sizes.contains(path)) << path;
            EXPECT_LE(size, m_sizes.at(path)) << path;
        }
    }
};

TEST_P(WholeRun, loses_nothing_whichever_call_fails) {
    EXPECT_EQ(m_sizes.size(), isLarge() ? 7U : 6U);
    int injected = 0;
    for (const int error : errors()) {
        injected += failEach(error);
    }
    EXPECT_GT(injected, 0);
    std::cout << injected << " calls of " << GetParam() << " failed\n";
}

std::vector<std::string> calls() {
    std::vector<std::string> calls{"openat",
                                   "stat",
                                   "lstat",
                                   "fstat",
                                   "fstatat",
                                   "mkdir",
                                   "unlinkat",
                                   "write",
                                   "fsync",
                                   "renameat",
                                   std::string(test::readsFolder)};
#ifdef DROSSBIN_LINUX
    calls.emplace_back("statx");
    // Elsewhere is a C++ library that opens a file for its random numbers, and ends the program
    // where it cannot. On macOS it opens none.
    calls.emplace_back("open");
#endif
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
    calls.emplace_back("pthread_create");
    calls.emplace_back("malloc");
#endif
    return calls;
}

INSTANTIATE_TEST_SUITE_P(OfEachCall, WholeRun, testing::ValuesIn(calls()),
                         [](const auto& parameter) { return parameter.param; });

} // namespace
} // namespace drossbin
