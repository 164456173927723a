#include "tactix/platform/Event.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tactix/platform/Error.h"
#include "tests/support/AllocationCounter.h"
#include "tests/support/RowName.h"

namespace tactix::tests {
namespace {

using Log = std::vector<std::string>;

TEST(EventTest, KnowsItsNumberAndName) {
  const Event<> event{21, "Show"};
  EXPECT_EQ(event.Number(), 21);
  EXPECT_EQ(event.Name(), "Show");
}

/// Three handlers "a", "b", "c"; in the first raise, one of them does something to the event.
struct HandlerRow {
  const char* name;
  const char* actor;
  std::function<void(struct ThreeHandlers&)> act;
  Log firstRaise;
  Log secondRaise;
};

struct ThreeHandlers {
  Log log;
  std::optional<Event<>> event{std::in_place, 1, "Event"};
  Connection a, b, c;
  bool acted = false;

  explicit ThreeHandlers(const HandlerRow& row) {
    const auto connect = [this, &row](const char* who) {
      return event->Connect([this, &row, who] {
        log.emplace_back(who);
        if (std::string(who) == row.actor && !std::exchange(acted, true)) row.act(*this);
      });
    };
    a = connect("a");
    b = connect("b");
    c = connect("c");
  }
};

class EventHandlerTest : public testing::TestWithParam<HandlerRow> {};

TEST_P(EventHandlerTest, MayDoThis) {
  const HandlerRow& row = GetParam();
  ThreeHandlers fixture(row);
  fixture.event->Raise();
  EXPECT_EQ(fixture.log, row.firstRaise);
  fixture.log.clear();
  if (fixture.event) fixture.event->Raise();
  EXPECT_EQ(fixture.log, row.secondRaise);
}

const HandlerRow HandlerRows[] = {
    {"Nothing", "", [](ThreeHandlers&) {}, {"a", "b", "c"}, {"a", "b", "c"}},
    {"Connect",
     "b",
     [](ThreeHandlers& f) { f.event->Connect([&f] { f.log.emplace_back("new"); }); },
     {"a", "b", "c"},
     {"a", "b", "c", "new"}},
    {"ConnectMany",
     "a",
     [](ThreeHandlers& f) {
       for (int i = 0; i < 40; ++i) f.event->Connect([] {});
     },
     {"a", "b", "c"},
     {"a", "b", "c"}},
    {"DisconnectALaterOne", "a", [](ThreeHandlers& f) { f.b.Disconnect(); }, {"a", "c"}, {"a", "c"}},
    HandlerRow{"DisconnectAnEarlierOne", "c", [](ThreeHandlers& f) { f.a.Disconnect(); }, {"a", "b", "c"}, {"b", "c"}},
    {"DisconnectItself", "b", [](ThreeHandlers& f) { f.b.Disconnect(); }, {"a", "b", "c"}, {"a", "c"}},
    {"DisconnectAll",
     "a",
     [](ThreeHandlers& f) {
       f.a.Disconnect();
       f.b.Disconnect();
       f.c.Disconnect();
     },
     {"a"},
     {}},
    {"RaiseAgain", "b", [](ThreeHandlers& f) { f.event->Raise(); }, {"a", "b", "a", "b", "c", "c"}, {"a", "b", "c"}},
    {"DisconnectItselfAndRaiseAgain",
     "b",
     [](ThreeHandlers& f) {
       f.b.Disconnect();
       f.event->Raise();
     },
     {"a", "b", "a", "c", "c"},
     {"a", "c"}},
    {"ConnectAndRaiseAgain",
     "b",
     [](ThreeHandlers& f) {
       f.event->Connect([&f] { f.log.emplace_back("new"); });
       f.event->Raise();
     },
     {"a", "b", "a", "b", "c", "new", "c"},
     {"a", "b", "c", "new"}},
    {"DestroyTheEvent", "b", [](ThreeHandlers& f) { f.event.reset(); }, {"a", "b"}, {}},
    {"RaiseAgainAndDestroyTheEvent",
     "a",
     [](ThreeHandlers& f) {
       f.event->Connect([&f] { f.event.reset(); });
       f.event->Raise();
     },
     {"a", "a", "b", "c"},
     {}}};

INSTANTIATE_TEST_SUITE_P(Rows, EventHandlerTest, testing::ValuesIn(HandlerRows), RowName());

TEST(EventTest, ReferenceArgumentsAreTheRaisersOwn) {
  Event<std::int32_t&, const std::string&> event{1, "Event"};
  event.Connect([](std::int32_t& number, const std::string&) { number += 1; });
  event.Connect([](std::int32_t& number, const std::string& text) { number *= static_cast<int>(text.size()); });
  std::int32_t number = 4;
  event.Raise(number, "three");
  EXPECT_EQ(number, 25);
}

TEST(EventTest, ValueArgumentsAreEachHandlersOwn) {
  Event<std::int32_t> event{1, "Event"};
  std::vector<std::int32_t> seen;
  for (int i = 0; i < 2; ++i) {
    event.Connect([&seen](std::int32_t number) { seen.push_back(number++); });
  }
  event.Raise(7);
  EXPECT_EQ(seen, (std::vector<std::int32_t>{7, 7}));
}

TEST(EventTest, AnErrorEndsTheRaiseAndReachesTheRaiser) {
  Event<> event{1, "Event"};
  Log log;
  event.Connect([&] { log.emplace_back("a"); });
  Connection failing = event.Connect([&] {
    failing.Disconnect();
    throw Error(Error::TypeMismatch);
  });
  event.Connect([&] { log.emplace_back("c"); });
  try {
    event.Raise();
    FAIL() << "the error has not come through";
  } catch (const Error& error) {
    EXPECT_EQ(error.Code(), 13);
  }
  EXPECT_EQ(log, Log{"a"});
  event.Raise();
  EXPECT_EQ(log, (Log{"a", "a", "c"}));
}

TEST(EventTest, RaisingAllocatesNothing) {
  Event<std::int32_t&> event{1, "Event"};
  std::int32_t sum = 0;
  const auto add = [&event, &sum](std::int32_t& number) {
    sum += number;
    if (number-- > 0) event.Raise(number);
  };
  for (int i = 0; i < 3; ++i) event.Connect(add);
  std::int32_t number = 2;
  const std::size_t before = Allocations();
  event.Raise(number);
  const std::size_t after = Allocations();
  EXPECT_EQ(after, before);
  EXPECT_NE(sum, 0);
}

TEST(EventTest, AllocationsAreCounted) {
  const std::size_t before = Allocations();
  Event<> event{1, "Event"};
  EXPECT_EQ(Allocations(), before) << "an event that nobody listens to costs nothing";
  event.Connect([] {});
  EXPECT_GT(Allocations(), before);
}

TEST(ConnectionTest, OutlivesItsEvent) {
  Connection connection;
  EXPECT_FALSE(connection.IsConnected());
  connection.Disconnect();
  {
    Event<> event{1, "Event"};
    connection = event.Connect([] {});
    EXPECT_TRUE(connection.IsConnected());
  }
  EXPECT_FALSE(connection.IsConnected());
  connection.Disconnect();
}

TEST(ConnectionTest, CopiesStandForOneHandler) {
  Event<> event{1, "Event"};
  int calls = 0;
  Connection first = event.Connect([&calls] { ++calls; });
  event.Connect([&calls] { calls += 10; });
  Connection second = first;
  second.Disconnect();
  EXPECT_FALSE(first.IsConnected());
  first.Disconnect();
  event.Raise();
  EXPECT_EQ(calls, 10);
}

TEST(ConnectionTest, DroppingItLeavesTheHandler) {
  Event<> event{1, "Event"};
  int calls = 0;
  {
    const Connection dropped = event.Connect([&calls] { ++calls; });
  }
  event.Raise();
  EXPECT_EQ(calls, 1);
}

TEST(ConnectionTest, IsOffWhileItsHandlerStillRuns) {
  Event<> event{1, "Event"};
  Connection connection;
  bool connectedInside = true;
  connection = event.Connect([&] {
    const Connection copy = connection;
    connection.Disconnect();
    connectedInside = copy.IsConnected();
  });
  event.Raise();
  EXPECT_FALSE(connectedInside);
}

TEST(ScopedConnectionTest, TakesItsHandlerOffAtTheEndOfItsScope) {
  Event<> event{1, "Event"};
  int calls = 0;
  {
    const ScopedConnection connection = event.Connect([&calls] { ++calls; });
    event.Raise();
    EXPECT_TRUE(connection.IsConnected());
  }
  event.Raise();
  EXPECT_EQ(calls, 1);
}

TEST(ScopedConnectionTest, MovesAndDropsWhatItHeldBefore) {
  Event<> event{1, "Event"};
  Log log;
  ScopedConnection held = event.Connect([&log] { log.emplace_back("first"); });
  {
    ScopedConnection other = event.Connect([&log] { log.emplace_back("second"); });
    held = std::move(other);
  }
  event.Raise();
  EXPECT_EQ(log, Log{"second"});
  const ScopedConnection last = std::move(held);
  held = ScopedConnection();
  event.Raise();
  EXPECT_EQ(log, (Log{"second", "second"}));
}

struct Owner {
  explicit Owner(bool& goneFlag) : gone(goneFlag) {}
  Owner(const Owner&) = delete;
  Owner& operator=(const Owner&) = delete;
  ~Owner() { gone = true; }

  bool& gone;
  Event<> event{1, "Event"};
  ScopedConnection connection;
};

TEST(EventLifetimeTest, AHandlerMayDropTheLastReferenceToItsOwner) {
  bool gone = false;
  auto owner = std::make_shared<Owner>(gone);
  Event<>& event = owner->event;
  const std::string kept = "a text too long for a small buffer, on the heap";
  std::string seenAfter;
  event.Connect([owner = std::move(owner), kept, &seenAfter]() mutable {
    owner.reset();
    seenAfter = kept;
  });
  event.Raise();
  EXPECT_TRUE(gone);
  EXPECT_EQ(seenAfter, kept);
}

TEST(EventLifetimeTest, AHandlerWithTheLastReferenceMayTakeItselfOffWhileItRuns) {
  bool gone = false;
  auto owner = std::make_shared<Owner>(gone);
  bool goneInside = true;
  Event<>& event = owner->event;
  owner->connection = event.Connect([owner, &gone, &goneInside] {
    owner->connection = {};
    goneInside = gone;
  });
  owner.reset();
  event.Raise();
  EXPECT_FALSE(goneInside);
  EXPECT_TRUE(gone);
}

TEST(EventLifetimeTest, TakingOffAHandlerMayDestroyTheConnectionAndTheEvent) {
  struct Held {
    Event<> event{1, "Event"};
    Connection connection;
  };
  auto held = std::make_shared<Held>();
  const std::weak_ptr<Held> watch = held;
  Held& itself = *held;
  itself.connection = itself.event.Connect([held] {});
  held.reset();
  ASSERT_FALSE(watch.expired());
  itself.connection.Disconnect();
  EXPECT_TRUE(watch.expired());
}

TEST(EventLifetimeTest, DyingHandlersMayReachBackIntoTheirEvent) {
  int gone = 0;
  {
    Event<> event{1, "Event"};
    auto toLast = std::make_shared<ScopedConnection>();
    auto toFirst = std::make_shared<ScopedConnection>();
    const std::shared_ptr<void> count(nullptr, [&gone](void*) { ++gone; });
    *toFirst = event.Connect([toLast, count] {});
    event.Connect([] {});
    *toLast = event.Connect([toFirst, count] {});
  }
  EXPECT_EQ(gone, 1);
}

TEST(ConnectionTest, IsOffOnceItsEventIsGoneThoughARaiseIsStillUnderWay) {
  std::optional<Event<>> event(std::in_place, 1, "Event");
  bool connected = true;
  Connection later;
  event->Connect([&] {
    event.reset();
    connected = later.IsConnected();
  });
  later = event->Connect([] {});
  event->Raise();
  EXPECT_FALSE(connected);
}

}  // namespace
}  // namespace tactix::tests
