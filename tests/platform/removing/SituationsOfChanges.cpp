#include "RemovalSituation.h"

#include <cerrno>

namespace drossbin::test {

namespace {

namespace fs = std::filesystem;
using Scratch = const ScratchFolder&;

void makeItem(Scratch s) {
    s.file("item/folder/below", 1);
    s.file("item/file", 1);
    s.file("target/file", 1);
}

const std::vector<std::string> target{"target", "target/file"};
const std::vector<std::string> untouched{"item",      "item/folder", "item/folder/below",
                                         "item/file", "target",      "target/file"};

int replaceItemByFile(Scratch s) {
    fs::remove_all(s / "item");
    s.file("item", 1);
    return 0;
}

int replaceItemByLink(Scratch s) {
    fs::remove_all(s / "item");
    fs::create_symlink("target", s / "item");
    return 0;
}

int replaceItemByFolder(Scratch s) {
    fs::remove_all(s / "item");
    s.file("item/new/file", 1);
    return 0;
}

int moveItem(Scratch s) {
    fs::rename(s / "item", s / "target/moved");
    return 0;
}

int moveFolderAway(Scratch s) {
    fs::rename(s / "item/folder", s / "target/moved");
    return 0;
}

} // namespace

// Where a change strikes is told by the call that it comes before.
const std::vector<RemovalSituation> situationsOfChanges{
    {"a_folder_that_cannot_be_listed_at_all", makeItem, untouched, EIO, "item",
     before(readsFolder, "", failAtTheDisk)},
    {"a_folder_whose_list_breaks_off", makeItem, untouched, EIO, "item",
     before(readsFolder, "", failAtTheDisk, 2)},
    {"a_file_that_the_disk_does_not_let_go", makeItem, untouched, EIO, "item",
     before("unlinkat", "file", failAtTheDisk)},
    {"an_item_that_goes_before_it_is_looked_at", makeItem, target, ENOENT, "item",
     before("fstatat", "item", removeItem)},
    {"an_item_that_goes_before_it_is_opened", makeItem, target, 0, "item",
     before("openat", "item", removeItem)},
    {"an_item_that_goes_before_it_is_removed_itself", makeItem, target, 0, "item",
     before("unlinkat", "item", removeItem)},
    {"an_item_that_becomes_a_file_before_it_is_looked_at", makeItem, target, 0, "item",
     before("fstatat", "item", replaceItemByFile)},
    {"an_item_that_becomes_a_file_before_it_is_opened", makeItem, target, 0, "item",
     before("openat", "item", replaceItemByFile)},
    {"an_item_that_becomes_a_link_before_it_is_looked_at", makeItem, target, 0, "item",
     before("fstatat", "item", replaceItemByLink)},
    {"an_item_that_becomes_a_link_before_it_is_opened", makeItem, target, 0, "item",
     before("openat", "item", replaceItemByLink)},
    {"an_item_that_becomes_a_link_before_it_is_removed_itself", makeItem, target, 0, "item",
     before("unlinkat", "item", replaceItemByLink)},
    {"an_item_that_becomes_another_folder_before_it_is_opened", makeItem, target, 0, "item",
     before("openat", "item", replaceItemByFolder)},
    {"an_item_that_becomes_another_folder_before_it_is_removed_itself",
     makeItem,
     {"item", "item/new", "item/new/file", "target", "target/file"},
     ENOTEMPTY,
     "item",
     before("unlinkat", "item", replaceItemByFolder)},
    {"an_item_that_is_moved_while_it_is_emptied",
     makeItem,
     {"target", "target/file", "target/moved"},
     0,
     "item",
     before("unlinkat", "below", moveItem)},
    {"a_folder_that_is_moved_out_before_it_is_entered",
     makeItem,
     {"target", "target/file", "target/moved", "target/moved/below"},
     0,
     "item",
     before("openat", "folder", moveFolderAway)},
    {"a_folder_that_is_moved_out_while_it_is_emptied",
     makeItem,
     {"target", "target/file", "target/moved"},
     0,
     "item",
     before("unlinkat", "below", moveFolderAway)},
};

} // namespace drossbin::test
