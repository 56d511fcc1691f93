#include "platform/TerminationDelay.h"

#include "platform/BackgroundThread.h"
#include "support/ChildProcess.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <latch>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace drossbin {
namespace {

constexpr int wentOn = 7;

/// How a process ends that does `job` and then leaves of its own accord with `wentOn`.
int endOf(const std::function<void()>& job) {
    return test::endOfChild([&] {
        for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
            ::signal(signal, SIG_DFL); // nohup, and a shell in the background, have them ignored
        }
        job();
        return wentOn;
    });
}

bool goesOn(const std::function<void()>& job) {
    const int status = endOf(job);
    return WIFEXITED(status) && WEXITSTATUS(status) == wentOn;
}

bool endsBy(int signal, const std::function<void()>& job) {
    const int status = endOf(job);
    return WIFSIGNALED(status) && WTERMSIG(status) == signal;
}

class TerminationDelayOf : public testing::TestWithParam<int> {};

TEST_P(TerminationDelayOf, a_signal_lasts_until_it_goes) {
    const auto workWithSignal = [] {
        const TerminationDelay delay;
        ::raise(GetParam());
    };
    EXPECT_TRUE(endsBy(GetParam(), workWithSignal));
    EXPECT_TRUE(goesOn([&] {
        const TerminationDelay delay;
        ::raise(GetParam());
        ::_exit(wentOn);
    }));
}

TEST_P(TerminationDelayOf, a_signal_is_none_before_and_afterwards) {
    const auto raise = [] { ::raise(GetParam()); };
    EXPECT_TRUE(endsBy(GetParam(), raise));
    EXPECT_TRUE(endsBy(GetParam(), [&] {
        { const TerminationDelay delay; }
        raise();
    }));
}

TEST_P(TerminationDelayOf, a_signal_leaves_it_ignored_where_it_was) {
    EXPECT_TRUE(goesOn([] {
        ::signal(GetParam(), SIG_IGN);
        {
            const TerminationDelay delay;
            ::raise(GetParam());
        }
        ::raise(GetParam());
    }));
}

INSTANTIATE_TEST_SUITE_P(EachSignal, TerminationDelayOf, testing::Values(SIGTERM, SIGINT, SIGHUP),
                         [](const auto& parameter) {
                             return parameter.param == SIGTERM  ? "SIGTERM"
                                    : parameter.param == SIGINT ? "SIGINT"
                                                                : "SIGHUP";
                         });

TEST(TerminationDelay, ends_at_a_second_request_to_terminate) {
    for (const int signal : {SIGTERM, SIGINT}) {
        EXPECT_TRUE(endsBy(signal, [signal] {
            const TerminationDelay delay;
            ::raise(signal);
            ::raise(signal);
            ::_exit(wentOn);
        })) << signal;
    }
}

// As when a terminal is closed, or a session ends.
TEST(TerminationDelay, lasts_through_hang_ups_whatever_comes_with_them) {
    EXPECT_TRUE(goesOn([] {
        const TerminationDelay delay;
        for (const int signal : {SIGHUP, SIGTERM, SIGHUP}) {
            ::raise(signal);
        }
        ::_exit(wentOn);
    }));
}

// On another thread a signal may be noted that late.
TEST(TerminationDelay, forgets_a_signal_that_came_as_the_last_one_went) {
    EXPECT_TRUE(goesOn([] {
        struct sigaction noting {};
        {
            const TerminationDelay delay;
            ::sigaction(SIGTERM, nullptr, &noting);
        }
        noting.sa_handler(SIGTERM);
        const TerminationDelay delay;
    }));
}

/// Whether the process's first thread waits for something; taken for granted where nobody tells.
bool isFirstThreadWaiting() {
    const std::string first = std::to_string(::getpid());
    std::ifstream status("/proc/self/task/" + first + "/stat");
    std::string number, name;
    char state = 'S';
    status >> number >> name >> state;
    return state == 'S';
}

// The work ends only once the exit waits for it: it could else be quicker than an exit that does
// not.
TEST(TerminationDelay, holds_up_an_exit_until_the_background_has_done_its_work) {
    EXPECT_TRUE(goesOn([] {
        static std::latch delayed(1);
        static std::latch leaving(1);
        std::atexit([] { ::_exit(EXIT_FAILURE); }); // done last, when the exit has gone on
        BackgroundThread::run([] {
            const TerminationDelay delay;
            delayed.count_down();
            leaving.wait();
            while (!isFirstThreadWaiting()) {
                std::this_thread::yield();
            }
            ::_exit(wentOn);
        });
        delayed.wait();
        std::atexit([] { leaving.count_down(); }); // done before what was registered earlier
        std::exit(EXIT_FAILURE); // NOLINT(concurrency-mt-unsafe): that is what the toolkit does
    }));
}

TEST(TerminationDelay, holds_up_no_exit_when_it_is_gone) {
    EXPECT_EQ(endOf([] {
                  static std::latch isGone(1);
                  BackgroundThread::run([] {
                      { const TerminationDelay delay; }
                      isGone.count_down();
                      ::pause();
                  });
                  isGone.wait();
                  std::exit(EXIT_SUCCESS); // NOLINT(concurrency-mt-unsafe): as above
              }),
              EXIT_SUCCESS);
}

} // namespace
} // namespace drossbin
