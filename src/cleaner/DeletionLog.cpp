#include "cleaner/DeletionLog.h"

#include "platform/words/ByteCountFormatter.h"
#include "platform/words/DisplayText.h"
#include "platform/words/ISO8601DateFormatter.h"

namespace drossbin::deletionlog {

std::string deletedLine(const DiskItem& item) {
    return "✅ Deleted: " + displayText(item.name) + " (" + item.formattedSize() + ")";
}

std::string failedLine(const DiskItem& item, const std::error_code& error) {
    return "❌ Failed: " + displayText(item.name) + " — " + displayText(error.message());
}

std::string path(const std::string& folder, Date date) {
    return folder + "/deletion-" + ISO8601DateFormatter::string(date) + ".log";
}

std::string text(Date date, const std::vector<std::string>& lines, std::int64_t bytesFreed) {
    std::string text = "Drossbin Deletion Log — " + dateDescription(date) + "\n\n";
    for (const std::string& line : lines) {
        text += line + "\n";
    }
    return text + "\nTotal freed: " + ByteCountFormatter::string(bytesFreed);
}

} // namespace drossbin::deletionlog
