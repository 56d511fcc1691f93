#pragma once

#include <string>

namespace drossbin {

/// The folder that a path's last name is in, and that name: "/a/" and "b" of "/a/b". The folder is
/// "." for a name alone; the name is empty after a trailing slash.
struct PathParts {
    std::string folder;
    std::string name;

    explicit PathParts(const std::string& path) {
        const std::size_t nameStart = path.rfind('/') + 1; // 0 where there is no slash
        folder = nameStart == 0 ? "." : path.substr(0, nameStart);
        name = path.substr(nameStart);
    }
};

} // namespace drossbin
