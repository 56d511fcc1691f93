#include "platform/folders/DirectoryReader.h"

#include "platform/folders/SystemError.h"

#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace drossbin {

namespace {

#ifdef DROSSBIN_LINUX
using Record = dirent64;
#else
using Record = dirent;
#endif

DirectoryBlock::Kind kindOf(const Record& record) {
    switch (record.d_type) {
    case DT_UNKNOWN:
        return DirectoryBlock::Kind::unknown;
    case DT_DIR:
        return DirectoryBlock::Kind::folder;
    default:
        return DirectoryBlock::Kind::other;
    }
}

bool isSelfOrParent(const char* name) {
    return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

} // namespace

std::optional<DirectoryBlock::Entry> DirectoryBlock::next() {
    while (m_next < m_end) {
        const auto* record = reinterpret_cast<const Record*>(m_records->data() + m_next);
        m_next += record->d_reclen;
        if (!isSelfOrParent(record->d_name)) {
            return Entry{record->d_name, record->d_ino, kindOf(*record)};
        }
    }
    return std::nullopt;
}

bool DirectoryReader::read(DirectoryBlock& block, std::size_t capacity) {
    if (!block.m_records) {
        // Not std::make_unique: it would clear 64 KiB for a folder that needs 200 bytes.
        block.m_records =
            std::make_unique_for_overwrite<std::array<std::byte, DirectoryBlock::capacity>>();
    }
    block.m_next = 0;
    m_error = {};
    block.m_end = fill(block.m_records->data(), std::min(capacity, DirectoryBlock::capacity));
    if (m_error == std::errc::no_such_file_or_directory) {
        m_error = {}; // the folder was removed while it was open, and so ends here
    }
    return block.m_end > 0;
}

#ifdef DROSSBIN_LINUX

// The system call itself: readdir reads half as much at a time and needs a descriptor of its own.

DirectoryReader::DirectoryReader(int folder, Position start)
    : m_folder(folder) {
    if (start != 0) {
        ::lseek(m_folder, start, SEEK_SET);
    }
}

std::size_t DirectoryReader::fill(std::byte* records, std::size_t capacity) {
    const ssize_t size = ::getdents64(m_folder, records, capacity);
    if (size < 0) {
        m_error = lastSystemError();
    }
    return size > 0 ? static_cast<std::size_t>(size) : 0;
}

// NOLINTNEXTLINE(readability-make-member-function-const): it moves the folder's position
void DirectoryReader::rewind() {
    ::lseek(m_folder, 0, SEEK_SET);
}

DirectoryReader::Position DirectoryReader::position() const {
    return ::lseek(m_folder, 0, SEEK_CUR);
}

#else

// The positions of readdir do not outlive its stream: here a position is a count of entries.

DirectoryReader::DirectoryReader(int folder, Position start)
    : m_folder(folder)
    , m_position(start) {}

void DirectoryReader::openStream() {
    const int descriptor = ::openat(m_folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) {
        m_error = lastSystemError();
        return;
    }
    m_stream.reset(::fdopendir(descriptor));
    if (!m_stream) {
        m_error = lastSystemError();
        ::close(descriptor);
        return;
    }
    for (Position skipped = 0; skipped < m_position; ++skipped) {
        ::readdir(m_stream.get());
    }
}

std::size_t DirectoryReader::fill(std::byte* records, std::size_t capacity) {
    if (!m_stream && !m_ending) {
        openStream();
    }
    std::size_t end = 0;
    while (m_stream && end + sizeof(Record) <= capacity) {
        errno = 0; // the one sign by which readdir tells the end from an error
        const Record* record = ::readdir(m_stream.get());
        if (record == nullptr) {
            m_ending = errno != 0 ? lastSystemError() : std::error_code();
            m_stream.reset(); // its descriptor may be wanted by what was found
            break;
        }
        auto* copy = reinterpret_cast<Record*>(records + end);
        std::memcpy(copy, record, record->d_reclen);
        constexpr std::size_t alignment = alignof(Record);
        const std::size_t length = (record->d_reclen + alignment - 1) / alignment * alignment;
        copy->d_reclen = static_cast<decltype(copy->d_reclen)>(length);
        end += length;
        ++m_position;
    }
    if (end == 0 && m_ending) {
        m_error = *m_ending;
    }
    return end;
}

void DirectoryReader::rewind() {
    m_position = 0;
    m_ending.reset();
    m_stream.reset();
}

DirectoryReader::Position DirectoryReader::position() const {
    return m_position;
}

#endif

} // namespace drossbin
