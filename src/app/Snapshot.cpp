#include "app/Snapshot.h"

#include "app/Texts.h"

#include <algorithm>

namespace drossbin {

namespace {

/// The integer part of the percentage, so that 100% means done.
QString percentText(double fraction) {
    constexpr double whole = 100;
    return countText(static_cast<std::size_t>(std::clamp(fraction * whole, 0.0, whole))) + u'%';
}

double shareOf(std::int64_t bytes, std::int64_t diskSpace) {
    return diskSpace > 0 ? static_cast<double>(bytes) / static_cast<double>(diskSpace) : 0;
}

void describeProgress(const ScanResult& result, Snapshot& snapshot) {
    snapshot.isScanning = result.isScanning;
    snapshot.scanProgress = result.scanProgress;
    snapshot.currentTask = toQString(result.currentTask.get());
    snapshot.bytesFoundText = sizeText(result.bytesFoundSoFar);
    snapshot.isDeleting = result.isDeleting;
    snapshot.deleteProgress = result.deleteProgress;
    snapshot.deletePercentText = percentText(result.deleteProgress);
    snapshot.showConfirmation = result.showConfirmation;
    snapshot.showDeletionComplete = result.showDeletionComplete;
    snapshot.freedSpaceText = sizeText(result.freedSpace);
}

void describeSelection(const ItemSurvey& survey, Snapshot& snapshot) {
    snapshot.totalSummary = QStringLiteral("%1 items found · %2 total")
                                .arg(countText(survey.count), sizeText(survey.totalSize));
    snapshot.hasSelection = survey.selectedCount > 0;
    snapshot.selectedSizeText = sizeText(survey.selectedSize);
    snapshot.selectionSummary = itemsAndSizeText(survey.selectedCount, survey.selectedSize);
    snapshot.deleteLabel = QStringLiteral("Delete ") + snapshot.selectedSizeText;
    snapshot.confirmationTitle =
        QStringLiteral("Delete %1 items?").arg(countText(survey.selectedCount));
    snapshot.hasBrowserData = survey.hasBrowserData;
}

void describeCategory(DiskCategory category, const CategorySurvey& survey, Snapshot& snapshot) {
    snapshot.categoryName = toQString(rawValue(category));
    snapshot.categoryIcon = toQString(icon(category));
    snapshot.categorySubtitle = toQString(subtitle(category));
    snapshot.categorySizeText = sizeText(survey.size);
    snapshot.categorySelectionSummary =
        QStringLiteral("%1 selected · %2")
            .arg(countText(survey.selectedCount), sizeText(survey.selectedSize));
}

void describeMeter(const ItemSurvey& survey, std::int64_t diskSpace, Snapshot& snapshot) {
    snapshot.isReclaiming = survey.selectedSize >= 1;
    snapshot.meterCaption =
        snapshot.isReclaiming ? QStringLiteral("Space to Reclaim") : QStringLiteral("Cache Found");
    snapshot.meterText = sizeText(snapshot.isReclaiming ? survey.selectedSize : survey.totalSize);
    snapshot.foundShare = shareOf(survey.totalSize, diskSpace);
    snapshot.selectedShare = shareOf(survey.selectedSize, diskSpace);
}

} // namespace

Snapshot Snapshot::of(const ScanResult& result, const ItemSurvey& survey,
                      std::optional<DiskCategory> shown, std::int64_t diskSpace) {
    Snapshot snapshot;
    describeProgress(result, snapshot);
    describeSelection(survey, snapshot);
    if (shown) {
        describeCategory(*shown, survey.of(*shown), snapshot);
    }
    describeMeter(survey, diskSpace, snapshot);
    return snapshot;
}

} // namespace drossbin
