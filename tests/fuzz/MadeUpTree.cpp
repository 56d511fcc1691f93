#include "MadeUpTree.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <dirent.h>

namespace drossbin::fuzz {

namespace {

constexpr std::size_t mostNodes = 400;

} // namespace

bool Node::isEmpty() const {
    return std::ranges::none_of(entries, [](const Entry& entry) { return entry.node != nullptr; });
}

Node::Entry* Node::find(const std::string& name) {
    const auto entry = std::ranges::find_if(
        entries, [&](const Entry& each) { return each.node != nullptr && each.name == name; });
    return entry == entries.end() ? nullptr : &*entry;
}

unsigned char toldType(const Node& node) {
    const bool isToldFolder = node.isFolder() != (node.told == Node::Told::wrongly);
    return node.told == Node::Told::notAtAll ? DT_UNKNOWN : isToldFolder ? DT_DIR : DT_REG;
}

mode_t modeOf(const Node& node) {
    switch (node.kind) {
    case Node::Kind::folder:
        return S_IFDIR | 0755U;
    case Node::Kind::link:
        return S_IFLNK | 0777U;
    case Node::Kind::file:
        break;
    }
    return S_IFREG | 0644U;
}

MadeUpTree::MadeUpTree(ByteSource& bytes)
    : m_root(std::make_shared<Node>()) {
    m_root->kind = Node::Kind::folder;
    m_root->inode = ++m_inodes;
    m_item = add(m_root, Node::Kind::folder, "item");
    m_outside = add(m_root, Node::Kind::folder, "outside");
    m_outside->isCanary = true;
    for (const char* name : {"file", "folder"}) {
        const auto kind = name == std::string("file") ? Node::Kind::file : Node::Kind::folder;
        const auto canary = add(m_outside, kind, name);
        canary->isCanary = true;
        canary->size = canarySize;
    }
    m_made = {m_item};
    make(bytes);
}

std::shared_ptr<Node> MadeUpTree::made(std::size_t number) const {
    return m_made[number % m_made.size()].lock();
}

std::shared_ptr<Node> MadeUpTree::add(const std::shared_ptr<Node>& folder, Node::Kind kind,
                                      const std::string& name) {
    auto node = std::make_shared<Node>();
    node->kind = kind;
    node->inode = ++m_inodes;
    node->mount = folder->mount;
    put(folder, node, name);
    m_made.push_back(node);
    return node;
}

void MadeUpTree::makeTellable() {
    for (const auto& made : m_made) {
        made.lock()->statError = 0;
    }
}

std::shared_ptr<Node> MadeUpTree::take(const std::shared_ptr<Node>& node) {
    const auto parent = node->parent.lock();
    for (Node::Entry& entry : parent->entries) {
        if (entry.node == node) {
            entry.node = nullptr;
        }
    }
    return node;
}

void MadeUpTree::put(const std::shared_ptr<Node>& folder, const std::shared_ptr<Node>& node,
                     const std::string& name) {
    node->parent = folder;
    folder->entries.push_back({name, node});
}

void MadeUpTree::make(ByteSource& bytes) {
    std::shared_ptr<Node> folder = m_item;
    while (!bytes.isEmpty() && m_made.size() < mostNodes) {
        const std::uint8_t choice = bytes.take() % 8;
        if (choice == 0) {
            folder = folder == m_item ? m_item : folder->parent.lock();
        } else if (choice == 1) { // a chain
            for (int levels = bytes.take() % 40; levels >= 0; --levels) {
                folder = add(folder, Node::Kind::folder, takeName(bytes));
            }
        } else if (choice == 2) { // many
            for (int files = bytes.take() % 64; files >= 0; --files) {
                add(folder, Node::Kind::file, takeName(bytes))->size = files;
            }
        } else {
            constexpr std::array kinds{Node::Kind::folder, Node::Kind::folder, Node::Kind::link,
                                       Node::Kind::file, Node::Kind::file};
            const auto node = add(folder, kinds.at(choice - 3U), takeName(bytes));
            spoil(*node, bytes);
            folder = choice == 3 ? node : folder;
        }
    }
}

void MadeUpTree::spoil(Node& node, ByteSource& bytes) {
    node.size = bytes.takeInteger() & 0xFF'FFFF'FFFF;
    const std::uint8_t choice = bytes.take();
    node.told = choice % 16 == 1   ? Node::Told::wrongly
                : choice % 16 == 2 ? Node::Told::notAtAll
                                   : Node::Told::truly;
    node.openError = choice / 16 == 1 ? EACCES : 0;
    node.listError = choice / 16 == 2 ? EIO : 0;
    node.statError = choice / 16 == 3 ? EACCES : 0;
    node.unlinkError = choice / 16 == 4 ? EPERM : 0;
    node.mount = choice / 16 == 5 ? ++m_mounts : node.mount;
}

std::string MadeUpTree::takeName(ByteSource& bytes) const {
    const std::uint8_t size = bytes.take() % 8;
    std::string name = bytes.takeText(size);
    std::ranges::replace(name, '/', '_');
    std::ranges::replace(name, '\0', '_');
    name.append(size == 7 ? 200 : 0, 'x');
    return std::to_string(m_inodes) + "-" + name; // no two alike
}

bool isAtOrAbove(const Node& folder, const Node& other) {
    const auto parent = other.parent.lock();
    return &folder == &other || (parent != nullptr && isAtOrAbove(folder, *parent));
}

std::int64_t sizeBelow(const Node& folder) {
    std::int64_t size = 0;
    for (const Node::Entry& entry : folder.entries) {
        const Node* const node = entry.node.get();
        if (node != nullptr && node->statError == 0) {
            const bool isOpen = node->isFolder() && node->openError == 0 && node->listError == 0;
            size += node->size + (isOpen ? sizeBelow(*node) : 0);
        }
    }
    return size;
}

std::set<int> obstaclesIn(const Node& node, const Node& parent) {
    std::set<int> errors;
    const bool isEntered = node.isFolder() && node.openError == 0;
    errors.insert(node.unlinkError);
    errors.insert(node.told == Node::Told::wrongly ? ENOTEMPTY : 0);
    errors.insert(node.mount != parent.mount ? EBUSY : 0);
    errors.insert(node.isFolder() && !node.isEmpty() ? node.openError : 0);
    errors.insert(isEntered ? node.listError : 0);
    for (const Node::Entry& entry : node.entries) {
        if (entry.node != nullptr) {
            errors.merge(obstaclesIn(*entry.node, node));
        }
    }
    errors.erase(0);
    return errors;
}

} // namespace drossbin::fuzz
