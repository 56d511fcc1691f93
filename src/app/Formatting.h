#pragma once

#include <QString>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace drossbin {

/// A text of our own, UTF-8, as Qt holds texts.
QString toQString(std::string_view text);

/// A name from the file system as one line of harmless text.
QString displayQString(std::string_view bytes);

/// A byte count in file style.
QString sizeText(std::int64_t bytes);

/// A count with the locale's digits and separators.
QString countText(std::size_t count);

/// "3 items · 4 MB"
QString itemsAndSizeText(std::size_t count, std::int64_t bytes);

} // namespace drossbin
