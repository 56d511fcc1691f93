#pragma once

#include "platform/folders/DirectoryReader.h"
#include "platform/folders/OpenFolder.h"
#include "platform/measuring/Subtree.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace drossbin {

/// The folders on the way down to where a walk is, with what is left to do in each. A level lives
/// only while something is left in it, so a chain of folders needs one. When too many are open,
/// the uppermost are closed; ".." leads back to them from below, so no path is ever needed.
class FolderStack {
  public:
    FolderStack();

    [[nodiscard]] bool isEmpty() const { return m_levels.empty(); }

    /// Enters `folder`, a subfolder of the deepest level or the first of all, none of it read yet.
    void enter(OpenFolder folder);

    /// Leaves the deepest level for the next one up in which something is left to do.
    void leave();

    // The deepest level. There must be one.

    [[nodiscard]] int folder() const { return m_levels.back().folder.get(); }

    /// Where to read on in the folder; absent when all was read.
    [[nodiscard]] std::optional<DirectoryReader::Position>& unread() {
        return m_levels.back().unread;
    }

    /// The folder opened again, for another walk: two threads that use one opening of a folder
    /// contend for its count of users. Not open when that fails.
    [[nodiscard]] OpenFolder openFolderAgain() const { return openAgain(m_levels.back().folder); }

    void addSubfolder(std::string_view name);
    [[nodiscard]] bool hasSubfolders() const { return m_levels.back().hasNames(); }
    [[nodiscard]] const char* lastSubfolder() const;
    void dropLastSubfolder();
    [[nodiscard]] std::size_t bytesOfSubfolders() const { return m_levels.back().bytesOfNames(); }

    // All levels.

    [[nodiscard]] std::size_t bytesOfAllSubfolders() const { return m_names.size(); }

    /// Closes the uppermost open level, unless that is the deepest.
    bool closeUppermost();

    /// Takes half of the subfolders of the uppermost open level that has some: the largest part
    /// that there is to give. Absent when that would leave nothing to do here.
    std::optional<Subtree> split();

    /// Whether work was lost because the process may open no more files.
    [[nodiscard]] bool lacksDescriptors() const { return m_lacksDescriptors; }

  private:
    struct Level {
        OpenFolder folder;
        std::size_t depth;
        std::optional<DirectoryReader::Position> unread;
        std::size_t firstName; ///< where its names lie in m_names
        std::size_t endOfNames;

        [[nodiscard]] std::size_t bytesOfNames() const { return endOfNames - firstName; }
        [[nodiscard]] bool hasNames() const { return firstName < endOfNames; }
        [[nodiscard]] bool hasWork() const { return hasNames() || unread.has_value(); }
    };

    static OpenFolder openAgain(const OpenFolder& folder);
    bool reopen(Level& level, const Level& below);
    FileDescriptor openAbove(int folder, std::size_t distance);

    std::vector<Level> m_levels;
    std::string m_names; ///< those of the deepest level are the last
    std::size_t m_uppermostOpen = 0;
    std::size_t m_mostOpen;
    bool m_lacksDescriptors = false;
};

} // namespace drossbin
