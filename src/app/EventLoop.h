#pragma once

namespace drossbin {

/// Makes the calling thread the main thread, whose jobs the application's event loop runs.
void connectMainThreadToEventLoop();

} // namespace drossbin
