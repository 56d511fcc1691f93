#pragma once

#include <string>
#include <string_view>

namespace drossbin {

/// A name from the file system as one line of harmless text: valid UTF-8, bytes that are none as
/// U+FFFD, control characters and bidirectional controls as visible escapes ("\n", "\x1B",
/// "\u202E"). For people's eyes only: what names a file is always the raw bytes.
std::string displayText(std::string_view bytes);

} // namespace drossbin
