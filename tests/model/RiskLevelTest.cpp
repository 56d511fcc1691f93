#include "model/RiskLevel.h"

#include <gtest/gtest.h>

#include <string>
#include <unordered_set>

namespace drossbin {
namespace {

std::string presentation(RiskLevel risk) {
    return std::string(rawValue(risk)) + ", " + std::string(label(risk)) + ", " +
           std::string(icon(risk));
}

TEST(RiskLevel, is_presented_by_label_symbol_and_colour) {
    EXPECT_EQ(presentation(RiskLevel::safe), "safe, Safe to Clear, checkmark.circle.fill");
    EXPECT_EQ(presentation(RiskLevel::caution),
              "caution, Review First, exclamationmark.triangle.fill");
    EXPECT_EQ(presentation(RiskLevel::critical), "critical, Protected, xmark.octagon.fill");
    EXPECT_EQ(color(RiskLevel::safe), "green");
    EXPECT_EQ(color(RiskLevel::caution), "orange");
    EXPECT_EQ(color(RiskLevel::critical), "red");
}

TEST(RiskLevel, decodes_what_it_encodes) {
    for (const RiskLevel risk : allRiskLevels) {
        EXPECT_EQ(riskLevelFrom(rawValue(risk)), risk);
    }
    EXPECT_EQ(riskLevelFrom("safe"), RiskLevel::safe);
}

TEST(RiskLevel, does_not_decode_any_other_text) {
    for (const char* text : {"Safe", "SAFE", "", " safe", "safe ", "Safe to Clear", "danger"}) {
        EXPECT_EQ(riskLevelFrom(text), std::nullopt) << text;
    }
}

TEST(RiskLevel, can_be_compared_and_kept_in_a_set) {
    const std::unordered_set<RiskLevel> levels{RiskLevel::safe, RiskLevel::safe,
                                               RiskLevel::critical};
    EXPECT_EQ(levels.size(), 2U);
    EXPECT_TRUE(levels.contains(RiskLevel::critical));
    EXPECT_FALSE(levels.contains(RiskLevel::caution));
}

} // namespace
} // namespace drossbin
