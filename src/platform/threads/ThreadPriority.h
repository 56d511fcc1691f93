#pragma once

namespace drossbin {

/// Lets the program's other threads go before the calling one wherever both want a core. As far as
/// the system can do it; to be called once by a thread.
void goAfterOthers();

} // namespace drossbin
