#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "tactix/platform/Error.h"
#include "tactix/platform/Object.h"
#include "tactix/platform/Variant.h"
#include "tactix/strategy/StrategyCatalogue.h"
#include "tactix/strategy/StrategyListData.h"

namespace tactix::tests {

/// A catalogue whose answers a test sets. Slots without a description are empty.
class FakeCatalogue final : public StrategyCatalogue {
 public:
  std::map<int, std::string> Playing;
  /// The answers to the second and every other even question about a number, where they differ from the first.
  std::map<int, std::string> PlayingSecond;
  std::map<int, std::string> Betting;
  std::map<int, std::string> Counts;
  StrategyRange Range;
  /// What the last fill of a count strategy list has handed over.
  ObjectRef Store;
  /// What was asked, as "Playing 5", in order.
  std::vector<std::string> Log;
  /// Runs at every call, after it was logged; may throw.
  std::function<void(const std::string& call)> OnCall;
  /// What is written to the number that was asked for.
  std::function<void(std::int16_t&)> WriteBack;

  std::string DescribeStrategy(std::int16_t& number) override {
    const int asked = number;
    Note("Playing " + std::to_string(asked));
    if (WriteBack) WriteBack(number);
    const bool second = ++times_[asked] % 2 == 0;
    return second && PlayingSecond.contains(asked) ? PlayingSecond[asked] : Answer(Playing, asked);
  }
  std::string DescribeBettingStrategy(std::int16_t& number) override {
    const int asked = number;
    Note("Betting " + std::to_string(asked));
    if (WriteBack) WriteBack(number);
    return Answer(Betting, asked);
  }
  void DescribeStrategy(std::int16_t number, std::string& text) override {
    Note("Count " + std::to_string(number));
    text = Answer(Counts, number);
  }
  StrategyRange GetStrategyRange() override {
    const StrategyRange range = Range;
    Note("Range");
    return range;
  }
  void AttachCountStrategyStore(const ObjectRef& store) override {
    Store = store;
    Note("Store");
  }

  /// Describes strategies 0 ... highest as present, under the names "Strategy 0" and so on, and sets the range.
  void Describe(int highest) {
    for (int i = 0; i <= highest; ++i) Playing[i] = "note,Strategy " + std::to_string(i) + ",False True";
    Range.HighestPlayingStrategy = static_cast<std::int16_t>(highest);
  }
  /// Describes betting strategies -1 ... highest, and playing ones of the same numbers, and sets the range.
  void DescribeBetting(int highest) {
    Describe(highest);
    Playing[-1] = "note,Seat,False True";
    for (int i = -1; i <= highest; ++i) Betting[i] = "note,Bet " + std::to_string(i) + ",1";
    Range.HighestBettingStrategy = static_cast<std::int16_t>(highest);
  }
  /// Describes count systems 11 ... 38 as listed, under the names "Count 11" and so on.
  void DescribeCounts() {
    for (int i = 11; i <= 38; ++i) Counts[i] = "note,Count " + std::to_string(i) + ",False True 1 2 3 4 ";
  }

 private:
  void Note(const std::string& call) {
    Log.push_back(call);
    if (const auto onCall = OnCall) onCall(call);
  }
  static std::string Answer(const std::map<int, std::string>& from, int number) {
    const auto found = from.find(number);
    return found == from.end() ? std::string() : found->second;
  }

  std::map<int, int> times_;
};

/// Puts a fake catalogue in the place of the process's own for as long as it lives; nothing then makes another one.
class InstalledCatalogue {
 public:
  InstalledCatalogue() {
    StrategyListData::CreateCatalogueWith(nullptr);
    StrategyListData::UseCatalogue(catalogue_);
  }
  ~InstalledCatalogue() { StrategyListData::UseCatalogue(nullptr); }
  InstalledCatalogue(const InstalledCatalogue&) = delete;
  InstalledCatalogue& operator=(const InstalledCatalogue&) = delete;

  FakeCatalogue* operator->() const { return catalogue_.get(); }
  FakeCatalogue& operator*() const { return *catalogue_; }

 private:
  std::shared_ptr<FakeCatalogue> catalogue_ = std::make_shared<FakeCatalogue>();
};

/// A collection of strategies as lists know it: all they ask for is its "Count".
class FakeCollection final : public Object {
 public:
  explicit FakeCollection(Variant count) : count_(std::move(count)) {}

  std::function<void()> OnCount;

  Variant Get(std::string_view name) override {
    if (!SameName(name, "Count")) return Object::Get(name);
    const Variant count = count_;
    if (const auto onCount = OnCount) onCount();
    return count;
  }

 private:
  Variant count_;
};

}  // namespace tactix::tests
