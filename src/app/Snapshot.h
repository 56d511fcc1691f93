#pragma once

#include "app/ItemSurvey.h"

#include <QString>

#include <cstdint>
#include <optional>

namespace drossbin {

/// What the screens show of the session at one moment, in the words and shares that they show.
struct Snapshot {
    bool isScanning = false;
    double scanProgress = 0;
    QString currentTask;
    QString bytesFoundText;

    bool isDeleting = false;
    double deleteProgress = 0;
    QString deletePercentText;
    bool showDeletionComplete = false;
    QString freedSpaceText;

    QString totalSummary;
    bool hasSelection = false;
    QString selectedSizeText;
    QString selectionSummary;
    QString deleteLabel;
    QString confirmationTitle;
    bool hasBrowserData = false;

    QString categoryName;
    QString categoryIcon;
    QString categorySubtitle;
    QString categorySizeText;
    QString categorySelectionSummary;

    QString meterCaption;
    QString meterText;
    bool isReclaiming = false;
    double foundShare = 0;
    double selectedShare = 0;

    /// `shown` is the category whose list is open; without one its texts are empty. `survey` must
    /// be the result's own. `diskSpace` is what the meter's shares are shares of.
    static Snapshot of(const ScanResult& result, const ItemSurvey& survey,
                       std::optional<DiskCategory> shown, std::int64_t diskSpace);
};

} // namespace drossbin
