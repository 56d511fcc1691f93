#include "platform/Measurement.h"

namespace drossbin {

FileDescriptor Measurement::open(int parent, const char* name, LastLink link) {
    if (crew == nullptr) {
        return openFolderPatiently(parent, name, link);
    }
    FileDescriptor folder = openFolder(parent, name, link);
    if (!folder.isOpen() && lacksDescriptors()) {
        m_isGivenUp.store(true, std::memory_order_relaxed);
    }
    return folder;
}

} // namespace drossbin
