#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace drossbin::test {

/// A folder of its own for one test, gone with everything in it when the test ends.
class ScratchFolder {
  public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ScratchFolder(ScratchFolder&&) = delete;
    ScratchFolder& operator=(ScratchFolder&&) = delete;

    [[nodiscard]] const std::string& path() const { return m_path; }

    /// The absolute path of something in the folder.
    [[nodiscard]] std::string operator/(std::string_view relative) const;

    /// Makes a folder and those above it; returns its absolute path.
    std::string folder(std::string_view relative) const;

    /// Makes a file of `size` bytes, without using space on disk, and the folders above it;
    /// returns its absolute path.
    std::string file(std::string_view relative, std::int64_t size) const;

  private:
    std::string m_path;
};

/// A ScratchFolder that is also the home folder while it lives.
class ScratchHome : public ScratchFolder {
  public:
    ScratchHome();
    ~ScratchHome();
    ScratchHome(const ScratchHome&) = delete;
    ScratchHome& operator=(const ScratchHome&) = delete;
    ScratchHome(ScratchHome&&) = delete;
    ScratchHome& operator=(ScratchHome&&) = delete;

  private:
    std::string m_previousHome;
};

} // namespace drossbin::test
