#pragma once

#include "MadeUpTree.h"

#include <cstddef>
#include <functional>
#include <string>
#include <sys/stat.h>
#include <sys/types.h>
#include <vector>

namespace drossbin::fuzz {

/// A disk in memory. While it lives, the program's calls about the path "/made-up", which is the
/// item of its tree, and about what is opened below come here. It watches over all of them: one
/// that no walk should make ends the program.
class MadeUpDisk {
  public:
    /// At most so many files may be open; `meanwhile` strikes before each call but those that
    /// close.
    MadeUpDisk(MadeUpTree& tree, std::size_t mostOpen, std::function<void()> meanwhile);
    ~MadeUpDisk();
    MadeUpDisk(const MadeUpDisk&) = delete;
    MadeUpDisk& operator=(const MadeUpDisk&) = delete;
    MadeUpDisk(MadeUpDisk&&) = delete;
    MadeUpDisk& operator=(MadeUpDisk&&) = delete;

    static constexpr int firstDescriptor = 1'000'000;

    /// The disk that a call about this descriptor, or about this path, belongs to; null for most.
    static MadeUpDisk* of(int descriptor);
    static MadeUpDisk* of(const std::string& path);

    // The calls. A negative result is an error number.

    int openRoot();
    int openItem();
    int open(int parent, const std::string& path, int flags);
    int close(int descriptor);
    ssize_t list(int folder, std::byte* records, std::size_t capacity);
    off_t seek(int folder, off_t place, int whence);
    /// An empty name stands for the folder itself.
    int status(int folder, const std::string& name, struct stat& status);
    int unlink(int folder, const std::string& name, int flags);

  private:
    struct Open {
        std::shared_ptr<Node> folder;
        off_t place = 0;
    };

    Open& opened(int descriptor);
    int openNode(const std::shared_ptr<Node>& node);
    [[nodiscard]] bool isGone(const Node& node) const;

    MadeUpTree& m_tree;
    std::size_t m_mostOpen;
    std::function<void()> m_meanwhile;
    std::vector<Open> m_open; ///< a closed one has no folder
    std::size_t m_openNow = 0;
};

} // namespace drossbin::fuzz
