#pragma once

#include <string>

namespace drossbin::test {

/// What the superuser may forbid even to itself.
enum class FileFlag { immutable, appendOnly };

/// Sets a flag of the file or folder at `path`; returns whether it could, which takes the superuser
/// and a file system that knows such flags.
bool setFlag(const std::string& path, FileFlag flag);

/// Takes both flags away.
void clearFlags(const std::string& path);

} // namespace drossbin::test
