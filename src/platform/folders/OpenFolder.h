#pragma once

#include "platform/folders/FileDescriptor.h"
#include "platform/folders/FolderIdentity.h"
#include "platform/folders/SystemError.h"

namespace drossbin {

/// An open folder, and which one it is, wherever it may be moved.
struct OpenFolder {
    FileDescriptor descriptor;
    FolderIdentity identity;

    [[nodiscard]] bool isOpen() const { return descriptor.isOpen(); }
    [[nodiscard]] int get() const { return descriptor.get(); }
};

enum class LastLink : bool { followed, refused };

/// Opens the folder `name` in the open folder `parent`, and nothing but a folder: opening a pipe
/// or a device would wait, or act. Not open on failure, with the reason in errno.
FileDescriptor openFolder(int parent, const char* name, LastLink link);

/// Whether an error, by default the one in errno, says that the process or the system may open no
/// more files.
[[nodiscard]] bool lacksDescriptors(const std::error_code& error = lastSystemError());

} // namespace drossbin
