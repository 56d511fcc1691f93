#include "platform/GraphicsCard.h"

#ifdef DROSSBIN_LINUX
#include "platform/FileManager.h"

#include <algorithm>
#endif

namespace drossbin {

#ifdef DROSSBIN_LINUX

namespace {

bool exists(const std::string& path) {
    return FileManager::existence(path) != FileManager::Existence::missing;
}

bool isRenderNode(const std::string& name) {
    return name.starts_with("renderD");
}

} // namespace

bool hasGraphicsCard(const std::string& devices) {
    const auto nodes = FileManager::contentsOfDirectory(devices + "/dri");
    return (nodes && std::ranges::any_of(*nodes, isRenderNode)) || exists(devices + "/nvidiactl") ||
           exists(devices + "/dxg");
}

#else

bool hasGraphicsCard(const std::string& /*devices*/) {
    return true;
}

#endif

} // namespace drossbin
