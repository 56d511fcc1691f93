#include "platform/basics/Stop.h"

#include <cstdio>
#include <cstdlib>

namespace drossbin {

void stopProgram(std::string_view line) {
    // Nobody is left to tell that the line could not be written.
    static_cast<void>(
        std::fprintf(stderr, "drossbin: %.*s\n", static_cast<int>(line.size()), line.data()));
    std::abort();
}

} // namespace drossbin
