#include "platform/GraphicsCard.h"

#include <algorithm>
#include <system_error>

namespace drossbin {

namespace fs = std::filesystem;

#ifdef __linux__

namespace {

bool hasRenderNode(const fs::path& folder) {
    std::error_code error; // no such folder is no card
    const auto isRenderNode = [](const fs::directory_entry& entry) {
        return entry.path().filename().native().starts_with("renderD");
    };
    return std::any_of(fs::directory_iterator(folder, error), fs::directory_iterator(),
                       isRenderNode);
}

} // namespace

bool hasGraphicsCard(const fs::path& devices) {
    std::error_code error; // what cannot be looked at cannot be drawn with
    return hasRenderNode(devices / "dri") || fs::exists(devices / "nvidiactl", error) ||
           fs::exists(devices / "dxg", error);
}

#else

bool hasGraphicsCard(const fs::path& /*devices*/) {
    return true;
}

#endif

} // namespace drossbin
