#include "cleaner/DiskCleaner.h"

#include "cleaner/DeletionLog.h"
#include "platform/FileManager.h"
#include "platform/MainThread.h"
#include "platform/TerminationDelay.h"
#include "platform/basics/CheckedSum.h"

#include <cstddef>
#include <optional>
#include <system_error>

namespace drossbin {

namespace {

/// Absent where nobody knows the home folder: then there is no log.
std::optional<std::string> logFolder() {
    const auto home = FileManager::homeDirectoryForCurrentUser();
    return home ? std::optional(*home + "/Library/Logs/Drossbin") : std::nullopt;
}

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
    const TerminationDelay untilLogged;
    const auto folder = logFolder();
    if (folder) {
        // Failures of the log's folder and file are let go: the user asked for space, and where
        // there is none left, or no permission, a log is no reason to refuse it.
        FileManager::createDirectory(*folder);
    }
    const Date nameDate = clock();
    const Date headerDate = clock();

    Outcome outcome;
    const auto count = static_cast<double>(items.size());
    for (std::size_t index = 0; index < items.size(); ++index) {
        const DiskItem& item = items[index];
        report(progress, static_cast<double>(index) / count, "Deleting " + item.name + "...");
        remove(item, outcome);
    }
    report(progress, 1.0, "Cleanup complete");

    if (folder) {
        // Again, because it may have been among the items: all log folders are one of them.
        FileManager::createDirectory(*folder);
        FileManager::removeTemporaryFiles(*folder);
        FileManager::writeAtomically(deletionlog::text(headerDate, outcome.log, outcome.bytesFreed),
                                     deletionlog::path(*folder, nameDate));
    }
    return outcome;
}

} // namespace drossbin
