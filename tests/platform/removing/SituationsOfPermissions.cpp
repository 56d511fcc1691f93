#include "RemovalSituation.h"

#include <cerrno>
#include <sys/stat.h>

namespace drossbin::test {

namespace {

void lock(const std::string& path, mode_t mode) {
    ::chmod(path.c_str(), mode);
}

using Scratch = const ScratchFolder&;

} // namespace

const std::vector<RemovalSituation> situationsOfPermissions{
    {"an_empty_folder_without_any_permission", [](Scratch s) { lock(s.folder("item"), 0); }},
    {"empty_folders_without_any_permission_inside",
     [](Scratch s) {
         lock(s.folder("item/a"), 0);
         lock(s.folder("item/b/c"), 0);
     }},
#ifdef DROSSBIN_LINUX // elsewhere a folder is read through another opening, found by searching it
    {"an_empty_folder_that_may_only_be_read", [](Scratch s) { lock(s.folder("item"), 0400); }},
#endif
    {"an_empty_folder_that_may_only_be_written", [](Scratch s) { lock(s.folder("item"), 0200); }},
    {"a_filled_folder_without_any_permission",
     [](Scratch s) {
         s.file("item/file", 1);
         lock(s / "item", 0);
     },
     {"item", "item/file"},
     EACCES},
    {"a_filled_folder_that_may_not_be_searched",
     [](Scratch s) {
         s.file("item/file", 1);
         lock(s / "item", 0600);
     },
     {"item", "item/file"},
     EACCES},
    {"a_filled_folder_that_may_not_be_read",
     [](Scratch s) {
         s.file("item/file", 1);
         lock(s / "item", 0300);
     },
     {"item", "item/file"},
     EACCES},
    {"a_writable_file_in_a_folder_that_may_not_be_written",
     [](Scratch s) {
         lock(s.file("item/file", 1), 0666);
         lock(s / "item", 0500);
     },
     {"item", "item/file"},
     EACCES},
    {"an_empty_folder_in_a_folder_that_may_not_be_written",
     [](Scratch s) {
         s.folder("item/folder");
         lock(s / "item", 0500);
     },
     {"item", "item/folder"},
     EACCES},
    {"files_without_any_permission_in_a_folder_that_may_be_written",
     [](Scratch s) {
         lock(s.file("item/read-only", 1), 0400);
         lock(s.file("item/closed", 1), 0);
     }},
    {"a_program_of_many_rights",
     [](Scratch s) {
         lock(s.file("item/program", 1), 06755);
         lock(s / "item", 02755);
     }},
    {"ones_own_files_in_a_sticky_folder",
     [](Scratch s) {
         s.file("item/file", 1);
         lock(s / "item", 01777);
     }},
    {"a_locked_folder_beside_files_that_go_first",
     [](Scratch s) {
         s.file("item/locked/file", 1);
         s.file("item/a", 1);
         s.file("item/z", 1);
         lock(s / "item/locked", 0500);
     },
     {"item", "item/locked", "item/locked/file"},
     EACCES},
    {"a_locked_folder_below_more_levels_than_stay_open",
     [](Scratch s) {
         const std::string deep = "item/1/2/3/4/5/6/7/8/9/10/11/12/13/14/15/16/17/18";
         s.file(deep + "/locked/file", 1);
         s.file("item/1/2/gone", 1);
         lock(s / (deep + "/locked"), 0500);
     },
     {"item",
      "item/1",
      "item/1/2",
      "item/1/2/3",
      "item/1/2/3/4",
      "item/1/2/3/4/5",
      "item/1/2/3/4/5/6",
      "item/1/2/3/4/5/6/7",
      "item/1/2/3/4/5/6/7/8",
      "item/1/2/3/4/5/6/7/8/9",
      "item/1/2/3/4/5/6/7/8/9/10",
      "item/1/2/3/4/5/6/7/8/9/10/11",
      "item/1/2/3/4/5/6/7/8/9/10/11/12",
      "item/1/2/3/4/5/6/7/8/9/10/11/12/13",
      "item/1/2/3/4/5/6/7/8/9/10/11/12/13/14",
      "item/1/2/3/4/5/6/7/8/9/10/11/12/13/14/15",
      "item/1/2/3/4/5/6/7/8/9/10/11/12/13/14/15/16",
      "item/1/2/3/4/5/6/7/8/9/10/11/12/13/14/15/16/17",
      "item/1/2/3/4/5/6/7/8/9/10/11/12/13/14/15/16/17/18",
      "item/1/2/3/4/5/6/7/8/9/10/11/12/13/14/15/16/17/18/locked",
      "item/1/2/3/4/5/6/7/8/9/10/11/12/13/14/15/16/17/18/locked/file"},
     EACCES},
    {"an_item_in_a_folder_that_may_not_be_searched",
     [](Scratch s) {
         s.file("above/item", 1);
         lock(s / "above", 0600);
     },
     {"above", "above/item"},
     EACCES,
     "above/item"},
    {"an_item_in_a_folder_that_may_not_be_written",
     [](Scratch s) {
         s.file("above/item", 1);
         lock(s / "above", 0500);
     },
     {"above", "above/item"},
     EACCES,
     "above/item"},
    {"an_empty_item_in_a_folder_that_may_not_be_written",
     [](Scratch s) {
         s.folder("above/item");
         lock(s / "above", 0500);
     },
     {"above", "above/item"},
     EACCES,
     "above/item"},
};

} // namespace drossbin::test
