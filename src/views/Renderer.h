#pragma once

namespace drossbin {

/// Has the window drawn by the graphics card or, where there is none, plainly by the processor,
/// unless QT_QUICK_BACKEND in the environment says by what. To be called before the first window is
/// made.
void chooseRenderer();

} // namespace drossbin
