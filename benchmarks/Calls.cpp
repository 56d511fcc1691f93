#include "model/DiskItem.h"
#include "platform/words/ByteCountFormatter.h"
#include "scanner/DiskScanner.h"
#include "support/ScratchFolder.h"

#include <benchmark/benchmark.h>

#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>

// What is too short to time as a program of its own.

namespace drossbin {
namespace {

void fill(const test::ScratchFolder& scratch, std::int64_t files) {
    for (std::int64_t number = 0; number < files; ++number) {
        scratch.file("file " + std::to_string(number), 100);
    }
}

/// As little as a walk of one folder can be.
std::int64_t plainSize(const std::string& path) {
    std::int64_t total = 0;
    DIR* folder = ::opendir(path.c_str());
    while (const dirent* entry = ::readdir(folder)) {
        struct stat status {};
        if (entry->d_name[0] != '.' &&
            ::fstatat(::dirfd(folder), entry->d_name, &status, AT_SYMLINK_NOFOLLOW) == 0) {
            total += status.st_size;
        }
    }
    ::closedir(folder);
    return total;
}

void measureFolder(benchmark::State& state) {
    const test::ScratchFolder scratch;
    fill(scratch, state.range(0));
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(DiskScanner::directorySize(scratch.path()));
    }
}
BENCHMARK(measureFolder)->Arg(10)->Arg(50)->Arg(500)->Arg(2000)->UseRealTime();

void walkFolderPlainly(benchmark::State& state) {
    const test::ScratchFolder scratch;
    fill(scratch, state.range(0));
    for ([[maybe_unused]] auto round : state) {
        benchmark::DoNotOptimize(plainSize(scratch.path()));
    }
}
BENCHMARK(walkFolderPlainly)->Arg(10)->Arg(50)->Arg(500)->Arg(2000)->UseRealTime();

} // namespace
} // namespace drossbin
