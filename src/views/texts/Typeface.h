#pragma once

namespace drossbin {

/// Has all texts drawn in the program's typeface, alike by every renderer. To be called before the
/// first window is made.
void chooseTypeface();

} // namespace drossbin
