#include "platform/GraphicsCard.h"

#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#ifdef DROSSBIN_LINUX // elsewhere a card is taken for granted

namespace drossbin {
namespace {

using test::ScratchFolder;

bool isFoundBy(const std::string& device) {
    const ScratchFolder devices;
    devices.file(device, 0);
    return hasGraphicsCard(devices.path());
}

TEST(GraphicsCard, is_found_by_what_it_draws_with) {
    EXPECT_TRUE(isFoundBy("dri/renderD128"));
    EXPECT_TRUE(isFoundBy("nvidiactl"));
    EXPECT_TRUE(isFoundBy("dxg"));
}

TEST(GraphicsCard, is_not_found_where_there_is_none) {
    EXPECT_FALSE(hasGraphicsCard(ScratchFolder().path()));
    EXPECT_FALSE(hasGraphicsCard(ScratchFolder().path() + "/missing"));
    EXPECT_FALSE(isFoundBy("dri"));
}

TEST(GraphicsCard, is_not_found_by_what_only_shows_a_picture) {
    EXPECT_FALSE(isFoundBy("dri/card0"));
}

} // namespace
} // namespace drossbin

#endif
