#include "support/ScratchFolder.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

extern char** environ;

namespace drossbin::test {

namespace {

void check(bool holds, const char* what) {
    if (!holds) {
        throw std::system_error(errno, std::generic_category(), what);
    }
}

} // namespace

ScratchFolder::ScratchFolder()
    : m_path((std::filesystem::temp_directory_path() / "drossbin-XXXXXX").string()) {
    check(::mkdtemp(m_path.data()) != nullptr, "mkdtemp");
}

ScratchFolder::~ScratchFolder() {
    // rm copes with every tree that a test may leave: deep, wide, oddly named.
    const std::array<char*, 5> arguments{const_cast<char*>("rm"), const_cast<char*>("-rf"),
                                         const_cast<char*>("--"), m_path.data(), nullptr};
    pid_t child = 0;
    if (::posix_spawnp(&child, "rm", nullptr, nullptr, arguments.data(), environ) == 0) {
        ::waitpid(child, nullptr, 0);
    }
}

std::string ScratchFolder::operator/(std::string_view relative) const {
    return m_path + "/" + std::string(relative);
}

std::string ScratchFolder::folder(std::string_view relative) const {
    std::string path = *this / relative;
    std::filesystem::create_directories(path);
    return path;
}

std::string ScratchFolder::file(std::string_view relative, std::int64_t size) const {
    std::string path = *this / relative;
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    const int descriptor = ::open(path.c_str(), O_CREAT | O_WRONLY | O_CLOEXEC, 0644);
    check(descriptor >= 0, path.c_str());
    check(::ftruncate(descriptor, size) == 0, path.c_str());
    ::close(descriptor);
    return path;
}

ScratchHome::ScratchHome() {
    const char* home = std::getenv("HOME");
    m_previousHome = home != nullptr ? home : "";
    ::setenv("HOME", path().c_str(), 1);
}

ScratchHome::~ScratchHome() {
    ::setenv("HOME", m_previousHome.c_str(), 1);
}

} // namespace drossbin::test
