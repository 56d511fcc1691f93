#include "platform/measuring/FolderStack.h"

#include "platform/measuring/DescriptorBudget.h"

#include <algorithm>
#include <sys/stat.h>
#include <utility>

namespace drossbin {

FolderStack::FolderStack()
    : m_mostOpen(DescriptorBudget::ofThisProcess().openLevels) {}

void FolderStack::enter(OpenFolder folder) {
    const std::size_t depth = isEmpty() ? 0 : m_levels.back().depth + 1;
    if (!isEmpty() && !m_levels.back().hasWork()) {
        leave();
    }
    if (m_levels.size() - m_uppermostOpen >= m_mostOpen) {
        closeUppermost();
    }
    m_levels.push_back({std::move(folder), depth, 0, m_names.size(), m_names.size()});
}

void FolderStack::leave() {
    Level left = std::move(m_levels.back());
    m_levels.pop_back();
    while (!isEmpty()) {
        Level& level = m_levels.back();
        if (level.hasWork() && (level.folder.isOpen() || reopen(level, left))) {
            break;
        }
        if (level.folder.isOpen()) {
            left = std::move(level);
        }
        m_levels.pop_back();
    }
    m_names.resize(isEmpty() ? 0 : m_levels.back().endOfNames);
    m_uppermostOpen = std::min(m_uppermostOpen, isEmpty() ? 0 : m_levels.size() - 1);
}

bool FolderStack::reopen(Level& level, const Level& below) {
    FileDescriptor folder = openAbove(below.folder.get(), below.depth - level.depth);
    struct stat status {};
    // Another identity: the folder below was moved meanwhile, and the way up is lost.
    const bool isSame = folder.isOpen() && ::fstat(folder.get(), &status) == 0 &&
                        level.folder.identity == FolderIdentity::from(status);
    if (isSame) {
        level.folder.descriptor = std::move(folder);
    }
    return isSame;
}

// The folder `distance` levels above `folder`, through "..".
FileDescriptor FolderStack::openAbove(int folder, std::size_t distance) {
    constexpr std::size_t step = 1000; // in one path, which may not exceed PATH_MAX
    FileDescriptor above;
    do {
        const std::size_t levels = std::min(distance, step);
        std::string path;
        for (std::size_t level = 0; level < levels; ++level) {
            path += "../";
        }
        above = openFolder(above.isOpen() ? above.get() : folder, path.c_str(), LastLink::refused);
        distance -= levels;
    } while (distance > 0 && above.isOpen());
    m_lacksDescriptors |= !above.isOpen() && drossbin::lacksDescriptors();
    return above;
}

void FolderStack::addSubfolder(std::string_view name) {
    m_names.append(name).push_back('\0');
    m_levels.back().endOfNames = m_names.size();
}

const char* FolderStack::lastSubfolder() const {
    const Level& level = m_levels.back();
    const std::size_t start = m_names.rfind('\0', level.endOfNames - 2) + 1;
    return m_names.data() + std::max(start, level.firstName);
}

void FolderStack::dropLastSubfolder() {
    Level& level = m_levels.back();
    level.endOfNames = static_cast<std::size_t>(lastSubfolder() - m_names.data());
    m_names.resize(level.endOfNames);
}

bool FolderStack::closeUppermost() {
    if (m_uppermostOpen + 1 >= m_levels.size()) {
        return false;
    }
    m_levels[m_uppermostOpen].folder.descriptor.close();
    ++m_uppermostOpen;
    return true;
}

OpenFolder FolderStack::openAgain(const OpenFolder& folder) {
    return {openFolder(folder.get(), ".", LastLink::refused), folder.identity};
}

std::optional<Subtree> FolderStack::split() {
    const auto giver =
        std::find_if(m_levels.begin() + std::ptrdiff_t(m_uppermostOpen), m_levels.end(),
                     [](const Level& level) { return level.hasNames(); });
    if (giver == m_levels.end()) {
        return std::nullopt;
    }
    const std::size_t middle = giver->firstName + (giver->bytesOfNames() - 1) / 2;
    const std::size_t end = m_names.find('\0', middle) + 1;
    const bool isDeepest = &*giver == &m_levels.back();
    if (isDeepest && end == giver->endOfNames) {
        return std::nullopt;
    }
    OpenFolder folder = openAgain(giver->folder);
    if (!folder.isOpen()) {
        return std::nullopt;
    }
    Subtree half{std::move(folder), {}, m_names.substr(giver->firstName, end - giver->firstName)};
    giver->firstName = end;
    return half;
}

} // namespace drossbin
