#pragma once

#include "model/DiskItem.h"
#include "platform/FoldedTexts.h"

#include <cstddef>
#include <vector>

namespace drossbin {

/// What a search looks through of a list of items, by the places of the items. A copy, which holds
/// as long as the list has the same items: what they are called never changes.
class ItemTexts {
  public:
    explicit ItemTexts(const std::vector<DiskItem>& items) {
        for (const DiskItem& item : items) {
            m_texts.add(item.name);
            m_texts.add(item.path);
        }
    }

    [[nodiscard]] FoldedText name(std::size_t place) const { return m_texts[2 * place]; }
    [[nodiscard]] FoldedText path(std::size_t place) const { return m_texts[2 * place + 1]; }

  private:
    FoldedTexts m_texts;
};

} // namespace drossbin
