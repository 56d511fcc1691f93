#pragma once

#include <cerrno>
#include <system_error>

namespace drossbin {

/// Why the last system call of this thread failed.
inline std::error_code lastSystemError() {
    return {errno, std::generic_category()};
}

} // namespace drossbin
