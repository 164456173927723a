#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tactix/platform/PropertyBag.h"
#include "tactix/strategy/StrategyList.h"
#include "tests/support/FakeCatalogue.h"
#include "tests/support/RandomHost.h"
#include "tests/support/RandomSequence.h"

namespace tactix::tests {
namespace {

class ListHost;
using Host = RandomHost<StrategyList>;

void Prepare(Host& host, StrategyList& list);
FakeCatalogue& CatalogueOf(Host& host);

std::string AnyDescription(SequenceRandom& random) {
  constexpr const char* Descriptions[] = {"",
                                          "no comma",
                                          "note,one comma",
                                          "note,Basic,False True",
                                          "note,Basic,False False",
                                          "xy~o,Lk}sm,True True",
                                          "note,Basic,maybe True",
                                          "note,Not Present,0 1",
                                          "note,,0 1",
                                          "note,Select a Strategy,0 1"};
  return Descriptions[random.Below(std::size(Descriptions))];
}

constexpr std::int32_t Keys[] = {UpArrowKey, DownArrowKey, HomeKey, EndKey, 'N', 'S', 'e', ReturnKey, ' '};

const std::vector<Host::Operation> Operations = {
    {"fill", 3, [](Host&, StrategyList& list, SequenceRandom&) { list.InputPlayingStrategyDescriptions(); }},
    {"load", 3,
     [](Host& host, StrategyList& list, SequenceRandom& random) {
       CatalogueOf(host).Range.HighestPlayingStrategy = static_cast<std::int16_t>(random.Between(-2, 60));
       list.LoadStrategiesFromIniFile();
     }},
    {"describe", 6,
     [](Host& host, StrategyList&, SequenceRandom& random) {
       CatalogueOf(host).Playing[random.Between(-1, 60)] = AnyDescription(random);
     }},
    {"describe all", 1,
     [](Host& host, StrategyList&, SequenceRandom& random) { CatalogueOf(host).Describe(random.Between(0, 60)); }},
    {"select by index", 8,
     [](Host&, StrategyList& list, SequenceRandom& random) {
       list.ListIndex(static_cast<std::int16_t>(random.Between(-4, 65)));
     }},
    {"select strategy", 8,
     [](Host&, StrategyList& list, SequenceRandom& random) {
       list.SelectThisStrategy(static_cast<std::int16_t>(random.Between(-4, 65)));
     }},
    {"pick", 20,
     [](Host&, StrategyList& list, SequenceRandom& random) {
       list.Children.StrategyListBox.PickRow(random.Between(-1, 63));
     }},
    {"press a key", 20,
     [](Host& host, StrategyList&, SequenceRandom& random) {
       host.Site().PressKey({Keys[random.Below(std::size(Keys))], static_cast<std::int16_t>(random.Below(8))});
     }},
    {"focus", 2, [](Host&, StrategyList& list, SequenceRandom&) { list.Children.StrategyListBox.SetFocus(); }},
    {"add a row", 3,
     [](Host&, StrategyList& list, SequenceRandom& random) {
       constexpr const char* Texts[] = {"row", "Not Present", ""};
       const char* const text = Texts[random.Below(std::size(Texts))];
       if (list.Children.StrategyListBox.ListCount() > 80) return;
       random.OneIn(2) ? list.AddItem(text) : list.AddItem(text, random.Between(-1, 70));
     }},
    {"set the text", 2,
     [](Host&, StrategyList& list, SequenceRandom& random) {
       constexpr const char* Texts[] = {"", "Not Present", "Basic", "Strategy 3"};
       list.Text(Texts[random.Below(std::size(Texts))]);
     }},
    {"enable", 2, [](Host&, StrategyList& list, SequenceRandom& random) { list.Enabled(!random.OneIn(4)); }},
    {"show", 2, [](Host&, StrategyList& list, SequenceRandom& random) { list.Visible(!random.OneIn(4)); }},
    {"resize", 1,
     [](Host&, StrategyList& list, SequenceRandom& random) {
       list.Extender().Width(static_cast<float>(random.Between(0, 5000)));
     }},
    {"save and load", 1,
     [](Host&, StrategyList& list, SequenceRandom&) {
       MemoryPropertyBag bag;
       list.WriteProperties(bag);
       list.ReadProperties(bag);
     }},
    {"use a collection", 1,
     [](Host& host, StrategyList& list, SequenceRandom& random) {
       const auto collection = std::make_shared<FakeCollection>(AnyValue(random));
       collection->OnCount = [&host] { host.MaybeInterfere(3); };
       list.UseThisStrategyList(collection);
     }},
    {"write to the argument", 1,
     [](Host&, StrategyList& list, SequenceRandom&) {
       list.Events.StrategySelectionChanged.Connect([](std::int32_t& strategy) { strategy = 12345; });
     }},
    {"destroy", 1, [](Host& host, StrategyList&, SequenceRandom&) { host.DestroyControl(); }},
    {"destroy the window", 1, [](Host& host, StrategyList&, SequenceRandom&) { host.DestroyWindow(); }},
};

class ListHost final : public Host {
 public:
  ListHost() : Host(Operations, Prepare) {
    Catalogue->Describe(30);
    Catalogue->OnCall = [this](const std::string&) {
      Catalogue->Log.clear();
      MaybeInterfere(200);
    };
  }
  ~ListHost() override { DestroyWindow(); }

  InstalledCatalogue Catalogue;
};

FakeCatalogue& CatalogueOf(Host& host) { return *static_cast<ListHost&>(host).Catalogue; }

void Prepare(Host& host, StrategyList& list) {
  list.Events.StrategySelectionChanged.Connect([&host, &list](const std::int32_t& strategy) {
    const ListBox& box = list.Children.StrategyListBox;
    const std::int32_t row = box.ListIndex();
    if (row < 0 || row > 55) host.ReportWrong("reported row " + std::to_string(row));
    if (strategy != row - 1) host.ReportWrong("reported a strategy that is not the row's");
    if (box.Text() == "Not Present") host.ReportWrong("reported an unusable row");
    if (list.LastGoodListIndex() != row) host.ReportWrong("the reported row is not the last good one");
    host.MaybeInterfere(6);
  });
}

std::string Check(ListHost& host) {
  if (!host.Wrong().empty()) return host.Wrong();
  StrategyList* const list = host.Control();
  if (!list) return {};
  const ListBox& box = list->Children.StrategyListBox;
  const std::int32_t row = box.ListIndex();
  if (row < -1 || row >= box.ListCount()) return "row " + std::to_string(row);
  if (list->ListIndex() != row - 1 || list->SelectThisStrategy() != row - 1) return "the selected strategy";
  if (row >= 0 && box.Text() != box.List(row)) return "the text is not the row's";
  if (list->LastGoodListIndex() < 0 || list->LastGoodListIndex() > 55) return "the last good row";
  if (box.Width() != list->Extender().Width()) return "the box's width";
  if (!FocusIsUsable(host.Site())) return "the focus is on what cannot be used";
  for (const Error& error : host.Site().Errors()) {
    if (error.Code() != 380) return "a user's error " + std::to_string(error.Code());
  }
  return {};
}

TEST(StrategyListRandomTest, StaysInOrderWhateverHappens) {
  RandomSequence<ListHost> sequence([] { return std::make_unique<ListHost>(); });
  for (const Host::Operation& operation : Operations) {
    sequence.Add(operation.name, operation.weight,
                 [operation](ListHost& host, SequenceRandom& random) { host.Run(operation, random); });
  }
  sequence.Always(Check);
  EXPECT_TRUE(sequence.Run(20240501, 100'000));
}

}  // namespace
}  // namespace tactix::tests
