#pragma once

#include "model/DiskItem.h"
#include "platform/basics/Date.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace drossbin {

/// Removes items from disk for good and records what it did. It trusts its caller: whatever it is
/// given and still exists is removed.
class DiskCleaner {
  public:
    /// Called on the main thread with the share done (0 to 1) and the text of the step, in which
    /// the item's name stands as it is: raw bytes.
    using Progress = std::function<void(double fraction, const std::string& text)>;
    using Clock = std::function<Date()>;

    struct Outcome {
        std::int64_t bytesFreed = 0;  ///< the scan-time sizes of what was removed
        std::vector<std::string> log; ///< one line for each item that existed, in order
    };

    /// Removes `items` one after another, posts a report to the main thread before each and one
    /// at the end without waiting for any, and writes the deletion log last. Blocks; call it off
    /// the main thread. Failures become lines of the log; a log that cannot be written, or has no
    /// place because the home folder is unknown, is let go. Who asks the program to end meanwhile
    /// waits for the log. One at a time.
    static Outcome deleteItems(const std::vector<DiskItem>& items, const Progress& progress,
                               const Clock& clock = now);
};

} // namespace drossbin
