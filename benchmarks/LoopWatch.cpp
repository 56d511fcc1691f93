#include "LoopWatch.h"

#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <dlfcn.h>
#include <poll.h>

namespace {

LoopWatch* current = nullptr;

} // namespace

LoopWatch::LoopWatch() {
    current = this;
}

double LoopWatch::longestStretch(int milliseconds) {
    m_longest = {};
    m_stretchStart = Clock::now();
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
    return std::chrono::duration<double, std::milli>(m_longest).count();
}

void LoopWatch::beginRest() {
    if (current != nullptr && current->m_thread == std::this_thread::get_id()) {
        current->m_longest = std::max(current->m_longest, Clock::now() - current->m_stretchStart);
    }
}

void LoopWatch::endRest() {
    if (current != nullptr && current->m_thread == std::this_thread::get_id()) {
        current->m_stretchStart = Clock::now();
    }
}

// Qt tells when its event loop goes to rest, but not when that rest is over. This one stands in
// front of the system's function that it rests in.
extern "C" int ppoll(pollfd* files, nfds_t count, const timespec* timeout, const sigset_t* mask) {
    static auto* const next = reinterpret_cast<decltype(&ppoll)>(::dlsym(RTLD_NEXT, "ppoll"));
    LoopWatch::beginRest();
    const int result = next(files, count, timeout, mask);
    LoopWatch::endRest();
    return result;
}
