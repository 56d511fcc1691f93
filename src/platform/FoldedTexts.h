#pragma once

#include "platform/CaseFolding.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace drossbin {

/// Texts that are to be searched again and again: folded once and stored one behind the other, so
/// that a search reads memory straight on.
class FoldedTexts {
  public:
    explicit FoldedTexts(const Locale& locale = Locale::current())
        : m_folding(locale) {}

    void add(std::string_view text);

    /// By its place in the order of adding. Points into these texts until the next is added.
    [[nodiscard]] FoldedText operator[](std::size_t place) const {
        const Text& text = m_texts[place];
        const CaseFolding::Block* const start = &m_blocks[text.firstBlock];
        return {{reinterpret_cast<const char*>(start), text.size}, text.isAscii};
    }

  private:
    struct Text {
        std::size_t firstBlock;
        std::size_t size; ///< in bytes
        bool isAscii;
    };

    CaseFolding m_folding;
    std::vector<CaseFolding::Block> m_blocks;
    std::vector<Text> m_texts;
};

} // namespace drossbin
