#include "platform/OutOfMemory.h"

#include "platform/basics/Stop.h"

#include <unicode/uclean.h>

#include <cstddef>
#include <cstdlib>
#include <new>

namespace drossbin {

namespace {

void stop() {
    stopProgram("out of memory");
}

void* orStop(void* memory) {
    if (memory == nullptr) {
        stop();
    }
    return memory;
}

// NOLINTBEGIN(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory): what ICU asks for

void* U_CALLCONV allocate(const void* /*context*/, std::size_t size) {
    return orStop(std::malloc(size));
}

void* U_CALLCONV reallocate(const void* /*context*/, void* memory, std::size_t size) {
    return orStop(std::realloc(memory, size));
}

void U_CALLCONV release(const void* /*context*/, void* memory) {
    std::free(memory);
}

// NOLINTEND(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory)

} // namespace

void stopWhenOutOfMemory() {
    std::set_new_handler(stop);
    // Refused only when ICU is in use already: it then keeps the system's own.
    UErrorCode status = U_ZERO_ERROR;
    ::u_setMemoryFunctions(nullptr, allocate, reallocate, release, &status);
}

} // namespace drossbin
