#include "platform/FileManager.h"
#include "support/ScratchFolder.h"
#include "support/SystemCalls.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <vector>

namespace drossbin {
namespace {

using test::ScratchFolder;
using test::SystemCallHook;

const std::error_code noError;

bool isThere(const std::string& path) {
    return FileManager::attributesOfItem(path).has_value();
}

/// A tree of more levels than a removal keeps open.
void makeTree(const ScratchFolder& scratch) {
    std::string level = "item";
    for (int depth = 0; depth < 18; ++depth) {
        level += "/next";
    }
    scratch.file("item/next/file", 1);
    scratch.file("item/side/file", 1);
    scratch.file(level + "/file", 1);
}

const std::vector<std::string> callsOfRemoval{
    "fstatat",
    "openat",
    "unlinkat",
    std::string(test::readsFolder),
};

struct Failure {
    std::error_code error;
    bool hasFailed = false;
};

/// Removes the item while the `nth` call of `function` fails.
Failure removeWithFailure(const std::string& item, const std::string& function, int nth) {
    Failure failure;
    int calls = 0;
    const SystemCallHook hook([&](const SystemCallHook::Call& call) {
        calls += call.function == function ? 1 : 0;
        const bool fails = !failure.hasFailed && calls == nth;
        failure.hasFailed = failure.hasFailed || fails;
        return fails ? EIO : 0;
    });
    failure.error = FileManager::removeItem(item);
    return failure;
}

class RemovalFailures : public testing::TestWithParam<std::string> {};

TEST_P(RemovalFailures, come_back_as_they_are_and_leave_a_tree_that_can_be_removed) {
    const ScratchFolder scratch;
    scratch.file("beside", 1);
    int nth = 1;
    for (;; ++nth) {
        makeTree(scratch);
        const Failure failure = removeWithFailure(scratch / "item", GetParam(), nth);
        if (!failure.hasFailed) {
            EXPECT_EQ(failure.error, noError);
            break;
        }
        EXPECT_EQ(failure.error, std::errc::io_error) << "call " << nth;
        EXPECT_TRUE(isThere(scratch / "beside"));
        FileManager::removeItem(scratch / "item");
        EXPECT_FALSE(isThere(scratch / "item")) << "after failure of call " << nth;
    }
    EXPECT_GT(nth, 2) << "the removal hardly calls " << GetParam();
}

INSTANTIATE_TEST_SUITE_P(OfEachCall, RemovalFailures, testing::ValuesIn(callsOfRemoval),
                         [](const auto& parameter) { return parameter.param; });

#ifdef DROSSBIN_LINUX // elsewhere there is one call for it
TEST(RemovalFailure, of_the_newer_call_for_an_identity_leads_to_the_older_one) {
    const ScratchFolder scratch;
    makeTree(scratch);
    const SystemCallHook refusal(
        [](const SystemCallHook::Call& call) { return call.function == "statx" ? EPERM : 0; });
    EXPECT_EQ(FileManager::removeItem(scratch / "item"), noError);
    EXPECT_FALSE(isThere(scratch / "item"));
}

TEST(RemovalFailure, of_the_newer_call_for_one_folder_is_none) {
    bool hasFailed = true;
    for (int nth = 1; hasFailed; ++nth) {
        const ScratchFolder scratch;
        makeTree(scratch);
        const Failure failure = removeWithFailure(scratch / "item", "statx", nth);
        EXPECT_EQ(failure.error, noError) << "call " << nth;
        hasFailed = failure.hasFailed;
    }
}

TEST(RemovalFailure, of_both_calls_for_an_identity_stops_before_anything_is_removed) {
    const ScratchFolder scratch;
    scratch.file("item/file", 1);
    for (const int allowed : {0, 1}) {
        int asked = 0;
        const SystemCallHook refusal([&](const SystemCallHook::Call& call) {
            asked += call.function == "statx" ? 1 : 0;
            const bool isAsked = call.function == "statx" || call.function == "fstat";
            return isAsked && asked > allowed ? EIO : 0;
        });
        EXPECT_EQ(FileManager::removeItem(scratch / "item"), std::errc::io_error);
    }
    EXPECT_TRUE(isThere(scratch / "item/file"));
}
#endif

TEST(Removal, looks_for_itself_where_a_folder_does_not_tell_the_kinds_of_its_entries) {
    const ScratchFolder scratch;
    makeTree(scratch);
    SystemCallHook hook([](const SystemCallHook::Call&) { return 0; });
    hook.hideKinds();
    EXPECT_EQ(FileManager::removeItem(scratch / "item"), noError);
    EXPECT_FALSE(isThere(scratch / "item"));
}

} // namespace
} // namespace drossbin
