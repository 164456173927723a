// Hosts and users that do random things to the lists, also in the middle of their call-outs.

#include <gtest/gtest.h>

#include <array>
#include <iterator>
#include <memory>
#include <string>
#include <type_traits>

#include "tactix/platform/PropertyBag.h"
#include "tactix/strategy/BetStrategyList.h"
#include "tactix/strategy/CountStrategyList.h"
#include "tactix/strategy/StrategyList.h"
#include "tactix/strategy/StrategyListLITE.h"
#include "tactix/strategy/StrategyMarquix.h"
#include "tests/support/DescriptionTexts.h"
#include "tests/support/FakeCatalogue.h"
#include "tests/support/RandomHost.h"
#include "tests/support/RandomSequence.h"

namespace tactix::tests {
namespace {

template <class C>
constexpr bool IsCounting = std::is_same_v<C, CountStrategyList>;

template <class C>
constexpr bool IsAMarquee = std::is_same_v<C, StrategyMarquix>;

template <class C>
auto& ListIn(C& control) {
  if constexpr (IsAMarquee<C>) {
    return control.Children.StrategyListBox;
  } else {
    return control;
  }
}

template <class C>
ListBox& BoxIn(C& control) {
  return static_cast<ListBox&>(*ListIn(control).Extender().Children()[0]);
}

template <class C>
class ListsHost;

template <class C>
FakeCatalogue& CatalogueOf(RandomHost<C>& host);

template <class C>
void Refill(C& control) {
  if constexpr (IsCounting<C>) {
    control.InputCountStrategyDescriptions();
  } else if constexpr (std::is_same_v<C, BetStrategyList>) {
    control.InputBettingStrategyDescriptions();
  } else {
    control.InputPlayingStrategyDescriptions();
  }
}

template <class C>
void ChooseByNumber(C& control, SequenceRandom& random) {
  const auto number = static_cast<std::int16_t>(random.Between(-4, 65));
  if constexpr (IsCounting<C>) {
    control.CountStrategy(std::int32_t{number});
  } else {
    ListIn(control).SelectThisStrategy(number);
  }
}

template <class C>
void PressAKey(RandomHost<C>& host, C&, SequenceRandom& random) {
  constexpr std::int32_t Keys[] = {UpArrowKey, DownArrowKey, HomeKey, EndKey, 'N', 'S', 'e', ReturnKey, ' '};
  host.Site().PressKey({Keys[random.Below(std::size(Keys))], static_cast<std::int16_t>(random.Below(8))});
}

template <class C>
void AddARow(RandomHost<C>&, C& control, SequenceRandom& random) {
  constexpr const char* Texts[] = {"row", "Not Present", ""};
  const char* const text = Texts[random.Below(std::size(Texts))];
  if (BoxIn(control).ListCount() > 80) return;
  random.OneIn(2) ? ListIn(control).AddItem(text) : ListIn(control).AddItem(text, random.Between(-1, 70));
}

template <class C>
void SetTheText(RandomHost<C>&, C& control, SequenceRandom& random) {
  constexpr const char* Texts[] = {"", "Not Present", "Basic", "Strategy 3"};
  ListIn(control).Text(Texts[random.Below(std::size(Texts))]);
}

template <class C>
void SaveAndLoad(RandomHost<C>&, C& control, SequenceRandom&) {
  MemoryPropertyBag bag;
  const Weak<C> self(control);
  control.WriteProperties(bag);
  if (self) control.ReadProperties(bag);
}

template <class C>
void UseACollection(RandomHost<C>& host, C& control, SequenceRandom& random) {
  const auto collection = std::make_shared<FakeCollection>(AnyValue(random));
  collection->OnCount = [&host] { host.MaybeInterfere(3); };
  control.UseThisStrategyList(collection);
}

template <class C>
void Describe(RandomHost<C>& host, C&, SequenceRandom& random) {
  CatalogueOf(host).Playing[random.Between(-1, 60)] = AnyPlayingDescription(random);
  CatalogueOf(host).Betting[random.Between(-1, 60)] = AnyBettingDescription(random);
  CatalogueOf(host).Counts[random.Between(11, 38)] = AnyCountDescription(random);
}

template <class C>
void DescribeWell(RandomHost<C>& host, C&, SequenceRandom& random) {
  CatalogueOf(host).Describe(random.Between(0, 60));
  CatalogueOf(host).DescribeBetting(random.Between(0, 60));
  CatalogueOf(host).DescribeCounts();
}

template <class C>
void SetARange(RandomHost<C>& host, C& control, SequenceRandom& random) {
  CatalogueOf(host).Range.HighestPlayingStrategy = static_cast<std::int16_t>(random.Between(-2, 60));
  CatalogueOf(host).Range.HighestBettingStrategy = static_cast<std::int16_t>(random.Between(-2, 60));
  control.LoadStrategiesFromIniFile();
}

template <class C>
void WriteToTheArgument(RandomHost<C>&, C& control, SequenceRandom&) {
  ListIn(control).Events.StrategySelectionChanged.Connect([](auto& number, auto&...) { number = 12345; });
}

template <class C>
std::vector<typename RandomHost<C>::Operation> OperationsOn() {
  using Host = RandomHost<C>;
  using Random = SequenceRandom;
  return {
      {"fill", 3, [](Host&, C& control, Random&) { Refill(control); }},
      {"load", 3, SetARange<C>},
      {"describe", 6, Describe<C>},
      {"describe all", 1, DescribeWell<C>},
      {"select by index", 8,
       [](Host&, C& control, Random& random) { control.ListIndex(static_cast<std::int16_t>(random.Between(-4, 65))); }},
      {"select by number", 8, [](Host&, C& control, Random& random) { ChooseByNumber(control, random); }},
      {"pick", 20, [](Host&, C& control, Random& random) { BoxIn(control).PickRow(random.Between(-1, 63)); }},
      {"press a key", 20, PressAKey<C>},
      {"focus", 2, [](Host&, C& control, Random&) { BoxIn(control).SetFocus(); }},
      {"add a row", 3, AddARow<C>},
      {"set the text", 2, SetTheText<C>},
      {"enable", 2, [](Host&, C& control, Random& random) { control.Enabled(!random.OneIn(4)); }},
      {"show", 2, [](Host&, C& control, Random& random) { ListIn(control).Visible(!random.OneIn(4)); }},
      {"resize", 1,
       [](Host&, C& control, Random& random) {
         control.Extender().Width(static_cast<float>(random.Between(0, 5000)));
       }},
      {"save and load", 1, SaveAndLoad<C>},
      {"use a collection", 1, UseACollection<C>},
      {"write to the argument", 1, WriteToTheArgument<C>},
      {"destroy", 1, [](Host& host, C&, Random&) { host.DestroyControl(); }},
      {"destroy the window", 1, [](Host& host, C&, Random&) { host.DestroyWindow(); }},
  };
}

template <class C>
constexpr std::int32_t CapOf() {
  return std::remove_reference_t<decltype(ListIn(std::declval<C&>()))>::HighestReportedRow;
}

template <class C>
void Prepare(RandomHost<C>& host, C& control) {
  ListIn(control).Events.StrategySelectionChanged.Connect([&host, &control](const auto& number, const auto&...) {
    const ListBox& box = BoxIn(control);
    const std::int32_t row = box.ListIndex();
    if (row < 0 || row > CapOf<C>()) host.ReportWrong("reported row " + std::to_string(row));
    if (number != (IsCounting<C> ? row + 10 : row - 1)) host.ReportWrong("reported a number that is not the row's");
    if (box.Text() == "Not Present") host.ReportWrong("reported an unusable row");
    if (ListIn(control).LastGoodListIndex() != row) host.ReportWrong("the reported row is not the last good one");
    host.MaybeInterfere(6);
  });
}

template <class C>
class ListsHost final : public RandomHost<C> {
 public:
  ListsHost() : RandomHost<C>(OperationsOn<C>(), Prepare<C>) {
    Catalogue->DescribeBetting(30);
    Catalogue->DescribeCounts();
    Catalogue->OnCall = [this](const std::string&) {
      Catalogue->Log.clear();
      this->MaybeInterfere(200);
    };
  }
  ~ListsHost() override { this->DestroyWindow(); }

  InstalledCatalogue Catalogue;
};

template <class C>
FakeCatalogue& CatalogueOf(RandomHost<C>& host) {
  return *static_cast<ListsHost<C>&>(host).Catalogue;
}

template <class C>
std::string Check(ListsHost<C>& host) {
  if (!host.Wrong().empty()) return host.Wrong();
  C* const control = host.Control();
  if (!control) return {};
  const auto& list = ListIn(*control);
  const ListBox& box = BoxIn(*control);
  const std::int32_t row = box.ListIndex();
  if (row < -1 || row >= box.ListCount()) return "row " + std::to_string(row);
  if (control->ListIndex() != row - 1) return "the selected strategy";
  if (row >= 0 && box.Text() != box.List(row)) return "the text is not the row's";
  if (list.LastGoodListIndex() < 0 || list.LastGoodListIndex() > CapOf<C>()) return "the last good row";
  if (box.Width() != control->Extender().Width()) return "the box's width";
  if (!FocusIsUsable(host.Site())) return "the focus is on what cannot be used";
  for (const Error& error : host.Site().Errors()) {
    if (error.Code() != 380) return "a user's error " + std::to_string(error.Code());
  }
  return {};
}

template <class C>
class StrategyListRandomTest : public testing::Test {};

using RandomLists = testing::Types<StrategyList, StrategyListLITE, BetStrategyList, CountStrategyList, StrategyMarquix>;

struct RandomListName {
  template <class C>
  static std::string GetName(int index) {
    constexpr std::array Names = {"StrategyList", "StrategyListLITE", "BetStrategyList", "CountStrategyList",
                                  "StrategyMarquix"};
    return Names[static_cast<std::size_t>(index)];
  }
};

TYPED_TEST_SUITE(StrategyListRandomTest, RandomLists, RandomListName);

TYPED_TEST(StrategyListRandomTest, StaysInOrderWhateverHappens) {
  using Host = ListsHost<TypeParam>;
  RandomSequence<Host> sequence([] { return std::make_unique<Host>(); });
  for (const auto& operation : OperationsOn<TypeParam>()) {
    sequence.Add(operation.name, operation.weight,
                 [operation](Host& host, SequenceRandom& random) { host.Run(operation, random); });
  }
  sequence.Always(Check<TypeParam>);
  EXPECT_TRUE(sequence.Run(20240501, 100'000));
}

}  // namespace
}  // namespace tactix::tests
