#include "model/ChangePublisher.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace drossbin {
namespace {

using testing::ElementsAre;
using Publisher = ChangePublisher<int>;

TEST(ChangePublisher, tells_all_subscribers_in_the_order_of_their_subscription) {
    Publisher publisher;
    std::vector<std::string> heard;
    const auto first = publisher.subscribe(
        [&heard](int change) { heard.push_back("first " + std::to_string(change)); });
    const auto second = publisher.subscribe(
        [&heard](int change) { heard.push_back("second " + std::to_string(change)); });
    publisher.send(1);
    publisher.send(2);
    EXPECT_THAT(heard, ElementsAre("first 1", "second 1", "first 2", "second 2"));
}

TEST(ChangePublisher, tells_a_subscriber_nothing_once_its_subscription_is_gone) {
    Publisher publisher;
    std::vector<int> heard;
    auto subscription = publisher.subscribe([&heard](int change) { heard.push_back(change); });
    publisher.send(1);
    subscription.reset();
    publisher.send(2);
    EXPECT_THAT(heard, ElementsAre(1));
}

TEST(ChangePublisher, lets_a_listener_end_subscriptions_while_it_hears) {
    Publisher publisher;
    std::vector<int> heard;
    Publisher::Subscription own;
    Publisher::Subscription next;
    own = publisher.subscribe([&](int change) {
        heard.push_back(change);
        own.reset();
        next.reset();
    });
    next = publisher.subscribe([&heard](int change) { heard.push_back(-change); });
    publisher.send(1);
    publisher.send(2);
    EXPECT_THAT(heard, ElementsAre(1));
}

TEST(ChangePublisher, lets_a_listener_subscribe_others_while_it_hears) {
    Publisher publisher;
    std::vector<int> heard;
    std::vector<Publisher::Subscription> more;
    const auto subscription = publisher.subscribe([&](int) {
        for (int count = 0; count < 10; ++count) {
            more.push_back(publisher.subscribe([&heard](int change) { heard.push_back(change); }));
        }
    });
    publisher.send(1);
    EXPECT_TRUE(heard.empty());
    publisher.send(2);
    EXPECT_EQ(heard, std::vector<int>(10, 2));
}

// A change that was sent while another was under way once took the gone subscriptions out of the
// list that the other still walked: it left some out, and read past the end.
TEST(ChangePublisher, tells_all_others_when_a_listener_ends_subscriptions_and_makes_a_change) {
    Publisher publisher;
    std::vector<std::string> heard;
    const auto subscribe = [&](const std::string& name) {
        return publisher.subscribe(
            [&heard, name](int change) { heard.push_back(name + " " + std::to_string(change)); });
    };
    auto before = subscribe("before");
    Publisher::Subscription after;
    const auto writer = publisher.subscribe([&](int change) {
        heard.push_back("writer " + std::to_string(change));
        if (change == 1) {
            before.reset();
            after.reset();
            publisher.send(2);
        }
    });
    after = subscribe("after");
    const auto last = subscribe("last");
    const auto veryLast = subscribe("very last");
    publisher.send(1);
    publisher.send(3);
    EXPECT_THAT(heard, ElementsAre("before 1", "writer 1", "writer 2", "last 2", "very last 2",
                                   "last 1", "very last 1", "writer 3", "last 3", "very last 3"));
}

TEST(ChangePublisher, may_go_before_its_subscriptions) {
    Publisher::Subscription subscription;
    {
        Publisher publisher;
        subscription = publisher.subscribe([](int) {});
    }
    EXPECT_NE(subscription, nullptr);
}

} // namespace
} // namespace drossbin
