#include "app/BackgroundTask.h"
#include "app/ContentView.h"

#include <algorithm>

namespace drossbin {

void ContentView::startScan(bool demo) {
    if (!isBusy()) {
        measureDisk();
        performScan(demo);
    }
}

QCoro::Task<> ContentView::performScan(bool demo) {
    m_scanResult.isScanning = true;
    m_scanResult.items = {};
    m_scanResult.scanProgress = 0.0;
    m_scanResult.bytesFoundSoFar = 0;
    QCoro::Task<std::vector<DiskItem>> scan = demo ? scanDemo() : scanDisk();
    m_scanResult.items = co_await scan;
    m_scanResult.isScanning = false;
    m_scanResult.hasScanned = true;
    chooseCategory();
}

QCoro::Task<std::vector<DiskItem>> ContentView::scanDisk() {
    const auto show = [this](double fraction, const std::string& task, std::int64_t bytes) {
        m_scanResult.scanProgress = fraction;
        m_scanResult.currentTask = task;
        m_scanResult.bytesFoundSoFar = bytes;
    };
    const auto report = [show](double fraction, const std::string& task, std::int64_t bytes) {
        MainThread::post([=] { show(fraction, task, bytes); });
    };
    BackgroundTask walk([scan = m_services.scan, report] { return scan(report); });
    co_return co_await walk;
}

void ContentView::chooseCategory() {
    const auto* const found =
        std::ranges::find_if(allDiskCategories, [this](DiskCategory category) {
            return m_scanResult.hasItemsFor(category);
        });
    if (found != allDiskCategories.end()) {
        setSelectedCategory(static_cast<int>(*found));
    }
}

QCoro::Task<> ContentView::measureDisk() {
    BackgroundTask question(m_services.diskSpace);
    const std::optional<std::int64_t> space = co_await question;
    m_diskSpace = space.value_or(assumedDiskSpace);
    queueRefresh();
}

} // namespace drossbin
