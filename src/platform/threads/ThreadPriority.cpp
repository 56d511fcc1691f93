#include "platform/threads/ThreadPriority.h"

#ifdef __APPLE__
#include <pthread.h>
#elif defined(DROSSBIN_LINUX)
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace drossbin {

void goAfterOthers() {
#ifdef __APPLE__
    ::pthread_set_qos_class_self_np(QOS_CLASS_UTILITY, 0);
#elif defined(DROSSBIN_LINUX)
    // Here the nice value is each thread's own. Ten more than the main thread's, whose number is
    // the process's, leave it a tenth of what the window gets; the system keeps it within its
    // bounds.
    ::setpriority(PRIO_PROCESS, 0, ::getpriority(PRIO_PROCESS, id_t(::getpid())) + 10);
#endif
}

} // namespace drossbin
