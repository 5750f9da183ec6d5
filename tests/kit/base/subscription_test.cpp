#include <quillon/kit/base/subscription.h>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace quillon {
namespace {

TEST(Subscription, EndsOnce) {
    int ended = 0;
    {
        Subscription first([&] { ++ended; });
        Subscription second = std::move(first);
        EXPECT_FALSE(first);
        EXPECT_TRUE(second);
    }
    EXPECT_EQ(ended, 1);
}

TEST(Subscription, EndsWhenAssignedOver) {
    int ended = 0;
    Subscription subscription([&] { ++ended; });
    subscription = Subscription();
    EXPECT_EQ(ended, 1);
}

TEST(Event, CallsItsSubscribersInOrder) {
    Event<int> event;
    std::vector<int> calls;
    const auto a = event.subscribe([&](int value) { calls.push_back(value); });
    const auto b = event.subscribe([&](int value) { calls.push_back(value * 10); });
    event.emit(1);
    event.emit(2);
    EXPECT_EQ(calls, (std::vector{1, 10, 2, 20}));
}

TEST(Event, DoesNotCallWhoEnded) {
    Event<> event;
    int calls = 0;
    auto subscription = event.subscribe([&] { ++calls; });
    subscription.reset();
    event.emit();
    EXPECT_EQ(calls, 0);
    EXPECT_FALSE(event.isObserved());
}

TEST(Event, ACallbackMayEndItselfAndTheNext) {
    Event<> event;
    int calls = 0;
    Subscription first;
    Subscription second;
    first = event.subscribe([&] {
        ++calls;
        first.reset();
        second.reset();
    });
    second = event.subscribe([&] { calls += 100; });
    event.emit();
    event.emit();
    EXPECT_EQ(calls, 1);
}

TEST(Event, ASubscriberAddedWhileEmittingWaitsForTheNext) {
    Event<> event;
    int calls = 0;
    Subscription late;
    const auto early = event.subscribe([&] {
        if (!late)
            late = event.subscribe([&] { ++calls; });
    });
    event.emit();
    EXPECT_EQ(calls, 0);
    event.emit();
    EXPECT_EQ(calls, 1);
}

TEST(Event, MayEndWhileItIsEmitted) {
    auto event = std::make_unique<Event<>>();
    int calls = 0;
    const auto a = event->subscribe([&] { event.reset(); });
    const auto b = event->subscribe([&] { ++calls; });
    event->emit();
    EXPECT_EQ(calls, 1);
}

TEST(Event, OutlivedByASubscriptionLetsItEnd) {
    Subscription subscription;
    {
        Event<> event;
        subscription = event.subscribe([] {});
    }
    subscription.reset();
}

} // namespace
} // namespace quillon
