#include "support/Limits.h"

#include "support/ChildProcess.h"

#include <cerrno>
#include <fcntl.h>
#include <grp.h>
#include <pthread.h>
#include <system_error>
#include <unistd.h>

namespace drossbin::test {

namespace {

void check(bool holds, const char* what) {
    if (!holds) {
        throw std::system_error(errno, std::generic_category(), what);
    }
}

void becomeOrdinaryUser() {
    if (::geteuid() == 0) {
        check(::setgroups(0, nullptr) == 0, "setgroups");
        check(::setgid(ordinaryUser) == 0, "setgid");
        check(::setuid(ordinaryUser) == 0, "setuid");
    }
}

void* runJob(void* job) {
    (*static_cast<const std::function<void()>*>(job))();
    return nullptr;
}

} // namespace

FewDescriptors::FewDescriptors(rlim_t most) {
    for (int count = 0; count < 27; ++count) {
        m_inUse.emplace_back(::open("/dev/null", O_RDONLY | O_CLOEXEC));
        check(m_inUse.back().isOpen(), "/dev/null");
    }
    check(::getrlimit(RLIMIT_NOFILE, &m_before) == 0, "getrlimit");
    rlimit few = m_before;
    few.rlim_cur = most;
    check(::setrlimit(RLIMIT_NOFILE, &few) == 0, "setrlimit");
}

FewDescriptors::~FewDescriptors() {
    ::setrlimit(RLIMIT_NOFILE, &m_before);
}

void runOnSmallStack(const std::function<void()>& job) {
    pthread_attr_t attributes;
    check(::pthread_attr_init(&attributes) == 0, "pthread_attr_init");
    check(::pthread_attr_setstacksize(&attributes, std::size_t{256} * 1024) == 0, "stack size");
    pthread_t thread{};
    const int error =
        ::pthread_create(&thread, &attributes, runJob, const_cast<std::function<void()>*>(&job));
    ::pthread_attr_destroy(&attributes);
    check(error == 0, "pthread_create");
    ::pthread_join(thread, nullptr);
}

bool holdsForOrdinaryUser(const std::function<bool()>& job) {
    return endOfChild([&] {
               becomeOrdinaryUser();
               return job() ? 0 : 1;
           }) == 0;
}

} // namespace drossbin::test
