#include "support/SystemCalls.h"

#include "support/SystemFunction.h"

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <dirent.h>
#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace drossbin::test {

namespace {

thread_local const SystemCallHook::Hook* currentHook = nullptr;
std::atomic<const SystemCallHook::Hook*> everyThreadsHook = nullptr;
thread_local bool isAsking = false;
thread_local bool hidesKinds = false;
std::atomic<const StandInFolder*> standIn = nullptr;

const char* ledFrom(const char* path) {
    const StandInFolder* const folder = standIn;
    return folder != nullptr ? folder->pathFor(path) : path;
}

} // namespace

SystemCallHook::SystemCallHook(Hook hook, Threads threads)
    : m_hook(std::move(hook)) {
    if (threads == Threads::all) {
        everyThreadsHook = &m_hook;
    } else {
        currentHook = &m_hook;
    }
}

SystemCallHook::~SystemCallHook() {
    everyThreadsHook = nullptr;
    currentHook = nullptr;
    hidesKinds = false;
}

// What the hook itself does leaves no trace in `errno`: it belongs to the caller, who is about to
// find out what only its own call did.
bool SystemCallHook::isLetThrough(const Call& call) {
    const Hook* const hook = currentHook != nullptr ? currentHook : everyThreadsHook.load();
    if (hook == nullptr || isAsking) {
        return true;
    }
    const int before = errno;
    isAsking = true;
    const int error = (*hook)(call);
    isAsking = false;
    errno = error != 0 ? error : before;
    return error == 0;
}

void SystemCallHook::hideKinds() {
    hidesKinds = true;
}

StandInFolder::StandInFolder(std::string place, std::string folder)
    : m_place(std::move(place))
    , m_folder(std::move(folder)) {
    standIn = this;
}

StandInFolder::~StandInFolder() {
    standIn = nullptr;
}

const char* StandInFolder::pathFor(const char* path) const {
    return m_place == path ? m_folder.c_str() : path;
}

} // namespace drossbin::test

using drossbin::test::ledFrom;
using drossbin::test::SystemCallHook;
using drossbin::test::systemFunction;

// NOLINTBEGIN: the names and signatures are the system's

extern "C" {

int openat(int folder, const char* name, int flags, ...) {
    static const auto next = systemFunction(&openat, "openat");
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = (flags & O_CREAT) != 0 ? va_arg(arguments, unsigned int) : 0U;
    va_end(arguments);
    return SystemCallHook::isLetThrough({"openat", name}) ? next(folder, ledFrom(name), flags, mode)
                                                          : -1;
}

int unlinkat(int folder, const char* name, int flags) __THROW {
    static const auto next = systemFunction(&unlinkat, "unlinkat");
    return SystemCallHook::isLetThrough({"unlinkat", name}) ? next(folder, name, flags) : -1;
}

int fstatat(int folder, const char* name, struct stat* status, int flags) __THROW {
    static const auto next = systemFunction(&fstatat, "fstatat");
    return SystemCallHook::isLetThrough({"fstatat", name}) ? next(folder, name, status, flags) : -1;
}

int fstat(int file, struct stat* status) __THROW {
    static const auto next = systemFunction(&fstat, "fstat");
    return SystemCallHook::isLetThrough({"fstat", ""}) ? next(file, status) : -1;
}

int lstat(const char* path, struct stat* status) __THROW {
    static const auto next = systemFunction(&lstat, "lstat");
    return SystemCallHook::isLetThrough({"lstat", path}) ? next(ledFrom(path), status) : -1;
}

ssize_t write(int file, const void* bytes, size_t size) {
    static const auto next = systemFunction(&write, "write");
    return SystemCallHook::isLetThrough({"write", "", &size}) ? next(file, bytes, size) : -1;
}

int fsync(int file) {
    static const auto next = systemFunction(&fsync, "fsync");
    return SystemCallHook::isLetThrough({"fsync", "", nullptr, file}) ? next(file) : -1;
}

int renameat(int from, const char* oldName, int to, const char* newName) __THROW {
    static const auto next = systemFunction(&renameat, "renameat");
    return SystemCallHook::isLetThrough({"renameat", newName}) ? next(from, oldName, to, newName)
                                                               : -1;
}

int mkdir(const char* path, mode_t mode) __THROW {
    static const auto next = systemFunction(&mkdir, "mkdir");
    return SystemCallHook::isLetThrough({"mkdir", path}) ? next(path, mode) : -1;
}

int getpwuid_r(uid_t user, struct passwd* entry, char* buffer, size_t size, struct passwd** found) {
    static const auto next = systemFunction(&getpwuid_r, "getpwuid_r");
    return SystemCallHook::isLetThrough({"getpwuid_r", ""}) ? next(user, entry, buffer, size, found)
                                                            : errno;
}

#ifdef DROSSBIN_LINUX

int statx(int folder, const char* name, int flags, unsigned int fields,
          struct statx* status) __THROW {
    static const auto next = systemFunction(&statx, "statx");
    return SystemCallHook::isLetThrough({"statx", name}) ? next(folder, name, flags, fields, status)
                                                         : -1;
}

ssize_t getdents64(int folder, void* records, size_t size) __THROW {
    static const auto next = systemFunction(&getdents64, "getdents64");
    if (!SystemCallHook::isLetThrough({"getdents64", ""})) {
        return -1;
    }
    const ssize_t end = next(folder, records, size);
    for (ssize_t at = 0; drossbin::test::hidesKinds && at < end;) {
        auto* record = reinterpret_cast<dirent64*>(static_cast<char*>(records) + at);
        record->d_type = DT_UNKNOWN;
        at += record->d_reclen;
    }
    return end;
}

#else

dirent* readdir(DIR* folder) {
    static const auto next = systemFunction(&readdir, "readdir");
    dirent* const record = SystemCallHook::isLetThrough({"readdir", ""}) ? next(folder) : nullptr;
    if (record != nullptr && drossbin::test::hidesKinds) {
        record->d_type = DT_UNKNOWN;
    }
    return record;
}

#endif
}

// NOLINTEND
