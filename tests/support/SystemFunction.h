#pragma once

#include <dlfcn.h>

#ifndef __THROW
#define __THROW
#endif

namespace drossbin::test {

/// The system's function of that name, for the one of ours that stands in front of it.
template <class Function>
Function* systemFunction(Function* /*ours*/, const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

} // namespace drossbin::test
