#include "model/RiskLevel.h"

#include <algorithm>
#include <cstddef>

namespace drossbin {

namespace {

struct Presentation {
    std::string_view rawValue;
    std::string_view label;
    std::string_view icon;
    std::string_view color;
};

constexpr std::array<Presentation, allRiskLevels.size()> presentations{{
    {"safe", "Safe to Clear", "checkmark.circle.fill", "green"},
    {"caution", "Review First", "exclamationmark.triangle.fill", "orange"},
    {"critical", "Protected", "xmark.octagon.fill", "red"},
}};

const Presentation& presentation(RiskLevel risk) {
    return presentations.at(static_cast<std::size_t>(risk));
}

} // namespace

std::string_view rawValue(RiskLevel risk) {
    return presentation(risk).rawValue;
}

std::optional<RiskLevel> riskLevelFrom(std::string_view rawValue) {
    const auto* const found = std::ranges::find(presentations, rawValue, &Presentation::rawValue);
    if (found == presentations.end()) {
        return std::nullopt;
    }
    return allRiskLevels.at(static_cast<std::size_t>(found - presentations.begin()));
}

std::string_view label(RiskLevel risk) {
    return presentation(risk).label;
}

std::string_view icon(RiskLevel risk) {
    return presentation(risk).icon;
}

std::string_view color(RiskLevel risk) {
    return presentation(risk).color;
}

} // namespace drossbin
