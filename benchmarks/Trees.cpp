#include "platform/FileManager.h"
#include "scanner/DiskScanner.h"

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <sys/stat.h>

// One job on one tree and nothing else, for bench to time beside other programs:
//   trees measure|remove|measure-std|remove-std PATH

namespace {

std::int64_t measureWithStandardLibrary(const std::string& path) {
    std::int64_t total = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(path)) {
        struct stat status {};
        if (::lstat(entry.path().c_str(), &status) == 0) {
            total += status.st_size;
        }
    }
    return total;
}

int printed(std::int64_t size) {
    std::printf("%lld\n", static_cast<long long>(size));
    return size >= 0 ? 0 : 1;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 3) {
        std::fputs("usage: trees measure|remove|measure-std|remove-std PATH\n", stderr);
        return 2;
    }
    const std::string_view job = arguments[1];
    const std::string path = arguments[2];
    if (job == "measure") {
        return printed(drossbin::DiskScanner::directorySize(path).value_or(-1));
    }
    if (job == "measure-std") {
        return printed(measureWithStandardLibrary(path));
    }
    if (job == "remove") {
        return drossbin::FileManager::removeItem(path) ? 1 : 0;
    }
    if (job == "remove-std") {
        std::filesystem::remove_all(path);
        return 0;
    }
    return 2;
}
