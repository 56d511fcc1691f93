#pragma once

#include "platform/Locale.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace drossbin {

/// A text as a search compares it: folded if it is ASCII, and as it was if it is not.
struct FoldedText {
    std::string_view bytes;
    bool isAscii;
};

/// Makes capitals and small letters alike, by the rules of a locale.
class CaseFolding {
  public:
    /// As many bytes as a processor folds at once.
    using Block = std::array<unsigned char, 16>;

    explicit CaseFolding(const Locale& locale);

    /// ICU's option, for folding beyond ASCII.
    [[nodiscard]] std::uint32_t option() const { return m_option; }

    /// Whether a capital I is none of "i", as in Turkish, and stays as it is in ASCII.
    [[nodiscard]] bool keepsCapitalI() const;

    [[nodiscard]] static std::size_t blocksFor(std::string_view text) {
        return text.size() / sizeof(Block) + 1;
    }

    /// Folds `text` into `blocks`, which must be as many as it needs. The result points into them.
    [[nodiscard]] FoldedText fold(std::string_view text, std::span<Block> blocks) const;

  private:
    [[nodiscard]] bool foldAscii(std::span<Block> blocks) const;

    std::uint32_t m_option;
};

} // namespace drossbin
