#pragma once

#include "platform/folders/DirectoryReader.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <system_error>
#include <vector>

namespace drossbin {

/// Some entries of a folder in the order of their inodes. Removed in that order they free the
/// inode table block by block, where a folder's own order is as good as random: the larger the
/// folder, the more that saves. Bounded, so that a folder of any size takes little memory.
class EntryBatch {
  public:
    struct Entry {
        std::uint64_t inode;
        std::uint32_t nameStart;
        DirectoryBlock::Kind kind;
    };

    /// Replaces the batch by the next entries that `reader` finds.
    std::error_code readFrom(DirectoryReader& reader);

    /// Whether nothing followed the batch in its folder.
    [[nodiscard]] bool endsFolder() const { return m_endsFolder; }

    [[nodiscard]] const std::vector<Entry>& entries() const { return m_entries; }

    /// The raw bytes of an entry's name; valid until the next batch is read.
    [[nodiscard]] const char* name(const Entry& entry) const {
        return m_names.data() + entry.nameStart;
    }

  private:
    void takeBlock();
    [[nodiscard]] bool isFull() const;

    DirectoryBlock m_block;
    std::vector<Entry> m_entries;
    std::string m_names; ///< each closed by a zero
    std::size_t m_folders = 0;
    bool m_endsFolder = false;
};

} // namespace drossbin
