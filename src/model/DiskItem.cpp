#include "model/DiskItem.h"

#include "platform/words/ByteCountFormatter.h"
#include "platform/words/RelativeDateTimeFormatter.h"

namespace drossbin {

std::string DiskItem::formattedDate(Date reference) const {
    if (!lastAccessed) {
        return "—";
    }
    return RelativeDateTimeFormatter::localizedString(
        *lastAccessed, reference, RelativeDateTimeFormatter::UnitsStyle::abbreviated);
}

std::string DiskItem::formattedSize() const {
    return ByteCountFormatter::string(size);
}

} // namespace drossbin
