#include "PeakMemory.h"
#include "platform/FileManager.h"
#include "scanner/DiskScanner.h"

#include <cstdio>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <sys/stat.h>
#include <vector>

// One job and nothing else, for bench to time beside other programs:
//   trees [memory] measure|remove|measure-std|remove-std PATH...
// Prints the bytes that it found, or how many KiB of memory it took for it. It loads nothing that
// the job does not need: on a small tree, loading takes longer than the job.

namespace {

using namespace drossbin;

using Job = std::function<std::int64_t(const std::string& path)>;

std::int64_t measure(const std::string& path) {
    return DiskScanner::directorySize(path).value_or(0);
}

std::int64_t remove(const std::string& path) {
    FileManager::removeItem(path);
    return 0;
}

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

std::int64_t removeWithStandardLibrary(const std::string& path) {
    std::filesystem::remove_all(path);
    return 0;
}

const std::map<std::string, Job>& jobs() {
    static const std::map<std::string, Job> all{{"measure", measure},
                                                {"remove", remove},
                                                {"measure-std", measureWithStandardLibrary},
                                                {"remove-std", removeWithStandardLibrary}};
    return all;
}

} // namespace

int main(int count, char** arguments) {
    std::vector<std::string> words(arguments + 1, arguments + count);
    const bool tellsMemory = !words.empty() && words.front() == "memory";
    words.erase(words.begin(), words.begin() + (tellsMemory ? 1 : 0));
    if (words.size() < 2 || !jobs().contains(words.front())) {
        std::fputs("usage: trees [memory] measure|remove|measure-std|remove-std PATH...\n", stderr);
        return 2;
    }
    const Job& job = jobs().at(words.front());
    const PeakMemory memory;
    std::int64_t total = 0;
    for (std::size_t index = 1; index < words.size(); ++index) {
        total += job(words[index]);
    }
    std::printf("%lld\n", static_cast<long long>(tellsMemory ? memory.growth() : total));
    return 0;
}
