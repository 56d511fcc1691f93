#pragma once

namespace drossbin {

/// From now on the program stops with one line where `new` or ICU finds no memory. To go on would
/// be worse: a flow of the screens keeps an exception to itself and waits for ever, and ICU may
/// crash or give no date, which a scan takes for one that no calendar has. Qt's own containers take
/// their memory by neither and throw. To be called before ICU is used.
void stopWhenOutOfMemory();

} // namespace drossbin
