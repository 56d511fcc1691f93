#include "model/DiskCategory.h"

#include <algorithm>
#include <cstddef>

namespace drossbin {

namespace {

struct Presentation {
    std::string_view rawValue;
    std::string_view icon;
    std::string_view subtitle;
};

constexpr std::array<Presentation, allDiskCategories.size()> presentations{{
    {"Program Caches", "trash", "App and system caches"},
    {"Package Caches", "shippingbox", "npm, Homebrew, pip, yarn"},
    {"App Data", "square.stack.3d.up", "Application support data"},
    {"Log Files", "doc.text", "System and application logs"},
    {"Old Downloads", "arrow.down.circle", "Downloads older than 30 days"},
}};

const Presentation& presentation(DiskCategory category) {
    return presentations.at(static_cast<std::size_t>(category));
}

} // namespace

std::string_view rawValue(DiskCategory category) {
    return presentation(category).rawValue;
}

std::optional<DiskCategory> diskCategoryFrom(std::string_view rawValue) {
    const auto* const found = std::ranges::find(presentations, rawValue, &Presentation::rawValue);
    if (found == presentations.end()) {
        return std::nullopt;
    }
    return allDiskCategories.at(static_cast<std::size_t>(found - presentations.begin()));
}

std::string_view icon(DiskCategory category) {
    return presentation(category).icon;
}

std::string_view subtitle(DiskCategory category) {
    return presentation(category).subtitle;
}

} // namespace drossbin
