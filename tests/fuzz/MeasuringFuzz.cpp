#include "ByteSource.h"
#include "Disturbance.h"
#include "MadeUpDisk.h"
#include "MadeUpTree.h"
#include "Require.h"
#include "platform/measuring/TreeSize.h"

#include <cstdint>

namespace drossbin::fuzz {
namespace {

constexpr std::size_t fewestOpen = 3;

void measureAtRest(ByteSource bytes) {
    const std::size_t mostOpen = fewestOpen + bytes.take() % 32;
    MadeUpTree tree(bytes);
    const MadeUpDisk disk(tree, mostOpen, [] {});
    const std::int64_t expected = sizeBelow(*tree.item());
    require(treeSize("/made-up", nullptr) == expected, "a tree at rest is measured exactly");
}

void measureInMotion(ByteSource bytes) {
    const std::size_t mostOpen = fewestOpen + bytes.take() % 32;
    Disturbance disturbance(bytes);
    MadeUpTree tree(bytes);
    const MadeUpDisk disk(tree, mostOpen, [&] { disturbance.strike(tree); });
    const auto size = treeSize("/made-up", nullptr);
    require(!size || (*size >= 0 && *size < canarySize), "nothing outside is measured");
}

} // namespace
} // namespace drossbin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    drossbin::fuzz::measureAtRest({bytes, size});
    drossbin::fuzz::measureInMotion({bytes, size});
    return 0;
}
