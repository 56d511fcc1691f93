#pragma once

#include <string>

namespace drossbin::test {

/// Two files whose sizes fit no sum, in a folder of their own in memory: other file systems do not
/// take them. Gone when this goes.
class ImmenseFiles {
  public:
    /// The files lie in `place` below the folder.
    explicit ImmenseFiles(const std::string& place = "");
    ~ImmenseFiles();
    ImmenseFiles(const ImmenseFiles&) = delete;
    ImmenseFiles& operator=(const ImmenseFiles&) = delete;
    ImmenseFiles(ImmenseFiles&&) = delete;
    ImmenseFiles& operator=(ImmenseFiles&&) = delete;

    /// Whether there is a file system here that takes them.
    [[nodiscard]] bool areMade() const { return m_areMade; }
    [[nodiscard]] const std::string& folder() const { return m_folder; }

  private:
    std::string m_folder;
    bool m_areMade = false;
};

} // namespace drossbin::test
