#include "RemovalSituation.h"
#include "platform/folders/FileDescriptor.h"
#include "support/HostileTrees.h"
#include "support/PipesAndDevices.h"

#include <fcntl.h>
#include <unistd.h>

namespace drossbin::test {

namespace {

using Scratch = const ScratchFolder&;

void link(const std::string& target, const std::string& path) {
    std::filesystem::create_symlink(target, path);
}

void setDate(const std::string& path, time_t seconds) {
    const timespec both[]{{seconds, 0}, {seconds, 0}};
    ::utimensat(AT_FDCWD, path.c_str(), both, AT_SYMLINK_NOFOLLOW);
}

/// Left open for as long as the process lives.
void keepOpen(const std::string& path) {
    (void)!::open(path.c_str(), O_RDWR | O_CLOEXEC);
}

} // namespace

const std::vector<RemovalSituation> situationsOfLinks{
    {"a_link_to_a_folder",
     [](Scratch s) {
         s.file("target/file", 1);
         link("target", s / "item");
     },
     {"target", "target/file"}},
    {"a_link_to_a_file",
     [](Scratch s) {
         s.file("target", 1);
         link(s / "target", s / "item");
     },
     {"target"}},
    {"a_link_to_nothing", [](Scratch s) { link("nothing", s / "item"); }},
    {"a_link_to_itself", [](Scratch s) { link("item", s / "item"); }},
    {"two_links_to_each_other",
     [](Scratch s) {
         link("item", s / "other");
         link("other", s / "item");
     },
     {"other"}},
    {"a_link_to_the_folder_that_it_lies_in",
     [](Scratch s) {
         s.file("beside", 1);
         link(".", s / "item");
     },
     {"beside"}},
    {"links_inside_to_the_item_and_above_it",
     [](Scratch s) {
         s.file("item/folder/file", 1);
         s.file("beside", 1);
         link("..", s / "item/folder/item");
         link("../..", s / "item/folder/above");
         link(s.path(), s / "item/folder/all");
     },
     {"beside"}},
    {"links_inside_to_folders_files_and_nothing_outside",
     [](Scratch s) {
         s.file("target/file", 1);
         s.folder("item");
         link("../target", s / "item/folder");
         link("../target/file", s / "item/file");
         link("../nothing", s / "item/nothing");
     },
     {"target", "target/file"}},
    {"a_second_name_for_a_file_outside",
     [](Scratch s) {
         s.folder("item");
         std::filesystem::create_hard_link(s.file("kept", 5), s / "item/name");
     },
     {"kept"}},
    {"two_names_for_a_file_both_inside",
     [](Scratch s) { std::filesystem::create_hard_link(s.file("item/one", 5), s / "item/two"); }},
};

const std::vector<RemovalSituation> situationsOfKinds{
    {"an_empty_folder", [](Scratch s) { s.folder("item"); }},
    {"an_empty_file", [](Scratch s) { s.file("item", 0); }},
    {"a_pipe", [](Scratch s) { makePipe(s / "item"); }},
    {"a_socket", [](Scratch s) { makeSocket(s / "item"); }},
    {"a_pipe_and_a_socket_inside",
     [](Scratch s) {
         s.folder("item");
         makePipe(s / "item/pipe");
         makeSocket(s / "item/socket");
     }},
    {"a_file_of_8_gibibytes_without_blocks",
     [](Scratch s) { s.file("item/sparse", 8'589'934'592); }},
    {"files_from_before_1970_and_after_2106",
     [](Scratch s) {
         setDate(s.file("item/old", 1), -2'000'000'000);
         setDate(s.file("item/new", 1), 5'000'000'000);
         setDate(s / "item", 5'000'000'000);
     }},
    {"files_that_are_open", [](Scratch s) { keepOpen(s.file("item/file", 1)); }},
    {"a_folder_that_is_open",
     [](Scratch s) { (void)!::open(s.folder("item/folder").c_str(), O_RDONLY); }},
    {"a_path_longer_than_any_call_takes",
     [](Scratch s) { makeChain(s.folder("item"), 20, std::string(255, 'n')); }},
    {"more_levels_than_stay_open", [](Scratch s) { makeComb(s.folder("item"), 40, "a", "b"); }},
    {"a_hundred_folders_of_more_levels_than_stay_open",
     [](Scratch s) {
         for (int number = 0; number < 100; ++number) {
             makeChain(s.folder("item/" + std::to_string(number)), 20, "d");
         }
     }},
    {"the_working_folder", [](Scratch s) { std::filesystem::current_path(s.folder("item")); }},
    {"the_folder_above_the_working_folder",
     [](Scratch s) { std::filesystem::current_path(s.folder("item/a/b")); }},
};

} // namespace drossbin::test
