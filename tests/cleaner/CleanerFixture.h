#pragma once

#include "cleaner/DiskCleaner.h"
#include "platform/FileManager.h"
#include "support/HandTurnedQueue.h"
#include "support/March.h"
#include "support/ScopedLocale.h"
#include "support/ScratchFolder.h"
#include "support/TextFile.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace drossbin::test {

inline DiskItem makeItem(const std::string& path, const std::string& name, std::int64_t size) {
    DiskItem item;
    item.path = path;
    item.name = name;
    item.size = size;
    return item;
}

/// A home folder of its own, the English words, the moment stopped, and the reports written down.
class CleanerTest : public testing::Test {
  protected:
    using Reports = std::vector<std::pair<double, std::string>>;

    DiskCleaner::Outcome run(const std::vector<DiskItem>& items) {
        return DiskCleaner::deleteItems(
            items,
            [this](double fraction, const std::string& text) {
                m_reports.emplace_back(fraction, text);
            },
            [] { return march; });
    }

    [[nodiscard]] std::string logFolder() const { return m_home / "Library/Logs/Drossbin"; }
    [[nodiscard]] std::string logPath() const {
        return logFolder() + "/deletion-2026-03-01T14:05:09Z.log";
    }
    [[nodiscard]] std::string log() const { return contentOf(logPath()); }

    [[nodiscard]] static bool isThere(const std::string& path) {
        return FileManager::attributesOfItem(path).has_value();
    }

    ScratchHome m_home;
    ScopedLocale m_english{{"en_US"}};
    HandTurnedQueue m_mainThread;
    Reports m_reports;
};

} // namespace drossbin::test
