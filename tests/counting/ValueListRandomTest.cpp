// The two selectors of a card's value and the list of units: once with a host that only listens, against a model of
// every event and notice, once with one that does random things in its handlers.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "tactix/platform/PropertyBag.h"
#include "tests/counting/ValueLists.h"
#include "tests/support/EventRecorder.h"
#include "tests/support/RandomHost.h"
#include "tests/support/RandomSequence.h"

namespace tactix::tests {

namespace {

constexpr std::int32_t NoPick = -2;
constexpr std::int32_t Keys[] = {UpArrowKey, DownArrowKey, HomeKey, EndKey, ReturnKey, ' '};

/// Where a key leads in a list.
std::int32_t RowAfter(std::int32_t key, std::int32_t row, std::int32_t count) {
  if (key == UpArrowKey) return row > 0 ? row - 1 : NoPick;
  if (key == DownArrowKey) return row < count - 1 ? row + 1 : NoPick;
  if (key == HomeKey) return row != 0 ? 0 : NoPick;
  if (key == EndKey) return row != count - 1 ? count - 1 : NoPick;
  return NoPick;
}

/// The control, and what it must be like and must have reported.
template <class C>
struct ListenedTo {
  using S = ListOf<C>;

  HeadlessSite site;
  EventRecorder recorder;
  std::unique_ptr<C> control;
  std::int32_t row = -1;
  std::int32_t value = 0;
  std::int32_t card = 1;
  std::string caption = "A";
  std::vector<std::string> log;

  ListenedTo() {
    site.OnPropertyChanged([this](std::string_view name) { recorder.Note("notice " + std::string(name)); });
    Make();
  }
  void Make() {
    control = std::make_unique<C>(site);
    control->InitProperties();
    recorder.Watch(control->Events.All());
    row = -1;
    value = 0;
    card = 1;
    caption = "A";
  }
  ListBox& List() { return S::TheList(*control); }
  bool IsRow(std::int32_t number) { return number >= 0 && number < List().ListCount(); }
  /// The model's pick, which is reported; of no row with -1.
  void Picks(std::int32_t picked) {
    row = picked;
    value = IsUnitList<C> ? row : row - 10;
    log.push_back(S::EventName + ("(" + std::to_string(value) + ")"));
    if constexpr (!IsUnitList<C>) log.push_back(std::string("notice ") + S::ValueName);
  }
  std::string Check() {
    if (recorder.Entries() != log) {
      return recorder.Entries().empty() ? "reported nothing" : "reported " + recorder.Entries().back();
    }
    recorder.Forget();
    log.clear();
    if (List().ListIndex() != row) return "row " + std::to_string(List().ListIndex());
    if (row >= 0 && List().Text() != List().List(row)) return "the list's text";
    if (!FocusIsUsable(site)) return "the focus is on what cannot be used";
    if (!site.Errors().empty()) return "a user's error";
    if constexpr (!IsUnitList<C>) {
      if (S::Value(*control) != value) return "value " + std::to_string(S::Value(*control).Value());
      if (control->CardValue() != card) return "card " + std::to_string(control->CardValue().Value());
      if (control->Children.lblCardValue.Caption() != caption) return "the card's label";
    }
    return {};
  }
};

template <class C>
void AddListOperations(RandomSequence<ListenedTo<C>>& sequence) {
  using L = ListenedTo<C>;
  sequence.Add("pick", 25, [](L& l, SequenceRandom& random) {
    const std::int32_t row = random.Between(-2, 36);
    if (l.List().Usable() && l.IsRow(row)) l.Picks(row);
    l.List().PickRow(row);
  });
  sequence.Add("set the row", 15, [](L& l, SequenceRandom& random) {
    const std::int32_t row = random.Between(-2, 36);
    if (row == -1) l.row = -1;
    if (l.IsRow(row)) l.Picks(row);
    try {
      l.List().ListIndex(row);
    } catch (const Error&) {
    }
  });
  sequence.Add("press a key", 25, [](L& l, SequenceRandom& random) {
    l.List().SetFocus();
    const std::int32_t key = Keys[random.Below(std::size(Keys))];
    const std::int32_t row = RowAfter(key, l.row, l.List().ListCount());
    if (l.List().Usable() && row != NoPick) l.Picks(row);
    l.site.PressKey({key, static_cast<std::int16_t>(random.OneIn(2) ? 0 : ShiftKey)});
  });
  sequence.Add("set a new text", 3, [](L& l, SequenceRandom& random) {
    l.Picks(-1);
    l.List().Text("text " + std::to_string(random.Next()));
  });
  sequence.Add("enable", 2, [](L& l, SequenceRandom& random) { l.List().Enabled(!random.OneIn(4)); });
  sequence.Add("show", 2, [](L& l, SequenceRandom& random) { l.control->Extender().Visible(!random.OneIn(4)); });
  sequence.Add("resize", 1, [](L& l, SequenceRandom& random) {
    l.control->Extender().Place(0, 0, static_cast<float>(random.Between(-50, 5000)),
                                static_cast<float>(random.Between(-50, 3000)));
  });
  sequence.Add("make a new one", 1, [](L& l, SequenceRandom&) { l.Make(); });
}

template <class C>
void AddSelectorOperations(RandomSequence<ListenedTo<C>>& sequence) {
  using L = ListenedTo<C>;
  sequence.Add("set the card", 10, [](L& l, SequenceRandom& random) {
    const std::int32_t card = random.Between(-2, 13);
    if (card >= 1 && card <= 10) {
      l.card = card;
      l.caption = card == 1 ? "A" : card == 10 ? "T" : std::to_string(card);
      l.log.emplace_back("notice CardValue");
    }
    l.control->CardValue(card);
  });
  sequence.Add("set the value", 15, [](L& l, SequenceRandom& random) {
    const std::int32_t value = random.Between(-12, 12);
    if (value >= 1 && value <= 10) {
      l.Picks(l.row);
      if (l.row >= 0) l.Picks(l.row);
    }
    L::S::Value(*l.control, value);
  });
  sequence.Add("restore", 3, [](L& l, SequenceRandom& random) {
    MemoryPropertyBag bag;
    const std::int32_t value = random.Between(-14, 14);
    bag.Write(L::S::ValueName, value);
    if (value == -11) l.row = -1;
    if (value >= -10 && value <= 10) l.Picks(value + 10);
    if (random.OneIn(3)) {
      bag.Write("CardValue", "no card");
    } else {
      l.card = random.Between(-300, 300);
      l.caption = std::to_string(l.card);
      bag.Write("CardValue", l.card);
    }
    l.control->ReadProperties(bag);
  });
  sequence.Add("save and restore", 2, [](L& l, SequenceRandom&) {
    MemoryPropertyBag bag;
    l.control->WriteProperties(bag);
    const std::int32_t saved = l.value;
    if (saved == -11) l.row = -1;
    if (saved != -11) l.Picks(saved + 10);
    l.caption = std::to_string(l.card);
    l.control->ReadProperties(bag);
  });
}

template <class C>
class ValueListRandomTest : public testing::Test {};

using Controls = testing::Types<CountValueSelector, ClumpCardList, UnitSelectionList>;
TYPED_TEST_SUITE(ValueListRandomTest, Controls, ListName);

TYPED_TEST(ValueListRandomTest, ReportsExactlyWhatIsDone) {
  RandomSequence<ListenedTo<TypeParam>> sequence([] { return std::make_unique<ListenedTo<TypeParam>>(); });
  AddListOperations(sequence);
  if constexpr (!IsUnitList<TypeParam>) AddSelectorOperations(sequence);
  sequence.Always([](ListenedTo<TypeParam>& l) { return l.Check(); });
  EXPECT_TRUE(sequence.Run(20240501, 100'000));
}

template <class C>
std::vector<typename RandomHost<C>::Operation> WildOperations() {
  using Host = RandomHost<C>;
  using S = ListOf<C>;
  std::vector<typename Host::Operation> operations = {
      {"pick", 20, [](Host&, C& c, SequenceRandom& random) { S::TheList(c).PickRow(random.Between(-2, 36)); }},
      {"set the row", 15, [](Host&, C& c, SequenceRandom& random) { S::TheList(c).ListIndex(random.Between(-2, 36)); }},
      {"press a key", 20,
       [](Host& host, C&, SequenceRandom& random) {
         host.Site().PressKey({Keys[random.Below(std::size(Keys))], 0});
       }},
      {"focus", 3, [](Host&, C& c, SequenceRandom&) { S::TheList(c).SetFocus(); }},
      {"set a text", 3,
       [](Host&, C& c, SequenceRandom& random) { S::TheList(c).Text(random.OneIn(2) ? "none" : "+3"); }},
      {"enable", 2, [](Host&, C& c, SequenceRandom& random) { S::TheList(c).Enabled(!random.OneIn(4)); }},
      {"show", 2, [](Host&, C& c, SequenceRandom& random) { c.Extender().Visible(!random.OneIn(4)); }},
      {"fail", 1, [](Host&, C& c, SequenceRandom&) { S::TheEvent(c).Connect([](auto&) { throw Error(4711); }); }},
      {"destroy", 1, [](Host& host, C&, SequenceRandom&) { host.DestroyControl(); }},
      {"destroy the window", 1, [](Host& host, C&, SequenceRandom&) { host.DestroyWindow(); }},
  };
  if constexpr (!IsUnitList<C>) {
    operations.push_back(
        {"set the value", 15, [](Host&, C& c, SequenceRandom& random) { S::Value(c, random.Between(-12, 12)); }});
    operations.push_back(
        {"set the card", 5, [](Host&, C& c, SequenceRandom& random) { c.CardValue(random.Between(-2, 13)); }});
    operations.push_back({"restore anything", 3, [](Host&, C& c, SequenceRandom& random) {
                            MemoryPropertyBag bag;
                            bag.Write(S::ValueName, AnyValue(random));
                            bag.Write("CardValue", AnyValue(random));
                            c.ReadProperties(bag);
                          }});
  }
  return operations;
}

template <class C>
void PrepareWild(RandomHost<C>& host, C& control) {
  using S = ListOf<C>;
  host.Site().OnPropertyChanged([&host](std::string_view) { host.MaybeInterfere(8); });
  S::TheEvent(control).Connect([&host, &control](const auto& value) {
    const std::int32_t row = S::TheList(control).ListIndex();
    if (value != (IsUnitList<C> ? row : row - 10)) host.ReportWrong("reported " + std::to_string(value));
    host.MaybeInterfere(4);
  });
}

TYPED_TEST(ValueListRandomTest, StaysInOrderWhateverItsHandlersDo) {
  using Host = RandomHost<TypeParam>;
  const auto operations = WildOperations<TypeParam>();
  RandomSequence<Host> sequence([&operations] { return std::make_unique<Host>(operations, PrepareWild<TypeParam>); });
  for (const auto& operation : operations) {
    sequence.Add(operation.name, operation.weight,
                 [operation](Host& host, SequenceRandom& random) { host.Run(operation, random); });
  }
  sequence.Always([](Host& host) -> std::string {
    if (!host.Wrong().empty() || !host.Control()) return host.Wrong();
    const ListBox& list = ListOf<TypeParam>::TheList(*host.Control());
    if (list.ListIndex() >= 0 && list.Text() != list.List(list.ListIndex())) return "the list's text";
    if (!FocusIsUsable(host.Site())) return "the focus is on what cannot be used";
    for (const Error& error : host.Site().Errors()) {
      if (error.Code() != 4711 && error.Code() != 380) return "a user's error " + std::to_string(error.Code());
    }
    return {};
  });
  EXPECT_TRUE(sequence.Run(20240502, 100'000));
}

}  // namespace
}  // namespace tactix::tests
