#pragma once

#include "platform/basics/Date.h"

#include <cstdint>
#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace drossbin {

/// The file system as the current user sees it. Every call blocks, may run on any thread, holds
/// nothing open afterwards, and takes paths as raw bytes that are never decoded.
class FileManager {
  public:
    enum class Existence { missing, file, folder };

    struct Attributes {
        std::int64_t size;
        Date modificationDate;
    };

    /// The home folder, without a trailing slash ("" for a home at "/"): `HOME` where it holds an
    /// absolute path, else the user database's entry where that does, else absent.
    static std::optional<std::string> homeDirectoryForCurrentUser();

    /// What `path` leads to, links followed; everything that is no folder is a file. `missing`
    /// also for a dangling link and for a path that may not be searched.
    static Existence existence(const std::string& path);

    /// The names directly inside a folder, hidden ones included, in the system's order; absent
    /// when the folder cannot be listed.
    static std::optional<std::vector<std::string>> contentsOfDirectory(const std::string& path);

    /// Size and date of the entry itself, a link not followed; absent when they cannot be read.
    static std::optional<Attributes> attributesOfItem(const std::string& path);

    /// The sum of the logical sizes of all entries below the folder at `path`, at every depth:
    /// files, folders, links (not followed) and all others; the folder itself is not counted.
    /// What cannot be read is left out. Absent when the folder cannot be opened. A `path` that is
    /// a link to a folder is followed; no link below it ever is.
    static std::optional<std::int64_t> sizeOfFolderContents(const std::string& path);

    /// The capacity in bytes of the volume that holds `path`; absent when it cannot be asked.
    static std::optional<std::int64_t> systemSize(const std::string& path);

    /// Creates a folder and the folders above it that are missing. No error when it exists.
    static std::error_code createDirectory(const std::string& path);

    /// Removes a file, a link (never its target) or a folder with all its contents, permanently.
    /// Stops at the first error and returns it; what was removed until then stays removed. Never
    /// leaves the file system, or the mount, that `path` lies in; a vanished entry is no error.
    static std::error_code removeItem(const std::string& path);

    /// Writes `text` to `path`: the file is there whole or not at all, whenever the program or
    /// the machine stops. Replaces what was there.
    static std::error_code writeAtomically(const std::string& text, const std::string& path);

    /// Removes from a folder the files of `writeAtomically` whose process was killed before they
    /// had their name.
    static void removeTemporaryFiles(const std::string& folder);
};

} // namespace drossbin
