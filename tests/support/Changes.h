#pragma once

#include "support/ScratchFolder.h"
#include "support/SystemCalls.h"

#include <cerrno>
#include <filesystem>
#include <functional>
#include <memory>

namespace drossbin::test {

/// What strikes before each call: changes what is in the scratch folder, or returns the error that
/// the call fails with.
using Strike = std::function<int(const ScratchFolder&, const SystemCallHook::Call&)>;

/// Does `change` right before the `nth` call of `function` about `name`.
inline Strike before(std::string_view function, std::string_view name,
                     const std::function<int(const ScratchFolder&)>& change, int nth = 1) {
    return [=, calls = std::make_shared<int>(0)](const ScratchFolder& scratch,
                                                 const SystemCallHook::Call& call) {
        const bool isMeant = call.function == function && call.name == name;
        return isMeant && ++*calls == nth ? change(scratch) : 0;
    };
}

inline int failAtTheDisk(const ScratchFolder& /*scratch*/) {
    return EIO;
}

inline int removeItem(const ScratchFolder& scratch) {
    std::filesystem::remove_all(scratch / "item");
    return 0;
}

} // namespace drossbin::test
