#pragma once

#include <string>
#include <string_view>

namespace drossbin {

/// A name from the file system as one line of harmless text: valid UTF-8, bytes that are none as
/// U+FFFD, and as visible escapes ("\n", "\x1B", "\u202E") what would end the line or turn the text
/// around it: control characters, separators of lines and paragraphs, and the marks that embed,
/// override or isolate a direction. The plain marks of direction (U+200E, U+200F, U+061C) stay. For
/// people's eyes only: what names a file is always the raw bytes.
std::string displayText(std::string_view bytes);

} // namespace drossbin
