#pragma once

#include "platform/folders/DirectoryReader.h"
#include "platform/folders/OpenFolder.h"

#include <string>

namespace drossbin {

/// A part of a tree that one walk gives to another: entries of one folder and all below them.
struct Subtree {
    OpenFolder folder;
    DirectoryBlock entries; ///< to be measured
    std::string subfolders; ///< to be entered: names, each ended by a null byte
};

} // namespace drossbin
