#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "tactix/counting/SpinCounter.h"
#include "tactix/platform/NumberText.h"
#include "tactix/platform/PropertyBag.h"
#include "tests/support/InstalledCounterValues.h"
#include "tests/support/RandomHost.h"
#include "tests/support/RandomSequence.h"

namespace tactix::tests {
namespace {

using Host = RandomHost<SpinCounter>;

/// What a spin counter must be like.
struct CounterModel {
  int value = 0;
  int limit = 999;
  bool wraps = false;
  bool negatives = false;
  int handedness = 2;
  std::string caption = "(###)";
  int events = 0;

  void Show() {
    const std::string digits = std::to_string(value < 0 ? -value : value);
    caption = std::string(value < 0 ? "(-" : "(") + std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0') +
              digits + ")";
    ++events;
  }
  void Set(int number) {
    if (number < 0 ? !negatives : number > limit) return;
    value = number;
    Show();
  }
  void Up() {
    if (value < limit) ++value;
    Show();
  }
  void Down() {
    if (wraps) {
      value = value > 0 ? value - 1 : limit;
    } else if (value > (negatives ? -999 : 0)) {
      --value;
    }
    Show();
  }
};

void Prepare(Host& host, SpinCounter& counter);
CounterModel& ModelOf(Host& host);

std::int16_t AnyNumber(SequenceRandom& random) {
  constexpr std::int16_t Ends[] = {0, 1, -1, 999, 998, 1000, -999, -1000, 32767, -32768};
  return random.OneIn(2) ? Ends[random.Below(std::size(Ends))] : static_cast<std::int16_t>(random.Between(-60, 60));
}

/// Does to the model what a press of the spin button does, if it will do anything.
void Spin(Host& host, SpinCounter& counter, bool up) {
  if (!counter.Children.SpinButton.Usable()) return;
  up ? ModelOf(host).Up() : ModelOf(host).Down();
}

/// What a handler does to the limit and the layout when it hears of the negative numbers, the bag then takes back.
void Restore(Host& host, SpinCounter& counter, PropertyBag& bag, const CounterModel saved) {
  const Weak<SpinCounter> self(counter);
  counter.ReadProperties(bag);
  if (!self) return;
  ModelOf(host).limit = saved.limit;
  ModelOf(host).handedness = saved.handedness;
}

const std::vector<Host::Operation> Operations = {
    {"set", 20,
     [](Host& host, SpinCounter& counter, SequenceRandom& random) {
       const std::int16_t number = AnyNumber(random);
       ModelOf(host).Set(number);
       counter.CounterValue(number);
     }},
    {"spin up", 25,
     [](Host& host, SpinCounter& counter, SequenceRandom&) {
       Spin(host, counter, true);
       counter.Children.SpinButton.SpinUp();
     }},
    {"spin down", 25,
     [](Host& host, SpinCounter& counter, SequenceRandom&) {
       Spin(host, counter, false);
       counter.Children.SpinButton.SpinDown();
     }},
    {"press an arrow", 15,
     [](Host& host, SpinCounter& counter, SequenceRandom& random) {
       const bool up = random.OneIn(2);
       counter.Children.SpinButton.SetFocus();
       Spin(host, counter, up);
       host.Site().PressKey({up ? UpArrowKey : DownArrowKey, 0});
     }},
    {"limit", 6,
     [](Host& host, SpinCounter& counter, SequenceRandom& random) {
       const std::int16_t limit = AnyNumber(random);
       if (limit >= 1 && limit <= 999) ModelOf(host).limit = limit;
       counter.MaximumLimit(limit);
     }},
    {"wrap", 3,
     [](Host& host, SpinCounter& counter, SequenceRandom& random) {
       const bool on = random.OneIn(2);
       ModelOf(host).wraps = on;
       counter.NumberWrap(on);
     }},
    {"allow negatives", 3,
     [](Host& host, SpinCounter& counter, SequenceRandom& random) {
       const bool on = random.OneIn(2);
       ModelOf(host).negatives = on;
       counter.AllowNegNumbers(on);
     }},
    {"handedness", 3,
     [](Host& host, SpinCounter& counter, SequenceRandom& random) {
       const int handedness = random.Between(-1, 6);
       if (handedness >= 1 && handedness <= 4) ModelOf(host).handedness = handedness;
       counter.ControlHandedness(handedness);
     }},
    {"resize", 2,
     [](Host&, SpinCounter& counter, SequenceRandom& random) {
       counter.Extender().Place(0, 0, static_cast<float>(random.Between(-50, 5000)),
                                static_cast<float>(random.Between(-50, 9000)));
     }},
    {"default size", 1,
     [](Host&, SpinCounter& counter, SequenceRandom& random) { counter.UseDefaultSize(random.OneIn(2)); }},
    {"enable", 2,
     [](Host&, SpinCounter& counter, SequenceRandom& random) {
       counter.Children.SpinButton.Enabled(!random.OneIn(4));
     }},
    {"show", 2,
     [](Host&, SpinCounter& counter, SequenceRandom& random) { counter.Extender().Visible(!random.OneIn(4)); }},
    {"save and load", 1,
     [](Host& host, SpinCounter& counter, SequenceRandom&) {
       MemoryPropertyBag bag;
       counter.WriteProperties(bag);
       Restore(host, counter, bag, ModelOf(host));
     }},
    {"load anything", 2,
     [](Host& host, SpinCounter& counter, SequenceRandom& random) {
       CounterModel saved = ModelOf(host);
       MemoryPropertyBag bag;
       counter.WriteProperties(bag);
       saved.limit = AnyNumber(random);
       ModelOf(host).value = AnyNumber(random);
       bag.Write("CounterValue", ModelOf(host).value);
       bag.Write("MaximumLimit", saved.limit);
       bag.Write("Height", AnyValue(random));
       bag.Write("Font", AnyValue(random));
       Restore(host, counter, bag, saved);
     }},
    {"destroy", 1, [](Host& host, SpinCounter&, SequenceRandom&) { host.DestroyControl(); }},
    {"destroy the window", 1, [](Host& host, SpinCounter&, SequenceRandom&) { host.DestroyWindow(); }},
};

class CounterHost final : public Host {
 public:
  CounterHost() : Host(Operations, Prepare) {}
  ~CounterHost() override { DestroyWindow(); }

  CounterModel Model;
  int Heard = 0;

 private:
  InstalledCounterValues installed_;
};

CounterModel& ModelOf(Host& host) { return static_cast<CounterHost&>(host).Model; }

void Prepare(Host& host, SpinCounter& counter) {
  auto& counting = static_cast<CounterHost&>(host);
  counting.Model = {};
  counting.Heard = 0;
  host.Site().OnPropertyChanged([&host](std::string_view) { host.MaybeInterfere(12); });
  counter.Events.CounterValueHasChanged.Connect([&counting, &counter](const std::int16_t& value) {
    ++counting.Heard;
    if (value != counting.Model.value) counting.ReportWrong("an event with " + std::to_string(value));
    if (counter.CounterValue() != value) counting.ReportWrong("an event that is not the value");
    counting.MaybeInterfere(6);
  });
}

std::string Check(CounterHost& host) {
  if (!host.Wrong().empty()) return host.Wrong();
  SpinCounter* const counter = host.Control();
  if (!counter) return {};
  const CounterModel& model = host.Model;
  if (counter->CounterValue() != model.value) return "the value is " + std::to_string(counter->CounterValue());
  if (counter->MaximumLimit() != model.limit) return "the limit";
  if (counter->AllowNegNumbers() != model.negatives || counter->NumberWrap() != model.wraps) return "the flags";
  if (counter->ControlHandedness() != model.handedness) return "the handedness";
  const std::string& caption = counter->Children.labelCardsInStack.Caption();
  if (caption != model.caption) return "it shows " + caption + " and not " + model.caption;
  if (host.Heard != model.events) return std::to_string(host.Heard) + " events";
  if (counter->Extender().Width() != 1500) return "the width";
  if (!FocusIsUsable(host.Site())) return "the focus is on what cannot be used";
  if (!host.Site().Errors().empty()) return "a user's error";
  return {};
}

TEST(SpinCounterRandomTest, StaysInOrderWhateverHappens) {
  RandomSequence<CounterHost> sequence([] { return std::make_unique<CounterHost>(); });
  for (const Host::Operation& operation : Operations) {
    sequence.Add(operation.name, operation.weight,
                 [operation](CounterHost& host, SequenceRandom& random) { host.Run(operation, random); });
  }
  sequence.Always(Check);
  EXPECT_TRUE(sequence.Run(20240501, 100'000));
}

}  // namespace
}  // namespace tactix::tests
