#pragma once

#include "support/ScratchFolder.h"

#include <cstdio>
#include <filesystem>
#include <string>
#include <unistd.h>

namespace drossbin::test {

/// Where somebody attacks an item while it is measured and removed. What must outlive it are
/// canaries.
class Battlefield {
  public:
    static constexpr std::int64_t canarySize = 1'000'000'000'000;

    Battlefield() {
        m_scratch.file("canary/below/file", canarySize);
        m_scratch.file("canary/file", canarySize);
        for (const char* folder : {"place", "nursery", "away"}) {
            m_scratch.folder(folder);
        }
    }

    [[nodiscard]] std::string canary() const { return m_scratch / "canary"; }
    [[nodiscard]] std::string item() const { return m_scratch / "place/item"; }
    [[nodiscard]] std::string inItem(const std::string& name) const { return item() + "/" + name; }
    [[nodiscard]] std::string away() const { return m_scratch / "away/folder"; }
    [[nodiscard]] std::string place() const { return m_scratch / "place"; }

    /// A folder deep enough for those above to be closed while it is emptied.
    static constexpr const char* deep = "1/2/3/4/5/6/7/8/9/10/11/12/13/14/15/16/17/18";

    /// Puts a new item in its place. It is made elsewhere: a maker could be led astray himself.
    void renewItem() const {
        for (const std::string file : {"folder/a/file", "folder/b/file", "file", "mount/file"}) {
            m_scratch.file("nursery/item/" + file, 1);
        }
        m_scratch.file(std::string("nursery/item/") + deep + "/file", 1);
        std::rename((m_scratch / "nursery/item").c_str(), item().c_str());
    }

  private:
    ScratchFolder m_scratch;
};

} // namespace drossbin::test
