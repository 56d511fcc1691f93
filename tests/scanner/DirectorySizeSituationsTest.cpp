#include "SizeSituation.h"
#include "support/HostileTrees.h"
#include "support/PipesAndDevices.h"

#include <filesystem>

namespace drossbin {
namespace {

namespace fs = std::filesystem;
using test::absent;
using test::ScratchFolder;
using Scratch = const ScratchFolder&;
using Situation = test::SizeSituation;

class SizeOf : public testing::TestWithParam<Situation> {};

TEST_P(SizeOf, is_what_can_be_read_of_it) {
    test::expectAsTold(GetParam());
}

void link(const std::string& target, const std::string& path) {
    fs::create_symlink(target, path);
}

const std::vector<Situation> kinds{
    {"nothing", [](Scratch) {}, absent},
    {"an_empty_file", [](Scratch s) { s.file("item", 0); }, 0},
    {"a_file_of_8_gibibytes_without_blocks", [](Scratch s) { s.file("item", 8'589'934'592); },
     8'589'934'592},
    {"a_pipe", [](Scratch s) { test::makePipe(s / "item"); }, 0},
    {"a_socket", [](Scratch s) { test::makeSocket(s / "item"); }, 0},
    {"a_link_to_a_file",
     [](Scratch s) {
         s.file("target", 1'000);
         link("target", s / "item");
     },
     6},
    {"a_link_to_a_folder",
     [](Scratch s) {
         s.file("target/file", 1'000);
         link("target", s / "item");
     },
     1'000},
    {"a_link_to_a_link_to_a_folder",
     [](Scratch s) {
         s.file("target/file", 1'000);
         link("target", s / "other");
         link("other", s / "item");
     },
     1'000},
    {"a_link_to_nothing", [](Scratch s) { link("nothing", s / "item"); }, absent},
    {"a_link_to_itself", [](Scratch s) { link("item", s / "item"); }, absent},
    {"links_inside_that_lead_up_and_in_circles",
     [](Scratch s) {
         s.folder("item");
         link("..", s / "item/up");
         link("circle", s / "item/circle");
         link("/", s / "item/root");
     },
     2 + 6 + 1},
    {"names_of_one_file_inside_and_outside",
     [](Scratch s) {
         fs::create_hard_link(s.file("kept", 1'000), s.folder("item") + "/one");
         fs::create_hard_link(s / "kept", s / "item/two");
     },
     2'000},
    {"a_program_of_many_rights",
     [](Scratch s) { ::chmod(s.file("item/program", 7).c_str(), 06755); }, 7},
    {"a_path_longer_than_any_call_takes",
     [](Scratch s) { test::makeChain(s.folder("item"), 17, std::string(255, 'n')); }, 7,
     std::vector<std::string>(17, "item/" + std::string(255, 'n'))}, // one stands for all
};

const std::vector<Situation> paths{
    {"a_folder_with_slashes_at_the_end",
     [](Scratch s) { s.file("item/file", 7); },
     7,
     {},
     "item//"},
    {"a_folder_with_a_dot_at_the_end", [](Scratch s) { s.file("item/file", 7); }, 7, {}, "item/."},
    {"a_folder_by_the_way_up_from_inside",
     [](Scratch s) { s.file("item/folder/file", 7); },
     7,
     {"item/folder"},
     "item/folder/.."},
    {"a_file_with_a_slash_at_the_end", [](Scratch s) { s.file("item", 7); }, absent, {}, "item/"},
    {"something_below_a_file", [](Scratch s) { s.file("item", 7); }, absent, {}, "item/below"},
    {"a_name_of_256_bytes", [](Scratch) {}, absent, {}, std::string(256, 'n')},
    {"names_that_are_no_text",
     [](Scratch s) {
         s.file("item/\xFF\xC0\x80", 1);
         s.file("item/two\nlines", 2);
         s.file("item/-rf", 4);
         s.file("item/ ", 8);
         s.file("item/...", 16);
         s.file("item/" + std::string(255, 'n'), 32);
     },
     63},
};

INSTANTIATE_TEST_SUITE_P(Kinds, SizeOf, testing::ValuesIn(kinds), test::nameOf);
INSTANTIATE_TEST_SUITE_P(Paths, SizeOf, testing::ValuesIn(paths), test::nameOf);

} // namespace
} // namespace drossbin
