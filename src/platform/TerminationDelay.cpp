#include "platform/TerminationDelay.h"

#include "platform/BackgroundThread.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>

namespace drossbin {

namespace {

struct DelayedSignal {
    int number;
    int flags;
};

// A session ends with SIGTERM and SIGHUP together, and a terminal that is closed sends SIGHUP more
// than once: only who sends SIGTERM or presses Ctrl+C again does not want to wait.
constexpr std::array<DelayedSignal, 3> delayedSignals{{
    {SIGTERM, SA_RESTART | static_cast<int>(SA_RESETHAND)},
    {SIGINT, SA_RESTART | static_cast<int>(SA_RESETHAND)},
    {SIGHUP, SA_RESTART},
}};

// All that the handler of a signal can reach, and may touch.
std::atomic<int>& signalThatCame() {
    static_assert(std::atomic<int>::is_always_lock_free);
    static constinit std::atomic<int> number = 0;
    return number;
}

std::atomic<bool>& isDelaying() {
    static constinit std::atomic<bool> isAny = false;
    return isAny;
}

extern "C" void noteSignal(int number) {
    signalThatCame() = number;
}

void finishBeforeExit() {
    if (isDelaying()) {
        BackgroundThread::waitForAll();
    }
}

} // namespace

TerminationDelay::TerminationDelay() {
    [[maybe_unused]] static const int registered = std::atexit(finishBeforeExit);
    isDelaying() = true;
    // One that came as the last delay went has not ended the program then; it shall not now.
    signalThatCame() = 0;
    for (std::size_t index = 0; index < delayedSignals.size(); ++index) {
        const auto [number, flags] = delayedSignals[index];
        ::sigaction(number, nullptr, &m_before[index]);
        if (m_before[index].sa_handler == SIG_DFL) {
            struct sigaction note {};
            note.sa_handler = noteSignal;
            note.sa_flags = flags;
            ::sigaction(number, &note, nullptr);
        }
    }
}

TerminationDelay::~TerminationDelay() {
    for (std::size_t index = 0; index < delayedSignals.size(); ++index) {
        ::sigaction(delayedSignals[index].number, &m_before[index], nullptr);
    }
    isDelaying() = false;
    if (const int number = signalThatCame().exchange(0)) {
        static_cast<void>(::raise(number)); // fails for no signal that came
    }
}

} // namespace drossbin
