#include "cleaner/DiskCleaner.h"

#include "cleaner/DeletionLog.h"
#include "platform/CheckedSum.h"
#include "platform/DisplayText.h"
#include "platform/FileManager.h"
#include "platform/MainThread.h"

#include <cstddef>
#include <system_error>

namespace drossbin {

namespace {

void report(const DiskCleaner::Progress& progress, double fraction, const std::string& text) {
    MainThread::post([=] { progress(fraction, text); });
}

void remove(const DiskItem& item, DiskCleaner::Outcome& outcome) {
    if (FileManager::existence(item.path) == FileManager::Existence::missing) {
        return;
    }
    if (const std::error_code error = FileManager::removeItem(item.path)) {
        outcome.log.push_back(deletionlog::failedLine(item, error));
        return;
    }
    outcome.bytesFreed = checkedSum(outcome.bytesFreed, item.size);
    outcome.log.push_back(deletionlog::deletedLine(item));
}

} // namespace

DiskCleaner::Outcome DiskCleaner::deleteItems(const std::vector<DiskItem>& items,
                                              const Progress& progress, const Clock& clock) {
    const std::string logFolder =
        FileManager::homeDirectoryForCurrentUser() + "/Library/Logs/Drossbin";
    // Failures of the log's folder and file are let go: the user asked for space, and where there
    // is none left, or no permission, a log is no reason to refuse it.
    FileManager::createDirectory(logFolder);
    const std::string logPath = deletionlog::path(logFolder, clock());
    const Date headerDate = clock();

    Outcome outcome;
    const auto count = static_cast<double>(items.size());
    for (std::size_t index = 0; index < items.size(); ++index) {
        const DiskItem& item = items[index];
        report(progress, static_cast<double>(index) / count,
               "Deleting " + displayText(item.name) + "...");
        remove(item, outcome);
    }
    report(progress, 1.0, "Cleanup complete");

    // Again, because the folder may have been among the items: all log folders are one of them.
    FileManager::createDirectory(logFolder);
    FileManager::writeAtomically(deletionlog::text(headerDate, outcome.log, outcome.bytesFreed),
                                 logPath);
    return outcome;
}

} // namespace drossbin
