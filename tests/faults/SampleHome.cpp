#include "faults/SampleHome.h"

#include <array>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <utility>

namespace drossbin::test {

namespace {

constexpr std::array<std::pair<const char*, std::int64_t>, 16> files{{
    {"home/Library/Caches/com.example.Editor/index", 1'500'000},
    {"home/Library/Caches/com.example.Editor/data/blob-1", 2'250'000},
    {"home/Library/Caches/com.example.Editor/data/blob-2", 125},
    {"home/Library/Caches/Keychains/store", 6'000'000},
    {"home/Library/Caches/com.example.Small/blob", 900'000},
    {"home/Library/Caches/plain", 1'200'000},
    {"home/.npm/_cacache/content", 8'400'000},
    {"home/.npm/1/2/3/4/5/6/7/8/9/10/11/12/13/14/15/16/17/18/deep", 7},
    {"home/Library/Application Support/Slack/Cache/one", 7'100'000},
    {"home/Library/Application Support/Preferences/kept", 9'000'000},
    {"home/Library/Logs/Editor/today.log", 2'200'000},
    {"home/Downloads/old film.mov", 42'000'000},
    {"home/Downloads/new film.mov", 43'000'000},
    {"home/Documents/novel.txt", 77'000'000},
    {"home/Documents/shared", 10},
    {"outside/kept", 11},
}};

std::string identity(const std::string& path) {
    struct stat status {};
    ::lstat(path.c_str(), &status);
    std::string identity = std::to_string(status.st_ino) + " " + std::to_string(status.st_mode);
    if (!S_ISDIR(status.st_mode)) {
        identity += " " + std::to_string(status.st_size) + " " + std::to_string(status.st_mtime);
    }
    return identity;
}

} // namespace

SampleHome::SampleHome(bool isLarge) {
    for (const auto& [path, size] : files) {
        m_scratch.file(path, size);
    }
    for (int number = 0; isLarge && number < 1200; ++number) {
        m_scratch.file("home/Library/Caches/com.example.Many/" + std::to_string(number / 300) +
                           "/" + std::to_string(number),
                       1'000);
    }
    m_scratch.folder("system logs");
    std::filesystem::create_hard_link(m_scratch / "home/Documents/shared",
                                      m_scratch / "home/.npm/shared");
    for (const char* link : {"home/.npm/link", "home/Library/Caches/com.example.Editor/link"}) {
        std::filesystem::create_symlink(m_scratch / "outside", m_scratch / link);
    }
    const std::array<timespec, 2> longAgo{
        {{.tv_sec = 1'600'000'000, .tv_nsec = 0}, {.tv_sec = 1'600'000'000, .tv_nsec = 0}}};
    ::utimensat(AT_FDCWD, (m_scratch / "home/Downloads/old film.mov").c_str(), longAgo.data(), 0);
}

std::map<std::string, std::string> SampleHome::entries() const {
    std::map<std::string, std::string> entries;
    for (const char* place : {"home", "outside", "system logs"}) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(m_scratch / place)) {
            entries.emplace(entry.path(), identity(entry.path()));
        }
    }
    return entries;
}

} // namespace drossbin::test
