#include "SizeSituation.h"

#include <filesystem>

namespace drossbin {
namespace {

namespace fs = std::filesystem;
using test::absent;
using test::before;
using test::failAtTheDisk;
using test::removeItem;
using test::ScratchFolder;
using Scratch = const ScratchFolder&;
using Situation = test::SizeSituation;

class SizeOfWhatResists : public testing::TestWithParam<Situation> {};

TEST_P(SizeOfWhatResists, is_what_can_be_read_of_it) {
    test::expectAsTold(GetParam());
}

void lock(const std::string& path, mode_t mode) {
    ::chmod(path.c_str(), mode);
}

void makeLocked(Scratch s, mode_t mode) {
    s.file("item/locked/below", 1'000);
    s.file("item/file", 7);
    lock(s / "item/locked", mode);
}

const std::vector<Situation> permissions{
    {"a_folder_without_any_permission",
     [](Scratch s) {
         s.file("item/file", 7);
         lock(s / "item", 0);
     },
     absent},
    {"a_folder_that_may_be_searched_but_not_read",
     [](Scratch s) {
         s.file("item/file", 7);
         lock(s / "item", 0300);
     },
     absent},
    {"a_folder_that_may_be_read_but_not_searched",
     [](Scratch s) {
         s.file("item/file", 7);
         s.file("item/folder/file", 70);
         lock(s / "item", 0400);
     },
     0},
    {"files_without_any_permission", [](Scratch s) { lock(s.file("item/file", 7), 0); }, 7},
    {"a_folder_inside_without_any_permission",
     [](Scratch s) { makeLocked(s, 0); },
     7,
     {"item/locked"}},
    {"a_folder_inside_that_may_not_be_read",
     [](Scratch s) { makeLocked(s, 0300); },
     7,
     {"item/locked"}},
    {"a_folder_inside_that_may_not_be_searched",
     [](Scratch s) { makeLocked(s, 0400); },
     7,
     {"item/locked"}},
    {"a_folder_inside_that_may_not_be_written",
     [](Scratch s) { makeLocked(s, 0500); },
     1'007,
     {"item/locked"}},
    {"an_item_below_a_folder_that_may_not_be_searched",
     [](Scratch s) {
         s.file("item/locked/file", 7);
         lock(s / "item/locked", 0600);
     },
     absent,
     {},
     "item/locked/file"},
};

void makeItem(Scratch s) {
    s.file("item/folder/below", 70);
    s.file("item/file", 7);
    s.file("outside/canary", 1'000'000);
}

int replaceFolderByLink(Scratch s) {
    fs::remove_all(s / "item/folder");
    fs::create_symlink("../outside", s / "item/folder");
    return 0;
}

int moveFolderOut(Scratch s) {
    fs::rename(s / "item/folder", s / "outside/moved");
    return 0;
}

const std::vector<Situation> changes{
    {"a_file_that_cannot_be_asked",
     makeItem,
     70,
     {"item/folder"},
     "item",
     before("fstatat", "file", failAtTheDisk)},
    {"a_folder_that_becomes_a_link",
     makeItem,
     7 + 10,
     {},
     "item",
     before("openat", "folder", replaceFolderByLink)},
    {"a_folder_that_is_moved_out_before_it_is_entered",
     makeItem,
     7,
     {},
     "item",
     before("openat", "folder", moveFolderOut)},
    {"a_folder_that_is_moved_out_once_it_is_entered",
     makeItem,
     77,
     {"item/folder"},
     "item",
     before("fstatat", "below", moveFolderOut)},
    {"an_item_that_goes_once_it_is_listed",
     makeItem,
     0,
     {},
     "item",
     before("fstatat", "file", removeItem)},
};

INSTANTIATE_TEST_SUITE_P(Permissions, SizeOfWhatResists, testing::ValuesIn(permissions),
                         test::nameOf);
INSTANTIATE_TEST_SUITE_P(Changes, SizeOfWhatResists, testing::ValuesIn(changes), test::nameOf);

} // namespace
} // namespace drossbin
