#include "app/BackgroundTask.h"
#include "app/ContentView.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace drossbin {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::nanoseconds demoStepTime = 300ms;
constexpr double demoBytes = 200'000'000'000;
constexpr std::array demoTasks{"Scanning program caches...", "Scanning package caches...",
                               "Scanning app data...", "Scanning logs...", "Scan complete"};

} // namespace

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

QCoro::Task<std::vector<DiskItem>> ContentView::scanDemo() {
    for (std::size_t step = 1; step <= demoTasks.size(); ++step) {
        co_await m_services.sleep(demoStepTime);
        const double fraction = static_cast<double>(step) / demoTasks.size();
        m_scanResult.scanProgress = fraction;
        m_scanResult.currentTask = demoTasks[step - 1];
        m_scanResult.bytesFoundSoFar = static_cast<std::int64_t>(fraction * demoBytes);
    }
    co_return m_services.demoItems();
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

QCoro::Task<> ContentView::performDeletion() {
    m_scanResult.showConfirmation = false;
    m_scanResult.isDeleting = true;
    m_scanResult.deleteProgress = 0.0;
    // The cleaner posts its reports to the main thread itself.
    const auto report = [this](double fraction, const std::string&) {
        m_scanResult.deleteProgress = fraction;
    };
    BackgroundTask removal([remove = m_services.deleteItems, items = itemsToDelete(), report] {
        return remove(items, report);
    });
    DiskCleaner::Outcome outcome = co_await removal;
    m_scanResult.isDeleting = false;
    m_scanResult.freedSpace = outcome.bytesFreed;
    m_scanResult.deletionLog = std::move(outcome.log);
    m_scanResult.showDeletionComplete = true;
    if (m_closesAfterDeletion) {
        emit closeNow();
    }
}

std::vector<DiskItem> ContentView::itemsToDelete() const {
    std::vector<DiskItem> selected;
    selected.reserve(m_scanResult.selectedCount());
    std::ranges::copy_if(m_scanResult.items.get(), std::back_inserter(selected),
                         &DiskItem::isSelected);
    return selected;
}

QCoro::Task<> ContentView::measureDisk() {
    BackgroundTask question(m_services.diskSpace);
    const std::optional<std::int64_t> space = co_await question;
    m_diskSpace = space.value_or(assumedDiskSpace);
    queueRefresh();
}

} // namespace drossbin
