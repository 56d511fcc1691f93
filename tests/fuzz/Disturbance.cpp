#include "Disturbance.h"

#include <algorithm>
#include <string>

namespace drossbin::fuzz {

Disturbance::Disturbance(ByteSource& bytes) {
    for (int count = bytes.take() % 16; count > 0; --count) {
        m_changes.push_back({bytes.take() % 32, bytes.take(), bytes.take()});
    }
    std::ranges::reverse(m_changes);
}

void Disturbance::strike(MadeUpTree& tree) {
    if (m_changes.empty() || --m_changes.back().pause >= 0) {
        return;
    }
    const Change change = m_changes.back();
    m_changes.pop_back();
    apply(change, tree);
}

void Disturbance::apply(const Change& change, MadeUpTree& tree) {
    const auto node = tree.made(change.target);
    const auto parent = node ? node->parent.lock() : nullptr;
    if (!parent || node->isCanary) {
        return;
    }
    const std::string name = std::ranges::find(parent->entries, node, &Node::Entry::node)->name;
    switch (change.kind % 6) {
    case 0: // moved out
        MadeUpTree::put(tree.outside(), MadeUpTree::take(node), name);
        break;
    case 1: // moved to another place inside
        if (const auto folder = tree.made(change.kind);
            folder && folder->isFolder() && !isAtOrAbove(*node, *folder)) {
            MadeUpTree::put(folder, MadeUpTree::take(node), name);
        }
        break;
    case 2: // replaced by a link, a file or a folder
    case 3:
        MadeUpTree::put(tree.outside(), MadeUpTree::take(node), name);
        tree.add(parent, static_cast<Node::Kind>(change.kind / 6 % 3), name);
        break;
    case 4: // gone, with all that is in it
        MadeUpTree::take(node)->parent.reset();
        break;
    default: // grown
        if (node->isFolder()) {
            tree.add(node, static_cast<Node::Kind>(change.kind / 6 % 3), "late " + name);
        }
    }
}

} // namespace drossbin::fuzz
