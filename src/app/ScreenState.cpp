#include "app/ScreenState.h"

#include <utility>

namespace drossbin {

void ScreenState::show(Snapshot next) {
    const Snapshot last = std::exchange(m_shown, std::move(next));
    const auto announce = [this, &last](auto field, auto changed) {
        if (last.*field != m_shown.*field) {
            emit(this->*changed)();
        }
    };
    announce(&Snapshot::isScanning, &ScreenState::isScanningChanged);
    announce(&Snapshot::scanProgress, &ScreenState::scanProgressChanged);
    announce(&Snapshot::currentTask, &ScreenState::currentTaskChanged);
    announce(&Snapshot::bytesFoundText, &ScreenState::bytesFoundTextChanged);
    announce(&Snapshot::isDeleting, &ScreenState::isDeletingChanged);
    announce(&Snapshot::deleteProgress, &ScreenState::deleteProgressChanged);
    announce(&Snapshot::deletePercentText, &ScreenState::deletePercentTextChanged);
    announce(&Snapshot::showDeletionComplete, &ScreenState::showDeletionCompleteChanged);
    announce(&Snapshot::freedSpaceText, &ScreenState::freedSpaceTextChanged);
    announce(&Snapshot::totalSummary, &ScreenState::totalSummaryChanged);
    announce(&Snapshot::hasSelection, &ScreenState::hasSelectionChanged);
    announce(&Snapshot::selectedSizeText, &ScreenState::selectedSizeTextChanged);
    announce(&Snapshot::selectionSummary, &ScreenState::selectionSummaryChanged);
    announce(&Snapshot::deleteLabel, &ScreenState::deleteLabelChanged);
    announce(&Snapshot::confirmationTitle, &ScreenState::confirmationTitleChanged);
    announce(&Snapshot::hasBrowserData, &ScreenState::hasBrowserDataChanged);
    announce(&Snapshot::categoryName, &ScreenState::categoryNameChanged);
    announce(&Snapshot::categoryIcon, &ScreenState::categoryIconChanged);
    announce(&Snapshot::categorySubtitle, &ScreenState::categorySubtitleChanged);
    announce(&Snapshot::categorySizeText, &ScreenState::categorySizeTextChanged);
    announce(&Snapshot::categorySelectionSummary, &ScreenState::categorySelectionSummaryChanged);
    announce(&Snapshot::meterCaption, &ScreenState::meterCaptionChanged);
    announce(&Snapshot::meterText, &ScreenState::meterTextChanged);
    announce(&Snapshot::isReclaiming, &ScreenState::isReclaimingChanged);
    announce(&Snapshot::foundShare, &ScreenState::foundShareChanged);
    announce(&Snapshot::selectedShare, &ScreenState::selectedShareChanged);
}

} // namespace drossbin
