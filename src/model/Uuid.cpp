#include "model/Uuid.h"

#include <random>

namespace drossbin {

namespace {

std::mt19937_64 seededGenerator() {
    std::random_device device;
    std::seed_seq seed{device(), device(), device(), device(), device(), device()};
    return std::mt19937_64(seed);
}

} // namespace

Uuid Uuid::random() {
    // One generator a thread: a scan makes an identity for each of its items.
    thread_local std::mt19937_64 generator = seededGenerator();
    constexpr std::uint64_t versionMask = 0xFFFF'FFFF'FFFF'0FFF;
    constexpr std::uint64_t version4 = 0x4000;
    constexpr std::uint64_t variantMask = 0x3FFF'FFFF'FFFF'FFFF;
    constexpr std::uint64_t variant1 = 0x8000'0000'0000'0000;
    return {{(generator() & versionMask) | version4, (generator() & variantMask) | variant1}};
}

} // namespace drossbin
