// Functions in front of the system's that only whole runs want to fail, or may be left without.

#include "support/SystemCalls.h"
#include "support/SystemFunction.h"

#include <cerrno>
#include <cstdarg>
#include <cstdlib>
#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>

using drossbin::test::SystemCallHook;
using drossbin::test::systemFunction;

// NOLINTBEGIN: the names and signatures are the system's

extern "C" {

int open(const char* path, int flags, ...) {
    static const auto next = systemFunction(&open, "open");
    va_list arguments;
    va_start(arguments, flags);
    const auto mode = (flags & O_CREAT) != 0 ? va_arg(arguments, unsigned int) : 0U;
    va_end(arguments);
    return SystemCallHook::isLetThrough({"open", path}) ? next(path, flags, mode) : -1;
}

int stat(const char* path, struct stat* status) __THROW {
    static const auto next = systemFunction(&stat, "stat");
    return SystemCallHook::isLetThrough({"stat", path}) ? next(path, status) : -1;
}

// A sanitizer has its own of these.
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)

int pthread_create(pthread_t* thread, const pthread_attr_t* attributes, void* (*job)(void*),
                   void* argument) __THROW {
    static const auto next = systemFunction(&pthread_create, "pthread_create");
    const bool isAllowed = SystemCallHook::isLetThrough({"pthread_create", ""});
    return isAllowed ? next(thread, attributes, job, argument) : errno;
}

void* __libc_malloc(size_t size);

void* malloc(size_t size) __THROW {
    return SystemCallHook::isLetThrough({"malloc", ""}) ? __libc_malloc(size) : nullptr;
}

#endif
}

// NOLINTEND
