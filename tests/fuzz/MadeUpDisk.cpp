#include "MadeUpDisk.h"

#include "Require.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/sysmacros.h>
#include <unistd.h>
#include <utility>

namespace drossbin::fuzz {

namespace {

MadeUpDisk* disk = nullptr;

std::string nameAt(const Node& folder, off_t place) {
    const auto index = static_cast<std::size_t>(place);
    return index == 0 ? "." : index == 1 ? ".." : folder.entries[index - 2].name;
}

} // namespace

MadeUpDisk::MadeUpDisk(MadeUpTree& tree, std::size_t mostOpen, std::function<void()> meanwhile)
    : m_tree(tree)
    , m_mostOpen(mostOpen)
    , m_meanwhile(std::move(meanwhile)) {
    disk = this;
}

MadeUpDisk::~MadeUpDisk() {
    disk = nullptr;
    require(m_openNow == 0, "nothing stays open");
}

MadeUpDisk* MadeUpDisk::of(int descriptor) {
    return descriptor >= firstDescriptor ? disk : nullptr;
}

MadeUpDisk* MadeUpDisk::of(const std::string& path) {
    return path == "/made-up" ? disk : nullptr;
}

MadeUpDisk::Open& MadeUpDisk::opened(int descriptor) {
    const auto index = static_cast<std::size_t>(descriptor - firstDescriptor);
    require(index < m_open.size() && m_open[index].folder != nullptr, "what is used is open");
    return m_open[index];
}

bool MadeUpDisk::isGone(const Node& node) const {
    return &node != m_tree.root().get() && node.parent.lock() == nullptr;
}

int MadeUpDisk::openRoot() {
    return openNode(m_tree.root());
}

int MadeUpDisk::openItem() {
    return openNode(m_tree.item());
}

int MadeUpDisk::openNode(const std::shared_ptr<Node>& node) {
    if (node->openError != 0) {
        return -node->openError;
    }
    if (m_openNow == m_mostOpen) {
        return -EMFILE;
    }
    ++m_openNow;
    const auto free = std::ranges::find_if(m_open, [](const Open& open) { return !open.folder; });
    const auto index = static_cast<int>(free - m_open.begin());
    if (free == m_open.end()) {
        m_open.push_back({node});
    } else {
        *free = {node};
    }
    return firstDescriptor + index;
}

int MadeUpDisk::open(int parent, const std::string& path, int flags) {
    m_meanwhile();
    constexpr int needed = O_DIRECTORY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    require((flags & needed) == needed, "nothing but a folder is opened, and no link followed");
    std::shared_ptr<Node> node = opened(parent).folder;
    for (std::size_t start = 0; start < path.size();) {
        const std::size_t end = std::min(path.find('/', start), path.size());
        const std::string name = path.substr(start, end - start);
        require(name == ".." || end == path.size(), "a path leads up only");
        Node::Entry* const entry = node->find(name);
        std::shared_ptr<Node> next = entry != nullptr ? entry->node : nullptr;
        if (name == "..") {
            next = node == m_tree.root() ? node : node->parent.lock();
        }
        if (!next) {
            return -ENOENT;
        }
        if (!next->isFolder()) {
            return -ENOTDIR;
        }
        node = std::move(next);
        start = end + 1;
    }
    return openNode(node);
}

int MadeUpDisk::close(int descriptor) {
    opened(descriptor).folder.reset();
    --m_openNow;
    return 0;
}

ssize_t MadeUpDisk::list(int folder, std::byte* records, std::size_t capacity) {
    m_meanwhile();
    Open& open = opened(folder);
    if (open.folder->listError != 0 || isGone(*open.folder)) {
        return isGone(*open.folder) ? -ENOENT : -open.folder->listError;
    }
    std::size_t end = 0;
    for (; std::cmp_less(open.place, open.folder->entries.size() + 2); ++open.place) {
        const Node* const node = open.place < 2
                                     ? open.folder.get()
                                     : open.folder->entries[std::size_t(open.place) - 2].node.get();
        const std::string name = nameAt(*open.folder, open.place);
        const std::size_t length = (offsetof(dirent64, d_name) + name.size() + 8) / 8 * 8;
        if (node != nullptr && end + length > capacity) {
            require(end > 0, "a read has room for any entry");
            break;
        }
        if (node != nullptr) {
            auto* record = reinterpret_cast<dirent64*>(records + end);
            record->d_ino = node->inode;
            record->d_off = open.place + 1;
            record->d_reclen = static_cast<unsigned short>(length);
            record->d_type = toldType(*node);
            std::memcpy(static_cast<char*>(record->d_name), name.c_str(), name.size() + 1);
            end += length;
        }
    }
    return static_cast<ssize_t>(end);
}

off_t MadeUpDisk::seek(int folder, off_t place, int whence) {
    Open& open = opened(folder);
    open.place = whence == SEEK_CUR ? open.place + place : place;
    return open.place;
}

int MadeUpDisk::status(int folder, const std::string& name, struct stat& status) {
    m_meanwhile();
    require(name.find('/') == std::string::npos, "a folder is asked about its own entries only");
    std::shared_ptr<Node> node = opened(folder).folder;
    if (!name.empty()) {
        const Node::Entry* const entry = node->find(name);
        node = entry != nullptr ? entry->node : nullptr;
    }
    if (!node || node->statError != 0) {
        return node ? -node->statError : -ENOENT;
    }
    status = {};
    status.st_dev = ::makedev(0, static_cast<unsigned>(node->mount));
    status.st_ino = node->inode;
    status.st_mode = modeOf(*node);
    status.st_size = node->size;
    return 0;
}

int MadeUpDisk::unlink(int folder, const std::string& name, int flags) {
    m_meanwhile();
    const std::shared_ptr<Node> parent = opened(folder).folder;
    require(name != "." && name != ".." && name.find('/') == std::string::npos,
            "what is removed has a name of its own");
    const Node::Entry* const entry = parent->find(name);
    if (entry == nullptr) {
        return -ENOENT;
    }
    const std::shared_ptr<Node> node = entry->node;
    if (node->unlinkError != 0) {
        return -node->unlinkError;
    }
    const bool wantsFolder = (flags & AT_REMOVEDIR) != 0;
    if (wantsFolder != node->isFolder()) {
        return wantsFolder ? -ENOTDIR : -EISDIR;
    }
    if (node->mount != parent->mount) {
        return -EBUSY;
    }
    if (!node->isEmpty()) {
        return -ENOTEMPTY;
    }
    require(!node->isCanary, "nothing outside of the item is removed");
    require(parent->mount == m_tree.item()->mount, "nothing on another mount is removed");
    MadeUpTree::take(node)->parent.reset();
    return 0;
}

} // namespace drossbin::fuzz
