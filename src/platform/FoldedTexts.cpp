#include "platform/FoldedTexts.h"

#include <span>

namespace drossbin {

void FoldedTexts::add(std::string_view text) {
    const std::size_t firstBlock = m_blocks.size();
    m_blocks.resize(firstBlock + CaseFolding::blocksFor(text));
    const bool isAscii = m_folding.fold(text, std::span(m_blocks).subspan(firstBlock)).isAscii;
    m_texts.push_back({firstBlock, text.size(), isAscii});
}

} // namespace drossbin
