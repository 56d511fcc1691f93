#pragma once

#include "app/Snapshot.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace drossbin {

/// The snapshot as QML reads it: each value announces its own changes, and none but those.
class ScreenState : public QObject {
    Q_OBJECT
    QML_ANONYMOUS
    Q_PROPERTY(bool isScanning READ isScanning NOTIFY isScanningChanged)
    Q_PROPERTY(double scanProgress READ scanProgress NOTIFY scanProgressChanged)
    Q_PROPERTY(QString currentTask READ currentTask NOTIFY currentTaskChanged)
    Q_PROPERTY(QString bytesFoundText READ bytesFoundText NOTIFY bytesFoundTextChanged)
    Q_PROPERTY(bool isDeleting READ isDeleting NOTIFY isDeletingChanged)
    Q_PROPERTY(double deleteProgress READ deleteProgress NOTIFY deleteProgressChanged)
    Q_PROPERTY(QString deletePercentText READ deletePercentText NOTIFY deletePercentTextChanged)
    Q_PROPERTY(
        bool showDeletionComplete READ showDeletionComplete NOTIFY showDeletionCompleteChanged)
    Q_PROPERTY(QString freedSpaceText READ freedSpaceText NOTIFY freedSpaceTextChanged)
    Q_PROPERTY(QString totalSummary READ totalSummary NOTIFY totalSummaryChanged)
    Q_PROPERTY(bool hasSelection READ hasSelection NOTIFY hasSelectionChanged)
    Q_PROPERTY(QString selectedSizeText READ selectedSizeText NOTIFY selectedSizeTextChanged)
    Q_PROPERTY(QString selectionSummary READ selectionSummary NOTIFY selectionSummaryChanged)
    Q_PROPERTY(QString deleteLabel READ deleteLabel NOTIFY deleteLabelChanged)
    Q_PROPERTY(QString confirmationTitle READ confirmationTitle NOTIFY confirmationTitleChanged)
    Q_PROPERTY(bool hasBrowserData READ hasBrowserData NOTIFY hasBrowserDataChanged)
    Q_PROPERTY(QString categoryName READ categoryName NOTIFY categoryNameChanged)
    Q_PROPERTY(QString categoryIcon READ categoryIcon NOTIFY categoryIconChanged)
    Q_PROPERTY(QString categorySubtitle READ categorySubtitle NOTIFY categorySubtitleChanged)
    Q_PROPERTY(QString categorySizeText READ categorySizeText NOTIFY categorySizeTextChanged)
    Q_PROPERTY(QString categorySelectionSummary READ categorySelectionSummary NOTIFY
                   categorySelectionSummaryChanged)
    Q_PROPERTY(QString meterCaption READ meterCaption NOTIFY meterCaptionChanged)
    Q_PROPERTY(QString meterText READ meterText NOTIFY meterTextChanged)
    Q_PROPERTY(bool isReclaiming READ isReclaiming NOTIFY isReclaimingChanged)
    Q_PROPERTY(double foundShare READ foundShare NOTIFY foundShareChanged)
    Q_PROPERTY(double selectedShare READ selectedShare NOTIFY selectedShareChanged)

  public:
    using QObject::QObject;

    [[nodiscard]] bool isScanning() const { return m_shown.isScanning; }
    [[nodiscard]] double scanProgress() const { return m_shown.scanProgress; }
    [[nodiscard]] const QString& currentTask() const { return m_shown.currentTask; }
    [[nodiscard]] const QString& bytesFoundText() const { return m_shown.bytesFoundText; }
    [[nodiscard]] bool isDeleting() const { return m_shown.isDeleting; }
    [[nodiscard]] double deleteProgress() const { return m_shown.deleteProgress; }
    [[nodiscard]] const QString& deletePercentText() const { return m_shown.deletePercentText; }
    [[nodiscard]] bool showDeletionComplete() const { return m_shown.showDeletionComplete; }
    [[nodiscard]] const QString& freedSpaceText() const { return m_shown.freedSpaceText; }
    [[nodiscard]] const QString& totalSummary() const { return m_shown.totalSummary; }
    [[nodiscard]] bool hasSelection() const { return m_shown.hasSelection; }
    [[nodiscard]] const QString& selectedSizeText() const { return m_shown.selectedSizeText; }
    [[nodiscard]] const QString& selectionSummary() const { return m_shown.selectionSummary; }
    [[nodiscard]] const QString& deleteLabel() const { return m_shown.deleteLabel; }
    [[nodiscard]] const QString& confirmationTitle() const { return m_shown.confirmationTitle; }
    [[nodiscard]] bool hasBrowserData() const { return m_shown.hasBrowserData; }
    [[nodiscard]] const QString& categoryName() const { return m_shown.categoryName; }
    [[nodiscard]] const QString& categoryIcon() const { return m_shown.categoryIcon; }
    [[nodiscard]] const QString& categorySubtitle() const { return m_shown.categorySubtitle; }
    [[nodiscard]] const QString& categorySizeText() const { return m_shown.categorySizeText; }
    [[nodiscard]] const QString& categorySelectionSummary() const {
        return m_shown.categorySelectionSummary;
    }
    [[nodiscard]] const QString& meterCaption() const { return m_shown.meterCaption; }
    [[nodiscard]] const QString& meterText() const { return m_shown.meterText; }
    [[nodiscard]] bool isReclaiming() const { return m_shown.isReclaiming; }
    [[nodiscard]] double foundShare() const { return m_shown.foundShare; }
    [[nodiscard]] double selectedShare() const { return m_shown.selectedShare; }

  signals:
    void isScanningChanged();
    void scanProgressChanged();
    void currentTaskChanged();
    void bytesFoundTextChanged();
    void isDeletingChanged();
    void deleteProgressChanged();
    void deletePercentTextChanged();
    void showDeletionCompleteChanged();
    void freedSpaceTextChanged();
    void totalSummaryChanged();
    void hasSelectionChanged();
    void selectedSizeTextChanged();
    void selectionSummaryChanged();
    void deleteLabelChanged();
    void confirmationTitleChanged();
    void hasBrowserDataChanged();
    void categoryNameChanged();
    void categoryIconChanged();
    void categorySubtitleChanged();
    void categorySizeTextChanged();
    void categorySelectionSummaryChanged();
    void meterCaptionChanged();
    void meterTextChanged();
    void isReclaimingChanged();
    void foundShareChanged();
    void selectedShareChanged();

  protected:
    /// Replaces what is shown, then announces what is different.
    void show(Snapshot next);

  private:
    Snapshot m_shown;
};

} // namespace drossbin
