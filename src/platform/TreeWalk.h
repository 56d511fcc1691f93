#pragma once

#include "platform/DirectoryReader.h"
#include "platform/FolderStack.h"
#include "platform/Measurement.h"
#include "platform/OpenFolder.h"
#include "platform/ThreadPace.h"

#include <cstddef>
#include <cstdint>
#include <string>

namespace drossbin {

/// A part of a tree that one thread takes on: entries of one folder and all that is below them.
struct Parcel {
    OpenFolder folder;
    DirectoryBlock entries; ///< to be measured
    std::string subfolders; ///< to be entered: names, each ended by a null byte
};

/// One thread's walk through its part of a tree. Once it proves large, it gives parts away as
/// long as the crew wants some.
class TreeWalk {
  public:
    explicit TreeWalk(Measurement& measurement)
        : m_measurement(measurement)
        , m_stack(measurement) {}

    /// The sum of the sizes of everything below `folder`, less what was given away.
    std::int64_t sizeBelow(OpenFolder folder);

    /// The same for a parcel that another walk gave away.
    std::int64_t sizeOf(Parcel parcel);

    /// The size of all that was given away, by this walk and those that took it. Waits for it.
    std::int64_t sizeGivenAway();

  private:
    void walk();
    void readOn();
    void measure(DirectoryBlock& entries);
    void measure(const DirectoryBlock::Entry& entry);
    void enterLastSubfolder();
    FileDescriptor openSubfolder(const char* name);

    void takeStock();
    bool giveAway(DirectoryBlock& entries);

    Measurement& m_measurement;
    WalkCrew* m_crew = nullptr; ///< absent until the walk proves large
    FolderStack m_stack;
    DirectoryBlock m_entries;
    std::int64_t m_size = 0;

    /// Entries before the first look at what others want, and between two looks. Less is dearer
    /// to give away than to do.
    static constexpr std::size_t firstStretch = 256;
    static constexpr std::size_t stretch = 128;
    std::size_t m_untilStock = firstStretch;
    ThreadPace m_pace;
};

} // namespace drossbin
