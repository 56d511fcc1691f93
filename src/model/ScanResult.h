#pragma once

#include "model/ChangePublisher.h"
#include "model/DiskItem.h"
#include "model/Published.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace drossbin {

/// The observable state of one run: what was found, what is selected, how far the scan or the
/// deletion is, and which sheet is up. Main thread only; touching it elsewhere stops the program.
class ScanResult {
  public:
    enum class Field {
        items,
        isScanning,
        hasScanned,
        scanProgress,
        currentTask,
        bytesFoundSoFar,
        isDeleting,
        deleteProgress,
        freedSpace,
        showDeletionComplete,
        showConfirmation,
        deletionLog,
        searchText,
    };

    template <class Value>
    using PublishedField = Published<Value, Field>;

    /// Sends the field that is about to be written, once for each write.
    ChangePublisher<Field> objectWillChange;

    PublishedField<std::vector<DiskItem>> items{objectWillChange, Field::items, {}};
    PublishedField<bool> isScanning{objectWillChange, Field::isScanning, false};
    PublishedField<bool> hasScanned{objectWillChange, Field::hasScanned, false};
    PublishedField<double> scanProgress{objectWillChange, Field::scanProgress, 0.0};
    PublishedField<std::string> currentTask{objectWillChange, Field::currentTask, {}};
    PublishedField<std::int64_t> bytesFoundSoFar{objectWillChange, Field::bytesFoundSoFar, 0};
    PublishedField<bool> isDeleting{objectWillChange, Field::isDeleting, false};
    PublishedField<double> deleteProgress{objectWillChange, Field::deleteProgress, 0.0};
    PublishedField<std::int64_t> freedSpace{objectWillChange, Field::freedSpace, 0};
    PublishedField<bool> showDeletionComplete{objectWillChange, Field::showDeletionComplete, false};
    PublishedField<bool> showConfirmation{objectWillChange, Field::showConfirmation, false};
    PublishedField<std::vector<std::string>> deletionLog{objectWillChange, Field::deletionLog, {}};
    PublishedField<std::string> searchText{objectWillChange, Field::searchText, {}};

    // Derived values, computed afresh on every read. Sums that do not fit 64 bits stop the program.

    [[nodiscard]] std::int64_t totalSize() const;
    [[nodiscard]] std::int64_t selectedSize() const;
    [[nodiscard]] std::size_t selectedCount() const;

    /// The category's items whose name or path contains the search text, in list order.
    [[nodiscard]] std::vector<DiskItem> itemsFor(DiskCategory category) const;

    /// Whether there are any of `itemsFor(category)`.
    [[nodiscard]] bool hasItemsFor(DiskCategory category) const;

    /// The bytes of `itemsFor(category)`; follows the search text.
    [[nodiscard]] std::int64_t categorySize(DiskCategory category) const;

    // Selection. Each item changed is one announced write of `items`.

    /// Flips the item with the same id; never one that is critical.
    void toggleSelectionFor(const DiskItem& item);
    /// Selects every safe item of every category; clears none.
    void selectAllSafe();
    /// Selects what is not critical in the category, hidden by the search text or not.
    void selectAllIn(DiskCategory category);
    /// Clears the whole category, critical items too.
    void deselectAllIn(DiskCategory category);
    void deselectAll();

  private:
    template <class Applies>
    void setSelected(bool isSelected, Applies applies);
};

} // namespace drossbin
