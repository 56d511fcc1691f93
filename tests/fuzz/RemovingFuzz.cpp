#include "ByteSource.h"
#include "Disturbance.h"
#include "MadeUpDisk.h"
#include "MadeUpTree.h"
#include "Require.h"
#include "platform/folders/FileDescriptor.h"
#include "platform/removing/TreeRemoval.h"

#include <cstdint>
#include <set>
#include <system_error>

namespace drossbin::fuzz {
namespace {

constexpr std::size_t enoughOpen = 20;

std::error_code removeItem(MadeUpDisk& disk) {
    const FileDescriptor root(disk.openRoot());
    return removeEntry(root.get(), "item");
}

void removeAtRest(ByteSource bytes) {
    MadeUpTree tree(bytes);
    tree.makeTellable();
    const std::set<int> obstacles = obstaclesIn(*tree.item(), *tree.root());
    MadeUpDisk disk(tree, enoughOpen, [] {});
    const std::error_code error = removeItem(disk);
    const bool isGone = tree.root()->find("item") == nullptr;
    require(isGone == !error, "what is said to be removed is gone");
    require(isGone == obstacles.empty(), "what can be removed is");
    require(!error || obstacles.contains(error.value()), "the error is one that there is");
}

void removeInMotion(ByteSource bytes) {
    Disturbance disturbance(bytes);
    MadeUpTree tree(bytes);
    MadeUpDisk disk(tree, enoughOpen, [&] { disturbance.strike(tree); });
    removeItem(disk); // whether it ends well is a matter of what happens meanwhile
}

} // namespace
} // namespace drossbin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    drossbin::fuzz::removeAtRest({bytes, size});
    drossbin::fuzz::removeInMotion({bytes, size});
    return 0;
}
