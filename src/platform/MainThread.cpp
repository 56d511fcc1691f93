#include "platform/MainThread.h"

#include "platform/basics/Stop.h"

#include <string>
#include <thread>
#include <utility>

namespace drossbin {

namespace {

struct Connection {
    std::thread::id thread = std::this_thread::get_id();
    MainThread::Poster poster;
};

// A process has one main thread, so this is the one place that remembers which.
Connection& connection() {
    static Connection instance;
    return instance;
}

} // namespace

void MainThread::connect(Poster poster) {
    connection() = {std::this_thread::get_id(), std::move(poster)};
}

void MainThread::post(Job job) {
    if (!connection().poster) {
        stopProgram("a job was posted before the main thread was connected");
    }
    connection().poster(std::move(job));
}

bool MainThread::isCurrent() {
    return connection().thread == std::this_thread::get_id();
}

void MainThread::require(std::string_view what) {
    if (!isCurrent()) {
        stopProgram(std::string(what) + " was touched off the main thread");
    }
}

} // namespace drossbin
