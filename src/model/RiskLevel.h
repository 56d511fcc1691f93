#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace drossbin {

/// How safe an item is to delete. There is no order between levels.
enum class RiskLevel { safe, caution, critical };

inline constexpr std::array allRiskLevels{RiskLevel::safe, RiskLevel::caution, RiskLevel::critical};

/// The level as one string ("safe"): its identity and its serialised form.
std::string_view rawValue(RiskLevel risk);

/// The level whose raw value is exactly `rawValue`, letter case included.
std::optional<RiskLevel> riskLevelFrom(std::string_view rawValue);

/// The words for the user ("Safe to Clear").
std::string_view label(RiskLevel risk);

/// The SF Symbols name of the level's symbol.
std::string_view icon(RiskLevel risk);

/// The colour as one word ("green"); the screens choose its shade for light and dark.
std::string_view color(RiskLevel risk);

} // namespace drossbin
