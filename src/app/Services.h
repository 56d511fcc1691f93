#pragma once

#include "cleaner/DiskCleaner.h"
#include "model/DiskItem.h"
#include "scanner/DiskScanner.h"

#include <QCoroTask>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace drossbin {

/// What a run asks of the world, as functions that a test may replace. All but `demoItems` and
/// `sleep` block and are called on a background thread.
struct Services {
    std::function<std::vector<DiskItem>(const DiskScanner::Progress&)> scan;
    std::function<std::vector<DiskItem>()> demoItems;
    std::function<DiskCleaner::Outcome(const std::vector<DiskItem>&, const DiskCleaner::Progress&)>
        deleteItems;
    std::function<std::optional<std::int64_t>()> diskSpace; ///< of the start-up volume, in bytes
    std::function<QCoro::Task<>(std::chrono::nanoseconds)> sleep;

    /// The disk, the clock and the sample data.
    static Services real();
};

} // namespace drossbin
