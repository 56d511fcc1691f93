#include "scanner/DiskScanner.h"

#include <cstdint>
#include <cstdio>

// A scan of the home that the environment names, for bench to time. Prints the bytes that it found.

int main() {
    std::int64_t total = 0;
    drossbin::DiskScanner::scan(
        [&total](double, const std::string&, std::int64_t bytes) { total = bytes; });
    std::printf("%lld\n", static_cast<long long>(total));
    return 0;
}
