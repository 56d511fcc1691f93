#pragma once

namespace drossbin {

/// Lets the main thread go before the calling one wherever both want a core, as far as the system
/// can do it. A thread that one of low priority started may call it too: it gets no lower.
void goAfterOthers();

} // namespace drossbin
