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

void describeProgress(const ScanResult& result, ShownValues& values) {
    values.isScanning = result.isScanning;
    values.scanProgress = result.scanProgress;
    values.currentTask = toQString(result.currentTask.get());
    values.bytesFoundText = sizeText(result.bytesFoundSoFar);
    values.isDeleting = result.isDeleting;
    values.deleteProgress = result.deleteProgress;
    values.deletePercentText = percentText(result.deleteProgress);
    values.showConfirmation = result.showConfirmation;
    values.showDeletionComplete = result.showDeletionComplete;
    values.freedSpaceText = sizeText(result.freedSpace);
}

void describeSelection(const ItemSurvey& survey, ShownValues& values) {
    values.totalSummary = QStringLiteral("%1 items found · %2 total")
                              .arg(countText(survey.count), sizeText(survey.totalSize));
    values.hasSelection = survey.selectedCount > 0;
    values.selectedSizeText = sizeText(survey.selectedSize);
    values.selectionSummary = itemsAndSizeText(survey.selectedCount, survey.selectedSize);
    values.deleteLabel = QStringLiteral("Delete ") + values.selectedSizeText;
    values.confirmationTitle =
        QStringLiteral("Delete %1 items?").arg(countText(survey.selectedCount));
    values.hasBrowserData = survey.hasBrowserData;
}

void describeCategory(DiskCategory category, const CategorySurvey& survey, ShownValues& values) {
    values.categoryName = toQString(rawValue(category));
    values.categoryIcon = toQString(icon(category));
    values.categorySubtitle = toQString(subtitle(category));
    values.categorySizeText = sizeText(survey.size);
    values.categorySelectionSummary =
        QStringLiteral("%1 selected · %2")
            .arg(countText(survey.selectedCount), sizeText(survey.selectedSize));
}

void describeMeter(const ItemSurvey& survey, std::int64_t diskSpace, ShownValues& values) {
    values.isReclaiming = survey.selectedSize >= 1;
    values.meterCaption =
        values.isReclaiming ? QStringLiteral("Space to Reclaim") : QStringLiteral("Cache Found");
    values.meterText = sizeText(values.isReclaiming ? survey.selectedSize : survey.totalSize);
    values.foundShare = shareOf(survey.totalSize, diskSpace);
    values.selectedShare = shareOf(survey.selectedSize, diskSpace);
}

} // namespace

ShownValues ShownValues::of(const ScanResult& result, const ItemSurvey& survey,
                            std::optional<DiskCategory> shown, std::int64_t diskSpace) {
    ShownValues values;
    describeProgress(result, values);
    describeSelection(survey, values);
    if (shown) {
        describeCategory(*shown, survey.of(*shown), values);
    }
    describeMeter(survey, diskSpace, values);
    return values;
}

} // namespace drossbin
