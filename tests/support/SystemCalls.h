#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace drossbin::test {

/// The call that reads a folder: a block of entries on Linux, a single one elsewhere.
#ifdef DROSSBIN_LINUX
inline constexpr std::string_view readsFolder = "getdents64";
#else
inline constexpr std::string_view readsFolder = "readdir";
#endif

/// While it lives, `hook` is asked before each call that this thread, or every one, makes to the
/// file system or the user database: it may make the call fail, shorten it, or change the disk in
/// between. Its own calls go through.
///
/// A program that uses this has functions of its own in front of the system's: openat, unlinkat,
/// fstatat, fstat, lstat, statx, getdents64 or readdir, write, fsync, renameat, mkdir and
/// getpwuid_r.
class SystemCallHook {
  public:
    struct Call {
        std::string_view function;
        std::string_view name;       ///< of the entry that it is about, or empty
        std::size_t* size = nullptr; ///< how much is to be written; may be lowered
        int file = -1;               ///< the descriptor that is to be flushed
    };

    /// Returns the error number that the call is to fail with, or 0 to let it through.
    using Hook = std::function<int(const Call&)>;

    enum class Threads : bool { current, all };

    explicit SystemCallHook(Hook hook, Threads threads = Threads::current);
    ~SystemCallHook();
    SystemCallHook(const SystemCallHook&) = delete;
    SystemCallHook& operator=(const SystemCallHook&) = delete;
    SystemCallHook(SystemCallHook&&) = delete;
    SystemCallHook& operator=(SystemCallHook&&) = delete;

    /// Whether the call may go on; if not, `errno` is set. For the functions in front.
    static bool isLetThrough(const Call& call);

    /// Makes folders keep the kinds of their entries to themselves, as some file systems do.
    void hideKinds();

  private:
    Hook m_hook;
};

/// While it lives, every thread that opens the folder at `place`, or asks about its entry, is led
/// to the one at `folder` instead. One at a time.
class StandInFolder {
  public:
    StandInFolder(std::string place, std::string folder);
    ~StandInFolder();
    StandInFolder(const StandInFolder&) = delete;
    StandInFolder& operator=(const StandInFolder&) = delete;
    StandInFolder(StandInFolder&&) = delete;
    StandInFolder& operator=(StandInFolder&&) = delete;

    /// Where a call about `path` is led to.
    const char* pathFor(const char* path) const;

  private:
    std::string m_place;
    std::string m_folder;
};

} // namespace drossbin::test
