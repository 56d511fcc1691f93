#include "app/ContentView.h"

#include "app/Formatting.h"
#include "platform/BackgroundThread.h"

#include <utility>

namespace drossbin {

ContentView::ContentView(QObject* parent)
    : ContentView(Services::real(), parent) {}

ContentView::ContentView(Services services, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
    , m_items(m_scanResult)
    , m_selectedItems(m_scanResult)
    , m_subscription(m_scanResult.objectWillChange.subscribe(
          [this](ScanResult::Field field) { noteChange(field); })) {}

ContentView::Screen ContentView::screen() const {
    if (m_scanResult.isScanning) {
        return Scanning;
    }
    if (!m_scanResult.hasScanned) {
        return Landing;
    }
    if (m_scanResult.items.get().empty()) {
        return Empty;
    }
    return m_selectedCategory ? Category : Overview;
}

QString ContentView::searchText() const {
    return toQString(m_scanResult.searchText.get());
}

void ContentView::setSearchText(const QString& text) {
    m_scanResult.searchText = text.toStdString();
}

int ContentView::selectedCategory() const {
    return m_selectedCategory ? static_cast<int>(*m_selectedCategory) : -1;
}

void ContentView::setSelectedCategory(int place) {
    const bool isCategory = place >= 0 && place < static_cast<int>(allDiskCategories.size());
    m_selectedCategory =
        isCategory ? std::optional(static_cast<DiskCategory>(place)) : std::nullopt;
    m_isSurveyStale = true;
    queueRefresh();
}

void ContentView::goBack() {
    if (screen() == Category) {
        setSelectedCategory(-1);
    }
}

// The controls that start a run are gone only when the screens have been redrawn, a sheet takes its
// time to come and to leave, and assistive programs press what lies below one: a press that comes
// too early or too late begins nothing.

bool ContentView::isBusy() const {
    return m_scanResult.isScanning || m_scanResult.showConfirmation || m_scanResult.isDeleting ||
           m_scanResult.showDeletionComplete;
}

void ContentView::smartSelect() {
    m_scanResult.selectAllSafe();
}

void ContentView::selectAllInCategory() {
    if (m_selectedCategory) {
        m_scanResult.selectAllIn(*m_selectedCategory);
    }
}

void ContentView::deselectAllInCategory() {
    if (m_selectedCategory) {
        m_scanResult.deselectAllIn(*m_selectedCategory);
    }
}

void ContentView::clearSelection() {
    m_scanResult.deselectAll();
}

void ContentView::prepare() {
    m_desktop.follow();
    // For the first text of a locale ICU reads its data: on a cold disk the first screens of a scan
    // would wait for that.
    BackgroundThread::run([] { itemsAndSizeText(1, 1); });
}

void ContentView::noteChange(ScanResult::Field field) {
    m_isSurveyStale |= field == ScanResult::Field::items || field == ScanResult::Field::searchText;
    queueRefresh();
}

void ContentView::queueRefresh() {
    if (!std::exchange(m_isRefreshQueued, true)) {
        QMetaObject::invokeMethod(this, &ContentView::refresh, Qt::QueuedConnection);
    }
}

void ContentView::refresh() {
    m_isRefreshQueued = false;
    if (std::exchange(m_isSurveyStale, false)) {
        m_survey = ItemSurvey::of(m_scanResult, m_selectedCategory);
        m_items.refresh(std::move(m_survey.rows));
        m_categories.refresh(m_survey, m_selectedCategory);
    }
    if (m_scanResult.showConfirmation) {
        m_selectedItems.restart(itemsToDelete());
    }
    m_deletionLog.refresh(m_scanResult.deletionLog);
    m_shown = ShownValues::of(m_scanResult, m_survey, m_selectedCategory, m_diskSpace);
    emit shownChanged();
}

} // namespace drossbin
