#include <array>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <random>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

// Makes a tree, the same for the same arguments:
//   make_tree mixed|wide|folders COUNT PATH
// `mixed` are folders of 3 to 500 files, up to ten levels deep; `wide` is one folder; `folders`
// are folders of 50 files. COUNT is the number of files.

namespace {

void require(bool holds, const std::string& what) {
    if (!holds) {
        std::perror(what.c_str());
        std::exit(1); // NOLINT(concurrency-mt-unsafe): there is one thread
    }
}

void makeFolder(const std::string& path, int files) {
    require(::mkdir(path.c_str(), 0755) == 0, path);
    const int folder = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    require(folder >= 0, path);
    for (int number = 0; number < files; ++number) {
        const std::string name = "file-" + std::to_string(number) + ".dat";
        const int file = ::openat(folder, name.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
        require(file >= 0 && ::ftruncate(file, number % 977) == 0, path + "/" + name);
        ::close(file);
    }
    ::close(folder);
}

void makeMixed(const std::string& root, int files) {
    struct Folder {
        std::string path;
        int depth;
    };
    constexpr std::array sizes{3, 5, 10, 10, 20, 20, 50, 100, 200, 500};
    constexpr std::size_t recent = 400; // new folders go into these: deep and bushy
    std::minstd_rand random(7);
    std::vector<Folder> folders{{root, 0}};
    makeFolder(root, 0);
    while (files > 0) {
        const std::size_t back = random() % std::min(folders.size(), recent);
        const Folder parent = folders[folders.size() - 1 - back];
        const int size = std::min(files, sizes[random() % sizes.size()]);
        const std::string path = parent.path + "/folder-" + std::to_string(folders.size());
        makeFolder(path, size);
        files -= size;
        folders.push_back(parent.depth < 9 ? Folder{path, parent.depth + 1} : folders.front());
    }
}

void makeFolders(const std::string& root, int files) {
    makeFolder(root, 0);
    for (int number = 0; number < files / 50; ++number) {
        makeFolder(root + "/folder-" + std::to_string(number), 50);
    }
}

} // namespace

int main(int count, char** arguments) {
    const std::string_view kind = count == 4 ? arguments[1] : "";
    const int files = count == 4 ? std::atoi(arguments[2]) : 0;
    if (kind == "mixed") {
        makeMixed(arguments[3], files);
    } else if (kind == "wide") {
        makeFolder(arguments[3], files);
    } else if (kind == "folders") {
        makeFolders(arguments[3], files);
    } else {
        std::fputs("usage: make_tree mixed|wide|folders COUNT PATH\n", stderr);
        return 2;
    }
    return 0;
}
