#include "Heart.h"
#include "Window.h"
#include "app/EventLoop.h"

#include <QEventLoop>
#include <QGuiApplication>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <unistd.h>

// How long the window answers nothing while it scans the home folder:
//   scan_gaps SCANS [cold]
// A line for each scan: the milliseconds of the longest gap from the click until the results are
// shown and have come to rest. Where it is to be cold, root empties the system's caches before.

namespace {

using namespace drossbin;
using namespace std::chrono_literals;

constexpr auto restTime = 2s;    ///< before a click: what a person takes to get there
constexpr auto settleTime = 1s;  ///< for the longest animation
constexpr auto lookTime = 100ms; ///< between two looks whether the scan has ended

void runFor(std::chrono::milliseconds time) {
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

void dropCaches() {
    ::sync();
    std::FILE* const file = std::fopen("/proc/sys/vm/drop_caches", "w");
    if (file == nullptr || std::fputs("3", file) < 0 || std::fclose(file) != 0) {
        qFatal("the system's caches cannot be emptied");
    }
}

double gapOfScan(const Window& window, Heart& heart) {
    heart.restart();
    window.clickScan();
    do {
        runFor(lookTime);
    } while (window.content().screen() <= ContentView::Scanning);
    runFor(settleTime);
    return heart.longestGap();
}

} // namespace

int main(int argc, char** argv) {
    const bool isCold = argc == 3 && argv[2] == std::string_view("cold");
    if (argc != 2 && !isCold) {
        std::fputs("usage: scan_gaps SCANS [cold]\n", stderr);
        return 2;
    }
    const QGuiApplication application(argc, argv);
    connectMainThreadToEventLoop();
    const Window window;
    Heart heart;
    for (int scans = std::atoi(argv[1]); scans > 0; --scans) {
        runFor(restTime);
        if (isCold) {
            dropCaches();
            runFor(restTime);
        }
        std::printf("%.2f\n", gapOfScan(window, heart));
    }
    std::fflush(stdout);
    std::_Exit(EXIT_SUCCESS);
}
