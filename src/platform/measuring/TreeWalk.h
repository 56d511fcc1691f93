#pragma once

#include "platform/folders/DirectoryReader.h"
#include "platform/folders/OpenFolder.h"
#include "platform/measuring/FolderStack.h"
#include "platform/measuring/Subtree.h"
#include "platform/threads/ThreadUsage.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace drossbin {

class MeasuringPool;

/// One thread's walk through its part of a tree. Once it proves large, it gives parts away as
/// long as the pool wants some.
class TreeWalk {
  public:
    /// With the help of `pool`, or alone where that is null.
    explicit TreeWalk(MeasuringPool* pool)
        : m_pool(pool) {}

    /// The sum of the sizes of everything below `folder`, less what was given away.
    std::int64_t sizeBelow(OpenFolder folder);

    /// The same for what another walk gave away.
    std::int64_t sizeOf(Subtree subtree);

  private:
    void walk();
    void readOn();
    void measure(DirectoryBlock& entries);
    void measure(const DirectoryBlock::Entry& entry);
    void enterLastSubfolder();
    FileDescriptor openSubfolder(const char* name);

    [[nodiscard]] bool isGivenUp() const;
    void giveUp();
    void shareWork();
    bool giveAway(DirectoryBlock& entries);

    MeasuringPool* m_pool;
    bool m_isLarge = false;
    FolderStack m_stack;
    DirectoryBlock m_entries;
    std::int64_t m_size = 0;

    /// Entries before the first look at what others want, and between two looks. Less is dearer
    /// to give away than to do.
    static constexpr std::size_t firstStretch = 256;
    static constexpr std::size_t stretch = 128;
    std::size_t m_untilSharing = firstStretch;
    std::optional<ThreadUsage> m_lastUsage;
};

} // namespace drossbin
