#include "Battlefield.h"
#include "RemovalSituation.h"
#include "support/Meanwhile.h"
#include "support/MountNamespace.h"

#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#ifdef DROSSBIN_LINUX
#include <sys/mount.h>
#endif

namespace drossbin {
namespace {

using test::Battlefield;

bool move(const std::string& from, const std::string& to) {
    return std::rename(from.c_str(), to.c_str()) == 0;
}

/// Puts a link to the canaries where a folder is, for a moment; returns whether it got there.
bool replaceByLink(const std::string& folder, const std::string& aside, const Battlefield& field) {
    const bool isStruck =
        move(folder, aside) && ::symlink(field.canary().c_str(), folder.c_str()) == 0;
    ::unlink(folder.c_str());
    move(aside, folder);
    return isStruck;
}

bool moveAwayAndBack(const std::string& folder, const std::string& away) {
    const bool isStruck = move(folder, away);
    move(away, folder);
    return isStruck;
}

/// What somebody does again and again, and whether it happens to the item itself.
struct Attack {
    std::string name;
    bool (*strike)(const Battlefield& field);
    bool isOnTheItem = false;
};

void PrintTo(const Attack& attack, std::ostream* stream) {
    *stream << attack.name;
}

const std::vector<Attack> attacks{
    {"folders_become_links",
     [](const Battlefield& field) {
         return replaceByLink(field.inItem("folder"), field.inItem("aside"), field);
     }},
    {"deep_folders_become_links",
     [](const Battlefield& field) {
         const std::string folder = field.inItem(Battlefield::deep);
         return replaceByLink(folder, folder + "-aside", field);
     }},
    {"upper_folders_become_links",
     [](const Battlefield& field) {
         return replaceByLink(field.inItem("1/2"), field.inItem("1/aside"), field);
     }},
    {"the_item_becomes_a_link",
     [](const Battlefield& field) {
         return replaceByLink(field.item(), field.place() + "/aside", field);
     },
     true},
    {"the_item_moves",
     [](const Battlefield& field) { return moveAwayAndBack(field.item(), field.away()); }, true},
    {"the_folder_above_the_item_moves",
     [](const Battlefield& field) { return moveAwayAndBack(field.place(), field.away()); }, true},
    {"folders_move_out",
     [](const Battlefield& field) { return moveAwayAndBack(field.inItem("1/2/3"), field.away()); }},
    {"folders_move_within",
     [](const Battlefield& field) {
         return moveAwayAndBack(field.inItem("1/2/3"), field.inItem("folder/moved"));
     }},
    {"trees_grow_and_shrink",
     [](const Battlefield& field) {
         const std::string grown = field.inItem("folder/grown");
         const bool isStruck = ::mkdir(grown.c_str(), 0755) == 0;
         ::mkdir((grown + "/below").c_str(), 0755);
         ::rmdir((grown + "/below").c_str());
         ::rmdir(grown.c_str());
         return isStruck;
     }},
};

/// How long one goes on: short by default, as long as wanted for whoever has the time.
std::chrono::seconds duration() {
    const char* const wanted = std::getenv("DROSSBIN_ATTACK_SECONDS");
    return std::chrono::seconds(wanted != nullptr ? std::atoi(wanted) : 5);
}

bool isThere(const std::string& path) {
    return FileManager::attributesOfItem(path).has_value();
}

bool isLuck(const std::error_code& error) {
    return !error || error == std::errc::no_such_file_or_directory ||
           error == std::errc::device_or_resource_busy || error == std::errc::directory_not_empty;
}

/// Measures and removes items that are attacked, until the attack got through at least once; tells
/// how often it did.
void withstand(const Attack& attack, const Battlefield& field) {
    field.renewItem();
    ASSERT_TRUE(attack.strike(field)) << "not even where nobody else is about";
    std::atomic<int> strikes = 0;
    const test::Meanwhile attacking([&] { strikes += attack.strike(field) ? 1 : 0; });
    const auto end = std::chrono::steady_clock::now() + duration();
    int round = 0;
    for (; std::chrono::steady_clock::now() < end || strikes == 0; ++round) {
        field.renewItem();
        const auto size = FileManager::sizeOfFolderContents(field.item());
        const std::error_code error = FileManager::removeItem(field.item());
        EXPECT_TRUE(isLuck(error)) << error.message();
        EXPECT_TRUE(attack.isOnTheItem || error || !isThere(field.item())) << "round " << round;
        EXPECT_TRUE(attack.name == "mounts" || attack.isOnTheItem ||
                    size.value_or(0) < Battlefield::canarySize);
    }
    std::printf("%s: %d in %d rounds\n", attack.name.c_str(), strikes.load(), round);
    std::fflush(stdout); // a child does not come to that by itself
}

void expectCanariesAlone(const Battlefield& field) {
    EXPECT_THAT(test::allIn(field.canary()),
                testing::UnorderedElementsAre("file", "below", "below/file"));
    const std::error_code error = FileManager::removeItem(field.item());
    EXPECT_TRUE(!error || error == std::errc::no_such_file_or_directory) << error.message();
    EXPECT_FALSE(isThere(field.item()));
}

class RemovalUnderAttack : public testing::TestWithParam<Attack> {};

TEST_P(RemovalUnderAttack, leaves_the_canaries_alone_and_ends) {
    const Battlefield field;
    withstand(GetParam(), field);
    expectCanariesAlone(field);
}

INSTANTIATE_TEST_SUITE_P(By, RemovalUnderAttack, testing::ValuesIn(attacks),
                         [](const auto& instance) { return instance.param.name; });

#ifdef DROSSBIN_LINUX // which tells mounts of one file system apart
TEST(RemovalUnderAttackByMounts, leaves_the_canaries_alone_and_ends) {
    const Attack attack{"mounts", [](const Battlefield& field) {
                            bool isStruck = false;
                            for (const char* folder : {"mount", "folder/a", "folder/b", "1/2/3"}) {
                                isStruck |= test::mountAgain(field.canary(), field.inItem(folder));
                            }
                            for (const char* folder : {"mount", "folder/a", "folder/b", "1/2/3"}) {
                                ::umount2(field.inItem(folder).c_str(), MNT_DETACH);
                            }
                            return isStruck;
                        }};
    const auto holds = test::holdsInMountNamespace([&] {
        const Battlefield field;
        withstand(attack, field);
        expectCanariesAlone(field);
        return !HasFailure();
    });
    if (!holds) {
        GTEST_SKIP() << "this system lets the tests make no mounts of their own";
    }
    EXPECT_TRUE(*holds);
}
#endif

} // namespace
} // namespace drossbin
