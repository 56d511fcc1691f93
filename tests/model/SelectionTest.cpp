#include "model/ScanResult.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace drossbin {
namespace {

using Field = ScanResult::Field;
using testing::ElementsAre;
using testing::IsEmpty;

/// Six items, named by category and risk; those that are selected end in "+".
class Selection : public testing::Test {
  protected:
    ScanResult result;

    void SetUp() override {
        using enum RiskLevel;
        result.items = {
            make(DiskCategory::programCaches, safe),     make(DiskCategory::programCaches, caution),
            make(DiskCategory::programCaches, critical), make(DiskCategory::appData, safe),
            make(DiskCategory::appData, caution),        make(DiskCategory::appData, critical)};
    }

    static DiskItem make(DiskCategory category, RiskLevel risk) {
        return {.name = std::string(rawValue(category)).append(" ").append(rawValue(risk)),
                .size = 1,
                .category = category,
                .risk = risk};
    }

    [[nodiscard]] const DiskItem& at(std::size_t index) const { return result.items.get()[index]; }

    void select(std::initializer_list<std::size_t> indices) {
        result.items.modify([indices](auto& items) {
            for (const std::size_t index : indices) {
                items[index].isSelected = true;
            }
        });
    }

    [[nodiscard]] std::vector<std::size_t> selected() const {
        std::vector<std::size_t> indices;
        for (std::size_t index = 0; index < result.items.get().size(); ++index) {
            if (at(index).isSelected) {
                indices.push_back(index);
            }
        }
        return indices;
    }

    /// How many items were selected at each announced write while `operation` ran.
    template <class Operation>
    std::vector<std::size_t> countsBeforeWrites(Operation operation) {
        std::vector<std::size_t> counts;
        const auto subscription = result.objectWillChange.subscribe([&](Field field) {
            EXPECT_EQ(field, Field::items);
            counts.push_back(result.selectedCount());
        });
        operation();
        return counts;
    }
};

TEST_F(Selection, is_flipped_for_one_item_by_a_toggle) {
    result.toggleSelectionFor(at(1));
    EXPECT_THAT(selected(), ElementsAre(1));
    result.toggleSelectionFor(at(0));
    EXPECT_THAT(selected(), ElementsAre(0, 1));
    result.toggleSelectionFor(at(1));
    EXPECT_THAT(selected(), ElementsAre(0));
}

TEST_F(Selection, never_takes_a_critical_item_by_a_toggle) {
    EXPECT_THAT(countsBeforeWrites([this] { result.toggleSelectionFor(at(2)); }), IsEmpty());
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(Selection, is_flipped_or_not_as_the_given_item_says_whatever_the_list_says) {
    DiskItem critical = at(0);
    critical.risk = RiskLevel::critical;
    result.toggleSelectionFor(critical);
    EXPECT_THAT(selected(), IsEmpty());
    DiskItem safe = at(2);
    safe.risk = RiskLevel::safe;
    result.toggleSelectionFor(safe);
    EXPECT_THAT(selected(), ElementsAre(2));
}

TEST_F(Selection, ignores_a_toggle_of_an_item_that_is_not_there) {
    const DiskItem stranger = make(DiskCategory::appData, RiskLevel::safe);
    EXPECT_THAT(countsBeforeWrites([&] { result.toggleSelectionFor(stranger); }), IsEmpty());
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(Selection, knows_an_item_by_its_identity_alone) {
    DiskItem copy = at(0);
    copy.name = "another name";
    copy.path = "/another/path";
    copy.isSelected = true;
    result.toggleSelectionFor(copy);
    EXPECT_THAT(selected(), ElementsAre(0));
}

TEST_F(Selection, tells_items_of_equal_names_apart) {
    result.items = {make(DiskCategory::appData, RiskLevel::safe),
                    make(DiskCategory::appData, RiskLevel::safe)};
    result.toggleSelectionFor(at(1));
    EXPECT_THAT(selected(), ElementsAre(1));
    result.toggleSelectionFor(at(0));
    EXPECT_THAT(selected(), ElementsAre(0, 1));
}

TEST_F(Selection, takes_the_safe_items_of_every_category_at_once) {
    result.selectAllSafe();
    EXPECT_THAT(selected(), ElementsAre(0, 3));
}

TEST_F(Selection, keeps_a_caution_item_when_all_safe_ones_are_taken) {
    result.toggleSelectionFor(at(1));
    result.selectAllSafe();
    EXPECT_THAT(selected(), ElementsAre(0, 1, 3));
}

TEST_F(Selection, takes_safe_and_caution_items_of_one_category) {
    result.selectAllIn(DiskCategory::appData);
    EXPECT_THAT(selected(), ElementsAre(3, 4));
}

TEST_F(Selection, leaves_a_critical_item_as_it_is_when_its_category_is_taken) {
    select({5});
    result.selectAllIn(DiskCategory::appData);
    EXPECT_THAT(selected(), ElementsAre(3, 4, 5));
}

TEST_F(Selection, takes_items_of_a_category_that_the_search_text_hides) {
    result.searchText = "no such name";
    result.selectAllIn(DiskCategory::appData);
    EXPECT_THAT(selected(), ElementsAre(3, 4));
    result.deselectAllIn(DiskCategory::appData);
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(Selection, is_cleared_for_one_category_critical_items_too) {
    select({0, 1, 2, 3, 4, 5});
    result.deselectAllIn(DiskCategory::programCaches);
    EXPECT_THAT(selected(), ElementsAre(3, 4, 5));
}

TEST_F(Selection, is_cleared_for_all_items) {
    select({0, 1, 2, 3, 4, 5});
    result.deselectAll();
    EXPECT_THAT(selected(), IsEmpty());
}

TEST_F(Selection, survives_a_search) {
    select({0, 4});
    result.searchText = "no such name";
    result.searchText = "";
    EXPECT_THAT(selected(), ElementsAre(0, 4));
}

TEST_F(Selection, leaves_items_and_their_order_alone) {
    const auto names = [this] {
        std::vector<std::string> all;
        for (const DiskItem& item : result.items.get()) {
            all.push_back(item.name);
        }
        return all;
    };
    const std::vector<std::string> before = names();
    result.selectAllSafe();
    result.selectAllIn(DiskCategory::appData);
    result.deselectAllIn(DiskCategory::appData);
    result.deselectAll();
    EXPECT_EQ(names(), before);
}

TEST_F(Selection, announces_each_item_before_it_is_written_and_no_other) {
    EXPECT_THAT(countsBeforeWrites([this] { result.toggleSelectionFor(at(1)); }), ElementsAre(0));
    EXPECT_THAT(countsBeforeWrites([this] { result.selectAllSafe(); }), ElementsAre(1, 2));
    EXPECT_THAT(countsBeforeWrites([this] { result.selectAllIn(DiskCategory::programCaches); }),
                ElementsAre(3, 3));
    EXPECT_THAT(countsBeforeWrites([this] { result.deselectAllIn(DiskCategory::programCaches); }),
                ElementsAre(3, 2, 1));
    EXPECT_THAT(countsBeforeWrites([this] { result.deselectAll(); }),
                ElementsAre(1, 1, 1, 1, 0, 0));
}

} // namespace
} // namespace drossbin
