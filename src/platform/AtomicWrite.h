#pragma once

#include <string>
#include <system_error>

namespace drossbin {

/// Does what FileManager::writeAtomically promises.
std::error_code writeAtomically(const std::string& text, const std::string& path);

} // namespace drossbin
