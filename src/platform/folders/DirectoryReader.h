#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <dirent.h>
#include <memory>
#include <optional>
#include <system_error>

namespace drossbin {

/// Some entries of a folder, as one read of the folder found them; "." and ".." are left out.
class DirectoryBlock {
  public:
    static constexpr std::size_t capacity = std::size_t{64} * 1024;

    /// `unknown` where the file system does not tell; even what it tells may be out of date.
    enum class Kind { unknown, folder, other };

    struct Entry {
        const char* name; ///< raw bytes; valid until the block is filled again or goes
        std::uint64_t inode;
        Kind kind;
    };

    /// The next entry of the block, in the system's order; absent after the last one.
    std::optional<Entry> next();

    /// How much of the capacity the entries that are left take.
    [[nodiscard]] std::size_t bytesLeft() const { return m_end - m_next; }

  private:
    friend class DirectoryReader;

    std::unique_ptr<std::array<std::byte, capacity>> m_records;
    std::size_t m_next = 0;
    std::size_t m_end = 0;
};

/// Reads a folder that is open elsewhere, a block at a time. It borrows the descriptor, which must
/// stay open meanwhile, and moves its position: one reader a descriptor.
class DirectoryReader {
  public:
    /// A place in a folder's list of entries. It holds for a later opening of the same folder too.
    using Position = std::int64_t;

    explicit DirectoryReader(int folder, Position start = 0);

    /// Fills `block` with the next entries, using at most `capacity` bytes of it (2 KiB or more).
    /// False, and the block empty, at the end of the folder and when it cannot be read: `error`
    /// tells which. A folder that was removed meanwhile is at its end.
    bool read(DirectoryBlock& block, std::size_t capacity = DirectoryBlock::capacity);

    /// Why the last read failed; no error when it did not.
    [[nodiscard]] std::error_code error() const { return m_error; }

    /// Starts again at the first entry, with what the folder holds by then.
    void rewind();

    /// The place behind what was read so far.
    [[nodiscard]] Position position() const;

  private:
    std::size_t fill(std::byte* records, std::size_t capacity);

    int m_folder;
    std::error_code m_error;
#ifndef DROSSBIN_LINUX
    struct CloseStream {
        void operator()(DIR* stream) const { ::closedir(stream); }
    };

    void openStream();

    Position m_position;
    std::unique_ptr<DIR, CloseStream> m_stream;
    std::optional<std::error_code> m_ending; ///< the error that ended the stream, or none
#endif
};

} // namespace drossbin
