#include "support/NamesOpened.h"

#include "support/SystemCalls.h"

namespace drossbin::test {

std::vector<std::string> namesOpenedBy(const std::function<void()>& job, bool hidesKinds) {
    std::vector<std::string> names;
    SystemCallHook hook([&](const SystemCallHook::Call& call) {
        // Some systems read a folder through another opening of the same.
        if (call.function == "openat" && call.name != ".") {
            names.emplace_back(call.name);
        }
        return 0;
    });
    if (hidesKinds) {
        hook.hideKinds();
    }
    job();
    return names;
}

} // namespace drossbin::test
