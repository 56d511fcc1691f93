#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace drossbin::fuzz {

/// What a fuzzer made up, taken from its start; zeros after its end.
class ByteSource {
  public:
    ByteSource(const std::uint8_t* bytes, std::size_t size)
        : m_bytes(bytes)
        , m_size(size) {}

    [[nodiscard]] bool isEmpty() const { return m_next == m_size; }

    std::uint8_t take() { return isEmpty() ? std::uint8_t{0} : m_bytes[m_next++]; }

    std::int64_t takeInteger() {
        std::uint64_t bits = 0;
        for (int byte = 0; byte < 8; ++byte) {
            bits = bits << 8U | take();
        }
        return static_cast<std::int64_t>(bits);
    }

    std::string takeText(std::size_t size) {
        std::string text;
        while (text.size() < size && !isEmpty()) {
            text.push_back(static_cast<char>(take()));
        }
        return text;
    }

    std::string takeRest() { return takeText(m_size); }

  private:
    const std::uint8_t* m_bytes;
    std::size_t m_size;
    std::size_t m_next = 0;
};

} // namespace drossbin::fuzz
