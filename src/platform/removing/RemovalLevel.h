#pragma once

#include "platform/folders/DirectoryReader.h"
#include "platform/folders/FileDescriptor.h"
#include "platform/folders/FolderIdentity.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace drossbin {

/// A folder on the way down to where a removal is, with what is left to do in it.
struct RemovalLevel {
    std::string name; ///< in the level above
    FolderIdentity identity;
    FileDescriptor folder; ///< closed while many levels below are open
    std::optional<DirectoryReader> reader;
    std::vector<std::string> folders; ///< still to be entered, the next one last
    bool isRead = false;
    int passes = 0;

    RemovalLevel(std::string itsName, FolderIdentity itsIdentity, FileDescriptor opened)
        : name(std::move(itsName))
        , identity(itsIdentity) {
        open(std::move(opened));
    }

    void open(FileDescriptor opened) {
        folder = std::move(opened);
        reader.emplace(folder.get());
    }

    /// Forgets what was read: by the time the level is opened again it is gone or read again.
    void close() {
        folders = {};
        isRead = false;
        reader.reset();
        folder.close();
    }
};

} // namespace drossbin
