#include "RemovalSituation.h"
#include "support/ChildProcess.h"
#include "support/FileFlags.h"
#include "support/Limits.h"
#include "support/PipesAndDevices.h"

#include <cerrno>
#include <sys/wait.h>
#include <unistd.h>

namespace drossbin {
namespace {

using test::FileFlag;
using test::RemovalSituation;
using test::ScratchFolder;
using Scratch = const ScratchFolder&;

// What whoever removes trees has to have an answer to, and ours.
class RemovalOf : public testing::TestWithParam<RemovalSituation> {};

TEST_P(RemovalOf, leaves_exactly_what_it_should) {
    EXPECT_TRUE(test::holdsForOrdinaryUser([] {
        const ScratchFolder scratch;
        GetParam().make(scratch);
        test::expectAsTold(GetParam(), scratch);
        return !HasFailure();
    }));
}

INSTANTIATE_TEST_SUITE_P(Permissions, RemovalOf, testing::ValuesIn(test::situationsOfPermissions),
                         test::nameOf);
INSTANTIATE_TEST_SUITE_P(Links, RemovalOf, testing::ValuesIn(test::situationsOfLinks),
                         test::nameOf);
INSTANTIATE_TEST_SUITE_P(Kinds, RemovalOf, testing::ValuesIn(test::situationsOfKinds),
                         test::nameOf);
INSTANTIATE_TEST_SUITE_P(Names, RemovalOf, testing::ValuesIn(test::situationsOfNames),
                         test::nameOf);
INSTANTIATE_TEST_SUITE_P(Paths, RemovalOf, testing::ValuesIn(test::situationsOfPaths),
                         test::nameOf);
INSTANTIATE_TEST_SUITE_P(Changes, RemovalOf, testing::ValuesIn(test::situationsOfChanges),
                         test::nameOf);

/// Made by the superuser. `scratch` belongs to the ordinary user, as all that is given to him.
class RemovalOfWhatIsNotOnesOwn : public testing::TestWithParam<RemovalSituation> {
  protected:
    void SetUp() override {
        if (::geteuid() != 0) {
            GTEST_SKIP() << "only the superuser can make what belongs to others";
        }
        give(m_scratch.path());
        GetParam().make(m_scratch);
    }

    static void give(const std::string& path) {
        EXPECT_EQ(::lchown(path.c_str(), test::ordinaryUser, test::ordinaryUser), 0) << path;
    }

    ScratchFolder m_scratch;
};

void makeOwnFolder(Scratch s) {
    ASSERT_EQ(::chown(s.folder("item").c_str(), test::ordinaryUser, test::ordinaryUser), 0);
}

const std::vector<RemovalSituation> madeBySomebodyElse{
    {"a_file_in_a_folder_of_ones_own",
     [](Scratch s) {
         makeOwnFolder(s);
         ::chmod(s.file("item/file", 1).c_str(), 0600);
     }},
    {"an_empty_folder_in_a_folder_of_ones_own",
     [](Scratch s) {
         makeOwnFolder(s);
         ::chmod(s.folder("item/folder").c_str(), 0700);
     }},
    {"a_filled_folder_in_a_folder_of_ones_own",
     [](Scratch s) {
         makeOwnFolder(s);
         s.file("item/folder/file", 1);
     },
     {"item", "item/folder", "item/folder/file"},
     EACCES},
    {"a_file_in_a_sticky_folder_for_all",
     [](Scratch s) {
         s.file("item/file", 1);
         ::chmod((s / "item").c_str(), 01777);
     },
     {"item", "item/file"},
     EPERM},
    {"a_folder_for_all_that_it_lies_in_a_sticky_one",
     [](Scratch s) {
         s.file("sticky/item/file", 1);
         ::chmod((s / "sticky/item").c_str(), 0777);
         ::chmod((s / "sticky").c_str(), 01777);
     },
     {"sticky", "sticky/item"},
     EPERM,
     "sticky/item"},
    {"devices_in_a_folder_of_ones_own",
     [](Scratch s) {
         makeOwnFolder(s);
         ASSERT_TRUE(test::makeDevice(s / "item/device"));
     }},
};

TEST_P(RemovalOfWhatIsNotOnesOwn, leaves_exactly_what_it_should) {
    EXPECT_TRUE(test::holdsForOrdinaryUser([this] {
        test::expectAsTold(GetParam(), m_scratch);
        return !HasFailure();
    }));
}

INSTANTIATE_TEST_SUITE_P(Others, RemovalOfWhatIsNotOnesOwn, testing::ValuesIn(madeBySomebodyElse),
                         test::nameOf);

/// Not even the superuser may remove these.
struct FlaggedSituation {
    std::string name;
    std::string flagged;
    FileFlag flag;
    std::vector<std::string> left;
};

void PrintTo(const FlaggedSituation& situation, std::ostream* stream) {
    *stream << situation.name;
}

class RemovalOfWhatIsFlagged : public testing::TestWithParam<FlaggedSituation> {};

TEST_P(RemovalOfWhatIsFlagged, leaves_exactly_what_it_should) {
    const ScratchFolder scratch;
    const std::string flagged = scratch / GetParam().flagged;
    scratch.file("item/folder/file", 1);
    if (!test::setFlag(flagged, GetParam().flag)) {
        GTEST_SKIP() << "no such flags here, or not for this user";
    }
    // In another process: should it crash, the flags still go, and all that they would keep.
    const int end =
        test::endOfChild([&] { return FileManager::removeItem(scratch / "item").value(); });
    test::clearFlags(flagged);
    ASSERT_TRUE(WIFEXITED(end));
    EXPECT_EQ(WEXITSTATUS(end), EPERM);
    EXPECT_THAT(test::allIn(scratch.path()), testing::UnorderedElementsAreArray(GetParam().left));
}

const std::vector<std::string> all{"item", "item/folder", "item/folder/file"};

INSTANTIATE_TEST_SUITE_P(
    Flags, RemovalOfWhatIsFlagged,
    testing::Values(
        FlaggedSituation{"an_immutable_file", "item/folder/file", FileFlag::immutable, all},
        FlaggedSituation{"an_immutable_folder", "item/folder", FileFlag::immutable, all},
        FlaggedSituation{"an_immutable_item", "item", FileFlag::immutable, {"item", "item/folder"}},
        FlaggedSituation{"a_file_to_append_to", "item/folder/file", FileFlag::appendOnly, all},
        FlaggedSituation{"a_folder_to_append_to", "item/folder", FileFlag::appendOnly, all}),
    [](const auto& instance) { return instance.param.name; });

} // namespace
} // namespace drossbin
