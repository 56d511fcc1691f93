#include "app/Formatting.h"

#include "platform/words/ByteCountFormatter.h"
#include "platform/words/DisplayText.h"
#include "platform/words/IntegerFormatter.h"

namespace drossbin {

QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QString displayQString(std::string_view bytes) {
    return toQString(displayText(bytes));
}

QString sizeText(std::int64_t bytes) {
    return toQString(ByteCountFormatter::string(bytes));
}

QString countText(std::size_t count) {
    return toQString(IntegerFormatter::string(static_cast<std::int64_t>(count)));
}

QString itemsAndSizeText(std::size_t count, std::int64_t bytes) {
    return QStringLiteral("%1 items · %2").arg(countText(count), sizeText(bytes));
}

} // namespace drossbin
