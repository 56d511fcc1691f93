#include "app/BackgroundTask.h"
#include "app/ContentView.h"

#include <algorithm>
#include <iterator>

namespace drossbin {

void ContentView::requestDeletion() {
    if (!isBusy()) {
        m_scanResult.showConfirmation = true;
    }
}

void ContentView::cancelDeletion() {
    m_scanResult.showConfirmation = false;
}

void ContentView::confirmDeletion() {
    if (m_scanResult.showConfirmation && !m_scanResult.isScanning && !m_scanResult.isDeleting) {
        performDeletion();
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

void ContentView::dismissCompletion() {
    if (m_scanResult.showDeletionComplete) {
        m_scanResult.showDeletionComplete = false;
        startScan(false);
    }
}

bool ContentView::requestClose() {
    m_closesAfterDeletion = m_scanResult.isDeleting;
    return !m_closesAfterDeletion;
}

} // namespace drossbin
