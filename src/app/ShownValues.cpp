#include "app/ShownValues.h"

#include "app/Formatting.h"

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

void describeProgress(const ScanResult& result, ShownValues& state) {
    state.isScanning = result.isScanning;
    state.scanProgress = result.scanProgress;
    state.currentTask = toQString(result.currentTask.get());
    state.bytesFoundText = sizeText(result.bytesFoundSoFar);
    state.isDeleting = result.isDeleting;
    state.deleteProgress = result.deleteProgress;
    state.deletePercentText = percentText(result.deleteProgress);
    state.showConfirmation = result.showConfirmation;
    state.showDeletionComplete = result.showDeletionComplete;
    state.freedSpaceText = sizeText(result.freedSpace);
}

void describeSelection(const ItemSurvey& survey, ShownValues& state) {
    state.totalSummary = QStringLiteral("%1 items found · %2 total")
                             .arg(countText(survey.count), sizeText(survey.totalSize));
    state.hasSelection = survey.selectedCount > 0;
    state.selectedSizeText = sizeText(survey.selectedSize);
    state.selectionSummary = itemsAndSizeText(survey.selectedCount, survey.selectedSize);
    state.deleteLabel = QStringLiteral("Delete ") + state.selectedSizeText;
    state.confirmationTitle =
        QStringLiteral("Delete %1 items?").arg(countText(survey.selectedCount));
    state.hasBrowserData = survey.hasBrowserData;
}

void describeCategory(DiskCategory category, const CategorySurvey& survey, ShownValues& state) {
    state.categoryName = toQString(rawValue(category));
    state.categoryIcon = toQString(icon(category));
    state.categorySubtitle = toQString(subtitle(category));
    state.categorySizeText = sizeText(survey.size);
    state.categorySelectionSummary =
        QStringLiteral("%1 selected · %2")
            .arg(countText(survey.selectedCount), sizeText(survey.selectedSize));
}

void describeMeter(const ItemSurvey& survey, std::int64_t diskSpace, ShownValues& state) {
    state.isReclaiming = survey.selectedSize >= 1;
    state.meterCaption =
        state.isReclaiming ? QStringLiteral("Space to Reclaim") : QStringLiteral("Cache Found");
    state.meterText = sizeText(state.isReclaiming ? survey.selectedSize : survey.totalSize);
    state.foundShare = shareOf(survey.totalSize, diskSpace);
    state.selectedShare = shareOf(survey.selectedSize, diskSpace);
}

} // namespace

ShownValues ShownValues::of(const ScanResult& result, const ItemSurvey& survey,
                            std::optional<DiskCategory> shown, std::int64_t diskSpace) {
    ShownValues state;
    describeProgress(result, state);
    describeSelection(survey, state);
    if (shown) {
        describeCategory(*shown, survey.of(*shown), state);
    }
    describeMeter(survey, diskSpace, state);
    return state;
}

} // namespace drossbin
