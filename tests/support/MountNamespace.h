#pragma once

#include <functional>
#include <optional>
#include <string>

namespace drossbin::test {

/// Runs `job` in a child process whose mounts nobody else sees and which may mount; returns what
/// `job` returned, or nothing where the system grants no such process.
std::optional<bool> holdsInMountNamespace(const std::function<bool()>& job);

// To be called by such a job; each returns whether the mount could be made.

/// Mounts an empty file system in memory of `size` bytes over the folder at `path`.
bool mountMemory(const std::string& path, const std::string& size);

/// Mounts an empty Btrfs over the folder at `path`, which takes its tools and a loop device.
bool mountBtrfs(const std::string& path);

/// Shows the file or folder at `source` at `path` too.
bool mountAgain(const std::string& source, const std::string& path);

/// Lets nobody write to what is mounted at `path`.
bool makeReadOnly(const std::string& path);

/// Shows the folder "lower" of `folder` at "shown" beside it; what is changed there goes to
/// "changed". The three and a "work" of the overlay's own have to be there.
bool mountOverlay(const std::string& folder);

} // namespace drossbin::test
