#include "Harness.h"

#include <QSemaphore>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace drossbin {
namespace {

using test::servicesThatFind;

struct Closing : ::testing::Test {
    Closing()
        : view(services()) {}

    Services services() {
        Services services = servicesThatFind({});
        services.scan = [this](const DiskScanner::Progress&) {
            gate.acquire();
            return std::vector<DiskItem>{};
        };
        services.deleteItems = [this](const auto&, const auto&) {
            gate.acquire();
            return DiskCleaner::Outcome{};
        };
        return services;
    }

    QSemaphore gate;
    ContentView view;
    QSignalSpy closings{&view, &ContentView::closeNow};
};

TEST_F(Closing, is_allowed_at_once_while_nothing_runs) {
    EXPECT_TRUE(view.requestClose());
}

TEST_F(Closing, is_allowed_at_once_while_a_scan_runs) {
    view.startScan(false);
    EXPECT_TRUE(view.requestClose());
    gate.release();
    test::settle();
    EXPECT_EQ(closings.count(), 0);
}

TEST_F(Closing, waits_for_the_end_of_a_deletion) {
    view.requestDeletion();
    view.confirmDeletion();
    EXPECT_FALSE(view.requestClose());
    EXPECT_EQ(closings.count(), 0);
    gate.release();
    test::settle();
    EXPECT_FALSE(view.scanResult().isDeleting.get());
    EXPECT_TRUE(view.requestClose());
    EXPECT_EQ(closings.count(), 1);
}

TEST_F(Closing, is_not_asked_for_by_a_deletion_alone) {
    view.requestDeletion();
    view.confirmDeletion();
    gate.release();
    test::settle();
    EXPECT_EQ(closings.count(), 0);
}

} // namespace
} // namespace drossbin
