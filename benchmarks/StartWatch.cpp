#include "ScreenWatch.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

// Starts a program on an empty black screen and tells when it painted:
//   start_watch SECONDS COMMAND...
// After as many seconds from the first change it prints one line: the program's process, and the
// milliseconds from before exec to the first change and to the complete picture. The program runs
// on until the input ends.

namespace {

using Clock = ScreenWatch::Clock;
using namespace std::chrono_literals;

constexpr auto patience = 60s;
constexpr auto quietTime = 2s; ///< longer than any animation that ends

pid_t start(char** command) {
    const pid_t child = ::fork();
    if (child == 0) {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        ::setpgid(0, 0);
        ::execvp(command[0], command);
        std::perror(command[0]);
        ::_exit(1);
    }
    return child;
}

double milliseconds(Clock::duration duration) {
    return std::chrono::duration<double, std::milli>(duration).count();
}

int watch(std::chrono::seconds length, char** command) {
    ScreenWatch screen;
    const auto begin = Clock::now();
    const pid_t program = start(command);
    if (!screen.waitForChange(begin + patience)) {
        std::fprintf(stderr, "%s shows nothing\n", command[0]);
        ::kill(-program, SIGKILL);
        return 1;
    }
    const auto end = screen.firstChange() + length;
    while (screen.waitForChange(end)) {
    }
    std::printf("%d %.1f %.1f\n", program, milliseconds(screen.firstChange() - begin),
                milliseconds(screen.lastChangeBefore(end - quietTime) - begin));
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    ::kill(-program, SIGKILL);
    ::waitpid(program, nullptr, 0);
    return 0;
}

} // namespace

int main(int count, char** arguments) {
    const int seconds = count > 2 ? std::atoi(arguments[1]) : 0;
    if (seconds < 1) {
        std::fputs("usage: start_watch SECONDS COMMAND...\n", stderr);
        return 2;
    }
    try {
        return watch(std::chrono::seconds(seconds), arguments + 2);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "start_watch: %s\n", error.what());
        return 1;
    }
}
