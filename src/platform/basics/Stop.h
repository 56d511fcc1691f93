#pragma once

#include <string_view>

namespace drossbin {

/// Ends the program at once with one line on stderr. For programming errors: a wrong sum or
/// a field written from the wrong thread must never lead to a wrong deletion.
[[noreturn]] void stopProgram(std::string_view line);

/// From now on the program also ends so when there is no memory left. An exception would do worse:
/// a flow of the screens would keep it to itself, and wait for ever.
void stopWhenOutOfMemory();

} // namespace drossbin
