#pragma once

#include "app/ItemSurvey.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <cstdint>
#include <optional>

namespace drossbin {

/// What the screens show of the session at one moment, in the words and shares that they show.
struct ShownValues {
    Q_GADGET
    QML_ANONYMOUS
    Q_PROPERTY(bool isScanning MEMBER isScanning)
    Q_PROPERTY(double scanProgress MEMBER scanProgress)
    Q_PROPERTY(QString currentTask MEMBER currentTask)
    Q_PROPERTY(QString bytesFoundText MEMBER bytesFoundText)
    Q_PROPERTY(bool isDeleting MEMBER isDeleting)
    Q_PROPERTY(double deleteProgress MEMBER deleteProgress)
    Q_PROPERTY(QString deletePercentText MEMBER deletePercentText)
    Q_PROPERTY(bool showConfirmation MEMBER showConfirmation)
    Q_PROPERTY(bool showDeletionComplete MEMBER showDeletionComplete)
    Q_PROPERTY(QString freedSpaceText MEMBER freedSpaceText)
    Q_PROPERTY(QString totalSummary MEMBER totalSummary)
    Q_PROPERTY(bool hasSelection MEMBER hasSelection)
    Q_PROPERTY(QString selectedSizeText MEMBER selectedSizeText)
    Q_PROPERTY(QString selectionSummary MEMBER selectionSummary)
    Q_PROPERTY(QString deleteLabel MEMBER deleteLabel)
    Q_PROPERTY(QString confirmationTitle MEMBER confirmationTitle)
    Q_PROPERTY(bool hasBrowserData MEMBER hasBrowserData)
    Q_PROPERTY(QString categoryName MEMBER categoryName)
    Q_PROPERTY(QString categoryIcon MEMBER categoryIcon)
    Q_PROPERTY(QString categorySubtitle MEMBER categorySubtitle)
    Q_PROPERTY(QString categorySizeText MEMBER categorySizeText)
    Q_PROPERTY(QString categorySelectionSummary MEMBER categorySelectionSummary)
    Q_PROPERTY(QString meterCaption MEMBER meterCaption)
    Q_PROPERTY(QString meterText MEMBER meterText)
    Q_PROPERTY(bool isReclaiming MEMBER isReclaiming)
    Q_PROPERTY(double foundShare MEMBER foundShare)
    Q_PROPERTY(double selectedShare MEMBER selectedShare)

  public:
    bool isScanning = false;
    double scanProgress = 0;
    QString currentTask;
    QString bytesFoundText;

    bool isDeleting = false;
    double deleteProgress = 0;
    QString deletePercentText;
    bool showConfirmation = false;
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
    static ShownValues of(const ScanResult& result, const ItemSurvey& survey,
                          std::optional<DiskCategory> shown, std::int64_t diskSpace);
};

} // namespace drossbin
