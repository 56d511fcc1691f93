#pragma once

#include "ByteSource.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace drossbin::fuzz {

/// What canaries are of: more than all else that there can be.
inline constexpr std::int64_t canarySize = std::int64_t{1} << 58;

/// A file, folder or link that exists in memory only.
struct Node {
    enum class Kind { folder, file, link };
    enum class Told { truly, notAtAll, wrongly }; ///< its kind, by the list of its folder

    struct Entry {
        std::string name;
        std::shared_ptr<Node> node; ///< null once it was removed: others keep their place
    };

    Kind kind = Kind::file;
    Told told = Told::truly;
    std::int64_t size = 0;
    std::uint64_t inode = 0;
    std::uint64_t mount = 1;
    bool isCanary = false; ///< outside of the item from the beginning
    std::weak_ptr<Node> parent;
    std::vector<Entry> entries;

    // Errors that calls about it fail with, or 0.
    int openError = 0;
    int listError = 0;
    int statError = 0;
    int unlinkError = 0;

    [[nodiscard]] bool isFolder() const { return kind == Kind::folder; }
    [[nodiscard]] bool isEmpty() const;
    Entry* find(const std::string& name);
};

/// What the list of its folder tells of its kind, as readdir does.
unsigned char toldType(const Node& node);

/// What it tells of its kind itself, as stat does.
mode_t modeOf(const Node& node);

/// The folder "/": in it the folder "item", made of bytes, and the folder "outside" with canaries.
class MadeUpTree {
  public:
    explicit MadeUpTree(ByteSource& bytes);

    [[nodiscard]] const std::shared_ptr<Node>& root() const { return m_root; }
    [[nodiscard]] const std::shared_ptr<Node>& item() const { return m_item; }
    [[nodiscard]] const std::shared_ptr<Node>& outside() const { return m_outside; }

    /// One of all that was ever made in the item; null where it is gone.
    [[nodiscard]] std::shared_ptr<Node> made(std::size_t number) const;

    std::shared_ptr<Node> add(const std::shared_ptr<Node>& folder, Node::Kind kind,
                              const std::string& name);

    /// Lets every node tell what it is.
    void makeTellable();

    /// Takes a node out of its folder; returns it.
    static std::shared_ptr<Node> take(const std::shared_ptr<Node>& node);
    static void put(const std::shared_ptr<Node>& folder, const std::shared_ptr<Node>& node,
                    const std::string& name);

  private:
    void make(ByteSource& bytes);
    void spoil(Node& node, ByteSource& bytes);
    std::string takeName(ByteSource& bytes) const;

    std::shared_ptr<Node> m_root;
    std::shared_ptr<Node> m_item;
    std::shared_ptr<Node> m_outside;
    std::vector<std::weak_ptr<Node>> m_made;
    std::uint64_t m_inodes = 0;
    std::uint64_t m_mounts = 1;
};

/// Whether a folder is `other` or one of those that it lies in.
bool isAtOrAbove(const Node& folder, const Node& other);

/// What the sizes of all that can be reached below a folder come to.
std::int64_t sizeBelow(const Node& folder);

/// The errors that keep parts of a tree from being removed; none where it goes whole.
std::set<int> obstaclesIn(const Node& node, const Node& parent);

} // namespace drossbin::fuzz
