#pragma once

#include <string_view>

namespace drossbin {

/// Ends the program at once with one line on stderr. For programming errors, and for want of
/// memory: a wrong sum or a field written from the wrong thread must never lead to a wrong
/// deletion.
[[noreturn]] void stopProgram(std::string_view line);

} // namespace drossbin
