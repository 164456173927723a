// The lists beside a model of them, whatever a host, a user and a catalogue do.

#include <gtest/gtest.h>

#include <cstdint>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tactix/platform/PropertyBag.h"
#include "tactix/platform/headless/HeadlessSite.h"
#include "tactix/strategy/BetStrategyList.h"
#include "tactix/strategy/CountStrategyList.h"
#include "tactix/strategy/StrategyListLITE.h"
#include "tactix/strategy/StrategyMarquix.h"
#include "tests/platform/ErrorCode.h"
#include "tests/support/DescriptionTexts.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/FakeCatalogue.h"
#include "tests/support/RandomSequence.h"
#include "tests/support/StrategyListModel.h"

namespace tactix::tests {
namespace {

StrategyListLITE& ListOf(StrategyListLITE& list) { return list; }
BetStrategyList& ListOf(BetStrategyList& list) { return list; }
CountStrategyList& ListOf(CountStrategyList& list) { return list; }
StrategyListLITE& ListOf(StrategyMarquix& marquee) { return marquee.Children.StrategyListBox; }

constexpr ModelledList ModelOf(const StrategyListLITE*) { return ModelledList::Compact; }
constexpr ModelledList ModelOf(const BetStrategyList*) { return ModelledList::Betting; }
constexpr ModelledList ModelOf(const CountStrategyList*) { return ModelledList::Count; }
constexpr ModelledList ModelOf(const StrategyMarquix*) { return ModelledList::Compact; }

void Fill(StrategyListLITE& list) { list.InputPlayingStrategyDescriptions(); }
void Fill(BetStrategyList& list) { list.InputBettingStrategyDescriptions(); }
void Fill(CountStrategyList& list) { list.InputCountStrategyDescriptions(); }
void Fill(StrategyMarquix& marquee) { marquee.InputPlayingStrategyDescriptions(); }

/// A control and its model; the operations do the same to both and note what differs.
template <class C>
class Twins {
 public:
  Twins() {
    fake->Describe(30);
    fake->DescribeBetting(30);
    fake->DescribeCounts();
    fake->OnCall = [this](const std::string& call) {
      fake->Log.clear();
      if (call == catalogue.failingCall) throw Error(catalogue.failingCode);
    };
    StrategyListData::Buffer().Write("");
    StartOver();
  }

  void StartOver() {
    control = std::make_unique<C>(site);
    recorder = std::make_unique<EventRecorder>();
    recorder->Watch(ListOf(*control).Events.All());
    model = std::make_unique<StrategyListModel>(ModelOf(control.get()), catalogue);
    for (std::int32_t row = 0; row < Box().ListCount(); ++row) model->rows.push_back(Box().List(row));
    model->text = Box().Text();
    site.ForgetRecords();
  }
  void Call(const char* what, int expected, int actual) {
    if (expected != actual && wrong.empty()) {
      wrong = std::string(what) + " gave " + std::to_string(actual) + ", not " + std::to_string(expected);
    }
  }
  /// Runs on both what answers an error's code, the buffer as it was for each.
  template <class OnModel, class OnControl>
  void Both(const char* what, OnModel&& onModel, OnControl&& onControl) {
    const std::string buffer = StrategyListData::Buffer().Text();
    const int expected = onModel();
    const std::string after = StrategyListData::Buffer().Text();
    StrategyListData::Buffer().Write(buffer);
    Call(what, expected, ErrorCodeOf([&] { onControl(); }));
    if (StrategyListData::Buffer().Text() != after && wrong.empty()) wrong = "another text in the buffer";
  }
  ListBox& Box() {
    auto& list = ListOf(*control);
    return static_cast<ListBox&>(*list.Extender().Children()[0]);
  }
  std::string Difference() {
    if (!wrong.empty()) return wrong;
    const ListBox& box = Box();
    if (box.ListCount() != static_cast<std::int32_t>(model->rows.size())) return "the number of rows";
    for (std::int32_t row = 0; row < box.ListCount(); ++row) {
      if (box.List(row) != model->rows[static_cast<std::size_t>(row)]) return "row " + std::to_string(row);
    }
    if (box.ListIndex() != model->row) return "the selected row";
    if (box.Text() != model->text) return "the text";
    if (ListOf(*control).LastGoodListIndex() != model->lastGood) return "the last good row";
    if (site.Beeps() != model->beeps) return "the beeps";
    if (recorder->Entries() != model->events) return "the events";
    if constexpr (std::is_same_v<C, CountStrategyList>) {
      if (control->IsFilled() != model->filled) return "the filled state";
      if (control->CurrentIndex() != model->current) return "the current system";
    } else {
      if (ListOf(*control).CurrentStrategy() != model->current) return "the current strategy";
    }
    if constexpr (std::is_same_v<C, BetStrategyList>) {
      if (control->QuietSelection() != model->quiet) return "the quiet flag";
    }
    return {};
  }

  InstalledCatalogue fake;
  ModelCatalogue catalogue{*fake, true, {}, 0};
  HeadlessSite site;
  std::unique_ptr<C> control;
  std::unique_ptr<EventRecorder> recorder;
  std::unique_ptr<StrategyListModel> model;
  std::string wrong;
};

template <class C>
using Sequence = RandomSequence<Twins<C>>;

/// What the catalogue and the buffer go through.
template <class C>
void AddCatalogueOperations(Sequence<C>& sequence) {
  sequence.Add("describe", 20, [](Twins<C>& twins, SequenceRandom& random) {
    twins.fake->Playing[random.Between(-1, 55)] = AnyPlayingDescription(random);
    twins.fake->Betting[random.Between(-1, 55)] = AnyBettingDescription(random);
    twins.fake->Counts[random.Between(11, 38)] = AnyCountDescription(random);
  });
  sequence.Add("describe well", 3, [](Twins<C>& twins, SequenceRandom& random) {
    twins.fake->Describe(random.Between(0, 60));
    twins.fake->DescribeBetting(random.Between(0, 60));
    twins.fake->DescribeCounts();
  });
  sequence.Add("set the range", 2, [](Twins<C>& twins, SequenceRandom& random) {
    twins.fake->Range.HighestPlayingStrategy = static_cast<std::int16_t>(random.Between(-3, 60));
    twins.fake->Range.HighestBettingStrategy = static_cast<std::int16_t>(random.Between(-3, 60));
  });
  sequence.Add("fail", 4, [](Twins<C>& twins, SequenceRandom& random) {
    constexpr const char* Kinds[] = {"Playing ", "Betting ", "Count ", "Store", "Range", ""};
    const std::string kind = Kinds[random.Below(std::size(Kinds))];
    const bool isNumbered = !kind.empty() && kind.back() == ' ';
    twins.catalogue.failingCall = isNumbered ? kind + std::to_string(random.Between(-1, 40)) : kind;
    twins.catalogue.failingCode = random.OneIn(3) ? 1234 : 91;
  });
  sequence.Add("take the catalogue away or bring it back", 4, [](Twins<C>& twins, SequenceRandom& random) {
    twins.catalogue.isThere = random.OneIn(2);
    StrategyListData::UseCatalogue(
        twins.catalogue.isThere ? std::shared_ptr<StrategyCatalogue>(std::shared_ptr<void>(), &*twins.fake) : nullptr);
  });
  sequence.Add("write to the buffer", 2, [](Twins<C>&, SequenceRandom& random) {
    StrategyListData::Buffer().Write(random.OneIn(2) ? AnyPlayingDescription(random) : AnyBettingDescription(random));
  });
}

/// What a host and a user do.
template <class C>
void AddListOperations(Sequence<C>& sequence) {
  sequence.Add("fill", 6, [](Twins<C>& twins, SequenceRandom&) {
    twins.Both(
        "a fill", [&] { return twins.model->Fill(); }, [&] { Fill(*twins.control); });
  });
  sequence.Add("load", 6, [](Twins<C>& twins, SequenceRandom&) {
    const auto load = [&] {
      const int code = twins.model->Load();
      return std::is_same_v<C, StrategyMarquix> && code == 0 ? twins.model->Load() : code;
    };
    twins.Both("a load", load, [&] { twins.control->LoadStrategiesFromIniFile(); });
  });
  sequence.Add("select by index", 10, [](Twins<C>& twins, SequenceRandom& random) {
    const auto strategy = static_cast<std::int16_t>(random.Between(-4, 65));
    twins.Both(
        "ListIndex", [&] { return twins.model->SetRow(strategy + 1); }, [&] { twins.control->ListIndex(strategy); });
  });
  sequence.Add("select strategy", 10, [](Twins<C>& twins, SequenceRandom& random) {
    const auto strategy = static_cast<std::int16_t>(random.Between(-4, 65));
    if constexpr (std::is_same_v<C, CountStrategyList>) {
      twins.Both(
          "CountStrategy", [&] { return twins.model->CountStrategy(strategy); },
          [&] { twins.control->CountStrategy(std::int32_t{strategy}); });
    } else {
      twins.Both(
          "SelectThisStrategy", [&] { return twins.model->SelectThisStrategy(strategy); },
          [&] { ListOf(*twins.control).SelectThisStrategy(strategy); });
    }
  });
  sequence.Add("pick", 20, [](Twins<C>& twins, SequenceRandom& random) {
    const std::int32_t row = random.Between(0, 63);
    if (row >= twins.Box().ListCount()) return;
    const std::size_t before = twins.site.Errors().size();
    const int expected = twins.model->SetRow(row);
    twins.Box().PickRow(row);
    const bool failed = twins.site.Errors().size() > before;
    twins.Call("a pick", expected, failed ? twins.site.Errors().back().Code() : 0);
  });
  sequence.Add("add a row", 4, [](Twins<C>& twins, SequenceRandom& random) {
    constexpr const char* Texts[] = {"row", "Not Present", ""};
    const char* const text = Texts[random.Below(std::size(Texts))];
    if (twins.Box().ListCount() > 70) return;
    std::optional<std::int32_t> index;
    if (random.OneIn(2)) index = random.Between(-1, 70);
    twins.Both(
        "AddItem", [&] { return twins.model->AddItem(text, index); },
        [&] { ListOf(*twins.control).AddItem(text, index); });
  });
  sequence.Add("set the text", 3, [](Twins<C>& twins, SequenceRandom& random) {
    constexpr const char* Texts[] = {"", "Not Present", "Basic", "Strategy 3", "Count 16"};
    const char* const text = Texts[random.Below(std::size(Texts))];
    twins.model->Text(text);
    ListOf(*twins.control).Text(text);
  });
  sequence.Add("save and load", 2, [](Twins<C>& twins, SequenceRandom&) {
    MemoryPropertyBag bag;
    ListOf(*twins.control).WriteProperties(bag);
    twins.Both(
        "a reload",
        [&] {
          twins.model->Reload();
          return 0;
        },
        [&] { ListOf(*twins.control).ReadProperties(bag); });
  });
  sequence.Add("start over", 1, [](Twins<C>& twins, SequenceRandom&) { twins.StartOver(); });
}

template <class C>
class StrategyListModelTest : public testing::Test {};

using Modelled = testing::Types<StrategyListLITE, BetStrategyList, CountStrategyList, StrategyMarquix>;

struct ModelledName {
  template <class C>
  static std::string GetName(int) {
    constexpr const char* Names[] = {"StrategyListLITE", "BetStrategyList", "CountStrategyList"};
    return std::is_same_v<C, StrategyMarquix> ? "StrategyMarquix"
                                              : Names[static_cast<int>(ModelOf(static_cast<C*>(nullptr)))];
  }
};

TYPED_TEST_SUITE(StrategyListModelTest, Modelled, ModelledName);

TYPED_TEST(StrategyListModelTest, DoesWhatItsModelDoes) {
  Sequence<TypeParam> sequence([] { return std::make_unique<Twins<TypeParam>>(); });
  AddCatalogueOperations<TypeParam>(sequence);
  AddListOperations<TypeParam>(sequence);
  sequence.Always([](Twins<TypeParam>& twins) { return twins.Difference(); });
  EXPECT_TRUE(sequence.Run(20240601, 100'000));
}

}  // namespace
}  // namespace tactix::tests
