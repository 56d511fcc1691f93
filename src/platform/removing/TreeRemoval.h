#pragma once

#include <string>
#include <system_error>

namespace drossbin {

/// Removes the entry `name` of the open folder `parent`, with everything in it where it is a
/// folder, one entry after another. Stops at the first error and returns it.
///
/// Needs no recursion, a few descriptors and little memory at any depth and width. Every step is
/// taken relative to an open folder, by a name without a slash, without following a link, and
/// never into another mount: whoever moves or replaces entries meanwhile can make the removal
/// fail, but never make it leave the tree.
std::error_code removeEntry(int parent, const std::string& name);

} // namespace drossbin
