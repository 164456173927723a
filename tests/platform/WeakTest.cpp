#include "tactix/platform/Weak.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <vector>

#include "tests/support/AllocationCounter.h"

namespace tactix::tests {
namespace {

struct Target : Trackable {
  int value = 7;
};

TEST(WeakTest, ReadsNullUntilItHasATarget) {
  const Weak<Target> none;
  EXPECT_FALSE(none);
  EXPECT_EQ(none.Get(), nullptr);
  const Weak<Target> null(nullptr);
  EXPECT_FALSE(null);
}

TEST(WeakTest, ReadsItsTargetUntilThatIsGone) {
  auto target = std::make_unique<Target>();
  const Weak<Target> weak(*target);
  EXPECT_EQ(weak.Get(), target.get());
  EXPECT_EQ(weak->value, 7);
  target.reset();
  EXPECT_FALSE(weak);
  EXPECT_EQ(weak.Get(), nullptr);
}

TEST(WeakTest, CopiesWatchForThemselves) {
  auto target = std::make_unique<Target>();
  Target other;
  auto first = std::make_unique<Weak<Target>>(*target);
  Weak<Target> second = *first;
  Weak<Target> third;
  third = second;
  first.reset();
  second = Weak<Target>(other);
  EXPECT_EQ(second.Get(), &other);
  EXPECT_EQ(third.Get(), target.get());
  target.reset();
  EXPECT_EQ(second.Get(), &other);
  EXPECT_FALSE(third);
}

TEST(WeakTest, AssigningToItselfOrTheSameTargetKeepsIt) {
  auto target = std::make_unique<Target>();
  Weak<Target> weak(*target);
  const Weak<Target>& same = weak;
  weak = same;
  weak = Weak<Target>(*target);
  EXPECT_EQ(weak.Get(), target.get());
  target.reset();
  EXPECT_FALSE(weak);
}

TEST(WeakTest, AnyOfSeveralMayGoFirst) {
  std::array<std::size_t, 4> order{0, 1, 2, 3};
  do {
    auto target = std::make_unique<Target>();
    std::array<Weak<Target>, 4> weaks;
    weaks.fill(Weak<Target>(*target));
    weaks[order[0]] = Weak<Target>();
    weaks[order[1]] = Weak<Target>();
    EXPECT_FALSE(weaks[order[0]]);
    EXPECT_TRUE(weaks[order[2]]);
    EXPECT_TRUE(weaks[order[3]]);
    target.reset();
    for (const Weak<Target>& weak : weaks) EXPECT_FALSE(weak);
  } while (std::next_permutation(order.begin(), order.end()));
}

TEST(WeakTest, WatchesThroughMovesOfItsContainer) {
  auto target = std::make_unique<Target>();
  std::vector<Weak<Target>> weaks;
  for (int i = 0; i < 100; ++i) weaks.emplace_back(*target);
  weaks.erase(weaks.begin() + 10, weaks.begin() + 20);
  target.reset();
  for (const Weak<Target>& weak : weaks) EXPECT_FALSE(weak);
}

TEST(WeakTest, NeverAllocates) {
  Target target;
  const std::size_t before = Allocations();
  const Weak<Target> weak(target);
  Weak<Target> copy = weak;
  copy = weak;
  const std::size_t after = Allocations();
  EXPECT_EQ(after, before);
}

}  // namespace
}  // namespace tactix::tests
