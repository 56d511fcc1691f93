#include "RemovalSituation.h"

#include <cerrno>

namespace drossbin::test {

namespace {

using Scratch = const ScratchFolder&;

/// A file of that name, the item, beside one called "beside".
RemovalSituation fileCalled(const std::string& description, const std::string& name) {
    const auto make = [name](Scratch s) {
        s.file(name, 1);
        s.file("beside", 1);
    };
    return {"a_file_called_" + description, make, {"beside"}, 0, name};
}

/// A folder "item" with a file, removed by another path.
RemovalSituation folderAs(const std::string& description, const std::string& path, int error) {
    const auto make = [](Scratch s) { s.file("item/file", 1); };
    const bool goes = error == 0;
    return {"a_folder_named_" + description, make,
            goes ? std::vector<std::string>{} : std::vector<std::string>{"item", "item/file"},
            error, path};
}

} // namespace

const std::vector<RemovalSituation> situationsOfNames{
    fileCalled("with_a_line_feed", "two\nlines"),
    fileCalled("with_bytes_that_are_no_text", "\xFF\xC0\x80"),
    fileCalled("with_255_bytes", std::string(255, 'n')),
    fileCalled("with_a_leading_dash", "-rf"),
    fileCalled("with_two_dashes", "--"),
    fileCalled("with_spaces_at_both_ends", " a b "),
    fileCalled("with_only_a_space", " "),
    fileCalled("with_three_dots", "..."),
    fileCalled("with_a_leading_dot", ".item"),
    fileCalled("with_a_star", "*"),
    fileCalled("with_a_tilde", "~"),
    fileCalled("with_quotes_and_a_dollar", "'\"$HOME`"),
    fileCalled("with_a_backslash", "\\"),
    fileCalled("with_control_characters", "\x01\x1B[2J\x7F"),
};

const std::vector<RemovalSituation> situationsOfPaths{
    folderAs("with_a_slash_at_the_end", "item/", 0),
    folderAs("with_many_slashes", "/item///", 0),
    folderAs("by_the_way_up_from_inside", "item/../item", 0),
    folderAs("with_a_dot_before_it", "/./item", 0),
    folderAs("with_a_dot_at_the_end", "item/.", EINVAL),
    folderAs("with_a_dot_and_a_slash_at_the_end", "item/./", EINVAL),
    folderAs("with_two_dots_at_the_end", "item/..", EINVAL),
    folderAs("with_two_dots_and_slashes_at_the_end", "item/..//", EINVAL),
    folderAs("in_the_other_case", "ITEM", ENOENT),
    folderAs("by_half_its_name", "it", ENOENT),
    folderAs("as_if_below_a_file", "item/file/item", ENOTDIR),
    folderAs("below_a_folder_that_is_not_there", "nothing/item", ENOENT),
    folderAs("by_a_name_of_256_bytes", std::string(256, 'n'), ENAMETOOLONG),
    folderAs("by_a_path_of_5000_bytes", std::string(2500, '/') + std::string(2500, 'n'),
             ENAMETOOLONG),
    {"nothing_at_all", [](Scratch) {}, {}, ENOENT},
    {"a_file_with_a_slash_at_the_end", [](Scratch s) { s.file("item", 1); }, {}, 0, "item/"},
    {"a_link_to_a_folder_with_a_slash_at_the_end",
     [](Scratch s) {
         s.file("target/file", 1);
         std::filesystem::create_symlink("target", s / "item");
     },
     {"target", "target/file"},
     0,
     "item/"},
    {"an_item_below_a_link_to_a_folder",
     [](Scratch s) {
         s.file("target/item", 1);
         std::filesystem::create_symlink("target", s / "link");
     },
     {"link", "target"},
     0,
     "link/item"},
    {"an_item_below_a_link_to_itself",
     [](Scratch s) { std::filesystem::create_symlink("link", s / "link"); },
     {"link"},
     ELOOP,
     "link/item"},
    {"names_that_only_begin_alike",
     [](Scratch s) {
         s.file("item/file", 1);
         s.file("item2/file", 1);
         s.file("item.log", 1);
     },
     {"item2", "item2/file", "item.log"}},
    {"names_that_only_look_alike",
     [](Scratch s) {
         s.file("caf\u00E9", 1);
         s.file("cafe\u0301", 1);
     },
     {"cafe\u0301"},
     0,
     "caf\u00E9"},
    {"a_relative_path",
     [](Scratch s) {
         s.file("-rf/file", 1);
         std::filesystem::current_path(s.path());
     },
     {},
     0,
     "./-rf"},
};

} // namespace drossbin::test
