#include "scanner/Scans.h"

#include "support/ScratchFolder.h"
#include "support/SystemCalls.h"

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>

namespace drossbin::test {

void setModificationDate(const std::string& path, Date date) {
    const auto seconds = std::chrono::floor<std::chrono::seconds>(date);
    const std::chrono::nanoseconds rest = date - seconds;
    const timespec time{.tv_sec = seconds.time_since_epoch().count(), .tv_nsec = rest.count()};
    if (::utimensat(AT_FDCWD, path.c_str(), std::array{time, time}.data(), AT_SYMLINK_NOFOLLOW) !=
        0) {
        throw std::system_error(errno, std::generic_category(), path);
    }
}

void checkWithSystemLogs(std::int64_t size, const std::function<void()>& check) {
    const ScratchFolder logs;
    if (size > 0) {
        logs.file("syslog", size);
    }
    setModificationDate(logs.path(), systemLogDate);
    const StandInFolder systemLogs("/var/log", logs.path());
    check();
}

std::vector<std::string> namesOf(const std::vector<DiskItem>& items) {
    std::vector<std::string> names;
    for (const DiskItem& item : items) {
        names.push_back(item.name);
    }
    return names;
}

std::string description(const DiskItem& item) {
    return item.name + " | " + item.path + " | " + std::to_string(item.size) + " | " +
           std::string(rawValue(item.category)) + " | " + std::string(rawValue(item.risk)) + " | " +
           item.sfSymbol + " | " + item.safetyNote.value_or("no note") +
           (item.isSelected ? " | selected" : "");
}

} // namespace drossbin::test
