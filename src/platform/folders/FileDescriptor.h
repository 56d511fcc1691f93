#pragma once

#include <unistd.h>
#include <utility>

namespace drossbin {

/// Owns one open descriptor and closes it when it goes.
class FileDescriptor {
  public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor)
        : m_descriptor(descriptor) {}
    FileDescriptor(FileDescriptor&& other) noexcept
        : m_descriptor(std::exchange(other.m_descriptor, none)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(m_descriptor, other.m_descriptor);
        return *this;
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    ~FileDescriptor() { close(); }

    [[nodiscard]] bool isOpen() const { return m_descriptor != none; }
    [[nodiscard]] int get() const { return m_descriptor; }

    void close() {
        if (isOpen()) {
            ::close(std::exchange(m_descriptor, none));
        }
    }

  private:
    static constexpr int none = -1;
    int m_descriptor = none;
};

} // namespace drossbin
