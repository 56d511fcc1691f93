#pragma once

#include <string>
#include <system_error>

namespace drossbin {

/// These do what the functions of the same name in FileManager promise.
std::error_code writeAtomically(const std::string& text, const std::string& path);
void removeTemporaryFiles(const std::string& folder);

} // namespace drossbin
